#pragma once
#include <cstdint>
#include <vector>

#include "support/Variant.h"
#include "win/com/ComPtr.h"
#include "win/com/Ole.h"

namespace win::com {

// An automation object of another component (the host's), carried in a support::Variant.
class ComObject : public support::Object {
public:
    explicit ComObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}
    const ComPtr<IDispatch>& Dispatch() const { return dispatch_; }

private:
    ComPtr<IDispatch> dispatch_;
};

// A one-dimensional SAFEARRAY carried in a support::Variant: its element type (VT_VARIANT
// for an array of anything, VT_R8, VT_BSTR...), its lower bound and its items.
class Array : public support::Object {
public:
    Array(VARTYPE elementType, std::int32_t lowerBound, std::vector<support::Variant> items)
        : elementType(elementType), lowerBound(lowerBound), items(std::move(items)) {}
    VARTYPE elementType;
    std::int32_t lowerBound;
    std::vector<support::Variant> items;
};

}  // namespace win::com
