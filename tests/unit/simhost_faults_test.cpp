#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using FaultsTest = SimHostTest;
namespace errors = support::errors;

TEST_F(FaultsTest, AFailingSaveOfOneFileLeavesItAndTheRestAsTheyWere) {
    host.FailSaveOf("c:\\work\\SPUR GEAR.ipt");
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt");
    std::string before = ReadFile("Work/Spur Gear.ipt");
    gear->SetDirty(true);
    auto e = ErrorOf([&] { gear->Save(); });
    EXPECT_EQ(e.Description(), "Cannot save C:\\Work\\Spur Gear.ipt");
    EXPECT_TRUE(gear->Dirty());
    EXPECT_EQ(ReadFile("Work/Spur Gear.ipt"), before);
    EXPECT_EQ(ErrorOf([&] {
                  host.Open("C:\\Work\\Cover Plate.ipt")->SaveAs("C:\\Work\\Spur Gear.ipt", true);
              }).Number(),
              errors::kFail);
    auto files = host.Application()->FileManager();
    EXPECT_EQ(ErrorOf([&] {
                  files->CopyFile("C:\\Work\\Cover Plate.ipt", "C:\\Work\\Spur Gear.ipt", 32);
              }).Number(),
              errors::kFail);
    EXPECT_EQ(ReadFile("Work/Spur Gear.ipt"), before);
    gear->SaveAs("C:\\Work\\Spur Gear 2.ipt", true);  // other files still save
    EXPECT_TRUE(fs::exists(OnDisk("Work/Spur Gear 2.ipt")));
}

// Save goes referenced-first: a failing part stops the save before its assembly is written.
TEST_F(FaultsTest, ASaveThatFailsPartWayKeepsWhatWasWritten) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    host.FindOccurrence("Housing:1/Cover Plate:1")->Definition()->Document()->SetDirty(true);
    host.FindOccurrence("Shaft Assembly:1/Spur Gear:1")->SetVisible(false);
    top->SetDirty(true);
    host.FailSaveOf("C:\\Work\\Shaft Assembly.iam");
    observer.lines.clear();
    EXPECT_EQ(ErrorOf([&] { top->Save(); }).Number(), errors::kFail);
    EXPECT_EQ(observer.lines, std::vector<std::string>{"written C:\\Work\\Cover Plate.ipt"});
    EXPECT_TRUE(top->Dirty());
}

TEST_F(FaultsTest, ADiskThatRefusesWritesRefusesEverything) {
    auto top = host.Open("C:\\Work\\Gearbox.iam");
    host.RefuseWrites(true);
    auto& files = host.FileSystem();
    top->SetDirty(true);
    EXPECT_EQ(ErrorOf([&] { top->Save(); }).Number(), errors::kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { top->SaveAs("C:\\Work\\Other.iam", true); }).Number(), errors::kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files.WriteText("C:\\Work\\log.txt", "x"); }).Number(),
              errors::kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files.DeleteFile("C:\\Work\\Gearbox.idw"); }).Number(),
              errors::kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files.CopyFile("C:\\Work\\Gearbox.idw", "C:\\Work\\G2.idw", true); }).Number(),
              errors::kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files.CreateFolder("C:\\New"); }).Number(), errors::kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { files.SetReadOnly("C:\\Work\\Gearbox.idw", true); }).Number(),
              errors::kPermissionDenied);
    EXPECT_FALSE(fs::exists(OnDisk("Work/Other.iam")));
    EXPECT_TRUE(fs::exists(OnDisk("Work/Gearbox.idw")));
    EXPECT_TRUE(top->Dirty());
    EXPECT_EQ(ErrorOf([&] { top->Close(false); }).Number(), errors::kPermissionDenied);
    EXPECT_EQ(host.Application()->ActiveDocument(), top);  // a close that could not save keeps it open
    host.RefuseWrites(false);
    top->Close(false);
    EXPECT_EQ(host.Application()->Documents()->Count(), 0);
}

TEST_F(FaultsTest, AReadOnlyFileCannotBeSaved) {
    auto gear = host.Open("C:\\Work\\Spur Gear.ipt");
    host.FileSystem().SetReadOnly("C:\\Work\\Spur Gear.ipt", true);
    gear->SetDirty(true);
    auto e = ErrorOf([&] { gear->Save(); });
    EXPECT_EQ(e.Description(), "Permission denied: C:\\Work\\Spur Gear.ipt is read-only");
    // A copy carries the read-only attribute, as the host's copy does.
    host.Application()->FileManager()->CopyFile("C:\\Work\\Spur Gear.ipt", "C:\\Work\\Copy.ipt", 0);
    EXPECT_TRUE(host.FileSystem().IsReadOnly("C:\\Work\\Copy.ipt"));
}

}  // namespace
}  // namespace simhost_test
