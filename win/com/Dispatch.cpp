#include "win/com/Dispatch.h"

#include <memory>

#include "support/Error.h"
#include "support/Utf16.h"
#include "win/com/ComError.h"
#include "win/com/VariantConversion.h"

namespace win::com {

namespace {
// The error a failed call reports, with the member named so a report says what failed.
support::Error Failed(const support::Error& error, std::string_view member) {
    if (member.empty()) return error;
    return support::Error(error.Number(), error.Description() + " (" + std::string(member) + ")");
}
}  // namespace

IDispatch& Dispatch::Required(std::string_view member) const {
    if (!object_)
        throw support::Error(support::errors::kObjectNotSet,
                             "Object variable not set (" + std::string(member) + ")");
    return *object_.Get();
}

DISPID Dispatch::IdOf(std::string_view member) const {
    IDispatch& object = Required(member);
    std::wstring name = support::Utf8ToUtf16(member);
    LPOLESTR names[] = {name.data()};
    DISPID id = DISPID_UNKNOWN;
    HRESULT hr = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(hr)) throw Failed(ErrorFromHresult(hr), member);
    return id;
}

support::Variant Dispatch::Call(std::string_view member, const Arguments& args,
                                const std::vector<NamedArgument>& named) const {
    IDispatch& object = Required(member);
    // The member's and its named parameters' DISPIDs come from one look-up.
    std::vector<std::wstring> names{support::Utf8ToUtf16(member)};
    for (const NamedArgument& n : named) names.push_back(support::Utf8ToUtf16(n.name));
    std::vector<LPOLESTR> pointers;
    for (std::wstring& n : names) pointers.push_back(n.data());
    std::vector<DISPID> ids(names.size(), DISPID_UNKNOWN);
    HRESULT hr = object.GetIDsOfNames(IID_NULL, pointers.data(), static_cast<UINT>(pointers.size()),
                                      LOCALE_USER_DEFAULT, ids.data());
    if (FAILED(hr)) throw Failed(ErrorFromHresult(hr), member);
    std::vector<DispidArgument> byId;
    for (std::size_t i = 0; i < named.size(); ++i) byId.push_back({ids[i + 1], named[i].value});
    return Invoke(ids[0], DISPATCH_METHOD | DISPATCH_PROPERTYGET, args, byId, member);
}

support::Variant Dispatch::Get(std::string_view property, const Arguments& args) const {
    return Invoke(IdOf(property), DISPATCH_PROPERTYGET, args, {}, property);
}

void Dispatch::Put(std::string_view property, const support::Variant& value) const {
    Invoke(IdOf(property), DISPATCH_PROPERTYPUT, {}, {{DISPID_PROPERTYPUT, value}}, property);
}

void Dispatch::PutRef(std::string_view property, const support::Variant& object) const {
    Invoke(IdOf(property), DISPATCH_PROPERTYPUTREF, {}, {{DISPID_PROPERTYPUT, object}}, property);
}

support::Variant Dispatch::Invoke(DISPID id, WORD flags, const Arguments& args,
                                  const std::vector<DispidArgument>& named,
                                  std::string_view memberName) const {
    IDispatch& object = Required(memberName);
    // DISPPARAMS holds the named arguments first, then the positional ones in reverse order.
    std::size_t count = named.size() + args.size();
    std::unique_ptr<ComVariant[]> values(new ComVariant[count]);
    std::vector<DISPID> namedIds;
    for (std::size_t i = 0; i < named.size(); ++i) {
        ToVariant(named[i].value, values[i].Get());
        namedIds.push_back(named[i].id);
    }
    for (std::size_t i = 0; i < args.size(); ++i) {
        VARIANT& slot = values[count - 1 - i].Get();
        if (args[i].Reference()) {
            // The variable stays the caller's: the slot only points at it, nothing to free.
            V_VT(&slot) = args[i].ReferenceType();
            V_BYREF(&slot) = args[i].Reference();
        } else if (args[i].Value()) {
            ToVariant(*args[i].Value(), slot);
        } else {
            V_VT(&slot) = VT_ERROR;
            V_ERROR(&slot) = DISP_E_PARAMNOTFOUND;
        }
    }
    // ComVariant is exactly a VARIANT, so the array serves as DISPPARAMS' argument list.
    static_assert(sizeof(ComVariant) == sizeof(VARIANT));
    DISPPARAMS params{reinterpret_cast<VARIANT*>(values.get()), namedIds.empty() ? nullptr : namedIds.data(),
                      static_cast<UINT>(count), static_cast<UINT>(namedIds.size())};
    ComVariant result;
    EXCEPINFO exception{};
    UINT badArgument = 0;
    HRESULT hr = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, &result.Get(), &exception,
                               &badArgument);
    // The callee's own error reaches the user as the callee wrote it; a failure of the call
    // itself (an unknown member, a wrong argument) names the member that was called.
    if (hr == DISP_E_EXCEPTION) throw ErrorFromExcepInfo(exception);
    if (FAILED(hr)) throw Failed(ErrorFromHresult(hr), memberName);
    return FromVariant(result.Get());
}

}  // namespace win::com
