#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "host/Styles.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using OccurrencesTest = SimHostTest;
namespace errors = support::errors;

std::vector<std::string> Names(host::ComponentOccurrences& list) {
    std::vector<std::string> out;
    for (int i = 1; i <= list.Count(); ++i) out.push_back(list.Item(i)->Name());
    return out;
}

TEST_F(OccurrencesTest, NamesAreUniqueInTheirParentAndEmptyRestoresTheDefault) {
    auto housing = host.Open("C:\\Work\\Housing.iam");
    auto list = housing->ComponentDefinition()->Occurrences();
    auto bolt3 = list->Item(5);
    auto e = ErrorOf([&] { bolt3->SetName("Hex Bolt M8x20:1"); });
    EXPECT_EQ(e.Number(), errors::kInvalidArg);
    EXPECT_EQ(bolt3->Name(), "Hex Bolt M8x20:3");
    EXPECT_FALSE(housing->Dirty());

    list->Item(3)->SetName("Bolt A");
    bolt3->SetName("Hex Bolt M8x20:1");  // free now
    bolt3->SetName("");                  // the smallest free number
    EXPECT_EQ(bolt3->Name(), "Hex Bolt M8x20:1");
    list->Item(3)->SetName("");
    EXPECT_EQ(list->Item(3)->Name(), "Hex Bolt M8x20:3");
    EXPECT_TRUE(housing->Dirty());
    // A name taken in another assembly is free here.
    auto gearbox = host.Open("C:\\Work\\Gearbox.iam");
    gearbox->ComponentDefinition()->Occurrences()->Item(4)->SetName("Cover Plate:1");
}

TEST_F(OccurrencesTest, ReplaceOneOrAllOfTheSameFileInTheParent) {
    auto housing = host.Open("C:\\Work\\Housing.iam");
    auto list = housing->ComponentDefinition()->Occurrences();
    list->Item(4)->SetName("Front bolt");
    list->Item(3)->Replace("C:\\Work\\Input Shaft.ipt", false);
    EXPECT_EQ(Names(*list), (std::vector<std::string>{"Housing Casting:1", "Cover Plate:1", "Input Shaft:1",
                                                      "Front bolt", "Hex Bolt M8x20:3", "Hex Bolt M8x20:4"}));
    list->Item(5)->Replace("C:\\Work\\Spur Gear.ipt", true);
    // Every remaining bolt moved; the named one kept its name.
    EXPECT_EQ(Names(*list), (std::vector<std::string>{"Housing Casting:1", "Cover Plate:1", "Input Shaft:1",
                                                      "Front bolt", "Spur Gear:1", "Spur Gear:2"}));
    EXPECT_EQ(list->Item(4)->Definition()->Document()->FullFileName(), "C:\\Work\\Spur Gear.ipt");
    // No longer used by anyone, the bolt is no longer loaded.
    auto docs = host.Application()->Documents();
    for (int i = 1; i <= docs->Count(); ++i)
        EXPECT_NE(docs->Item(i)->FullFileName(), "C:\\Work\\Hex Bolt M8x20.ipt");

    EXPECT_EQ(ErrorOf([&] { list->Item(1)->Replace("C:\\Work\\Housing.iam", false); }).Number(),
              errors::kInvalidArg);
    EXPECT_EQ(ErrorOf([&] { list->Item(1)->Replace("C:\\Work\\None.ipt", false); }).Number(),
              errors::kFileNotFound);
    EXPECT_EQ(list->Item(1)->Name(), "Housing Casting:1");
}

TEST_F(OccurrencesTest, ProxiesComposeTransformsAndKeepTheirIdentity) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto shaftAssembly = top->ComponentDefinition()->Occurrences()->Item(2);
    EXPECT_EQ(shaftAssembly->Type(), host::kComponentOccurrenceObject);
    auto gear = shaftAssembly->SubOccurrences()->Item(4);
    EXPECT_EQ(gear->Type(), host::kComponentOccurrenceProxyObject);
    EXPECT_EQ(gear->Name(), "Spur Gear:1");
    // Quarter turn about z and (4, 0, 6), applied to the gear's (0, 0, 10).
    host::Matrix expected = shaftAssembly->Transformation() * host::Matrix::Translation(0, 0, 10);
    EXPECT_EQ(gear->Transformation(), expected);
    EXPECT_EQ(gear->Transformation().cell[0][3], 4);
    EXPECT_EQ(gear->Transformation().cell[2][3], 16);
    EXPECT_EQ(gear->Transformation().cell[1][0], 1);

    // Asked for again, by any route, it is the same object.
    EXPECT_EQ(top->ComponentDefinition()->Occurrences()->Item(2)->SubOccurrences()->Item(4), gear);
    EXPECT_EQ(host.FindOccurrence("Shaft Assembly:1/Spur Gear:1"), gear);
    EXPECT_EQ(host.FindOccurrence("Shaft Assembly:1"), shaftAssembly);
    auto native = gear->Definition()->Document();
    EXPECT_EQ(native->FullFileName(), "C:\\Work\\Spur Gear.ipt");
    auto inSub = shaftAssembly->Definition()->Occurrences()->Item(4);
    EXPECT_NE(inSub, gear);  // the occurrence in the sub-assembly itself is not the proxy
    EXPECT_EQ(inSub->Transformation(), host::Matrix::Translation(0, 0, 10));

    // A proxy changes the occurrence it stands for, in its own assembly.
    gear->SetVisible(false);
    EXPECT_FALSE(inSub->Visible());
    EXPECT_TRUE(shaftAssembly->Definition()->Document()->Dirty());
    EXPECT_FALSE(top->Dirty());
    EXPECT_EQ(ErrorOf([&] { host.FindOccurrence("Shaft Assembly:1/Nut:1"); }).Number(), errors::kFail);
}

// A default name is the smallest number free, however the numbers above it were taken
// and freed: by adding, renaming, deleting, and an occurrence keeping its own.
TEST_F(OccurrencesTest, ADefaultNameIsTheSmallestNumberFree) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto list = top->ComponentDefinition()->Occurrences();
    std::vector<std::shared_ptr<host::ComponentOccurrence>> gears;
    for (int i = 0; i < 5; ++i) gears.push_back(list->Add("C:\\Work\\Spur Gear.ipt", {}));
    EXPECT_EQ(gears[4]->Name(), "Spur Gear:5");
    gears[1]->SetName("Mine");  // frees :2
    EXPECT_EQ(list->Add("C:\\Work\\Spur Gear.ipt", {})->Name(), "Spur Gear:2");
    gears[0]->Delete();     // frees :1
    gears[3]->SetName("");  // :1 is smaller than its own :4
    EXPECT_EQ(gears[3]->Name(), "Spur Gear:1");
    gears[1]->SetName("");
    EXPECT_EQ(gears[1]->Name(), "Spur Gear:4");
    EXPECT_EQ(list->Add("C:\\Work\\Spur Gear.ipt", {})->Name(), "Spur Gear:6");
    gears[3]->SetName("");  // every number below 7 is taken, its own :1 among them
    EXPECT_EQ(gears[3]->Name(), "Spur Gear:1");
}

TEST_F(OccurrencesTest, AddAndDeleteKeepTheTreeConsistent) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto list = top->ComponentDefinition()->Occurrences();
    auto bolt2 = list->Item(5);
    bolt2->Delete();
    EXPECT_EQ(list->Count(), 4);
    EXPECT_EQ(ErrorOf([&] { bolt2->Name(); }).Number(), errors::kFail);
    auto added = list->Add("C:\\Work\\Hex Bolt M8x20.ipt", host::Matrix::Translation(1, 1, 1));
    EXPECT_EQ(added->Name(), "Hex Bolt M8x20:2");
    EXPECT_EQ(ErrorOf([&] { list->Add("C:\\Work\\Gearbox.iam", {}); }).Number(), errors::kInvalidArg);
    auto part = host.Open("C:\\Work\\Spur Gear.ipt", false);
    EXPECT_EQ(part->ComponentDefinition()->Occurrences()->Count(), 0);
    EXPECT_EQ(host.DescribeTree("C:\\Work\\Gearbox.iam"),
              "C:\\Work\\Gearbox.iam\n"
              "  Housing:1 -> C:\\Work\\Housing.iam grounded\n"
              "    Housing Casting:1 -> C:\\Work\\Housing Casting.ipt grounded\n"
              "    Cover Plate:1 -> C:\\Work\\Cover Plate.ipt\n"
              "    Hex Bolt M8x20:1 -> C:\\Work\\Hex Bolt M8x20.ipt\n"
              "    Hex Bolt M8x20:2 -> C:\\Work\\Hex Bolt M8x20.ipt\n"
              "    Hex Bolt M8x20:3 -> C:\\Work\\Hex Bolt M8x20.ipt\n"
              "    Hex Bolt M8x20:4 -> C:\\Work\\Hex Bolt M8x20.ipt\n"
              "  Shaft Assembly:1 -> C:\\Work\\Shaft Assembly.iam\n"
              "    Input Shaft:1 -> C:\\Work\\Input Shaft.ipt grounded\n"
              "    Bearing 6204:1 -> C:\\Work\\Bearing 6204.ipt\n"
              "    Bearing 6204:2 -> C:\\Work\\Bearing 6204.ipt\n"
              "    Spur Gear:1 -> C:\\Work\\Spur Gear.ipt\n"
              "  Motor Bracket:1 -> C:\\Work\\Motor Bracket.ipt\n"
              "  Hex Bolt M8x20:1 -> C:\\Work\\Hex Bolt M8x20.ipt\n"
              "  Hex Bolt M8x20:2 -> C:\\Work\\Hex Bolt M8x20.ipt\n");
}

TEST_F(OccurrencesTest, MassIsDensityTimesVolumeSummedOverTheTree) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto bearing = host.Open("C:\\Work\\Bearing 6204.ipt", false);
    EXPECT_NEAR(bearing->ComponentDefinition()->MassProperties()->Mass(), 7.85 * 13.5 / 1000, 1e-12);
    auto shaft = host.Open("C:\\Work\\Shaft Assembly.iam", false);
    double shaftKg = (7.73 * 96.4 + 2 * 7.85 * 13.5 + 7.73 * 142.0) / 1000;
    EXPECT_NEAR(shaft->ComponentDefinition()->MassProperties()->Mass(), shaftKg, 1e-9);
    double housingKg = (7.25 * 1850.0 + 2.7 * 210.5 + 4 * 7.85 * 1.32) / 1000;
    double bracketKg = 7.86 * 64.8 / 1000;
    auto mass = top->ComponentDefinition()->MassProperties();
    EXPECT_NEAR(mass->Mass(), housingKg + shaftKg + bracketKg + 2 * 7.85 * 1.32 / 1000, 1e-9);

    auto units = top->UnitsOfMeasure();
    EXPECT_EQ(units->GetStringFromValue(1.2345, host::kDefaultDisplayMassUnits), "1.234 kg");
    EXPECT_EQ(units->GetStringFromValue(1.5, host::kGramMassUnits), "1500.000 g");
    EXPECT_EQ(units->GetStringFromValue(0.45359237, host::kLbMassMassUnits), "1.000 lbmass");
    units->SetMassUnits(host::kLbMassMassUnits);
    EXPECT_EQ(units->GetStringFromValue(0.45359237, host::kDefaultDisplayMassUnits), "1.000 lbmass");
    EXPECT_DOUBLE_EQ(units->GetValueFromExpression("2 kg", host::kDefaultDisplayMassUnits), 2.0);
    EXPECT_DOUBLE_EQ(units->GetValueFromExpression("4.4 lbmass", host::kKilogramMassUnits), 4.4 * 0.45359237);
    EXPECT_DOUBLE_EQ(units->GetValueFromExpression(" 500 g ", host::kKilogramMassUnits), 0.5);
    EXPECT_DOUBLE_EQ(units->GetValueFromExpression("3", host::kGramMassUnits), 0.003);
    for (const char* nonsense : {"", "kg", "2 stone", "two kg", "2 mm", "2 kg kg"})
        EXPECT_EQ(
            ErrorOf([&] { units->GetValueFromExpression(nonsense, host::kKilogramMassUnits); }).Number(),
            errors::kInvalidArg)
            << nonsense;

    WriteFile("Work/Unknown.ipt", R"({"type": "part", "material": "Unobtainium", "volume": 2})");
    auto unknown = host.Open("C:\\Work\\Unknown.ipt", false);
    EXPECT_EQ(ErrorOf([&] { unknown->ComponentDefinition()->MassProperties(); }).Number(), errors::kFail);
}

TEST_F(OccurrencesTest, IPartMembersCanBeBrokenFromTheirFactory) {
    WriteFile("Work/Bolt-M10.ipt", R"({"type": "part", "iPartFactory": "C:\\Work\\Bolt Factory.ipt"})");
    auto member = host.Open("C:\\Work\\Bolt-M10.ipt");
    auto definition = member->ComponentDefinition();
    EXPECT_TRUE(definition->IsiPartMember());
    definition->BreakLinkToFactory();
    EXPECT_FALSE(definition->IsiPartMember());
    EXPECT_TRUE(member->Dirty());
    EXPECT_EQ(ErrorOf([&] { definition->BreakLinkToFactory(); }).Number(), errors::kFail);
}

}  // namespace
}  // namespace simhost_test
