// What the transcripts show poorly: failures reaching the caller, the exact folder
// comparison of packing, placements in top-level coordinates, and the attribute helpers'
// silent cases. Runs on tests/fixtures/copy as drive C: with an empty drive D:.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "addin/shared/AddinState.h"
#include "copy/engine/PackingWalk.h"
#include "copy/engine/RenamingWalk.h"
#include "copy/engine/modBuildAssembly.h"
#include "host/Application.h"
#include "host/Codes.h"
#include "host/Component.h"
#include "host/Document.h"
#include "properties/table/AttributeHelpers.h"
#include "settings/Settings.h"
#include "simhost/SimHost.h"
#include "test_support.h"
#include "ui/headless/HeadlessPlatform.h"

namespace copy_test {
namespace {

namespace fs = std::filesystem;

// The walks know no dialog: their progress lines land here.
class RecordedProgress : public copy::Progress {
public:
    std::vector<std::string> lines;
    void ShowStatus(const std::string& line) override { lines.push_back(line); }
};

class CopyEngine : public ::testing::Test {
protected:
    test_support::ScratchFolder scratch{"copy"};
    fs::path root = scratch.Path();
    RecordedProgress progress;
    std::ostringstream out;
    ui::headless::Transcript transcript{out};
    ui::headless::HeadlessPlatform platform{transcript};
    simhost::SimHost host;
    std::unique_ptr<settings::IniFileStore> settings;
    std::unique_ptr<addin::AddinState> state;

    void SetUp() override {
        fs::create_directories(root / "D");
        fs::copy(fs::path(TARNWELL_SOURCE_DIR) / "tests/fixtures/copy", root / "C",
                 fs::copy_options::recursive);
        host.MapDrive('C', root / "C");
        host.MapDrive('D', root / "D");
        host.SetTemplatesPath("C:\\Templates\\");
        settings = std::make_unique<settings::IniFileStore>(root / "settings.ini");
        state =
            std::make_unique<addin::AddinState>(addin::Environment{platform, *settings, host.FileSystem()});
        state->app = host.Application();
    }
    void TearDown() override {
        state.reset();
        host.CloseAll();
    }
    copy::WalkContext Context() { return {*state->app, host.FileSystem(), platform, progress}; }
    host::DocumentPtr Open(const std::string& path) { return state->app->Documents()->Open(path, true); }
    bool Exists(const std::string& path) { return host.FileSystem().FileExists(path); }
    bool Said(const std::string& text) const { return out.str().find(text) != std::string::npos; }
};

TEST_F(CopyEngine, AFailingSaveStopsTheRenamingWalkAndReachesTheCaller) {
    host.FailSaveOf("D:\\!New-Arm-001.iam");
    auto frame = Open("C:\\Work\\Frame.iam");
    EXPECT_THROW(copy::RecurseOccurrences(Context(), *frame, "!New-", "-001", "D:"), support::Error);
    EXPECT_TRUE(Exists("D:\\!New-Bracket-001.ipt"));  // copied before the arm
    EXPECT_FALSE(Exists("D:\\!New-Plate-001.ipt"));   // never reached
    EXPECT_EQ(progress.lines.front(), "Saving: D:\\!New-Bolt-001.ipt");
    EXPECT_EQ(progress.lines.back(), "Saving: D:\\!New-Arm-001.iam");
}

TEST_F(CopyEngine, PackingRefusesTheSourceFolderExactlyAndStartsNothingWhileStopped) {
    auto cart = Open("C:\\Cart\\Cart.iam");
    bool stop = false;
    copy::PackDocument(Context(), *cart, "C:\\Cart", copy::PackSource::Memory, stop);
    EXPECT_TRUE(Said("msgbox \"Source and Destination directories cannot be the same\""));
    EXPECT_TRUE(stop);
    EXPECT_FALSE(Exists("C:\\Cart\\Wheel.ipt"));

    copy::PackDocument(Context(), *cart, "D:\\", copy::PackSource::Memory, stop);
    EXPECT_FALSE(Exists("D:\\Cart.iam"));

    // The same folder in another letter case is another folder to the comparison.
    stop = false;
    out.str("");
    copy::PackDocument(Context(), *cart, "c:\\cart\\", copy::PackSource::Memory, stop);
    EXPECT_FALSE(Said("Source and Destination"));
}

// Arm:2 is turned a quarter about z, (x, y) -> (-y, x), and moved to (50, 100).
host::Matrix InTurnedArm(double x, double y, double z) {
    host::Matrix m = host::Matrix::Translation(50 - y, 100 + x, z);
    m.cell[0][0] = 0, m.cell[0][1] = -1, m.cell[1][0] = 1, m.cell[1][1] = 0;
    return m;
}

TEST_F(CopyEngine, BuildPlacesEveryVisiblePartAtItsTopLevelPositionGroundedOncePerBuild) {
    auto frame = Open("C:\\Work\\Frame.iam");
    auto built = copy::modBuildAssembly::Build(*state->app, *frame->ComponentDefinition()->Occurrences());
    auto placed = built->ComponentDefinition()->Occurrences();
    ASSERT_EQ(placed->Count(), 11);  // 5 bolts; plate, vendor bolt and pin of each arm; no bracket
    std::vector<std::pair<int, host::Matrix>> expected = {{3, host::Matrix::Translation(30, 0, 0)},
                                                          {6, host::Matrix::Translation(0, 105, 0)},
                                                          {8, host::Matrix::Translation(1, 100, 10)},
                                                          {9, InTurnedArm(0, 5, 0)},
                                                          {10, InTurnedArm(2, 2, 0)},
                                                          {11, InTurnedArm(1, 0, 10)}};
    for (const auto& [index, matrix] : expected)
        EXPECT_TRUE(placed->Item(index)->Transformation() == matrix) << index;
    for (std::int32_t i = 1; i <= placed->Count(); ++i) EXPECT_TRUE(placed->Item(i)->Grounded()) << i;

    auto again = copy::modBuildAssembly::Build(*state->app, *frame->ComponentDefinition()->Occurrences());
    EXPECT_EQ(again->ComponentDefinition()->Occurrences()->Count(), 11);
}

TEST_F(CopyEngine, AttributesAreReplacedInPlaceAndNeverLandOnPresentationsOrDrawings) {
    auto bracket = Open("C:\\Work\\Bracket.ipt");
    properties::SetAttribute(*state->app, "Tarnwell", *bracket, "IDWFile", "Bracket Rev B.idw");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *bracket, "IDWFile"), "Bracket Rev B.idw");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *bracket, "IDWPath"), "C:\\Drawings\\");
    EXPECT_EQ(properties::GetAttribute("Tarnwell", *bracket, "Other"), "");
    EXPECT_EQ(properties::GetAttribute("tarnwell", *bracket, "IDWFile"), "");

    auto presentation = host.NewDocument(host::kPresentationDocumentObject);
    properties::SetAttribute(*state->app, "Tarnwell", *presentation, "IDWFile", "x.idw");
    EXPECT_EQ(state->app->StatusBarText(), "Presentation Files are not linked");
    auto drawing = Open("C:\\Work\\Frame.idw");
    EXPECT_NO_THROW(properties::SetAttribute(*state->app, "Tarnwell", *drawing, "IDWFile", "x.idw"));
}

}  // namespace
}  // namespace copy_test
