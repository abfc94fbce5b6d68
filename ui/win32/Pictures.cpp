#include "ui/win32/Pictures.h"

#include <shellapi.h>

#include "support/Utf16.h"

namespace ui::win32 {

namespace {
constexpr int kShellFolderIcon = 3;  // the closed folder among shell32.dll's icons

// The small one: a button is about as high as a line of text.
HICON FolderIcon() {
    static HICON icon = [] {
        HICON small = nullptr;
        return ExtractIconExW(L"shell32.dll", kShellFolderIcon, nullptr, &small, 1) ? small : nullptr;
    }();
    return icon;
}
}  // namespace

PictureLook LookOfPicture(const std::string& name) {
    if (name == "folder" && FolderIcon()) return {FolderIcon(), L""};
    if (name == "folder") return {nullptr, L"..."};
    // The expand button shows which way the dialog will go.
    if (name == "collapsed") return {nullptr, L">>"};
    if (name == "expanded") return {nullptr, L"<<"};
    return {nullptr, support::Utf8ToUtf16(name)};
}

}  // namespace ui::win32
