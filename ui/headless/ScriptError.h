#pragma once
#include <string>

namespace ui::headless {

// A mistake of the script, not of the add-in: a prompt with no queued answer, a wait
// with nothing left to play, an unknown verb. Deliberately neither a support::Error nor
// a std::exception: the add-in's handlers catch those and would report the mistake and
// go on, where the session has to stop and say which line is wrong.
class ScriptError {
public:
    explicit ScriptError(std::string message, int line = 0) : message_(std::move(message)), line_(line) {}

    const std::string& Message() const { return message_; }
    // The script line at fault; 0 until the line being played claims the error.
    int Line() const { return line_; }
    void PlaceAt(int line) {
        if (line_ == 0) line_ = line;
    }
    // "line 7: no answer queued for ..."
    std::string Describe() const {
        return line_ > 0 ? "line " + std::to_string(line_) + ": " + message_ : message_;
    }

private:
    std::string message_;
    int line_;
};

}  // namespace ui::headless
