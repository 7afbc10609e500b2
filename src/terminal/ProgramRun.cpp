#include "terminal/ProgramRun.h"

#include "base/Failure.h"
#include "base/MemoryShortage.h"
#include "session/ProfileError.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <csignal>
#include <exception>
#include <fcntl.h>
#include <malloc.h>
#include <new>
#include <string_view>
#include <unistd.h>

namespace tempodial {

namespace {

/// Bytes from which on a block of memory is the system's again as soon as it is let go of. By itself the library raises
/// this to 32 MiB, and a long report's texts leave holes then.
constexpr int LargeBlock = 4 << 20;
constexpr auto NoMemory = "there isn't enough memory: close other programs and run the command again";

void PrepareProcess()
{
    ::mallopt(M_MMAP_THRESHOLD, LargeBlock);
    MemoryShortage::Watch();
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        if (::fcntl(stream, F_GETFD) < 0) {
            // Writing to it fails, as it would have.
            (void)::open("/dev/null", O_RDONLY);
        }
    }
    (void)std::signal(SIGPIPE, SIG_IGN);
    (void)std::signal(SIGXFSZ, SIG_IGN);
}

}

int RunMain(const char* program, int count, char** arguments,
    const std::function<ExitStatus(const std::vector<std::string>& arguments)>& work) noexcept
{
    try {
        PrepareProcess();
        return static_cast<int>(work({ arguments + 1, arguments + count }));
    } catch (...) {
        // No memory is taken for it, since there may be none.
        for (const std::string_view part :
            { std::string_view(program), std::string_view(": "), std::string_view(NoMemory), std::string_view("\n") }) {
            if (::write(STDERR_FILENO, part.data(), part.size()) < 0) {
                break;
            }
        }
        return static_cast<int>(ExitStatus::NotDone);
    }
}

void EndWithReader()
{
    (void)std::signal(SIGPIPE, SIG_DFL);
}

void Complain(std::ostream& stream, const std::string& program, const std::string& message)
{
    stream << program << ": " << HarmlessLine(message) << "\n";
    stream.flush();
}

ExitStatus RunProgram(const std::string& program, std::ostream& error, const std::function<ExitStatus()>& work) noexcept
{
    try {
        return work();
    } catch (const UsageError& usage) {
        Complain(error, program, usage.what());
        return ExitStatus::Usage;
    } catch (const ProfileInUse& inUse) {
        Complain(error, program, inUse.what());
        return ExitStatus::ProfileInUse;
    } catch (const Failure& failure) {
        Complain(error, program,
            failure.Is(Error::OutOfMemory) ? NoMemory
                : failure.Is(Error::DiskFull)
                ? failure.Description() + ": make room on the disk and run the command again"
                : failure.Description()
                    + ": see to the profile's folder and its disk, or put a good copy in the place of what is damaged");
    } catch (const std::bad_alloc&) {
        Complain(error, program, NoMemory);
    } catch (const std::exception& other) {
        Complain(error, program, other.what());
    }
    return ExitStatus::NotDone;
}

}
