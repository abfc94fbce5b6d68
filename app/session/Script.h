#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace session {

// One word of a script line: a bare word, a raw quoted text ("C:\Work\", with "" for a
// double quote inside) or an escaped text (e"a\rb").
struct Token {
    std::string text;
    bool quoted = false;
    std::size_t offset = 0;  // where the token starts in its line's text
    std::size_t end = 0;     // just past its last character

    // A bare word equal to `word`: keywords never match a quoted text.
    bool Is(std::string_view word) const { return !quoted && text == word; }
};

// A line to play: what it says, its words, and where it stands in its script.
struct ScriptLine {
    int number = 0;    // 1-based line of the script (or of the keyboard input)
    std::string text;  // the line without its comment and surrounding blanks
    std::vector<Token> tokens;

    // The text from token `index` to the end of the line.
    std::string TextFrom(std::size_t index) const;
};

// Splits a line into tokens; `#` at the start of a word begins a comment. Throws
// ui::headless::ScriptError (without a line) on an unclosed quote or a bad escape.
std::vector<Token> Tokenize(std::string_view line);

// One line of a script; nullopt for a blank or comment line.
std::optional<ScriptLine> ParseLine(int number, std::string_view text);

// Every line of a script; a line that cannot be read is a ScriptError naming it.
std::vector<ScriptLine> ParseScript(std::string_view text);

}  // namespace session
