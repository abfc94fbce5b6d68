// The main tools dialog: editing the shown document's properties by double-click.
#include "copy/paths/Paths.h"
#include "dialogs/main/frmPreview.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
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
            OpenNestedDialog();
    } else if (row == properties::kMaterialRow) {
        if (!isPart)
            state_.platform.MsgBox(properties::kMaterialPartsOnly);
        else
            OpenNestedDialog();
    } else if (row == properties::kMassRow) {
        if (!isPart)
            state_.platform.MsgBox(properties::kWeightPartsOnly);
        else
            OpenNestedDialog();
    } else if (row >= kFirstEMatrixRow && row <= kLastEMatrixRow) {
        OpenNestedDialog();
    }
    Refill();
}

// The colour, material, weight and eMatrix dialogs arrive with their own subsystems;
// until then the row opens nothing. Picking stops around the nested dialog so that a
// click in the model does not change the document under it.
void frmPreview::OpenNestedDialog() {
    StopPicking();
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
