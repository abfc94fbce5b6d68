// Buttons, command bars, the command manager and the events the user's actions raise.
#include "win/com/Guid.h"
#include "win/com/HostEvents.h"
#include "win/com/Picture.h"
#include "win/hostface/EventFace.h"
#include "win/hostface/Faces.h"

namespace win::hostface {

namespace {
// The stand-in's own IID for the button handler's events. The add-in must not need it: it
// learns it from the button's connection point, as it must from the real host.
constexpr IID kIIDButtonDefinitionHandlerEvents = com::ParseGuid(L"{5F1E0C2A-8B47-4D6E-9A31-C2D84E7B0F16}");

// The device a selection came from: the graphics window.
constexpr std::int32_t kGraphicsWindowSelection = 0;

support::Variant Nothing() {
    return support::Variant(std::shared_ptr<support::Object>());
}

std::shared_ptr<host::ButtonDefinition> ButtonOf(const InvokeArgs& args, std::size_t i) {
    auto definition = TargetOf<ControlDefinitionView>(args, i);
    if (!definition) throw com::InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(args.Count() - 1 - i)};
    return definition->button;
}

// The face of an object that raises events on one outgoing interface: wire subscribes the
// face to the object's own events. The face, once made, is the object's one face.
template <class T, class Wire>
support::Variant EventFaceOf(std::shared_ptr<T> target, const IID& outgoing, Wire wire) {
    if (!target) return Nothing();
    if (auto existing = FaceObject<T>::Existing(target)) return AsValue(existing);
    auto face = com::ComPtr<EventFace<T>>::Adopt(new EventFace<T>(target, {outgoing}));
    wire(*target, *face.Get());
    return AsValue(face);
}
}  // namespace

TW_FACE_TABLE(ButtonHandlerView) {
    static const FaceMember<ButtonHandlerView> table[] = {
        {L"ControlDefinition",
         TW_GET(Face(std::make_shared<ControlDefinitionView>(ControlDefinitionView{o.button})))},
    };
    return table;
}

TW_FACE_TABLE(ControlDefinitionView) {
    static const FaceMember<ControlDefinitionView> table[] = {
        {L"Type", TW_GET(o.button->Type())},
        {L"InternalName", TW_GET(o.button->InternalName())},
        {L"DisplayName", TW_GET(o.button->DisplayName())},
        {L"StandardIcon", TW_GET(o.button->HasIcon() ? com::StandardIconPicture() : Nothing())},
    };
    return table;
}

support::Variant Face(std::shared_ptr<host::ButtonDefinition> target) {
    if (!target) return Nothing();
    return EventFaceOf(std::make_shared<ButtonHandlerView>(ButtonHandlerView{target}),
                       kIIDButtonDefinitionHandlerEvents,
                       [](ButtonHandlerView& handler, EventFace<ButtonHandlerView>& face) {
                           face.Keep(handler.button->OnExecute().Subscribe(
                               [&face] { face.Point(0).Raise(com::kDispidOnClick, {}); }));
                       });
}

support::Variant Face(std::shared_ptr<ControlDefinitionView> target) {
    // Context: a NameValueMap in the host; the stand-in has no context to give.
    return EventFaceOf(target, com::kIIDButtonDefinitionSink,
                       [](ControlDefinitionView& definition, EventFace<ControlDefinitionView>& face) {
                           face.Keep(definition.button->OnExecute().Subscribe(
                               [&face] { face.Point(0).Raise(com::kDispidOnExecute, {Nothing()}); }));
                       });
}

TW_FACE_TABLE(host::UserInterfaceManager) {
    static const FaceMember<host::UserInterfaceManager> table[] = {
        {L"CommandBars", TW_GET(Face(o.CommandBars()))}};
    return table;
}

TW_FACE_TABLE(host::CommandBars) {
    static const FaceMember<host::CommandBars> table[] = {
        {L"Item", TW_GET(Face(o.Item(Text(a, 0))))},
        {L"Add", TW_GET(Face(o.Add(Text(a, 0))))},
    };
    return table;
}

TW_FACE_TABLE(host::CommandBar) {
    static const FaceMember<host::CommandBar> table[] = {
        {L"Type", TW_GET(o.Type())},
        {L"Name", TW_GET(o.Name())},
        {L"Controls", TW_GET(Face(o.Controls()))},
    };
    return table;
}

TW_FACE_TABLE(host::CommandBarControls) {
    static const FaceMember<host::CommandBarControls> table[] = {
        {L"Count", TW_GET(o.Count())},
        {L"Item", TW_GET(Face(o.Item(Long(a, 0))))},
        // ButtonDefinition, [Before]: a button control at the end of the bar
        {L"AddButton", TW_GET(Face(o.Add(host::kBarControlButton, ButtonOf(a, 0))))},
    };
    return table;
}

TW_FACE_TABLE(host::CommandBarControl) {
    static const FaceMember<host::CommandBarControl> table[] = {
        {L"ControlType", TW_GET(o.ControlType())},
        {L"ControlDefinition",
         TW_GET(Face(std::make_shared<ControlDefinitionView>(ControlDefinitionView{o.ControlDefinition()})))},
    };
    return table;
}

TW_FACE_TABLE(host::CommandManager) {
    static const FaceMember<host::CommandManager> table[] = {
        {L"CreateInteractionEvents", TW_GET(Face(o.CreateInteractionEvents()))},
        {L"UserInputEvents", TW_GET(Face(o.UserInputEvents()))},
    };
    return table;
}

TW_FACE_TABLE(host::InteractionEvents) {
    static const FaceMember<host::InteractionEvents> table[] = {
        {L"SelectEvents", TW_GET(Face(o.SelectEvents()))},
        {L"SelectionActive", nullptr, TW_PUT(o.SetSelectionEnabled(v.ToBool()))},
        {L"Start", TW_DO(o.Start())},
        {L"Stop", TW_DO(o.Stop())},
    };
    return table;
}

TW_FACE_TABLE(host::SelectEvents) {
    static const FaceMember<host::SelectEvents> table[] = {
        {L"AddSelectionFilter", TW_DO(o.AddSelectionFilter(Long(a, 0)))},
        {L"SelectedEntities", TW_GET(Face(std::make_shared<host::ObjectList>(o.SelectedEntities())))},
        {L"ResetPreSelection", TW_DO(o.ResetPreSelection())},
    };
    return table;
}

// Only its events: the add-in calls no member of it.
TW_FACE_TABLE(host::UserInputEvents) {
    return {};
}

support::Variant Face(std::shared_ptr<host::InteractionEvents> target) {
    return EventFaceOf(target, com::kIIDInteractionEventsSink,
                       [](host::InteractionEvents& events, EventFace<host::InteractionEvents>& face) {
                           face.Keep(events.OnTerminate().Subscribe(
                               [&face] { face.Point(0).Raise(com::kDispidOnTerminate, {}); }));
                       });
}

// The positions and the view of a selection are the host's geometry, which the stand-in
// does not model: they arrive as Nothing.
support::Variant Face(std::shared_ptr<host::SelectEvents> target) {
    return EventFaceOf(
        target, com::kIIDSelectEventsSink,
        [](host::SelectEvents& events, EventFace<host::SelectEvents>& face) {
            face.Keep(events.OnSelect().Subscribe([&face](const host::ObjectList& selected) {
                face.Point(0).Raise(com::kDispidOnSelect,
                                    {Face(std::make_shared<host::ObjectList>(selected)),
                                     kGraphicsWindowSelection, Nothing(), Nothing(), Nothing()});
            }));
            face.Keep(events.OnPreSelect().Subscribe([&face](host::ObjectPtr entity) {
                VARIANT_BOOL highlight = VARIANT_TRUE;  // [out] DoHighlight: the stand-in draws nothing
                face.Point(0).Raise(com::kDispidOnPreSelect,
                                    {Face(entity), com::Argument::Out(&highlight), Nothing(),
                                     kGraphicsWindowSelection, Nothing(), Nothing(), Nothing()});
            }));
        });
}

support::Variant Face(std::shared_ptr<host::UserInputEvents> target) {
    return EventFaceOf(
        target, com::kIIDUserInputEventsSink,
        [](host::UserInputEvents& events, EventFace<host::UserInputEvents>& face) {
            face.Keep(events.OnContextMenu().Subscribe(
                [&face](std::int32_t device, host::ObjectPtr info, std::shared_ptr<host::CommandBar> bar) {
                    face.Point(0).Raise(com::kDispidOnContextMenu, {device, Face(info), Face(bar)});
                }));
        });
}

TW_FACE(host::UserInterfaceManager)
TW_FACE(host::CommandBars)
TW_FACE(host::CommandBar)
TW_FACE(host::CommandBarControls)
TW_FACE(host::CommandBarControl)
TW_FACE(host::CommandManager)

}  // namespace win::hostface
