#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <string>

#include "ui/Platform.h"

namespace ui::win32 {

// The desktop's open and save file dialogs, with the request's title, filter
// ("Part Files (*.ipt)|*.ipt|..."), filter index (from 1), start folder and proposed name.
// The full name chosen; "" when the user cancels. Neither moves the process's current
// folder: the add-in runs inside the host, whose folder it is.
std::string ShowOpenFileDialog(HWND owner, const FileDialogRequest& request);
std::string ShowSaveFileDialog(HWND owner, const FileDialogRequest& request);

}  // namespace ui::win32
