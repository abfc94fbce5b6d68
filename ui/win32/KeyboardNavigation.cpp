#include "ui/win32/KeyboardNavigation.h"

#include <algorithm>
#include <vector>

namespace ui::win32 {

namespace {
// One thread (the host's user-interface thread) owns every form window.
std::vector<HWND> forms;
HHOOK hook = nullptr;

LRESULT CALLBACK OnGetMessage(int code, WPARAM removing, LPARAM lParam) {
    auto* message = reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && removing == PM_REMOVE && message->message >= WM_KEYFIRST &&
        message->message <= WM_KEYLAST) {
        HWND root = GetAncestor(message->hwnd, GA_ROOT);
        if (std::find(forms.begin(), forms.end(), root) != forms.end() && IsDialogMessageW(root, message))
            message->message = WM_NULL;  // handled: the loop that fetched it dispatches nothing
    }
    return CallNextHookEx(hook, code, removing, lParam);
}
}  // namespace

void AddNavigableWindow(HWND form) {
    forms.push_back(form);
    if (!hook) hook = SetWindowsHookExW(WH_GETMESSAGE, &OnGetMessage, nullptr, GetCurrentThreadId());
}

void RemoveNavigableWindow(HWND form) {
    forms.erase(std::remove(forms.begin(), forms.end(), form), forms.end());
    if (forms.empty() && hook) {
        UnhookWindowsHookEx(hook);
        hook = nullptr;
    }
}

}  // namespace ui::win32
