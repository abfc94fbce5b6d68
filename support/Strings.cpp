// Left, Right, Mid, InStr and friends with the platform's 1-based byte positions.
#include <algorithm>
#include <string>
#include <string_view>

#include "support/Decimal.h"
#include "support/Text.h"

namespace support {

using detail::ThrowInvalidCall;

std::string Left(std::string_view s, long n) {
    if (n < 0) ThrowInvalidCall();
    return std::string(s.substr(0, static_cast<std::size_t>(n)));
}

std::string Right(std::string_view s, long n) {
    if (n < 0) ThrowInvalidCall();
    std::size_t count = std::min(s.size(), static_cast<std::size_t>(n));
    return std::string(s.substr(s.size() - count));
}

std::string Mid(std::string_view s, long start) {
    if (start < 1) ThrowInvalidCall();
    auto from = static_cast<std::size_t>(start - 1);
    return from >= s.size() ? std::string() : std::string(s.substr(from));
}

std::string Mid(std::string_view s, long start, long length) {
    if (start < 1 || length < 0) ThrowInvalidCall();
    auto from = static_cast<std::size_t>(start - 1);
    return from >= s.size() ? std::string() : std::string(s.substr(from, static_cast<std::size_t>(length)));
}

// A zero-length haystack yields 0 even for an empty needle, the platform's own order of
// checks; otherwise an empty needle is found at start as long as start is at most
// one past the end.
long InStr(std::string_view haystack, std::string_view needle, long start) {
    if (start < 1) ThrowInvalidCall();
    if (haystack.empty()) return 0;
    auto from = static_cast<std::size_t>(start - 1);
    if (from > haystack.size()) return 0;
    if (needle.empty()) return start;
    std::size_t pos = haystack.find(needle, from);
    return pos == std::string_view::npos ? 0 : static_cast<long>(pos + 1);
}

// Searches from the last position, so an empty needle is "found" there.
long InStrRev(std::string_view haystack, std::string_view needle) {
    if (haystack.empty()) return 0;
    if (needle.empty()) return static_cast<long>(haystack.size());
    std::size_t pos = haystack.rfind(needle);
    return pos == std::string_view::npos ? 0 : static_cast<long>(pos + 1);
}

std::string LTrim(std::string_view s) {
    std::size_t first = s.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(s.substr(first));
}

std::string RTrim(std::string_view s) {
    std::size_t last = s.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string() : std::string(s.substr(0, last + 1));
}

std::string Trim(std::string_view s) {
    return RTrim(LTrim(s));
}

// ASCII letters only: on the stand-in host texts may hold UTF-8, whose lead bytes a
// byte-wise ANSI case table would turn into other characters.
std::string UCase(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return out;
}

std::string LCase(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}

// Left to right, without overlaps; an empty find leaves the text as it is.
std::string Replace(std::string_view s, std::string_view find, std::string_view with) {
    if (find.empty()) return std::string(s);
    std::string out;
    std::size_t from = 0;
    for (std::size_t pos; (pos = s.find(find, from)) != std::string_view::npos; from = pos + find.size()) {
        out.append(s.substr(from, pos - from));
        out.append(with);
    }
    out.append(s.substr(from));
    return out;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        auto c = static_cast<unsigned char>(text[i]);
        std::size_t extra = c < 0x80 ? 0 : c < 0xC2 ? 9 : c < 0xE0 ? 1 : c < 0xF0 ? 2 : c < 0xF5 ? 3 : 9;
        if (extra == 9 || i + extra >= text.size() + (extra == 0)) return false;
        unsigned char low = 0x80, high = 0xBF;  // the second byte's range
        if (c == 0xE0) low = 0xA0;
        if (c == 0xED) high = 0x9F;
        if (c == 0xF0) low = 0x90;
        if (c == 0xF4) high = 0x8F;
        for (std::size_t k = 1; k <= extra; ++k) {
            auto next = static_cast<unsigned char>(text[i + k]);
            if (next < (k == 1 ? low : 0x80) || next > (k == 1 ? high : 0xBF)) return false;
        }
        i += extra + 1;
    }
    return true;
}

}  // namespace support
