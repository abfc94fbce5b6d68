#pragma once
#include <cstdint>
#include <memory>
#include <string>

#include "host/Object.h"
#include "support/Event.h"

namespace host {

// A button the add-in defines; the host raises OnExecute when the user clicks it.
class ButtonDefinition : public Object {
public:
    virtual std::string InternalName() const = 0;
    virtual std::string DisplayName() const = 0;
    virtual bool HasIcon() const = 0;
    virtual support::Event<>& OnExecute() = 0;
};

class CommandBarControl {
public:
    virtual ~CommandBarControl() = default;
    virtual std::int32_t ControlType() const = 0;
    virtual std::shared_ptr<ButtonDefinition> ControlDefinition() = 0;
};

class CommandBarControls {
public:
    virtual ~CommandBarControls() = default;
    virtual std::int32_t Count() const = 0;
    virtual std::shared_ptr<CommandBarControl> Item(std::int32_t index) = 0;  // from 1
    // Appends a control of the given type bound to a definition.
    virtual std::shared_ptr<CommandBarControl> Add(std::int32_t controlType,
                                                   std::shared_ptr<ButtonDefinition> definition) = 0;
};

class CommandBar : public Object {
public:
    virtual std::string Name() const = 0;
    virtual std::shared_ptr<CommandBarControls> Controls() = 0;
};

class CommandBars {
public:
    virtual ~CommandBars() = default;
    virtual std::shared_ptr<CommandBar> Item(const std::string& name) = 0;  // throws if absent
    virtual std::shared_ptr<CommandBar> Add(const std::string& name) = 0;
};

class UserInterfaceManager {
public:
    virtual ~UserInterfaceManager() = default;
    virtual std::shared_ptr<host::CommandBars> CommandBars() = 0;
};

// The selection part of an interaction.
class SelectEvents {
public:
    virtual ~SelectEvents() = default;
    virtual void AddSelectionFilter(std::int32_t filter) = 0;
    virtual ObjectList SelectedEntities() const = 0;
    // Clears what the pre-selection highlighted; the only call the pick helpers make there.
    virtual void ResetPreSelection() = 0;
    virtual support::Event<const ObjectList&>& OnSelect() = 0;  // JustSelectedEntities
    virtual support::Event<ObjectPtr>& OnPreSelect() = 0;       // PreSelectEntity
};

// An interaction with the graphics window: one runs at a time; starting another
// terminates the one that ran.
class InteractionEvents {
public:
    virtual ~InteractionEvents() = default;
    virtual std::shared_ptr<host::SelectEvents> SelectEvents() = 0;
    // Set before Start so that the user's selections are delivered to this interaction.
    virtual void SetSelectionEnabled(bool enabled) = 0;
    virtual void Start() = 0;
    virtual void Stop() = 0;
    virtual support::Event<>& OnTerminate() = 0;
};

class UserInputEvents {
public:
    virtual ~UserInputEvents() = default;
    // SelectionDevice, AdditionalInfo, CommandBar
    virtual support::Event<std::int32_t, ObjectPtr, std::shared_ptr<CommandBar>>& OnContextMenu() = 0;
};

class CommandManager {
public:
    virtual ~CommandManager() = default;
    virtual std::shared_ptr<InteractionEvents> CreateInteractionEvents() = 0;
    virtual std::shared_ptr<host::UserInputEvents> UserInputEvents() = 0;
};

}  // namespace host
