#include "ui/win32/MessageBox.h"

#include "support/Utf16.h"

namespace ui::win32 {

MsgBoxResult ShowMessageBox(HWND owner, const std::string& prompt, int style, const std::string& title) {
    std::wstring text = support::Utf8ToUtf16(prompt);
    std::wstring caption = support::Utf8ToUtf16(title.empty() ? kAppTitle : title);
    int answer = MessageBoxW(owner ? owner : GetActiveWindow(), text.c_str(), caption.c_str(),
                             static_cast<UINT>(style));
    // 0 only when the box could not be shown: the user answered nothing, as with Cancel.
    return answer == 0 ? vbCancel : static_cast<MsgBoxResult>(answer);
}

}  // namespace ui::win32
