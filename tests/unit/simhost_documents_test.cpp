#include <functional>
#include <nlohmann/json.hpp>
#include <vector>

#include "host/Codes.h"
#include "host/Component.h"
#include "host/Properties.h"
#include "host/Styles.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using DocumentsTest = SimHostTest;
namespace errors = support::errors;

TEST_F(DocumentsTest, OpenLoadsReferencesAndVisibleOpenMakesActive) {
    auto app = host.Application();
    EXPECT_EQ(app->ActiveDocument(), nullptr);
    auto part = host.Open("C:\\Work\\Spur Gear.ipt", false);
    EXPECT_EQ(app->ActiveDocument(), nullptr);
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    EXPECT_EQ(app->ActiveDocument(), top);
    // The top, its two sub-assemblies and the seven parts they use, each once.
    EXPECT_EQ(app->Documents()->Count(), 10);
    EXPECT_EQ(top->DocumentType(), host::kAssemblyDocumentObject);
    EXPECT_EQ(top->Type(), host::kAssemblyDocumentObjectType);
    EXPECT_EQ(top->DisplayName(), "Gearbox.iam");
    EXPECT_FALSE(top->Dirty());

    auto refs = top->ReferencedDocuments();
    ASSERT_EQ(refs.size(), 4u);  // Hex Bolt is placed twice but listed once
    EXPECT_EQ(refs[0]->FullFileName(), "C:\\Work\\Housing.iam");
    EXPECT_EQ(refs[3]->FullFileName(), "C:\\Work\\Hex Bolt M8x20.ipt");
    auto shaft = refs[1]->ComponentDefinition()->Occurrences()->Item(4)->Definition()->Document();
    EXPECT_EQ(shaft, part);  // the part opened first is the one the assembly uses

    EXPECT_EQ(observer.lines, (std::vector<std::string>{"opened invisibly C:\\Work\\Spur Gear.ipt",
                                                        "opened C:\\Work\\Gearbox.iam"}));
    auto drawing = host.Open("C:\\Work\\Gearbox.idw", false);
    EXPECT_EQ(drawing->ReferencedDocuments(), std::vector<host::DocumentPtr>{top});
    EXPECT_EQ(ErrorOf([&] { drawing->ComponentDefinition(); }).Number(), errors::kFail);
    EXPECT_EQ(ErrorOf([&] { host.Open("C:\\Work\\None.iam"); }).Number(), errors::kFileNotFound);
    EXPECT_EQ(ErrorOf([&] { host.Open(""); }).Number(), errors::kFileNotFound);
}

TEST_F(DocumentsTest, ClosingTheTopDropsWhatOnlyItKeptLoaded) {
    auto app = host.Application();
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto bolt = host.Open("C:\\Work\\Hex Bolt M8x20.ipt", false);
    top->Close(true);
    EXPECT_EQ(app->ActiveDocument(), nullptr);
    ASSERT_EQ(app->Documents()->Count(), 1);
    EXPECT_EQ(app->Documents()->Item(1), bolt);
    bolt->Close();
    EXPECT_EQ(app->Documents()->Count(), 0);
    EXPECT_EQ(ErrorOf([&] { bolt->Save(); }).Number(), errors::kFail);
}

TEST_F(DocumentsTest, SaveCopyAsWritesTheInMemoryStateAndKeepsTheName) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    std::string original = ReadFile("Work/Gearbox.iam");
    auto bracket = top->ComponentDefinition()->Occurrences()->Item(3);
    bracket->Replace("C:\\Work\\Cover Plate.ipt", false);
    EXPECT_TRUE(top->Dirty());

    top->SaveAs("C:\\Work\\Gearbox Copy.iam", true);
    EXPECT_EQ(top->FullFileName(), "C:\\Work\\Gearbox.iam");
    EXPECT_TRUE(top->Dirty());
    EXPECT_EQ(ReadFile("Work/Gearbox.iam"), original);
    auto copy = nlohmann::json::parse(ReadFile("Work/Gearbox Copy.iam"));
    EXPECT_EQ(copy["occurrences"][2]["file"], "C:\\Work\\Cover Plate.ipt");
    EXPECT_EQ(copy["occurrences"][2]["name"], "Cover Plate:1");

    // The copy is a separate document once opened.
    auto opened = host.Open("C:\\Work\\Gearbox Copy.iam", false);
    EXPECT_NE(opened, top);
    // A copy may go over the file of another open document while that one is clean, never
    // over its unsaved edits; over its own file it is a save.
    top->SaveAs("C:\\Work\\gearbox copy.iam", true);
    opened->SetDisplayName("edited");
    ASSERT_TRUE(opened->Dirty());
    auto e = ErrorOf([&] { top->SaveAs("C:\\Work\\gearbox copy.iam", true); });
    EXPECT_NE(e.Description().find("is open as another document"), std::string::npos);
    EXPECT_NE(
        ErrorOf([&] { top->SaveAs("C:\\Work\\Gearbox Copy.iam", false); }).Description().find("is open"),
        std::string::npos);
    top->SaveAs("C:\\Work\\Gearbox.iam", true);
    EXPECT_FALSE(top->Dirty());
    EXPECT_EQ(ErrorOf([&] { top->SaveAs("C:\\Work\\Gearbox.ipt", true); }).Number(), errors::kInvalidArg);
}

TEST_F(DocumentsTest, SaveAsRenamesAndReferencesFollowTheDocument) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt", false);
    gear->SaveAs("C:\\Work\\Spur Gear 48T.ipt", false);
    EXPECT_EQ(gear->FullFileName(), "C:\\Work\\Spur Gear 48T.ipt");
    EXPECT_EQ(gear->DisplayName(), "Spur Gear 48T.ipt");
    EXPECT_EQ(host.Open("C:\\Work\\Spur Gear 48T.ipt", false), gear);
    EXPECT_NE(host.Open("C:\\Work\\Spur Gear.ipt", false), gear);  // the old file is another document now
    auto shaft = host.Open("C:\\Work\\Shaft Assembly.iam", false);
    shaft->SaveAs("C:\\Work\\Shaft 2.iam", true);
    auto copy = nlohmann::json::parse(ReadFile("Work/Shaft 2.iam"));
    EXPECT_EQ(copy["occurrences"][3]["file"], "C:\\Work\\Spur Gear 48T.ipt");
    (void)top;
}

// The clone: copies of sub-assemblies are changed in memory and reach the disk with the
// top's Save, referenced files first.
TEST_F(DocumentsTest, SaveWritesEveryDirtyReferencedDocument) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    auto housing = top->ComponentDefinition()->Occurrences()->Item(1);
    housing->Definition()->Document()->SaveAs("C:\\Work\\New Housing.iam", true);
    housing->Replace("C:\\Work\\New Housing.iam", false);
    auto newHousing = housing->Definition()->Document();
    EXPECT_EQ(newHousing->FullFileName(), "C:\\Work\\New Housing.iam");
    newHousing->ComponentDefinition()->Occurrences()->Item(2)->SetVisible(false);
    newHousing->SetDisplayName("");  // no change: stays clean
    observer.lines.clear();
    top->Save();
    EXPECT_EQ(observer.lines, (std::vector<std::string>{"written C:\\Work\\New Housing.iam",
                                                        "written C:\\Work\\Gearbox.iam"}));
    EXPECT_FALSE(newHousing->Dirty());
    EXPECT_EQ(nlohmann::json::parse(ReadFile("Work/New Housing.iam"))["occurrences"][1]["visible"], false);
    observer.lines.clear();
    top->Save();  // nothing changed: nothing written
    EXPECT_TRUE(observer.lines.empty());
}

TEST_F(DocumentsTest, CloseSavesUnlessToldToSkip) {
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt");
    gear->PropertySets()->Item(1)->ItemByPropId(2)->SetValue("Spur Gear 42T, hardened");
    gear->Close(true);
    EXPECT_EQ(
        nlohmann::json::parse(ReadFile("Work/Spur Gear.ipt"))["properties"]["Summary Information"]["Title"],
        "Spur Gear 42T");
    gear = host.Open("C:\\Work\\Spur Gear.ipt");
    EXPECT_EQ(gear->PropertySets()->Item(1)->ItemByPropId(2)->Value(), support::Variant("Spur Gear 42T"));
    gear->PropertySets()->Item(1)->ItemByPropId(2)->SetValue("Spur Gear 42T, hardened");
    gear->Close(false);
    EXPECT_EQ(
        nlohmann::json::parse(ReadFile("Work/Spur Gear.ipt"))["properties"]["Summary Information"]["Title"],
        "Spur Gear 42T, hardened");
}

TEST_F(DocumentsTest, NewDocumentsComeFromTemplatesAndNeedANameToSave) {
    auto app = host.Application();
    auto assembly = app->Documents()->Add(host::kAssemblyDocumentObject, "C:\\Templates\\Standard.iam", true);
    EXPECT_EQ(assembly->FullFileName(), "");
    EXPECT_EQ(assembly->DisplayName(), "Assembly1");
    EXPECT_EQ(app->ActiveDocument(), assembly);
    EXPECT_EQ(assembly->PropertySets()->Item(3)->Item(14)->Value(),
              support::Variant("Standard assembly template"));
    auto placed = assembly->ComponentDefinition()->Occurrences()->Add("C:\\Work\\Spur Gear.ipt",
                                                                      host::Matrix::Translation(1, 2, 3));
    EXPECT_EQ(placed->Name(), "Spur Gear:1");
    EXPECT_EQ(ErrorOf([&] { assembly->Save(); }).Number(), errors::kFail);
    assembly->SaveAs("C:\\Work\\Built.iam", false);
    EXPECT_EQ(assembly->FullFileName(), "C:\\Work\\Built.iam");
    EXPECT_EQ(nlohmann::json::parse(ReadFile("Work/Built.iam"))["occurrences"][0]["transform"],
              (nlohmann::json{1.0, 2.0, 3.0}));
    EXPECT_EQ(host.NewDocument(host::kPartDocumentObject)->DisplayName(), "Part1");
    auto e =
        ErrorOf([&] { app->Documents()->Add(host::kPartDocumentObject, "C:\\Templates\\Standard.iam"); });
    EXPECT_EQ(e.Number(), errors::kInvalidArg);
}

TEST_F(DocumentsTest, FileStateIsReportedAsTheFileSays) {
    WriteFile("Work/Locked.ipt",
              R"({"type": "part", "savedBy": 7, "reservedBy": "jhale", "disabledCommandTypes": 1})");
    WriteFile("Work/Library.ipt", R"({"type": "part", "modifiable": false})");
    WriteFile("Work/Future.ipt", R"({"type": "part", "savedBy": 11})");
    auto locked = host.Open("C:\\Work\\Locked.ipt");
    EXPECT_EQ(locked->SoftwareVersionSaved(), 7);
    EXPECT_FALSE(locked->IsModifiable());  // needs migration to release 9
    EXPECT_TRUE(locked->ReservedForWrite());
    EXPECT_EQ(locked->ReservedForWriteName(), "jhale");
    EXPECT_EQ(locked->DisabledCommandTypes(), 1);
    locked->SetDirty(true);
    EXPECT_EQ(ErrorOf([&] { locked->Save(); }).Number(), errors::kPermissionDenied);
    host.SetUserName("jhale");
    EXPECT_FALSE(locked->ReservedForWrite());
    EXPECT_EQ(locked->ReservedForWriteName(), "");
    locked->SetDisabledCommandTypes(0);
    locked->Save();  // migrated by saving
    EXPECT_TRUE(locked->IsModifiable());
    EXPECT_EQ(nlohmann::json::parse(ReadFile("Work/Locked.ipt"))["savedBy"], 9);
    EXPECT_FALSE(nlohmann::json::parse(ReadFile("Work/Locked.ipt")).contains("disabledCommandTypes"));

    EXPECT_FALSE(host.Open("C:\\Work\\Library.ipt")->IsModifiable());
    auto e = ErrorOf([&] { host.Open("C:\\Work\\Future.ipt"); });
    EXPECT_NE(e.Description().find("newer than this host"), std::string::npos);
}

TEST_F(DocumentsTest, DescribeShowsStateAndValues) {
    auto bracket = host.Open("C:\\Work\\Motor Bracket.ipt");
    bracket->SetDisabledCommandTypes(1);
    std::string text = host.DescribeDocument("C:\\Work\\Motor Bracket.ipt");
    EXPECT_EQ(text.substr(0, text.find('\n')), "C:\\Work\\Motor Bracket.ipt: part, active, dirty");
    EXPECT_NE(text.find("\nlock: 1\n"), std::string::npos);
    EXPECT_NE(text.find("material: Steel, Mild, volume: 64.8 cm^3, render style: Safety Orange\n"),
              std::string::npos);
    EXPECT_NE(text.find("Design Tracking Properties/Cost: currency 38.5000\n"), std::string::npos);
    EXPECT_NE(text.find("User Defined Properties/Weld Inspection: boolean True\n"), std::string::npos);
    EXPECT_NE(text.find("eMatrix/Commodity Code: text \"FAB\"\n"), std::string::npos);
    std::string disk = host.DescribeDocument("C:\\Work\\Gearbox.idw");
    EXPECT_EQ(disk.substr(0, disk.find('\n')), "C:\\Work\\Gearbox.idw: drawing, on disk");
    EXPECT_NE(disk.find("model: C:\\Work\\Gearbox.iam\n"), std::string::npos);
}

}  // namespace
}  // namespace simhost_test

namespace simhost_test {
namespace {

// Latin-1 typed into a field is not UTF-8: each way text enters a document refuses it,
// naming the file, and leaves the document as it was, so that its save cannot fail later.
TEST_F(DocumentsTest, TextThatIsNotUtf8IsRefusedWhereItEnters) {
    auto part = host.Open("C:\\Work\\Spur Gear.ipt");
    const std::string latin1 = "Caf\xe9";
    auto title = part->PropertySets()->Item("{F29F85E0-4FF9-1068-AB91-08002B27B3D9}")->ItemByPropId(2);
    std::vector<std::function<void()>> entries = {
        [&] { title->SetValue(support::Variant(latin1)); },
        [&] { part->SetDisplayName(latin1); },
        [&] { part->PropertySets()->Add(latin1, ""); },
        [&] { part->ComponentDefinition()->AttributeSets()->Add(latin1); },
        [&] { part->Materials()->Add(latin1, 0.001); },
        [&] { part->RenderStyles()->Add(latin1); },
    };
    for (auto& enter : entries) {
        auto e = ErrorOf(enter);
        EXPECT_NE(e.Description().find("C:\\Work\\Spur Gear.ipt"), std::string::npos) << e.Description();
    }
    EXPECT_FALSE(part->Dirty());
    part->SetDisplayName("Caf\xc3\xa9");  // the same word in UTF-8 is taken
    part->Save();
}

}  // namespace
}  // namespace simhost_test
