// Verbs that set up the stand-in host and act on it as the user of the host would.
#include <cctype>
#include <filesystem>

#include "addin/clsAppCmd.h"
#include "app/session/Session.h"
#include "app/session/Verb.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Document.h"
#include "support/Text.h"
#include "ui/headless/ScriptError.h"

namespace session {

namespace fs = std::filesystem;
using ui::headless::ScriptError;

namespace {

// "C:" or "C" to 'C'.
char DriveLetter(const Args& args, std::size_t i) {
    const std::string& text = args.Text(i);
    bool ok = (text.size() == 1 || (text.size() == 2 && text[1] == ':')) &&
              std::isalpha(static_cast<unsigned char>(text[0]));
    if (!ok) args.Fail(ui::headless::Quote(text) + " is not a drive letter");
    return static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
}

void CheckDrive(const Args& args) {
    DriveLetter(args, 0);
    if (args.Count() == 3 && !args.Is(1, "live")) args.Fail("the only option is live");
}

void MapDrive(Session& s, const Args& args) {
    char letter = DriveLetter(args, 0);
    fs::path folder;
    if (args.Count() == 3) {
        folder = fs::absolute(args.Text(2));
        if (!fs::is_directory(folder)) throw ScriptError("there is no folder " + folder.string());
    } else if (args.Is(1, "empty")) {
        folder = s.Scratch().Empty(letter);
    } else {
        folder = s.Scratch().CopyOf(fs::absolute(args.Text(1)), letter);
    }
    s.Host().MapDrive(letter, folder);
}

// "on" or "off" at word i; on when absent.
bool Switch(const Args& args, std::size_t i) {
    if (i >= args.Count() || args.Is(i, "on")) return true;
    if (args.Is(i, "off")) return false;
    args.Fail("expected on or off");
}

void CheckSwitch(const Args& args) {
    Switch(args, 0);
}

std::int32_t DocumentTypeCode(const Args& args, std::size_t i) {
    if (args.Is(i, "part")) return host::kPartDocumentObject;
    if (args.Is(i, "assembly")) return host::kAssemblyDocumentObject;
    if (args.Is(i, "drawing")) return host::kDrawingDocumentObject;
    if (args.Is(i, "presentation")) return host::kPresentationDocumentObject;
    args.Fail("expected part, assembly, drawing or presentation");
}

void CheckEditMode(const Args& args) {
    if (args.Is(0, "in-place")) {
        if (args.Count() != 2) args.Fail("in-place needs the path of the occurrence edited");
    } else if (!args.Is(0, "top") && !args.Is(0, "sketch")) {
        args.Fail("expected top, sketch or in-place");
    } else if (args.Count() != 1) {
        args.Fail("only in-place takes an occurrence");
    }
}

void SetEditMode(Session& s, const Args& args) {
    if (args.Is(0, "top")) s.Host().SetEditMode(simhost::EditMode::TopLevel);
    if (args.Is(0, "sketch")) s.Host().SetEditMode(simhost::EditMode::Sketch);
    if (args.Is(0, "in-place")) s.Host().SetEditMode(simhost::EditMode::InPlace, args.Text(1));
}

void CheckOptionalWord(const Args& args, std::size_t i, std::string_view word) {
    if (args.Count() > i && !args.Is(i, word)) args.Fail("the only option is " + std::string(word));
}

// What the host's Save All does: every document with unsaved changes that has a file name
// is saved (with the documents it references). One never saved would need a name first:
// it is left as it is and named.
void SaveAll(Session& s, const Args&) {
    auto documents = s.Host().Application()->Documents();
    std::vector<host::DocumentPtr> dirty;
    for (std::int32_t i = 1; i <= documents->Count(); ++i)
        if (auto document = documents->Item(i); document->Dirty()) dirty.push_back(document);
    for (const auto& document : dirty) {
        if (document->FullFileName().empty())
            s.Transcript().Write("not saved: " + document->DisplayName() + " has never been saved");
        else if (document->Dirty())  // a document saved with one that references it is clean now
            document->Save();
    }
}

}  // namespace

void AddHostVerbs(std::vector<Verb>& verbs) {
    verbs.push_back({"drive", "drive LETTER: FOLDER | drive LETTER: live FOLDER | drive LETTER: empty", 2, 3,
                     MapDrive, CheckDrive});

    verbs.push_back({"host refuse-icons", "host refuse-icons [on|off]", 0, 1,
                     [](Session& s, const Args& a) { s.Host().SetRefuseIcons(Switch(a, 0)); }, CheckSwitch});
    verbs.push_back({"host version", "host version MAJOR", 1, 1,
                     [](Session& s, const Args& a) { s.Host().SetSoftwareVersion(a.Int(0)); },
                     [](const Args& a) { a.Int(0); }});
    verbs.push_back({"host workspace", "host workspace FOLDER", 1, 1,
                     [](Session& s, const Args& a) { s.Host().SetWorkspace(a.Text(0)); }});
    verbs.push_back({"host templates", "host templates FOLDER", 1, 1,
                     [](Session& s, const Args& a) { s.Host().SetTemplatesPath(a.Text(0)); }});
    verbs.push_back({"host user", "host user NAME", 1, 1,
                     [](Session& s, const Args& a) { s.Host().SetUserName(a.Text(0)); }});

    verbs.push_back({"addin activate", "addin activate", 0, 0, [](Session& s, const Args&) {
                         s.Addin().Activate(s.AddInSite(), s.NextActivationIsFirst());
                     }});
    verbs.push_back({"addin deactivate", "addin deactivate", 0, 0,
                     [](Session& s, const Args&) { s.Addin().Deactivate(); }});
    verbs.push_back({"addin execute", "addin execute COMMAND-ID", 1, 1,
                     [](Session& s, const Args& a) { s.Addin().ExecuteCommand(a.Int(0)); },
                     [](const Args& a) { a.Int(0); }});

    verbs.push_back({"open", "open PATH [invisible]", 1, 2,
                     [](Session& s, const Args& a) { s.Host().Open(a.Text(0), !a.Is(1, "invisible")); },
                     [](const Args& a) { CheckOptionalWord(a, 1, "invisible"); }});
    verbs.push_back({"new", "new part|assembly|drawing|presentation", 1, 1,
                     [](Session& s, const Args& a) { s.Host().NewDocument(DocumentTypeCode(a, 0)); },
                     [](const Args& a) { DocumentTypeCode(a, 0); }});
    verbs.push_back(
        {"activate", "activate PATH", 1, 1, [](Session& s, const Args& a) { s.Host().Activate(a.Text(0)); }});
    verbs.push_back(
        {"close-document", "close-document PATH [skip-save]", 1, 2,
         [](Session& s, const Args& a) { s.LoadedDocument(a.Text(0))->Close(a.Is(1, "skip-save")); },
         [](const Args& a) { CheckOptionalWord(a, 1, "skip-save"); }});
    verbs.push_back(
        {"save", "save PATH", 1, 1, [](Session& s, const Args& a) { s.LoadedDocument(a.Text(0))->Save(); }});
    verbs.push_back({"save-all", "save-all", 0, 0, SaveAll});
    verbs.push_back({"close-all", "close-all", 0, 0, [](Session& s, const Args&) { s.Host().CloseAll(); }});
    verbs.push_back(
        {"edit", "edit top | edit sketch | edit in-place OCCURRENCE-PATH", 1, 2, SetEditMode, CheckEditMode});

    verbs.push_back({"button", "button INTERNAL-NAME", 1, 1,
                     [](Session& s, const Args& a) { s.Host().ClickButton(a.Text(0)); }});
    verbs.push_back({"run-command", "run-command INTERNAL-NAME", 1, 1,
                     [](Session& s, const Args& a) { s.Host().RunCommand(a.Text(0)); }});
    verbs.push_back({"pick", "pick OCCURRENCE-PATH...", 1, -1, [](Session& s, const Args& a) {
                         std::vector<std::string> paths;
                         for (std::size_t i = 0; i < a.Count(); ++i) paths.push_back(a.Text(i));
                         s.Host().Pick(paths);
                     }});
    verbs.push_back({"escape", "escape", 0, 0, [](Session& s, const Args&) { s.Host().Escape(); }});
    verbs.push_back(
        {"context-menu", "context-menu", 0, 0, [](Session& s, const Args&) { s.Host().ContextMenu(); }});
    verbs.push_back({"undo", "undo", 0, 0, [](Session& s, const Args&) { s.Host().Undo(); }});

    verbs.push_back({"fail-save", "fail-save PATH", 1, 1,
                     [](Session& s, const Args& a) { s.Host().FailSaveOf(a.Text(0)); }});
    verbs.push_back({"fail-write-after", "fail-write-after N [refused]", 1, 2,
                     [](Session& s, const Args& a) { s.Host().FailWriteAfter(a.Int(0), a.Count() > 1); },
                     [](const Args& a) {
                         if (a.Int(0) < 0) a.Fail("N is the number of writes that go through first");
                         if (a.Count() > 1 && !a.Is(1, "refused")) a.Fail("the only option is refused");
                     }});
    verbs.push_back({"refuse-folder", "refuse-folder FOLDER", 1, 1,
                     [](Session& s, const Args& a) { s.Host().RefuseWritesIn(a.Text(0)); }});
    verbs.push_back(
        {"read-only", "read-only PATH [on|off]", 1, 2,
         [](Session& s, const Args& a) { s.Host().FileSystem().SetReadOnly(a.Text(0), Switch(a, 1)); },
         [](const Args& a) { Switch(a, 1); }});
    verbs.push_back({"refuse-writes", "refuse-writes [on|off]", 0, 1,
                     [](Session& s, const Args& a) { s.Host().RefuseWrites(Switch(a, 0)); }, CheckSwitch});

    // What the host hands to the add-in: activation, its buttons and its interactions.
    for (auto& verb : verbs)
        if (verb.name.starts_with("addin ") || verb.name == "button" || verb.name == "run-command" ||
            verb.name == "pick" || verb.name == "escape" || verb.name == "context-menu")
            verb.reachesAddin = true;
}

}  // namespace session
