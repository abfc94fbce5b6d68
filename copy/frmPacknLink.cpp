#include "copy/frmPacknLink.h"

#include "addin/shared/SettingValues.h"
#include "copy/engine/PackingWalk.h"
#include "host/Application.h"
#include "host/Component.h"
#include "host/Document.h"
#include "support/Error.h"

namespace copy {

using ui::ControlKind;
using ui::EventKind;

namespace {
constexpr const char* kSection = "PackNLink";
}  // namespace

// The stored title keeps its misspelling; activation shows "Pack-N-Link " instead.
frmPacknLink::frmPacknLink(addin::AddinState& state)
    : BaseAssemblyForm(state, "frmPacknLink", "Pack And Link (to new locaton)") {
    TW_ON(cmdClone, Click);
}

// Where each control sits below the shared frames, in twips.
constexpr ui::Placement kLayout[] = {
    {"fraDataSource", 120, 2160, 6600, 1080}, {"lblNote", 240, 2400, 6360, 255},
    {"optFromMem", 240, 2760, 2880, 255},     {"optFromDisk", 3240, 2760, 2880, 255},
    {"cmdClone", 120, 3360, 1800, 375},       {"cmdDone", 5400, 3360, 1320, 375},
    {"Status", 120, 3840, 6600, 255},
};

void frmPacknLink::Build() {
    AddBaseAssemblyControls();
    AddTargetControls();
    Add("fraDataSource", ControlKind::Frame, "Data Source --> Destination");
    Add("lblNote", ControlKind::Label, "Memory to disk will reflect current changes");
    auto& fromMemory = Add("optFromMem", ControlKind::OptionButton, "From Memory to Disk");
    auto& fromDisk = Add("optFromDisk", ControlKind::OptionButton, "From Disk to Disk");
    fromMemory.Group = fromDisk.Group = "DataSource";
    fromMemory.SetValue(-1);
    AddCommandControls("Execute Pack");
    Arrange(kSharedWidth, 4680, {kBaseAssemblyLayout, kLayout});
}

void frmPacknLink::Form_Activate() {
    (*this)["txtTargetDir"].SetText(state_.GetSetting(kSection, "TargetDir", "C:\\Temp"));
    // One of the two sources is always chosen: a stored "False" picks disk to disk.
    bool fromMemory = addin::ReadBoolSetting(state_, kSection, "FromTo", true);
    (*this)[fromMemory ? "optFromMem" : "optFromDisk"].SetValue(-1);
    SetCaption("Pack-N-Link ");
    if (state_.selectedOccurrence)
        ShowBaseAssembly(state_.selectedOccurrence->Definition()->Document()->FullFileName());
    else
        SelectAssembly();
}

void frmPacknLink::Form_Unload() {
    state_.SaveSetting(kSection, "TargetDir", (*this)["txtTargetDir"].Text());
    state_.SaveSetting(kSection, "FromTo", addin::BoolToSetting((*this)["optFromMem"].Value() != 0));
}

void frmPacknLink::cmdClone_Click() {
    if (!CheckBaseAssembly()) return;
    packStop_ = false;
    auto document =
        TopChecked() ? state_.App().ActiveDocument() : state_.selectedOccurrence->Definition()->Document();
    auto source = (*this)["optFromDisk"].Value() ? PackSource::Disk : PackSource::Memory;
    PackDocument(Context(), *support::Required(document, "base assembly"), (*this)["txtTargetDir"].Text(),
                 source, packStop_);
    (*this)["Status"].SetCaption("Finished!");
}

}  // namespace copy
