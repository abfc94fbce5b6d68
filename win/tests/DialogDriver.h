#pragma once
#include <functional>
#include <string>
#include <vector>

#include "win/com/Ole.h"

namespace tests {

struct WindowClass {
    const wchar_t* name;
};

// Answers the next modal window with a caption from inside its own message loop, as a
// person would: a thread timer looks for the window and, once it is there, acts on it.
class DialogDriver {
public:
    using Action = std::function<void(HWND window)>;
    DialogDriver(std::wstring caption, Action action);
    // A window of a class rather than a caption (a pop-up menu is "#32768").
    DialogDriver(WindowClass windowClass, Action action);
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;
    bool Acted() const { return acted_; }

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD);
    std::wstring caption_;
    const wchar_t* windowClass_ = nullptr;
    Action action_;
    UINT_PTR timer_ = 0;
    bool acted_ = false;
};

// The texts of a window's child controls of one class ("Static", "Button", "Edit").
std::vector<std::wstring> ChildTexts(HWND window, const wchar_t* className);
// Presses a button of a dialog as a click would.
void Press(HWND dialog, int buttonId);

}  // namespace tests
