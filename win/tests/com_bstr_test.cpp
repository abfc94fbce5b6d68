#include <gtest/gtest.h>

#include "win/com/Bstr.h"

namespace win::com {
namespace {

TEST(Bstr, KeepsLengthAndEmbeddedNulsAndTreatsNullAsEmpty) {
    std::string text("C:\\W\xC3\xB6rk\0tail", 13);
    Bstr b(text);
    EXPECT_EQ(SysStringLen(b.Get()), 12u);
    EXPECT_EQ(b.ToUtf8(), text);
    EXPECT_EQ(Utf8FromBstr(nullptr), "");
    EXPECT_EQ(Bstr("").ToUtf8(), "");
}

}  // namespace
}  // namespace win::com
