#pragma once
#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "app/session/Script.h"

namespace session {

// Where a session's lines come from: a script file or the keyboard.
class LineSource {
public:
    virtual ~LineSource() = default;
    // The next line to play; nullopt when the input is used up. `waitingFor` names what
    // the add-in waits for ("modal form frmX"), "" at the top level.
    virtual std::optional<ScriptLine> Next(const std::string& waitingFor) = 0;
    virtual bool Ended() const = 0;
    // A script stops at its first error; the keyboard reports it and reads on.
    virtual bool StopsOnError() const = 0;
    // A person who can be asked what a prompt with no queued answer should get: the line
    // typed after `question`, nullopt when no one can be asked or the input has ended.
    virtual bool CanAsk() const { return false; }
    virtual std::optional<std::string> Ask(const std::string& /*question*/) { return std::nullopt; }
};

// The lines of a script, read whole before anything plays.
class ScriptSource : public LineSource {
public:
    explicit ScriptSource(std::vector<ScriptLine> lines) : lines_(std::move(lines)) {}
    std::optional<ScriptLine> Next(const std::string& waitingFor) override;
    bool Ended() const override { return next_ >= lines_.size(); }
    bool StopsOnError() const override { return true; }
    const std::vector<ScriptLine>& Lines() const { return lines_; }

private:
    std::vector<ScriptLine> lines_;
    std::size_t next_ = 0;
};

// Reads one line after showing `prompt`; nullopt at the end of the input.
using ReadLine = std::function<std::optional<std::string>(const std::string& prompt)>;

// Lines from a stream; the prompt is written to `prompt` only when shown.
ReadLine StreamReader(std::istream& in, std::ostream& prompt, bool showPrompt);

// Lines typed one at a time; a prompt says what the add-in waits for.
class KeyboardSource : public LineSource {
public:
    explicit KeyboardSource(ReadLine read) : read_(std::move(read)) {}
    KeyboardSource(std::istream& in, std::ostream& prompt, bool showPrompt)
        : KeyboardSource(StreamReader(in, prompt, showPrompt)) {}
    std::optional<ScriptLine> Next(const std::string& waitingFor) override;
    bool Ended() const override { return ended_; }
    bool StopsOnError() const override { return false; }
    bool CanAsk() const override { return !ended_; }
    std::optional<std::string> Ask(const std::string& question) override;

private:
    ReadLine read_;
    bool ended_ = false;
    int number_ = 0;
};

}  // namespace session
