#pragma once
// clang-format off
#include <windows.h>
// clang-format on

#include <map>
#include <memory>

#include "ui/Platform.h"
#include "ui/win32/FormWindow.h"

namespace ui::win32 {

// ui::Platform on the Windows desktop: the system's dialogs, programs started without a
// command interpreter, and each loaded form as a window of its own.
class DesktopPlatform : public Platform {
public:
    DesktopPlatform() = default;
    ~DesktopPlatform() override;

    MsgBoxResult MsgBox(const std::string& prompt, int buttons = vbOKOnly,
                        const std::string& title = "") override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::string SaveFilePrompt(const FileDialogRequest& request) override;
    std::string OpenFilePrompt(const FileDialogRequest& request) override;
    std::string BrowseForFolder(std::intptr_t ownerWindow, const std::string& prompt,
                                const std::string& startFolder) override;

    // The command line goes to the system as it stands: no interpreter reads it, so `&` or
    // `%` in a file name starts nothing else. A program that does not start is error 53.
    void Shell(const std::string& commandLine, int windowStyle) override;
    void ShellOpen(const std::string& target) override;
    // HKEY_LOCAL_MACHINE's App Paths, then the user's own.
    std::string ApplicationPath(const std::string& exeName) override;
    bool AppActivate(const std::string& caption) override;
    void PopupMenu(Form& form, const std::string& menu) override;
    std::intptr_t SetOwner(Form& form, std::intptr_t ownerWindow) override;

    void DoEvents() override;
    void WaitForInput(const std::string& what) override;
    // Keeps the owner of the form disabled while it runs, as a modal window does.
    void RunModal(Form& form) override;
    // The original platform's report: "Run-time error 'N':" and the text.
    void ReportError(const support::Error& error) override;

    void FormLoaded(Form& form) override;
    void FormShown(Form& form, bool modal) override;
    void FormHidden(Form& form) override;
    void FormUnloaded(Form& form) override;
    void LabelChanged(Form& form, const std::string& control, const std::string& caption) override;

    // The window of a loaded form; none for a form not loaded.
    HWND WindowOf(const Form& form) const;

private:
    std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
};

}  // namespace ui::win32
