#include "dialogs/main/frmDeleteInvisible.h"

#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"

namespace dialogs {

namespace {

constexpr const char* kTitle = "Delete Components:..";
constexpr const char* kFirstQuestion = "This will Permanently Delete all Invisible Parts and Assemblies?";
constexpr const char* kSecondQuestion =
    "Are you absolutly sure you want to Permanently Delete all Invisible Parts and Assemblies?";

}  // namespace

const char* const frmDeleteInvisible::kWarning =
    "This will delete all parts that are currently not visible.  If a \r\n"
    "subassembly contains a part that is visible, that subassembly will \r\n"
    "not be deleted.  If a part is visible in one instance of a \r\n"
    "subassembly but invisible in another instance of the same \r\n"
    "subassembly, then the part WILL be deleted in both instances of \r\n"
    "the subassembly.  If a subassembly is marked not visible and all \r\n"
    "the components in that subassembly are marked not visible, \r\n"
    "then the whole subassembly will be delete and possibly emptied \r\n"
    "of all its components in the process.  This tool can be VERY \r\n"
    "DANGEROUS.\r\n";

frmDeleteInvisible::frmDeleteInvisible(addin::AddinState& state)
    : ui::Form(state.platform, "frmDeleteInvisible", "Delelet Invisible Components"), state_(state) {
    TW_ON(cmdDelete, Click);
    TW_ON(cmdCancel, Click);
}

void frmDeleteInvisible::cmdCancel_Click() {
    Unload();
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"Text1", 120, 120, 4800, 1200},     {"chkDelTree", 120, 1440, 2400, 255},
    {"cmdDelete", 120, 1800, 2760, 375}, {"cmdCancel", 3000, 1800, 1920, 375},
    {"Label1", 120, 2280, 4800, 255},
};

void frmDeleteInvisible::Build() {
    Add("chkDelTree", ui::ControlKind::CheckBox, "Delete all levels");
    Add("Text1", ui::ControlKind::TextBox, kWarning).Locked = true;
    Add("cmdDelete", ui::ControlKind::Button, "Delete Invisible Components");
    Add("cmdCancel", ui::ControlKind::Button, "Cancel");
    Add("Label1", ui::ControlKind::Label, "Status");
    Arrange(5200, 3120, {kLayout});
}

void frmDeleteInvisible::Form_Load() {
    previousOwner_ = state_.platform.SetOwner(*this, state_.App().MainFrameHWND());
}

void frmDeleteInvisible::cmdDelete_Click() {
    auto document = state_.App().ActiveDocument();
    support::Required(document, "active document");
    state_.deletedComponents = 0;
    if (state_.platform.MsgBox(kFirstQuestion, ui::vbYesNo, kTitle) != ui::vbYes) return;
    if (state_.platform.MsgBox(kSecondQuestion, ui::vbYesNo, kTitle) != ui::vbYes) return;
    if (document->DocumentType() != host::kAssemblyDocumentObject) return;
    SweepInvisible(*document->ComponentDefinition()->Occurrences(), (*this)["chkDelTree"].Value() == 1,
                   state_.platform);
    // The picked component may be among those deleted, and nothing can be read from a
    // deleted occurrence: the main dialog and the copy tools go back to the top level.
    state_.selectedOccurrence = nullptr;
    // Nothing counts the deletions: the report reads 0 whatever went.
    (*this)["Label1"].SetCaption(std::to_string(state_.deletedComponents) + " Parts & Assemblies Deleted");
}

// The subtree flag is only ever set with allLevels, so without it nothing is deleted; and
// it carries over from one occurrence to the next of the same collection. Both are how the
// tool has always behaved.
bool SweepInvisible(host::ComponentOccurrences& occurrences, bool allLevels, ui::Platform& platform) {
    bool someVisible = false;
    bool subtreeClear = false;
    bool visible = false;
    for (std::int32_t i = occurrences.Count(); i >= 1; --i) {
        auto occurrence = occurrences.Item(i);
        platform.DoEvents();
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                visible = occurrence->Visible();
                break;
            } catch (const support::Error&) {
            }
        }
        if (allLevels) subtreeClear = SweepInvisible(*occurrence->SubOccurrences(), allLevels, platform);
        if (!visible && subtreeClear)
            occurrence->Delete();
        else if (visible)
            someVisible = true;
    }
    return !someVisible;
}

}  // namespace dialogs
