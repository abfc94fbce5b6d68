// The property table: every address reaches the property it names, and the row reader
// and the input-box edit behave on what the host gives.
#include <gtest/gtest.h>

#include "addin_state_fixture.h"
#include "host/Codes.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "properties/table/PropertyEdits.h"
#include "properties/table/PropertyTable.h"

namespace {

using namespace properties;
using ui::headless::Prompt;

class PropertyTableTest : public addin_test::AddinStateTest {};

TEST_F(PropertyTableTest, EachAddressReachesTheNamedProperty) {
    auto bolt = host.Open("C:\\Work\\Hex Bolt M8x20.ipt");
    const std::pair<PropertyAddress, const char*> expected[] = {
        {kTitle, "Title"},
        {kKeywords, "Keywords"},
        {kRevisionNumber, "Revision Number"},
        {kPartNumber, "Part Number"},
        {kMaterial, "Material"},
        {kDescription, "Description"},
        {kVendor, "Vendor"},
        {kCost, "Cost"},
        {kDescriptionById, "Description"},
    };
    for (const auto& [address, name] : expected) EXPECT_EQ(FindProperty(*bolt, address)->Name(), name);
}

TEST_F(PropertyTableTest, RowsOfADrawingShowWhatCannotBeReadAsEmptyOrNotAvailable) {
    auto drawing = host.Open("C:\\Work\\Gearbox.idw");
    auto rows = ReadPropertyRows(*drawing);
    EXPECT_EQ(rows[kFileNameRow].value, "Gearbox.idw");
    EXPECT_EQ(rows[kPathRow].value, "C:\\Work\\");
    EXPECT_EQ(rows[kColorRow].value, "");
    EXPECT_EQ(rows[kMassRow].value, kMassNotAvailable);
}

TEST_F(PropertyTableTest, MassFollowsTheDocumentsMassUnit) {
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt");
    EXPECT_EQ(ReadPropertyRows(*gear)[kMassRow].value, "1.098 kg");
    gear->UnitsOfMeasure()->SetMassUnits(host::kGramMassUnits);
    EXPECT_EQ(ReadPropertyRows(*gear)[kMassRow].value, "1097.660 g");
}

TEST_F(PropertyTableTest, CostAcceptsCurrencyAmountsOnlyAndStoresCurrency) {
    auto bolt = host.Open("C:\\Work\\Hex Bolt M8x20.ipt");
    const auto& cost = *FindTextEdit(kCostRow);
    const std::pair<const char*, std::int64_t> accepted[] = {
        {"12.5", 125000}, {"1,250", 12500000}, {"$3", 30000}, {" -0.25 ", -2500}, {"1.00005", 10001}};
    for (const auto& [typed, scaled] : accepted) {
        Answer(Prompt::InputBox, typed);
        EXPECT_TRUE(EditInInputBox(platform, *bolt, cost)) << typed;
        auto value = ReadProperty(*bolt, kCost);
        ASSERT_NE(value.As<support::Currency>(), nullptr) << typed;
        EXPECT_EQ(value.As<support::Currency>()->scaled, scaled) << typed;
    }
    // Not numeric, or numeric beyond the currency range: refused, the cost kept.
    for (const char* typed : {"abc", "12.5.1", "1e30"}) {
        Answer(Prompt::InputBox, typed);
        EXPECT_FALSE(EditInInputBox(platform, *bolt, cost)) << typed;
        EXPECT_EQ(ReadProperty(*bolt, kCost).As<support::Currency>()->scaled, 10001) << typed;
    }
    EXPECT_NE(out.str().find(kNotCurrency), std::string::npos);
}

}  // namespace
