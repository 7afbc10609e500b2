#pragma once

#include <csignal>
#include <cstdlib>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace tempodial {

/// Ends this process as a crash would.
[[noreturn]] inline void KillThisProcess()
{
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

/// Does something in a process of its own; true when it got as far as killing itself.
inline bool RunUntilKilled(const std::function<void()>& work)
{
    const auto child = ::fork();
    if (child == 0) {
        try {
            work();
        } catch (...) {
            std::_Exit(2);
        }
        std::_Exit(1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

}
