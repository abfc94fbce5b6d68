// The main tools dialog: component operations, thumbnails, browser names and the
// buttons that open the other tools.
#include "copy/engine/modBuildAssembly.h"
#include "copy/frmCloneNames.h"
#include "copy/frmOpenIDW.h"
#include "copy/frmPacknLink.h"
#include "copy/frmSaveAsReplace.h"
#include "copy/paths/Paths.h"
#include "dialogs/main/BrowserNames.h"
#include "dialogs/main/Thumbnails.h"
#include "dialogs/main/frmDeleteInvisible.h"
#include "dialogs/main/frmPreview.h"
#include "dialogs/main/iPartConversion.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "purge/frmPurge.h"

namespace dialogs {

namespace {

constexpr const char* kNoSelection = "No Part or Assembly Active";
constexpr const char* kSelectAssembly = "Please select an Assembly";
constexpr const char* kNotSavedYet = "This document has not been saved yet, so it has no folder to explore.";

}  // namespace

void frmPreview::cmdTopLevel_Click() {
    state_.selectedOccurrence = nullptr;
    Refill();
}

// The caption names what the next click does.
void frmPreview::cmdVisible_Click() {
    auto occurrence = state_.selectedOccurrence;
    if (!occurrence) return;
    if (occurrence->Visible()) {
        (*this)["cmdVisible"].SetCaption("Visible");
        occurrence->SetVisible(false);
    } else {
        occurrence->SetVisible(true);
        (*this)["cmdVisible"].SetCaption("Hide");
    }
}

// A deleted occurrence has no document left to show, so the dialog returns to the top.
void frmPreview::cmdDelete_Click() {
    auto occurrence = state_.selectedOccurrence;
    if (!occurrence) return;
    if (state_.platform.MsgBox("Are you sure you want to delete this part?", ui::vbYesNo,
                               "Delete from all assemblies") == ui::vbYes) {
        occurrence->Delete();
        state_.selectedOccurrence = nullptr;
    }
    Refill();
}

// Lock and Unlock act on the selected component without a check: with nothing
// selected they fail as the host does on a missing object.
void frmPreview::mnuLock_Click() {
    SetLock(host::kShapeEditCmdType);
}

void frmPreview::mnuUnlock_Click() {
    SetLock(0);
}

void frmPreview::SetLock(std::int32_t disabledCommandTypes) {
    auto& occurrence = support::Required(state_.selectedOccurrence, "selected occurrence");
    occurrence->Definition()->Document()->SetDisabledCommandTypes(disabledCommandTypes);
    (*this)["picLocked"].Visible = disabledCommandTypes != 0;
}

// The main dialog steps aside while the delete-invisible dialog is open and comes back,
// picking again, once it closes.
void frmPreview::cmdDeleteInvisible_Click() {
    StopPicking();
    Hide();
    state_.Dialog<frmDeleteInvisible>().Show(true);
    if (Loaded()) Show(false);
}

void frmPreview::cmdNewThumbnail_Click() {
    if (!state_.selectedOccurrence) {
        state_.platform.MsgBox(kNoSelection);
        return;
    }
    RunThumbnails(state_.selectedOccurrence->Definition()->Document(), false);
}

void frmPreview::cmdMultThumbnail_Click() {
    if (!state_.selectedOccurrence) {
        state_.platform.MsgBox(kNoSelection);
        return;
    }
    auto document = state_.selectedOccurrence->Definition()->Document();
    if (document->DocumentType() != host::kAssemblyDocumentObject) {
        state_.platform.MsgBox(kSelectAssembly);
        return;
    }
    RunThumbnails(document, true);
}

void frmPreview::cmdThumbnailTop_Click() {
    RunThumbnails(state_.App().ActiveDocument(), true);
}

void frmPreview::RunThumbnails(const std::shared_ptr<host::Document>& start, bool withReferences) {
    StopPicking();
    int checked = CheckedOrientation();
    // With no item checked the stored choice is left as it was.
    if (checked >= 0) state_.SaveSetting(kPreviewSection, kThumbnailOrientKey, std::to_string(checked));
    thumbnails::ThumbnailRun run(state_, thumbnails::OrientationCode(checked));
    auto& document = support::Required(start, "document");
    if (withReferences)
        run.ProcessWithReferences(document);
    else
        run.MakeThumbnail(document);
    Refill();
    TogglePicking();
}

// The run stops picking and leaves it stopped: "Select" starts it again.
void frmPreview::cmdChgBrowser_Click() {
    using browser_names::Mode;
    Mode mode = (*this)["OptionButton2"].Value()   ? Mode::Description
                : (*this)["OptionButton3"].Value() ? Mode::PartNumber
                                                   : Mode::Default;
    StopPicking();
    browser_names::BrowserRename(state_, mode)
        .Run((*this)["Check2"].Value() == 1, (*this)["Check1"].Value() == 1, state_.selectedOccurrence);
    Refill();
}

void frmPreview::mnuExplorer_Click() {
    auto shown = ShownDocument();
    std::string folder =
        paths::SplitPath(support::Required(shown, "active document")->FullFileName()).directory;
    if (folder.empty()) {
        state_.platform.MsgBox(kNotSavedYet);
        return;
    }
    state_.platform.Shell("exploreR /e, " + folder, 1);
}

void frmPreview::mnuiPartToNormal_Click() {
    StopPicking();
    ipart_conversion::iPartConversion(state_).Run();
    Refill();
    TogglePicking();
}

// The copy tools pick in the graphics window themselves: this dialog's pick steps
// aside so that the two do not compete for the user's clicks.
template <class Dialog>
void frmPreview::ShowToolDialog() {
    StopPicking();
    state_.Dialog<Dialog>().Show(false);
}

void frmPreview::cmdClone_Click() {
    ShowToolDialog<copy::frmCloneNames>();
}

void frmPreview::cmdPackNLink_Click() {
    ShowToolDialog<copy::frmPacknLink>();
}

void frmPreview::mnuSaveAsReplace_Click() {
    ShowToolDialog<copy::frmSaveAsReplace>();
}

void frmPreview::cmdPurge_Click() {
    ShowToolDialog<purge::frmPurge>();
}

void frmPreview::cmdOpenIDW_Click() {
    OpenDrawingOf(ShownDocument());
}

void frmPreview::cmdTopIDW_Click() {
    OpenDrawingOf(state_.App().ActiveDocument());
}

void frmPreview::OpenDrawingOf(const std::shared_ptr<host::Document>& model) {
    state_.workingDocument = support::Required(model, "document");
    ShowToolDialog<copy::frmOpenIDW>();
}

// The flat copy opens as a new, unnamed assembly and becomes the active document; the
// user names it when saving it. The dialog then shows it.
void frmPreview::cmdMakeLite_Click() {
    StopPicking();
    auto top = state_.App().ActiveDocument();
    copy::modBuildAssembly::Build(
        state_.App(), *support::Required(top, "active document")->ComponentDefinition()->Occurrences());
    state_.selectedOccurrence = nullptr;
    Refill();
    TogglePicking();
}

}  // namespace dialogs
