#include "ui/win32/DesktopPlatform.h"

#include <shellapi.h>

#include <cstdio>
#include <vector>

#include "support/Error.h"
#include "support/Utf16.h"
#include "ui/win32/FileDialogs.h"
#include "ui/win32/FolderPicker.h"
#include "ui/win32/InputBox.h"
#include "ui/win32/MessageBox.h"

namespace ui::win32 {

namespace {
// The original platform's window styles for Shell, as ShowWindow's: they match but for
// "minimized without focus" (6), which is SW_SHOWMINNOACTIVE.
int ShowCommand(int windowStyle) {
    return windowStyle == 6 ? SW_SHOWMINNOACTIVE : windowStyle;
}

std::wstring RegistryDefault(HKEY root, const std::wstring& key) {
    HKEY h;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_QUERY_VALUE, &h) != ERROR_SUCCESS) return L"";
    DWORD type = 0, bytes = 0;
    std::wstring value;
    if (RegQueryValueExW(h, nullptr, nullptr, &type, nullptr, &bytes) == ERROR_SUCCESS &&
        (type == REG_SZ || type == REG_EXPAND_SZ)) {
        std::vector<wchar_t> data(bytes / sizeof(wchar_t) + 1, L'\0');
        if (RegQueryValueExW(h, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(data.data()), &bytes) ==
            ERROR_SUCCESS)
            value = data.data();
    }
    RegCloseKey(h);
    return value;
}
}  // namespace

DesktopPlatform::~DesktopPlatform() = default;

MsgBoxResult DesktopPlatform::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    return ShowMessageBox(nullptr, prompt, buttons, title);
}

std::string DesktopPlatform::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& defaultText) {
    return ShowInputBox(nullptr, prompt, title, defaultText);
}

std::string DesktopPlatform::SaveFilePrompt(const FileDialogRequest& request) {
    return ShowSaveFileDialog(nullptr, request);
}

std::string DesktopPlatform::OpenFilePrompt(const FileDialogRequest& request) {
    return ShowOpenFileDialog(nullptr, request);
}

std::string DesktopPlatform::BrowseForFolder(std::intptr_t ownerWindow, const std::string& prompt,
                                             const std::string& startFolder) {
    return ShowFolderPicker(reinterpret_cast<HWND>(ownerWindow), prompt, startFolder);
}

void DesktopPlatform::Shell(const std::string& commandLine, int windowStyle) {
    std::wstring command = support::Utf8ToUtf16(commandLine);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(ShowCommand(windowStyle));
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        throw support::Error(support::errors::kFileNotFound, "File not found: " + commandLine);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void DesktopPlatform::ShellOpen(const std::string& target) {
    std::wstring wide = support::Utf8ToUtf16(target);
    auto result = reinterpret_cast<INT_PTR>(
        ShellExecuteW(GetActiveWindow(), L"open", wide.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
    if (result <= 32) throw support::Error(support::errors::kFileNotFound, "Cannot open " + target);
}

std::string DesktopPlatform::ApplicationPath(const std::string& exeName) {
    std::wstring key =
        L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + support::Utf8ToUtf16(exeName);
    std::wstring path = RegistryDefault(HKEY_LOCAL_MACHINE, key);
    if (path.empty()) path = RegistryDefault(HKEY_CURRENT_USER, key);
    return support::Utf16ToUtf8(path);
}

bool DesktopPlatform::AppActivate(const std::string& caption) {
    HWND window = FindWindowW(nullptr, support::Utf8ToUtf16(caption).c_str());
    if (!window) return false;
    if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
    SetForegroundWindow(window);
    return true;
}

void DesktopPlatform::PopupMenu(Form& form, const std::string& menu) {
    throw support::Error(support::errors::kFail, "The pop-up menu " + form.Name() + "." + menu +
                                                     " cannot be shown: not rendered yet");
}

std::intptr_t DesktopPlatform::SetOwner(Form& form, std::intptr_t ownerWindow) {
    HWND window = WindowOf(form);
    if (!window) return 0;
    return SetWindowLongPtrW(window, GWLP_HWNDPARENT, ownerWindow);
}

void DesktopPlatform::DoEvents() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));  // the host's loop must see it
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void DesktopPlatform::WaitForInput(const std::string&) {
    WaitMessage();
    DoEvents();
}

void DesktopPlatform::RunModal(Form& form) {
    HWND owner = GetWindow(WindowOf(form), GW_OWNER);
    bool ownerWasEnabled = owner && IsWindowEnabled(owner);
    if (ownerWasEnabled) EnableWindow(owner, FALSE);
    while (form.Loaded() && form.Visible()) WaitForInput("modal form " + form.Name());
    if (ownerWasEnabled) EnableWindow(owner, TRUE);
}

void DesktopPlatform::ReportError(const support::Error& error) {
    char number[48];
    if (error.Number() > 0 && error.Number() <= 0xFFFF)
        std::snprintf(number, sizeof number, "%d", static_cast<int>(error.Number()));
    else
        std::snprintf(number, sizeof number, "%d (%08lX)", static_cast<int>(error.Number()),
                      static_cast<unsigned long>(error.Number()));
    ShowMessageBox(nullptr, std::string("Run-time error '") + number + "':\n\n" + error.Description(),
                   vbOKOnly | vbExclamation, "");
}

void DesktopPlatform::FormLoaded(Form& form) {
    auto window = std::make_unique<FormWindow>(form);
    window->Create(nullptr);
    windows_[&form] = std::move(window);
}

void DesktopPlatform::FormShown(Form& form, bool) {
    auto it = windows_.find(&form);
    if (it == windows_.end()) return;
    it->second->Sync();
    ShowWindow(it->second->Window(), SW_SHOW);
    SetForegroundWindow(it->second->Window());
}

void DesktopPlatform::FormHidden(Form& form) {
    if (HWND window = WindowOf(form)) ShowWindow(window, SW_HIDE);
}

void DesktopPlatform::FormUnloaded(Form& form) {
    windows_.erase(&form);
}

void DesktopPlatform::LabelChanged(Form& form, const std::string&, const std::string&) {
    // A long walk writes its progress into a label and yields: show it now.
    auto it = windows_.find(&form);
    if (it != windows_.end()) it->second->Sync();
}

HWND DesktopPlatform::WindowOf(const Form& form) const {
    auto it = windows_.find(&form);
    return it == windows_.end() ? nullptr : it->second->Window();
}

}  // namespace ui::win32
