#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "addin/shared/AddinState.h"
#include "host/Object.h"
#include "support/Event.h"

namespace host {
class AddInSite;
class ButtonDefinition;
class CommandManager;
class UserInputEvents;
class CommandBar;
}  // namespace host

namespace addin {

// The add-in server the host creates and activates: defines the commands, places
// them on the host's bars and opens the dialogs when they are clicked.
class clsAppCmd {
public:
    explicit clsAppCmd(Environment env);
    ~clsAppCmd();

    // ApplicationAddInServer
    void Activate(host::AddInSite& addInSiteObject, bool firstTime);
    void Deactivate();
    void ExecuteCommand(std::int32_t commandID);
    host::ObjectPtr Automation() const { return nullptr; }

    AddinState& State() { return state_; }

    // The three commands that open a dialog, each with its own button.
    enum class Command { Main, Part, Drawing };
    // The names of the members that still hold a host object, for the session's checks.
    std::vector<std::string> HeldReferences() const;

private:
    void oButtonHandler1_OnClick();
    void oButtonHandler2_OnClick();
    void obuttonHandlerIDW_OnClick();
    void oDoneButton_OnClick();
    void oContextMenu_OnContextMenu(std::int32_t selectionDevice, host::ObjectPtr additionalInfo,
                                    std::shared_ptr<host::CommandBar> commandBar);
    void SubscribeButtons();
    void Place(const std::string& barName, Command command);
    // Runs a host event handler; an error it raises goes to the platform's report.
    void Guarded(void (clsAppCmd::*handler)());

    AddinState state_;
    std::shared_ptr<host::ButtonDefinition> oButtonHandler1, oButtonHandler2, obuttonHandlerIDW, oButtonPopup;
    std::shared_ptr<host::UserInputEvents> oContextMenu;
    std::shared_ptr<host::ButtonDefinition> oDoneButton;
    std::shared_ptr<host::CommandManager> commandManager_;
    host::ObjectPtr popupActionTarget_;  // never assigned: the context menu adds nothing
    host::ObjectPtr furtherReference_;   // never assigned; only released
    support::Connection click1_, click2_, clickIDW_, clickDone_, contextMenu_;
};

}  // namespace addin
