#pragma once
// What every adapter file shares: the adapted object's base, and the adapter of each kind
// of host object, made from the value a host member returned (null for Nothing).
#include <memory>

#include "host/Application.h"
#include "host/Commands.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "win/adapter/Remote.h"

namespace win::adapter {

// An adapted object: a host/ interface implemented over one host object. One that raises
// events listens to the host while the add-in holds it, as a WithEvents variable does: a
// subscription alone does not keep it.
class Adapted {
public:
    Adapted(const char* kind, com::ComPtr<IDispatch> object, Context context)
        : remote_(kind, std::move(object), std::move(context)) {}
    virtual ~Adapted() = default;
    const Remote& Host() const { return remote_; }
    // The host object itself, as an argument of a call to the host.
    support::Variant AsArgument() const;

protected:
    Remote remote_;
};

// The host object behind one of our adapted objects, as an argument to the host: Nothing for
// null. An object the adapter did not make cannot reach the host (a type mismatch).
support::Variant HostObjectOf(const std::shared_ptr<const void>& adapted, const Adapted* base);
template <class T>
support::Variant HostObjectOf(const std::shared_ptr<T>& adapted) {
    return HostObjectOf(adapted, dynamic_cast<const Adapted*>(adapted.get()));
}

// The identity of a COM object: its IUnknown, the same whatever interface it is reached by.
IUnknown* IdentityOf(const com::ComPtr<IDispatch>& object);
// Forgets the adapted objects the add-in no longer holds.
void Prune(const AdapterContext& context);

// The adapted object of a host object: the one the add-in holds already, else a new one.
template <class A, class... Extra>
std::shared_ptr<A> Make(const Context& context, const support::Variant& value, Extra... extra) {
    com::ComPtr<IDispatch> object = DispatchOf(value);
    if (!object) return nullptr;
    std::weak_ptr<void>& slot = context->adapted[{IdentityOf(object), std::type_index(typeid(A))}];
    if (auto held = slot.lock()) return std::static_pointer_cast<A>(held);
    auto made = std::make_shared<A>(std::move(object), context, extra...);
    slot = made;
    Prune(*context);
    return made;
}

#define TW_ADAPT(Kind) \
    std::shared_ptr<::host::Kind> Adapt##Kind(const Context& context, const support::Variant& value)
TW_ADAPT(Application);
TW_ADAPT(Camera);
TW_ADAPT(Transaction);
TW_ADAPT(Documents);
TW_ADAPT(Document);
TW_ADAPT(DrawingSettings);
TW_ADAPT(TitleBlockDefinition);
TW_ADAPT(DrawingSketch);
TW_ADAPT(TextBox);
TW_ADAPT(PropertySets);
TW_ADAPT(PropertySet);
TW_ADAPT(Property);
TW_ADAPT(AttributeSets);
TW_ADAPT(AttributeSet);
TW_ADAPT(Attribute);
TW_ADAPT(ComponentOccurrences);
TW_ADAPT(ComponentOccurrence);
TW_ADAPT(ComponentDefinition);
TW_ADAPT(MassProperties);
TW_ADAPT(Materials);
TW_ADAPT(Material);
TW_ADAPT(RenderStyles);
TW_ADAPT(RenderStyle);
TW_ADAPT(UnitsOfMeasure);
TW_ADAPT(ButtonDefinition);  // a button definition of the later factory
TW_ADAPT(UserInterfaceManager);
TW_ADAPT(CommandBars);
TW_ADAPT(CommandBar);
TW_ADAPT(CommandBarControls);
TW_ADAPT(CommandBarControl);
TW_ADAPT(CommandManager);
TW_ADAPT(InteractionEvents);
TW_ADAPT(SelectEvents);
TW_ADAPT(UserInputEvents);
TW_ADAPT(Object);  // any object, adapted as what its Type says it is
#undef TW_ADAPT

// Defines Adapt<Kind> with the class Adapted<Kind> of the file that invokes it.
#define TW_DEFINE_ADAPT(Kind)                                                                          \
    std::shared_ptr<::host::Kind> Adapt##Kind(const Context& context, const support::Variant& value) { \
        return Make<Adapted##Kind>(context, value);                                                    \
    }

// The button the site's factory of releases 7 to 9 returns: a ButtonDefinitionHandler.
std::shared_ptr<::host::ButtonDefinition> AdaptButtonHandler(const Context& context,
                                                             const support::Variant& value);
// An ObjectsEnumerator's items, each adapted as what it is.
::host::ObjectList AdaptObjects(const Context& context, const support::Variant& enumerator);

}  // namespace win::adapter
