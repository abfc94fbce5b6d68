#include "app/session/LineEditor.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iostream>

#ifdef TARNWELL_HAVE_LIBEDIT
#include <editline/readline.h>
#endif

namespace session {

namespace {

constexpr int kHistoryLines = 1000;

#ifdef TARNWELL_HAVE_LIBEDIT
// libedit calls back through plain functions: the editor reading now, and its matches.
LineEditor::Completer* activeCompleter = nullptr;
std::vector<std::string> matches;

char* NextMatch(const char* /*word*/, int state) {
    static std::size_t next = 0;
    if (state == 0) next = 0;
    return next < matches.size() ? strdup(matches[next++].c_str()) : nullptr;
}

// Where the word under the cursor begins: after the last space outside quotes, so that
// "Motor Br is one word, though libedit splits it at the space.
std::size_t WordStart(const std::string& line) {
    std::size_t start = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') quoted = !quoted;
        if (!quoted && (line[i] == ' ' || line[i] == '\t')) start = i + 1;
    }
    return start;
}

char** Complete(const char* word, int start, int end) {
    rl_attempted_completion_over = 1;  // never fall back to file names
    if (!activeCompleter) return nullptr;
    const std::string line(rl_line_buffer, static_cast<std::size_t>(end));
    const std::size_t ours = WordStart(line);
    const std::size_t theirs = static_cast<std::size_t>(start);
    matches = (*activeCompleter)(line.substr(0, ours), line.substr(ours));
    // libedit replaces only its own word: each match loses what lies before that.
    if (theirs > ours)
        for (auto& match : matches) match.erase(0, std::min(match.size(), theirs - ours));
    // "frmPreview." and "Shaft Assembly:1/" go on with the next part: no space after them.
    bool goesOn = matches.size() == 1 && (matches[0].ends_with('.') || matches[0].ends_with('/'));
    rl_completion_append_character = goesOn ? '\0' : ' ';
    return matches.empty() ? nullptr : rl_completion_matches(word, NextMatch);
}
#endif

}  // namespace

bool LineEditor::Available() {
#ifdef TARNWELL_HAVE_LIBEDIT
    return true;
#else
    return false;
#endif
}

std::filesystem::path LineEditor::DefaultHistoryFile() {
    if (const char* state = std::getenv("XDG_STATE_HOME"); state && *state)
        return std::filesystem::path(state) / "tarnwell" / "history";
    if (const char* home = std::getenv("HOME"); home && *home)
        return std::filesystem::path(home) / ".local" / "state" / "tarnwell" / "history";
    return {};
}

LineEditor::LineEditor(std::filesystem::path historyFile, Completer complete)
    : historyFile_(std::move(historyFile)), complete_(std::move(complete)) {
#ifdef TARNWELL_HAVE_LIBEDIT
    rl_readline_name = "tarnwell";
    // Words end at spaces only: FORM.CONTROL and occurrence paths are one word each.
    static char breaks[] = " \t";
    rl_completer_word_break_characters = breaks;
    rl_attempted_completion_function = Complete;
    stifle_history(kHistoryLines);
    if (!historyFile_.empty()) read_history(historyFile_.c_str());
#endif
}

LineEditor::~LineEditor() {
#ifdef TARNWELL_HAVE_LIBEDIT
    rl_attempted_completion_function = nullptr;
#endif
}

std::optional<std::string> LineEditor::ReadLine(const std::string& prompt) {
#ifdef TARNWELL_HAVE_LIBEDIT
    activeCompleter = &complete_;
    char* typed = readline(prompt.c_str());
    activeCompleter = nullptr;
    if (!typed) return std::nullopt;
    std::string line = typed;
    std::free(typed);
    if (line.find_first_not_of(" \t") != std::string::npos) {
        add_history(line.c_str());
        // Written after every line, so that a shell ended any way keeps what was typed.
        if (!historyFile_.empty()) {
            std::error_code ec;
            std::filesystem::create_directories(historyFile_.parent_path(), ec);
            write_history(historyFile_.c_str());
        }
    }
    return line;
#else
    std::cout << prompt << std::flush;
    std::string line;
    if (!std::getline(std::cin, line)) return std::nullopt;
    return line;
#endif
}

}  // namespace session
