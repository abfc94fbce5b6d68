#include "copy/frmPacknLink.h"
#include "copy/modRecurseSaveNReplace.h"
#include "copy_fixture.h"
#include "host/Codes.h"

namespace copy_test {
namespace {

using copy::FormCopyName;

bool StartsWith(const std::string& s, const std::string& start) {
    return s.rfind(start, 0) == 0;
}

// What Execute Clone does for a standalone clone of the top document.
void CloneTop(addin::AddinState& state, host::Document& top, const std::string& prefix,
              const std::string& suffix, std::string target) {
    auto& app = *state.app;
    std::string newName = FormCopyName(top.FullFileName(), prefix, suffix, target);
    top.SaveAs(newName, true);
    auto work = app.Documents()->Open(newName, false);
    copy::RecurseOccurrences(state, *work, prefix, suffix, target);
    work->Save();
    work->Close();
}

using RenamingWalk = CopyTest;

TEST_F(RenamingWalk, StandaloneCloneLeavesSourcesUntouchedAndPointsOnlyIntoTheTarget) {
    auto before = Snapshot('C');
    auto top = Open("C:\\Work\\Frame.iam");
    CloneTop(*state, *top, "!New-", "-001", "D:");

    EXPECT_EQ(Snapshot('C'), before);
    EXPECT_FALSE(top->Dirty());
    auto references = ReferencesOnDisk(root, "D:\\!New-Frame-001.iam");
    // 5 bolts, the bracket, and two arms, each with plate, vendor bolt, hinge and pin.
    EXPECT_EQ(references.size(), 16u);
    for (const auto& name : references) EXPECT_TRUE(StartsWith(name, "D:\\!New-")) << name;
    EXPECT_EQ(Snapshot('D').size(), 7u);  // Frame, Bolt, Bracket, Arm, Plate, Hinge, Pin
}

TEST_F(RenamingWalk, SavesAPartPlacedFiveTimesOnceAndReplacesEachOccurrenceOnItsOwn) {
    auto top = Open("C:\\Work\\Frame.iam");
    CloneTop(*state, *top, "!New-", "-001", "D:\\");

    EXPECT_EQ(Lines("label frmCloneNames.Status = \"Saving: D:\\!New-Bolt-001.ipt\""), 1);
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(Lines("label frmCloneNames.Status = \"Replacing: D:\\!New-Bolt-001.ipt In: Bolt:" +
                        std::to_string(i) + "\""),
                  // Bolt:1 once more: the vendor bolt of each of the two arms has that name too.
                  i == 1 ? 2 : 1);
    // The arm placed twice is saved once; the second pass finds its children renamed already.
    EXPECT_EQ(Lines("label frmCloneNames.Status = \"Saving: D:\\!New-Arm-001.iam\""), 1);
    EXPECT_EQ(Lines("label frmCloneNames.Status = \"Replacing: D:\\!New-Plate-001.ipt In: Plate:1\""), 1);
}

TEST_F(RenamingWalk, SameFileNameFromAnotherFolderCollapsesOntoTheFirstCopy) {
    auto top = Open("C:\\Work\\Frame.iam");
    CloneTop(*state, *top, "!New-", "-001", "D:\\");

    auto references = ReferencesOnDisk(root, "D:\\!New-Frame-001.iam");
    EXPECT_EQ(std::count(references.begin(), references.end(), "D:\\!New-Bolt-001.ipt"), 7);
    // The copy is the first bolt's: the vendor bolt was never saved.
    EXPECT_NE(Snapshot('D').at("!New-Bolt-001.ipt").find("\"Bolt\""), std::string::npos);
}

TEST_F(RenamingWalk, AFileAlreadyCarryingPrefixAndSuffixIsNeitherSavedNorReplaced) {
    auto top = Open("C:\\Work\\Frame.iam");
    CloneTop(*state, *top, "!New-", "-001", "D:\\");
    out.str("");
    // Cloning the clone into its own folder changes nothing: every name is already taken.
    auto clone = Open("D:\\!New-Frame-001.iam");
    std::string target = "D:\\";
    copy::RecurseOccurrences(*state, *clone, "!New-", "-001", target);
    EXPECT_EQ(out.str().find("Saving"), std::string::npos) << out.str();
    EXPECT_EQ(out.str().find("Replacing"), std::string::npos) << out.str();
}

TEST_F(RenamingWalk, AFailingSaveStopsTheWalkAndReachesTheCaller) {
    host.FailSaveOf("D:\\!New-Arm-001.iam");
    auto top = Open("C:\\Work\\Frame.iam");
    std::string target = "D:\\";
    EXPECT_THROW(copy::RecurseOccurrences(*state, *top, "!New-", "-001", target), support::Error);
    EXPECT_FALSE(host.FileSystem().FileExists("D:\\!New-Plate-001.ipt"));
    EXPECT_TRUE(host.FileSystem().FileExists("D:\\!New-Bracket-001.ipt"));
}

class PackingWalk : public CopyTest {
protected:
    void UseDiskToDisk(bool fromDisk) {
        auto& dialog = state->Dialog<copy::frmPacknLink>();
        dialog.Load();
        dialog[fromDisk ? "optFromDisk" : "optFromMem"].SetValue(-1);
    }
};

TEST_F(PackingWalk, CopiesAFilePlacedFiveTimesOnceAndRelinksTheWholeTree) {
    auto before = Snapshot('C');
    auto cart = Open("C:\\Cart\\Cart.iam");
    copy::PackDocument(*state, *cart, "D:");

    EXPECT_EQ(Lines("label frmPacknLink.Status = \"Saving: D:\\Wheel.ipt\""), 1);
    EXPECT_EQ(Lines("label frmPacknLink.Status = \"Saving: D:\\Hub.ipt\""), 1);
    EXPECT_EQ(Snapshot('C'), before);
    auto references = ReferencesOnDisk(root, "D:\\Cart.iam");
    EXPECT_EQ(references.size(), 9u);
    for (const auto& name : references) EXPECT_TRUE(StartsWith(name, "D:\\")) << name;
    // Names stay as they were: packing leaves browser names alone.
    auto copy = Open("D:\\Cart.iam", false);
    EXPECT_EQ(copy->ComponentDefinition()->Occurrences()->Item(5)->Name(), "Wheel:5");
    EXPECT_FALSE(App().SilentOperation());
}

TEST_F(PackingWalk, FromMemoryCarriesUnsavedEditsAndDiskToDiskDoesNot) {
    auto cart = Open("C:\\Cart\\Cart.iam");
    cart->ComponentDefinition()->Occurrences()->Item(1)->SetVisible(false);
    ASSERT_TRUE(cart->Dirty());

    copy::PackDocument(*state, *cart, "D:\\Memory");  // a folder that does not exist yet
    EXPECT_EQ(Lines("msgbox \"Stopping Pack N Link\" [OK] title \"Tarnwell\" -> OK"), 1);
    host.FileSystem().CreateFolder("D:\\Memory");
    host.FileSystem().CreateFolder("D:\\Disk");
    copy::PackDocument(*state, *cart, "D:\\Memory");
    UseDiskToDisk(true);
    copy::PackDocument(*state, *cart, "D:\\Disk");
    host.CloseAll();

    EXPECT_FALSE(Open("D:\\Memory\\Cart.iam")->ComponentDefinition()->Occurrences()->Item(1)->Visible());
    EXPECT_TRUE(Open("D:\\Disk\\Cart.iam")->ComponentDefinition()->Occurrences()->Item(1)->Visible());
    EXPECT_TRUE(Open("C:\\Cart\\Cart.iam")->ComponentDefinition()->Occurrences()->Item(1)->Visible());
    // Disk to disk copies through the host's file manager and writes no "Saving: " line.
    EXPECT_EQ(Lines("label frmPacknLink.Status = \"Saving: D:\\Disk\\Wheel.ipt\""), 0);
    auto references = ReferencesOnDisk(root, "D:\\Disk\\Cart.iam");
    for (const auto& name : references) EXPECT_TRUE(StartsWith(name, "D:\\Disk\\")) << name;
}

TEST_F(PackingWalk, AFaultMidwayStopsThePackAndKeepsTheCopiesMadeSoFar) {
    host.FailSaveOf("D:\\Axle.iam");
    auto cart = Open("C:\\Cart\\Cart.iam");
    copy::PackDocument(*state, *cart, "D:\\");

    EXPECT_EQ(Lines("msgbox \"Stopping Pack N Link\" [OK] title \"Tarnwell\" -> OK"), 1);
    EXPECT_TRUE(host.FileSystem().FileExists("D:\\Cart.iam"));
    EXPECT_TRUE(host.FileSystem().FileExists("D:\\Wheel.ipt"));
    EXPECT_FALSE(host.FileSystem().FileExists("D:\\Shaft.ipt"));
    EXPECT_FALSE(state->packStop);
    // The top copy is left open, unsaved: on disk it still points at the sources.
    auto references = ReferencesOnDisk(root, "D:\\Cart.iam");
    EXPECT_EQ(references.front(), "C:\\Parts\\Wheel.ipt");
}

TEST_F(PackingWalk, RefusesTheSourceFolderComparedExactlyAndThenStaysStopped) {
    auto before = Snapshot('C');
    auto cart = Open("C:\\Cart\\Cart.iam");
    copy::PackDocument(*state, *cart, "C:\\Cart");
    EXPECT_EQ(
        Lines(
            "msgbox \"Source and Destination directories cannot be the same\" [OK] title \"Tarnwell\" -> OK"),
        1);
    EXPECT_TRUE(state->packStop);
    EXPECT_EQ(Snapshot('C'), before);

    // While the flag is set nothing more is started, whatever the target.
    copy::PackDocument(*state, *cart, "D:\\");
    EXPECT_TRUE(Snapshot('D').empty());
    EXPECT_EQ(Lines("label frmPacknLink.Status = \"Packing: C:\\Cart\\Cart.iam\""), 2);

    // Another letter case is another folder to the comparison.
    state->packStop = false;
    out.str("");
    copy::PackDocument(*state, *cart, "c:\\cart\\");
    EXPECT_EQ(out.str().find("Source and Destination"), std::string::npos);
}

}  // namespace
}  // namespace copy_test
