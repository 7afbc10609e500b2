#include "support/Program.h"

#include "support/ObservedWork.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
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

/// The words as main and execve take them, which live as long as the words.
std::vector<char*> Pointers(std::vector<std::string>& words)
{
    std::vector<char*> pointers;
    for (auto& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

[[noreturn]] void BecomeTempodial(const std::vector<std::string>& arguments, std::vector<std::string> environment,
    const Pipe& out, const Pipe& error, bool observed, const RunSettings& settings = {})
{
    std::vector<std::string> words { settings.executable.empty() ? TEMPODIAL_EXECUTABLE : settings.executable };
    words.insert(words.end(), arguments.begin(), arguments.end());
    if (observed) {
        // A leak check can't look into a process that is observed already.
        environment.emplace_back("ASAN_OPTIONS=detect_leaks=0");
    }
    const int nothing = ::open("/dev/null", O_RDONLY);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(out.ends[1], STDOUT_FILENO);
    ::dup2(error.ends[1], STDERR_FILENO);
    if (observed && ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
        ::_exit(125);
    }
    if (settings.memory != RLIM_INFINITY) {
        const rlimit memory { settings.memory, settings.memory };
        ::setrlimit(RLIMIT_AS, &memory);
    }
    ::execve(words.front().c_str(), Pointers(words).data(), Pointers(environment).data());
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

/// Tells of a flush when the child comes back from one that went well.
void TellOfFlush(pid_t child, const __ptrace_syscall_info& entry, const RunObserver& observer)
{
    __ptrace_syscall_info exit {};
    const bool isFlush = entry.entry.nr == SYS_fsync || entry.entry.nr == SYS_fdatasync;
    if (isFlush && ::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof exit, &exit) > 0 && exit.exit.rval == 0) {
        observer.flushed("/proc/" + std::to_string(child) + "/fd/" + std::to_string(entry.entry.args[0]));
    }
}

/// Follows the observed child from system call to system call up to its end.
int Follow(pid_t child, const RunObserver& observer, std::int64_t& calls)
{
    int wait = 0;
    bool entering = true;
    __ptrace_syscall_info entry {};
    ::waitpid(child, &wait, 0);
    if (WIFSTOPPED(wait)) {
        ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    }
    while (WIFSTOPPED(wait)) {
        long signal = WSTOPSIG(wait);
        if (signal == (SIGTRAP | 0x80)) {
            if (entering) {
                ::ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof entry, &entry);
                if (!observer.goesOn(++calls)) {
                    ::kill(child, SIGKILL);
                }
            } else {
                TellOfFlush(child, entry, observer);
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

std::vector<std::string> UsualEnvironment()
{
    return { "PATH=/usr/bin:/bin", "LC_ALL=en_US.UTF-8", "HOME=/nonexistent", "TZ=UTC" };
}

namespace {

ProgramResult RunToItsEnd(
    const std::vector<std::string>& arguments, const std::vector<std::string>& environment, const RunSettings& settings)
{
    ProgramResult result;
    Pipe out;
    Pipe error;
    const auto child = ::fork();
    if (child == 0) {
        BecomeTempodial(arguments, environment, out, error, false, settings);
    }
    out.CloseWriting();
    error.CloseWriting();
    Drain(out, error, result);
    int wait = 0;
    ::waitpid(child, &wait, 0);
    result.status = StatusOf(wait);
    return result;
}

}

ProgramResult RunTempodial(const std::vector<std::string>& arguments, const std::vector<std::string>& environment)
{
    return RunToItsEnd(arguments, environment, {});
}

ProgramResult RunTempodialWith(const RunSettings& settings, const std::vector<std::string>& arguments)
{
    return RunToItsEnd(arguments, UsualEnvironment(), settings);
}

ProgramResult RunTempodialIn(
    const RunSettings& settings, const std::vector<std::string>& arguments, const std::vector<std::string>& environment)
{
    return RunToItsEnd(arguments, environment, settings);
}

std::optional<std::int64_t> DoObserved(const std::function<void()>& work, const RunObserver& observer)
{
    constexpr int Forbidden = 125;
    const auto child = ::fork();
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
            ::_exit(Forbidden);
        }
        ::raise(SIGSTOP);
        try {
            work();
        } catch (...) {
            ::_exit(2);
        }
        ::_exit(0);
    }
    std::int64_t calls = 0;
    return Follow(child, observer, calls) == Forbidden ? std::nullopt : std::optional(calls);
}

std::optional<ProgramResult> RunTempodialObserved(
    const std::vector<std::string>& arguments, const RunObserver& observer)
{
    ProgramResult result;
    Pipe out;
    Pipe error;
    const auto child = ::fork();
    if (child == 0) {
        BecomeTempodial(arguments, UsualEnvironment(), out, error, true);
    }
    out.CloseWriting();
    error.CloseWriting();
    // What it prints is short enough for the pipes, which are read when it has ended.
    result.status = Follow(child, observer, result.systemCalls);
    Drain(out, error, result);
    if (result.status == 125) {
        return std::nullopt;
    }
    return result;
}

std::optional<ProgramResult> RunTempodialKilledAt(const std::vector<std::string>& arguments, std::int64_t systemCall)
{
    return RunTempodialObserved(arguments, { .goesOn = [=](std::int64_t call) { return call != systemCall; } });
}

std::optional<ProgramResult> RunTempodialDisturbedAt(
    const std::vector<std::string>& arguments, std::int64_t systemCall, const std::function<void()>& disturb)
{
    return RunTempodialObserved(arguments, { .goesOn = [&](std::int64_t call) {
        if (call == systemCall) {
            disturb();
        }
        return true;
    } });
}

}
