#pragma once
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace ui::headless {

// The story of a session: one line for every observable effect, in the formats that
// docs/session.md lists. Lines written while a wait plays the user's next actions (a
// modal form, a blocking pick, an action at a yield) are indented one step per level,
// so a reader sees what happened inside what.
class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}

    // Writes one line per line of text, each indented to the current depth.
    void Write(std::string_view text);
    int Depth() const { return depth_; }

    // Indents what is written while it lives.
    class Nested {
    public:
        explicit Nested(Transcript& transcript) : transcript_(transcript) { ++transcript_.depth_; }
        ~Nested() { --transcript_.depth_; }
        Nested(const Nested&) = delete;
        Nested& operator=(const Nested&) = delete;

    private:
        Transcript& transcript_;
    };

private:
    std::ostream& out_;
    int depth_ = 0;
};

// A text as the transcript and the script write it: "C:\Work\" as it stands; a text
// with a double quote or a control character becomes an escaped text, e"a\rb", in which
// \\ \" \r \n \t and \xHH are the only escapes.
std::string Quote(std::string_view text);

// A free text at the end of a line (an error's description): control characters
// written as in an escaped text, so that one effect stays one line.
std::string Escape(std::string_view text);

// An error number the way the host shows it: 0x80004005, 0x00000035.
std::string HexNumber(std::int32_t number);

}  // namespace ui::headless
