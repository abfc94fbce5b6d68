#include "simhost/PropertyIndex.h"

#include <algorithm>
#include <limits>

namespace simhost {

void PropertyIndex::Sync(const std::vector<StoredProperty>& list, bool force) {
    if (!force && size_ == list.size()) return;
    byId_.clear();
    byName_.clear();
    maxId_ = std::numeric_limits<std::int32_t>::min();
    for (std::size_t i = 0; i < list.size(); ++i) {
        byId_.try_emplace(list[i].id, i);  // the first of a kind, as a search from the front finds
        byName_.try_emplace(list[i].name, i);
        maxId_ = std::max(maxId_, list[i].id);
    }
    size_ = list.size();
}

const StoredProperty* PropertyIndex::ById(const std::vector<StoredProperty>& list, std::int32_t id) {
    for (bool force : {false, true}) {
        Sync(list, force);
        auto it = byId_.find(id);
        if (it == byId_.end()) return nullptr;
        if (it->second < list.size() && list[it->second].id == id) return &list[it->second];
    }
    return nullptr;
}

const StoredProperty* PropertyIndex::ByName(const std::vector<StoredProperty>& list,
                                            const std::string& name) {
    for (bool force : {false, true}) {
        Sync(list, force);
        auto it = byName_.find(name);
        if (it == byName_.end()) return nullptr;
        if (it->second < list.size() && list[it->second].name == name) return &list[it->second];
    }
    return nullptr;
}

void PropertyIndex::NoteAppended(const std::vector<StoredProperty>& list) {
    if (list.empty() || size_ + 1 != list.size()) return;  // not indexed yet: built when asked
    const StoredProperty& added = list.back();
    byId_.try_emplace(added.id, list.size() - 1);
    byName_.try_emplace(added.name, list.size() - 1);
    maxId_ = size_ == 0 ? added.id : std::max(maxId_, added.id);
    size_ = list.size();
}

std::int32_t PropertyIndex::MaxId(const std::vector<StoredProperty>& list, std::int32_t floor) {
    Sync(list);
    return list.empty() ? floor : std::max(floor, maxId_);
}

}  // namespace simhost
