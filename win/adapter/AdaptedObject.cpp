// Objects whose kind the call does not fix (the active edit object, what the user selects),
// adapted as what their Type says they are; and the host objects behind our adapted ones.
#include <algorithm>

#include "host/Codes.h"
#include "support/Error.h"
#include "win/adapter/Adapted.h"
#include "win/com/ComObject.h"

namespace win::adapter {

namespace {
// An object the add-in only asks what it is: a sketch being edited, for one.
class AdaptedObject : public ::host::Object, public Adapted {
public:
    AdaptedObject(com::ComPtr<IDispatch> o, Context c) : Adapted("Object", std::move(o), std::move(c)) {}
    std::int32_t Type() const override { return remote_.Long("Type"); }
};
}  // namespace

IUnknown* IdentityOf(const com::ComPtr<IDispatch>& object) {
    // The object holds the reference this look-up took, so the pointer stays its identity.
    com::ComPtr<IUnknown> identity = object.As<IUnknown>(IID_IUnknown);
    return identity.Get();
}

void Prune(const AdapterContext& context) {
    // Expired entries pile up as the add-in lets objects go: cleared whenever they might
    // outnumber the live ones, so the map stays in proportion to what the add-in holds.
    static std::size_t pruneAt = 64;
    if (context.adapted.size() < pruneAt) return;
    std::erase_if(context.adapted, [](const auto& entry) { return entry.second.expired(); });
    pruneAt = std::max<std::size_t>(64, 2 * context.adapted.size());
}

support::Variant Adapted::AsArgument() const {
    return support::Variant(std::make_shared<com::ComObject>(remote_.Object().Object()));
}

support::Variant HostObjectOf(const std::shared_ptr<const void>& adapted, const Adapted* base) {
    if (!adapted) return support::Variant(std::shared_ptr<support::Object>());
    if (!base)
        throw support::Error(support::errors::kTypeMismatch, "Type mismatch: not an object of the host");
    return base->AsArgument();
}

std::shared_ptr<::host::Object> AdaptObject(const Context& context, const support::Variant& value) {
    com::ComPtr<IDispatch> object = DispatchOf(value);
    if (!object) return nullptr;
    std::int32_t type = Remote("Object", object, context).Long("Type");
    switch (type) {
        case ::host::kPartDocumentObjectType:
        case ::host::kAssemblyDocumentObjectType:
        case ::host::kDrawingDocumentObjectType:
        case ::host::kPresentationDocumentObjectType:
            return AdaptDocument(context, value);
        case ::host::kComponentOccurrenceObject:
        case ::host::kComponentOccurrenceProxyObject:
            return AdaptComponentOccurrence(context, value);
        case ::host::kPartComponentDefinitionObject:
        case ::host::kAssemblyComponentDefinitionObject:
            return AdaptComponentDefinition(context, value);
        default:
            return std::make_shared<AdaptedObject>(std::move(object), context);
    }
}

::host::ObjectList AdaptObjects(const Context& context, const support::Variant& enumerator) {
    Remote objects("ObjectsEnumerator", DispatchOf(enumerator), context);
    ::host::ObjectList list;
    for (std::int32_t i = 1, n = objects.Long("Count"); i <= n; ++i)
        list.push_back(AdaptObject(context, objects.Get("Item", {i})));
    return list;
}

}  // namespace win::adapter
