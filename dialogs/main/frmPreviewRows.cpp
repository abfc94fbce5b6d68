// The main tools dialog: editing the shown document's properties by double-click.
#include "copy/paths/Paths.h"
#include "dialogs/main/frmPreview.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "materials/frmGetColor.h"
#include "materials/frmGetMaterial.h"
#include "materials/frmOverrideWeight.h"
#include "properties/frmUpdateMatrix.h"
#include "properties/table/PropertyEdits.h"
#include "properties/table/PropertyTable.h"
#include "support/Text.h"

namespace dialogs {

namespace {

constexpr const char* kColorOnTopLevel = "Cannot set color on top level assembly";
constexpr const char* kOpenNewAssembly = "Do you want to open the new assembly?";
constexpr const char* kReplaceAll = "Do you want to replace all occurrences?";
constexpr int kFirstEMatrixRow = 12;
constexpr int kLastEMatrixRow = 14;

}  // namespace

void frmPreview::ListBox1_DblClick() {
    auto shown = ShownDocument();
    support::Required(shown, "active document");
    if (shown->FullFileName().empty()) {
        state_.platform.MsgBox(properties::kSaveFirst);
        return;
    }
    int row = (*this)["ListBox1"].ListIndex;
    bool isPart = shown->DocumentType() == host::kPartDocumentObject;
    if (const auto* edit = properties::FindTextEdit(row)) {
        properties::EditInInputBox(state_.platform, *shown, *edit);
    } else if (row == properties::kFileNameRow) {
        SaveCopy(*shown);
    } else if (row == properties::kColorRow) {
        if (!state_.selectedOccurrence)
            state_.platform.MsgBox(kColorOnTopLevel);
        else
            OpenNestedDialog(state_.Dialog<materials::frmGetColor>(), shown);
    } else if (row == properties::kMaterialRow) {
        if (!isPart)
            state_.platform.MsgBox(properties::kMaterialPartsOnly);
        else
            OpenNestedDialog(state_.Dialog<materials::frmGetMaterial>(), shown);
    } else if (row == properties::kMassRow) {
        if (!isPart)
            state_.platform.MsgBox(properties::kWeightPartsOnly);
        else
            OpenNestedDialog(state_.Dialog<materials::frmOverrideWeight>(), shown);
    } else if (row >= kFirstEMatrixRow && row <= kLastEMatrixRow) {
        OpenNestedDialog(state_.Dialog<properties::frmUpdateMatrix>(), shown);
    }
    Refill();
}

// The nested dialog works on the shown document, set as the working document only while
// it is open; picking stops around it so that a click in the model cannot change the
// document under it.
void frmPreview::OpenNestedDialog(ui::Form& dialog, const std::shared_ptr<host::Document>& shown) {
    StopPicking();
    state_.workingDocument = shown;
    dialog.Show(true);
    state_.workingDocument = nullptr;
    Refill();
    TogglePicking();
}

void frmPreview::SaveCopy(host::Document& shown) {
    std::string current = shown.FullFileName();
    std::string newName = paths::SaveFilePrompt(state_.platform, current, support::Right(current, 3));
    if (newName.empty()) return;
    try {
        shown.SaveAs(newName, true);
    } catch (const support::Error&) {
        state_.platform.MsgBox(properties::kSaveError);
        return;
    }
    if (!state_.selectedOccurrence) {
        if (state_.platform.MsgBox(kOpenNewAssembly, ui::vbYesNo) == ui::vbYes)
            state_.App().Documents()->Open(newName, true);
        return;
    }
    bool all = state_.platform.MsgBox(kReplaceAll, ui::vbYesNo, "Replace All") == ui::vbYes;
    state_.selectedOccurrence->Replace(newName, all);
}

}  // namespace dialogs
