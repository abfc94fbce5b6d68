// The tarnwell executable: plays a session script against the stand-in host, or reads
// the same lines from the keyboard.
#include <unistd.h>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "app/session/Completion.h"
#include "app/session/LineEditor.h"
#include "app/session/LineSource.h"
#include "app/session/Script.h"
#include "app/session/Session.h"
#include "app/session/Verb.h"
#include "settings/Settings.h"
#include "ui/headless/ScriptError.h"
#ifdef TARNWELL_THROUGH_COM
#include "win/app/ThroughCom.h"
#endif

namespace {

constexpr const char* kUsage =
    "usage: tarnwell run [--strict] SCRIPT\n"
    "                             play a session script; the transcript goes to standard output;\n"
    "                             --strict ends it at the first failed line or add-in error (status 3)\n"
#ifdef TARNWELL_THROUGH_COM
    "       tarnwell run --through-com [--strict] SCRIPT\n"
    "                             the same, with every host call crossing COM\n"
#endif
    "       tarnwell shell        type the same lines; each effect is printed as it happens\n"
    "       tarnwell --version\n";

struct RunOptions {
    std::string script;
    bool strict = false;
    bool throughCom = false;
};

// The words after "run"; nullopt when they are not a run command line.
std::optional<RunOptions> ParseRun(int argc, char** argv) {
    RunOptions options;
    for (int i = 2; i < argc; ++i) {
        std::string word = argv[i];
        if (word == "--strict") {
            options.strict = true;
#ifdef TARNWELL_THROUGH_COM
        } else if (word == "--through-com") {
            options.throughCom = true;
#endif
        } else if (word.starts_with("--") || !options.script.empty()) {
            return std::nullopt;
        } else {
            options.script = word;
        }
    }
    if (options.script.empty()) return std::nullopt;
    return options;
}

// The script's text; nullopt, with a message, when it cannot be read: a wrong command line.
std::optional<std::string> ReadScript(const std::string& path) {
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec)) {
        std::cerr << "tarnwell: " << path << " is a folder, not a script\n";
        return std::nullopt;
    }
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    if (in) text << in.rdbuf();
    if (!in || in.bad()) {
        std::cerr << "tarnwell: cannot read " << path << ": "
                  << (std::filesystem::exists(path, ec) ? "permission denied" : "no such file") << "\n";
        return std::nullopt;
    }
    return text.str();
}

int RunScript(const RunOptions& options) {
    const std::string& path = options.script;
    auto text = ReadScript(path);
    if (!text) return 2;
    std::vector<session::ScriptLine> lines;
    try {
        lines = session::ParseScript(*text);
        session::CheckScript(lines);
    } catch (const ui::headless::ScriptError& e) {
        std::cout << "script error: " << e.Describe() << "\n";
        std::cerr << "tarnwell: " << path << ": " << e.Describe() << "\n";
        return 1;
    }
#ifdef TARNWELL_THROUGH_COM
    std::optional<win::app::ThroughCom> com;  // outlives the session and the objects it holds
    if (options.throughCom) com.emplace();
#endif
    session::Session session(std::cout, settings::IniFileStore::DefaultPath());
#ifdef TARNWELL_THROUGH_COM
    if (com) com->Wire(session);
#endif
    session.SetStrict(options.strict);
    session::ScriptSource source(std::move(lines));
    int status = session.Run(source);
    for (const auto& error : session.Errors()) std::cerr << "tarnwell: " << path << ": " << error << "\n";
    return status;
}

int RunShell() {
    session::Session session(std::cout, settings::IniFileStore::DefaultPath());
    if (isatty(STDIN_FILENO) && session::LineEditor::Available()) {
        session::LineEditor editor(session::LineEditor::DefaultHistoryFile(),
                                   [&session](const std::string& before, const std::string& word) {
                                       return session::Completions(session, before, word);
                                   });
        session::KeyboardSource source(
            [&editor](const std::string& prompt) { return editor.ReadLine(prompt); });
        return session.Run(source);
    }
    session::KeyboardSource source(std::cin, std::cout, isatty(STDIN_FILENO) != 0);
    return session.Run(source);
}

}  // namespace

int main(int argc, char** argv) {
#ifdef _WIN32
    // Transcripts are compared byte for byte with the Linux ones: no "\r" before each "\n".
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    std::string command = argc > 1 ? argv[1] : "";
    if (command == "--version" && argc == 2) {
        std::cout << "tarnwell " << TARNWELL_VERSION << "\n";
        return 0;
    }
    if (command == "run")
        if (auto options = ParseRun(argc, argv)) return RunScript(*options);
    if (command == "shell" && argc == 2) return RunShell();
    if (command == "--help" || command == "-h") {
        std::cout << kUsage;
        return 0;
    }
    std::cerr << kUsage;
    return 2;
}
