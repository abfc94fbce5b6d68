#include <gtest/gtest.h>

#include "copy/engine/RenamingWalk.h"
#include "support/Error.h"

namespace copy {
namespace {

std::string Copy(const std::string& source, const std::string& prefix, const std::string& suffix) {
    return FormCopyName(source, prefix, suffix, "C:\\Temp");
}

TEST(FormCopyName, PrefixBeforeSuffixBeforeTheExtensionNeitherDoubled) {
    EXPECT_EQ(Copy("D:\\Proj\\Bracket.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    EXPECT_EQ(Copy("Bolt.iam", "", "-001"), "C:\\Temp\\Bolt-001.iam");
    EXPECT_EQ(Copy("D:\\Proj\\!New-Bracket.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    EXPECT_EQ(Copy("D:\\Proj\\Bracket-001.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
    // Exact comparison: another letter case is another prefix.
    EXPECT_EQ(Copy("D:\\Proj\\!new-Bracket.ipt", "!New-", ""), "C:\\Temp\\!New-!new-Bracket.ipt");
    // Same file name from another folder: the same copy.
    EXPECT_EQ(Copy("E:\\Lib\\Bracket.ipt", "!New-", "-001"), "C:\\Temp\\!New-Bracket-001.ipt");
}

TEST(FormCopyName, JoinsTheTargetWithOneBackslash) {
    for (std::string target : {"E:\\Out", "E:\\Out\\"})
        EXPECT_EQ(FormCopyName("D:\\P\\A.ipt", "x", "", target), "E:\\Out\\xA.ipt");
}

TEST(FormCopyName, TakesTheLastFourCharactersAsExtensionBlindly) {
    EXPECT_EQ(Copy("D:\\P\\Layout.iproj", "", "-1"), "C:\\Temp\\Layout.i-1proj");
    EXPECT_EQ(Copy("D:\\P\\.ipt", "p", "s"), "C:\\Temp\\ps.ipt");
    try {
        Copy("D:\\P\\a.b", "p", "s");
        FAIL() << "a name of three characters was split";
    } catch (const support::Error& e) {
        EXPECT_EQ(e.Number(), support::errors::kInvalidCall);
    }
}

}  // namespace
}  // namespace copy
