#include "support/Program.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tempodial {

namespace {

struct Pipe
{
    std::array<int, 2> ends { -1, -1 };

    Pipe()
    {
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
        }
    }
    ~Pipe()
    {
        ::close(ends[0]);
        CloseWriting();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    void CloseWriting()
    {
        if (ends[1] >= 0) {
            ::close(ends[1]);
            ends[1] = -1;
        }
    }
};

[[noreturn]] void BecomeTempodial(
    const std::vector<std::string>& arguments, const Pipe& out, const Pipe& error, bool observed)
{
    std::vector<std::string> words { TEMPODIAL_EXECUTABLE };
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (auto& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    // A leak check can't look into a process that is observed already.
    std::array<std::string, 4> settings { "PATH=/usr/bin:/bin", "LC_ALL=en_US.UTF-8", "HOME=/nonexistent",
        observed ? "ASAN_OPTIONS=detect_leaks=0" : "TZ=UTC" };
    std::vector<char*> environment;
    for (auto& setting : settings) {
        environment.push_back(setting.data());
    }
    environment.push_back(nullptr);
    const int nothing = ::open("/dev/null", O_RDONLY);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(out.ends[1], STDOUT_FILENO);
    ::dup2(error.ends[1], STDERR_FILENO);
    if (observed && ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
        ::_exit(125);
    }
    ::execve(words.front().c_str(), argv.data(), environment.data());
    ::_exit(126);
}

/// Reads both pipes to their ends.
void Drain(Pipe& out, Pipe& error, ProgramResult& result)
{
    std::array<pollfd, 2> waiting { pollfd { out.ends[0], POLLIN, 0 }, pollfd { error.ends[0], POLLIN, 0 } };
    std::array<std::string*, 2> texts { &result.out, &result.error };
    int open = 2;
    while (open > 0 && ::poll(waiting.data(), waiting.size(), -1) > 0) {
        for (std::size_t i = 0; i < waiting.size(); ++i) {
            if (waiting[i].fd < 0 || waiting[i].revents == 0) {
                continue;
            }
            std::array<char, 65536> buffer;
            const auto got = ::read(waiting[i].fd, buffer.data(), buffer.size());
            if (got > 0) {
                texts[i]->append(buffer.data(), static_cast<std::size_t>(got));
            } else {
                waiting[i].fd = -1;
                --open;
            }
        }
    }
}

int StatusOf(int wait)
{
    return WIFEXITED(wait) ? WEXITSTATUS(wait) : 128 + WTERMSIG(wait);
}

/// Follows the observed child from system call to system call up to its end, or to the call at which it is killed.
int Follow(pid_t child, std::int64_t killAt, std::int64_t& calls)
{
    int wait = 0;
    bool entering = true;
    ::waitpid(child, &wait, 0);
    if (WIFSTOPPED(wait)) {
        ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    }
    while (WIFSTOPPED(wait)) {
        long signal = WSTOPSIG(wait);
        if (signal == (SIGTRAP | 0x80)) {
            calls += entering ? 1 : 0;
            if (entering && killAt > 0 && calls == killAt) {
                ::kill(child, SIGKILL);
                ::waitpid(child, &wait, 0);
                break;
            }
            entering = !entering;
            signal = 0;
        } else if (signal == SIGTRAP) {
            signal = 0;
        }
        ::ptrace(PTRACE_SYSCALL, child, nullptr, signal);
        ::waitpid(child, &wait, 0);
    }
    return StatusOf(wait);
}

}

ProgramResult RunTempodial(const std::vector<std::string>& arguments)
{
    ProgramResult result;
    Pipe out;
    Pipe error;
    const auto child = ::fork();
    if (child == 0) {
        BecomeTempodial(arguments, out, error, false);
    }
    out.CloseWriting();
    error.CloseWriting();
    Drain(out, error, result);
    int wait = 0;
    ::waitpid(child, &wait, 0);
    result.status = StatusOf(wait);
    return result;
}

std::optional<ProgramResult> RunTempodialKilledAt(const std::vector<std::string>& arguments, std::int64_t systemCall)
{
    ProgramResult result;
    Pipe out;
    Pipe error;
    const auto child = ::fork();
    if (child == 0) {
        BecomeTempodial(arguments, out, error, true);
    }
    out.CloseWriting();
    error.CloseWriting();
    // What it prints is short enough for the pipes, which are read when it has ended.
    result.status = Follow(child, systemCall, result.systemCalls);
    Drain(out, error, result);
    if (result.status == 125) {
        return std::nullopt;
    }
    return result;
}

}
