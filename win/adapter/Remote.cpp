#include "win/adapter/Remote.h"

#include <cmath>

#include "support/Error.h"
#include "win/adapter/HostMembers.h"
#include "win/com/ComObject.h"

namespace win::adapter {

support::Variant Remote::Get(const char* member, const Arguments& args) const {
    RequireListed(kind_, member);
    return object_.Get(member, args);
}

support::Variant Remote::Call(const char* member, const Arguments& args) const {
    RequireListed(kind_, member);
    return object_.Call(member, args);
}

void Remote::Put(const char* member, const support::Variant& value) const {
    RequireListed(kind_, member);
    object_.Put(member, value);
}

void Remote::Put(const char* member, const Arguments& args, const support::Variant& value) const {
    RequireListed(kind_, member);
    object_.Invoke(object_.IdOf(member), DISPATCH_PROPERTYPUT, args, {{DISPID_PROPERTYPUT, value}}, member);
}

void Remote::PutRef(const char* member, const support::Variant& object) const {
    RequireListed(kind_, member);
    object_.PutRef(member, object);
}

support::Variant Remote::Invoke(DISPID id, WORD flags, const char* member, const Arguments& args) const {
    RequireListed(kind_, member);
    return object_.Invoke(id, flags, args, {}, member);
}

void Remote::PutById(DISPID id, const char* member, const support::Variant& value) const {
    RequireListed(kind_, member);
    object_.Invoke(id, DISPATCH_PROPERTYPUT, {}, {{DISPID_PROPERTYPUT, value}}, member);
}

std::int32_t Remote::Long(const char* member) const {
    return ToLong(Get(member));
}

std::int32_t ToLong(const support::Variant& value) {
    if (auto* i = value.As<std::int32_t>()) return *i;
    if (auto* s = value.As<std::int16_t>()) return *s;
    return static_cast<std::int32_t>(std::lround(value.ToDouble()));
}

com::ComPtr<IDispatch> DispatchOf(const support::Variant& value) {
    if (value.Type() != support::VariantType::Object) {
        throw support::Error(support::errors::kTypeMismatch, "Type mismatch: the host returned no object");
    }
    auto object = value.ToObject();
    if (!object) return nullptr;
    if (auto* com = dynamic_cast<const com::ComObject*>(object.get())) return com->Dispatch();
    throw support::Error(support::errors::kTypeMismatch, "Type mismatch: not an automation object");
}

}  // namespace win::adapter
