// The add-in DLL as the host meets it: registered by regsvr32, found and created by its
// CLSID through the registry, and activated with a site. TARNWELL_DLL names the DLL.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <string>

#include "simhost/SimHost.h"
#include "support/Utf16.h"
#include "win/com/ComObject.h"
#include "win/com/Dispatch.h"
#include "win/com/DispatchObject.h"
#include "win/hostface/HostFace.h"
#include "win/server/AddInClsid.h"
#include "win/server/HostInterfaces.h"
#include "win/tests/DialogDriver.h"

namespace win::server {
namespace {

using support::Variant;

const std::wstring kClsidKey = std::wstring(L"CLSID\\") + kAddInClsidText;

std::wstring DllPath() {
    const char* path = std::getenv("TARNWELL_DLL");
    return path ? support::Utf8ToUtf16(path) : L"";
}

// Runs regsvr32 silently, as an installer does; its exit code.
DWORD Regsvr32(const std::wstring& options) {
    std::wstring command = L"regsvr32.exe /s " + options + L" \"" + DllPath() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return GetLastError();
    WaitForSingleObject(process.hProcess, 30000);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    return code;
}

bool KeyExists(const std::wstring& key) {
    HKEY h;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &h) != ERROR_SUCCESS) return false;
    RegCloseKey(h);
    return true;
}

std::optional<std::wstring> Value(const std::wstring& key, const wchar_t* name) {
    HKEY h;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &h) != ERROR_SUCCESS) return std::nullopt;
    wchar_t data[1024];
    DWORD bytes = sizeof data, type = 0;
    LONG status = RegQueryValueExW(h, name, nullptr, &type, reinterpret_cast<BYTE*>(data), &bytes);
    RegCloseKey(h);
    if (status != ERROR_SUCCESS || type != REG_SZ) return std::nullopt;
    return std::wstring(data, bytes / sizeof(wchar_t) - 1);
}

class RegisteredDll : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_FALSE(DllPath().empty()) << "TARNWELL_DLL names no DLL";
        ASSERT_EQ(Regsvr32(L""), 0u);
    }
    void TearDown() override { EXPECT_EQ(Regsvr32(L"/u"), 0u); }
};

TEST_F(RegisteredDll, WritesEveryKeyTheHostReadsAndUnregisterLeavesNothing) {
    // A neighbour's key, which unregistering must not touch.
    const std::wstring neighbour = L"CLSID\\{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}";
    HKEY h;
    ASSERT_EQ(
        RegCreateKeyExW(HKEY_CLASSES_ROOT, neighbour.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &h, nullptr),
        ERROR_SUCCESS);
    RegCloseKey(h);

    struct Expected {
        std::wstring key;
        const wchar_t* name;
        std::wstring value;
    };
    const std::wstring settings = kClsidKey + L"\\Settings";
    const Expected expected[] = {
        {kClsidKey, nullptr, L"Tarnwell"},
        {kClsidKey + L"\\InprocServer32", nullptr, DllPath()},
        {kClsidKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {kClsidKey + L"\\Description", nullptr, kAddInDescription},
        {settings, L"AddInType", L"Standard"},
        {settings, L"LoadOnStartUp", L"1"},
        {settings, L"SupportedSoftwareVersionGreaterThan", L"6.."},
        {settings, L"Hidden", L"0"},
        {settings, L"UserUnloadable", L"1"},
    };
    for (const Expected& e : expected) {
        std::optional<std::wstring> actual = Value(e.key, e.name);
        ASSERT_TRUE(actual) << support::Utf16ToUtf8(e.key) << " "
                            << (e.name ? support::Utf16ToUtf8(e.name) : "(default)");
        EXPECT_EQ(*actual, e.value) << support::Utf16ToUtf8(e.key);
    }
    EXPECT_TRUE(KeyExists(kClsidKey + L"\\Implemented Categories\\{39AD2B5C-7A29-11D6-8E0A-0010B541CAA8}"));

    ASSERT_EQ(Regsvr32(L"/u"), 0u);
    EXPECT_FALSE(KeyExists(kClsidKey));
    EXPECT_TRUE(KeyExists(neighbour));
    RegDeleteKeyW(HKEY_CLASSES_ROOT, neighbour.c_str());
    ASSERT_EQ(Regsvr32(L""), 0u);  // for TearDown's /u, which must succeed on a registered DLL
}

// The host's site: hands out the application, and counts how often it was asked.
class Site : public com::DispatchObject<> {
public:
    static constexpr std::array<com::Member, 1> kMembers{{{kDispidSiteApplication, L"Application"}}};
    std::span<const com::Member> Members() const override { return kMembers; }
    bool Answers(REFIID) const override { return false; }
    Variant Call(DISPID, WORD, const com::InvokeArgs&) override {
        ++applicationReads;
        return Variant(std::make_shared<com::ComObject>(com::ComPtr<IDispatch>(this)));
    }
    int applicationReads = 0;
};

TEST_F(RegisteredDll, TheHostCreatesTheServerByItsClsidAndActivatesIt) {
    ASSERT_EQ(CoInitialize(nullptr), S_OK);
    {
        com::ComPtr<IRxApplicationAddInServer> server;
        ASSERT_EQ(CoCreateInstance(kAddInClsid, nullptr, CLSCTX_INPROC_SERVER, kIIDIRxApplicationAddInServer,
                                   reinterpret_cast<void**>(server.Receive())),
                  S_OK);
        com::ComPtr<Site> site = com::DispatchObject<>::Make<Site>();
        EXPECT_EQ(server->Activate(site.Get(), VARIANT_TRUE), S_OK);
        EXPECT_EQ(site->applicationReads, 1) << "activation takes the application from the site";
        EXPECT_EQ(server->ExecuteCommand(1), S_OK);
        IDispatch* automation = nullptr;
        EXPECT_EQ(server->get_Automation(&automation), S_OK);
        EXPECT_EQ(automation, nullptr);

        // The same object through its dispinterface, as a late-binding host calls it.
        com::ComPtr<IDispatch> dispinterface = server.As<IDispatch>(kIIDApplicationAddInServer);
        ASSERT_TRUE(dispinterface);
        com::Dispatch(dispinterface).Invoke(kDispidDeactivate, DISPATCH_METHOD);

        using CanUnload = HRESULT(STDAPICALLTYPE*)();
        // Through void(*)(): GetProcAddress's type says nothing of the function's.
        auto canUnloadNow = reinterpret_cast<CanUnload>(reinterpret_cast<void (*)()>(
            GetProcAddress(GetModuleHandleW(DllPath().c_str()), "DllCanUnloadNow")));
        ASSERT_NE(canUnloadNow, nullptr);
        EXPECT_EQ(canUnloadNow(), S_FALSE) << "the server is alive";
        server.Reset();
        dispinterface.Reset();
        EXPECT_EQ(canUnloadNow(), S_OK) << "the server was released, and with it the application";
    }
    CoUninitialize();
}

// The DLL's add-in in a host: activated with the stand-in's site through COM, it defines its
// buttons through the site's factory and places them on the host's bars by name; a click
// reaches it and it answers on the desktop. Deactivation leaves the placed buttons.
TEST_F(RegisteredDll, TheDllsAddInPlacesItsButtonsInTheHost) {
    ASSERT_EQ(CoInitialize(nullptr), S_OK);
    {
        simhost::SimHost host;
        com::ComPtr<IRxApplicationAddInServer> server;
        ASSERT_EQ(CoCreateInstance(kAddInClsid, nullptr, CLSCTX_INPROC_SERVER, kIIDIRxApplicationAddInServer,
                                   reinterpret_cast<void**>(server.Receive())),
                  S_OK);
        com::ComPtr<IDispatch> site = hostface::SiteFace(host.Site());
        EXPECT_EQ(server->Activate(site.Get(), VARIANT_TRUE), S_OK);
        const std::string bars = host.DescribeBars();
        for (const char* placed :
             {"DLxDrawingAnnotationPanelCmdBar: DLxGeneralDimensionCmd, DLxBalloonCmd, "
              "DLxTextCmd, TarnwellCmd3\n",
              "AMxAssemblyPanelCmdBar: AMxPlaceComponentCmd, AMxCreateComponentCmd, "
              "AMxReplaceComponentCmd, TarnwellCmd1\n",
              "MBxSheetMetalFeatureCmdBar: MBxFaceCmd, MBxFlangeCmd, TarnwellCmd2\n", "Tarnwell:\n"})
            EXPECT_NE(bars.find(placed), std::string::npos) << placed << " in\n" << bars;
        // The main command with no document open: the add-in's message, in a real message box.
        std::vector<std::wstring> shown;
        tests::DialogDriver person(tests::WindowClass{L"#32770"}, [&](HWND box) {
            shown = tests::ChildTexts(box, L"Static");
            tests::Press(box, IDOK);
        });
        host.ClickButton("TarnwellCmd1");
        EXPECT_TRUE(person.Acted());
        EXPECT_NE(std::find(shown.begin(), shown.end(), L"An assembly document must be active."),
                  shown.end());
        EXPECT_EQ(server->Deactivate(), S_OK);
        EXPECT_EQ(host.DescribeBars(), bars);
        server.Reset();
    }
    CoUninitialize();
}

}  // namespace
}  // namespace win::server
