#pragma once
#include <cstdint>

#include "win/com/Ole.h"

namespace win::com {

namespace detail {
constexpr std::uint32_t HexValue(const wchar_t* text, int from, int digits) {
    std::uint32_t value = 0;
    for (int i = from; i < from + digits; ++i) {
        wchar_t c = text[i];
        int digit = c >= L'0' && c <= L'9'   ? c - L'0'
                    : c >= L'A' && c <= L'F' ? c - L'A' + 10
                    : c >= L'a' && c <= L'f' ? c - L'a' + 10
                                             : throw "not a hexadecimal digit";
        value = value * 16 + digit;
    }
    return value;
}
}  // namespace detail

// A GUID from its registry form "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", at compile time,
// so that each GUID is written once, in the form people search for.
constexpr GUID ParseGuid(const wchar_t* text) {
    if (text[0] != L'{' || text[9] != L'-' || text[14] != L'-' || text[19] != L'-' || text[24] != L'-' ||
        text[37] != L'}' || text[38] != 0)
        throw "not a GUID in braces";
    GUID g{detail::HexValue(text, 1, 8),
           static_cast<std::uint16_t>(detail::HexValue(text, 10, 4)),
           static_cast<std::uint16_t>(detail::HexValue(text, 15, 4)),
           {}};
    constexpr int kByteAt[8] = {20, 22, 25, 27, 29, 31, 33, 35};
    for (int i = 0; i < 8; ++i)
        g.Data4[i] = static_cast<unsigned char>(detail::HexValue(text, kByteAt[i], 2));
    return g;
}

}  // namespace win::com
