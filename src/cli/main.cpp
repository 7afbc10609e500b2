#include "cli/CommandLine.h"
#include "cli/Commands.h"

#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace {

/// Opens the standard streams that the caller has closed, so that no file of ours takes their place. Writing to them
/// fails, as it would have.
void KeepStandardStreams()
{
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        if (::fcntl(stream, F_GETFD) < 0) {
            (void)::open("/dev/null", O_RDONLY);
        }
    }
}

}

int main(int count, char** arguments)
{
    using namespace tempodial;
    try {
        KeepStandardStreams();
        // A reader that goes away early, and a file that may not grow, are noticed by the write that fails.
        (void)std::signal(SIGPIPE, SIG_IGN);
        (void)std::signal(SIGXFSZ, SIG_IGN);
        CommandLine commandLine(AllCommands(), std::cout, ::isatty(STDOUT_FILENO) != 0, std::cerr);
        return static_cast<int>(commandLine.Run({ arguments + 1, arguments + count }));
    } catch (...) {
        return static_cast<int>(ExitStatus::NotDone);
    }
}
