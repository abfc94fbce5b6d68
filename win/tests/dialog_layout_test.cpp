#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "addin/EveryDialog.h"
#include "settings/Settings.h"
#include "ui/win32/DesktopPlatform.h"
#include "ui/win32/FormWindow.h"
#include "win/files/Win32FileSystem.h"

// Every dialog of the add-in, as designed, in real windows: each control lies inside its
// window's client area and overlaps no other, except a frame and the controls inside it.
namespace ui::win32 {
namespace {

struct Box {
    std::string name;
    RECT rect;
    ControlKind kind;
};

bool Inside(const RECT& inner, const RECT& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

// The controls a person sees, where the window shows them: a combo box by its closed size.
std::vector<Box> ShownControls(const Form& form, const FormWindow& window) {
    std::vector<Box> boxes;
    for (const auto& control : form.Controls()) {
        HWND w = window.ControlWindow(control->Name());
        if (!(GetWindowLongW(w, GWL_STYLE) & WS_VISIBLE)) continue;
        Box box{control->Name(), {}, control->Kind()};
        GetWindowRect(w, &box.rect);
        MapWindowPoints(nullptr, window.Window(), reinterpret_cast<POINT*>(&box.rect), 2);
        boxes.push_back(box);
    }
    return boxes;
}

// Room a control leaves beside its caption: a button's edges, a check box's box, a frame's
// corners.
int CaptionMargin(ControlKind kind) {
    switch (kind) {
        case ControlKind::Button:
            return 8;
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            return 20;
        case ControlKind::Frame:
            return 16;
        default:
            return 0;
    }
}

// A caption too wide for its control is cut off, or wraps out of sight when the control
// has room for one line only.
bool CaptionFits(HWND w, ControlKind kind) {
    if (kind == ControlKind::TextBox || kind == ControlKind::ComboBox || kind == ControlKind::ListBox)
        return true;
    wchar_t text[256] = L"";
    int length = GetWindowTextW(w, text, 256);
    if (length == 0) return true;
    HDC dc = GetDC(w);
    HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(w, WM_GETFONT, 0, 0)));
    SIZE size{};
    GetTextExtentPoint32W(dc, text, length, &size);
    SelectObject(dc, old);
    ReleaseDC(w, dc);
    RECT r;
    GetClientRect(w, &r);
    int lines = kind == ControlKind::Label ? std::max<int>(1, r.bottom / std::max<int>(1, size.cy)) : 1;
    return size.cx <= (r.right - CaptionMargin(kind)) * lines;
}

std::vector<std::string> LayoutFaults(const Form& form, const FormWindow& window) {
    RECT client;
    GetClientRect(window.Window(), &client);
    std::vector<Box> boxes = ShownControls(form, window);
    std::vector<std::string> faults;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const Box& a = boxes[i];
        if (!Inside(a.rect, client)) faults.push_back(a.name + " lies outside the window");
        if (!CaptionFits(window.ControlWindow(a.name), a.kind))
            faults.push_back(a.name + "'s caption does not fit");
        for (std::size_t j = i + 1; j < boxes.size(); ++j) {
            const Box& b = boxes[j];
            RECT common;
            bool onFrame = (a.kind == ControlKind::Frame && Inside(b.rect, a.rect)) ||
                           (b.kind == ControlKind::Frame && Inside(a.rect, b.rect));
            if (IntersectRect(&common, &a.rect, &b.rect) && !onFrame)
                faults.push_back(a.name + " overlaps " + b.name);
        }
    }
    return faults;
}

std::string Lines(const std::vector<std::string>& faults) {
    std::string text;
    for (const std::string& fault : faults) text += "\n  " + fault;
    return text;
}

class DialogLayoutTest : public ::testing::Test {
protected:
    // Renders the dialog as designed, after the test's change to the design, and answers the
    // faults the window shows.
    template <class Change>
    std::vector<std::string> Render(Form& form, Change&& change) {
        form.BuildDesign();
        change(form);
        FormWindow window(form);
        window.Create(nullptr);
        return LayoutFaults(form, window);
    }
    std::vector<std::string> Render(Form& form) {
        return Render(form, [](Form&) {});
    }
    Form& Dialog(const std::string& name) {
        for (Form* form : addin::EveryDialog(state))
            if (form->Name() == name) return *form;
        throw std::runtime_error("no dialog " + name);
    }

    DesktopPlatform platform;
    settings::IniFileStore store{std::filesystem::temp_directory_path() / "tarnwell-layout-test.ini"};
    win::files::Win32FileSystem disk;
    addin::AddinState state{{platform, store, disk}};
};

TEST_F(DialogLayoutTest, EveryDialogShowsEachControlInsideItsWindowAndOverNoOther) {
    std::vector<Form*> dialogs = addin::EveryDialog(state);
    EXPECT_EQ(dialogs.size(), 14u);
    for (Form* form : dialogs) {
        std::vector<std::string> faults = Render(*form);
        EXPECT_TRUE(faults.empty()) << form->Name() << ":" << Lines(faults);
    }
}

TEST_F(DialogLayoutTest, AControlMovedOntoAnotherOutAcrossAFrameOrTooNarrowIsAFault) {
    Form& preview = Dialog("frmPreview");
    auto onto = Render(preview, [](Form& f) { f["cmdTopLevel"].Left = f["cmdSelect"].Left + 300; });
    EXPECT_EQ(Lines(onto), "\n  cmdSelect overlaps cmdTopLevel");
    auto out = Render(preview, [](Form& f) { f["cmdCancel"].Top = f.Height; });
    EXPECT_EQ(Lines(out), "\n  cmdCancel lies outside the window");
    // Half on the frame, half off it: the frame's edge runs through the control.
    auto across =
        Render(preview, [](Form& f) { f["Check1"].Top = f["Frame1"].Top + f["Frame1"].Height - 100; });
    EXPECT_EQ(Lines(across), "\n  Frame1 overlaps Check1");
    auto narrow = Render(preview, [](Form& f) { f["cmdDeleteInvisible"].Width = 900; });
    EXPECT_EQ(Lines(narrow), "\n  cmdDeleteInvisible's caption does not fit");
    // A hidden control is in nobody's way until it is shown.
    auto hidden = Render(preview, [](Form& f) {
        f["picLocked"].Visible = true;
        f["picLocked"].Top = f["Picture1"].Top;
    });
    EXPECT_EQ(Lines(hidden), "\n  Picture1 overlaps picLocked");
}

}  // namespace
}  // namespace ui::win32
