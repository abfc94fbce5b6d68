#include <gtest/gtest.h>

#include <string>

#include "support/Error.h"
#include "tests/unit/test_support.h"
#include "win/com/Ole.h"
#include "win/server/Registration.h"
#include "win/settings/RegistryStore.h"

namespace win::settings {
namespace {

// Each test keeps its settings under a base key of its own and removes it afterwards.
class RegistryStoreTest : public ::testing::Test {
protected:
    const std::string base = "Software\\TarnwellTest\\" +
                             std::string(::testing::UnitTest::GetInstance()->current_test_info()->name());
    void TearDown() override { server::DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\TarnwellTest"); }
};

TEST_F(RegistryStoreTest, DefaultsUntilSavedThenPersistsAcrossStores) {
    {
        RegistryStore store(base);
        EXPECT_EQ(store.GetSetting("Tarnwell", "PreSufxClone", "Prefix", "!New-"), "!New-");
        store.SaveSetting("Tarnwell", "PreSufxClone", "Prefix", "");
        store.SaveSetting("Tarnwell", "PreSufxClone", "TargetDir",
                          "C:\\Temp\\Gr\xC3\xB6\xC3\x9F"
                          "e = here");
        store.SaveSetting("Tarnwell", "Preview", "DialogTop", "1200");
    }
    RegistryStore reread(base);
    // An empty saved value is a value, not a missing key.
    EXPECT_EQ(reread.GetSetting("Tarnwell", "PreSufxClone", "Prefix", "!New-"), "");
    EXPECT_EQ(reread.GetSetting("Tarnwell", "PreSufxClone", "TargetDir"),
              "C:\\Temp\\Gr\xC3\xB6\xC3\x9F"
              "e = here");
    EXPECT_EQ(reread.GetSetting("Tarnwell", "Preview", "DialogTop"), "1200");
    // Sections and applications do not leak into each other.
    EXPECT_EQ(reread.GetSetting("Tarnwell", "PartProps", "DialogTop", "0"), "0");
    EXPECT_EQ(reread.GetSetting("Other", "Preview", "DialogTop", "x"), "x");
}

TEST_F(RegistryStoreTest, KeepsLongAndMultiLineValuesWhole) {
    RegistryStore store(base);
    std::string longValue(5000, 'x');
    longValue += "\r\nsecond line";
    store.SaveSetting("Tarnwell", "MergeIDWProperties", "IDWTemplate", longValue);
    EXPECT_EQ(store.GetSetting("Tarnwell", "MergeIDWProperties", "IDWTemplate"), longValue);
}

TEST_F(RegistryStoreTest, RefusesEmptyNamesAndReadsOnlyText) {
    RegistryStore store(base);
    EXPECT_EQ(test_support::ErrorNumber([&] { store.SaveSetting("Tarnwell", "GetColors", "", "v"); }),
              support::errors::kInvalidCall);
    EXPECT_EQ(test_support::ErrorNumber([&] { store.SaveSetting("Tarnwell", "", "Key", "v"); }),
              support::errors::kInvalidCall);
    // A number another program left under a key is no setting of ours.
    store.SaveSetting("Tarnwell", "GetColors", "ColorsTemplate", "C:\\T.ipt");
    std::wstring section = L"Software\\TarnwellTest\\RefusesEmptyNamesAndReadsOnlyText\\Tarnwell\\GetColors";
    DWORD number = 7;
    HKEY h;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, section.c_str(), 0, KEY_SET_VALUE, &h), ERROR_SUCCESS);
    RegSetValueExW(h, L"Count", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
    RegCloseKey(h);
    EXPECT_EQ(store.GetSetting("Tarnwell", "GetColors", "Count", "none"), "none");
}

// Where the original platform kept them: a designer's settings carry over both ways.
TEST(RegistryStoreLocation, IsTheOriginalPlatformsProgramSettingsKey) {
    const wchar_t* section = L"Software\\VB and VBA Program Settings\\Tarnwell\\PackNLink";
    HKEY h;
    ASSERT_EQ(
        RegCreateKeyExW(HKEY_CURRENT_USER, section, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &h, nullptr),
        ERROR_SUCCESS);
    const wchar_t old[] = L"D:\\Packed";
    RegSetValueExW(h, L"TargetDir", 0, REG_SZ, reinterpret_cast<const BYTE*>(old), sizeof old);

    RegistryStore store;
    EXPECT_EQ(store.GetSetting("Tarnwell", "PackNLink", "TargetDir", "C:\\Temp"), "D:\\Packed");
    store.SaveSetting("Tarnwell", "PackNLink", "FromTo", "0");
    wchar_t data[16];
    DWORD bytes = sizeof data, type = 0;
    ASSERT_EQ(RegQueryValueExW(h, L"FromTo", nullptr, &type, reinterpret_cast<BYTE*>(data), &bytes),
              ERROR_SUCCESS);
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(std::wstring(data), L"0");
    RegCloseKey(h);
    server::DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Tarnwell");
}

}  // namespace
}  // namespace win::settings
