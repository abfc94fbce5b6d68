#include "addin/clsAppCmd.h"

#include <functional>

#include "dialogs/main/frmPreview.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Commands.h"
#include "host/Document.h"
#include "properties/frmIDW.h"
#include "properties/frmPartProps.h"

namespace addin {

namespace {

struct CommandRow {
    const char* internalName;
    const char* displayName;
    const char* description;  // also the tooltip
};

constexpr CommandRow kMainCommand{"TarnwellCmd1", "Tarnwell", "Tarnwell"};
constexpr CommandRow kPartCommand{"TarnwellCmd2", "PartProps", "Rename + Edit Part Properties"};
constexpr CommandRow kDrawingCommand{"TarnwellCmd3", "IDWProps", "Rename + Edit IDW Properties"};
constexpr CommandRow kDoneCommand{"TarnwellDone", "Close Tarnwell", "Close Tarnwell"};

// Which bar receives which command, in the order the placements are made.
struct Placement {
    const char* bar;
    clsAppCmd::Command command;
};
constexpr Placement kPlacements[] = {
    {"DLxDrawingAnnotationPanelCmdBar", clsAppCmd::Command::Drawing},
    {"DLxDrawingViewsPanelCmdBar", clsAppCmd::Command::Drawing},
    {"AMxAssemblyPanelCmdBar", clsAppCmd::Command::Main},
    {"AMxWeldmentCmdBar", clsAppCmd::Command::Main},
    {"PMxPartFeatureCmdBar", clsAppCmd::Command::Part},
    {"MBxSheetMetalFeatureCmdBar", clsAppCmd::Command::Part},
};

constexpr const char* kAssemblyRequired = "An assembly document must be active.";
constexpr const char* kCommandActive = "You cannot edit Properties with a command active";

std::shared_ptr<host::ButtonDefinition> Create(host::AddInSite& site, const CommandRow& row, bool withIcon) {
    return site.CreateButtonDefinition(row.internalName, host::kFileOperationsCmdType, row.displayName,
                                       row.description, row.description, withIcon);
}

}  // namespace

clsAppCmd::clsAppCmd(Environment env) : state_(env) {}

clsAppCmd::~clsAppCmd() = default;

void clsAppCmd::Activate(host::AddInSite& addInSiteObject, bool /*firstTime*/) {
    state_.app = addInSiteObject.Application();

    // From here on a failing step is skipped and activation goes on; the last error
    // stays pending, as the icon fallback needs to see it. Suppression ends with the
    // fallback: a host that refused the pictures has been answered, and from then on a
    // failure (a missing bar, say) reaches the host as an activation error, so that the
    // designer learns the buttons are not all there. A host that took the pictures
    // never leaves suppression, and activation always completes.
    bool suppress = true;
    std::int32_t pending = 0;
    auto step = [&](const std::function<void()>& body) {
        if (!suppress) return body();
        try {
            body();
        } catch (const support::Error& e) {
            pending = e.Number();
        }
    };

    step([&] { oButtonHandler1 = Create(addInSiteObject, kMainCommand, true); });
    step([&] { oButtonHandler2 = Create(addInSiteObject, kPartCommand, true); });
    step([&] { obuttonHandlerIDW = Create(addInSiteObject, kDrawingCommand, true); });
    if (pending == support::errors::kUnexpected) {
        // The host refused the pictures: the same buttons without them.
        oButtonHandler1.reset();
        step([&] { oButtonHandler1 = Create(addInSiteObject, kMainCommand, false); });
        step([&] { oButtonHandler2 = Create(addInSiteObject, kPartCommand, false); });
        step([&] { obuttonHandlerIDW = Create(addInSiteObject, kDrawingCommand, false); });
        pending = 0;
        suppress = false;
    }
    SubscribeButtons();

    step([&] {
        oDoneButton = Create(addInSiteObject, kDoneCommand, false);
        clickDone_ = oDoneButton->OnExecute().Subscribe([this] { Guarded(&clsAppCmd::oDoneButton_OnClick); });
    });
    step([&] { state_.App().UserInterfaceManager()->CommandBars()->Add("Tarnwell"); });
    for (const auto& placement : kPlacements) step([&] { Place(placement.bar, placement.command); });
    step([&] {
        commandManager_ = state_.App().CommandManager();
        oContextMenu = commandManager_->UserInputEvents();
        contextMenu_ = oContextMenu->OnContextMenu().Subscribe(
            [this](std::int32_t device, host::ObjectPtr info, std::shared_ptr<host::CommandBar> bar) {
                oContextMenu_OnContextMenu(device, std::move(info), std::move(bar));
            });
    });
    state_.mainDialogOpen = kVbFalse;
}

void clsAppCmd::SubscribeButtons() {
    if (oButtonHandler1)
        click1_ =
            oButtonHandler1->OnExecute().Subscribe([this] { Guarded(&clsAppCmd::oButtonHandler1_OnClick); });
    if (oButtonHandler2)
        click2_ =
            oButtonHandler2->OnExecute().Subscribe([this] { Guarded(&clsAppCmd::oButtonHandler2_OnClick); });
    if (obuttonHandlerIDW)
        clickIDW_ = obuttonHandlerIDW->OnExecute().Subscribe(
            [this] { Guarded(&clsAppCmd::obuttonHandlerIDW_OnClick); });
}

void clsAppCmd::Place(const std::string& barName, Command command) {
    const auto& definition = command == Command::Main   ? oButtonHandler1
                             : command == Command::Part ? oButtonHandler2
                                                        : obuttonHandlerIDW;
    auto bar = state_.App().UserInterfaceManager()->CommandBars()->Item(barName);
    bar->Controls()->Add(host::kBarControlButton, support::Required(definition, "button definition"));
}

void clsAppCmd::Deactivate() {
    click1_.Reset();
    oButtonHandler1.reset();
    click2_.Reset();
    oButtonHandler2.reset();
    oButtonPopup.reset();
    commandManager_.reset();
    contextMenu_.Reset();
    oContextMenu.reset();
    clickDone_.Reset();
    oDoneButton.reset();
    popupActionTarget_.reset();
    furtherReference_.reset();
    state_.app.reset();
    state_.workingDocument.reset();
    state_.selectedOccurrence.reset();
    // obuttonHandlerIDW stays held on purpose, and the placed controls stay on the bars.
}

void clsAppCmd::ExecuteCommand(std::int32_t /*commandID*/) {}

std::vector<std::string> clsAppCmd::HeldReferences() const {
    std::vector<std::string> held;
    auto note = [&](const auto& ref, const char* name) {
        if (ref) held.emplace_back(name);
    };
    note(oButtonHandler1, "oButtonHandler1");
    note(oButtonHandler2, "oButtonHandler2");
    note(obuttonHandlerIDW, "obuttonHandlerIDW");
    note(oButtonPopup, "oButtonPopup");
    note(oContextMenu, "oContextMenu");
    note(oDoneButton, "oDoneButton");
    note(commandManager_, "command manager");
    note(popupActionTarget_, "popup action target");
    note(furtherReference_, "further reference");
    note(state_.app, "host application");
    note(state_.workingDocument, "working document");
    note(state_.selectedOccurrence, "selected occurrence");
    return held;
}

void clsAppCmd::Guarded(void (clsAppCmd::*handler)()) {
    ui::ReportingErrors(state_.platform, [&] { (this->*handler)(); });
}

void clsAppCmd::oButtonHandler1_OnClick() {
    auto& app = state_.App();
    if (app.Documents()->Count() == 0) {
        state_.platform.MsgBox(kAssemblyRequired);
        return;
    }
    auto active = app.ActiveDocument();
    if (support::Required(active, "active document")->DocumentType() != host::kAssemblyDocumentObject) {
        state_.platform.MsgBox(kAssemblyRequired);
        return;
    }
    state_.workingDocument = active;
    state_.Dialog<dialogs::frmPreview>().Show(false);
    state_.mainDialogOpen = kVbTrue;
}

void clsAppCmd::oButtonHandler2_OnClick() {
    auto& app = state_.App();
    auto active = app.ActiveDocument();
    if (support::Required(active, "active document")->DocumentType() == host::kPartDocumentObject) {
        state_.Dialog<properties::frmPartProps>().Show(false);
        return;
    }
    auto editObject = app.ActiveEditObject();
    if (support::Required(editObject, "active edit object")->Type() != host::kAssemblyDocumentObjectType) {
        state_.platform.MsgBox(kCommandActive);
        return;
    }
    state_.Dialog<properties::frmPartProps>().Show(false);
}

void clsAppCmd::obuttonHandlerIDW_OnClick() {
    state_.Dialog<properties::frmIDW>().Show(false);
}

void clsAppCmd::oDoneButton_OnClick() {
    state_.Dialog<dialogs::frmPreview>().Unload();
    state_.mainDialogOpen = kVbFalse;
}

void clsAppCmd::oContextMenu_OnContextMenu(std::int32_t /*selectionDevice*/,
                                           host::ObjectPtr /*additionalInfo*/,
                                           std::shared_ptr<host::CommandBar> /*commandBar*/) {
    if (state_.mainDialogOpen) return;
    // The popup target is never assigned, so this call always fails and the menu stays
    // as the host built it: the add-in contributes no entries.
    try {
        support::Required(popupActionTarget_, "popup action target");
    } catch (const support::Error&) {
    }
}

}  // namespace addin
