#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <map>
#include <string>

namespace ui::win32 {

// The tips a form's controls show under a resting pointer: one tooltip window a form, one
// tool a control that has a tip.
class ToolTips {
public:
    ToolTips() = default;
    ~ToolTips() { Destroy(); }
    ToolTips(const ToolTips&) = delete;
    ToolTips& operator=(const ToolTips&) = delete;

    void Create(HWND form);
    // Gives the control this tip; an empty text takes its tip away.
    void Set(HWND control, const std::string& text);
    void Destroy();

    HWND Window() const { return window_; }

private:
    HWND form_ = nullptr;
    HWND window_ = nullptr;
    std::map<HWND, std::wstring> tips_;  // what each control shows, so unchanged tips are left alone
};

}  // namespace ui::win32
