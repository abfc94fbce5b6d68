#include "win/com/Bstr.h"

#include "support/Error.h"
#include "support/Utf16.h"

namespace win::com {

Bstr::Bstr(std::string_view utf8) {
    std::wstring wide = support::Utf8ToUtf16(utf8);
    s_ = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (!s_) throw support::Error(static_cast<std::int32_t>(E_OUTOFMEMORY), "Out of memory");
}

std::string Bstr::ToUtf8() const {
    return Utf8FromBstr(s_);
}

std::string Utf8FromBstr(BSTR s) {
    return s ? support::Utf16ToUtf8(std::wstring_view(s, SysStringLen(s))) : std::string();
}

}  // namespace win::com
