#pragma once
#include <map>
#include <memory>
#include <string>
#include <typeindex>
#include <utility>

#include "support/Variant.h"
#include "win/com/Dispatch.h"

namespace win::adapter {

using com::Argument;
using com::Arguments;

// What every adapted object shares: the host application, which some members need beside
// their own object (a new matrix comes from its TransientGeometry, the templates folder from
// its FileOptions).
//
// It also keeps the adapted object of each host object while the add-in holds it: one host
// object is one object to the add-in, as it is to a script comparing two references with Is.
struct AdapterContext {
    com::Dispatch application{nullptr};
    mutable std::map<std::pair<IUnknown*, std::type_index>, std::weak_ptr<void>> adapted;
};
using Context = std::shared_ptr<const AdapterContext>;

// One host object reached by late binding, as an object of a named kind ("Document"): each
// call names a member of host-calls' list for that kind.
class Remote {
public:
    Remote(const char* kind, com::ComPtr<IDispatch> object, Context context)
        : kind_(kind), object_(std::move(object)), context_(std::move(context)) {}

    support::Variant Get(const char* member, const Arguments& args = {}) const;
    support::Variant Call(const char* member, const Arguments& args = {}) const;
    void Put(const char* member, const support::Variant& value) const;
    // A property with arguments, such as a matrix's Cell(Row, Column).
    void Put(const char* member, const Arguments& args, const support::Variant& value) const;
    void PutRef(const char* member, const support::Variant& object) const;
    // A member the host's interface fixes by number; `member` is its name in the list.
    support::Variant Invoke(DISPID id, WORD flags, const char* member, const Arguments& args = {}) const;
    void PutById(DISPID id, const char* member, const support::Variant& value) const;

    std::string Text(const char* member) const { return Get(member).ToText(); }
    std::int32_t Long(const char* member) const;
    double Real(const char* member) const { return Get(member).ToDouble(); }
    bool Flag(const char* member) const { return Get(member).ToBool(); }

    const com::Dispatch& Object() const { return object_; }
    const Context& Shared() const { return context_; }

private:
    const char* kind_;
    com::Dispatch object_;
    Context context_;
};

// A host value as a Long, as the host's enums and counts are.
std::int32_t ToLong(const support::Variant& value);
// The IDispatch of an object value; null for Nothing.
com::ComPtr<IDispatch> DispatchOf(const support::Variant& value);

}  // namespace win::adapter
