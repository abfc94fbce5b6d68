#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Variant.h"
#include "win/com/ComPtr.h"
#include "win/com/Ole.h"

namespace win::com {

// One positional argument: a value, left out (an optional parameter the callee defaults),
// or a variable of the caller's that the callee writes ([out], ByRef in a script).
class Argument {
public:
    Argument(support::Variant value) : value_(std::move(value)) {}
    template <class T>
    Argument(T value) : value_(support::Variant(std::move(value))) {}
    static Argument Missing() { return Argument(); }
    // The callee sees the variable's own type by reference: a Byte stays a Byte.
    static Argument Out(BYTE* variable) { return Argument(VT_UI1 | VT_BYREF, variable); }
    static Argument Out(VARIANT_BOOL* variable) { return Argument(VT_BOOL | VT_BYREF, variable); }
    const std::optional<support::Variant>& Value() const { return value_; }
    VARTYPE ReferenceType() const { return refType_; }
    void* Reference() const { return ref_; }

private:
    Argument() = default;
    Argument(VARTYPE type, void* variable) : refType_(type), ref_(variable) {}
    std::optional<support::Variant> value_;
    VARTYPE refType_ = VT_EMPTY;
    void* ref_ = nullptr;
};
using Arguments = std::vector<Argument>;

struct NamedArgument {
    std::string name;
    support::Variant value;
};
struct DispidArgument {
    DISPID id;
    support::Variant value;
};

// A late-bound client of an automation object: members called by name (looked up with
// GetIDsOfNames) or by DISPID where the interface fixes the numbers. Every failure throws
// a support::Error with the callee's number and text (see ComError.h).
class Dispatch {
public:
    explicit Dispatch(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    // A method, or a property read with arguments, as a script calls it.
    support::Variant Call(std::string_view member, const Arguments& args = {},
                          const std::vector<NamedArgument>& named = {}) const;
    support::Variant Get(std::string_view property, const Arguments& args = {}) const;
    void Put(std::string_view property, const support::Variant& value) const;
    // Assigns an object to an object property (Set in a script).
    void PutRef(std::string_view property, const support::Variant& object) const;

    // flags: DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF.
    support::Variant Invoke(DISPID id, WORD flags, const Arguments& args = {},
                            const std::vector<DispidArgument>& named = {},
                            std::string_view memberName = "") const;

    DISPID IdOf(std::string_view member) const;
    const ComPtr<IDispatch>& Object() const { return object_; }

private:
    IDispatch& Required(std::string_view member) const;
    ComPtr<IDispatch> object_;
};

}  // namespace win::com
