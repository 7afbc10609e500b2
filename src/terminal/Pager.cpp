#include "terminal/Pager.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <string_view>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tempodial {

namespace {

/// Ignores a signal as long as it lives.
class IgnoredSignal
{
public:
    explicit IgnoredSignal(int number)
        : mNumber(number)
    {
        struct sigaction action
        {
        };
        action.sa_handler = SIG_IGN;
        ::sigaction(number, &action, &mFormer);
    }
    ~IgnoredSignal() { ::sigaction(mNumber, &mFormer, nullptr); }
    IgnoredSignal(const IgnoredSignal&) = delete;
    IgnoredSignal& operator=(const IgnoredSignal&) = delete;

private:
    int mNumber;
    struct sigaction mFormer
    {
    };
};

/// Starts a command that reads from a pipe; -1 when that fails.
pid_t Start(std::string command, const std::array<int, 2>& pipe)
{
    posix_spawn_file_actions_t files;
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawn_file_actions_adddup2(&files, pipe[0], STDIN_FILENO);
    ::posix_spawn_file_actions_addclose(&files, pipe[0]);
    ::posix_spawn_file_actions_addclose(&files, pipe[1]);
    // What is ignored here would stay so in the command.
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    sigset_t usual;
    sigemptyset(&usual);
    for (const int number : { SIGPIPE, SIGINT, SIGQUIT, SIGXFSZ }) {
        sigaddset(&usual, number);
    }
    ::posix_spawnattr_setsigdefault(&attributes, &usual);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    std::string shell = "sh";
    std::string option = "-c";
    const std::array<char*, 4> arguments { shell.data(), option.data(), command.data(), nullptr };
    pid_t process = -1;
    if (::posix_spawn(&process, "/bin/sh", &files, &attributes, arguments.data(), environ) != 0) {
        process = -1;
    }
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&files);
    return process;
}

/// Writes a text to a pipe, or as much of it as its reader takes.
void WriteTo(int pipe, std::string_view text)
{
    while (!text.empty()) {
        const auto written = ::write(pipe, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return;
        }
        text.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
}

/// True when the shell found and could run its command.
bool HasRun(pid_t process)
{
    constexpr int CantBeRun = 126;
    constexpr int NotFound = 127;
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) { }
    return !WIFEXITED(status) || (WEXITSTATUS(status) != CantBeRun && WEXITSTATUS(status) != NotFound);
}

}

Pager Pager::Chosen()
{
    for (const auto* name : { "TEMPODIAL_PAGER", "PAGER" }) {
        if (const auto* command = std::getenv(name)) {
            return Pager(command);
        }
    }
    // Where it isn't installed nobody needs to hear of it.
    return Pager("command -v less >/dev/null || exit 127; exec less -FRX");
}

bool Pager::Show(const std::string& text) const
{
    std::array<int, 2> pipe {};
    const bool isNone = mCommand.find_first_not_of(' ') == std::string::npos || mCommand == "cat";
    if (isNone || ::pipe(pipe.data()) != 0) {
        return false;
    }
    // Ctrl-C is for the pager while it runs, and so is the end of its reading.
    const IgnoredSignal brokenPipe(SIGPIPE);
    const IgnoredSignal interruption(SIGINT);
    const IgnoredSignal quitting(SIGQUIT);
    const auto process = Start(mCommand, pipe);
    ::close(pipe[0]);
    if (process > 0) {
        WriteTo(pipe[1], text);
    }
    ::close(pipe[1]);
    return process > 0 && HasRun(process);
}

}
