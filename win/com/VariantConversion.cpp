#include "win/com/VariantConversion.h"

#include <limits>
#include <string>

#include "support/Error.h"
#include "win/com/Bstr.h"
#include "win/com/ComError.h"
#include "win/com/ComObject.h"

namespace win::com {

namespace {
[[noreturn]] void ThrowTypeMismatch(const std::string& what) {
    throw support::Error(support::errors::kTypeMismatch, "Type mismatch: " + what);
}

support::Variant FromDispatch(IDispatch* dispatch) {
    if (!dispatch) return support::Variant(std::shared_ptr<support::Object>());
    return support::Variant(std::make_shared<ComObject>(ComPtr<IDispatch>(dispatch)));
}

support::Variant FromArray(SAFEARRAY* array) {
    if (!array) return support::Variant(std::shared_ptr<support::Object>());
    if (SafeArrayGetDim(array) != 1) ThrowTypeMismatch("an array of more than one dimension");
    VARTYPE type = VT_EMPTY;
    Check(SafeArrayGetVartype(array, &type));
    LONG lower = 0, upper = -1;
    Check(SafeArrayGetLBound(array, 1, &lower));
    Check(SafeArrayGetUBound(array, 1, &upper));
    std::vector<support::Variant> items;
    items.reserve(static_cast<std::size_t>(upper - lower + 1));
    for (LONG i = lower; i <= upper; ++i) {
        ComVariant element;
        // An element of type T is read into the VARIANT's value as a T; a VARIANT element
        // is copied whole.
        if (type == VT_VARIANT) {
            Check(SafeArrayGetElement(array, &i, &element.Get()));
        } else {
            element.Get().vt = type;
            Check(SafeArrayGetElement(array, &i, &element.Get().bVal));
        }
        items.push_back(FromVariant(element.Get()));
    }
    return support::Variant(std::make_shared<Array>(type, lower, std::move(items)));
}

SAFEARRAY* ToArray(const Array& array) {
    SAFEARRAY* result =
        SafeArrayCreateVector(array.elementType, array.lowerBound, static_cast<ULONG>(array.items.size()));
    if (!result) throw support::Error(static_cast<std::int32_t>(E_OUTOFMEMORY), "Cannot create an array");
    try {
        LONG index = array.lowerBound;
        for (const support::Variant& item : array.items) {
            ComVariant element(item);
            if (array.elementType != VT_VARIANT)
                Check(VariantChangeType(&element.Get(), &element.Get(), 0, array.elementType));
            VARIANT& v = element.Get();
            // SafeArrayPutElement takes pointers (BSTR, objects) as they are, values by address.
            void* source = array.elementType == VT_VARIANT ? static_cast<void*>(&v)
                           : array.elementType == VT_BSTR  ? static_cast<void*>(v.bstrVal)
                           : array.elementType == VT_DISPATCH || array.elementType == VT_UNKNOWN
                               ? static_cast<void*>(v.punkVal)
                               : static_cast<void*>(&v.bVal);
            Check(SafeArrayPutElement(result, &index, source));
            ++index;
        }
    } catch (...) {
        SafeArrayDestroy(result);
        throw;
    }
    return result;
}
}  // namespace

ComVariant::ComVariant(const support::Variant& value) {
    VariantInit(&v_);
    ToVariant(value, v_);
}

support::Variant FromVariant(const VARIANT& v) {
    if (V_VT(&v) & VT_BYREF) {
        if (V_VT(&v) == (VT_BYREF | VT_VARIANT)) return FromVariant(*V_VARIANTREF(&v));
        ComVariant copy;
        Check(VariantCopyInd(&copy.Get(), const_cast<VARIANT*>(&v)));
        return FromVariant(copy.Get());
    }
    if (V_VT(&v) & VT_ARRAY) return FromArray(V_ARRAY(&v));
    switch (V_VT(&v)) {
        case VT_EMPTY:
        case VT_NULL:
            return {};
        case VT_BOOL:
            return V_BOOL(&v) != VARIANT_FALSE;
        case VT_I1:
            return static_cast<std::int16_t>(V_I1(&v));
        case VT_UI1:
            return static_cast<std::int16_t>(V_UI1(&v));
        case VT_I2:
            return static_cast<std::int16_t>(V_I2(&v));
        case VT_UI2:
            return static_cast<std::int32_t>(V_UI2(&v));
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&v));
        case VT_INT:
            return static_cast<std::int32_t>(V_INT(&v));
        case VT_UI4:
        case VT_UINT: {
            unsigned long u = V_VT(&v) == VT_UI4 ? V_UI4(&v) : V_UINT(&v);
            if (u <= static_cast<unsigned long>(std::numeric_limits<std::int32_t>::max()))
                return static_cast<std::int32_t>(u);
            return static_cast<double>(u);
        }
        case VT_I8:
            return static_cast<double>(V_I8(&v));
        case VT_UI8:
            return static_cast<double>(V_UI8(&v));
        case VT_R4:
            return static_cast<double>(V_R4(&v));
        case VT_R8:
            return V_R8(&v);
        case VT_DECIMAL: {
            double d = 0;
            Check(VarR8FromDec(const_cast<DECIMAL*>(&V_DECIMAL(&v)), &d));
            return d;
        }
        case VT_CY:
            return support::Currency{V_CY(&v).int64};
        case VT_DATE:
            return support::Date{V_DATE(&v)};
        case VT_BSTR:
            return Utf8FromBstr(V_BSTR(&v));
        case VT_DISPATCH:
            return FromDispatch(V_DISPATCH(&v));
        case VT_UNKNOWN: {
            if (!V_UNKNOWN(&v)) return FromDispatch(nullptr);
            ComPtr<IDispatch> dispatch = ComPtr<IUnknown>(V_UNKNOWN(&v)).As<IDispatch>(IID_IDispatch);
            if (!dispatch) ThrowTypeMismatch("an object without automation");
            return FromDispatch(dispatch.Get());
        }
        case VT_ERROR:
            // A caller that leaves an optional argument out passes this.
            if (V_ERROR(&v) == DISP_E_PARAMNOTFOUND) return {};
            return static_cast<std::int32_t>(V_ERROR(&v));
        default:
            ThrowTypeMismatch("a value of VARIANT type " + std::to_string(V_VT(&v)));
    }
}

void ToVariant(const support::Variant& value, VARIANT& out) {
    VariantInit(&out);
    switch (value.Type()) {
        case support::VariantType::Empty:
            return;
        case support::VariantType::Boolean:
            V_VT(&out) = VT_BOOL;
            V_BOOL(&out) = *value.As<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
            return;
        case support::VariantType::Integer:
            V_VT(&out) = VT_I2;
            V_I2(&out) = *value.As<std::int16_t>();
            return;
        case support::VariantType::Long:
            V_VT(&out) = VT_I4;
            V_I4(&out) = *value.As<std::int32_t>();
            return;
        case support::VariantType::Double:
            V_VT(&out) = VT_R8;
            V_R8(&out) = *value.As<double>();
            return;
        case support::VariantType::Currency:
            V_VT(&out) = VT_CY;
            V_CY(&out).int64 = value.As<support::Currency>()->scaled;
            return;
        case support::VariantType::Date:
            V_VT(&out) = VT_DATE;
            V_DATE(&out) = value.As<support::Date>()->serial;
            return;
        case support::VariantType::String:
            V_BSTR(&out) = Bstr(*value.As<std::string>()).Detach();
            V_VT(&out) = VT_BSTR;
            return;
        case support::VariantType::Object:
            break;
    }
    std::shared_ptr<support::Object> object = value.ToObject();
    if (!object) {
        V_VT(&out) = VT_DISPATCH;
        V_DISPATCH(&out) = nullptr;
    } else if (auto* com = dynamic_cast<const ComObject*>(object.get())) {
        V_VT(&out) = VT_DISPATCH;
        V_DISPATCH(&out) = ComPtr<IDispatch>(com->Dispatch()).Detach();
    } else if (auto* array = dynamic_cast<const Array*>(object.get())) {
        V_ARRAY(&out) = ToArray(*array);
        V_VT(&out) = VT_ARRAY | array->elementType;
    } else {
        ThrowTypeMismatch("an object that has no automation interface");
    }
}

}  // namespace win::com
