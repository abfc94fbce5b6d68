#include "ui/headless/HeadlessPlatform.h"

#include <algorithm>
#include <cctype>

#include "support/Text.h"
#include "ui/Form.h"
#include "ui/headless/MsgBoxNames.h"

namespace ui::headless {

namespace {}  // namespace

void HeadlessPlatform::SetApplicationPath(const std::string& exeName, const std::string& path) {
    appPaths_[support::LCase(exeName)] = path;
}

void HeadlessPlatform::SetHostWindow(std::intptr_t window, const std::string& caption) {
    hostWindow_ = window;
    hostCaption_ = caption;
}

void HeadlessPlatform::ScheduleAtYield(int yieldsFromNow, std::function<void()> action, int line) {
    scheduled_.push_back(Scheduled{yields_ + yieldsFromNow, yields_, std::move(action), line});
}

std::vector<ScriptError> HeadlessPlatform::Leftovers() const {
    auto errors = answers_.Unused();
    for (const auto& s : scheduled_)
        errors.emplace_back("the action at yield " + std::to_string(s.atYield - s.scheduledAt) +
                                " never ran: only " + std::to_string(yields_ - s.scheduledAt) +
                                " yields followed it",
                            s.line);
    std::stable_sort(errors.begin(), errors.end(),
                     [](const ScriptError& a, const ScriptError& b) { return a.Line() < b.Line(); });
    return errors;
}

Form* HeadlessPlatform::FindForm(const std::string& name) const {
    for (auto* form : loaded_)
        if (form->Name() == name) return form;
    return nullptr;
}

MsgBoxResult HeadlessPlatform::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
    const std::string description = "msgbox " + Quote(prompt) + " " + DescribeStyle(buttons) + " title " +
                                    Quote(title.empty() ? kAppTitle : title);
    const auto offered = ButtonsOf(buttons);
    MsgBoxResult result = vbOK;
    auto answer = answers_.Take(Prompt::MsgBox);
    if (!answer && offered.size() != 1 && input_) {
        std::vector<std::string> buttons;
        for (MsgBoxResult button : offered) buttons.push_back(ResultName(button));
        answer = input_->AskPerson(description, buttons);
    }
    if (answer) {
        auto chosen = answer->text ? ParseResult(*answer->text) : std::optional<MsgBoxResult>();
        if (!chosen || std::find(offered.begin(), offered.end(), *chosen) == offered.end())
            throw ScriptError("the answer " + (answer->text ? *answer->text : "cancel") + " queued at line " +
                              std::to_string(answer->line) + " is not a button of " + description);
        result = *chosen;
    } else if (offered.size() != 1) {
        // A box with a single OK button needs no answer; any other is the script's to answer.
        throw ScriptError("no answer queued for " + description);
    }
    transcript_.Write(description + " -> " + ResultName(result));
    return result;
}

std::optional<std::string> HeadlessPlatform::Ask(Prompt prompt, const std::string& description) {
    auto answer = answers_.Take(prompt);
    if (!answer && input_) answer = input_->AskPerson(description, {});
    if (!answer) throw ScriptError("no answer queued for " + description);
    transcript_.Write(description + " -> " + (answer->text ? Quote(*answer->text) : "cancel"));
    return answer->text;
}

std::string HeadlessPlatform::InputBox(const std::string& prompt, const std::string& title,
                                       const std::string& defaultText) {
    auto text = Ask(Prompt::InputBox, "inputbox " + Quote(prompt) + " title " + Quote(title) + " default " +
                                          Quote(defaultText));
    return text.value_or("");
}

std::string HeadlessPlatform::FilePrompt(Prompt prompt, const FileDialogRequest& request) {
    std::string description = std::string(PromptName(prompt)) + " " + Quote(request.title) + " filter " +
                              Quote(request.filter) + " dir " + Quote(request.initialDir) + " file " +
                              Quote(request.fileName);
    if (request.filterIndex != 1) description += " index " + std::to_string(request.filterIndex);
    return Ask(prompt, description).value_or("");
}

std::string HeadlessPlatform::SaveFilePrompt(const FileDialogRequest& request) {
    return FilePrompt(Prompt::SaveFile, request);
}

std::string HeadlessPlatform::OpenFilePrompt(const FileDialogRequest& request) {
    return FilePrompt(Prompt::OpenFile, request);
}

std::string HeadlessPlatform::BrowseForFolder(std::intptr_t /*ownerWindow*/, const std::string& prompt,
                                              const std::string& startFolder) {
    return Ask(Prompt::Folder, "folder-picker " + Quote(prompt) + " start " + Quote(startFolder))
        .value_or("");
}

void HeadlessPlatform::Shell(const std::string& commandLine, int windowStyle) {
    transcript_.Write("shell " + Quote(commandLine) + " window " + std::to_string(windowStyle));
}

void HeadlessPlatform::ShellOpen(const std::string& target) {
    transcript_.Write("shell open " + Quote(target));
}

std::string HeadlessPlatform::ApplicationPath(const std::string& exeName) {
    auto found = appPaths_.find(support::LCase(exeName));
    return found == appPaths_.end() ? "" : found->second;
}

void HeadlessPlatform::PopupMenu(Form& form, const std::string& menu) {
    form.Menu(menu);  // a menu the form does not have is the add-in's mistake, reported as such
    transcript_.Write("popup-menu " + form.Name() + "." + menu);
}

// As the desktop does: a window whose caption is the text, else one whose caption
// begins with it.
bool HeadlessPlatform::AppActivate(const std::string& caption) {
    std::vector<std::string> captions;
    if (hostWindow_) captions.push_back(hostCaption_);
    for (auto* form : loaded_)
        if (form->Visible()) captions.push_back(form->Caption());
    auto found = std::find(captions.begin(), captions.end(), caption);
    if (found == captions.end())
        found = std::find_if(captions.begin(), captions.end(), [&](const std::string& c) {
            return !caption.empty() && c.rfind(caption, 0) == 0;
        });
    if (found == captions.end()) {
        transcript_.Write("window " + Quote(caption) + " not found");
        return false;
    }
    transcript_.Write("window " + Quote(*found) + " brought to front");
    return true;
}

std::string HeadlessPlatform::WindowName(std::intptr_t window) const {
    if (window == 0) return "no window";
    if (window == hostWindow_) return "the host window";
    return "window " + HexNumber(static_cast<std::int32_t>(window));
}

std::intptr_t HeadlessPlatform::SetOwner(Form& form, std::intptr_t ownerWindow) {
    auto& owner = owners_[&form];
    std::intptr_t previous = owner;
    owner = ownerWindow;
    transcript_.Write("form " + form.Name() + " owned by " + WindowName(ownerWindow));
    return previous;
}

void HeadlessPlatform::DoEvents() {
    ++yields_;
    // Take the due actions out first: an action may schedule more, or yield again.
    std::vector<Scheduled> due;
    auto firstDue = std::stable_partition(scheduled_.begin(), scheduled_.end(),
                                          [&](const Scheduled& s) { return s.atYield != yields_; });
    std::move(firstDue, scheduled_.end(), std::back_inserter(due));
    scheduled_.erase(firstDue, scheduled_.end());
    for (auto& s : due) {
        Transcript::Nested nested(transcript_);
        s.action();
    }
}

void HeadlessPlatform::WaitForInput(const std::string& what) {
    if (!input_) throw ScriptError("nothing can be played while waiting for " + what);
    Transcript::Nested nested(transcript_);
    if (!input_->PlayNext(what)) throw ScriptError("nothing was left to play while waiting for " + what);
}

void HeadlessPlatform::RunModal(Form& form) {
    modal_.push_back(&form);
    try {
        while (form.Loaded() && form.Visible()) WaitForInput("modal form " + form.Name());
    } catch (...) {
        modal_.pop_back();
        throw;
    }
    modal_.pop_back();
}

Form* HeadlessPlatform::TopModalForm() const {
    return modal_.empty() ? nullptr : modal_.back();
}

void HeadlessPlatform::ReportError(const support::Error& error) {
    ++errorsReported_;
    transcript_.Write("error " + HexNumber(error.Number()) + ": " + Escape(error.Description()));
}

void HeadlessPlatform::FormLoaded(Form& form) {
    if (std::find(loaded_.begin(), loaded_.end(), &form) == loaded_.end()) loaded_.push_back(&form);
    transcript_.Write("form " + form.Name() + " loaded");
}

void HeadlessPlatform::FormShown(Form& form, bool modal) {
    transcript_.Write("form " + form.Name() + (modal ? " shown modal" : " shown modeless"));
}

void HeadlessPlatform::FormHidden(Form& form) {
    transcript_.Write("form " + form.Name() + " hidden");
}

void HeadlessPlatform::FormUnloaded(Form& form) {
    loaded_.erase(std::remove(loaded_.begin(), loaded_.end(), &form), loaded_.end());
    owners_.erase(&form);
    transcript_.Write("form " + form.Name() + " unloaded");
}

void HeadlessPlatform::LabelChanged(Form& form, const std::string& control, const std::string& caption) {
    transcript_.Write("label " + form.Name() + "." + control + " = " + Quote(caption));
}

}  // namespace ui::headless
