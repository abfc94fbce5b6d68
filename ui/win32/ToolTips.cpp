#include "ui/win32/ToolTips.h"

// clang-format off
#include <commctrl.h>
// clang-format on

#include "support/Utf16.h"

namespace ui::win32 {

namespace {
// XP's comctl32 without a manifest is version 5, which refuses the larger structure the
// headers declare for version 6.
TTTOOLINFOW Tool(HWND form, HWND control, std::wstring* text) {
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text ? text->data() : nullptr;
    return tool;
}
}  // namespace

void ToolTips::Create(HWND form) {
    static const bool initialised = [] {
        INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES};
        return InitCommonControlsEx(&classes) != FALSE;
    }();
    (void)initialised;
    form_ = form;
    window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                              WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, nullptr, nullptr);
}

void ToolTips::Set(HWND control, const std::string& text) {
    if (!window_) return;
    std::wstring wide = support::Utf8ToUtf16(text);
    auto shown = tips_.find(control);
    if (shown != tips_.end() && shown->second == wide) return;
    if (wide.empty()) {
        TTTOOLINFOW tool = Tool(form_, control, nullptr);
        SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        tips_.erase(control);
        return;
    }
    bool added = shown == tips_.end();
    std::wstring& kept = tips_[control];
    kept = wide;
    TTTOOLINFOW tool = Tool(form_, control, &kept);
    SendMessageW(window_, added ? TTM_ADDTOOLW : TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Destroy() {
    if (window_) DestroyWindow(window_);
    window_ = nullptr;
    tips_.clear();
}

}  // namespace ui::win32
