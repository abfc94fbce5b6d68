#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/Variant.h"
#include "win/com/ComPtr.h"
#include "win/com/Ole.h"

namespace win::com {

// One positional argument: a value, or left out (an optional parameter the callee defaults).
class Argument {
public:
    Argument(support::Variant value) : value_(std::move(value)) {}
    template <class T>
    Argument(T value) : value_(support::Variant(std::move(value))) {}
    static Argument Missing() { return Argument(); }
    const std::optional<support::Variant>& Value() const { return value_; }

private:
    Argument() = default;
    std::optional<support::Variant> value_;
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
