#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Error.h"
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

#include "ui/Form.h"
#include "ui/win32/FormWindow.h"
#include "ui/win32/Twips.h"
#include "win/tests/DialogDriver.h"

namespace ui::win32 {
namespace {

// Answers nothing; keeps the error reports.
class QuietPlatform : public Platform {
public:
    std::vector<std::string> errors;
    MsgBoxResult MsgBox(const std::string&, int, const std::string&) override { return vbOK; }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return ""; }
    std::string SaveFilePrompt(const FileDialogRequest&) override { return ""; }
    std::string OpenFilePrompt(const FileDialogRequest&) override { return ""; }
    std::string BrowseForFolder(std::intptr_t, const std::string&, const std::string&) override { return ""; }
    void Shell(const std::string&, int) override {}
    void ShellOpen(const std::string&) override {}
    std::string ApplicationPath(const std::string&) override { return ""; }
    bool AppActivate(const std::string&) override { return false; }
    void PopupMenu(Form&, const std::string&) override {}
    std::intptr_t SetOwner(Form&, std::intptr_t) override { return 0; }
    void DoEvents() override {}
    void WaitForInput(const std::string&) override {}
    void RunModal(Form&) override {}
    void ReportError(const support::Error& e) override { errors.push_back(e.Description()); }
    void FormLoaded(Form&) override {}
    void FormShown(Form&, bool) override {}
    void FormHidden(Form&) override {}
    void FormUnloaded(Form&) override {}
    void LabelChanged(Form&, const std::string&, const std::string&) override {}
};

class frmSample : public Form {
public:
    explicit frmSample(Platform& platform) : Form(platform, "frmSample", "Sample") {
        TW_ON(cmdGo, Click);
        TW_ON(cmdFail, Click);
        TW_ON(chkTop, Click);
        TW_ON(lstNames, Click);
        TW_ON(lstNames, DblClick);
        TW_ON(txtName, Change);
        TW_ON_MENU(mnuOpen);
        TW_ON_MENU(mnuRow);
    }
    std::vector<std::string> log;
    bool refuseClosing = false;

private:
    Control& Place(const std::string& name, ControlKind kind, const std::string& caption, int left, int top,
                   int width, int height) {
        Control& c = Add(name, kind, caption);
        c.Left = left, c.Top = top, c.Width = width, c.Height = height;
        return c;
    }
    void Build() override {
        Width = 6000, Height = 4500;
        Place("fraOptions", ControlKind::Frame, "Options", 120, 120, 2880, 1200);
        Place("chkTop", ControlKind::CheckBox, "Top level", 240, 360, 2400, 300);
        Place("cmdGo", ControlKind::Button, "Go", 3240, 120, 1215, 375).ToolTipText = "Goes";
        Place("cmdFail", ControlKind::Button, "Fail", 3240, 600, 1215, 375);
        Place("txtName", ControlKind::TextBox, "Frame", 120, 1500, 2880, 315);
        Place("lblStatus", ControlKind::Label, "", 120, 1920, 2880, 255);
        Control& names = Place("lstNames", ControlKind::ListBox, "", 3240, 1080, 2400, 1500);
        names.AddItem("Frame");
        names.AddItem("Bracket");
        Place("cmdBrowse", ControlKind::Button, "", 4560, 120, 480, 375).Picture = "folder";
        AddMenu("mnuFile", "&File");
        AddMenu("mnuOpen", "&Open", "mnuFile");
        AddMenu("mnuRecent", "Recent", "mnuFile").Checked = true;
        AddMenu("mnuExit", "E&xit", "mnuFile").Enabled = false;
        AddMenu("mnuPopUp", "PopUp").Visible = false;  // shown over the list only
        AddMenu("mnuRow", "Lock", "mnuPopUp", 0);
        AddMenu("mnuRow", "Unlock", "mnuPopUp", 1);
    }
    void Form_QueryUnload(bool& cancel) override { cancel = refuseClosing; }
    void cmdGo_Click() {
        log.push_back("go");
        (*this)["lblStatus"].SetCaption("Done");
        (*this)["cmdGo"].Enabled = false;
    }
    void cmdFail_Click() { throw support::Error(support::errors::kFileNotFound, "File not found"); }
    void chkTop_Click() { log.push_back("top " + std::to_string((*this)["chkTop"].Value())); }
    void lstNames_Click() { log.push_back("row " + std::to_string((*this)["lstNames"].ListIndex)); }
    void lstNames_DblClick() {
        log.push_back("open " + (*this)["lstNames"].Items[(*this)["lstNames"].ListIndex]);
    }
    void mnuOpen_Click() { log.push_back("menu open"); }
    void mnuRow_Click(int index) { log.push_back("menu row " + std::to_string(index)); }
    void txtName_Change() { log.push_back("text " + (*this)["txtName"].Text()); }
};

class FormWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        form.Load();
        window.Create(nullptr);
    }
    // Tells the form's window what a control did, as the control itself does.
    void Notify(const std::string& control, int notification) {
        HWND w = window.ControlWindow(control);
        SendMessageW(window.Window(), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(w), notification),
                     reinterpret_cast<LPARAM>(w));
    }
    std::wstring Text(const std::string& control) {
        wchar_t text[256] = L"";
        GetWindowTextW(window.ControlWindow(control), text, 256);
        return text;
    }
    QuietPlatform platform;
    frmSample form{platform};
    FormWindow window{form};
};

TEST_F(FormWindowTest, PlacesEveryControlFromTwipsAtTheScreensDpi) {
    int dpi = ScreenDpi();
    for (const auto& control : form.Controls()) {
        HWND w = window.ControlWindow(control->Name());
        ASSERT_NE(w, nullptr) << control->Name();
        RECT r;
        GetWindowRect(w, &r);
        MapWindowPoints(nullptr, window.Window(), reinterpret_cast<POINT*>(&r), 2);
        EXPECT_EQ(r.left, TwipsToPixels(control->Left, dpi)) << control->Name();
        EXPECT_EQ(r.top, TwipsToPixels(control->Top, dpi)) << control->Name();
        EXPECT_EQ(r.right - r.left, TwipsToPixels(control->Width, dpi)) << control->Name();
        EXPECT_EQ(r.bottom - r.top, TwipsToPixels(control->Height, dpi)) << control->Name();
    }
    EXPECT_EQ(TwipsToPixels(1440, 96), 96);
    // The form's size is the whole window's, and follows the form.
    form.Width = 7200;
    window.Sync();
    RECT whole;
    GetWindowRect(window.Window(), &whole);
    EXPECT_EQ(whole.right - whole.left, TwipsToPixels(7200, dpi));
    // Each shows what the form says.
    EXPECT_EQ(Text("cmdGo"), L"Go");
    EXPECT_EQ(Text("txtName"), L"Frame");
    EXPECT_EQ(Text("fraOptions"), L"Options");
    EXPECT_EQ(SendMessageW(window.ControlWindow("lstNames"), LB_GETCOUNT, 0, 0), 2);
}

TEST_F(FormWindowTest, WhatTheUserDoesBecomesTheFormsEventsAndTheWindowFollows) {
    SendMessageW(window.ControlWindow("cmdGo"), BM_CLICK, 0, 0);
    EXPECT_EQ(Text("lblStatus"), L"Done");
    EXPECT_FALSE(IsWindowEnabled(window.ControlWindow("cmdGo")));

    SendMessageW(window.ControlWindow("chkTop"), BM_CLICK, 0, 0);
    EXPECT_EQ(SendMessageW(window.ControlWindow("chkTop"), BM_GETCHECK, 0, 0), BST_CHECKED);

    SendMessageW(window.ControlWindow("lstNames"), LB_SETCURSEL, 1, 0);
    Notify("lstNames", LBN_SELCHANGE);
    Notify("lstNames", LBN_DBLCLK);

    // Typing over the selected text, key by key, in the shown window: each key changes the text.
    ShowWindow(window.Window(), SW_SHOWNA);
    HWND name = window.ControlWindow("txtName");
    SendMessageW(name, EM_SETSEL, 0, -1);
    for (wchar_t key : std::wstring(L"Gea")) SendMessageW(name, WM_CHAR, key, 0);
    EXPECT_EQ(Text("txtName"), L"Gea") << "window text";
    EXPECT_EQ(form["txtName"].Text(), "Gea");

    EXPECT_EQ(form.log, (std::vector<std::string>{"go", "top 1", "row 1", "open Bracket", "text G", "text Ge",
                                                  "text Gea"}));
}

TEST_F(FormWindowTest, AnErrorNoHandlerCaughtGoesToTheReport) {
    SendMessageW(window.ControlWindow("cmdFail"), BM_CLICK, 0, 0);
    EXPECT_EQ(platform.errors, (std::vector<std::string>{"File not found"}));
    EXPECT_NE(window.Window(), nullptr);
}

TEST_F(FormWindowTest, ClosingAsksTheForm) {
    form.refuseClosing = true;
    SendMessageW(window.Window(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(form.Loaded());
    EXPECT_NE(window.Window(), nullptr);
    form.refuseClosing = false;
    SendMessageW(window.Window(), WM_CLOSE, 0, 0);
    EXPECT_FALSE(form.Loaded());
}

std::wstring ToolTip(HWND tips, HWND control, HWND form) {
    wchar_t text[80] = L"";
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text;
    SendMessageW(tips, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    return text;
}

TEST_F(FormWindowTest, AControlWithATipShowsItAndTheTipFollowsTheForm) {
    HWND tips = window.ToolTipWindow(), go = window.ControlWindow("cmdGo");
    EXPECT_EQ(SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(ToolTip(tips, go, window.Window()), L"Goes");
    form["cmdGo"].ToolTipText = "Goes on";
    window.Sync();
    EXPECT_EQ(ToolTip(tips, go, window.Window()), L"Goes on");
    form["cmdGo"].ToolTipText = "";
    window.Sync();
    EXPECT_EQ(SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 0);
}

TEST_F(FormWindowTest, AButtonWithoutACaptionShowsItsPicture) {
    HWND browse = window.ControlWindow("cmdBrowse");
    EXPECT_TRUE(GetWindowLongW(browse, GWL_STYLE) & BS_ICON);
    EXPECT_NE(SendMessageW(browse, BM_GETIMAGE, IMAGE_ICON, 0), 0) << "the system's folder";
    form["cmdBrowse"].Picture = "collapsed";
    window.Sync();
    EXPECT_FALSE(GetWindowLongW(browse, GWL_STYLE) & BS_ICON);
    EXPECT_EQ(SendMessageW(browse, BM_GETIMAGE, IMAGE_ICON, 0), 0);
    EXPECT_EQ(Text("cmdBrowse"), L">>");
}

// Presses Tab where the focus is, as the keyboard does, through the thread's message loop.
std::string PressTab(const FormWindow& window, const Form& form) {
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 0);
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    for (const auto& control : form.Controls())
        if (window.ControlWindow(control->Name()) == GetFocus()) return control->Name();
    return "?";
}

TEST_F(FormWindowTest, TabMovesTheFocusInTheFormsTabOrder) {
    ShowWindow(window.Window(), SW_SHOW);
    SetForegroundWindow(window.Window());
    EXPECT_EQ(GetFocus(), window.ControlWindow("chkTop")) << "a shown form starts at its first control";
    std::vector<std::string> visited;
    for (int i = 0; i < 6; ++i) visited.push_back(PressTab(window, form));
    // Frames and labels take no focus; after the last control the first comes again.
    EXPECT_EQ(visited,
              (std::vector<std::string>{"cmdGo", "cmdFail", "txtName", "lstNames", "cmdBrowse", "chkTop"}));

    window.Destroy();
    form["lstNames"].TabIndex = -1;  // declared first
    window.Create(nullptr);
    ShowWindow(window.Window(), SW_SHOW);
    SetForegroundWindow(window.Window());
    SetFocus(window.ControlWindow("lstNames"));
    EXPECT_EQ(PressTab(window, form), "chkTop");
    SetFocus(window.ControlWindow("cmdBrowse"));
    EXPECT_EQ(PressTab(window, form), "lstNames");
}

std::wstring MenuText(HMENU menu, int position) {
    wchar_t text[64] = L"";
    GetMenuStringW(menu, position, text, 64, MF_BYPOSITION);
    return text;
}

TEST_F(FormWindowTest, TheMenuBarShowsTheVisibleMenusAndAChoiceClicksTheItem) {
    HMENU bar = GetMenu(window.Window());
    ASSERT_EQ(GetMenuItemCount(bar), 1) << "the pop-up menu stays off the bar";
    EXPECT_EQ(MenuText(bar, 0), L"&File");
    HMENU file = GetSubMenu(bar, 0);
    ASSERT_EQ(GetMenuItemCount(file), 3);
    EXPECT_EQ(MenuText(file, 0), L"&Open");
    EXPECT_TRUE(GetMenuState(file, 1, MF_BYPOSITION) & MF_CHECKED);
    EXPECT_TRUE(GetMenuState(file, 2, MF_BYPOSITION) & MF_GRAYED);

    SendMessageW(window.Window(), WM_COMMAND, MAKEWPARAM(GetMenuItemID(file, 0), 0), 0);
    EXPECT_EQ(form.log, (std::vector<std::string>{"menu open"}));
}

TEST_F(FormWindowTest, APopUpMenuClicksTheItemTheUserPicks) {
    // The user moves down two items and presses Enter; then leaves the next pop-up.
    tests::DialogDriver person(tests::WindowClass{L"#32768"}, [](HWND menu) {
        for (WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN}) PostMessageW(menu, WM_KEYDOWN, key, 0);
    });
    window.PopupMenu("mnuPopUp");
    EXPECT_TRUE(person.Acted());
    tests::DialogDriver leaves(tests::WindowClass{L"#32768"},
                               [](HWND menu) { PostMessageW(menu, WM_KEYDOWN, VK_ESCAPE, 0); });
    window.PopupMenu("mnuPopUp");
    EXPECT_EQ(form.log, (std::vector<std::string>{"menu row 1"}));
}

}  // namespace
}  // namespace ui::win32
