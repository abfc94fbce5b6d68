#include "properties/frmMergeCustomProperties.h"

#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "host/Properties.h"
#include "properties/table/PropertyTable.h"
#include "support/Error.h"

namespace properties {

namespace {

constexpr const char* kSection = "MergeIDWProperties";
constexpr const char* kTemplateKey = "IDWTemplate";
constexpr const char* kDefaultTemplate = "C:\\Program Files\\Autodesk\\Inventor 7\\Templates\\Standard.idw";
constexpr const char* kDrawingFilter = "Inventor Drawing Files (*.idw)|*.idw";

}  // namespace

frmMergeCustomProperties::frmMergeCustomProperties(addin::AddinState& state)
    : ui::Form(state.platform, "frmMergeCustomProperties",
               "Retreive and Merge Custom iProperties from IDW File"),
      state_(state) {
    TW_ON(cmdCancel, Click);
    TW_ON(cmdMerge, Click);
    TW_ON(cmdBrowse, Click);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"Frame1", 120, 120, 6600, 720},     {"txtIDWTemplateFile", 240, 390, 5700, 315},
    {"cmdBrowse", 6060, 360, 540, 375},  {"Label1", 120, 960, 6600, 1680},
    {"cmdMerge", 3960, 2760, 1320, 375}, {"cmdCancel", 5400, 2760, 1320, 375},
};

void frmMergeCustomProperties::Build() {
    Add("cmdCancel", ui::ControlKind::Button, "Done");
    Add("cmdMerge", ui::ControlKind::Button, "Merge");
    Add("Frame1", ui::ControlKind::Frame, "Template IDW File to Merge Custom Properties From");
    Add("txtIDWTemplateFile", ui::ControlKind::TextBox);
    Add("cmdBrowse", ui::ControlKind::Button).Picture = "folder";
    Add("Label1", ui::ControlKind::Label, "Results");
    Arrange(7000, 3720, {kLayout});
    // The file comes before the buttons that act on it.
    TabOrder({"txtIDWTemplateFile", "cmdBrowse", "cmdMerge", "cmdCancel"});
}

void frmMergeCustomProperties::Form_Load() {
    (*this)["txtIDWTemplateFile"].SetCaption(state_.GetSetting(kSection, kTemplateKey, ""));
}

// With a name in the box the prompt starts at that file; with none, at the host's
// standard drawing template.
void frmMergeCustomProperties::cmdBrowse_Click() {
    std::string current = (*this)["txtIDWTemplateFile"].Text();
    if (current.empty()) current = kDefaultTemplate;
    auto start = paths::SplitPath(current);
    std::string chosen =
        paths::OpenFilePrompt(state_.platform, kDrawingFilter, start.directory, start.fileName);
    if (chosen.empty()) {
        (*this)["Label1"].SetCaption("Result: No Template Selected or User Cancelled");
        return;
    }
    (*this)["txtIDWTemplateFile"].SetText(chosen);
    state_.SaveSetting(kSection, kTemplateKey, chosen);
}

void frmMergeCustomProperties::cmdMerge_Click() {
    std::string templateFile = (*this)["txtIDWTemplateFile"].Text();
    if (!paths::FileFound(state_.fileSystem, templateFile)) {
        (*this)["Label1"].SetCaption("Specified Template file does not exist");
        return;
    }
    Merge(templateFile);
}

// No error is caught here: a template that cannot be opened or a refused property ends
// the merge with the host's own message, and the template may stay open invisibly.
void frmMergeCustomProperties::Merge(const std::string& templateFile) {
    (*this)["Label1"].SetCaption("Opening Template: " + templateFile + " for Read");
    state_.platform.DoEvents();
    auto& app = state_.App();
    auto source = app.Documents()->Open(templateFile, false);
    auto from = source->PropertySets()->Item(kUserDefinedId);
    auto target = app.ActiveDocument();
    support::Required(target, "active document");
    auto to = target->PropertySets()->Item(kUserDefinedId);

    std::int16_t mergedNew = 0;
    for (std::int32_t i = 1; i <= from->Count(); ++i) {
        auto property = from->Item(i);
        bool taken = false;
        for (std::int32_t k = 1; k <= to->Count() && !taken; ++k)
            taken = to->Item(k)->PropId() == property->PropId();
        if (taken) continue;
        to->Add(property->Value(), property->Name(), property->PropId());
        ++mergedNew;
    }
    (*this)["Label1"].SetCaption(
        "Custom Properties Total: " + std::to_string(static_cast<std::int16_t>(to->Count())) +
        " / Merged New: " + std::to_string(mergedNew));
    source->Close(true);
}

void frmMergeCustomProperties::cmdCancel_Click() {
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace properties
