#include "dialogs/main/frmPreview.h"

#include "addin/shared/DialogPosition.h"
#include "addin/shared/clsPickOccur.h"
#include "dialogs/main/Thumbnails.h"
#include "dialogs/main/UpdateCheck.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "properties/table/PropertyTable.h"
#include "support/Text.h"

namespace dialogs {

frmPreview::frmPreview(addin::AddinState& state)
    : ui::Form(state.platform, "frmPreview", "Edit Part and Assembly Properties"), state_(state) {
    TW_ON(ListBox1, DblClick);
    TW_ON(ListBox1, MouseUp);
    TW_ON(cmdSelect, Click);
    TW_ON(cmdTopLevel, Click);
    TW_ON(cmdVisible, Click);
    TW_ON(cmdDelete, Click);
    TW_ON(cmdDeleteInvisible, Click);
    TW_ON(cmdMakeLite, Click);
    TW_ON(cmdClone, Click);
    TW_ON(cmdPackNLink, Click);
    TW_ON(cmdOpenIDW, Click);
    TW_ON(cmdTopIDW, Click);
    TW_ON(cmdNewThumbnail, Click);
    TW_ON(cmdMultThumbnail, Click);
    TW_ON(cmdThumbnailTop, Click);
    TW_ON(cmdChgBrowser, Click);
    TW_ON(cmdPurge, Click);
    TW_ON(cmdCancel, Click);
    TW_ON_MENU(mnoOrient);
    TW_ON_MENU(mnuLock);
    TW_ON_MENU(mnuUnlock);
    TW_ON_MENU(mnuExplorer);
    TW_ON_MENU(mnuiPartToNormal);
    TW_ON_MENU(mnuSaveAsReplace);
    TW_ON_MENU(mnuAutoUpdate);
    TW_ON_MENU(mnuAbout);
}

frmPreview::~frmPreview() {
    ReleasePick();
}

// Where each control sits on the dialog, in twips.
constexpr ui::Placement kLayout[] = {
    {"ListBox1", 120, 120, 5400, 3120},         {"Picture1", 5640, 120, 2760, 2040},
    {"picLocked", 5640, 2280, 480, 480},        {"cmdSelect", 120, 3360, 2640, 375},
    {"cmdTopLevel", 2880, 3360, 2640, 375},     {"cmdVisible", 5640, 3360, 2760, 375},
    {"cmdDelete", 120, 3810, 2640, 375},        {"cmdDeleteInvisible", 2880, 3810, 2640, 375},
    {"cmdMakeLite", 5640, 3810, 2760, 375},     {"cmdClone", 120, 4260, 2640, 375},
    {"cmdPackNLink", 2880, 4260, 2640, 375},    {"cmdPurge", 5640, 4260, 2760, 375},
    {"cmdOpenIDW", 120, 4710, 2640, 375},       {"cmdTopIDW", 2880, 4710, 2640, 375},
    {"cmdNewThumbnail", 120, 5160, 2640, 375},  {"cmdMultThumbnail", 2880, 5160, 2640, 375},
    {"cmdThumbnailTop", 5640, 5160, 2760, 375}, {"Frame1", 120, 5700, 8280, 1200},
    {"OptionButton1", 240, 5940, 1800, 255},    {"OptionButton2", 2160, 5940, 1800, 255},
    {"OptionButton3", 4200, 5940, 1800, 255},   {"Check1", 240, 6420, 1500, 255},
    {"Check2", 2160, 6420, 1500, 255},          {"cmdChgBrowser", 6240, 6300, 2040, 375},
    {"cmdCancel", 5640, 7080, 2760, 375},
};

void frmPreview::Build() {
    Add("ListBox1", ui::ControlKind::ListBox);
    Add("Picture1", ui::ControlKind::Picture);
    Add("picLocked", ui::ControlKind::Picture).Visible = false;
    Add("cmdSelect", ui::ControlKind::Button, "Select");
    Add("cmdTopLevel", ui::ControlKind::Button, "Top Level");
    Add("cmdVisible", ui::ControlKind::Button, "Visible");
    Add("cmdDelete", ui::ControlKind::Button, "Delete");
    Add("cmdDeleteInvisible", ui::ControlKind::Button, "Delete Invisible Components");
    Add("cmdMakeLite", ui::ControlKind::Button, "Assy From Vis").ToolTipText =
        "Create New Assembly from Visible Parts";
    Add("cmdClone", ui::ControlKind::Button, "CLONE");
    Add("cmdPackNLink", ui::ControlKind::Button, "Pack-N-Link");
    Add("cmdOpenIDW", ui::ControlKind::Button, "Open Associated IDW");
    Add("cmdTopIDW", ui::ControlKind::Button, "Open Top Level IDW");
    Add("cmdPurge", ui::ControlKind::Button, "Purge Styles");
    Add("cmdNewThumbnail", ui::ControlKind::Button, "NewThumbnail").ToolTipText =
        "Make single Thumbnail for Selected Document";
    Add("cmdMultThumbnail", ui::ControlKind::Button, "Multiple Thumbnails").ToolTipText =
        "Make Thumbnails for Selected Document and its Children";
    Add("cmdThumbnailTop", ui::ControlKind::Button, "Do All").ToolTipText =
        "Make Thumbnails for Top Level assembly and all its Children";
    BuildNameInBrowserFrame();
    Add("cmdCancel", ui::ControlKind::Button, "Done");
    BuildMenus();
    Arrange(8700, 8400, {kLayout});
}

void frmPreview::BuildNameInBrowserFrame() {
    Add("Frame1", ui::ControlKind::Frame, "Name In Browser");
    for (auto [name, caption] :
         {std::pair{"OptionButton1", "Default"}, std::pair{"OptionButton2", "Description"},
          std::pair{"OptionButton3", "Part Number"}})
        Add(name, ui::ControlKind::OptionButton, caption).Group = "Frame1";
    (*this)["OptionButton1"].SetValue(-1);
    Add("Check1", ui::ControlKind::CheckBox, "Do All");
    Add("Check2", ui::ControlKind::CheckBox, "Top Level");
    Add("cmdChgBrowser", ui::ControlKind::Button, "Change Now");
}

void frmPreview::BuildMenus() {
    AddMenu("mnuOptions", "Options");
    AddMenu("mnuOrient", "Orientation", "mnuOptions");
    for (int i = 0; i < thumbnails::kOrientationCount; ++i)
        AddMenu("mnoOrient", thumbnails::kOrientations[i].caption, "mnuOrient", i);
    AddMenu("mnuPopUp", "PopUp").Visible = false;  // shown over the list, never in the menu bar
    AddMenu("mnuLock", "Lock", "mnuPopUp");
    AddMenu("mnuUnlock", "Unlock", "mnuPopUp");
    AddMenu("mnuExplorer", "Explore", "mnuPopUp");
    AddMenu("mnuiPartToNormal", "Convert iPart to Normal", "mnuPopUp");
    AddMenu("mnuSaveAsReplace", "Save As and Replace", "mnuPopUp");
    AddMenu("mnuHelp", "Help");
    AddMenu("mnuAutoUpdate", "AutoUpdate", "mnuHelp");
    AddMenu("mnuAbout", "About", "mnuHelp");
}

void frmPreview::ListBox1_MouseUp(int button) {
    if (button == ui::kRightButton) platform().PopupMenu(*this, "mnuPopUp");
}

// "Select" is the same switch as the dialog's activation: it turns picking on or off.
void frmPreview::cmdSelect_Click() {
    TogglePicking();
}

void frmPreview::cmdCancel_Click() {
    Unload();
    BringHostToFront();
}

void frmPreview::mnoOrient_Click(int index) {
    for (auto* item : MenuArray("mnoOrient")) item->Checked = item->Index == index;
}

void frmPreview::mnuAutoUpdate_Click() {
    update_check::CheckForUpdate(state_);
}

void frmPreview::mnuAbout_Click() {
    update_check::ShowAbout(state_);
}

void frmPreview::Form_Load() {
    previousOwner_ = state_.platform.SetOwner(*this, state_.App().MainFrameHWND());
    // A stored index that names no item leaves every item unchecked.
    auto stored = support::ParseNumber(state_.GetSetting(kPreviewSection, kThumbnailOrientKey, "0"));
    for (auto* item : MenuArray("mnoOrient")) item->Checked = stored && *stored == item->Index;
    pick_ = std::make_unique<addin::clsPickOccur>(state_);
    picked_ = pick_->OnPicked.Subscribe([this] { OnPicked(); });
    addin::RestorePosition(state_, *this, kPreviewSection);
}

// Each activation toggles picking rather than starting it: the dialog opens picking, and
// coming back to it while a pick runs ends that pick. The "Select" / "Stop Select"
// caption always tells the user which state the dialog is in.
void frmPreview::Form_Activate() {
    Refill();
    TogglePicking();
}

void frmPreview::Form_QueryUnload(bool& /*cancel*/) {
    addin::SavePosition(state_, *this, kPreviewSection);
    state_.selectedOccurrence = nullptr;
    ReleasePick();
}

// A pick left running would keep the graphics window in select mode with nobody
// listening, so it is stopped before the pick object goes.
void frmPreview::ReleasePick() {
    if (!pick_) return;
    if (pick_->Selecting()) pick_->StopPick();
    picked_.Reset();
    pick_.reset();
}

std::shared_ptr<host::Document> frmPreview::ShownDocument() {
    if (!state_.selectedOccurrence) return state_.App().ActiveDocument();
    return state_.selectedOccurrence->Definition()->Document();
}

void frmPreview::Refill() {
    auto shown = ShownDocument();
    support::Required(shown, "active document");
    auto rows = properties::ReadPropertyRows(*shown);
    auto& list = (*this)["ListBox1"];
    list.ToolTipText = shown->FullFileName();
    list.Clear();
    for (const auto& row : rows) list.AddItem(row.label + "\t" + row.value);
    (*this)["picLocked"].Visible = (shown->DisabledCommandTypes() & host::kShapeEditCmdType) != 0;
    (*this)["Picture1"].Picture = shown->Thumbnail();
    (*this)["cmdVisible"].SetFocus();
}

bool frmPreview::Picking() const {
    return pick_ && pick_->Selecting();
}

void frmPreview::TogglePicking() {
    if (!pick_) return;
    if (pick_->Selecting()) {
        (*this)["cmdSelect"].SetCaption("Select");
        pick_->StopPick();
    } else {
        (*this)["cmdSelect"].SetCaption("Stop Select");
        pick_->StartPick(host::kAssemblyLeafOccurrenceFilter);
    }
}

void frmPreview::StopPicking() {
    if (Picking()) TogglePicking();
}

int frmPreview::CheckedOrientation() {
    for (auto* item : MenuArray("mnoOrient"))
        if (item->Checked) return item->Index;
    return -1;
}

// Raised by the host, not through a control: an error goes to the report here.
void frmPreview::OnPicked() {
    ui::ReportingErrors(state_.platform, [&] {
        auto occurrence = std::dynamic_pointer_cast<host::ComponentOccurrence>(pick_->oObjectSelected);
        if (!occurrence) return;
        state_.selectedOccurrence = occurrence;
        Refill();
        (*this)["cmdVisible"].SetCaption(occurrence->Visible() ? "Hide" : "Visible");
    });
}

void frmPreview::BringHostToFront() {
    state_.platform.AppActivate(state_.App().Caption());
}

}  // namespace dialogs
