#include "ui/win32/InputBox.h"

#include <vector>

#include "support/Utf16.h"
#include "ui/Platform.h"

namespace ui::win32 {

namespace {
// An in-memory dialog template: the box needs no resource script.
class DialogTemplate {
public:
    DialogTemplate(const std::wstring& title, short cx, short cy, WORD items) {
        DLGTEMPLATE header{DS_MODALFRAME | DS_SETFONT | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU,
                           0,
                           items,
                           0,
                           0,
                           cx,
                           cy};
        Append(&header, sizeof header);
        words_.push_back(0);  // no menu
        words_.push_back(0);  // the standard dialog class
        Text(title);
        words_.push_back(8);  // point size of the shell's dialog font
        Text(L"MS Shell Dlg");
    }
    // kind: 0x0080 button, 0x0081 edit, 0x0082 static.
    void Item(WORD kind, DWORD style, short x, short y, short cx, short cy, WORD id,
              const std::wstring& text) {
        if (words_.size() % 2) words_.push_back(0);  // items start on a DWORD boundary
        DLGITEMTEMPLATE item{WS_CHILD | WS_VISIBLE | style, 0, x, y, cx, cy, id};
        Append(&item, sizeof item);
        words_.push_back(0xFFFF);
        words_.push_back(kind);
        Text(text);
        words_.push_back(0);  // no creation data
    }
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

private:
    void Append(const void* data, std::size_t bytes) {
        const WORD* w = static_cast<const WORD*>(data);
        words_.insert(words_.end(), w, w + bytes / sizeof(WORD));
    }
    void Text(const std::wstring& text) {
        words_.insert(words_.end(), text.begin(), text.end());
        words_.push_back(0);
    }
    std::vector<WORD> words_;
};

struct State {
    std::wstring prompt, text;
    bool ok = false;
};

INT_PTR CALLBACK InputBoxProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* state = reinterpret_cast<State*>(GetWindowLongPtrW(dialog, DWLP_USER));
    switch (message) {
        case WM_INITDIALOG: {
            state = reinterpret_cast<State*>(lParam);
            SetWindowLongPtrW(dialog, DWLP_USER, lParam);
            SetDlgItemTextW(dialog, kInputBoxPromptId, state->prompt.c_str());
            HWND field = GetDlgItem(dialog, kInputBoxTextId);
            SetWindowTextW(field, state->text.c_str());
            SendMessageW(field, EM_SETSEL, 0, -1);
            SetFocus(field);
            return FALSE;  // the focus is set
        }
        case WM_COMMAND:
            if (LOWORD(wParam) == IDOK) {
                HWND field = GetDlgItem(dialog, kInputBoxTextId);
                std::wstring text(GetWindowTextLengthW(field) + 1, L'\0');
                text.resize(GetWindowTextW(field, text.data(), static_cast<int>(text.size())));
                state->text = text;
                state->ok = true;
                EndDialog(dialog, IDOK);
                return TRUE;
            }
            if (LOWORD(wParam) == IDCANCEL) {
                EndDialog(dialog, IDCANCEL);
                return TRUE;
            }
            break;
    }
    return FALSE;
}
}  // namespace

std::string ShowInputBox(HWND owner, const std::string& prompt, const std::string& title,
                         const std::string& defaultText) {
    // The original platform's layout, in dialog units: the prompt beside the buttons, the
    // field along the bottom.
    DialogTemplate layout(support::Utf8ToUtf16(title.empty() ? kAppTitle : title), 240, 84, 4);
    layout.Item(0x0082, SS_LEFT | SS_NOPREFIX, 7, 7, 170, 48, kInputBoxPromptId, L"");
    layout.Item(0x0080, BS_DEFPUSHBUTTON | WS_TABSTOP, 185, 7, 48, 14, IDOK, L"OK");
    layout.Item(0x0080, BS_PUSHBUTTON | WS_TABSTOP, 185, 25, 48, 14, IDCANCEL, L"Cancel");
    layout.Item(0x0081, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, 7, 62, 226, 13, kInputBoxTextId, L"");
    State state{support::Utf8ToUtf16(prompt), support::Utf8ToUtf16(defaultText)};
    DialogBoxIndirectParamW(GetModuleHandleW(nullptr), layout.Get(), owner ? owner : GetActiveWindow(),
                            InputBoxProc, reinterpret_cast<LPARAM>(&state));
    return state.ok ? support::Utf16ToUtf8(state.text) : std::string();
}

}  // namespace ui::win32
