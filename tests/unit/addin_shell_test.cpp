#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <sstream>

#include "addin/clsAppCmd.h"
#include "addin/shared/clsPickOccur.h"
#include "addin/shared/clsSelect.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "settings/Settings.h"
#include "simhost/SimHost.h"
#include "test_support.h"
#include "ui/headless/HeadlessPlatform.h"

namespace {

namespace fs = std::filesystem;

// The user's actions while the add-in waits, played one per wait.
class QueuedInput : public ui::headless::UserInput {
public:
    std::deque<std::function<void()>> actions;
    bool PlayNext(const std::string&) override {
        if (actions.empty()) return false;
        auto next = std::move(actions.front());
        actions.pop_front();
        next();
        return true;
    }
};

class AddinShellTest : public ::testing::Test {
protected:
    test_support::ScratchFolder scratch{"shell"};
    fs::path root = scratch.Path();
    std::ostringstream out;
    ui::headless::Transcript transcript{out};
    ui::headless::HeadlessPlatform platform{transcript};
    QueuedInput input;
    simhost::SimHost host;
    std::unique_ptr<settings::IniFileStore> store;
    std::unique_ptr<addin::clsAppCmd> server;

    void SetUp() override {
        fs::copy(fs::path(TARNWELL_SOURCE_DIR) / "examples" / "workspace", root / "drive",
                 fs::copy_options::recursive);
        host.MapDrive('C', root / "drive");
        platform.SetUserInput(&input);
        store = std::make_unique<settings::IniFileStore>(root / "settings.ini");
        server = std::make_unique<addin::clsAppCmd>(addin::Environment{platform, *store, host.FileSystem()});
    }
    void TearDown() override {
        server.reset();
        host.CloseAll();
    }
    addin::AddinState& State() { return server->State(); }
    void OpenGearbox() { host.Open("C:\\Work\\Gearbox.iam"); }
};

TEST_F(AddinShellTest, BlockingPickReturnsTheFirstOfSeveralOrNothingOnEscape) {
    server->Activate(*host.Site(), true);
    OpenGearbox();
    addin::clsSelect select(State());

    input.actions.push_back([&] { host.Pick({"Motor Bracket:1", "Housing:1/Cover Plate:1"}); });
    auto picked =
        std::dynamic_pointer_cast<host::ComponentOccurrence>(select.Pick(host::kAssemblyOccurrenceFilter));
    ASSERT_NE(picked, nullptr);
    EXPECT_EQ(picked->Name(), "Motor Bracket:1");
    EXPECT_FALSE(host.InteractionRunning()) << "the pick stops its interaction";

    input.actions.push_back([&] { host.Escape(); });
    EXPECT_EQ(select.Pick(host::kAssemblyLeafOccurrenceFilter), nullptr);
    EXPECT_EQ(select.bStillSelecting, addin::kVbFalse);

    // Nothing left for the user to do: the wait is a script error, never a hang.
    EXPECT_THROW(select.Pick(host::kAssemblyOccurrenceFilter), ui::headless::ScriptError);
}

// Clicking "Select" again while a pick waits asks for a pick inside the pick: the inner
// one must not take over the events the outer one reads after it.
TEST_F(AddinShellTest, APickAskedForWhileOneWaitsKeepsTheFirstWaiting) {
    server->Activate(*host.Site(), true);
    OpenGearbox();
    addin::clsSelect select(State());
    bool innerAnswered = false;
    host::ObjectPtr inner;
    input.actions.push_back([&] {
        inner = select.Pick(host::kAssemblyOccurrenceFilter);
        innerAnswered = true;
    });
    input.actions.push_back([&] { host.Pick({"Motor Bracket:1"}); });
    auto picked =
        std::dynamic_pointer_cast<host::ComponentOccurrence>(select.Pick(host::kAssemblyOccurrenceFilter));
    EXPECT_TRUE(innerAnswered);
    EXPECT_EQ(inner, nullptr);
    ASSERT_NE(picked, nullptr);
    EXPECT_EQ(picked->Name(), "Motor Bracket:1");
    EXPECT_EQ(host.InteractionsCreated(), 1);
    EXPECT_FALSE(select.Waiting());
}

TEST_F(AddinShellTest, NonBlockingPickStartsOnceAndReportsEverySelection) {
    server->Activate(*host.Site(), true);
    OpenGearbox();
    addin::clsPickOccur pick(State());
    std::vector<std::string> seen;
    auto sub = pick.OnPicked.Subscribe([&] {
        auto occurrence = std::dynamic_pointer_cast<host::ComponentOccurrence>(pick.oObjectSelected);
        seen.push_back(occurrence ? occurrence->Name() : "?");
    });

    pick.StopPick();  // never started: only clears the flag
    EXPECT_EQ(host.InteractionsCreated(), 0);

    pick.StartPick(host::kAssemblyLeafOccurrenceFilter);
    pick.StartPick(host::kAssemblyLeafOccurrenceFilter);
    EXPECT_EQ(host.InteractionsCreated(), 1) << "a second start creates no second interaction";

    host.Pick({"Shaft Assembly:1/Spur Gear:1"});
    host.Pick({"Housing:1"});
    EXPECT_EQ(seen, (std::vector<std::string>{"Spur Gear:1", "Housing:1"}));
    EXPECT_EQ(pick.oObjectSelected, nullptr) << "only set while the event runs";
    EXPECT_TRUE(pick.Selecting());

    host.Escape();
    EXPECT_FALSE(pick.Selecting());
    pick.StartPick(host::kAssemblyLeafOccurrenceFilter);
    EXPECT_EQ(host.InteractionsCreated(), 2) << "after termination a start begins a new interaction";
}

TEST_F(AddinShellTest, IconRefusalStillPlacesEveryButtonAndDeactivateKeepsOnlyTheDrawingButton) {
    host.SetRefuseIcons(true);
    server->Activate(*host.Site(), true);
    auto bars = host.DescribeBars();
    EXPECT_NE(
        bars.find(
            "AMxAssemblyPanelCmdBar: AMxPlaceComponentCmd, AMxCreateComponentCmd, AMxReplaceComponentCmd, "
            "TarnwellCmd1\n"),
        std::string::npos)
        << bars;
    EXPECT_NE(bars.find("MBxSheetMetalFeatureCmdBar: MBxFaceCmd, MBxFlangeCmd, TarnwellCmd2"),
              std::string::npos);
    EXPECT_NE(bars.find("DLxDrawingViewsPanelCmdBar: DLxBaseViewCmd, DLxProjectedViewCmd, DLxSectionViewCmd, "
                        "TarnwellCmd3"),
              std::string::npos);
    EXPECT_NE(bars.find("Tarnwell:"), std::string::npos) << "the add-in's own bar exists, empty";

    OpenGearbox();
    host.ClickButton("TarnwellCmd1");
    EXPECT_NE(State().workingDocument, nullptr);
    server->Deactivate();
    EXPECT_EQ(server->HeldReferences(), std::vector<std::string>{"obuttonHandlerIDW"});
    EXPECT_EQ(server->Automation(), nullptr);
}

}  // namespace
