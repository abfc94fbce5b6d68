#include "properties/frmPartProps.h"

#include "addin/shared/DialogPosition.h"
#include "copy/frmOpenIDW.h"
#include "copy/paths/Paths.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Document.h"
#include "materials/frmGetColor.h"
#include "materials/frmGetMaterial.h"
#include "materials/frmOverrideWeight.h"
#include "properties/frmUpdateMatrix.h"
#include "properties/table/PropertyEdits.h"
#include "properties/table/PropertyTable.h"
#include "support/Text.h"

namespace properties {

namespace {

constexpr const char* kSection = "PartProps";
constexpr const char* kCommandActive = "You cannot have a command active...";
constexpr const char* kAssemblyContext =
    "You are working in the context of an Assembly\rRenaming will not replace in the Assembly, Continue?";
// Rows past the twelve listed ones belong to the eMatrix attributes; the list never
// offers them, but a row index that reaches here is still routed there.
constexpr int kFirstEMatrixRow = 12;
constexpr int kLastEMatrixRow = 14;

}  // namespace

frmPartProps::frmPartProps(addin::AddinState& state)
    : ui::Form(state.platform, "frmPartProps", "Edit Part Properties"), state_(state) {
    TW_ON(ListBox1, DblClick);
    TW_ON(ListBox1, MouseUp);
    TW_ON(cmdOpenIDW, Click);
    TW_ON(cmdCancel, Click);
    TW_ON_MENU(mnuExplore);
}

void frmPartProps::ListBox1_MouseUp(int button) {
    if (button == ui::kRightButton) platform().PopupMenu(*this, "mnuPopup");
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"Label1", 120, 120, 6000, 255},          {"ListBox1", 120, 420, 6000, 3000},
    {"chkOpenNewFile", 120, 3540, 3000, 255}, {"cmdOpenIDW", 120, 3900, 2160, 375},
    {"cmdCancel", 4800, 3900, 1320, 375},
};

void frmPartProps::Build() {
    Add("cmdOpenIDW", ui::ControlKind::Button, "Open Associated IDW");
    Add("chkOpenNewFile", ui::ControlKind::CheckBox, "Open New File on Creation");
    Add("ListBox1", ui::ControlKind::ListBox);
    Add("cmdCancel", ui::ControlKind::Button, "Done");
    Add("Label1", ui::ControlKind::Label, "Double Click on File name to Save Copy As and Open");
    auto& popup = AddMenu("mnuPopup", "Popup");
    popup.Visible = false;  // shown at the pointer over the list, never in the menu bar
    AddMenu("mnuExplore", "Explore", "mnuPopup");
    Arrange(6400, 4860, {kLayout});
}

void frmPartProps::Form_Load() {
    auto& app = state_.App();
    target_.reset();
    placed_ = false;
    auto active = app.ActiveDocument();
    if (support::Required(active, "active document")->DocumentType() == host::kPartDocumentObject) {
        assemblyContext_ = addin::kVbFalse;
        target_ = active;
    } else {
        assemblyContext_ = addin::kVbTrue;
        auto editObject = app.ActiveEditObject();
        if (support::Required(editObject, "active edit object")->Type() !=
            host::kAssemblyDocumentObjectType) {
            state_.platform.MsgBox(kCommandActive);
            Unload();
            BringHostToFront();
            return;
        }
        target_ = std::dynamic_pointer_cast<host::Document>(editObject);
        support::Required(target_, "edited document");
    }
    previousOwner_ = state_.platform.SetOwner(*this, app.MainFrameHWND());
    addin::RestorePosition(state_, *this, kSection);
    placed_ = true;
    Refresh();
}

void frmPartProps::Form_QueryUnload(bool& /*cancel*/) {
    if (placed_) addin::SavePosition(state_, *this, kSection);
}

void frmPartProps::Refresh() {
    auto rows = ReadPropertyRows(*target_);
    auto& list = (*this)["ListBox1"];
    list.ToolTipText = target_->FullFileName();
    list.Clear();
    for (const auto& row : rows) list.AddItem(row.label + " : " + row.value);
    state_.platform.DoEvents();
}

void frmPartProps::ListBox1_DblClick() {
    if (target_->FullFileName().empty()) {
        state_.platform.MsgBox(kSaveFirst);
        return;
    }
    int row = (*this)["ListBox1"].ListIndex;
    if (const auto* edit = FindTextEdit(row)) {
        if (EditInInputBox(state_.platform, *target_, *edit)) Refresh();
        return;
    }
    bool isPart = target_->DocumentType() == host::kPartDocumentObject;
    if (row == kFileNameRow) {
        SaveCopy();
    } else if (row >= kFirstEMatrixRow && row <= kLastEMatrixRow) {
        OpenNestedDialog(state_.Dialog<frmUpdateMatrix>());
    } else if (row == kColorRow) {
        OpenNestedDialog(state_.Dialog<materials::frmGetColor>());
    } else if (row == kMaterialRow) {
        if (!isPart) {
            state_.platform.MsgBox(kMaterialPartsOnly);
            return;
        }
        OpenNestedDialog(state_.Dialog<materials::frmGetMaterial>());
    } else if (row == kMassRow) {
        if (!isPart) {
            state_.platform.MsgBox(kWeightPartsOnly);
            return;
        }
        OpenNestedDialog(state_.Dialog<materials::frmOverrideWeight>());
    }
}

// The nested dialog works on this dialog's document, set as the working document only
// while it is open, since every other dialog shares it.
void frmPartProps::OpenNestedDialog(ui::Form& dialog) {
    state_.workingDocument = target_;
    dialog.Show(true);
    state_.workingDocument = nullptr;
    Refresh();
}

void frmPartProps::SaveCopy() {
    if (assemblyContext_ && state_.platform.MsgBox(kAssemblyContext, ui::vbYesNo) != ui::vbYes) return;
    std::string current = target_->FullFileName();
    std::string newName = paths::SaveFilePrompt(state_.platform, current, support::Right(current, 3));
    if (newName.empty()) return;
    try {
        target_->SaveAs(newName, true);
    } catch (const support::Error&) {
        state_.platform.MsgBox(kSaveError);
        return;
    }
    if ((*this)["chkOpenNewFile"].Value() == 1) state_.App().Documents()->Open(newName, true);
    Refresh();
}

void frmPartProps::cmdOpenIDW_Click() {
    state_.workingDocument = state_.App().ActiveDocument();
    Unload();
    BringHostToFront();
    state_.Dialog<copy::frmOpenIDW>().Show(false);
}

void frmPartProps::cmdCancel_Click() {
    Unload();
    BringHostToFront();
}

void frmPartProps::mnuExplore_Click() {
    auto path = paths::SplitPath(target_->FullFileName());
    state_.platform.Shell("exploreR /e, " + path.directory, 1);
}

void frmPartProps::BringHostToFront() {
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace properties
