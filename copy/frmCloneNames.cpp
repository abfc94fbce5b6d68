#include "copy/frmCloneNames.h"

#include "addin/shared/SettingValues.h"
#include "copy/engine/RenamingWalk.h"
#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "support/Error.h"
#include "support/Text.h"

namespace copy {

using ui::ControlKind;
using ui::EventKind;

namespace {
constexpr const char* kSection = "PreSufxClone";
constexpr const char* kCR = "\r";
}  // namespace

frmCloneNames::frmCloneNames(addin::AddinState& state)
    : BaseAssemblyForm(state, "frmCloneNames", "Clone Assemblies to New Names") {
    TW_ON(cmdClone, Click);
    // "Sequential" and its format list are shown but take no part in naming.
}

// Where each control sits below the shared frames, in twips.
constexpr ui::Placement kLayout[] = {
    {"chkPrefix", 120, 2190, 1320, 255},     {"txtPrefix", 1560, 2160, 1800, 315},
    {"chkSuffix", 120, 2580, 1320, 255},     {"txtSuffix", 1560, 2550, 1800, 315},
    {"lblSeq", 3600, 2190, 3120, 255},       {"chkSeqSuffix", 3600, 2580, 1320, 255},
    {"cboSeq", 5040, 2550, 1680, 315},       {"fraReplace", 120, 3000, 6600, 1080},
    {"optStandalone", 240, 3270, 2880, 255}, {"Option2", 3240, 3270, 2880, 255},
    {"chkOpen", 240, 3660, 2880, 255},       {"cmdClone", 120, 4200, 1800, 375},
    {"cmdDone", 5400, 4200, 1320, 375},      {"Status", 120, 4680, 6600, 255},
};

void frmCloneNames::Build() {
    AddBaseAssemblyControls();
    AddTargetControls();
    Add("chkPrefix", ControlKind::CheckBox, "Use Prefix");
    Add("txtPrefix", ControlKind::TextBox, "!New-");
    Add("chkSuffix", ControlKind::CheckBox, "Use Suffix");
    Add("txtSuffix", ControlKind::TextBox);
    Add("chkSeqSuffix", ControlKind::CheckBox, "Sequential");
    Add("lblSeq", ControlKind::Label, "Format of sequential numbers");
    auto& sequence = Add("cboSeq", ControlKind::ComboBox, "-00#");
    sequence.Items = {"-00#", "-000#", "_00#", "_000#"};
    Add("fraReplace", ControlKind::Frame, "Replace in Source Assembly");
    auto& standalone = Add("optStandalone", ControlKind::OptionButton, "Standalone Assembly");
    auto& inPlace = Add("Option2", ControlKind::OptionButton, "Replace in Open Assy");
    standalone.Group = inPlace.Group = "Replace";
    Add("chkOpen", ControlKind::CheckBox, "Open New Assy");
    AddCommandControls("Execute Clone");
    Arrange(kSharedWidth, 5520, {kBaseAssemblyLayout, kLayout});
}

void frmCloneNames::Form_Activate() {
    LoadSettings();
    if (!(*this)["optStandalone"].Value()) (*this)["Option2"].SetValue(-1);
    state_.platform.DoEvents();
    SelectAssembly();
}

void frmCloneNames::Form_Unload() {
    SaveSettings();
}

void frmCloneNames::LoadSettings() {
    auto get = [&](const char* key, const char* defaultValue) {
        return state_.GetSetting(kSection, key, defaultValue);
    };
    (*this)["txtTargetDir"].SetText(get("TargetDir", "C:\\Temp"));
    (*this)["txtPrefix"].SetText(get("Prefix", "!New-"));
    (*this)["txtSuffix"].SetText(get("Suffix", "-001"));
    (*this)["chkPrefix"].SetValue(addin::ReadWholeSetting(state_, kSection, "UsePrefix", 1, 0, 1));
    (*this)["chkSuffix"].SetValue(addin::ReadWholeSetting(state_, kSection, "UseSuffix", 1, 0, 1));
    (*this)["optStandalone"].SetValue(addin::ReadBoolSetting(state_, kSection, "Standalone", true) ? -1 : 0);
}

void frmCloneNames::SaveSettings() {
    auto save = [&](const char* key, const std::string& value) { state_.SaveSetting(kSection, key, value); };
    save("TargetDir", (*this)["txtTargetDir"].Text());
    save("Prefix", (*this)["txtPrefix"].Text());
    save("Suffix", (*this)["txtSuffix"].Text());
    save("UsePrefix", std::to_string((*this)["chkPrefix"].Value()));
    save("UseSuffix", std::to_string((*this)["chkSuffix"].Value()));
    save("Standalone", addin::BoolToSetting((*this)["optStandalone"].Value() != 0));
}

bool frmCloneNames::CheckChoices() {
    if (!CheckBaseAssembly()) return false;
    // An unchecked prefix or suffix is emptied, so that it can never be applied.
    bool usePrefix = (*this)["chkPrefix"].Value() == 1;
    if (usePrefix && (*this)["txtPrefix"].Text().empty()) {
        state_.platform.MsgBox("Prefix does not contain a value");
        return false;
    }
    if (!usePrefix) (*this)["txtPrefix"].SetText("");
    bool useSuffix = (*this)["chkSuffix"].Value() == 1;
    if (useSuffix && (*this)["txtSuffix"].Text().empty()) {
        state_.platform.MsgBox("Suffix does not contain a value");
        return false;
    }
    if (!useSuffix) (*this)["txtSuffix"].SetText("");
    if (!usePrefix && !useSuffix) {
        state_.platform.MsgBox("Must have either a Prefix or Suffix checked");
        return false;
    }
    return true;
}

void frmCloneNames::cmdClone_Click() {
    if (!CheckChoices()) return;
    auto& app = state_.App();
    std::string prefix = (*this)["txtPrefix"].Text();
    std::string suffix = (*this)["txtSuffix"].Text();
    std::string targetDir = (*this)["txtTargetDir"].Text();
    bool standalone = (*this)["optStandalone"].Value() != 0;
    bool top = TopChecked();
    bool openResult = (*this)["chkOpen"].Value() == 1;

    // newName stays empty when the walk replaces in place: the work document keeps its name.
    std::string newName;
    host::DocumentPtr work;
    if (top && standalone) {
        auto active = app.ActiveDocument();
        support::Required(active, "active document");
        newName = FormCopyName(active->FullFileName(), prefix, suffix, targetDir);
        ShowStatus("Saving: " + newName);
        try {
            active->SaveAs(newName, true);
        } catch (const support::Error&) {
            state_.platform.MsgBox("Error saving" + std::string(kCR) + newName);
            return;
        }
        app.SetSilentOperation(true);
        ShowStatus("Opening: " + newName);
        work = app.Documents()->Open(newName, false);
    } else if (top) {
        work = app.ActiveDocument();
        support::Required(work, "active document");
    } else if (standalone) {
        auto picked = state_.selectedOccurrence->Definition()->Document();
        newName = FormCopyName(picked->FullFileName(), prefix, suffix, targetDir);
        try {
            picked->SaveAs(newName, true);
        } catch (const support::Error&) {
            state_.platform.MsgBox("Error Saving " + newName + kCR + "Try closing, repopening and try again");
            return;
        }
        app.SetSilentOperation(true);
        work = app.Documents()->Open(newName, false);
    } else {
        auto picked = state_.selectedOccurrence;
        SaveAndReplaceOccurrence(Context(), *picked, prefix, suffix, targetDir);
        work = picked->Definition()->Document();
    }

    // A failure inside the walk ends the command here, reported as the host raised it,
    // and leaves silent mode on: nothing after the walk runs, the reset included.
    RecurseOccurrences(Context(), *work, prefix, suffix, targetDir);
    app.SetSilentOperation(false);

    ShowStatus("Saving: " + newName);
    try {
        work->Save();
    } catch (const support::Error&) {
        state_.platform.MsgBox("User Cancelled or error saving" + std::string(kCR) + work->FullFileName());
    }

    if (openResult) {
        app.Documents()->Open(newName, true);
        ShowStatus("Status: Done");
        Unload();
        state_.platform.AppActivate(app.Caption());
    } else {
        work->Close();
    }
    work.reset();
    (*this)["Status"].SetCaption("Finished");
}

}  // namespace copy
