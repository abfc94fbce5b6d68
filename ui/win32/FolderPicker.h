#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace ui::win32 {

// The shell's folder picker, showing prompt and starting at startFolder; file-system
// folders only. The folder chosen; "" when the user cancels. Needs COM on the thread,
// as the host's user-interface thread has it.
std::string ShowFolderPicker(HWND owner, const std::string& prompt, const std::string& startFolder);

}  // namespace ui::win32
