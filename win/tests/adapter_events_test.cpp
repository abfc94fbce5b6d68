// The host's events through connection points, into the add-in's handlers.
#include <gtest/gtest.h>

#include "host/Codes.h"
#include "host/Commands.h"
#include "host/Component.h"
#include "tests/unit/simhost_fixture.h"
#include "win/adapter/Adapted.h"
#include "win/adapter/HostAdapter.h"
#include "win/com/ComObject.h"
#include "win/com/DispatchObject.h"
#include "win/com/HostEvents.h"
#include "win/hostface/EventFace.h"
#include "win/hostface/Faces.h"
#include "win/hostface/HostFace.h"

// An object of the test's own that raises the user-input events, through the face's points.
namespace win::hostface {
struct FakeUserInput {};
}  // namespace win::hostface
TW_FACE_TABLE(win::hostface::FakeUserInput) {
    return {};
}

namespace win::adapter {
namespace {

class AdapterEventsTest : public simhost_test::SimHostTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
        SimHostTest::SetUp();
        site = AdaptSite(hostface::SiteFace(host.Site()), "{00000000-0000-0000-0000-000000000001}");
        app = site->Application();
    }
    void TearDown() override {
        app.reset();
        site.reset();
        SimHostTest::TearDown();
        EXPECT_EQ(com::LiveObjectCount(), 0) << "a COM object was leaked";
        CoUninitialize();
    }
    std::shared_ptr<host::AddInSite> site;
    std::shared_ptr<host::Application> app;
};

// The handler object's event interface is learnt from the object, placed through its
// control definition, and a click reaches the add-in; a host that refuses icons says so.
TEST_F(AdapterEventsTest, ButtonsOfTheSitesFactoryClickAndKeepTheHostsRefusal) {
    auto button = site->CreateButtonDefinition("TarnwellCmd1", host::kFileOperationsCmdType, "Tarnwell",
                                               "Tarnwell", "Tarnwell", true);
    EXPECT_TRUE(button->HasIcon());
    EXPECT_EQ(button->InternalName(), "TarnwellCmd1");
    auto bar = app->UserInterfaceManager()->CommandBars()->Item("AMxAssemblyPanelCmdBar");
    auto control = bar->Controls()->Add(host::kBarControlButton, button);
    EXPECT_EQ(control->ControlType(), host::kBarControlButton);
    EXPECT_EQ(control->ControlDefinition()->DisplayName(), "Tarnwell");
    int clicks = 0, executions = 0;
    auto subscription = button->OnExecute().Subscribe([&] { ++clicks; });
    // The placed definition raises the later releases' OnExecute for the same click.
    auto definition = control->ControlDefinition();
    auto execution = definition->OnExecute().Subscribe([&] { ++executions; });
    host.ClickButton("TarnwellCmd1");
    host.ClickButton("TarnwellCmd1");
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(executions, 2);

    host.SetRefuseIcons(true);
    EXPECT_EQ(test_support::ErrorNumber(
                  [&] { site->CreateButtonDefinition("TarnwellCmd2", 4, "P", "", "", true); }),
              support::errors::kUnexpected);
    EXPECT_FALSE(site->CreateButtonDefinition("TarnwellCmd2", 4, "P", "", "", false)->HasIcon());
}

// The add-in lets its button go inside the button's own click: the sink is cut off and
// unadvised while the host still raises the event through it, and nothing more arrives.
TEST_F(AdapterEventsTest, ASinkReleasedWhileItsEventIsRaisedHearsNoMore) {
    auto button =
        site->CreateButtonDefinition("TarnwellDone", host::kFileOperationsCmdType, "Close", "", "", false);
    app->UserInterfaceManager()
        ->CommandBars()
        ->Item("AMxWeldmentCmdBar")
        ->Controls()
        ->Add(host::kBarControlButton, button);
    int clicks = 0;
    support::Connection subscription = button->OnExecute().Subscribe([&] {
        ++clicks;
        subscription.Reset();
        button.reset();  // the last reference: the adapted button and its sink's advice go now
    });
    host.ClickButton("TarnwellDone");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(button, nullptr);
    host.ClickButton("TarnwellDone");
    EXPECT_EQ(clicks, 1);
}

TEST_F(AdapterEventsTest, SelectionsAndContextMenusArriveAsHostObjects) {
    host.Open("C:\\Work\\Gearbox.iam");
    auto interaction = app->CommandManager()->CreateInteractionEvents();
    auto select = interaction->SelectEvents();
    select->AddSelectionFilter(host::kAssemblyLeafOccurrenceFilter);
    interaction->SetSelectionEnabled(true);
    host::ObjectList picked;
    int preSelected = 0;
    auto onSelect = select->OnSelect().Subscribe([&](const host::ObjectList& list) { picked = list; });
    auto onPreSelect = select->OnPreSelect().Subscribe([&](host::ObjectPtr entity) {
        preSelected += entity != nullptr;
        select->ResetPreSelection();
    });
    int terminated = 0;
    auto onTerminate = interaction->OnTerminate().Subscribe([&] { ++terminated; });
    interaction->Start();
    host.Pick({"Shaft Assembly:1/Spur Gear:1", "Housing:1"});
    ASSERT_EQ(picked.size(), 2u);
    auto gear = std::dynamic_pointer_cast<host::ComponentOccurrence>(picked[0]);
    ASSERT_NE(gear, nullptr) << "adapted as what its Type says";
    EXPECT_EQ(gear->Name(), "Spur Gear:1");
    EXPECT_EQ(gear->Type(), host::kComponentOccurrenceProxyObject);
    EXPECT_EQ(preSelected, 2);
    EXPECT_EQ(select->SelectedEntities(), picked) << "the same objects by any route";
    host.Escape();
    EXPECT_EQ(terminated, 1);

    // The add-in holds what it listens to, as a WithEvents variable does.
    std::string barName;
    auto userInput = app->CommandManager()->UserInputEvents();
    auto menu = userInput->OnContextMenu().Subscribe(
        [&](std::int32_t, host::ObjectPtr, std::shared_ptr<host::CommandBar> bar) { barName = bar->Name(); });
    host.ContextMenu();
    EXPECT_FALSE(barName.empty()) << "the bar about to be shown reaches the handler";
}

// Older releases raise OnContextMenuOld, later ones OnContextMenu: the add-in hears both.
TEST(ContextMenuEvents, BothOfTheHostsContextMenuEventsReachTheAddIn) {
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    {
        using Source = hostface::EventFace<hostface::FakeUserInput>;
        auto source = com::ComPtr<Source>::Adopt(
            new Source(std::make_shared<hostface::FakeUserInput>(), {com::kIIDUserInputEventsSink}));
        auto input = AdaptUserInputEvents(
            std::make_shared<AdapterContext>(),
            support::Variant(std::make_shared<com::ComObject>(com::ComPtr<IDispatch>(source.Get()))));
        std::vector<std::int32_t> devices;
        auto menu = input->OnContextMenu().Subscribe(
            [&](std::int32_t device, host::ObjectPtr, std::shared_ptr<host::CommandBar>) {
                devices.push_back(device);
            });
        support::Variant nothing{std::shared_ptr<support::Object>()};
        source->Point(0).Raise(com::kDispidOnContextMenuOld, {std::int32_t(1), nothing, nothing});
        source->Point(0).Raise(com::kDispidOnContextMenu, {std::int32_t(2), nothing, nothing});
        EXPECT_EQ(devices, (std::vector<std::int32_t>{1, 2}));
    }
    EXPECT_EQ(com::LiveObjectCount(), 0);
    CoUninitialize();
}

// A host of a later release, as far as making a button goes: its site has no
// CreateButtonDefinition; its application's command manager has ControlDefinitions. One
// object plays the site, the application, the command manager, the collection and the
// definition it returns.
class LaterHost : public com::DispatchObject<> {
public:
    std::vector<support::Variant> added;  // AddButtonDefinition's arguments

protected:
    std::span<const com::Member> Members() const override {
        static const com::Member members[] = {{0x03001401, L"Application"},
                                              {1, L"CommandManager"},
                                              {2, L"ControlDefinitions"},
                                              {3, L"AddButtonDefinition"},
                                              {4, L"InternalName"}};
        return members;
    }
    support::Variant Call(DISPID id, WORD, const com::InvokeArgs& args) override {
        if (id == 3)
            for (std::size_t i = 0; i < args.Count(); ++i) added.push_back(args.At(i));
        if (id == 4) return added.at(1);
        return support::Variant(std::make_shared<com::ComObject>(com::ComPtr<IDispatch>(this)));
    }
    bool Answers(REFIID) const override { return false; }
};

TEST(LaterHostButtons, AHostWithoutTheSitesFactoryGetsTheLaterOne) {
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    {
        auto later = com::DispatchObject<>::Make<LaterHost>();
        auto site = AdaptSite(later, "{00000000-0000-0000-0000-000000000002}");
        site->Application();
        auto button =
            site->CreateButtonDefinition("TarnwellCmd1", 4, "Tarnwell", "Description", "Tip", false);
        // DisplayName first, then InternalName, Classification, ClientId; no icon: left out.
        EXPECT_EQ(later->added, (std::vector<support::Variant>{"Tarnwell", "TarnwellCmd1", std::int32_t(4),
                                                               "{00000000-0000-0000-0000-000000000002}",
                                                               "Description", "Tip", support::Variant()}));
        EXPECT_EQ(button->InternalName(), "TarnwellCmd1");
    }
    EXPECT_EQ(com::LiveObjectCount(), 0);
    CoUninitialize();
}

}  // namespace
}  // namespace win::adapter
