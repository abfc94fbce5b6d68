// Verbs that write the state of the session into the transcript.
#include <fstream>

#include "addin/clsAppCmd.h"
#include "addin/shared/AddinState.h"
#include "app/session/FormPrinter.h"
#include "app/session/Session.h"
#include "app/session/Verb.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "simhost/HostCalls.h"
#include "support/Text.h"
#include "ui/Form.h"

namespace session {

using ui::headless::Quote;

namespace {

void PrintForms(Session& s, const Args&) {
    const auto& forms = s.Platform().LoadedForms();
    if (forms.empty()) s.Transcript().Write("forms: none loaded");
    for (const auto* form : forms)
        s.Transcript().Write("form " + form->Name() + " " + Quote(form->Caption()) +
                             (!form->Visible() ? " hidden"
                              : form->Modal()  ? " modal"
                                               : " modeless"));
}

void PrintFile(Session& s, const Args& args) {
    const std::string& path = args.Text(0);
    auto& files = s.Host().FileSystem();
    std::string state = !files.FileExists(path)  ? "missing"
                        : files.IsReadOnly(path) ? "exists read-only"
                                                 : "exists";
    s.Transcript().Write("file " + Quote(path) + " " + state);
}

void Compare(Session& s, const Args& args) {
    auto& files = s.Host().FileSystem();
    bool same = files.ReadText(args.Text(0)) == files.ReadText(args.Text(1));
    s.Transcript().Write("files " + Quote(args.Text(0)) + " and " + Quote(args.Text(1)) +
                         (same ? " are identical" : " differ"));
}

void PrintHeld(Session& s, const Args&) {
    std::string names;
    for (const auto& name : s.Addin().HeldReferences()) names += (names.empty() ? "" : ", ") + name;
    s.Transcript().Write("held references: " + (names.empty() ? std::string("none") : names));
    s.Transcript().Write("main dialog open: " + std::to_string(s.Addin().State().mainDialogOpen));
}

// The add-in's calls through the host interfaces since the last time they were printed
// (or since the session began), by member: what each would cost across COM in the host.
void PrintHostCalls(Session& s, const Args&) {
    s.Transcript().Write("host calls: " + std::to_string(simhost::HostCalls::Total()));
    for (const auto& [member, count] : simhost::HostCalls::Counts())
        s.Transcript().Write("  " + member + " " + std::to_string(count));
    simhost::HostCalls::Start();
}

void PrintActive(Session& s, const Args&) {
    auto document = s.Host().Application()->ActiveDocument();
    s.Transcript().Write("active document " +
                         (document ? Quote(document->FullFileName()) : std::string("none")));
}

// Read back from the settings file itself: what a later session will find there.
void PrintSettings(Session& s, const Args& args) {
    const std::string header = "[" + std::string(addin::kSettingsApp) + "\\" + args.Text(0) + "]";
    std::ifstream in(s.Settings().Path());
    std::string line;
    bool inSection = false, any = false;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!line.empty() && line.front() == '[') {
            inSection = line == header;
            continue;
        }
        auto eq = line.find('=');
        if (!inSection || eq == std::string::npos) continue;
        s.Transcript().Write("setting " + args.Text(0) + " " + line.substr(0, eq) + " = " +
                             Quote(line.substr(eq + 1)));
        any = true;
    }
    if (!any) s.Transcript().Write("settings " + args.Text(0) + ": none");
}

const char* LocationName(std::int32_t location) {
    return location == host::kLocalStyleLocation     ? "local"
           : location == host::kLibraryStyleLocation ? "library"
           : location == host::kBothStyleLocation    ? "both"
                                                     : "unknown";
}

std::string Describe(host::Material& m) {
    std::string line = "material " + Quote(m.Name()) + " " + LocationName(m.StyleLocation()) +
                       (m.InUse() ? ", in use" : "") + ": density " + support::NumberToText(m.Density());
    auto value = [&](const char* name, double v) {
        if (v != 0) line += ", " + std::string(name) + " " + support::NumberToText(v);
    };
    value("linear expansion", m.LinearExpansion());
    value("Poisson's ratio", m.PoissonsRatio());
    value("specific heat", m.SpecificHeat());
    value("thermal conductivity", m.ThermalConductivity());
    value("tensile strength", m.UltimateTensileStrength());
    value("yield strength", m.YieldStrength());
    value("Young's modulus", m.YoungsModulus());
    if (auto style = m.RenderStyle()) line += ", style " + Quote(style->Name());
    return line;
}

std::string Describe(host::RenderStyle& r) {
    std::string line = "render style " + Quote(r.Name()) + " " + LocationName(r.StyleLocation()) +
                       (r.InUse() ? ", in use" : "");
    std::string values;
    auto value = [&](const char* name, double v) {
        if (v != 0) values += ", " + std::string(name) + " " + support::NumberToText(v);
    };
    auto color = [&](const char* name, host::Rgb c) {
        if (c != host::Rgb{})
            values += ", " + std::string(name) + " " + std::to_string(c.red) + "," + std::to_string(c.green) +
                      "," + std::to_string(c.blue);
    };
    value("opacity", r.Opacity());
    value("shininess", r.Shininess());
    if (!r.TextureFilename().empty()) values += ", texture " + Quote(r.TextureFilename());
    value("texture scale", r.TextureScale());
    value("texture rotation", r.TextureRotation());
    color("ambient", r.GetAmbientColor());
    color("diffuse", r.GetDiffuseColor());
    color("specular", r.GetSpecularColor());
    color("emissive", r.GetEmissiveColor());
    return values.empty() ? line : line + ":" + values.substr(1);
}

template <class Collection>
void WriteStyles(Session& s, Collection& styles) {
    for (std::int32_t i = 1; i <= styles.Count(); ++i) s.Transcript().Write(Describe(*styles.Item(i)));
}

// What the document holds in memory, read through the host's own members.
void PrintStyles(Session& s, const Args& args) {
    auto document = s.LoadedDocument(args.Text(0));
    if (document->DocumentType() == host::kPartDocumentObject) WriteStyles(s, *document->Materials());
    WriteStyles(s, *document->RenderStyles());
}

void PrintPropertySets(Session& s, const Args& args) {
    auto sets = s.LoadedDocument(args.Text(0))->PropertySets();
    for (std::int32_t i = 1; i <= sets->Count(); ++i) {
        auto set = sets->Item(i);
        s.Transcript().Write("property set " + Quote(set->Name()) + " " + set->InternalName() + ", " +
                             std::to_string(set->Count()) + " properties");
    }
}

}  // namespace

void AddPrintVerbs(std::vector<Verb>& verbs) {
    verbs.push_back({"print form", "print form FORM", 1, 1, [](Session& s, const Args& a) {
                         s.Transcript().Write(DescribeForm(s.LoadedForm(a.Text(0))));
                     }});
    verbs.push_back({"print forms", "print forms", 0, 0, PrintForms});
    verbs.push_back({"print document", "print document PATH", 1, 1, [](Session& s, const Args& a) {
                         s.Transcript().Write(s.Host().DescribeDocument(a.Text(0)));
                     }});
    verbs.push_back({"print tree", "print tree PATH", 1, 1, [](Session& s, const Args& a) {
                         s.Transcript().Write(s.Host().DescribeTree(a.Text(0)));
                     }});
    verbs.push_back({"print bars", "print bars", 0, 0,
                     [](Session& s, const Args&) { s.Transcript().Write(s.Host().DescribeBars()); }});
    verbs.push_back({"print status-bar", "print status-bar", 0, 0, [](Session& s, const Args&) {
                         s.Transcript().Write("status-bar " + Quote(s.Host().StatusBar()));
                     }});
    verbs.push_back({"print active", "print active", 0, 0, PrintActive});
    verbs.push_back({"print styles", "print styles PATH", 1, 1, PrintStyles});
    verbs.push_back({"print property-sets", "print property-sets PATH", 1, 1, PrintPropertySets});
    verbs.push_back({"print file", "print file PATH", 1, 1, PrintFile});
    verbs.push_back({"print held", "print held", 0, 0, PrintHeld});
    verbs.push_back({"print host-calls", "print host-calls", 0, 0, PrintHostCalls});
    verbs.push_back({"print settings", "print settings SECTION", 1, 1, PrintSettings});
    verbs.push_back({"compare", "compare PATH PATH", 2, 2, Compare});
}

}  // namespace session
