// The headless platform: answers from the script, transcript lines, waits and yields.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <type_traits>

#include "support/Error.h"
#include "ui/Form.h"
#include "ui/headless/HeadlessPlatform.h"

namespace {

using ui::headless::Answer;
using ui::headless::HeadlessPlatform;
using ui::headless::Prompt;
using ui::headless::ScriptError;

// A script mistake must pass through every catch the add-in writes.
static_assert(!std::is_base_of_v<support::Error, ScriptError>);
static_assert(!std::is_base_of_v<std::exception, ScriptError>);

// Plays queued actions as the session driver plays script lines.
class QueuedInput : public ui::headless::UserInput {
public:
    std::vector<std::function<void()>> actions;
    std::vector<std::string> waits;
    bool PlayNext(const std::string& waitingFor) override {
        waits.push_back(waitingFor);
        if (actions.empty()) return false;
        auto action = actions.front();
        actions.erase(actions.begin());
        action();
        return true;
    }
};

class Dialog : public ui::Form {
public:
    explicit Dialog(ui::Platform& platform) : Form(platform, "frmTest", "Test") {}

protected:
    void Build() override { Add("lblStatus", ui::ControlKind::Label, "Ready"); }
};

class HeadlessPlatformTest : public ::testing::Test {
protected:
    std::ostringstream out;
    ui::headless::Transcript transcript{out};
    HeadlessPlatform platform{transcript};
    ui::Platform& desktop = platform;  // as the add-in calls it, with its default arguments
    QueuedInput input;

    void SetUp() override { platform.SetUserInput(&input); }
    void Queue(Prompt prompt, std::optional<std::string> text, int line) {
        platform.QueueAnswer(prompt, Answer{std::move(text), line});
    }
    template <class F>
    std::string ScriptErrorOf(F&& f) {
        try {
            f();
        } catch (const ScriptError& e) {
            return e.Describe();
        }
        return "no error";
    }
};

TEST_F(HeadlessPlatformTest, MessageBoxesTakeTheirAnswersInOrder) {
    EXPECT_EQ(desktop.MsgBox("An assembly document must be active."), ui::vbOK);
    Queue(Prompt::MsgBox, "no", 4);
    Queue(Prompt::MsgBox, "Cancel", 5);
    EXPECT_EQ(desktop.MsgBox("Replace all?", ui::vbYesNo | ui::vbQuestion | 256, "Clone"), ui::vbNo);
    EXPECT_EQ(desktop.MsgBox("Go on?", ui::vbOKCancel), ui::vbCancel);
    EXPECT_EQ(out.str(),
              "msgbox \"An assembly document must be active.\" [OK] title \"Tarnwell\" -> OK\n"
              "msgbox \"Replace all?\" [Yes No] question default No title \"Clone\" -> No\n"
              "msgbox \"Go on?\" [OK Cancel] title \"Tarnwell\" -> Cancel\n");
}

TEST_F(HeadlessPlatformTest, AMessageBoxWithoutAFittingAnswerIsTheScriptsMistake) {
    EXPECT_EQ(ScriptErrorOf([&] { desktop.MsgBox("Delete 3 files?", ui::vbYesNo); }),
              "no answer queued for msgbox \"Delete 3 files?\" [Yes No] title \"Tarnwell\"");
    // A queued answer is taken by the next box even when it has only OK, and must fit it.
    Queue(Prompt::MsgBox, "Yes", 9);
    EXPECT_EQ(ScriptErrorOf([&] { desktop.MsgBox("Done", ui::vbOKOnly); }),
              "the answer Yes queued at line 9 is not a button of msgbox \"Done\" [OK] title \"Tarnwell\"");
    EXPECT_EQ(out.str(), "");
}

TEST_F(HeadlessPlatformTest, PromptsWriteWhatTheyAskAndTheAnswer) {
    Queue(Prompt::InputBox, "New title", 1);
    Queue(Prompt::InputBox, std::nullopt, 2);
    Queue(Prompt::SaveFile, R"(C:\Work\B.ipt)", 3);
    Queue(Prompt::OpenFile, std::nullopt, 4);
    Queue(Prompt::Folder, R"(C:\Out)", 5);
    EXPECT_EQ(platform.InputBox("Enter Title", "Title", "Bracket"), "New title");
    EXPECT_EQ(platform.InputBox("Enter Title", "Title", "Bracket"), "");
    EXPECT_EQ(platform.SaveFilePrompt(
                  {"Save Inventor File", "Inventor Part Files (*.ipt)|*.ipt", 1, R"(C:\Work\)", "A.ipt"}),
              R"(C:\Work\B.ipt)");
    EXPECT_EQ(platform.OpenFilePrompt({"Open Template Part File", "", 2, "", ""}), "");
    EXPECT_EQ(platform.BrowseForFolder(0, "Directory", R"(C:\Temp)"), R"(C:\Out)");
    EXPECT_EQ(
        out.str(),
        "inputbox \"Enter Title\" title \"Title\" default \"Bracket\" -> \"New title\"\n"
        "inputbox \"Enter Title\" title \"Title\" default \"Bracket\" -> cancel\n"
        "save-prompt \"Save Inventor File\" filter \"Inventor Part Files (*.ipt)|*.ipt\" dir \"C:\\Work\\\" "
        "file \"A.ipt\" -> \"C:\\Work\\B.ipt\"\n"
        "open-prompt \"Open Template Part File\" filter \"\" dir \"\" file \"\" index 2 -> cancel\n"
        "folder-picker \"Directory\" start \"C:\\Temp\" -> \"C:\\Out\"\n");
    EXPECT_EQ(ScriptErrorOf([&] { platform.BrowseForFolder(0, "Directory", ""); }),
              "no answer queued for folder-picker \"Directory\" start \"\"");
}

TEST_F(HeadlessPlatformTest, UnusedAnswersAndUnreachedYieldsAreLeftOvers) {
    Queue(Prompt::SaveFile, "C:\\a.ipt", 12);
    Queue(Prompt::MsgBox, "Yes", 3);
    platform.DoEvents();
    platform.ScheduleAtYield(
        5, [] {}, 7);
    platform.DoEvents();
    auto leftovers = platform.Leftovers();
    ASSERT_EQ(leftovers.size(), 3u);
    EXPECT_EQ(leftovers[0].Describe(), "line 3: the answer \"Yes\" was queued but no msgbox asked for it");
    EXPECT_EQ(leftovers[1].Describe(), "line 7: the action at yield 5 never ran: only 1 yields followed it");
    EXPECT_EQ(leftovers[2].Describe(),
              "line 12: the answer \"C:\\a.ipt\" was queued but no save-prompt asked for it");
}

TEST_F(HeadlessPlatformTest, ActionsRunAtTheYieldCountedFromWhenTheyWereScheduled) {
    std::vector<int> ran;
    platform.DoEvents();
    platform.DoEvents();
    platform.ScheduleAtYield(
        2, [&] { ran.push_back(platform.Yields()); }, 1);
    platform.ScheduleAtYield(
        2, [&] { ran.push_back(-platform.Yields()); }, 2);
    platform.DoEvents();
    EXPECT_TRUE(ran.empty());
    platform.DoEvents();
    EXPECT_EQ(ran, (std::vector<int>{4, -4}));
    platform.DoEvents();
    EXPECT_EQ(ran.size(), 2u);
    EXPECT_TRUE(platform.Leftovers().empty());
}

TEST_F(HeadlessPlatformTest, AWaitPlaysTheNextActionIndentedAndFailsWhenNoneIsLeft) {
    input.actions.push_back([&] { transcript.Write("> pick Frame:1"); });
    platform.WaitForInput("a blocking pick");
    EXPECT_EQ(out.str(), "  > pick Frame:1\n");
    EXPECT_EQ(ScriptErrorOf([&] { platform.WaitForInput("a blocking pick"); }),
              "nothing was left to play while waiting for a blocking pick");
    EXPECT_EQ(input.waits, (std::vector<std::string>{"a blocking pick", "a blocking pick"}));
    EXPECT_EQ(transcript.Depth(), 0);
}

TEST_F(HeadlessPlatformTest, AModalFormRunsUntilTheUserClosesIt) {
    Dialog dialog(platform);
    input.actions.push_back([&] { dialog["lblStatus"].SetCaption("Working"); });
    input.actions.push_back([&] { dialog.Unload(); });
    dialog.Show(true);
    EXPECT_FALSE(dialog.Loaded());
    EXPECT_EQ(out.str(),
              "form frmTest loaded\n"
              "form frmTest shown modal\n"
              "  label frmTest.lblStatus = \"Working\"\n"
              "  form frmTest unloaded\n");
    EXPECT_EQ(input.waits, (std::vector<std::string>{"modal form frmTest", "modal form frmTest"}));

    EXPECT_EQ(ScriptErrorOf([&] { dialog.Show(true); }),
              "nothing was left to play while waiting for modal form frmTest");
}

TEST_F(HeadlessPlatformTest, LoadedFormsAreFoundByNameUntilUnloaded) {
    Dialog dialog(platform);
    EXPECT_EQ(platform.FindForm("frmTest"), nullptr);
    dialog.Load();
    EXPECT_EQ(platform.FindForm("frmTest"), &dialog);
    EXPECT_EQ(platform.LoadedForms().size(), 1u);
    dialog.Unload();
    EXPECT_EQ(platform.FindForm("frmTest"), nullptr);
    EXPECT_TRUE(platform.LoadedForms().empty());
}

TEST_F(HeadlessPlatformTest, DesktopEffectsAreWrittenAsTheyHappen) {
    Dialog dialog(platform);
    dialog.Load();
    platform.SetHostWindow(0x1234, "Autodesk Inventor Professional");
    platform.SetApplicationPath("Pellorin.exe", R"(C:\Tools\Pellorin.exe)");
    out.str("");
    EXPECT_EQ(platform.SetOwner(dialog, 0x1234), 0);
    EXPECT_EQ(platform.SetOwner(dialog, 0), 0x1234);
    EXPECT_EQ(platform.ApplicationPath("PELLORIN.EXE"), R"(C:\Tools\Pellorin.exe)");
    EXPECT_EQ(platform.ApplicationPath("other.exe"), "");
    EXPECT_TRUE(platform.AppActivate("Autodesk Inventor"));
    EXPECT_FALSE(platform.AppActivate("Test"));  // loaded but never shown
    platform.Shell(R"("C:\Tools\Pellorin.exe" /VER=1.0.0)", 1);
    platform.ReportError(support::Error(support::errors::kFileNotFound, "File not found\r\nC:\\x"));
    EXPECT_EQ(out.str(),
              "form frmTest owned by the host window\n"
              "form frmTest owned by no window\n"
              "window \"Autodesk Inventor Professional\" brought to front\n"
              "window \"Test\" not found\n"
              "shell e\"\\\"C:\\\\Tools\\\\Pellorin.exe\\\" /VER=1.0.0\" window 1\n"
              "error 0x00000035: File not found\\r\\nC:\\x\n");
}

}  // namespace
