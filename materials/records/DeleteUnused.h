#pragma once
#include <cstdint>
#include <vector>

#include "support/Error.h"

namespace materials {

// Deletes every material or render style of a collection that the host lets go: those in
// use are refused by the host and stay. The items are read first and deleted after, so
// that no deletion makes the walk skip the item behind it.
template <class Collection>
void DeleteEveryUnused(Collection& collection) {
    std::vector<decltype(collection.Item(1))> items;
    for (std::int32_t i = 1; i <= collection.Count(); ++i) items.push_back(collection.Item(i));
    for (auto& item : items) {
        try {
            item->Delete();
        } catch (const support::Error&) {
        }
    }
}

}  // namespace materials
