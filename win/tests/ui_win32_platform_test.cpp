#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/Error.h"
#include "tests/unit/test_support.h"
#include "ui/Form.h"
#include "ui/win32/DesktopPlatform.h"
#include "win/server/Registration.h"
#include "win/tests/DialogDriver.h"

namespace ui::win32 {
namespace {

using tests::ChildTexts;
using tests::DialogDriver;

class frmAsk : public Form {
public:
    explicit frmAsk(Platform& platform) : Form(platform, "frmAsk", "Ask Tarnwell") { TW_ON(cmdDone, Click); }

private:
    void Build() override {
        Control& done = Add("cmdDone", ControlKind::Button, "Done");
        done.Left = 120, done.Top = 120, done.Width = 1200, done.Height = 375;
    }
    void cmdDone_Click() { Unload(); }
};

std::wstring Read(HKEY root, const wchar_t* key, const wchar_t* name) {
    wchar_t data[256] = L"";
    DWORD bytes = sizeof data;
    HKEY h;
    if (RegOpenKeyExW(root, key, 0, KEY_READ, &h) != ERROR_SUCCESS) return L"";
    RegQueryValueExW(h, name, nullptr, nullptr, reinterpret_cast<BYTE*>(data), &bytes);
    RegCloseKey(h);
    return data;
}

TEST(DesktopPlatform, ShellStartsTheProgramWithItsArgumentsAsTheyStand) {
    DesktopPlatform platform;
    // No command interpreter: "&" and "%" reach the program as text.
    platform.Shell("reg.exe add HKCU\\Software\\TarnwellTest /v Started /d \"a & %PATH% b\" /f", 0);
    std::wstring value;
    for (int i = 0; i < 100 && value.empty(); ++i, Sleep(100))
        value = Read(HKEY_CURRENT_USER, L"Software\\TarnwellTest", L"Started");
    EXPECT_EQ(value, L"a & %PATH% b");
    win::server::DeleteKeyTree(HKEY_CURRENT_USER, L"Software\\TarnwellTest");
    EXPECT_EQ(test_support::ErrorNumber([&] { platform.Shell("no-such-program.exe /x", 1); }),
              support::errors::kFileNotFound);
}

TEST(DesktopPlatform, FindsProgramsInTheRegisteredApplicationPaths) {
    const wchar_t* key = L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Pellorin.exe";
    HKEY h;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0, KEY_WRITE, nullptr, &h, nullptr),
              ERROR_SUCCESS);
    const wchar_t path[] = L"C:\\Tools\\Pellorin.exe";
    RegSetValueExW(h, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(path), sizeof path);
    RegCloseKey(h);
    DesktopPlatform platform;
    EXPECT_EQ(platform.ApplicationPath("Pellorin.exe"), "C:\\Tools\\Pellorin.exe");
    EXPECT_EQ(platform.ApplicationPath("NoSuchUpdater.exe"), "");
    RegDeleteKeyW(HKEY_LOCAL_MACHINE, key);
}

TEST(DesktopPlatform, AModalFormRunsUntilTheUserClosesIt) {
    DesktopPlatform platform;
    frmAsk form(platform);
    HWND owner =
        CreateWindowExW(0, L"STATIC", L"Host", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    bool ownerDisabled = false;
    DialogDriver person(L"Ask Tarnwell", [&](HWND window) {
        ownerDisabled = !IsWindowEnabled(owner);
        HWND done = FindWindowExW(window, nullptr, L"BUTTON", L"Done");
        SendMessageW(done, BM_CLICK, 0, 0);
    });
    form.Load();
    EXPECT_EQ(platform.SetOwner(form, reinterpret_cast<std::intptr_t>(owner)), 0);
    EXPECT_EQ(GetWindow(platform.WindowOf(form), GW_OWNER), owner);
    EXPECT_TRUE(platform.AppActivate("Ask Tarnwell"));
    form.Show(true);  // returns when the user has pressed Done
    EXPECT_TRUE(person.Acted());
    EXPECT_TRUE(ownerDisabled) << "the owner waits while the modal form runs";
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(platform.WindowOf(form), nullptr);
    EXPECT_EQ(FindWindowW(nullptr, L"Ask Tarnwell"), nullptr) << "the unloaded form's window is gone";
    EXPECT_FALSE(platform.AppActivate("Ask Tarnwell"));
    DestroyWindow(owner);
}

TEST(DesktopPlatform, ReportsAnUnhandledErrorWithItsNumberAndText) {
    DesktopPlatform platform;
    std::vector<std::wstring> texts;
    DialogDriver person(L"Tarnwell", [&](HWND box) {
        texts = ChildTexts(box, L"Static");
        tests::Press(box, IDOK);
    });
    platform.ReportError(support::Error(support::errors::kObjectNotSet, "Object variable not set"));
    ASSERT_TRUE(person.Acted());
    EXPECT_NE(std::find(texts.begin(), texts.end(), L"Run-time error '91':\n\nObject variable not set"),
              texts.end());
}

}  // namespace
}  // namespace ui::win32
