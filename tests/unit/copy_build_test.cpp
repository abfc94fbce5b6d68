#include "copy/modBuildAssembly.h"
#include "copy_fixture.h"
#include "host/Codes.h"
#include "host/Properties.h"
#include "properties/AttributeHelpers.h"

namespace copy_test {
namespace {

host::Matrix At(double x, double y, double z) {
    return host::Matrix::Translation(x, y, z);
}

// Arm:2 is turned a quarter about z: (x, y) becomes (-y, x), then moved to (50, 100).
host::Matrix InTurnedArm(double x, double y, double z) {
    host::Matrix m = At(50 - y, 100 + x, z);
    m.cell[0][0] = 0, m.cell[0][1] = -1, m.cell[1][0] = 1, m.cell[1][1] = 0;
    return m;
}

using BuildAssembly = CopyTest;

TEST_F(BuildAssembly, CollectsEveryVisiblePartAtAnyDepthAtItsTopLevelPosition) {
    auto frame = Open("C:\\Work\\Frame.iam");
    std::vector<copy::clsFileTrans> records;
    copy::modBuildAssembly::Collect(*frame->ComponentDefinition()->Occurrences(), records);

    std::vector<std::pair<std::string, host::Matrix>> expected;
    for (int i = 1; i <= 5; ++i) expected.push_back({"C:\\Work\\Bolt.ipt", At(10.0 * i, 0, 0)});
    // The hidden bracket is left out; each arm gives plate, vendor bolt and the hinge's pin.
    expected.push_back({"C:\\Work\\Plate.ipt", At(0, 105, 0)});
    expected.push_back({"C:\\Work\\Vendor\\Bolt.ipt", At(2, 102, 0)});
    expected.push_back({"C:\\Work\\Pin.ipt", At(1, 100, 10)});
    expected.push_back({"C:\\Work\\Plate.ipt", InTurnedArm(0, 5, 0)});
    expected.push_back({"C:\\Work\\Vendor\\Bolt.ipt", InTurnedArm(2, 2, 0)});
    expected.push_back({"C:\\Work\\Pin.ipt", InTurnedArm(1, 0, 10)});

    ASSERT_EQ(records.size(), expected.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        EXPECT_EQ(records[i].FullFileName, expected[i].first) << i;
        EXPECT_TRUE(records[i].Transformation == expected[i].second) << i << " " << records[i].FullFileName;
    }
}

TEST_F(BuildAssembly, PlacesTheRecordsGroundedInANewAssemblyFromTheTemplate) {
    auto frame = Open("C:\\Work\\Frame.iam");
    auto built = copy::modBuildAssembly::Build(*state, *frame->ComponentDefinition()->Occurrences());

    EXPECT_EQ(App().ActiveDocument(), built);
    EXPECT_EQ(built->FullFileName(), "");
    auto placed = built->ComponentDefinition()->Occurrences();
    ASSERT_EQ(placed->Count(), 11);
    for (std::int32_t i = 1; i <= placed->Count(); ++i) {
        auto occurrence = placed->Item(i);
        EXPECT_TRUE(occurrence->Grounded()) << i;
        EXPECT_EQ(occurrence->Definition()->Document()->DocumentType(), host::kPartDocumentObject);
    }
    EXPECT_TRUE(placed->Item(9)->Transformation() == InTurnedArm(0, 5, 0));
    EXPECT_EQ(placed->Item(9)->Definition()->Document()->FullFileName(), "C:\\Work\\Plate.ipt");

    // A second build starts from nothing: the same eleven parts, not twenty-two.
    auto again = copy::modBuildAssembly::Build(*state, *frame->ComponentDefinition()->Occurrences());
    EXPECT_NE(again, built);
    EXPECT_EQ(again->ComponentDefinition()->Occurrences()->Count(), 11);
}

TEST_F(BuildAssembly, WithoutItsTemplateNothingIsBuilt) {
    host.SetTemplatesPath("C:\\Missing\\");
    auto frame = Open("C:\\Work\\Frame.iam");
    EXPECT_THROW(copy::modBuildAssembly::Build(*state, *frame->ComponentDefinition()->Occurrences()),
                 support::Error);
    EXPECT_EQ(App().ActiveDocument(), frame);
}

using DrawingLink = CopyTest;

TEST_F(DrawingLink, WritesCreatesOrReplacesAndReadsBack) {
    auto plate = Open("C:\\Work\\Plate.ipt");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *plate, "IDWFile"), "");  // no set yet
    properties::SetAttribute(App(), "Tarnwell", *plate, "IDWFile", "Plate.idw");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *plate, "IDWFile"), "Plate.idw");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *plate, "IDWPath"), "");  // set without it
    properties::SetAttribute(App(), "Tarnwell", *plate, "IDWFile", "Plate Rev B.idw");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *plate, "IDWFile"), "Plate Rev B.idw");

    auto bracket = Open("C:\\Work\\Bracket.ipt");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *bracket, "IDWPath"), "C:\\Drawings\\");
    EXPECT_EQ(properties::GetAttribute("tarnwell", *bracket, "IDWPath"), "");
}

TEST_F(DrawingLink, APresentationIsNotLinkedAndADrawingSilentlyCarriesNothing) {
    auto presentation = host.NewDocument(host::kPresentationDocumentObject);
    properties::SetAttribute(App(), "Tarnwell", *presentation, "IDWFile", "x.idw");
    EXPECT_EQ(App().StatusBarText(), "Presentation Files are not linked");

    auto drawing = Open("C:\\Work\\Frame.idw");
    App().SetStatusBarText("");
    EXPECT_NO_THROW(properties::SetAttribute(App(), "Tarnwell", *drawing, "IDWFile", "x.idw"));
    EXPECT_EQ(App().StatusBarText(), "");
}

}  // namespace
}  // namespace copy_test
