#include "ui/win32/FolderPicker.h"

#include <shlobj.h>

#include "support/Utf16.h"

namespace ui::win32 {

namespace {
int CALLBACK SelectStartFolder(HWND picker, UINT message, LPARAM, LPARAM startFolder) {
    if (message == BFFM_INITIALIZED && startFolder)
        SendMessageW(picker, BFFM_SETSELECTIONW, TRUE, startFolder);
    return 0;
}
}  // namespace

std::string ShowFolderPicker(HWND owner, const std::string& prompt, const std::string& startFolder) {
    std::wstring title = support::Utf8ToUtf16(prompt), start = support::Utf8ToUtf16(startFolder);
    wchar_t displayName[MAX_PATH] = L"";
    BROWSEINFOW browse{};
    browse.hwndOwner = owner ? owner : GetActiveWindow();
    browse.pszDisplayName = displayName;
    browse.lpszTitle = title.c_str();
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    browse.lpfn = SelectStartFolder;
    browse.lParam = start.empty() ? 0 : reinterpret_cast<LPARAM>(start.c_str());
    LPITEMIDLIST chosen = SHBrowseForFolderW(&browse);
    if (!chosen) return "";
    wchar_t path[MAX_PATH] = L"";
    BOOL isFolder = SHGetPathFromIDListW(chosen, path);
    CoTaskMemFree(chosen);
    return isFolder ? support::Utf16ToUtf8(path) : std::string();
}

}  // namespace ui::win32
