#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace ui::win32 {

// The control identifiers of the input box, for anyone who drives it as a person would.
inline constexpr int kInputBoxPromptId = 100;
inline constexpr int kInputBoxTextId = 101;

// A modal box with a prompt, a text field holding defaultText (selected, so typing replaces
// it), OK and Cancel. The text as the user left it on OK; "" on Cancel, as on the original
// platform. An empty title is the application's.
std::string ShowInputBox(HWND owner, const std::string& prompt, const std::string& title,
                         const std::string& defaultText);

}  // namespace ui::win32
