#include "purge/walk/StylePurge.h"

#include <memory>
#include <vector>

#include "host/Codes.h"
#include "host/Document.h"
#include "host/Styles.h"
#include "support/Error.h"

namespace purge {

namespace {

// Release 9 keeps materials in every document; earlier releases only in parts.
constexpr std::int32_t kMaterialsEverywhereFrom = 9;

template <class Body>
void IgnoringErrors(Body&& body) {
    try {
        body();
    } catch (const support::Error&) {
    }
}

template <class Style>
bool Unused(Style& style) {
    auto location = style.StyleLocation();
    bool local = location == host::kLocalStyleLocation || location == host::kBothStyleLocation;
    return local && !style.InUse();
}

// Every item first, then the deletions: deleting while walking the collection would
// skip the item after each one deleted.
template <class Collection>
void DeleteUnused(Collection& collection) {
    std::vector<decltype(collection.Item(1))> items;
    for (std::int32_t i = 1; i <= collection.Count(); ++i) items.push_back(collection.Item(i));
    for (auto& item : items)
        IgnoringErrors([&] {
            if (Unused(*item)) item->Delete();
        });
}

}  // namespace

void PurgeStyles(host::Document& document, std::int32_t hostVersion) {
    if (document.DocumentType() == host::kPartDocumentObject || hostVersion >= kMaterialsEverywhereFrom)
        IgnoringErrors([&] { DeleteUnused(*document.Materials()); });
    IgnoringErrors([&] { DeleteUnused(*document.RenderStyles()); });
}

}  // namespace purge
