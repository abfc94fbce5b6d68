#pragma once
#include <span>
#include <string>
#include <string_view>

namespace win::adapter {

// One member of the host's automation interface that the adapter calls: the object it
// belongs to, its name (or DISPID), how it is called, its arguments and what comes back.
// The adapter calls nothing this list does not name, and docs/host-calls.md is made from it.
struct HostMember {
    const char* object;
    const char* member;
    const char* access;     // get, put, get/put, putref, call, event
    const char* arguments;  // as the host names them; [optional]
    const char* returns;
};

std::span<const HostMember> HostMembers();
// Throws std::logic_error unless the list names object.member: a call the adapter would
// make outside the list is a fault of the adapter, found by the first test that makes it.
void RequireListed(std::string_view object, std::string_view member);
// The list as docs/host-calls.md shows it.
std::string HostMembersMarkdown();

}  // namespace win::adapter
