#include "ui/headless/ScriptedAnswers.h"

#include <algorithm>

#include "ui/headless/Transcript.h"

namespace ui::headless {

const char* PromptName(Prompt prompt) {
    switch (prompt) {
        case Prompt::MsgBox:
            return "msgbox";
        case Prompt::InputBox:
            return "inputbox";
        case Prompt::SaveFile:
            return "save-prompt";
        case Prompt::OpenFile:
            return "open-prompt";
        case Prompt::Folder:
            return "folder-picker";
    }
    return "prompt";
}

std::optional<Answer> ScriptedAnswers::Take(Prompt prompt) {
    auto q = queues_.find(prompt);
    if (q == queues_.end() || q->second.empty()) return std::nullopt;
    Answer answer = std::move(q->second.front());
    q->second.pop_front();
    return answer;
}

bool ScriptedAnswers::Pending(Prompt prompt) const {
    auto q = queues_.find(prompt);
    return q != queues_.end() && !q->second.empty();
}

std::vector<ScriptError> ScriptedAnswers::Unused() const {
    std::vector<ScriptError> errors;
    for (const auto& [prompt, queue] : queues_)
        for (const auto& answer : queue)
            errors.emplace_back(std::string("the answer ") + (answer.text ? Quote(*answer.text) : "cancel") +
                                    " was queued but no " + PromptName(prompt) + " asked for it",
                                answer.line);
    std::stable_sort(errors.begin(), errors.end(),
                     [](const ScriptError& a, const ScriptError& b) { return a.Line() < b.Line(); });
    return errors;
}

}  // namespace ui::headless
