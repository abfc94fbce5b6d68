// The verb table: which verb a line names, and the checks made before a script plays.
#include <gtest/gtest.h>

#include "app/session/Verb.h"
#include "ui/headless/ScriptError.h"

namespace {

using session::CheckScript;
using session::FindVerb;
using session::ParseLine;
using session::ParseScript;
using ui::headless::ScriptError;

// The verb's name and the first word after it, or the error's message.
std::string Find(std::string_view text) {
    try {
        auto line = ParseLine(1, text);
        auto call = FindVerb(*line);
        return call.verb->name + " @" + std::to_string(call.firstArg);
    } catch (const ScriptError& e) {
        return e.Message();
    }
}

TEST(SessionVerbs, GroupsTakeTheirSecondWordAsPartOfTheVerb) {
    EXPECT_EQ(Find("answer msgbox Yes"), "answer msgbox @2");
    EXPECT_EQ(Find("print form frmPreview"), "print form @2");
    EXPECT_EQ(Find("at yield 3: click frmPurge.cmdStop"), "at yield @2");
    EXPECT_EQ(Find("click frmPreview.cmdClone"), "click @1");
    EXPECT_EQ(Find("echo"), "echo @1");
}

TEST(SessionVerbs, AnUnknownVerbIsNamed) {
    EXPECT_EQ(Find("clik frmPreview.cmdClone"), "unknown verb \"clik\" (did you mean click?)");
    EXPECT_EQ(Find("xyzzy"), "unknown verb \"xyzzy\" (help lists them)");
    EXPECT_EQ(Find("answer maybe"),
              "answer \"maybe\" is not a verb; answer takes msgbox, input, save, open, folder");
    EXPECT_EQ(Find("\"click\" frmPreview.cmdClone"), "a line must begin with a verb");
}

TEST(SessionVerbs, WordsMustFitTheVerb) {
    EXPECT_EQ(Find("type frmX.txtName"), "too few words; usage: type FORM.CONTROL TEXT");
    EXPECT_EQ(Find("escape now"), "too many words; usage: escape");
    EXPECT_EQ(Find("answer msgbox Maybe"),
              "expected OK, Cancel, Abort, Retry, Ignore, Yes or No; usage: answer msgbox "
              "OK|Cancel|Abort|Retry|Ignore|Yes|No");
    EXPECT_EQ(Find("answer msgbox \"Yes\""), Find("answer msgbox Maybe"));
    EXPECT_EQ(Find("click cmdClone"), "expected FORM.CONTROL; usage: click FORM.CONTROL[(INDEX)]");
    EXPECT_EQ(Find("menu frmPreview.mnoOrient(x)"),
              "expected FORM.CONTROL(INDEX); usage: menu FORM.MENU[(INDEX)]");
    EXPECT_EQ(Find("click frmX.cmdGo(99999999999)"),
              "the index 99999999999 is too large; usage: click FORM.CONTROL[(INDEX)]");
    EXPECT_EQ(Find("dblclick frmPreview.ListBox1 -1"),
              "rows count from 0; usage: dblclick FORM.CONTROL [ROW] [\"ROW TEXT\"]");
    EXPECT_EQ(Find("dblclick frmPreview.ListBox1 Title"),
              "a row is a number from 0 or a quoted text; usage: dblclick FORM.CONTROL [ROW] [\"ROW TEXT\"]");
    EXPECT_EQ(Find("choose frmPreview.ListBox1 2 Title"),
              "a row's text is quoted; usage: choose FORM.LIST ROW | choose FORM.LIST \"ROW TEXT\" | choose "
              "FORM.LIST ROW \"ROW TEXT\"");
    EXPECT_EQ(Find("drive C: copy tests"),
              "the only option is live; usage: drive LETTER: FOLDER | drive LETTER: live FOLDER | drive "
              "LETTER: empty");
    EXPECT_EQ(
        Find("drive CD: tests"),
        "\"CD:\" is not a drive letter; usage: drive LETTER: FOLDER | drive LETTER: live FOLDER | drive "
        "LETTER: empty");
    EXPECT_EQ(Find("edit top Frame:1"),
              "only in-place takes an occurrence; usage: edit top | edit sketch | edit "
              "in-place OCCURRENCE-PATH");
    EXPECT_EQ(Find("move frmPreview 10 x"), "\"x\" is not a number; usage: move FORM LEFT TOP");
    EXPECT_EQ(Find("new sketch"),
              "expected part, assembly, drawing or presentation; usage: new "
              "part|assembly|drawing|presentation");
}

TEST(SessionVerbs, AnActionAtAYieldIsCheckedAsALineOfItsOwn) {
    EXPECT_EQ(Find("at yield 0: click frmPurge.cmdStop"),
              "the count starts at 1; usage: at yield COUNT: ACTION");
    EXPECT_EQ(Find("at yield 3 click frmPurge.cmdStop"),
              "expected a count and a colon; usage: at yield COUNT: ACTION");
    EXPECT_EQ(Find("at yield 3: clik frmPurge.cmdStop"), "unknown verb \"clik\" (did you mean click?)");
    EXPECT_EQ(Find("at yield 3: click"), "too few words; usage: click FORM.CONTROL[(INDEX)]");
}

TEST(SessionVerbs, AScriptIsCheckedWholeBeforeItPlays) {
    EXPECT_NO_THROW(CheckScript(ParseScript("addin activate\nbutton TarnwellCmd1\nprint forms\n")));
    try {
        CheckScript(ParseScript("## Show a misfit\naddin activate\n\nbutton\nclik x\n"));
        FAIL() << "a misfit must be refused";
    } catch (const ScriptError& e) {
        EXPECT_EQ(e.Describe(), "line 4: too few words; usage: button INTERNAL-NAME");
    }
}

}  // namespace
