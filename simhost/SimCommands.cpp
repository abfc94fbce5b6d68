#include "simhost/SimCommands.h"

#include <algorithm>

#include "host/Codes.h"
#include "simhost/HostCalls.h"
#include "support/Error.h"

using support::Error;
namespace errors = support::errors;

namespace simhost {

namespace {

struct HostBar {
    const char* name;
    std::vector<std::pair<const char*, const char*>> buttons;  // internal name, display name
};

// The bars the add-in places its buttons on, with a few of the host's own buttons.
const std::vector<HostBar>& HostBars() {
    static const std::vector<HostBar> bars = {
        {"DLxDrawingAnnotationPanelCmdBar",
         {{"DLxGeneralDimensionCmd", "General Dimension"},
          {"DLxBalloonCmd", "Balloon"},
          {"DLxTextCmd", "Text"}}},
        {"DLxDrawingViewsPanelCmdBar",
         {{"DLxBaseViewCmd", "Base View"},
          {"DLxProjectedViewCmd", "Projected View"},
          {"DLxSectionViewCmd", "Section View"}}},
        {"AMxAssemblyPanelCmdBar",
         {{"AMxPlaceComponentCmd", "Place Component"},
          {"AMxCreateComponentCmd", "Create Component"},
          {"AMxReplaceComponentCmd", "Replace Component"}}},
        {"AMxWeldmentCmdBar", {{"AMxWeldPreparationCmd", "Preparations"}, {"AMxWeldBeadCmd", "Welds"}}},
        {"PMxPartFeatureCmdBar",
         {{"PMxExtrudeCmd", "Extrude"}, {"PMxRevolveCmd", "Revolve"}, {"PMxHoleCmd", "Hole"}}},
        {"MBxSheetMetalFeatureCmdBar", {{"MBxFaceCmd", "Face"}, {"MBxFlangeCmd", "Flange"}}},
    };
    return bars;
}

}  // namespace

// --- bars

std::shared_ptr<host::CommandBarControls> SimCommandBar::Controls() {
    SIM_HOST_CALL("CommandBar.Controls");
    return shared_from_this();
}

std::shared_ptr<host::CommandBarControl> SimCommandBar::Item(std::int32_t index) {
    SIM_HOST_CALL("CommandBarControls.Item");
    if (index < 1 || index > Count())
        throw Error(errors::kInvalidArg, name_ + ": no control at " + std::to_string(index));
    return controls_[index - 1];
}

std::shared_ptr<host::CommandBarControl> SimCommandBar::Add(
    std::int32_t controlType, std::shared_ptr<host::ButtonDefinition> definition) {
    SIM_HOST_CALL("CommandBarControls.Add");
    if (controlType != host::kBarControlButton)
        throw Error(errors::kInvalidArg,
                    name_ + ": control type " + std::to_string(controlType) + " is not supported");
    if (!definition) throw Error(errors::kObjectNotSet, "Object variable not set (control definition)");
    controls_.push_back(std::make_shared<SimCommandBarControl>(controlType, std::move(definition)));
    return controls_.back();
}

CommandState::CommandState() {
    for (const auto& bar : HostBars()) {
        auto added = NewBar(bar.name);
        for (const auto& [internal, display] : bar.buttons)
            added->Add(host::kBarControlButton,
                       std::make_shared<SimButtonDefinition>(internal, display, true));
    }
}

std::shared_ptr<SimCommandBar> CommandState::NewBar(const std::string& name) {
    bars_.push_back(std::make_shared<SimCommandBar>(name));
    return bars_.back();
}

std::shared_ptr<host::CommandBar> CommandState::Item(const std::string& name) {
    SIM_HOST_CALL("CommandBars.Item");
    for (const auto& bar : bars_)
        if (bar->Name() == name) return bar;
    throw Error(errors::kInvalidArg, "CommandBars.Item: no command bar named \"" + name + "\"");
}

std::shared_ptr<host::CommandBar> CommandState::Add(const std::string& name) {
    SIM_HOST_CALL("CommandBars.Add");
    for (const auto& bar : bars_)
        if (bar->Name() == name)
            throw Error(errors::kInvalidArg, "CommandBars.Add: a command bar named \"" + name + "\" exists");
    return NewBar(name);
}

std::shared_ptr<host::CommandBars> CommandState::CommandBars() {
    SIM_HOST_CALL("UserInterfaceManager.CommandBars");
    return shared_from_this();
}

// An add-in activated again places its buttons again, after the ones it left behind; the
// user clicks the newest, the one the running add-in listens to.
void CommandState::ClickButton(const std::string& internalName) {
    std::shared_ptr<host::ButtonDefinition> newest;
    for (const auto& bar : bars_)
        for (std::int32_t i = 1; i <= bar->Count(); ++i)
            if (auto definition = bar->Item(i)->ControlDefinition();
                definition->InternalName() == internalName)
                newest = definition;
    if (!newest) throw Error(errors::kInvalidArg, "No button \"" + internalName + "\" on any command bar");
    newest->OnExecute().Raise();
}

void CommandState::Defined(const std::shared_ptr<host::ButtonDefinition>& definition) {
    std::erase_if(definitions_, [](const auto& d) { return d.expired(); });
    definitions_.push_back(definition);
}

void CommandState::RunCommand(const std::string& internalName) {
    for (auto it = definitions_.rbegin(); it != definitions_.rend(); ++it)
        if (auto definition = it->lock(); definition && definition->InternalName() == internalName) {
            definition->OnExecute().Raise();
            return;
        }
    throw Error(errors::kInvalidArg, "No command \"" + internalName + "\" is defined");
}

void CommandState::RaiseContextMenu() {
    auto menu = std::make_shared<SimCommandBar>("ContextMenu");
    userInput_->OnContextMenu().Raise(0, nullptr, menu);
}

std::string CommandState::DescribeBars() const {
    std::string out;
    for (const auto& bar : bars_) {
        out += bar->Name() + ":";
        for (std::int32_t i = 1; i <= bar->Count(); ++i)
            out += std::string(i == 1 ? " " : ", ") + bar->Item(i)->ControlDefinition()->InternalName();
        out += "\n";
    }
    return out;
}

// --- interactions

bool SimSelectEvents::SelectsOccurrences() const {
    return std::any_of(filters_.begin(), filters_.end(), [](std::int32_t f) {
        return f == host::kAssemblyOccurrenceFilter || f == host::kAssemblyLeafOccurrenceFilter;
    });
}

void SimSelectEvents::Select(const host::ObjectList& entities) {
    for (const auto& entity : entities) onPreSelect_.Raise(entity);
    selected_ = entities;
    onSelect_.Raise(entities);
}

void SimInteractionEvents::Start() {
    SIM_HOST_CALL("InteractionEvents.Start");
    commands_.Started(*this);
}

void SimInteractionEvents::Stop() {
    SIM_HOST_CALL("InteractionEvents.Stop");
    commands_.Stopped(*this);
}

std::shared_ptr<host::InteractionEvents> CommandState::CreateInteractionEvents() {
    SIM_HOST_CALL("CommandManager.CreateInteractionEvents");
    ++created_;
    return std::make_shared<SimInteractionEvents>(*this);
}

void CommandState::Started(SimInteractionEvents& interaction) {
    while (running_ && running_.get() != &interaction) {
        auto ended = std::move(running_);
        running_.reset();
        ended->RaiseTerminate();
    }
    running_ = interaction.shared_from_this();
}

void CommandState::Stopped(SimInteractionEvents& interaction) {
    if (running_.get() == &interaction) running_.reset();
}

void CommandState::Escape() {
    if (!running_) return;
    auto ended = std::move(running_);
    running_.reset();
    ended->RaiseTerminate();
}

std::int32_t SimButtonDefinition::Type() const {
    SIM_HOST_CALL("ButtonDefinition.Type");
    return kButtonDefinitionObjectType;
}

std::string SimButtonDefinition::InternalName() const {
    SIM_HOST_CALL("ButtonDefinition.InternalName");
    return internalName_;
}

std::string SimButtonDefinition::DisplayName() const {
    SIM_HOST_CALL("ButtonDefinition.DisplayName");
    return displayName_;
}

bool SimButtonDefinition::HasIcon() const {
    SIM_HOST_CALL("ButtonDefinition.HasIcon");
    return icon_;
}

support::Event<>& SimButtonDefinition::OnExecute() {
    SIM_HOST_CALL("ButtonDefinition.OnExecute");
    return onExecute_;
}

std::int32_t SimCommandBarControl::ControlType() const {
    SIM_HOST_CALL("CommandBarControl.ControlType");
    return type_;
}

std::shared_ptr<host::ButtonDefinition> SimCommandBarControl::ControlDefinition() {
    SIM_HOST_CALL("CommandBarControl.ControlDefinition");
    return definition_;
}

std::int32_t SimCommandBar::Type() const {
    SIM_HOST_CALL("CommandBar.Type");
    return kCommandBarObjectType;
}

std::string SimCommandBar::Name() const {
    SIM_HOST_CALL("CommandBar.Name");
    return name_;
}

std::int32_t SimCommandBar::Count() const {
    SIM_HOST_CALL("CommandBarControls.Count");
    return static_cast<std::int32_t>(controls_.size());
}

void SimSelectEvents::AddSelectionFilter(std::int32_t filter) {
    SIM_HOST_CALL("SelectEvents.AddSelectionFilter");
    filters_.push_back(filter);
}

host::ObjectList SimSelectEvents::SelectedEntities() const {
    SIM_HOST_CALL("SelectEvents.SelectedEntities");
    return selected_;
}

support::Event<const host::ObjectList&>& SimSelectEvents::OnSelect() {
    SIM_HOST_CALL("SelectEvents.OnSelect");
    return onSelect_;
}

support::Event<host::ObjectPtr>& SimSelectEvents::OnPreSelect() {
    SIM_HOST_CALL("SelectEvents.OnPreSelect");
    return onPreSelect_;
}

std::shared_ptr<host::SelectEvents> SimInteractionEvents::SelectEvents() {
    SIM_HOST_CALL("InteractionEvents.SelectEvents");
    return select_;
}

void SimInteractionEvents::SetSelectionEnabled(bool enabled) {
    SIM_HOST_CALL("InteractionEvents.SetSelectionEnabled");
    selectionEnabled_ = enabled;
}

support::Event<>& SimInteractionEvents::OnTerminate() {
    SIM_HOST_CALL("InteractionEvents.OnTerminate");
    return onTerminate_;
}

std::shared_ptr<host::UserInputEvents> CommandState::UserInputEvents() {
    SIM_HOST_CALL("CommandManager.UserInputEvents");
    return userInput_;
}

}  // namespace simhost
