// The part properties dialog where a transcript would test it poorly: its refusal to open
// while a command is active, and stored positions that a window cannot take.
#include <gtest/gtest.h>

#include "addin/shared/DialogPosition.h"
#include "addin_state_fixture.h"
#include "host/Document.h"
#include "properties/frmPartProps.h"

namespace {

class PartPropsTest : public addin_test::AddinStateTest {};

TEST_F(PartPropsTest, RefusesToOpenWhileASketchIsEditedAndKeepsTheStoredPlace) {
    host.Open("C:\\Work\\Gearbox.iam");
    host.SetEditMode(simhost::EditMode::Sketch);
    settings.values["PartProps/DialogTop"] = "500";
    auto& dialog = state->Dialog<properties::frmPartProps>();
    dialog.Show(false);
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_NE(out.str().find("You cannot have a command active..."), std::string::npos);
    EXPECT_EQ(settings.values["PartProps/DialogTop"], "500");
    EXPECT_EQ(settings.values.count("PartProps/DialogLeft"), 0u);
}

TEST_F(PartPropsTest, AStoredPositionAWindowCannotTakePlacesTheDialogAtTheDefault) {
    auto& dialog = state->Dialog<properties::frmPartProps>();
    auto placed = [&](const std::string& top) {
        settings.values["Pos/DialogTop"] = top;
        addin::RestorePosition(*state, dialog, "Pos");
        return dialog.Top;
    };
    EXPECT_EQ(placed("1440"), 1440);
    EXPECT_EQ(placed("-300"), -300);
    EXPECT_EQ(placed("1200.5"), 1200);  // halves round to even
    EXPECT_EQ(placed("1201.5"), 1202);
    EXPECT_EQ(placed("32767"), 32767);
    EXPECT_EQ(placed("32768"), 0);
    EXPECT_EQ(placed("top"), 0);
    EXPECT_EQ(placed(""), 0);
}

}  // namespace
