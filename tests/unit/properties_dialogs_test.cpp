// The property dialogs where a transcript would test them poorly: the part dialog's refusal
// to open while a command is active, stored positions that a window cannot take, and the
// eMatrix dialog on documents the drawing command never hands it.
#include <gtest/gtest.h>

#include "addin/shared/DialogPosition.h"
#include "addin_state_fixture.h"
#include "host/Document.h"
#include "host/Properties.h"
#include "properties/frmPartProps.h"
#include "properties/frmUpdateMatrix.h"

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

// The eMatrix dialog is loaded, not shown: loading is where it reads the document.
class EMatrixTest : public addin_test::AddinStateTest {
protected:
    properties::frmUpdateMatrix& LoadOn(const std::string& path) {
        state->workingDocument = host.Open(path);
        auto& dialog = state->Dialog<properties::frmUpdateMatrix>();
        dialog.Load();
        return dialog;
    }
};

TEST_F(EMatrixTest, AnAssemblyWithoutDataShowsItsNameAndTheAssemblyLibrary) {
    auto& dialog = LoadOn("C:\\Work\\Gearbox.iam");
    EXPECT_EQ(dialog["txtUniqueFile"].Text(), "Gearbox");
    EXPECT_EQ(dialog["cboLibrary"].Text(), "0000_ASSEMBLY");
    EXPECT_NE(out.str().find("Cannot Find C:\\Program Files\\Autodesk\\Applied\\commodity.txt"),
              std::string::npos);
}

TEST_F(EMatrixTest, AWrongIdentifierOnADocumentThatCannotChangeIsReportedAndKept) {
    WriteFile("Work/Library.ipt", R"({"type": "part", "modifiable": false, "customPropertySets": [
        {"name": "eMatrix", "formatId": "{0C1D2E3F-0000-4000-8000-000000000001}",
         "properties": {"Library": "Fasteners", "Unique File Name": "LIB-9"}}]})");
    Answer(ui::headless::Prompt::MsgBox, "OK");  // the commodity list is missing
    Answer(ui::headless::Prompt::MsgBox, "Yes");
    auto& dialog = LoadOn("C:\\Work\\Library.ipt");
    EXPECT_NE(out.str().find("Is not modifiable"), std::string::npos);
    auto set = state->workingDocument->PropertySets()->Item("eMatrix");
    EXPECT_EQ(set->InternalName(), "{0C1D2E3F-0000-4000-8000-000000000001}");
    EXPECT_EQ(dialog["cboLibrary"].Text(), "Fasteners");  // the set still counts as found
    EXPECT_EQ(dialog["txtUniqueFile"].Text(), "LIB-9");
}

}  // namespace
