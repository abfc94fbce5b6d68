#include <gtest/gtest.h>

#include "support/Utf16.h"

// UTF-16 is what Windows takes; the conversion is plain C++ and runs everywhere.

namespace support {
namespace {

TEST(Utf16, RoundTripsEveryPlane) {
    // ASCII, Latin-1 (a designer's "Größe"), a CJK ideograph, and a character beyond the BMP.
    std::string text = "Frame \xC3\x9F \xE6\xA1\x86 \xF0\x9F\x94\xA9";
    std::wstring wide = Utf8ToUtf16(text);
    EXPECT_EQ(wide, std::wstring(L"Frame \u00DF \u6846 ") + wchar_t(0xD83D) + wchar_t(0xDD29));
    EXPECT_EQ(Utf16ToUtf8(wide), text);
}

TEST(Utf16, InvalidInputBecomesReplacementWithoutSwallowingTheRest) {
    // A stray continuation byte, a sequence cut short by a plain character, an overlong
    // slash, an encoded surrogate, and a sequence cut short by the end of the text.
    EXPECT_EQ(Utf8ToUtf16("a\x80z"), L"a\uFFFDz");
    EXPECT_EQ(Utf8ToUtf16("a\xE6\xA1z"), L"a\uFFFDz");
    EXPECT_EQ(Utf8ToUtf16("\xC0\xAF"), L"\uFFFD");
    EXPECT_EQ(Utf8ToUtf16("\xED\xA0\x80"), L"\uFFFD");
    EXPECT_EQ(Utf8ToUtf16("z\xF0\x9F"), L"z\uFFFD");
    // Unpaired surrogates from the other side.
    EXPECT_EQ(Utf16ToUtf8(std::wstring{L'a', wchar_t(0xD800), L'b'}),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(Utf16ToUtf8(std::wstring{wchar_t(0xDC00)}), "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace support
