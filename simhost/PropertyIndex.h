#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "simhost/DocData.h"

namespace simhost {

// Where each stored property of one set lies, by identifier and by name, so that a set of
// tens of thousands of properties answers a look-up in constant time. Built on first use;
// the document drops it when properties are added or removed. A hit is checked against the
// list and a list of another length is indexed again, so a missed drop costs a rebuild,
// not a wrong answer.
class PropertyIndex {
public:
    const StoredProperty* ById(const std::vector<StoredProperty>& list, std::int32_t id);
    const StoredProperty* ByName(const std::vector<StoredProperty>& list, const std::string& name);
    // The largest identifier in the list, or `floor` when none is larger.
    std::int32_t MaxId(const std::vector<StoredProperty>& list, std::int32_t floor);
    // The list's last property was just added.
    void NoteAppended(const std::vector<StoredProperty>& list);

private:
    void Sync(const std::vector<StoredProperty>& list, bool force = false);

    std::size_t size_ = static_cast<std::size_t>(-1);
    std::unordered_map<std::int32_t, std::size_t> byId_;
    std::unordered_map<std::string, std::size_t> byName_;
    std::int32_t maxId_ = 0;
};

}  // namespace simhost
