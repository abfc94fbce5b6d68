#include "win/com/DispatchObject.h"

#include <new>

#include "support/Error.h"
#include "win/com/ComError.h"
#include "win/com/ComObject.h"
#include "win/com/VariantConversion.h"

namespace win::com {

namespace {
LONG liveObjects = 0;
}

long LiveObjectCount() {
    return liveObjects;
}

void InvokeArgs::Require(std::size_t count) const {
    if (params_.cArgs != count) throw InvokeError{DISP_E_BADPARAMCOUNT};
}

VARIANT& InvokeArgs::Slot(std::size_t index) const {
    if (index >= params_.cArgs) throw InvokeError{DISP_E_BADPARAMCOUNT};
    return params_.rgvarg[params_.cArgs - 1 - index];
}

support::Variant InvokeArgs::At(std::size_t index) const {
    VARIANT& slot = Slot(index);
    try {
        return FromVariant(slot);
    } catch (const support::Error&) {
        throw InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(params_.cArgs - 1 - index)};
    }
}

ComPtr<IDispatch> InvokeArgs::ObjectAt(std::size_t index) const {
    support::Variant value = At(index);
    if (value.Type() == support::VariantType::Object) {
        std::shared_ptr<support::Object> object = value.ToObject();
        if (!object) return nullptr;
        if (auto* com = dynamic_cast<const ComObject*>(object.get())) return com->Dispatch();
    }
    throw InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(params_.cArgs - 1 - index)};
}

void InvokeArgs::SetOut(std::size_t index, const support::Variant& value) const {
    VARIANT& slot = Slot(index);
    if (!(V_VT(&slot) & VT_BYREF))
        throw InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(params_.cArgs - 1 - index)};
    // Convert into the caller's type and write through its reference.
    ComVariant converted(value);
    VARTYPE type = V_VT(&slot) & ~VT_BYREF;
    if (type == VT_VARIANT) {
        Check(VariantCopy(V_VARIANTREF(&slot), &converted.Get()));
        return;
    }
    HRESULT hr = VariantChangeType(&converted.Get(), &converted.Get(), 0, type);
    if (FAILED(hr)) throw InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(params_.cArgs - 1 - index)};
    switch (type) {
        case VT_BOOL:
            *V_BOOLREF(&slot) = V_BOOL(&converted.Get());
            return;
        case VT_UI1:
            *V_UI1REF(&slot) = V_UI1(&converted.Get());
            return;
        case VT_I2:
            *V_I2REF(&slot) = V_I2(&converted.Get());
            return;
        case VT_I4:
            *V_I4REF(&slot) = V_I4(&converted.Get());
            return;
        case VT_R8:
            *V_R8REF(&slot) = V_R8(&converted.Get());
            return;
        case VT_BSTR:
            SysFreeString(*V_BSTRREF(&slot));
            *V_BSTRREF(&slot) = V_BSTR(&converted.Get());
            V_VT(&converted.Get()) = VT_EMPTY;  // the caller owns the text now
            return;
        default:
            throw InvokeError{DISP_E_TYPEMISMATCH, static_cast<UINT>(params_.cArgs - 1 - index)};
    }
}

namespace detail {

void CountObject(long delta) {
    InterlockedExchangeAdd(&liveObjects, delta);
}

HRESULT QueryInterface(IUnknown* self, ISupportErrorInfo* errorInfo, const Invocable& target, REFIID iid,
                       void** out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) || target.Answers(iid))
        *out = self;
    else if (IsEqualIID(iid, IID_ISupportErrorInfo))
        *out = errorInfo;
    else
        return E_NOINTERFACE;
    static_cast<IUnknown*>(*out)->AddRef();
    return S_OK;
}

HRESULT GetIDsOfNames(const Invocable& target, LPOLESTR* names, UINT count, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    for (const Member& m : target.Members())
        if (names[0] && lstrcmpiW(names[0], m.name) == 0) ids[0] = m.id;
    // Our members take no named arguments, so any parameter name is unknown.
    return ids[0] != DISPID_UNKNOWN && count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT Invoke(Invocable& target, DISPID id, REFIID iid, WORD flags, DISPPARAMS* params, VARIANT* result,
               EXCEPINFO* exception, UINT* badArgument) {
    if (!IsEqualIID(iid, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    bool known = false;
    for (const Member& m : target.Members()) known = known || m.id == id;
    if (!known) return DISP_E_MEMBERNOTFOUND;
    DISPPARAMS none{nullptr, nullptr, 0, 0};
    if (!params) params = &none;
    // A property assignment names its value DISPID_PROPERTYPUT; it is then the last
    // positional argument. Our members take no other named arguments.
    bool assignment = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) && params->cNamedArgs == 1 &&
                      params->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    if (params->cNamedArgs > 0 && !assignment) return DISP_E_NONAMEDARGS;
    try {
        support::Variant value = target.Call(id, flags, InvokeArgs(*params));
        if (result) ToVariant(value, *result);
        return S_OK;
    } catch (const InvokeError& e) {
        if (badArgument) *badArgument = e.argument;
        return e.hr;
    } catch (const support::Error& e) {
        return ToExcepInfo(e, exception);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception& e) {
        return ToExcepInfo(support::Error(support::errors::kFail, e.what()), exception);
    } catch (...) {
        return E_UNEXPECTED;
    }
}

}  // namespace detail
}  // namespace win::com
