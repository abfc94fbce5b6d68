// The shell as a person uses it, at a terminal: history kept between runs, Tab completion,
// and a message box answered when it appears. The shell runs in a pseudo-terminal.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "test_support.h"

namespace {

class ShellAtATerminal {
public:
    explicit ShellAtATerminal(const std::filesystem::path& home) {
        pid_ = forkpty(&terminal_, nullptr, nullptr, nullptr);
        if (pid_ == 0) {
            setenv("HOME", home.c_str(), 1);
            unsetenv("XDG_STATE_HOME");
            setenv("TERM", "vt100", 1);
            setenv("TARNWELL_SETTINGS", (home / "settings.ini").c_str(), 1);
            if (chdir(TARNWELL_SOURCE_DIR) != 0) _exit(126);
            execl(TARNWELL_EXECUTABLE, TARNWELL_EXECUTABLE, "shell", static_cast<char*>(nullptr));
            _exit(127);
        }
    }
    ~ShellAtATerminal() {
        if (pid_ > 0) {
            kill(pid_, SIGKILL);
            waitpid(pid_, nullptr, 0);
        }
        if (terminal_ >= 0) close(terminal_);
    }

    void Type(const std::string& keys) {
        ASSERT_EQ(write(terminal_, keys.data(), keys.size()), ssize_t(keys.size()));
    }

    // Reads what the shell shows until `text` appears (true) or it has been quiet for long.
    bool WaitFor(const std::string& text) {
        auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (shown_.find(text, searchFrom_) == std::string::npos) {
            if (std::chrono::steady_clock::now() > deadline) return false;
            pollfd p{terminal_, POLLIN, 0};
            if (poll(&p, 1, 200) <= 0) continue;
            char buffer[4096];
            ssize_t n = read(terminal_, buffer, sizeof buffer);
            if (n <= 0) return false;
            shown_.append(buffer, static_cast<std::size_t>(n));
        }
        searchFrom_ = shown_.find(text, searchFrom_) + text.size();
        return true;
    }

    // `quit` at the prompt ends the shell; its exit status, or -1 if it did not end.
    int QuitAtThePrompt() {
        if (!WaitFor("tarnwell> ")) return -1;
        Type("quit\r");
        for (int waited = 0; waited < 2000; ++waited) {
            int status = 0;
            if (waitpid(pid_, &status, WNOHANG) == pid_) {
                pid_ = -1;
                return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            }
            usleep(10'000);
        }
        return -1;  // the destructor ends it
    }
    const std::string& Shown() const { return shown_; }
    // A machine without pseudo-terminals (some containers) cannot run the test at all.
    bool Started() const { return pid_ > 0; }

private:
    int terminal_ = -1;
    pid_t pid_ = -1;
    std::string shown_;
    std::size_t searchFrom_ = 0;
};

TEST(ShellAtATerminal, KeepsHistoryCompletesAndAsksWhatABoxNeeds) {
    test_support::ScratchFolder home("pty");
    {
        ShellAtATerminal shell(home.Path());
        if (!shell.Started()) GTEST_SKIP() << "no pseudo-terminal on this machine";
        ASSERT_TRUE(shell.WaitFor("tarnwell> ")) << shell.Shown();
        shell.Type("echo remembered\r");
        ASSERT_TRUE(shell.WaitFor("# remembered")) << shell.Shown();
        EXPECT_EQ(shell.QuitAtThePrompt(), 0) << shell.Shown();
    }
    EXPECT_TRUE(std::filesystem::exists(home / ".local/state/tarnwell/history"));

    ShellAtATerminal shell(home.Path());
    ASSERT_TRUE(shell.WaitFor("tarnwell> ")) << shell.Shown();
    shell.Type("\x1b[A\x1b[A\r");  // the last run's line before its quit, recalled with Up
    ASSERT_TRUE(shell.WaitFor("# remembered")) << shell.Shown();

    shell.Type("hel\tsave-a\t\r");  // Tab completes the verb and the verb asked about
    ASSERT_TRUE(shell.WaitFor("  save-all")) << shell.Shown();

    shell.Type(
        "drive C: examples/workspace\raddin activate\ropen C:\\Work\\Gearbox.iam\rbutton TarnwellCmd1\r");
    ASSERT_TRUE(shell.WaitFor("form frmPreview shown modeless")) << shell.Shown();
    shell.Type("pick \"Motor Br\t\rclick frmPrev\tcmdDel\t\r");
    ASSERT_TRUE(shell.WaitFor("answer (Yes, No)> ")) << shell.Shown();
    shell.Type("no\r");
    ASSERT_TRUE(shell.WaitFor("[Yes No] title \"Delete from all assemblies\" -> No")) << shell.Shown();
    EXPECT_EQ(shell.QuitAtThePrompt(), 0) << shell.Shown();
}

}  // namespace
