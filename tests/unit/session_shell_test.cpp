// The session's two ways of playing: a script stops at its first mistake, the keyboard
// reports it and reads on.
#include <gtest/gtest.h>

#include <sstream>

#include "app/session/Session.h"

namespace {

std::string Settings() {
    return ::testing::TempDir() + "session_shell_test.ini";
}

TEST(SessionShell, TheKeyboardReportsMistakesAndReadsOn) {
    std::ostringstream out;
    std::istringstream in("echo one\nclik\n\nanswer msgbox \"Yes\nbutton TarnwellCmd1\necho two\n");
    session::Session session(out, Settings());
    session::KeyboardSource keyboard(in, out, false);
    EXPECT_EQ(session.Run(keyboard), 0);
    EXPECT_EQ(out.str(),
              "# one\n"
              "script error: line 2: unknown verb \"clik\" (did you mean click?)\n"
              "script error: line 4: a quoted text is not closed\n"
              "> button TarnwellCmd1\n"
              "failed: error 0x80070057: No button \"TarnwellCmd1\" on any command bar\n"
              "# two\n");
    EXPECT_EQ(session.Errors().size(), 2u);
}

TEST(SessionShell, AScriptStopsAtItsFirstMistake) {
    std::ostringstream out;
    session::Session session(out, Settings());
    session::ScriptSource script(
        session::ParseScript("echo one\nbutton TarnwellCmd2\nclick frmNone.cmdOK\necho never\n"));
    EXPECT_EQ(session.Run(script), 1);
    EXPECT_EQ(out.str(),
              "# one\n"
              "> button TarnwellCmd2\n"
              "failed: error 0x80070057: No button \"TarnwellCmd2\" on any command bar\n"
              "> click frmNone.cmdOK\n"
              "script error: line 3: no form frmNone is loaded (loaded: none)\n");
    EXPECT_EQ(session.Errors(),
              (std::vector<std::string>{"line 3: no form frmNone is loaded (loaded: none)"}));
}

TEST(SessionShell, TheKeyboardPromptSaysWhatTheAddinWaitsFor) {
    std::ostringstream out;
    std::istringstream in("drive C: \"" TARNWELL_SOURCE_DIR
                          "/examples/workspace\"\naddin activate\nopen C:\\Work\\Gearbox.iam\n"
                          "button TarnwellCmd1\nclick frmPreview.cmdClone\nescape\n");
    session::Session session(out, Settings());
    session::KeyboardSource keyboard(in, out, true);
    EXPECT_EQ(session.Run(keyboard), 0);
    EXPECT_NE(out.str().find("tarnwell> > click frmPreview.cmdClone\n"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("tarnwell [a blocking pick]>   > escape\n"), std::string::npos) << out.str();
}

// A box nobody queued an answer for asks the person, until a button is typed; a queued
// answer still goes first. Text prompts take the line, "" for none, or cancel.
TEST(SessionShell, APromptWithNoQueuedAnswerAsksThePerson) {
    std::ostringstream out;
    std::istringstream in("drive C: \"" TARNWELL_SOURCE_DIR
                          "/examples/workspace\"\naddin activate\nopen C:\\Work\\Gearbox.iam\n"
                          "button TarnwellCmd1\npick \"Motor Bracket:1\"\nclick frmPreview.cmdDelete\n"
                          "maybe\n\nno\n"
                          "dblclick frmPreview.ListBox1 4\n  MB-9  \n"
                          "dblclick frmPreview.ListBox1 4\ncancel\n");
    session::Session session(out, Settings());
    session::KeyboardSource keyboard(in, out, false);
    EXPECT_EQ(session.Run(keyboard), 0);
    const std::string box =
        "msgbox \"Are you sure you want to delete this part?\" [Yes No] title \"Delete from all assemblies\"";
    EXPECT_NE(out.str().find("? " + box + "\n? maybe is not a button; answer Yes, No\n" + box + " -> No\n"),
              std::string::npos)
        << out.str();
    EXPECT_NE(out.str().find("default \"GB-1300\" -> \"MB-9\"\n"), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("default \"MB-9\" -> cancel\n"), std::string::npos) << out.str();
}

}  // namespace
