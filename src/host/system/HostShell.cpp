#include "host/system/HostShell.h"

#include "base/Failure.h"
#include "host/files/NativePath.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// The document as a program's argument: never an option, and a path as the system knows it.
std::string ArgumentFor(const std::string& document)
{
    if (document.find("://") != std::string::npos) {
        return document;
    }
    const auto path = NativePath(document).Text();
    return path.starts_with('-') ? "./" + path : path;
}

/// Turns this process, just forked, into the program, without anything of ours. Calls nothing but what is safe there,
/// so it opens files by itself.
[[noreturn]] void Become(char* const* arguments)
{
    // What is ignored here would stay so in the program.
    (void)std::signal(SIGPIPE, SIG_DFL);
    (void)std::signal(SIGXFSZ, SIG_DFL);
    const auto nothing = ::open("/dev/null", O_RDWR);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(nothing, STDOUT_FILENO);
    ::dup2(nothing, STDERR_FILENO);
    ::execvp(arguments[0], arguments);
    ::_exit(EXIT_FAILURE);
}

}

HostShell::HostShell(Opener opener)
    : mOpener(std::move(opener))
{
}

void HostShell::Open(const std::string& document)
{
    mOpener(document);
}

std::int32_t HostShell::ThreadId()
{
    thread_local const std::int32_t id = ::gettid();
    return id;
}

void HostShell::OpenOnDesktop(const std::string& document)
{
    std::string program = "xdg-open";
    auto argument = ArgumentFor(document);
    const std::array<char*, 3> arguments = { program.data(), argument.data(), nullptr };
    // The program is a child's child, so that it belongs to nobody when it ends.
    const auto child = ::fork();
    if (child < 0) {
        throw Failure(Error::OutOfMemory);
    }
    if (child == 0) {
        ::setsid();
        if (::fork() == 0) {
            Become(arguments.data());
        }
        ::_exit(EXIT_SUCCESS);
    }
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) { }
}

}
