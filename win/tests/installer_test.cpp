// The installer as a designer runs it, silently: what it leaves, and what its uninstaller
// takes away. Judged by files and keys: Wine's exit codes say nothing about a silent
// install. TARNWELL_INSTALLER names the installer.
#include <gtest/gtest.h>
#include <shlobj.h>

#include <cstdlib>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "support/Utf16.h"
#include "win/com/Ole.h"
#include "win/server/AddInClsid.h"
#include "win/server/Registration.h"

namespace {

const std::wstring kFolder = L"C:\\Program Files\\Tarnwell Test";
const std::wstring kUninstallKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tarnwell";
const std::wstring kSettingsKey = L"Software\\VB and VBA Program Settings\\Tarnwell\\PackNLink";

void RunAndWait(std::wstring command) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                               &startup, &process))
        << support::Utf16ToUtf8(command);
    WaitForSingleObject(process.hProcess, 60000);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
}

bool Exists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<std::wstring> Value(HKEY root, const std::wstring& key, const wchar_t* name) {
    wchar_t data[1024];
    DWORD bytes = sizeof data;
    HKEY h;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &h) != ERROR_SUCCESS) return std::nullopt;
    DWORD type = 0;
    LONG status = RegQueryValueExW(h, name, nullptr, &type, reinterpret_cast<BYTE*>(data), &bytes);
    RegCloseKey(h);
    if (status != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
    return std::wstring(data);
}

// Where later hosts read add-in manifests.
std::wstring ManifestFile() {
    wchar_t common[MAX_PATH] = L"";
    SHGetFolderPathW(nullptr, CSIDL_COMMON_APPDATA, nullptr, 0, common);
    return std::wstring(common) + L"\\Autodesk\\Inventor Addins\\Tarnwell.addin";
}

std::string Contents(const std::wstring& file) {
    std::ifstream in(file.c_str());
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(Installer, InstallsAndRegistersThenUninstallsEverythingButTheSettings) {
    const char* installer = std::getenv("TARNWELL_INSTALLER");
    ASSERT_NE(installer, nullptr) << "TARNWELL_INSTALLER names no installer";
    // A designer's setting from before: the installer must keep it.
    HKEY settings;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kSettingsKey.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &settings, nullptr),
              ERROR_SUCCESS);
    const wchar_t target[] = L"D:\\Packed";
    RegSetValueExW(settings, L"TargetDir", 0, REG_SZ, reinterpret_cast<const BYTE*>(target), sizeof target);
    RegCloseKey(settings);

    // /D= comes last and unquoted, as NSIS wants it.
    RunAndWait(L"\"" + support::Utf8ToUtf16(installer) + L"\" /S /D=" + kFolder);
    const std::wstring dll = kFolder + L"\\Tarnwell.dll", uninstaller = kFolder + L"\\Uninstall.exe";
    EXPECT_TRUE(Exists(dll));
    EXPECT_TRUE(Exists(uninstaller));
    const std::wstring clsidKey = std::wstring(L"CLSID\\") + win::server::kAddInClsidText;
    EXPECT_EQ(Value(HKEY_CLASSES_ROOT, clsidKey + L"\\InprocServer32", nullptr), dll)
        << "registered where it lies";
    EXPECT_EQ(Value(HKEY_CLASSES_ROOT, clsidKey + L"\\Settings", L"LoadOnStartUp"), L"1");
    EXPECT_EQ(Value(HKEY_LOCAL_MACHINE, kUninstallKey, L"UninstallString"), L"\"" + uninstaller + L"\"");
    std::string manifest = Contents(ManifestFile());
    EXPECT_NE(manifest.find("<Assembly>" + support::Utf16ToUtf8(dll) + "</Assembly>"), std::string::npos)
        << "the manifest names the installed DLL:\n"
        << manifest;
    EXPECT_NE(manifest.find(support::Utf16ToUtf8(win::server::kAddInClsidText)), std::string::npos);

    // The uninstaller runs from a copy of itself and returns at once: wait for the last of
    // its work, the removal of its own key, which comes after the files.
    RunAndWait(L"\"" + uninstaller + L"\" /S");
    auto uninstallKeyLeft = [] {
        HKEY probe;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kUninstallKey.c_str(), 0, KEY_READ, &probe) != ERROR_SUCCESS)
            return false;
        RegCloseKey(probe);
        return true;
    };
    for (int i = 0; i < 300 && (Exists(kFolder) || uninstallKeyLeft()); ++i) Sleep(100);
    EXPECT_FALSE(Exists(kFolder)) << "a file of ours was left";
    EXPECT_FALSE(Exists(ManifestFile())) << "the manifest was left";
    EXPECT_FALSE(Value(HKEY_CLASSES_ROOT, clsidKey, nullptr)) << "the add-in is still registered";
    EXPECT_FALSE(uninstallKeyLeft()) << "the uninstaller's key was left";
    EXPECT_EQ(Value(HKEY_CURRENT_USER, kSettingsKey, L"TargetDir"), L"D:\\Packed") << "the settings are kept";
    win::server::DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Tarnwell");
}

}  // namespace
