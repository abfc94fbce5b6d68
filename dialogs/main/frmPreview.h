#pragma once
#include <cstdint>
#include <memory>

#include "addin/shared/AddinState.h"
#include "support/Event.h"
#include "ui/Form.h"

namespace addin {
class clsPickOccur;
}
namespace host {
class Document;
}

namespace dialogs {

// The dialog's settings section and the key of the chosen thumbnail orientation.
inline constexpr const char* kPreviewSection = "Preview";
inline constexpr const char* kThumbnailOrientKey = "ThumbnailOrient";

// "Edit Part and Assembly Properties": the main tools dialog on an assembly. It lists
// the properties of the shown document (the picked component's, or the top-level
// document's when nothing is picked) and carries the component operations, thumbnails
// and browser renaming.
class frmPreview : public ui::Form {
public:
    explicit frmPreview(addin::AddinState& state);
    ~frmPreview() override;

    // The picked component's document, or the active document when nothing is picked.
    std::shared_ptr<host::Document> ShownDocument();
    void Refill();
    // Picking in the graphics window: on when off, off when on.
    void TogglePicking();
    void StopPicking();
    // The index of the checked orientation item; -1 when none is checked.
    int CheckedOrientation();
    bool Picking() const;

protected:
    void Build() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel) override;

private:
    void BuildNameInBrowserFrame();
    void BuildMenus();
    void ReleasePick();
    void OnPicked();
    void BringHostToFront();
    void ListBox1_MouseUp(int button);
    void cmdSelect_Click();
    void cmdCancel_Click();
    void mnoOrient_Click(int index);
    void mnuAutoUpdate_Click();
    void mnuAbout_Click();

    // frmPreviewRows.cpp
    void ListBox1_DblClick();
    void SaveCopy(host::Document& shown);
    void OpenNestedDialog(ui::Form& dialog, const std::shared_ptr<host::Document>& shown);

    // frmPreviewOperations.cpp
    void cmdTopLevel_Click();
    void cmdVisible_Click();
    void cmdDelete_Click();
    void mnuLock_Click();
    void mnuUnlock_Click();
    void SetLock(std::int32_t disabledCommandTypes);
    void cmdDeleteInvisible_Click();
    void cmdNewThumbnail_Click();
    void cmdMultThumbnail_Click();
    void cmdThumbnailTop_Click();
    void RunThumbnails(const std::shared_ptr<host::Document>& start, bool withReferences);
    void cmdChgBrowser_Click();
    void mnuExplorer_Click();
    void mnuiPartToNormal_Click();
    void cmdClone_Click();
    void cmdPackNLink_Click();
    void mnuSaveAsReplace_Click();
    void cmdPurge_Click();
    void cmdOpenIDW_Click();
    void cmdTopIDW_Click();
    template <class Dialog>
    void ShowToolDialog();
    void OpenDrawingOf(const std::shared_ptr<host::Document>& model);
    void cmdMakeLite_Click();

    addin::AddinState& state_;
    std::unique_ptr<addin::clsPickOccur> pick_;
    support::Connection picked_;
    std::intptr_t previousOwner_ = 0;
};

}  // namespace dialogs
