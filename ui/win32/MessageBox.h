#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <string>

#include "ui/Platform.h"

namespace ui::win32 {

// The desktop's message box. The style's buttons, icon and default-button bits are the
// system's own values, so they pass through; an empty title is the application's.
// owner: the window it is modal to; none means the thread's active window.
MsgBoxResult ShowMessageBox(HWND owner, const std::string& prompt, int style, const std::string& title);

}  // namespace ui::win32
