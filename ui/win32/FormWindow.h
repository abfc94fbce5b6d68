#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <memory>
#include <string>
#include <vector>

#include "ui/Form.h"
#include "ui/win32/ToolTips.h"

namespace ui::win32 {

// A ui::Form as a real window: one child window a control, placed from the form's twips at
// the screen's DPI. It only mirrors the form's state (Sync) and feeds what the user does
// back into the form as its events; no logic lives here.
//
// Every control kind, the form's size, positions, captions and texts, enabled, visible,
// values, list rows and the selected row, tooltips, clicks, double clicks, text changes and
// closing (the form is asked, and its platform destroys the window of an unloaded form),
// the menu bar and pop-up menus, and the keyboard: Tab moves in the form's Tab order, the
// arrow keys within an option group. A picture button without a caption shows its picture
// (ui/win32/Pictures.h); a picture box shows its picture's name.
class FormWindow {
public:
    explicit FormWindow(Form& form);
    ~FormWindow();
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    // Creates the window and its controls, hidden, owned by owner (may be none).
    void Create(HWND owner);
    // Brings every window in line with the form's state.
    void Sync();
    void Destroy();

    // Shows one of the form's menus as a pop-up at the pointer; the item the user picks is
    // clicked before this returns. Leaving the pop-up picks nothing.
    void PopupMenu(const std::string& menu);

    HWND Window() const { return window_; }
    // The child window of a control, for tests and the platform.
    HWND ControlWindow(const std::string& name) const;
    HWND ToolTipWindow() const { return tips_.Window(); }

private:
    struct Child {
        Control* control;
        HWND window;
        std::vector<std::string> rows;  // the rows last put into a list, so unchanged lists are left alone
    };
    static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnCommand(int id, int notification);
    void OnMenu(int id);
    // The visible items under parent ("" for the menu bar), their sub-menus within.
    HMENU BuildMenu(const std::string& parent, bool bar) const;
    void SyncMenuBar();
    void SyncChild(Child& child);
    void Place(HWND window, int left, int top, int width, int height) const;

    Form& form_;
    HWND window_ = nullptr;
    std::vector<Child> children_;  // in the form's declaration order
    ToolTips tips_;
    int dpi_ = 96;
    bool syncing_ = false;  // the notifications our own updates cause are not the user's
    // False once this object is gone: a handler may unload the form, and the platform then
    // deletes its window while the window procedure is still running.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace ui::win32
