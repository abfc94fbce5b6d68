// The tarnwell executable: plays a session script against the stand-in host, or reads
// the same lines from the keyboard.
#include <unistd.h>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

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

#ifdef TARNWELL_THROUGH_COM
constexpr const char* kUsage =
    "usage: tarnwell run SCRIPT   play a session script; the transcript goes to standard output\n"
    "       tarnwell run --through-com SCRIPT\n"
    "                             the same, with every host call crossing COM\n"
    "       tarnwell shell        type the same lines; each effect is printed as it happens\n"
    "       tarnwell --version\n";
#else
constexpr const char* kUsage =
    "usage: tarnwell run SCRIPT   play a session script; the transcript goes to standard output\n"
    "       tarnwell shell        type the same lines; each effect is printed as it happens\n"
    "       tarnwell --version\n";
#endif

int RunScript(const std::string& path, bool throughCom) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {  // a script that is not there is a wrong command line
        std::cerr << "tarnwell: cannot read " << path << "\n";
        return 2;
    }
    std::stringstream text;
    text << in.rdbuf();
    std::vector<session::ScriptLine> lines;
    try {
        lines = session::ParseScript(text.str());
        session::CheckScript(lines);
    } catch (const ui::headless::ScriptError& e) {
        std::cout << "script error: " << e.Describe() << "\n";
        std::cerr << "tarnwell: " << path << ": " << e.Describe() << "\n";
        return 1;
    }
#ifdef TARNWELL_THROUGH_COM
    std::optional<win::app::ThroughCom> com;  // outlives the session and the objects it holds
    if (throughCom) com.emplace();
#endif
    session::Session session(std::cout, settings::IniFileStore::DefaultPath());
#ifdef TARNWELL_THROUGH_COM
    if (com) com->Wire(session);
#endif
    session::ScriptSource source(std::move(lines));
    int status = session.Run(source);
    for (const auto& error : session.Errors()) std::cerr << "tarnwell: " << path << ": " << error << "\n";
    return status;
}

int RunShell() {
    session::Session session(std::cout, settings::IniFileStore::DefaultPath());
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
    if (command == "run" && argc == 3) return RunScript(argv[2], false);
#ifdef TARNWELL_THROUGH_COM
    if (command == "run" && argc == 4 && std::string(argv[2]) == "--through-com")
        return RunScript(argv[3], true);
#endif
    if (command == "shell" && argc == 2) return RunShell();
    if (command == "--help" || command == "-h") {
        std::cout << kUsage;
        return 0;
    }
    std::cerr << kUsage;
    return 2;
}
