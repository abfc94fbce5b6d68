#pragma once
#include <cstdint>
#include <string>

#include "support/Error.h"

namespace ui {

class Form;

// Message box buttons and answers, with the platform's values.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
};
enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7
};

// The title every message box carries when its caller gives none.
inline constexpr const char* kAppTitle = "Tarnwell";

struct FileDialogRequest {
    std::string title;
    std::string filter;  // "Inventor Part Files (*.ipt)|*.ipt", or "" for none
    int filterIndex = 1;
    std::string initialDir;  // Windows path
    std::string fileName;    // proposed file name
};

// Everything the add-in asks of the desktop it runs on. The Win32 build talks to
// the real desktop; ui/headless answers from a script and writes a transcript.
class Platform {
public:
    virtual ~Platform() = default;

    // Modal boxes. buttons is a MsgBoxStyle value; an empty title means kAppTitle.
    virtual MsgBoxResult MsgBox(const std::string& prompt, int buttons = vbOKOnly,
                                const std::string& title = "") = 0;
    // "" when the user cancels.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;
    virtual std::string SaveFilePrompt(const FileDialogRequest& request) = 0;  // "" when cancelled
    virtual std::string OpenFilePrompt(const FileDialogRequest& request) = 0;  // "" when cancelled
    virtual std::string BrowseForFolder(std::intptr_t ownerWindow, const std::string& prompt,
                                        const std::string& startFolder) = 0;  // "" when cancelled

    // Starts a program by command line ("exploreR /e, C:\Work\"); windowStyle 1 is normal with focus.
    virtual void Shell(const std::string& commandLine, int windowStyle) = 0;
    // Opens a document or web address with the shell's "Open" verb: the user's own program
    // for it, the default browser for a web page.
    virtual void ShellOpen(const std::string& target) = 0;
    // Looks a program up in the registered application paths; "" when unknown.
    virtual std::string ApplicationPath(const std::string& exeName) = 0;
    // Brings the window with this caption to the front; false when there is none.
    virtual bool AppActivate(const std::string& caption) = 0;
    // Shows one of a form's menus as a pop-up at the pointer; the user's next click picks an item.
    virtual void PopupMenu(Form& form, const std::string& menu) = 0;
    // Gives a form an owner window; returns the previous owner.
    virtual std::intptr_t SetOwner(Form& form, std::intptr_t ownerWindow) = 0;

    // Lets the message loop run once: the UI repaints and user input is handled.
    virtual void DoEvents() = 0;
    // Waits for the user to do something while a blocking loop runs (a pick, a modal
    // form); `what` names the wait for error reports.
    virtual void WaitForInput(const std::string& what) = 0;
    // Runs the nested loop of a modal form until it is hidden or unloaded.
    virtual void RunModal(Form& form) = 0;

    // An error no handler caught: shown to the user, the event loop goes on.
    virtual void ReportError(const support::Error& error) = 0;

    // What the renderer mirrors: forms loaded, shown, hidden, unloaded, and labels written.
    virtual void FormLoaded(Form& form) = 0;
    virtual void FormShown(Form& form, bool modal) = 0;
    virtual void FormHidden(Form& form) = 0;
    virtual void FormUnloaded(Form& form) = 0;
    virtual void LabelChanged(Form& form, const std::string& control, const std::string& caption) = 0;
};

// Runs what an event set off (a control, a menu item, a host button or pick); a host
// error that escapes it goes to the platform's error report and the event loop goes on.
template <class Body>
void ReportingErrors(Platform& platform, Body&& body) {
    try {
        body();
    } catch (const support::Error& error) {
        platform.ReportError(error);
    }
}

}  // namespace ui
