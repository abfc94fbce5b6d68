#include "win/settings/RegistryStore.h"

#include <vector>

#include "support/Error.h"
#include "support/Utf16.h"
#include "win/com/Ole.h"
#include "win/com/RegistryKey.h"

namespace win::settings {

namespace {
using OpenKey = win::com::RegistryKey;
}  // namespace

std::wstring RegistryStore::SectionKey(const std::string& app, const std::string& section) const {
    return support::Utf8ToUtf16(base_ + "\\" + app + "\\" + section);
}

std::string RegistryStore::GetSetting(const std::string& app, const std::string& section,
                                      const std::string& key, const std::string& defaultValue) const {
    OpenKey h;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, SectionKey(app, section).c_str(), 0, KEY_QUERY_VALUE, h.Receive()) !=
        ERROR_SUCCESS)
        return defaultValue;
    std::wstring name = support::Utf8ToUtf16(key);
    // Ask for the size first: a setting may be longer than any buffer guessed here.
    DWORD type = 0, bytes = 0;
    if (RegQueryValueExW(h.Get(), name.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
        type != REG_SZ)
        return defaultValue;
    std::vector<wchar_t> data(bytes / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(h.Get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(data.data()),
                         &bytes) != ERROR_SUCCESS)
        return defaultValue;
    // The stored text may or may not end with its NUL.
    std::wstring text(data.data(), bytes / sizeof(wchar_t));
    if (!text.empty() && text.back() == L'\0') text.pop_back();
    return support::Utf16ToUtf8(text);
}

void RegistryStore::SaveSetting(const std::string& app, const std::string& section, const std::string& key,
                                const std::string& value) {
    if (app.empty() || section.empty() || key.empty())
        throw support::Error(support::errors::kInvalidCall, "Invalid procedure call or argument");
    OpenKey h;
    LONG status = RegCreateKeyExW(HKEY_CURRENT_USER, SectionKey(app, section).c_str(), 0, nullptr,
                                  REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr, h.Receive(), nullptr);
    if (status == ERROR_SUCCESS) {
        std::wstring name = support::Utf8ToUtf16(key), text = support::Utf8ToUtf16(value);
        status = RegSetValueExW(h.Get(), name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                                static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
    if (status != ERROR_SUCCESS)
        throw support::Error(support::errors::kPermissionDenied,
                             "Cannot save the setting " + section + " " + key + " in the registry");
}

}  // namespace win::settings
