#include "win/tests/DialogDriver.h"

namespace tests {

namespace {
DialogDriver* current = nullptr;  // thread timers carry no data of their own
}

DialogDriver::DialogDriver(std::wstring caption, Action action)
    : caption_(std::move(caption)), action_(std::move(action)) {
    current = this;
    timer_ = SetTimer(nullptr, 0, 20, &DialogDriver::Tick);
}

DialogDriver::DialogDriver(WindowClass windowClass, Action action)
    : DialogDriver(std::wstring(), std::move(action)) {
    windowClass_ = windowClass.name;
}

DialogDriver::~DialogDriver() {
    if (timer_) KillTimer(nullptr, timer_);
    current = nullptr;
}

void CALLBACK DialogDriver::Tick(HWND, UINT, UINT_PTR, DWORD) {
    DialogDriver* self = current;
    if (!self || self->acted_) return;
    HWND window = self->windowClass_ ? FindWindowW(self->windowClass_, nullptr)
                                     : FindWindowW(nullptr, self->caption_.c_str());
    if (!window) return;
    self->acted_ = true;
    KillTimer(nullptr, self->timer_);
    self->timer_ = 0;
    self->action_(window);
}

std::vector<std::wstring> ChildTexts(HWND window, const wchar_t* className) {
    struct Search {
        const wchar_t* className;
        std::vector<std::wstring> texts;
    } search{className, {}};
    EnumChildWindows(
        window,
        [](HWND child, LPARAM data) -> BOOL {
            auto* s = reinterpret_cast<Search*>(data);
            wchar_t name[64], text[1024];
            GetClassNameW(child, name, 64);
            if (lstrcmpiW(name, s->className) == 0) {
                GetWindowTextW(child, text, 1024);
                s->texts.push_back(text);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.texts;
}

void Press(HWND dialog, int buttonId) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(buttonId, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, buttonId)));
}

}  // namespace tests
