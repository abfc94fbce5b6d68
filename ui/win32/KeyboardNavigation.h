#pragma once
// clang-format off
#include <windows.h>
// clang-format on

namespace ui::win32 {

// Tab, the arrow keys within an option group, Enter and Escape move through a form's
// controls as in a dialog box. A modeless form lives in the host's message loop, which
// knows nothing of our windows, so the keys are taken where every loop of the thread
// fetches its messages: a message hook, held while at least one form window exists.
void AddNavigableWindow(HWND form);
void RemoveNavigableWindow(HWND form);

}  // namespace ui::win32
