#pragma once
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ui/headless/ScriptError.h"

namespace ui::headless {

// The kinds of question the platform asks the user; each has its own queue.
enum class Prompt { MsgBox, InputBox, SaveFile, OpenFile, Folder };
const char* PromptName(Prompt prompt);  // "msgbox", "inputbox", "save-prompt"...

// One queued answer: the text (a button name, the typed text, a path) or cancel, and
// the script line that queued it, so that a wrong or unused answer can be pointed at.
struct Answer {
    std::optional<std::string> text;  // nullopt: the user cancels
    int line = 0;
};

// The answers a script queued, first in, first out per kind of prompt.
class ScriptedAnswers {
public:
    void Queue(Prompt prompt, Answer answer) { queues_[prompt].push_back(std::move(answer)); }
    std::optional<Answer> Take(Prompt prompt);
    bool Pending(Prompt prompt) const;
    // One error per answer that no prompt took, in the order they were queued.
    std::vector<ScriptError> Unused() const;

private:
    std::map<Prompt, std::deque<Answer>> queues_;
};

}  // namespace ui::headless
