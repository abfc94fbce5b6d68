// The host's events through connection points, into the add-in's handlers.
#include <gtest/gtest.h>

#include "host/Codes.h"
#include "host/Commands.h"
#include "host/Component.h"
#include "tests/unit/simhost_fixture.h"
#include "win/adapter/HostAdapter.h"
#include "win/com/DispatchObject.h"
#include "win/hostface/HostFace.h"

namespace win::adapter {
namespace {

class AdapterEventsTest : public simhost_test::SimHostTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
        SimHostTest::SetUp();
        site = AdaptSite(hostface::SiteFace(host.Site()));
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
    int clicks = 0;
    auto subscription = button->OnExecute().Subscribe([&] { ++clicks; });
    host.ClickButton("TarnwellCmd1");
    host.ClickButton("TarnwellCmd1");
    EXPECT_EQ(clicks, 2);

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

}  // namespace
}  // namespace win::adapter
