#pragma once
#include <string>
#include <string_view>

// Text is UTF-8 inside the add-in and UTF-16 at the COM and Win32 boundary: std::wstring
// holds UTF-16 code units, as the Windows API takes them.
namespace support {

// A byte that starts no valid UTF-8 sequence, and an unpaired surrogate, become U+FFFD:
// a stray byte must not cut a file name short or swallow the characters after it.
std::wstring Utf8ToUtf16(std::string_view utf8);
std::string Utf16ToUtf8(std::wstring_view utf16);

}  // namespace support
