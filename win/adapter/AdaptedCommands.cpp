// Buttons, command bars, the command manager and the events of the user's actions.
#include <optional>

#include "host/Codes.h"
#include "support/Error.h"
#include "win/adapter/Adapted.h"
#include "win/adapter/EventSink.h"
#include "win/com/HostEvents.h"

namespace win::adapter {

namespace {

using com::InvokeArgs;

// A button definition. Of the site's factory (releases 7 to 9) it is a handler that raises
// OnClick on an event interface whose IID only the handler itself can tell, and places its
// ControlDefinition; of the later factory it is the definition, raising OnExecute.
class AdaptedButton : public ::host::ButtonDefinition, public Adapted {
public:
    AdaptedButton(com::ComPtr<IDispatch> o, Context c, bool handler)
        : Adapted(handler ? "ButtonDefinitionHandler" : "ButtonDefinition", std::move(o), std::move(c)),
          handler_(handler) {}
    std::int32_t Type() const override { return Definition().Long("Type"); }
    std::string InternalName() const override { return Definition().Text("InternalName"); }
    std::string DisplayName() const override { return Definition().Text("DisplayName"); }
    bool HasIcon() const override { return static_cast<bool>(DispatchOf(Definition().Get("StandardIcon"))); }
    support::Event<>& OnExecute() override {
        if (!advised_) {
            const auto& object = remote_.Object().Object();
            IID iid = handler_ ? Advised::OnlyOutgoingInterface(object) : com::kIIDButtonDefinitionSink;
            DISPID click = handler_ ? com::kDispidOnClick : com::kDispidOnExecute;
            advised_.emplace(object, iid,
                             std::vector<com::Member>{{click, handler_ ? L"OnClick" : L"OnExecute"}},
                             [this](DISPID, const InvokeArgs&) { onExecute_.Raise(); });
        }
        return onExecute_;
    }
    // The definition a bar's control is bound to.
    support::Variant ControlDefinition() const {
        return handler_ ? remote_.Get("ControlDefinition") : AsArgument();
    }

private:
    Remote Definition() const {
        if (!handler_) return remote_;
        return Remote("ButtonDefinition", DispatchOf(remote_.Get("ControlDefinition")), remote_.Shared());
    }
    bool handler_;
    support::Event<> onExecute_;
    std::optional<Advised> advised_;  // last: cut off before the event it raises goes
};

class AdaptedUserInterfaceManager : public ::host::UserInterfaceManager, public Adapted {
public:
    AdaptedUserInterfaceManager(com::ComPtr<IDispatch> o, Context c)
        : Adapted("UserInterfaceManager", std::move(o), std::move(c)) {}
    std::shared_ptr<::host::CommandBars> CommandBars() override {
        return AdaptCommandBars(remote_.Shared(), remote_.Get("CommandBars"));
    }
};

class AdaptedCommandBars : public ::host::CommandBars, public Adapted {
public:
    AdaptedCommandBars(com::ComPtr<IDispatch> o, Context c)
        : Adapted("CommandBars", std::move(o), std::move(c)) {}
    std::shared_ptr<::host::CommandBar> Item(const std::string& name) override {
        return AdaptCommandBar(remote_.Shared(), remote_.Get("Item", {name}));
    }
    std::shared_ptr<::host::CommandBar> Add(const std::string& name) override {
        return AdaptCommandBar(remote_.Shared(), remote_.Call("Add", {name}));
    }
};

class AdaptedCommandBar : public ::host::CommandBar, public Adapted {
public:
    AdaptedCommandBar(com::ComPtr<IDispatch> o, Context c)
        : Adapted("CommandBar", std::move(o), std::move(c)) {}
    std::int32_t Type() const override { return remote_.Long("Type"); }
    std::string Name() const override { return remote_.Text("Name"); }
    std::shared_ptr<::host::CommandBarControls> Controls() override {
        return AdaptCommandBarControls(remote_.Shared(), remote_.Get("Controls"));
    }
};

class AdaptedCommandBarControls : public ::host::CommandBarControls, public Adapted {
public:
    AdaptedCommandBarControls(com::ComPtr<IDispatch> o, Context c)
        : Adapted("CommandBarControls", std::move(o), std::move(c)) {}
    std::int32_t Count() const override { return remote_.Long("Count"); }
    std::shared_ptr<::host::CommandBarControl> Item(std::int32_t index) override {
        return AdaptCommandBarControl(remote_.Shared(), remote_.Get("Item", {index}));
    }
    // The host adds a button control with AddButton; it has no other kind the add-in places.
    std::shared_ptr<::host::CommandBarControl> Add(
        std::int32_t controlType, std::shared_ptr<::host::ButtonDefinition> definition) override {
        auto* button = dynamic_cast<AdaptedButton*>(definition.get());
        if (controlType != ::host::kBarControlButton || !button)
            throw support::Error(support::errors::kTypeMismatch, "Type mismatch: only buttons are placed");
        return AdaptCommandBarControl(remote_.Shared(),
                                      remote_.Call("AddButton", {button->ControlDefinition()}));
    }
};

class AdaptedCommandBarControl : public ::host::CommandBarControl, public Adapted {
public:
    AdaptedCommandBarControl(com::ComPtr<IDispatch> o, Context c)
        : Adapted("CommandBarControl", std::move(o), std::move(c)) {}
    std::int32_t ControlType() const override { return remote_.Long("ControlType"); }
    std::shared_ptr<::host::ButtonDefinition> ControlDefinition() override {
        return AdaptButtonDefinition(remote_.Shared(), remote_.Get("ControlDefinition"));
    }
};

class AdaptedCommandManager : public ::host::CommandManager, public Adapted {
public:
    AdaptedCommandManager(com::ComPtr<IDispatch> o, Context c)
        : Adapted("CommandManager", std::move(o), std::move(c)) {}
    std::shared_ptr<::host::InteractionEvents> CreateInteractionEvents() override {
        return AdaptInteractionEvents(remote_.Shared(), remote_.Call("CreateInteractionEvents"));
    }
    std::shared_ptr<::host::UserInputEvents> UserInputEvents() override {
        return AdaptUserInputEvents(remote_.Shared(), remote_.Get("UserInputEvents"));
    }
};

class AdaptedInteractionEvents : public ::host::InteractionEvents, public Adapted {
public:
    AdaptedInteractionEvents(com::ComPtr<IDispatch> o, Context c)
        : Adapted("InteractionEvents", std::move(o), std::move(c)) {}
    std::shared_ptr<::host::SelectEvents> SelectEvents() override {
        return AdaptSelectEvents(remote_.Shared(), remote_.Get("SelectEvents"));
    }
    void SetSelectionEnabled(bool enabled) override { remote_.Put("SelectionActive", enabled); }
    void Start() override { remote_.Call("Start"); }
    void Stop() override { remote_.Call("Stop"); }
    support::Event<>& OnTerminate() override {
        if (!advised_)
            advised_.emplace(remote_.Object().Object(), com::kIIDInteractionEventsSink,
                             std::vector<com::Member>{{com::kDispidOnTerminate, L"OnTerminate"}},
                             [this](DISPID, const InvokeArgs&) { onTerminate_.Raise(); });
        return onTerminate_;
    }

private:
    support::Event<> onTerminate_;
    std::optional<Advised> advised_;
};

class AdaptedSelectEvents : public ::host::SelectEvents, public Adapted {
public:
    AdaptedSelectEvents(com::ComPtr<IDispatch> o, Context c)
        : Adapted("SelectEvents", std::move(o), std::move(c)) {}
    void AddSelectionFilter(std::int32_t filter) override { remote_.Call("AddSelectionFilter", {filter}); }
    ::host::ObjectList SelectedEntities() const override {
        return AdaptObjects(remote_.Shared(), remote_.Get("SelectedEntities"));
    }
    void ResetPreSelection() override { remote_.Call("ResetPreSelection"); }
    support::Event<const ::host::ObjectList&>& OnSelect() override {
        Advise();
        return onSelect_;
    }
    support::Event<::host::ObjectPtr>& OnPreSelect() override {
        Advise();
        return onPreSelect_;
    }

private:
    // One sink for both events. OnSelect: JustSelectedEntities, SelectionDevice, ModelPosition,
    // ViewPosition, View. OnPreSelect: PreSelectEntity, [out] DoHighlight, MorePreSelectEntities,
    // SelectionDevice, ModelPosition, ViewPosition, View. DoHighlight is left as the host set it.
    void Advise() {
        if (advised_) return;
        advised_.emplace(remote_.Object().Object(), com::kIIDSelectEventsSink,
                         std::vector<com::Member>{{com::kDispidOnSelect, L"OnSelect"},
                                                  {com::kDispidOnPreSelect, L"OnPreSelect"}},
                         [this](DISPID event, const InvokeArgs& args) {
                             if (event == com::kDispidOnSelect)
                                 onSelect_.Raise(AdaptObjects(remote_.Shared(), args.At(0)));
                             else
                                 onPreSelect_.Raise(AdaptObject(remote_.Shared(), args.At(0)));
                         });
    }
    support::Event<const ::host::ObjectList&> onSelect_;
    support::Event<::host::ObjectPtr> onPreSelect_;
    std::optional<Advised> advised_;
};

class AdaptedUserInputEvents : public ::host::UserInputEvents, public Adapted {
public:
    AdaptedUserInputEvents(com::ComPtr<IDispatch> o, Context c)
        : Adapted("UserInputEvents", std::move(o), std::move(c)) {}
    // Both context-menu events, the older releases' and the later one: SelectionDevice,
    // AdditionalInfo, CommandBar.
    support::Event<std::int32_t, ::host::ObjectPtr, std::shared_ptr<::host::CommandBar>>& OnContextMenu()
        override {
        if (!advised_)
            advised_.emplace(remote_.Object().Object(), com::kIIDUserInputEventsSink,
                             std::vector<com::Member>{{com::kDispidOnContextMenuOld, L"OnContextMenuOld"},
                                                      {com::kDispidOnContextMenu, L"OnContextMenu"}},
                             [this](DISPID, const InvokeArgs& args) {
                                 onContextMenu_.Raise(ToLong(args.At(0)),
                                                      AdaptObject(remote_.Shared(), args.At(1)),
                                                      AdaptCommandBar(remote_.Shared(), args.At(2)));
                             });
        return onContextMenu_;
    }

private:
    support::Event<std::int32_t, ::host::ObjectPtr, std::shared_ptr<::host::CommandBar>> onContextMenu_;
    std::optional<Advised> advised_;
};

}  // namespace

std::shared_ptr<::host::ButtonDefinition> AdaptButtonHandler(const Context& context,
                                                             const support::Variant& value) {
    return Make<AdaptedButton>(context, value, true);
}

std::shared_ptr<::host::ButtonDefinition> AdaptButtonDefinition(const Context& context,
                                                                const support::Variant& value) {
    return Make<AdaptedButton>(context, value, false);
}

TW_DEFINE_ADAPT(UserInterfaceManager)
TW_DEFINE_ADAPT(CommandBars)
TW_DEFINE_ADAPT(CommandBar)
TW_DEFINE_ADAPT(CommandBarControls)
TW_DEFINE_ADAPT(CommandBarControl)
TW_DEFINE_ADAPT(CommandManager)
TW_DEFINE_ADAPT(InteractionEvents)
TW_DEFINE_ADAPT(SelectEvents)
TW_DEFINE_ADAPT(UserInputEvents)

}  // namespace win::adapter
