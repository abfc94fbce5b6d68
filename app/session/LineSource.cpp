#include "app/session/LineSource.h"

namespace session {

std::optional<ScriptLine> ScriptSource::Next(const std::string& /*waitingFor*/) {
    if (Ended()) return std::nullopt;
    return lines_[next_++];
}

ReadLine StreamReader(std::istream& in, std::ostream& prompt, bool showPrompt) {
    return [&in, &prompt, showPrompt](const std::string& text) -> std::optional<std::string> {
        if (showPrompt) prompt << text << std::flush;
        std::string line;
        if (!std::getline(in, line)) return std::nullopt;
        return line;
    };
}

std::optional<ScriptLine> KeyboardSource::Next(const std::string& waitingFor) {
    for (;;) {
        auto text = read_(waitingFor.empty() ? "tarnwell> " : "tarnwell [" + waitingFor + "]> ");
        if (!text) {
            ended_ = true;
            return std::nullopt;
        }
        if (auto line = ParseLine(++number_, *text)) return line;
    }
}

std::optional<std::string> KeyboardSource::Ask(const std::string& question) {
    if (ended_) return std::nullopt;
    auto text = read_(question);
    if (!text) ended_ = true;
    return text;
}

}  // namespace session
