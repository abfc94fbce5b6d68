#include "app/session/LineSource.h"

namespace session {

std::optional<ScriptLine> ScriptSource::Next(const std::string& /*waitingFor*/) {
    if (Ended()) return std::nullopt;
    return lines_[next_++];
}

std::optional<ScriptLine> KeyboardSource::Next(const std::string& waitingFor) {
    for (;;) {
        if (showPrompt_) {
            prompt_ << (waitingFor.empty() ? "tarnwell> " : "tarnwell [" + waitingFor + "]> ");
            prompt_.flush();
        }
        std::string text;
        if (!std::getline(in_, text)) {
            ended_ = true;
            return std::nullopt;
        }
        if (auto line = ParseLine(++number_, text)) return line;
    }
}

}  // namespace session
