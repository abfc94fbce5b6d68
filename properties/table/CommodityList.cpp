#include "properties/table/CommodityList.h"

#include "support/Text.h"

namespace properties {

namespace {

void AppendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Windows-1252: Latin-1 but for 0x80..0x9F; the five codes it leaves free stay as they
// are in Latin-1 (control characters).
std::string FromWindows1252(std::string_view text) {
    static constexpr char16_t kHigh[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                           0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    std::string out;
    for (char ch : text) {
        auto c = static_cast<unsigned char>(ch);
        AppendUtf8(out, c >= 0x80 && c < 0xA0 ? kHigh[c - 0x80] : c);
    }
    return out;
}

void AddEntry(std::string_view line, std::vector<std::string>& entries) {
    std::string entry = support::Trim(line);
    // The last character goes whole: a multi-byte character with all its bytes.
    while (!entry.empty() && (static_cast<unsigned char>(entry.back()) & 0xC0) == 0x80) entry.pop_back();
    if (!entry.empty()) entry.pop_back();
    if (!entry.empty()) entries.push_back(entry);
}

}  // namespace

std::vector<std::string> ReadCommodityEntries(std::string_view fileText) {
    std::string text;
    for (char c : fileText)
        if (c != '\0') text += c;
    if (!support::IsUtf8(text)) text = FromWindows1252(text);

    std::vector<std::string> entries;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != '\r' && text[i] != '\n') continue;
        AddEntry(std::string_view(text).substr(start, i - start), entries);
        if (i + 1 < text.size() && text[i] == '\r' && text[i + 1] == '\n') ++i;
        start = i + 1;
    }
    return entries;
}

std::string CommodityCode(std::string_view entry) {
    // Four characters, not four bytes: a code may hold an accented letter.
    std::size_t end = 0;
    for (int count = 0; count < 4 && end < entry.size(); ++count) {
        ++end;
        while (end < entry.size() && (static_cast<unsigned char>(entry[end]) & 0xC0) == 0x80) ++end;
    }
    return std::string(entry.substr(0, end));
}

}  // namespace properties
