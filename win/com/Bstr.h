#pragma once
#include <string>
#include <string_view>
#include <utility>

#include "win/com/Ole.h"

namespace win::com {

// Owns one BSTR: the length-prefixed UTF-16 text COM passes, freed with SysFreeString.
class Bstr {
public:
    Bstr() = default;
    // Throws E_OUTOFMEMORY as a support::Error when the system cannot allocate it.
    explicit Bstr(std::string_view utf8);
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    Bstr(Bstr&& other) noexcept : s_(std::exchange(other.s_, nullptr)) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(s_, other.s_);
        return *this;
    }
    ~Bstr() { SysFreeString(s_); }

    static Bstr Adopt(BSTR s) {
        Bstr b;
        b.s_ = s;
        return b;
    }
    BSTR Get() const { return s_; }
    BSTR* Receive() {
        SysFreeString(std::exchange(s_, nullptr));
        return &s_;
    }
    BSTR Detach() { return std::exchange(s_, nullptr); }
    std::string ToUtf8() const;

private:
    BSTR s_ = nullptr;
};

// A null BSTR is the empty text, as COM defines it. Embedded NULs are kept.
std::string Utf8FromBstr(BSTR s);

}  // namespace win::com
