#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ui/Form.h"

namespace {

// Records what a renderer would mirror; answers nothing.
class RecordingPlatform : public ui::Platform {
public:
    std::vector<std::string> log;
    ui::MsgBoxResult MsgBox(const std::string& p, int, const std::string&) override {
        log.push_back("msgbox " + p);
        return ui::vbOK;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::string SaveFilePrompt(const ui::FileDialogRequest&) override { return ""; }
    std::string OpenFilePrompt(const ui::FileDialogRequest&) override { return ""; }
    std::string BrowseForFolder(std::intptr_t, const std::string&, const std::string&) override { return ""; }
    void Shell(const std::string&, int) override {}
    void ShellOpen(const std::string&) override {}
    std::string ApplicationPath(const std::string&) override { return ""; }
    bool AppActivate(const std::string&) override { return true; }
    void PopupMenu(ui::Form&, const std::string&) override {}
    std::intptr_t SetOwner(ui::Form&, std::intptr_t) override { return 0; }
    void DoEvents() override {}
    void WaitForInput(const std::string&) override {}
    void RunModal(ui::Form& f) override {
        log.push_back("modal " + f.Name());
        f.Unload();
    }
    void ReportError(const support::Error& e) override { log.push_back("error " + e.Description()); }
    void FormLoaded(ui::Form& f) override { log.push_back("loaded " + f.Name()); }
    void FormShown(ui::Form& f, bool modal) override {
        log.push_back(std::string(modal ? "modal-shown " : "shown ") + f.Name());
    }
    void FormHidden(ui::Form& f) override { log.push_back("hidden " + f.Name()); }
    void FormUnloaded(ui::Form& f) override { log.push_back("unloaded " + f.Name()); }
    void LabelChanged(ui::Form&, const std::string& c, const std::string& t) override {
        log.push_back(c + "=" + t);
    }
};

class SampleForm : public ui::Form {
public:
    explicit SampleForm(ui::Platform& p) : ui::Form(p, "frmSample", "Sample") {
        TW_ON(chkTop, Click);
        TW_ON(optA, Click);
        TW_ON(cmdFail, Click);
        TW_ON(txtName, Change);
    }
    std::vector<std::string> clicks;
    int loads = 0;
    bool refuseClose = false;

    void chkTop_Click() { clicks.push_back("chkTop"); }
    void optA_Click() { clicks.push_back("optA"); }
    void cmdFail_Click() { throw support::Error(5, "boom"); }
    void txtName_Change() { clicks.push_back("change"); }

protected:
    void Build() override {
        Add("chkTop", ui::ControlKind::CheckBox, "Top");
        Add("optA", ui::ControlKind::OptionButton, "A").Group = "g";
        Add("optB", ui::ControlKind::OptionButton, "B").Group = "g";
        Add("cmdFail", ui::ControlKind::Button, "Fail");
        Add("txtName", ui::ControlKind::TextBox, "start");
        Add("Status", ui::ControlKind::Label, "Status");
    }
    void Form_Load() override { ++loads; }
    void Form_QueryUnload(bool& cancel) override { cancel = refuseClose; }
};

TEST(FormTest, ValueChangesRaiseClickFromUserAndCodeAlike) {
    RecordingPlatform p;
    SampleForm f(p);
    f.Load();
    f["chkTop"].SetValue(1);                  // from code
    f.Raise("chkTop", ui::EventKind::Click);  // the user unchecks it
    EXPECT_EQ(f["chkTop"].Value(), 0);
    f["chkTop"].SetValue(0);  // no change, no event
    EXPECT_EQ(f.clicks, (std::vector<std::string>{"chkTop", "chkTop"}));

    f["optB"].SetValue(-1);
    f.Raise("optA", ui::EventKind::Click);
    EXPECT_EQ(f["optA"].Value(), -1);
    EXPECT_EQ(f["optB"].Value(), 0) << "options of one group exclude each other";

    f["txtName"].SetText("start");
    f["txtName"].SetText("next");
    EXPECT_EQ(f.clicks.back(), "change");
    EXPECT_EQ(std::count(f.clicks.begin(), f.clicks.end(), "change"), 1);
}

TEST(FormTest, HandlerErrorsGoToThePlatformAndUnloadRestoresTheDesign) {
    RecordingPlatform p;
    SampleForm f(p);
    f.Show();
    f.Raise("cmdFail", ui::EventKind::Click);
    EXPECT_EQ(p.log.back(), "error boom");
    f["Status"].SetCaption("Saving: x");
    EXPECT_EQ(p.log.back(), "Status=Saving: x");

    f.refuseClose = true;
    EXPECT_FALSE(f.Unload());
    EXPECT_TRUE(f.Loaded());
    f.refuseClose = false;
    EXPECT_TRUE(f.Unload());
    f.Show();
    EXPECT_EQ(f.loads, 2);
    EXPECT_EQ(f["Status"].Caption(), "Status");
    EXPECT_THROW(f["noSuchControl"], support::Error);
}

TEST(FormTest, DisabledControlsCannotBeClicked) {
    RecordingPlatform p;
    SampleForm f(p);
    f.Load();
    f["chkTop"].Enabled = false;
    EXPECT_THROW(f.Raise("chkTop", ui::EventKind::Click), support::Error);
    EXPECT_TRUE(f.clicks.empty());
}

// A binding to a control the form does not declare is caught when the form loads, with
// the form and the name, instead of being a button that silently does nothing.
class MisboundForm : public ui::Form {
public:
    explicit MisboundForm(ui::Platform& p) : ui::Form(p, "frmMisbound", "Misbound") {
        TW_ON(cmdGo, Click);
        TW_ON_MENU(mnuGo);
    }
    bool declareButton = true;
    void cmdGo_Click() {}
    void mnuGo_Click() {}

protected:
    void Build() override {
        if (declareButton) Add("cmdGo", ui::ControlKind::Button, "Go");
        AddMenu("mnuGo", "Go");
    }
};

TEST(FormTest, ABindingToAMissingControlFailsTheLoad) {
    RecordingPlatform p;
    MisboundForm f(p);
    f.declareButton = false;
    try {
        f.Load();
        FAIL() << "the load went through";
    } catch (const support::Error& e) {
        EXPECT_NE(e.Description().find("frmMisbound"), std::string::npos) << e.Description();
        EXPECT_NE(e.Description().find("cmdGo"), std::string::npos) << e.Description();
    }
    EXPECT_FALSE(f.Loaded());
    f.declareButton = true;
    f.Load();
    EXPECT_TRUE(f.Loaded());
}

// A form whose layout table a test chooses.
class LaidOutForm : public ui::Form {
public:
    explicit LaidOutForm(ui::Platform& p) : ui::Form(p, "frmLaidOut", "Laid out") {}
    std::vector<ui::Placement> layout = {{"txtName", 120, 120, 2400, 315},
                                         {"cmdOK", 120, 600, 1200, 375},
                                         {"cmdCancel", 1440, 600, 1200, 375}};
    bool cancelFirst = false;

protected:
    void Build() override {
        Add("txtName", ui::ControlKind::TextBox);
        Add("cmdOK", ui::ControlKind::Button, "OK");
        Add("cmdCancel", ui::ControlKind::Button, "Cancel");
        Arrange(3000, 1500, {layout});
        if (cancelFirst) TabOrder({"cmdCancel"});
    }
};

TEST(FormTest, TheLayoutPlacesEveryControlOnceAndNothingElse) {
    RecordingPlatform p;
    LaidOutForm f(p);
    f.Load();
    EXPECT_EQ(f.Width, 3000);
    EXPECT_EQ(f["cmdCancel"].Left, 1440);
    EXPECT_EQ(f["cmdCancel"].Height, 375);
    f.Unload();

    for (auto broken : {std::vector<ui::Placement>{{"txtName", 0, 0, 1, 1}, {"cmdOK", 0, 0, 1, 1}},
                        std::vector<ui::Placement>{{"txtName", 0, 0, 1, 1},
                                                   {"cmdOK", 0, 0, 1, 1},
                                                   {"cmdCancel", 0, 0, 1, 1},
                                                   {"cmdOK", 9, 9, 1, 1}},
                        std::vector<ui::Placement>{{"txtName", 0, 0, 1, 1},
                                                   {"cmdOK", 0, 0, 1, 1},
                                                   {"cmdCancel", 0, 0, 1, 1},
                                                   {"cmdHelp", 0, 0, 1, 1}}}) {
        f.layout = broken;
        EXPECT_THROW(f.Load(), support::Error);
        EXPECT_FALSE(f.Loaded());
    }
}

TEST(FormTest, TabOrderFollowsDeclarationUnlessTheFormSaysOtherwise) {
    RecordingPlatform p;
    LaidOutForm f(p);
    f.Load();
    EXPECT_EQ(f["txtName"].TabIndex, 0);
    EXPECT_EQ(f["cmdCancel"].TabIndex, 2);
    f.Unload();
    f.cancelFirst = true;
    f.Load();
    EXPECT_EQ(f["cmdCancel"].TabIndex, 0);
    EXPECT_EQ(f["txtName"].TabIndex, 1);
    EXPECT_EQ(f["cmdOK"].TabIndex, 2);
}

}  // namespace
