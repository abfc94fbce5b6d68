#include <gtest/gtest.h>

#include "copy/modRecurseSaveNReplace.h"
#include "support/Error.h"

namespace copy {
namespace {

std::string Copy(const std::string& source, const std::string& prefix, const std::string& suffix,
                 std::string target = "C:\\Temp") {
    return FormCopyName(source, prefix, suffix, target);
}

TEST(FormCopyName, PutsPrefixBeforeAndSuffixBeforeTheExtension) {
    EXPECT_EQ(Copy("D:\\Proj\\Bracket.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    EXPECT_EQ(Copy("D:\\Proj\\Frame.iam", "", "-001"), "C:\\Temp\\Frame-001.iam");
    EXPECT_EQ(Copy("D:\\Proj\\Frame.iam", "A_", ""), "C:\\Temp\\A_Frame.iam");
    // No folder at all: the file name is the whole text.
    EXPECT_EQ(Copy("Bolt.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bolt-001.ipt");
}

TEST(FormCopyName, NeverDoublesAPrefixOrSuffixTheNameAlreadyCarries) {
    EXPECT_EQ(Copy("D:\\Proj\\!New-Bracket.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    EXPECT_EQ(Copy("D:\\Proj\\Bracket-001.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    EXPECT_EQ(Copy("C:\\Temp\\!New-Bracket-001.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    // Exact comparison: another letter case is another prefix.
    EXPECT_EQ(Copy("D:\\Proj\\!new-Bracket.ipt", "!New-", ""), "C:\\Temp\\!New-!new-Bracket.ipt");
    // The suffix is looked for before the extension only, never in it.
    EXPECT_EQ(Copy("D:\\Proj\\Bracket.ipt", "", "ipt"), "C:\\Temp\\Bracketipt.ipt");
}

TEST(FormCopyName, JoinsTheTargetFolderWithOneBackslashAndHandsItBack) {
    std::string bare = "E:\\Out";
    EXPECT_EQ(FormCopyName("D:\\P\\A.ipt", "x", "", bare), "E:\\Out\\xA.ipt");
    EXPECT_EQ(bare, "E:\\Out\\");
    std::string ended = "E:\\Out\\";
    EXPECT_EQ(FormCopyName("D:\\P\\A.ipt", "x", "", ended), "E:\\Out\\xA.ipt");
    EXPECT_EQ(ended, "E:\\Out\\");
}

TEST(FormCopyName, TakesTheLastFourCharactersAsExtensionBlindly) {
    // A longer extension is cut where four characters end.
    EXPECT_EQ(Copy("D:\\P\\Spec.iproj", "", "-1"), "C:\\Temp\\Spec.i-1proj");
    // Four characters: the base is empty, the name is prefix, suffix and "extension".
    EXPECT_EQ(Copy("D:\\P\\.ipt", "p", "s"), "C:\\Temp\\ps.ipt");
    // Fewer than four: the split itself fails.
    try {
        Copy("D:\\P\\a.b", "p", "s");
        FAIL() << "a name of three characters was split";
    } catch (const support::Error& e) {
        EXPECT_EQ(e.Number(), support::errors::kInvalidCall);
    }
}

TEST(FormCopyName, SameFileNameFromDifferentFoldersGivesTheSameCopy) {
    EXPECT_EQ(Copy("D:\\A\\Bolt.ipt", "!New-", "-001"), Copy("E:\\B\\Bolt.ipt", "!New-", "-001"));
}

}  // namespace
}  // namespace copy
