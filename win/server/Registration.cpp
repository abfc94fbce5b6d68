#include "win/server/Registration.h"

#include <olectl.h>

#include "win/com/RegistryKey.h"
#include "win/server/AddInClsid.h"
#include "win/server/HostInterfaces.h"

namespace win::server {

namespace {
const std::wstring kClsidKey = std::wstring(L"CLSID\\") + kAddInClsidText;

using Key = win::com::RegistryKey;
}  // namespace

std::vector<RegistryEntry> RegistrationEntries(const std::wstring& dllPath) {
    const std::wstring& clsid = kClsidKey;
    const std::wstring settings = clsid + L"\\Settings";
    return {
        {clsid, L"", kAddInName},
        {clsid + L"\\InprocServer32", L"", dllPath},
        {clsid + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {clsid + L"\\Implemented Categories", std::nullopt, L""},
        {clsid + L"\\Implemented Categories\\" + kVersionedAddInCategory, std::nullopt, L""},
        {clsid + L"\\Description", L"", kAddInDescription},
        {settings, L"AddInType", L"Standard"},
        {settings, L"LoadOnStartUp", L"1"},
        // Versions are "Major.Minor.SP"; "6.." means any release 6, so releases 7 on load it.
        {settings, L"SupportedSoftwareVersionGreaterThan", L"6.."},
        {settings, L"Hidden", L"0"},
        {settings, L"UserUnloadable", L"1"},
    };
}

HRESULT Register(HKEY root, const std::wstring& dllPath) {
    if (dllPath.empty()) return SELFREG_E_CLASS;
    for (const RegistryEntry& e : RegistrationEntries(dllPath)) {
        Key key;
        LONG status = RegCreateKeyExW(root, e.key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE,
                                      nullptr, key.Receive(), nullptr);
        if (status == ERROR_SUCCESS && e.name) {
            DWORD bytes = static_cast<DWORD>((e.value.size() + 1) * sizeof(wchar_t));
            status = RegSetValueExW(key.Get(), e.name->empty() ? nullptr : e.name->c_str(), 0, REG_SZ,
                                    reinterpret_cast<const BYTE*>(e.value.c_str()), bytes);
        }
        if (status != ERROR_SUCCESS) {
            Unregister(root);  // leave nothing half written
            return SELFREG_E_CLASS;
        }
    }
    return S_OK;
}

HRESULT Unregister(HKEY root) {
    LONG status = DeleteKeyTree(root, kClsidKey);
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND ? S_OK : SELFREG_E_CLASS;
}

LONG DeleteKeyTree(HKEY parent, const std::wstring& subkey) {
    {
        Key key;
        LONG status = RegOpenKeyExW(parent, subkey.c_str(), 0, KEY_READ, key.Receive());
        if (status != ERROR_SUCCESS) return status;
        // Always the first child: each one deleted moves the next one to index 0.
        for (;;) {
            wchar_t child[256];  // the registry's longest key name is 255 characters
            DWORD length = 256;
            status = RegEnumKeyExW(key.Get(), 0, child, &length, nullptr, nullptr, nullptr, nullptr);
            if (status == ERROR_NO_MORE_ITEMS) break;
            if (status != ERROR_SUCCESS) return status;
            status = DeleteKeyTree(key.Get(), std::wstring(child, length));
            if (status != ERROR_SUCCESS) return status;
        }
    }
    return RegDeleteKeyW(parent, subkey.c_str());
}

}  // namespace win::server
