#include "host/Codes.h"
#include "simhost_fixture.h"

namespace simhost_test {
namespace {

using DriveTest = SimHostTest;
namespace errors = support::errors;

TEST_F(DriveTest, LookUpIgnoresCaseAndKeepsTheStoredCase) {
    auto& files = host.FileSystem();
    EXPECT_TRUE(files.FileExists("c:\\WORK\\gearbox.IAM"));
    EXPECT_TRUE(files.FileExists("C:/Work/Gearbox.iam"));
    EXPECT_TRUE(files.FolderExists("c:\\work\\"));
    EXPECT_FALSE(files.FileExists("C:\\Work"));
    EXPECT_FALSE(files.FileExists("C:\\Work\\Gearbox.iam\\x"));

    auto doc = host.Open("c:\\work\\GEARBOX.iam");
    EXPECT_EQ(doc->FullFileName(), "C:\\Work\\Gearbox.iam");
    EXPECT_EQ(host.Open("C:\\Work\\.\\Sub\\..\\Gearbox.iam"), doc);  // the same document, not a second one

    // A new file keeps the case it was given; existing folders keep theirs.
    doc->SaveAs("c:\\work\\NEW Gearbox.iam", true);
    EXPECT_TRUE(fs::exists(OnDisk("Work/NEW Gearbox.iam")));
    EXPECT_EQ(observer.lines.back(), "written C:\\Work\\NEW Gearbox.iam");
}

TEST_F(DriveTest, CachedListingsSeeFilesMadeBehindTheHostsBack) {
    auto& files = host.FileSystem();
    EXPECT_FALSE(files.FileExists("C:\\Work\\Later.ipt"));
    WriteFile("Work/Later.ipt", R"({"type": "part"})");
    EXPECT_TRUE(files.FileExists("C:\\work\\later.IPT"));
    fs::remove(OnDisk("Work/Later.ipt"));
    EXPECT_FALSE(files.FileExists("C:\\Work\\Later.ipt"));
}

TEST_F(DriveTest, PathsOutsideTheMappedDrivesFailClearly) {
    auto e = ErrorOf([&] { host.FileSystem().FileExists("D:\\Work\\Gearbox.iam"); });
    EXPECT_EQ(e.Number(), errors::kPathNotFound);
    EXPECT_NE(e.Description().find("drive D: is not mapped"), std::string::npos);
    EXPECT_EQ(ErrorOf([&] { host.FileSystem().FileExists("Work\\Gearbox.iam"); }).Number(),
              errors::kPathNotFound);
    EXPECT_EQ(ErrorOf([&] { host.FileSystem().FileExists("C:\\..\\etc"); }).Number(), errors::kPathNotFound);
    using namespace std::string_literals;
    EXPECT_EQ(ErrorOf([&] { host.FileSystem().WriteText("C:\\Work\\a\tb.txt", "x"); }).Number(),
              errors::kPathNotFound);
    EXPECT_EQ(ErrorOf([&] { host.FileSystem().WriteText("C:\\Work\\Gearbox.iam\0.txt"s, "x"); }).Number(),
              errors::kPathNotFound)
        << "a NUL must not cut the name short and overwrite Gearbox.iam";
}

TEST_F(DriveTest, WritesAreWholeAndRespectTheReadOnlyBit) {
    auto& files = host.FileSystem();
    files.WriteText("C:\\Work\\log.txt", "one\n");
    EXPECT_EQ(ReadFile("Work/log.txt"), "one\n");
    EXPECT_FALSE(files.IsReadOnly("C:\\Work\\LOG.txt"));
    files.SetReadOnly("C:\\Work\\log.txt", true);
    EXPECT_TRUE(files.IsReadOnly("C:\\Work\\log.txt"));
    auto e = ErrorOf([&] { files.WriteText("C:\\Work\\log.txt", "two\n"); });
    EXPECT_EQ(e.Number(), errors::kPermissionDenied);
    EXPECT_EQ(ReadFile("Work/log.txt"), "one\n");
    EXPECT_EQ(ErrorOf([&] { files.DeleteFile("C:\\Work\\log.txt"); }).Number(), errors::kPermissionDenied);
    files.SetReadOnly("C:\\Work\\log.txt", false);
    files.DeleteFile("C:\\work\\LOG.TXT");
    EXPECT_FALSE(fs::exists(OnDisk("Work/log.txt")));
    EXPECT_EQ(observer.lines.back(), "deleted C:\\Work\\log.txt");
    EXPECT_EQ(ErrorOf([&] { files.WriteText("C:\\Nowhere\\log.txt", "x"); }).Number(), errors::kPathNotFound);
    // No temporary file is left beside the target.
    for (const auto& name : files.ListFiles("C:\\Work"))
        EXPECT_EQ(name.find("tmp"), std::string::npos) << name;
}

TEST_F(DriveTest, CopiesOverwriteOnlyWhenAskedAndListingsAreOrdered) {
    auto& files = host.FileSystem();
    files.CreateFolder("C:\\Out");
    files.CopyFile("C:\\Work\\Spur Gear.ipt", "C:\\Out\\gear.ipt", false);
    EXPECT_EQ(ReadFile("Out/gear.ipt"), ReadFile("Work/Spur Gear.ipt"));
    auto e = ErrorOf([&] { files.CopyFile("C:\\Work\\Cover Plate.ipt", "C:\\Out\\GEAR.ipt", false); });
    EXPECT_EQ(e.Number(), errors::kFileAlreadyExists);
    files.CopyFile("C:\\Work\\Cover Plate.ipt", "C:\\Out\\GEAR.ipt", true);
    EXPECT_EQ(ReadFile("Out/gear.ipt"), ReadFile("Work/Cover Plate.ipt"));
    EXPECT_EQ(observer.lines.back(), "copied C:\\Work\\Cover Plate.ipt -> C:\\Out\\gear.ipt");
    EXPECT_EQ(ErrorOf([&] { files.CopyFile("C:\\Work\\None.ipt", "C:\\Out\\x.ipt", true); }).Number(),
              errors::kFileNotFound);

    WriteFile("Out/b.txt", "");
    WriteFile("Out/A.txt", "");
    fs::create_directories(OnDisk("Out/Folder"));
    EXPECT_EQ(files.ListFiles("c:\\out"), (std::vector<std::string>{"A.txt", "b.txt", "gear.ipt"}));
}

// Thousands of files in one folder: look-ups hit the cached listing, and the host's own
// writes keep it current without listing the folder again.
TEST_F(DriveTest, ManyFilesInOneFolderStayFast) {
    auto& files = host.FileSystem();
    files.CreateFolder("C:\\Many");
    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 2000; ++i) {
        std::string name = "C:\\Many\\Part " + std::to_string(i) + ".ipt";
        ASSERT_FALSE(files.FileExists(name));
        files.WriteText(name, "{}");
        ASSERT_TRUE(files.FileExists(name));
    }
    auto seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    EXPECT_LT(seconds, 5.0);
    EXPECT_EQ(files.ListFiles("C:\\Many").size(), 2000u);
}

}  // namespace
}  // namespace simhost_test
