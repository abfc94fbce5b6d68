#include "ui/win32/FormWindow.h"

#include <algorithm>
#include <functional>

#include "support/Error.h"
#include "support/Utf16.h"
#include "ui/win32/KeyboardNavigation.h"
#include "ui/win32/Pictures.h"
#include "ui/win32/Twips.h"

namespace ui::win32 {

namespace {
constexpr wchar_t kWindowClass[] = L"TarnwellForm";
constexpr int kFirstControlId = 1000;
constexpr int kFirstMenuId = 2000;  // plus the item's place among the form's menus

// The module this code lives in (the add-in DLL, or a test program): window classes
// belong to it.
HINSTANCE ThisModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&ThisModule), &module);
    return module;
}

struct Look {
    const wchar_t* windowClass;
    DWORD style;
};

Look LookOf(const Control& c) {
    switch (c.Kind()) {
        case ControlKind::Button:
            return {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP};
        case ControlKind::CheckBox:  // the form decides the value: no automatic toggling
            return {L"BUTTON", BS_3STATE | WS_TABSTOP};
        case ControlKind::OptionButton:
            return {L"BUTTON", BS_RADIOBUTTON | WS_TABSTOP};
        case ControlKind::TextBox:
            return {L"EDIT", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP};
        case ControlKind::Label:  // SS_NOTIFY: a label's tooltip needs the pointer's messages
            return {L"STATIC", SS_LEFT | SS_NOPREFIX | SS_NOTIFY};
        case ControlKind::ListBox:
            return {L"LISTBOX",
                    static_cast<DWORD>(LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER |
                                       WS_TABSTOP | (c.MultiSelect ? LBS_EXTENDEDSEL : 0))};
        case ControlKind::ComboBox:
            return {L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP};
        case ControlKind::Picture:
            return {L"STATIC", SS_LEFT | SS_NOPREFIX | SS_NOTIFY | WS_BORDER};
        case ControlKind::Frame:
            return {L"BUTTON", BS_GROUPBOX};
    }
    return {L"STATIC", 0};
}

// The form's controls in its Tab order.
std::vector<Control*> InTabOrder(const Form& form) {
    std::vector<Control*> controls;
    for (const auto& control : form.Controls()) controls.push_back(control.get());
    std::stable_sort(controls.begin(), controls.end(),
                     [](const Control* a, const Control* b) { return a->TabIndex < b->TabIndex; });
    return controls;
}

// The arrow keys move within a group, which runs from a WS_GROUP control to the next: each
// control starts one, except an option button that follows one of its own group.
bool StartsGroup(const Control& control, const Control* before) {
    return !(control.Kind() == ControlKind::OptionButton && before &&
             before->Kind() == ControlKind::OptionButton && before->Group == control.Group);
}

// The height a combo box is given is that of its dropped-down list too; its closed height
// follows from its font.
constexpr int kComboListTwips = 2400;

// What a control's window shows as its text.
const std::string& ShownText(const Control& c) {
    return c.Kind() == ControlKind::Picture ? c.Picture : c.Caption();
}

std::wstring WindowText(HWND window) {
    std::wstring text(GetWindowTextLengthW(window) + 1, L'\0');
    text.resize(GetWindowTextW(window, text.data(), static_cast<int>(text.size())));
    return text;
}

void SetTextIfChanged(HWND window, const std::wstring& wide) {
    if (WindowText(window) != wide) SetWindowTextW(window, wide.c_str());
}

void SetTextIfChanged(HWND window, const std::string& text) {
    SetTextIfChanged(window, support::Utf8ToUtf16(text));
}

void SetIconStyle(HWND button, bool icon) {
    LONG_PTR style = GetWindowLongPtrW(button, GWL_STYLE);
    LONG_PTR wanted = icon ? style | BS_ICON : style & ~static_cast<LONG_PTR>(BS_ICON);
    if (wanted != style) SetWindowLongPtrW(button, GWL_STYLE, wanted);
}

// A button without a caption shows its picture: an image, or a text standing for it. A
// button takes an image only while its style says icon: the style comes first to show one,
// and last to take it away.
void ShowPicture(HWND button, const std::string& picture) {
    PictureLook look = LookOfPicture(picture);
    if (look.icon) SetIconStyle(button, true);
    if (reinterpret_cast<HICON>(SendMessageW(button, BM_GETIMAGE, IMAGE_ICON, 0)) != look.icon)
        SendMessageW(button, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(look.icon));
    if (!look.icon) SetIconStyle(button, false);
    SetTextIfChanged(button, look.text);
}

void RegisterWindowClass() {
    static bool registered = false;
    if (registered) return;
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = DefWindowProcW;  // replaced per window once it is created
    windowClass.hInstance = ThisModule();
    windowClass.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = kWindowClass;
    registered = RegisterClassExW(&windowClass) != 0;
}
}  // namespace

FormWindow::FormWindow(Form& form) : form_(form) {}

FormWindow::~FormWindow() {
    *alive_ = false;
    Destroy();
}

void FormWindow::Create(HWND owner) {
    RegisterWindowClass();
    dpi_ = ScreenDpi();
    std::wstring caption = support::Utf8ToUtf16(form_.Caption());
    window_ = CreateWindowExW(WS_EX_DLGMODALFRAME, kWindowClass, caption.c_str(),
                              WS_POPUP | WS_CAPTION | WS_SYSMENU, TwipsToPixels(form_.Left, dpi_),
                              TwipsToPixels(form_.Top, dpi_), TwipsToPixels(form_.Width, dpi_),
                              TwipsToPixels(form_.Height, dpi_), owner, nullptr, ThisModule(), nullptr);
    if (!window_) throw support::Error(support::errors::kFail, "Cannot create the window of " + form_.Name());
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&FormWindow::WindowProc));

    HFONT font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    // Windows are made in Tab order: the keyboard moves through siblings in the order of
    // their making.
    std::vector<HWND> windows(form_.Controls().size());
    const Control* before = nullptr;
    for (Control* control : InTabOrder(form_)) {
        Look look = LookOf(*control);
        std::size_t index = 0;
        while (form_.Controls()[index].get() != control) ++index;
        DWORD group = StartsGroup(*control, before) ? WS_GROUP : 0;
        windows[index] = CreateWindowExW(
            control->Kind() == ControlKind::TextBox ? WS_EX_CLIENTEDGE : 0, look.windowClass, L"",
            WS_CHILD | group | look.style, 0, 0, 0, 0, window_,
            reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstControlId + index)), ThisModule(), nullptr);
        SendMessageW(windows[index], WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        before = control;
    }
    for (std::size_t i = 0; i < windows.size(); ++i)
        children_.push_back({form_.Controls()[i].get(), windows[i], {}});
    // A frame draws behind the controls that sit on it, and an outer frame behind the
    // frames inside it, which are declared after it.
    for (auto child = children_.rbegin(); child != children_.rend(); ++child)
        if (child->control->Kind() == ControlKind::Frame)
            SetWindowPos(child->window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    tips_.Create(window_);
    AddNavigableWindow(window_);
    Sync();
}

void FormWindow::Destroy() {
    if (!window_) return;
    HWND window = window_;
    window_ = nullptr;
    RemoveNavigableWindow(window);
    tips_.Destroy();
    children_.clear();
    DestroyWindow(window);
}

HWND FormWindow::ControlWindow(const std::string& name) const {
    for (const Child& child : children_)
        if (child.control->Name() == name) return child.window;
    return nullptr;
}

void FormWindow::Place(HWND window, int left, int top, int width, int height) const {
    SetWindowPos(window, nullptr, TwipsToPixels(left, dpi_), TwipsToPixels(top, dpi_),
                 TwipsToPixels(width, dpi_), TwipsToPixels(height, dpi_), SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::Sync() {
    if (!window_) return;
    syncing_ = true;
    SetTextIfChanged(window_, form_.Caption());
    SetWindowPos(window_, nullptr, 0, 0, TwipsToPixels(form_.Width, dpi_), TwipsToPixels(form_.Height, dpi_),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SyncMenuBar();
    for (Child& child : children_) SyncChild(child);
    syncing_ = false;
}

void FormWindow::SyncChild(Child& child) {
    const Control& c = *child.control;
    HWND w = child.window;
    Place(w, c.Left, c.Top, c.Width, c.Height + (c.Kind() == ControlKind::ComboBox ? kComboListTwips : 0));
    EnableWindow(w, c.Enabled);
    tips_.Set(w, c.ToolTipText);
    ShowWindow(w, c.Visible ? SW_SHOWNA : SW_HIDE);
    switch (c.Kind()) {
        case ControlKind::CheckBox:
            SendMessageW(w, BM_SETCHECK,
                         c.Value() == 2 ? BST_INDETERMINATE
                         : c.Value()    ? BST_CHECKED
                                        : BST_UNCHECKED,
                         0);
            break;
        case ControlKind::OptionButton:
            SendMessageW(w, BM_SETCHECK, c.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
            break;
        case ControlKind::TextBox:
            SendMessageW(w, EM_SETREADONLY, c.Locked, 0);
            break;
        case ControlKind::ListBox:
        case ControlKind::ComboBox: {
            bool list = c.Kind() == ControlKind::ListBox;
            if (child.rows != c.Items) {
                SendMessageW(w, list ? LB_RESETCONTENT : CB_RESETCONTENT, 0, 0);
                for (const std::string& row : c.Items) {
                    std::wstring wide = support::Utf8ToUtf16(row);
                    SendMessageW(w, list ? LB_ADDSTRING : CB_ADDSTRING, 0,
                                 reinterpret_cast<LPARAM>(wide.c_str()));
                }
                child.rows = c.Items;
            }
            if (list && c.MultiSelect) {
                for (int row = 0; row < static_cast<int>(c.Items.size()); ++row)
                    SendMessageW(w, LB_SETSEL, c.Selected(row), row);
            } else {
                SendMessageW(w, list ? LB_SETCURSEL : CB_SETCURSEL, c.ListIndex, 0);
            }
            break;
        }
        default:
            break;
    }
    // A list box has no text of its own; every other kind shows one.
    if (c.Kind() == ControlKind::Button && c.Caption().empty() && !c.Picture.empty())
        ShowPicture(w, c.Picture);
    else if (c.Kind() != ControlKind::ListBox)
        SetTextIfChanged(w, ShownText(c));
}

HMENU FormWindow::BuildMenu(const std::string& parent, bool bar) const {
    HMENU menu = bar ? CreateMenu() : CreatePopupMenu();
    const std::vector<MenuItem>& items = form_.Menus();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const MenuItem& item = items[i];
        if (item.Parent != parent || !item.Visible) continue;
        std::wstring caption = support::Utf8ToUtf16(item.Caption);
        UINT flags = (item.Checked ? MF_CHECKED : 0) | (item.Enabled ? 0 : MF_GRAYED);
        bool hasItems = false;
        for (const MenuItem& other : items) hasItems = hasItems || other.Parent == item.Name;
        if (item.Caption == "-")
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        else if (hasItems)
            AppendMenuW(menu, MF_POPUP | flags, reinterpret_cast<UINT_PTR>(BuildMenu(item.Name, false)),
                        caption.c_str());
        else
            AppendMenuW(menu, MF_STRING | flags, kFirstMenuId + i, caption.c_str());
    }
    return menu;
}

void FormWindow::SyncMenuBar() {
    HMENU bar = BuildMenu("", true);
    if (GetMenuItemCount(bar) == 0) {
        DestroyMenu(bar);
        bar = nullptr;
    }
    HMENU old = GetMenu(window_);
    SetMenu(window_, bar);
    if (old) DestroyMenu(old);
}

void FormWindow::PopupMenu(const std::string& menu) {
    if (!window_) return;
    HMENU popup = BuildMenu(menu, false);
    POINT at;
    GetCursorPos(&at);
    // The pop-up closes when the user clicks elsewhere only if its owner is in front.
    SetForegroundWindow(window_);
    int chosen = TrackPopupMenu(popup, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, window_, nullptr);
    DestroyMenu(popup);
    if (chosen) OnMenu(chosen);
}

void FormWindow::OnMenu(int id) {
    std::size_t index = static_cast<std::size_t>(id - kFirstMenuId);
    if (index >= form_.Menus().size()) return;
    MenuItem item = form_.Menus()[index];  // a copy: the handler may change the menus
    std::shared_ptr<bool> alive = alive_;
    ReportingErrors(form_.platform(), [&] { form_.ClickMenu(item.Name, item.Index); });
    if (*alive) Sync();
}

void FormWindow::OnCommand(int id, int notification) {
    std::size_t index = static_cast<std::size_t>(id - kFirstControlId);
    if (syncing_ || index >= children_.size()) return;
    Control& c = *children_[index].control;
    HWND w = children_[index].window;
    const std::string& name = c.Name();
    // What the user did, as the form's event. Other notifications (EN_UPDATE, focus) are
    // no event: syncing on them would put back text the form has not been told of yet.
    std::function<void()> event;
    switch (c.Kind()) {
        case ControlKind::Button:
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
            if (notification == BN_CLICKED) event = [&] { form_.Raise(name, EventKind::Click); };
            break;
        case ControlKind::TextBox:
            if (notification == EN_CHANGE) event = [&] { c.SetText(support::Utf16ToUtf8(WindowText(w))); };
            if (notification == EN_KILLFOCUS) event = [&] { form_.Raise(name, EventKind::LostFocus); };
            break;
        case ControlKind::ListBox:
            if (notification == LBN_SELCHANGE)
                event = [&] {
                    if (c.MultiSelect)
                        for (int row = 0; row < static_cast<int>(c.Items.size()); ++row)
                            c.SetSelected(row, SendMessageW(w, LB_GETSEL, row, 0) > 0);
                    c.ListIndex = static_cast<int>(
                        SendMessageW(w, c.MultiSelect ? LB_GETCARETINDEX : LB_GETCURSEL, 0, 0));
                    form_.Raise(name, EventKind::Click);
                };
            if (notification == LBN_DBLCLK) event = [&] { form_.Raise(name, EventKind::DblClick); };
            break;
        case ControlKind::ComboBox:
            if (notification == CBN_SELCHANGE)
                event = [&] {
                    c.ListIndex = static_cast<int>(SendMessageW(w, CB_GETCURSEL, 0, 0));
                    if (c.ListIndex >= 0 && c.ListIndex < static_cast<int>(c.Items.size()))
                        c.SetCaption(c.Items[c.ListIndex]);
                    form_.Raise(name, EventKind::Click);
                };
            if (notification == CBN_EDITCHANGE)
                event = [&] { c.SetText(support::Utf16ToUtf8(WindowText(w))); };
            break;
        default:
            break;
    }
    if (!event) return;
    // An error no handler caught goes to the platform's report, never out through the
    // window procedure.
    std::shared_ptr<bool> alive = alive_;
    ReportingErrors(form_.platform(), event);
    if (*alive) Sync();  // the handler may have changed anything the form shows
}

LRESULT CALLBACK FormWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self && window == self->window_) {
        switch (message) {
            case WM_COMMAND:
                if (lParam)
                    self->OnCommand(LOWORD(wParam), HIWORD(wParam));
                else if (HIWORD(wParam) == 0)
                    self->OnMenu(LOWORD(wParam));
                return 0;
            case WM_ACTIVATE:
                // As a dialog box does: the keyboard starts at the first control that takes
                // it, unless the focus is on one of ours already.
                if (LOWORD(wParam) != WA_INACTIVE && !IsChild(window, GetFocus())) {
                    if (HWND first = GetNextDlgTabItem(window, nullptr, FALSE)) SetFocus(first);
                    return 0;
                }
                break;
            case WM_CLOSE:
                // The form may refuse (Form_QueryUnload); the platform destroys the window
                // of a form that unloads.
                ReportingErrors(self->form_.platform(), [&] { self->form_.Unload(); });
                return 0;
        }
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace ui::win32
