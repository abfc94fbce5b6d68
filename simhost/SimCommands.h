#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "host/Commands.h"
#include "simhost/HostCalls.h"

namespace simhost {

// Object types the stand-in gives its command objects; the add-in never tests them.
inline constexpr std::int32_t kButtonDefinitionObjectType = 0x05002A00;
inline constexpr std::int32_t kCommandBarObjectType = 0x05002B00;

class SimButtonDefinition : public host::ButtonDefinition {
public:
    SimButtonDefinition(std::string internalName, std::string displayName, bool withIcon)
        : internalName_(std::move(internalName)), displayName_(std::move(displayName)), icon_(withIcon) {}
    std::int32_t Type() const override;
    std::string InternalName() const override;
    std::string DisplayName() const override;
    bool HasIcon() const override;
    support::Event<>& OnExecute() override;

private:
    std::string internalName_, displayName_;
    bool icon_;
    support::Event<> onExecute_;
};

class SimCommandBarControl : public host::CommandBarControl {
public:
    SimCommandBarControl(std::int32_t type, std::shared_ptr<host::ButtonDefinition> definition)
        : type_(type), definition_(std::move(definition)) {}
    std::int32_t ControlType() const override;
    std::shared_ptr<host::ButtonDefinition> ControlDefinition() override;

private:
    std::int32_t type_;
    std::shared_ptr<host::ButtonDefinition> definition_;
};

class SimCommandBar : public host::CommandBar,
                      public host::CommandBarControls,
                      public std::enable_shared_from_this<SimCommandBar> {
public:
    explicit SimCommandBar(std::string name) : name_(std::move(name)) {}
    std::int32_t Type() const override;
    std::string Name() const override;
    std::shared_ptr<host::CommandBarControls> Controls() override;
    // CommandBarControls: buttons only (control type 22785), appended at the end.
    std::int32_t Count() const override;
    std::shared_ptr<host::CommandBarControl> Item(std::int32_t index) override;
    std::shared_ptr<host::CommandBarControl> Add(std::int32_t controlType,
                                                 std::shared_ptr<host::ButtonDefinition> definition) override;

private:
    std::string name_;
    std::vector<std::shared_ptr<SimCommandBarControl>> controls_;
};

class CommandState;

class SimSelectEvents : public host::SelectEvents {
public:
    void AddSelectionFilter(std::int32_t filter) override;
    host::ObjectList SelectedEntities() const override;
    void ResetPreSelection() override { SIM_HOST_CALL("SelectEvents.ResetPreSelection"); }
    support::Event<const host::ObjectList&>& OnSelect() override;
    support::Event<host::ObjectPtr>& OnPreSelect() override;

    bool SelectsOccurrences() const;
    void Select(const host::ObjectList& entities);

private:
    std::vector<std::int32_t> filters_;
    host::ObjectList selected_;
    support::Event<const host::ObjectList&> onSelect_;
    support::Event<host::ObjectPtr> onPreSelect_;
};

class SimInteractionEvents : public host::InteractionEvents,
                             public std::enable_shared_from_this<SimInteractionEvents> {
public:
    explicit SimInteractionEvents(CommandState& commands) : commands_(commands) {}
    std::shared_ptr<host::SelectEvents> SelectEvents() override;
    void SetSelectionEnabled(bool enabled) override;
    void Start() override;
    void Stop() override;
    support::Event<>& OnTerminate() override;

    bool SelectionEnabled() const { return selectionEnabled_; }
    SimSelectEvents& Selection() { return *select_; }
    void RaiseTerminate() { onTerminate_.Raise(); }

private:
    CommandState& commands_;
    std::shared_ptr<SimSelectEvents> select_ = std::make_shared<SimSelectEvents>();
    bool selectionEnabled_ = false;
    support::Event<> onTerminate_;
};

class SimUserInputEvents : public host::UserInputEvents {
public:
    support::Event<std::int32_t, host::ObjectPtr, std::shared_ptr<host::CommandBar>>& OnContextMenu()
        override {
        return onContextMenu_;
    }

private:
    support::Event<std::int32_t, host::ObjectPtr, std::shared_ptr<host::CommandBar>> onContextMenu_;
};

// The host's command bars, the interaction running in the graphics window and the
// user-input events: what the command manager and the user interface manager reach.
class CommandState : public host::CommandBars,
                     public host::CommandManager,
                     public host::UserInterfaceManager,
                     public std::enable_shared_from_this<CommandState> {
public:
    CommandState();  // the six bars the add-in uses, each with some host buttons

    // CommandBars
    std::shared_ptr<host::CommandBar> Item(const std::string& name) override;
    std::shared_ptr<host::CommandBar> Add(const std::string& name) override;
    // CommandManager
    std::shared_ptr<host::InteractionEvents> CreateInteractionEvents() override;
    std::shared_ptr<host::UserInputEvents> UserInputEvents() override;
    // UserInterfaceManager
    std::shared_ptr<host::CommandBars> CommandBars() override;

    // One interaction runs at a time: starting one terminates the one that ran.
    void Started(SimInteractionEvents& interaction);
    void Stopped(SimInteractionEvents& interaction);
    void Escape();  // the user ends the running interaction
    std::shared_ptr<SimInteractionEvents> Running() const { return running_; }
    std::int32_t InteractionsCreated() const { return created_; }

    void ClickButton(const std::string& internalName);
    // Runs a defined command whether or not it sits on a bar, as the host's own command
    // line does; the definition must still be alive.
    void RunCommand(const std::string& internalName);
    void Defined(const std::shared_ptr<host::ButtonDefinition>& definition);
    void RaiseContextMenu();
    std::string DescribeBars() const;

private:
    std::shared_ptr<SimCommandBar> NewBar(const std::string& name);
    std::vector<std::shared_ptr<SimCommandBar>> bars_;
    std::vector<std::weak_ptr<host::ButtonDefinition>> definitions_;
    std::shared_ptr<SimInteractionEvents> running_;
    std::int32_t created_ = 0;
    std::shared_ptr<SimUserInputEvents> userInput_ = std::make_shared<SimUserInputEvents>();
};

}  // namespace simhost
