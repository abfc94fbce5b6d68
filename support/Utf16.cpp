#include "support/Utf16.h"

#include <cstdint>

namespace support {

namespace {
constexpr char32_t kReplacement = 0xFFFD;

// Decodes one code point at text[i] and advances i; overlong forms, surrogates and
// values past U+10FFFF are invalid, and so is a sequence cut short.
char32_t DecodeUtf8(std::string_view text, std::size_t& i) {
    auto byte = [&](std::size_t k) { return static_cast<std::uint8_t>(text[k]); };
    std::uint8_t lead = byte(i);
    if (lead < 0x80) {
        ++i;
        return lead;
    }
    int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    if (extra == 0 || lead > 0xF4) {
        ++i;
        return kReplacement;
    }
    char32_t cp = lead & (0x3F >> extra);
    for (int k = 1; k <= extra; ++k) {
        if (i + k >= text.size() || (byte(i + k) & 0xC0) != 0x80) {
            i += k;  // the byte that broke the sequence starts the next one
            return kReplacement;
        }
        cp = (cp << 6) | (byte(i + k) & 0x3F);
    }
    i += extra + 1;
    static constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    if (cp < kSmallest[extra] || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return kReplacement;
    return cp;
}
}  // namespace

std::wstring Utf8ToUtf16(std::string_view utf8) {
    std::wstring out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t cp = DecodeUtf8(utf8, i);
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out.push_back(static_cast<wchar_t>(0xD800 + (cp >> 10)));
            out.push_back(static_cast<wchar_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            out.push_back(static_cast<wchar_t>(cp));
        }
    }
    return out;
}

std::string Utf16ToUtf8(std::wstring_view utf16) {
    std::string out;
    out.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        char32_t cp = static_cast<std::uint16_t>(utf16[i]);
        if (cp >= 0xD800 && cp <= 0xDBFF && i + 1 < utf16.size()) {
            char32_t low = static_cast<std::uint16_t>(utf16[i + 1]);
            if (low >= 0xDC00 && low <= 0xDFFF) {
                cp = 0x10000 + ((cp - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        if (cp >= 0xD800 && cp <= 0xDFFF) cp = kReplacement;
        if (cp < 0x80) {
            out.push_back(static_cast<char>(cp));
        } else if (cp < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else if (cp < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        }
    }
    return out;
}

}  // namespace support
