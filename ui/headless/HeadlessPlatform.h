#pragma once
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ui/Platform.h"
#include "ui/headless/ScriptError.h"
#include "ui/headless/ScriptedAnswers.h"
#include "ui/headless/Transcript.h"

namespace ui::headless {

// Where the user's next action comes from while the add-in waits for one: the session
// driver plays the next line of its script or of the keyboard.
class UserInput {
public:
    virtual ~UserInput() = default;
    // Plays the user's next action; false when none is left. `waitingFor` names the
    // wait ("a blocking pick", "modal form frmX").
    virtual bool PlayNext(const std::string& waitingFor) = 0;
    // Asks the person at the keyboard for the answer to a prompt no line queued one for:
    // one of `buttons` for a message box, else any text or cancel. nullopt when there is
    // no one to ask (a script) or the input has ended.
    virtual std::optional<Answer> AskPerson(const std::string& /*description*/,
                                            const std::vector<std::string>& /*buttons*/) {
        return std::nullopt;
    }
};

// The platform of tests and the session driver: every box and prompt takes its answer
// from what the script queued, every observable effect becomes a transcript line, and
// a blocking wait plays the script's next line. A prompt with no answer, or a wait with
// nothing left to play, throws ScriptError, which no add-in handler can swallow.
class HeadlessPlatform : public Platform {
public:
    explicit HeadlessPlatform(Transcript& transcript) : transcript_(transcript) {}

    void SetUserInput(UserInput* input) { input_ = input; }
    // How many errors reached the error report: the add-in's unhandled errors.
    int ErrorsReported() const { return errorsReported_; }

    // --- what the script sets up
    void QueueAnswer(Prompt prompt, Answer answer) { answers_.Queue(prompt, std::move(answer)); }
    void SetApplicationPath(const std::string& exeName, const std::string& path);
    // The host's main window: an owner that forms name, a caption AppActivate finds.
    void SetHostWindow(std::intptr_t window, const std::string& caption);
    // Runs `action` at the yield that comes `yieldsFromNow` yields after this call;
    // `line` is the script line that asked, for errors.
    void ScheduleAtYield(int yieldsFromNow, std::function<void()> action, int line);
    int Yields() const { return yields_; }
    // What the script left undone: answers no prompt took, actions whose yield never came.
    std::vector<ScriptError> Leftovers() const;

    // --- the forms the user can see and reach, in the order they were loaded
    Form* FindForm(const std::string& name) const;
    const std::vector<Form*>& LoadedForms() const { return loaded_; }
    // The modal form the user is in, the innermost when one opened another; null when none.
    Form* TopModalForm() const;

    // --- Platform
    MsgBoxResult MsgBox(const std::string& prompt, int buttons, const std::string& title) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::string SaveFilePrompt(const FileDialogRequest& request) override;
    std::string OpenFilePrompt(const FileDialogRequest& request) override;
    std::string BrowseForFolder(std::intptr_t ownerWindow, const std::string& prompt,
                                const std::string& startFolder) override;
    void Shell(const std::string& commandLine, int windowStyle) override;
    void ShellOpen(const std::string& target) override;
    std::string ApplicationPath(const std::string& exeName) override;
    bool AppActivate(const std::string& caption) override;
    void PopupMenu(Form& form, const std::string& menu) override;
    std::intptr_t SetOwner(Form& form, std::intptr_t ownerWindow) override;
    void DoEvents() override;
    void WaitForInput(const std::string& what) override;
    void RunModal(Form& form) override;
    void ReportError(const support::Error& error) override;
    void FormLoaded(Form& form) override;
    void FormShown(Form& form, bool modal) override;
    void FormHidden(Form& form) override;
    void FormUnloaded(Form& form) override;
    void LabelChanged(Form& form, const std::string& control, const std::string& caption) override;

private:
    // Takes the queued answer to a prompt and writes "description -> answer";
    // nullopt when the user cancels.
    std::optional<std::string> Ask(Prompt prompt, const std::string& description);
    std::string FilePrompt(Prompt prompt, const FileDialogRequest& request);
    std::string WindowName(std::intptr_t window) const;

    struct Scheduled {
        int atYield;
        int scheduledAt;
        std::function<void()> action;
        int line;
    };

    Transcript& transcript_;
    UserInput* input_ = nullptr;
    ScriptedAnswers answers_;
    std::map<std::string, std::string> appPaths_;  // by lower-case exe name, as Windows looks them up
    std::intptr_t hostWindow_ = 0;
    std::string hostCaption_;
    std::map<const Form*, std::intptr_t> owners_;
    std::vector<Scheduled> scheduled_;
    int yields_ = 0;
    int errorsReported_ = 0;
    std::vector<Form*> loaded_;
    std::vector<Form*> modal_;  // running modal loops, outermost first
};

}  // namespace ui::headless
