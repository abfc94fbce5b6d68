// The add-in's files on the disk, as the platform reports them.
#include <gtest/gtest.h>

#include "tests/unit/test_support.h"
#include "win/files/Win32FileSystem.h"

namespace win::files {
namespace {

using test_support::ErrorNumber;
namespace errors = support::errors;

class Win32FileSystemTest : public ::testing::Test {
protected:
    test_support::ScratchFolder scratch{"files"};
    Win32FileSystem disk;
    // Windows paths, as the add-in gives them, with a name outside ASCII.
    std::string folder = scratch.Path().string();
    std::string Path(const std::string& name) const { return folder + "\\" + name; }
};

TEST_F(Win32FileSystemTest, WritesReadsCopiesAndListsFilesWhole) {
    const std::string name = Path(
        "Stra\xC3\x9F"
        "e.log");
    disk.WriteText(name, "one\r\ntwo\n");
    EXPECT_TRUE(disk.FileExists(name));
    EXPECT_FALSE(disk.FolderExists(name));
    EXPECT_EQ(disk.ReadText(name), "one\r\ntwo\n") << "bytes as written, no line ends changed";
    disk.WriteText(name, "three");
    EXPECT_EQ(disk.ReadText(name), "three");

    disk.CreateFolder(Path("Sub"));
    EXPECT_TRUE(disk.FolderExists(Path("Sub")));
    disk.CopyFile(name, Path("a.log"), false);
    EXPECT_EQ(ErrorNumber([&] { disk.CopyFile(name, Path("a.log"), false); }), errors::kFileAlreadyExists);
    disk.CopyFile(name, Path("a.log"), true);
    EXPECT_EQ(disk.ListFiles(folder), (std::vector<std::string>{"a.log",
                                                                "Stra\xC3\x9F"
                                                                "e.log"}))
        << "files only, in the file system's order";
    disk.DeleteFile(Path("a.log"));
    EXPECT_FALSE(disk.FileExists(Path("a.log")));
}

TEST_F(Win32FileSystemTest, FailuresAreThePlatformsFileErrors) {
    EXPECT_EQ(ErrorNumber([&] { disk.ReadText(Path("missing.txt")); }), errors::kFileNotFound);
    EXPECT_EQ(ErrorNumber([&] { disk.ListFiles(Path("No Folder")); }), errors::kPathNotFound);
    EXPECT_EQ(ErrorNumber([&] { disk.WriteText(Path("No Folder\\x.txt"), "x"); }), errors::kPathNotFound);
    EXPECT_EQ(ErrorNumber([&] { disk.CopyFile(Path("missing.txt"), Path("b.txt"), true); }),
              errors::kFileNotFound);

    disk.WriteText(Path("locked.txt"), "kept");
    disk.SetReadOnly(Path("locked.txt"), true);
    EXPECT_TRUE(disk.IsReadOnly(Path("locked.txt")));
    EXPECT_EQ(ErrorNumber([&] { disk.WriteText(Path("locked.txt"), "lost"); }), errors::kPermissionDenied);
    EXPECT_EQ(disk.ReadText(Path("locked.txt")), "kept");
    disk.SetReadOnly(Path("locked.txt"), false);
    EXPECT_FALSE(disk.IsReadOnly(Path("locked.txt")));
    EXPECT_EQ(disk.ListFiles(folder), (std::vector<std::string>{"locked.txt"})) << "no partial file left";
}

}  // namespace
}  // namespace win::files
