// Form verbs as the user does them, on a small form of the test's own.
#include <gtest/gtest.h>

#include <sstream>

#include "app/session/Session.h"
#include "ui/Form.h"

namespace {

using ui::ControlKind;
using ui::EventKind;
using ui::headless::ScriptError;

class Sample : public ui::Form {
public:
    explicit Sample(ui::Platform& platform) : Form(platform, "frmSample", "Sample") {
        TW_ON(cboColor, Click);
        TW_ON(cboColor, Change);
        TW_ON(lstRows, Click);
        TW_ON(lstRows, DblClick);
        TW_ON(txtName, Change);
        TW_ON(txtName, LostFocus);
        TW_ON(chkTop, Click);
        TW_ON_MENU(mnuHidden);
    }
    void cboColor_Click() { Record("cboColor.Click"); }
    void cboColor_Change() { Record("cboColor.Change"); }
    void lstRows_Click() { Record("lstRows.Click"); }
    void lstRows_DblClick() { Record("lstRows.DblClick"); }
    void txtName_Change() { Record("txtName.Change"); }
    void txtName_LostFocus() { Record("txtName.LostFocus"); }
    void chkTop_Click() { Record("chkTop.Click"); }
    void mnuHidden_Click() { events.push_back("mnuHidden"); }
    void Record(const std::string& event) {
        events.push_back(event);
        if ((*this)["txtName"].Text() == "bad")
            throw support::Error(support::errors::kTypeMismatch, "Type mismatch");
    }
    std::vector<std::string> events;
    bool refuseClose = false;

protected:
    void Build() override {
        auto& combo = Add("cboColor", ControlKind::ComboBox, "typed");
        combo.AddItem("Red");
        combo.AddItem("Blue");
        auto& list = Add("lstRows", ControlKind::ListBox);
        list.AddItem("Title");
        list.AddItem("Title");
        list.AddItem("Subject");
        Add("txtName", ControlKind::TextBox, "Bracket");
        Add("txtLocked", ControlKind::TextBox).Locked = true;
        Add("chkTop", ControlKind::CheckBox, "Top");
        Add("Option1", ControlKind::OptionButton, "One");
        Add("lblStatus", ControlKind::Label, "Ready");
        AddMenu("mnuHidden", "Hidden").Visible = false;
    }
    void Form_QueryUnload(bool& cancel) override { cancel = refuseClose; }
};

class SessionFormVerbs : public ::testing::Test {
protected:
    std::ostringstream out;
    session::Session session{out, ::testing::TempDir() + "session_form_verbs.ini"};
    Sample form{session.Platform()};

    void SetUp() override {
        form.Show();
        out.str("");
    }
    // Plays one line; the transcript it wrote, or the script error.
    std::string Play(const std::string& text) {
        out.str("");
        try {
            session.Play(*session::ParseLine(1, text));
        } catch (const ScriptError& e) {
            return "script error: " + e.Message();
        }
        return out.str();
    }
};

TEST_F(SessionFormVerbs, ChoosingAComboItemSetsItsTextWithoutChange) {
    Play("choose frmSample.cboColor \"Blue\"");
    EXPECT_EQ(form["cboColor"].Text(), "Blue");
    EXPECT_EQ(form["cboColor"].ListIndex, 1);
    EXPECT_EQ(form.events, (std::vector<std::string>{"cboColor.Click"}));
}

TEST_F(SessionFormVerbs, ADoubleClickSelectsTheRowFirst) {
    Play("dblclick frmSample.lstRows 1 \"Title\"");
    EXPECT_EQ(form["lstRows"].ListIndex, 1);
    EXPECT_EQ(form.events, (std::vector<std::string>{"lstRows.Click", "lstRows.DblClick"}));
    Play("dblclick frmSample.lstRows \"Title\"");  // by text: the first equal row
    EXPECT_EQ(form["lstRows"].ListIndex, 0);
    EXPECT_EQ(Play("dblclick frmSample.lstRows 2 \"Title\""),
              "script error: row 2 of lstRows is \"Subject\", not \"Title\"");
    EXPECT_EQ(Play("choose frmSample.lstRows 3"), "script error: lstRows has no row 3 (it has 3)");
    EXPECT_EQ(Play("choose frmSample.lstRows \"Author\""), "script error: lstRows has no row \"Author\"");
    EXPECT_EQ(form["lstRows"].ListIndex, 0);
}

TEST_F(SessionFormVerbs, TypingAndLeavingRaiseChangeAndLostFocus) {
    Play("type frmSample.txtName \"Bolt\"");
    EXPECT_TRUE(form["txtName"].HasFocus());
    Play("type frmSample.txtName \"Bolt\"");  // the same text: no Change
    Play("leave frmSample.txtName");
    EXPECT_FALSE(form["txtName"].HasFocus());
    EXPECT_EQ(form.events, (std::vector<std::string>{"txtName.Change", "txtName.LostFocus"}));
    // An error of a handler is the add-in's to report; the line itself went through.
    EXPECT_EQ(Play("type frmSample.txtName \"bad\""),
              "> type frmSample.txtName \"bad\"\nerror 0x0000000D: Type mismatch\n");
}

TEST_F(SessionFormVerbs, WhatTheUserCannotDoFailsOrIsTheScriptsMistake) {
    EXPECT_EQ(Play("type frmSample.txtLocked \"x\""),
              "> type frmSample.txtLocked \"x\"\nfailed: error 0x00000005: Control frmSample.txtLocked is "
              "locked\n");
    EXPECT_EQ(
        Play("menu frmSample.mnuHidden"),
        "> menu frmSample.mnuHidden\nfailed: error 0x00000005: Menu frmSample.mnuHidden is not visible\n");
    form["chkTop"].Enabled = false;
    EXPECT_EQ(Play("check frmSample.chkTop"),
              "> check frmSample.chkTop\n"
              "failed: error 0x00000005: Control frmSample.chkTop is not enabled or not visible\n");
    EXPECT_EQ(Play("type frmSample.lblStatus \"x\""),
              "script error: frmSample.lblStatus is a label, not a text or combo box");
    EXPECT_EQ(Play("uncheck frmSample.Option1"),
              "script error: an option button is cleared by checking another one of its group");
    EXPECT_EQ(Play("click frmSample.cmdNone"), "script error: form frmSample has no control cmdNone");
    EXPECT_EQ(Play("menu frmSample.mnuNone(2)"), "script error: form frmSample has no menu mnuNone(2)");
    EXPECT_EQ(Play("click frmOther.cmdOK"), "script error: no form frmOther is loaded (loaded: frmSample)");
    form.Hide();
    EXPECT_EQ(Play("click frmSample.chkTop"),
              "> click frmSample.chkTop\nfailed: error 0x00000005: Form frmSample is not visible\n");
    EXPECT_TRUE(form.events.empty());
}

TEST_F(SessionFormVerbs, CheckingRaisesClickOnlyWhenTheValueChanges) {
    Play("check frmSample.chkTop");
    Play("check frmSample.chkTop");
    EXPECT_EQ(form["chkTop"].Value(), 1);
    Play("uncheck frmSample.chkTop");
    EXPECT_EQ(form["chkTop"].Value(), 0);
    EXPECT_EQ(form.events, (std::vector<std::string>{"chkTop.Click", "chkTop.Click"}));
}

TEST_F(SessionFormVerbs, TheCloseBoxAsksTheFormAndMoveSetsItsPosition) {
    Play("move frmSample 1200 -300");
    EXPECT_EQ(form.Left, 1200);
    EXPECT_EQ(form.Top, -300);
    form.refuseClose = true;
    EXPECT_EQ(Play("close frmSample"),
              "> close frmSample\nform frmSample stays loaded: QueryUnload cancelled\n");
    form.refuseClose = false;
    EXPECT_EQ(Play("close frmSample"), "> close frmSample\nform frmSample unloaded\n");
    EXPECT_EQ(session.Platform().FindForm("frmSample"), nullptr);
}

}  // namespace
