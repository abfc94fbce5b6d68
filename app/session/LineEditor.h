#pragma once
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace session {

// The shell's line editing at a terminal: the arrow keys move and recall, lines typed are
// kept in a history file between runs, and Tab completes the word under the cursor from
// what `complete` offers for the text before it. Built on the distribution's libedit;
// without it (the Windows build) lines are read plainly and nothing is kept.
class LineEditor {
public:
    // Candidates for `word`, given the line's text before it.
    using Completer =
        std::function<std::vector<std::string>(const std::string& before, const std::string& word)>;

    LineEditor(std::filesystem::path historyFile, Completer complete);
    ~LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    static bool Available();
    // The next line, after `prompt`; nullopt at the end of the input (Ctrl-D).
    std::optional<std::string> ReadLine(const std::string& prompt);

    // Where the history lives: $XDG_STATE_HOME/tarnwell/history, else
    // ~/.local/state/tarnwell/history; empty when neither can be found.
    static std::filesystem::path DefaultHistoryFile();

private:
    std::filesystem::path historyFile_;
    Completer complete_;
};

}  // namespace session
