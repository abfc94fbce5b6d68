#include "copy/frmSaveAsReplace.h"

#include "addin/shared/DialogPosition.h"
#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/FileSystem.h"
#include "support/Error.h"
#include "support/Text.h"

namespace copy {

using ui::ControlKind;
using ui::EventKind;

namespace {
constexpr const char* kSection = "SaveAs";
}  // namespace

frmSaveAsReplace::frmSaveAsReplace(addin::AddinState& state)
    : ui::Form(state.platform, "frmSaveAsReplace", "Save Copy and Replace"), state_(state), select_(state) {
    TW_ON(cmdSelect, Click);
    TW_ON(cmdBrowse, Click);
    TW_ON(MakeIndependent, Click);
    TW_ON(CommandButton1, Click);
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"cmdSelect", 120, 120, 3000, 375},        {"tbxFullFileName", 120, 600, 6600, 315},
    {"tbxNewFileName", 120, 1020, 5640, 315},  {"cmdBrowse", 5880, 990, 840, 375},
    {"chkReplaceAll", 120, 1500, 2400, 255},   {"chkBrowserName", 2640, 1500, 2880, 255},
    {"MakeIndependent", 120, 1920, 2400, 375}, {"CommandButton1", 5400, 1920, 1320, 375},
};

void frmSaveAsReplace::Build() {
    Add("cmdSelect", ControlKind::Button, "Select Component to Replace");
    Add("tbxFullFileName", ControlKind::TextBox);
    Add("tbxNewFileName", ControlKind::TextBox);
    Add("cmdBrowse", ControlKind::Button, "Browse");
    Add("chkReplaceAll", ControlKind::CheckBox, "Replace All");
    Add("chkBrowserName", ControlKind::CheckBox, "Change Browser Name");
    Add("MakeIndependent", ControlKind::Button, "Save As and Replace");
    Add("CommandButton1", ControlKind::Button, "Done");
    Arrange(7000, 2880, {kLayout});
}

void frmSaveAsReplace::Form_Load() {
    state_.platform.SetOwner(*this, state_.App().MainFrameHWND());
    addin::RestorePosition(state_, *this, kSection);
}

void frmSaveAsReplace::Form_Unload() {
    addin::SavePosition(state_, *this, kSection);
}

// Clicked again while a pick waits, "Select" leaves that pick to finish.
void frmSaveAsReplace::cmdSelect_Click() {
    if (select_.Waiting()) return;
    auto picked = std::dynamic_pointer_cast<host::ComponentOccurrence>(
        select_.Pick(host::kAssemblyLeafOccurrenceFilter));
    if (!picked) {
        state_.platform.MsgBox("Something went wrong");
        return;
    }
    occurrence_ = picked;
    document_ = picked->Definition()->Document();
    (*this)["tbxFullFileName"].SetText(document_->FullFileName());
    (*this)["tbxNewFileName"].SetText(document_->FullFileName());
}

void frmSaveAsReplace::cmdBrowse_Click() {
    const std::string current = (*this)["tbxNewFileName"].Text();
    std::string chosen = paths::SaveFilePrompt(state_.platform, current, support::Right(current, 3),
                                               state_.App().FileLocations()->Workspace());
    if (!chosen.empty()) (*this)["tbxNewFileName"].SetText(chosen);
}

void frmSaveAsReplace::MakeIndependent_Click() {
    const std::string oldName = (*this)["tbxFullFileName"].Text();
    const std::string newName = (*this)["tbxNewFileName"].Text();
    if (oldName == newName) {
        state_.platform.MsgBox("Old and New filenames cannot be the same");
        return;
    }
    if (paths::FileFound(state_.fileSystem, newName)) {
        state_.platform.MsgBox("New File Already exist");
        return;
    }
    if (!occurrence_) {
        state_.platform.MsgBox("The selection set is either empty or an error has occured");
        return;
    }
    if (newName.empty()) return;
    try {
        document_->SaveAs(newName, true);
    } catch (const support::Error&) {
        state_.platform.MsgBox("There was an error saving the file.");
        return;
    }
    occurrence_->Replace(newName, (*this)["chkReplaceAll"].Value() == 1);
    if ((*this)["chkBrowserName"].Value() == 1) occurrence_->SetName("");
}

void frmSaveAsReplace::CommandButton1_Click() {
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace copy
