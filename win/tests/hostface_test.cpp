// The stand-in's face as any automation client meets it: names, numbers, assignments,
// identity, object arguments and connection points.
#include "win/hostface/HostFace.h"

#include <gtest/gtest.h>

#include "host/Codes.h"
#include "host/Document.h"
#include "host/Styles.h"
#include "tests/unit/simhost_fixture.h"
#include "win/com/ComObject.h"
#include "win/com/Dispatch.h"
#include "win/com/DispatchObject.h"
#include "win/com/HostEvents.h"

namespace win::hostface {
namespace {

using support::Variant;
using test_support::ErrorNumber;

com::ComPtr<IDispatch> DispatchOf(const Variant& value) {
    auto* object = dynamic_cast<const com::ComObject*>(value.ToObject().get());
    return object ? object->Dispatch() : nullptr;
}

class HostFaceTest : public simhost_test::SimHostTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
        SimHostTest::SetUp();
        site = SiteFace(host.Site());
        app = com::Dispatch(
            DispatchOf(com::Dispatch(site).Invoke(com::kDispidSiteApplication, DISPATCH_PROPERTYGET)));
    }
    void TearDown() override {
        app = com::Dispatch(nullptr);
        site.Reset();
        SimHostTest::TearDown();
        EXPECT_EQ(com::LiveObjectCount(), 0) << "a face was leaked";
        CoUninitialize();
    }
    com::Dispatch Get(const com::Dispatch& object, const char* member, const com::Arguments& args = {}) {
        return com::Dispatch(DispatchOf(object.Get(member, args)));
    }
    com::ComPtr<IDispatch> site;
    com::Dispatch app{nullptr};
};

TEST_F(HostFaceTest, AnswersTheHostsNamesInAnyCaseAndNothingElse) {
    host.Open("C:\\Work\\Gearbox.iam");
    com::Dispatch document = Get(app, "activedocument");
    EXPECT_EQ(document.Get("FullFileName"), Variant("C:\\Work\\Gearbox.iam"));
    EXPECT_EQ(document.Get("DocumentType"), Variant(host::kAssemblyDocumentObject));
    EXPECT_EQ(ErrorNumber([&] { document.Get("Path"); }), 438) << "not a member of the host's document";
    // A read-only member refuses an assignment as the host does; a read-write one takes it.
    EXPECT_NE(ErrorNumber([&] { document.Put("FullFileName", "C:\\x.iam"); }), 0);
    document.Put("DisplayName", "GB-1000");
    EXPECT_EQ(host.Application()->ActiveDocument()->DisplayName(), "GB-1000");
    EXPECT_EQ(ErrorNumber([&] { Get(app, "Documents").Get("Item", {}); }), 450) << "Item needs its index";
}

TEST_F(HostFaceTest, OneObjectOneFaceAndNothingForNull) {
    EXPECT_EQ(app.Get("ActiveDocument").ToObject(), nullptr) << "no document: Nothing";
    host.Open("C:\\Work\\Gearbox.iam");
    com::Dispatch first = Get(app, "ActiveDocument");
    com::Dispatch second = Get(Get(app, "Documents"), "Open", {"C:\\Work\\Gearbox.iam"});
    EXPECT_EQ(first.Object().Get(), second.Object().Get());
}

TEST_F(HostFaceTest, RenderStyleMembersAnswerByTheHostsNumbers) {
    host.Open("C:\\Work\\Spur Gear.ipt");
    com::Dispatch style = Get(Get(Get(app, "ActiveDocument"), "RenderStyles"), "Add", {"Blue"});
    constexpr DISPID kOpacity = 0x3006C09, kGetDiffuse = 0x3006C03, kSetDiffuse = 0x3006C04,
                     kName = 0x3006C10;
    style.Invoke(kOpacity, DISPATCH_PROPERTYPUT, {}, {{DISPID_PROPERTYPUT, 0.5}});
    style.Invoke(kSetDiffuse, DISPATCH_METHOD, {std::int16_t(0), std::int16_t(0), std::int16_t(255)});
    EXPECT_EQ(style.Invoke(kName, DISPATCH_PROPERTYGET), Variant("Blue"));
    BYTE red = 9, green = 9, blue = 9;
    style.Invoke(kGetDiffuse, DISPATCH_METHOD,
                 {com::Argument::Out(&red), com::Argument::Out(&green), com::Argument::Out(&blue)});
    EXPECT_EQ((host::Rgb{red, green, blue}), (host::Rgb{0, 0, 255}));
    auto direct = host.Application()->ActiveDocument()->RenderStyles()->Item("Blue");
    EXPECT_EQ(direct->Opacity(), 0.5);
    // Colours come out only through variables passed by reference.
    EXPECT_NE(ErrorNumber([&] { style.Invoke(kGetDiffuse, DISPATCH_METHOD, {0, 0, 0}); }), 0);
}

// Object arguments must be the host's own objects: another component's object is a type
// mismatch, Nothing is Nothing.
TEST_F(HostFaceTest, ObjectArgumentsAreTheHostsOwn) {
    host.Open("C:\\Work\\Spur Gear.ipt");
    com::Dispatch part = Get(app, "ActiveDocument");
    com::Dispatch transactions = Get(app, "TransactionManager");
    Get(transactions, "StartTransaction",
        {Variant(std::make_shared<com::ComObject>(part.Object())), "Rename"})
        .Call("End");
    Variant foreign(std::make_shared<com::ComObject>(site));  // a site is no document
    EXPECT_EQ(ErrorNumber([&] {
                  transactions.Call("StartTransaction", {foreign, "Rename"});
              }),
              support::errors::kTypeMismatch);
    com::Dispatch material = Get(Get(part, "ComponentDefinition"), "Material");
    material.PutRef("RenderStyle", Variant(std::shared_ptr<support::Object>()));
    EXPECT_EQ(host.Application()->ActiveDocument()->ComponentDefinition()->Material()->RenderStyle(),
              nullptr);
}

// A sink of ours on the face's connection points, counting what arrives.
class CountingSink : public com::DispatchObject<> {
public:
    CountingSink(const IID& iid, DISPID event) : iid_(iid), event_{event, L"Event"} {}
    int calls = 0;
    std::function<void()> during;  // runs inside the event

protected:
    std::span<const com::Member> Members() const override { return {&event_, 1}; }
    Variant Call(DISPID, WORD, const com::InvokeArgs&) override {
        ++calls;
        if (during) during();
        return {};
    }
    bool Answers(REFIID iid) const override { return IsEqualIID(iid, iid_); }

private:
    IID iid_;
    com::Member event_;
};

TEST_F(HostFaceTest, ConnectionPointsAdviseUnadviseAndRaiseToASnapshot) {
    com::Dispatch input = Get(Get(app, "CommandManager"), "UserInputEvents");
    auto container = input.Object().As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    ASSERT_TRUE(container);
    com::ComPtr<IConnectionPoint> point;
    ASSERT_EQ(container->FindConnectionPoint(com::kIIDUserInputEventsSink, point.Receive()), S_OK);
    com::ComPtr<IConnectionPoint> none;
    EXPECT_EQ(container->FindConnectionPoint(com::kIIDSelectEventsSink, none.Receive()),
              CONNECT_E_NOCONNECTION);

    auto wrongSink =
        com::DispatchObject<>::Make<CountingSink>(com::kIIDSelectEventsSink, com::kDispidOnSelect);
    DWORD cookie = 0;
    EXPECT_EQ(point->Advise(static_cast<IDispatch*>(wrongSink.Get()), &cookie), CONNECT_E_CANNOTCONNECT);

    auto first =
        com::DispatchObject<>::Make<CountingSink>(com::kIIDUserInputEventsSink, com::kDispidOnContextMenu);
    auto second =
        com::DispatchObject<>::Make<CountingSink>(com::kIIDUserInputEventsSink, com::kDispidOnContextMenu);
    DWORD firstCookie = 0, secondCookie = 0;
    ASSERT_EQ(point->Advise(static_cast<IDispatch*>(first.Get()), &firstCookie), S_OK);
    ASSERT_EQ(point->Advise(static_cast<IDispatch*>(second.Get()), &secondCookie), S_OK);
    EXPECT_NE(firstCookie, secondCookie);
    // The first sink unadvises the second during the event: the event still reaches it.
    first->during = [&] { EXPECT_EQ(point->Unadvise(secondCookie), S_OK); };
    host.ContextMenu();
    EXPECT_EQ(first->calls, 1);
    EXPECT_EQ(second->calls, 1);
    first->during = nullptr;
    host.ContextMenu();
    EXPECT_EQ(second->calls, 1) << "unadvised";
    EXPECT_EQ(point->Unadvise(secondCookie), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(point->Unadvise(firstCookie), S_OK);

    // The points can be listed and the container reached from one.
    com::ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(points.Receive()), S_OK);
    com::ComPtr<IConnectionPoint> listed;
    ULONG fetched = 0;
    EXPECT_EQ(points->Next(1, listed.Receive(), &fetched), S_OK);
    EXPECT_EQ(listed.Get(), point.Get());
    EXPECT_EQ(points->Next(1, listed.Receive(), &fetched), S_FALSE);
    EXPECT_EQ(fetched, 0u);
    com::ComPtr<IConnectionPointContainer> back;
    ASSERT_EQ(point->GetConnectionPointContainer(back.Receive()), S_OK);
    EXPECT_EQ(back.Get(), container.Get());
}

}  // namespace
}  // namespace win::hostface
