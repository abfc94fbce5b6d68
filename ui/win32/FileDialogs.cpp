#include "ui/win32/FileDialogs.h"

#include <commdlg.h>

#include <algorithm>
#include <vector>

#include "support/Utf16.h"

namespace ui::win32 {

namespace {
// "a|b|c|d" becomes "a\0b\0c\0d\0\0", the system's list of description and pattern pairs.
std::wstring SystemFilter(const std::string& filter) {
    std::wstring list = support::Utf8ToUtf16(filter);
    for (wchar_t& c : list)
        if (c == L'|') c = L'\0';
    list.push_back(L'\0');
    list.push_back(L'\0');
    return list;
}

std::string Show(HWND owner, const FileDialogRequest& request, bool save) {
    std::wstring filter = SystemFilter(request.filter), title = support::Utf8ToUtf16(request.title),
                 folder = support::Utf8ToUtf16(request.initialDir);
    std::vector<wchar_t> file(32768, L'\0');  // the longest path the system has
    std::wstring proposed = support::Utf8ToUtf16(request.fileName);
    std::copy_n(proposed.begin(), std::min(proposed.size(), file.size() - 1), file.begin());

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner ? owner : GetActiveWindow();
    dialog.lpstrFilter = request.filter.empty() ? nullptr : filter.c_str();
    dialog.nFilterIndex = static_cast<DWORD>(request.filterIndex);
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = static_cast<DWORD>(file.size());
    dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    dialog.lpstrTitle = title.empty() ? nullptr : title.c_str();
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    BOOL chosen = save ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog);
    return chosen ? support::Utf16ToUtf8(file.data()) : std::string();
}
}  // namespace

std::string ShowOpenFileDialog(HWND owner, const FileDialogRequest& request) {
    return Show(owner, request, false);
}

std::string ShowSaveFileDialog(HWND owner, const FileDialogRequest& request) {
    return Show(owner, request, true);
}

}  // namespace ui::win32
