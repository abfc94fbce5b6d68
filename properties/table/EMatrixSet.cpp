#include "properties/table/EMatrixSet.h"

#include <string>
#include <tuple>
#include <vector>

#include "host/Document.h"
#include "host/Properties.h"
#include "properties/table/PropertyTable.h"
#include "support/Error.h"
#include "support/Variant.h"

namespace properties {

namespace {

template <class Body>
void IgnoringErrors(Body&& body) {
    try {
        body();
    } catch (const support::Error&) {
    }
}

}  // namespace

void RebuildEMatrixSet(host::Document& document) {
    auto sets = document.PropertySets();
    if (!sets->PropertySetExists(kEMatrixName)) return;
    auto set = sets->Item(kEMatrixName);

    std::vector<std::tuple<std::string, support::Variant, std::int32_t>> rows;
    for (std::int32_t i = 1; i <= set->Count(); ++i) {
        auto property = set->Item(i);
        rows.emplace_back(property->Name(), property->Value(), property->PropId());
    }
    for (std::int32_t i = set->Count(); i >= 1; --i) IgnoringErrors([&] { set->Item(i)->Delete(); });
    set->Delete();

    auto rebuilt = sets->Add(kEMatrixName, kEMatrixId);
    for (const auto& row : rows)
        IgnoringErrors([&] { rebuilt->Add(std::get<1>(row), std::get<0>(row), std::get<2>(row)); });
}

}  // namespace properties
