#include "simhost/HostCalls.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace simhost {

namespace {
std::vector<const char*>& Names() {
    static std::vector<const char*> names;
    return names;
}
}  // namespace

std::size_t HostCalls::Register(const char* member) {
    auto& names = Names();
    for (std::size_t id = 0; id < names.size(); ++id)
        if (std::strcmp(names[id], member) == 0) return id;  // an overload shares its member's counter
    if (names.size() == kMaxMembers) throw std::logic_error("too many host members to count");
    names.push_back(member);
    return names.size() - 1;
}

void HostCalls::Start() {
    std::fill(std::begin(counts_), std::end(counts_), 0);
    counting_ = true;
}

std::vector<std::pair<std::string, std::uint64_t>> HostCalls::Counts() {
    std::vector<std::pair<std::string, std::uint64_t>> counts;
    const auto& names = Names();
    for (std::size_t id = 0; id < names.size(); ++id)
        if (counts_[id]) counts.emplace_back(names[id], counts_[id]);
    std::sort(counts.begin(), counts.end());
    return counts;
}

std::uint64_t HostCalls::Total() {
    std::uint64_t total = 0;
    for (auto count : counts_) total += count;
    return total;
}

}  // namespace simhost
