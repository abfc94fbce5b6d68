#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "support/Error.h"
#include "tests/unit/test_support.h"
#include "win/com/Bstr.h"
#include "win/com/ComObject.h"
#include "win/com/Dispatch.h"
#include "win/server/AddInServer.h"
#include "win/server/Registration.h"

namespace win::server {
namespace {

using support::Variant;

// Records what the server forwards; fails on request.
class RecordingAddIn : public AddIn {
public:
    explicit RecordingAddIn(std::vector<std::string>& log) : log_(log) {}
    void Activate(const com::ComPtr<IDispatch>& site, bool firstTime) override {
        log_.push_back(std::string("activate ") + (site ? "site" : "nothing") + (firstTime ? " first" : ""));
        if (failure) throw *failure;
    }
    void Deactivate() override { log_.push_back("deactivate"); }
    void ExecuteCommand(std::int32_t id) override { log_.push_back("execute " + std::to_string(id)); }
    std::optional<support::Error> failure;

private:
    std::vector<std::string>& log_;
};

class Site : public com::DispatchObject<> {
public:
    std::span<const com::Member> Members() const override { return {}; }
    Variant Call(DISPID, WORD, const com::InvokeArgs&) override { return {}; }
    bool Answers(REFIID) const override { return false; }
};

class AddInServerTest : public ::testing::Test {
protected:
    void SetUp() override {
        CoInitialize(nullptr);
        auto addIn = std::make_unique<RecordingAddIn>(log);
        recorder = addIn.get();
        server = com::DispatchObject<IRxApplicationAddInServer>::Make<AddInServer>(std::move(addIn));
    }
    void TearDown() override {
        server.Reset();
        site.Reset();
        CoUninitialize();
        EXPECT_EQ(com::LiveObjectCount(), 0);
    }
    std::vector<std::string> log;
    RecordingAddIn* recorder = nullptr;
    com::ComPtr<AddInServer> server;
    com::ComPtr<Site> site = com::DispatchObject<>::Make<Site>();
};

TEST_F(AddInServerTest, ForwardsTheHostsCallsThroughTheVtableAndIDispatch) {
    EXPECT_EQ(server->Activate(site.Get(), VARIANT_TRUE), S_OK);
    EXPECT_EQ(server->ExecuteCommand(7), S_OK);
    EXPECT_EQ(server->Deactivate(), S_OK);

    com::Dispatch byName(server);
    Variant siteObject(std::make_shared<com::ComObject>(com::ComPtr<IDispatch>(site.Get())));
    byName.Call("Activate", {siteObject, false});
    byName.Invoke(kDispidExecuteCommand, DISPATCH_METHOD, {std::int32_t(8)});
    byName.Call("deactivate");
    EXPECT_EQ(log, (std::vector<std::string>{"activate site first", "execute 7", "deactivate",
                                             "activate site", "execute 8", "deactivate"}));
}

TEST_F(AddInServerTest, AutomationIsNothing) {
    IDispatch* automation = reinterpret_cast<IDispatch*>(1);
    EXPECT_EQ(server->get_Automation(&automation), S_OK);
    EXPECT_EQ(automation, nullptr);
    Variant viaDispatch = com::Dispatch(server).Get("Automation");
    ASSERT_EQ(viaDispatch.Type(), support::VariantType::Object);
    EXPECT_EQ(viaDispatch.ToObject(), nullptr);
}

TEST_F(AddInServerTest, AnswersTheHostsInterfacesOnly) {
    for (const IID& iid : {kIIDIRxApplicationAddInServer, kIIDApplicationAddInServer, IID_IDispatch}) {
        com::ComPtr<IUnknown> answer = server.As<IUnknown>(iid);
        EXPECT_TRUE(answer);
    }
    EXPECT_FALSE(server.As<IUnknown>(IID_IClassFactory));
    com::ComPtr<ISupportErrorInfo> errors = server.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
    ASSERT_TRUE(errors);
    EXPECT_EQ(errors->InterfaceSupportsErrorInfo(kIIDIRxApplicationAddInServer), S_OK);
}

TEST_F(AddInServerTest, TheAddInsErrorsReachTheHostWithNumberAndText) {
    recorder->failure = support::Error(support::errors::kUnexpected, "The icon was refused");
    EXPECT_EQ(server->Activate(site.Get(), VARIANT_TRUE), E_UNEXPECTED);
    com::ComPtr<IErrorInfo> info;
    ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
    com::Bstr description;
    info->GetDescription(description.Receive());
    EXPECT_EQ(description.ToUtf8(), "The icon was refused");

    Variant siteObject(std::make_shared<com::ComObject>(com::ComPtr<IDispatch>(site.Get())));
    try {
        com::Dispatch(server).Call("Activate", {siteObject, true});
        FAIL() << "no error";
    } catch (const support::Error& e) {
        EXPECT_EQ(e.Number(), support::errors::kUnexpected);
        EXPECT_EQ(e.Description(), "The icon was refused");
    }
    EXPECT_EQ(test_support::ErrorNumber([&] { com::Dispatch(server).Call("Activate", {siteObject}); }), 450);
}

// A key tree of its own under HKEY_CURRENT_USER, removed whole.
TEST(DeleteKeyTree, RemovesEveryLevelAndLeavesSiblings) {
    const std::wstring root = L"Software\\TarnwellTest";
    for (const wchar_t* key : {L"\\Doomed\\A\\B\\C", L"\\Doomed\\A\\D", L"\\Doomed\\E", L"\\Kept"}) {
        HKEY h;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, (root + key).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                                  nullptr, &h, nullptr),
                  ERROR_SUCCESS);
        RegSetValueExW(h, L"Value", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"x"), 4);
        RegCloseKey(h);
    }
    HKEY parent;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, root.c_str(), 0, KEY_ALL_ACCESS, &parent), ERROR_SUCCESS);
    EXPECT_EQ(DeleteKeyTree(parent, L"Doomed"), ERROR_SUCCESS);
    HKEY probe;
    EXPECT_EQ(RegOpenKeyExW(parent, L"Doomed", 0, KEY_READ, &probe), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(RegOpenKeyExW(parent, L"Kept", 0, KEY_READ, &probe), ERROR_SUCCESS);
    RegCloseKey(probe);
    EXPECT_EQ(DeleteKeyTree(parent, L"Doomed"), ERROR_FILE_NOT_FOUND);
    RegCloseKey(parent);
    EXPECT_EQ(DeleteKeyTree(HKEY_CURRENT_USER, root), ERROR_SUCCESS);
}

}  // namespace
}  // namespace win::server
