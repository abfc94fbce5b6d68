#include "copy/BaseAssemblyForm.h"

#include <memory>

#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "support/Variant.h"

namespace copy {

using ui::ControlKind;
using ui::EventKind;

BaseAssemblyForm::BaseAssemblyForm(addin::AddinState& state, std::string name, std::string caption)
    : ui::Form(state.platform, std::move(name), std::move(caption)), state_(state), select_(state) {
    TW_ON(cmdSelect, Click);
    TW_ON(chkTop, Click);
    TW_ON(cmdBrowse, Click);
    TW_ON(cmdDone, Click);
}

void BaseAssemblyForm::cmdSelect_Click() {
    SelectAssembly();
}

void BaseAssemblyForm::AddBaseAssemblyControls() {
    Add("fraBaseAssembly", ControlKind::Frame, "Base Assembly");
    Add("chkTop", ControlKind::CheckBox, "Top");
    Add("txtBaseAssembly", ControlKind::TextBox);
    Add("cmdSelect", ControlKind::Button, "Select Assembly");
}

void BaseAssemblyForm::AddTargetControls() {
    Add("fraTargetDirectory", ControlKind::Frame, "Target Directory");
    Add("txtTargetDir", ControlKind::TextBox);
    Add("cmdBrowse", ControlKind::Button).Picture = "folder";
}

void BaseAssemblyForm::AddCommandControls(const std::string& executeCaption) {
    Add("cmdClone", ControlKind::Button, executeCaption);
    Add("cmdDone", ControlKind::Button, "Done");
    Add("Status", ControlKind::Label, "Status");
}

void BaseAssemblyForm::ShowStatus(const std::string& text) {
    (*this)["Status"].SetCaption(text);
    state_.platform.DoEvents();
}

void BaseAssemblyForm::SelectAssembly() {
    (*this)["cmdSelect"].Enabled = false;
    // A pick that already waits goes on waiting; its own call finishes the job.
    if (select_.Waiting()) {
        select_.bStillSelecting = addin::kVbTrue;
        return;
    }
    host::ObjectPtr picked = select_.Pick(host::kAssemblyOccurrenceFilter);
    // Controls are looked up again: the user may have closed and reopened the dialog
    // while the pick waited.
    if (auto occurrence = std::dynamic_pointer_cast<host::ComponentOccurrence>(picked)) {
        state_.selectedOccurrence = occurrence;
        ShowBaseAssembly(occurrence->Definition()->Document()->FullFileName());
    }
    StopPick();
    (*this)["cmdSelect"].Enabled = true;
}

void BaseAssemblyForm::StopPick() {
    select_.bStillSelecting = addin::kVbFalse;
}

void BaseAssemblyForm::ShowBaseAssembly(const std::string& fullFileName) {
    auto& box = (*this)["txtBaseAssembly"];
    box.SetText(paths::SplitPath(fullFileName).fileName);
    box.ToolTipText = fullFileName;
}

bool BaseAssemblyForm::CheckBaseAssembly() {
    if (state_.selectedOccurrence) return true;
    if (!TopChecked()) {
        state_.platform.MsgBox("No Assembly Selected, Please select an Assembly or pick Top Level");
        return false;
    }
    if (!state_.App().ActiveDocument()) {
        state_.platform.MsgBox("You must have a document open");
        return false;
    }
    return true;
}

void BaseAssemblyForm::chkTop_Click() {
    auto active = state_.App().ActiveDocument();
    if (TopChecked()) {
        if (!active) {
            state_.platform.MsgBox("You must have an active document");
            StopPick();
            (*this)["cmdSelect"].Enabled = true;
            (*this)["chkTop"].SetValue(0);
            return;
        }
        ShowBaseAssembly(active->FullFileName());
        StopPick();
        (*this)["cmdSelect"].Enabled = false;
        return;
    }
    (*this)["cmdSelect"].Enabled = true;
    if (active) SelectAssembly();
}

void BaseAssemblyForm::cmdBrowse_Click() {
    std::string folder =
        paths::BrowseForFolder(state_.App(), state_.platform, "Directory", (*this)["txtTargetDir"].Text());
    if (!folder.empty()) (*this)["txtTargetDir"].SetText(folder);
}

void BaseAssemblyForm::cmdDone_Click() {
    Unload();
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace copy
