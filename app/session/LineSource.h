#pragma once
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

// Lines typed one at a time; a prompt says what the add-in waits for.
class KeyboardSource : public LineSource {
public:
    KeyboardSource(std::istream& in, std::ostream& prompt, bool showPrompt)
        : in_(in), prompt_(prompt), showPrompt_(showPrompt) {}
    std::optional<ScriptLine> Next(const std::string& waitingFor) override;
    bool Ended() const override { return ended_; }
    bool StopsOnError() const override { return false; }

private:
    std::istream& in_;
    std::ostream& prompt_;
    bool showPrompt_;
    bool ended_ = false;
    int number_ = 0;
};

}  // namespace session
