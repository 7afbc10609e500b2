#include "cli/StartedProgram.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tempodial {

StartedProgram::StartedProgram(const std::vector<std::string>& arguments, const Settings& settings)
{
    mTerminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (mTerminal < 0 || ::grantpt(mTerminal) != 0 || ::unlockpt(mTerminal) != 0) {
        throw std::runtime_error("no terminal");
    }
    const winsize size { static_cast<unsigned short>(settings.rows), static_cast<unsigned short>(settings.columns), 0,
        0 };
    ::ioctl(mTerminal, TIOCSWINSZ, &size);
    std::vector<std::string> words { TEMPODIAL_EXECUTABLE };
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (auto& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    const std::string terminal = ::ptsname(mTerminal);
    mProcess = ::fork();
    if (mProcess == 0) {
        const rlimit limit { settings.largestFile, settings.largestFile };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        for (const auto& variable : settings.environment) {
            const auto end = variable.find('=');
            ::setenv(variable.substr(0, end).c_str(), variable.substr(end + 1).c_str(), 1);
        }
        for (const auto& name : settings.absent) {
            ::unsetenv(name.c_str());
        }
        ::dup2(::open(terminal.c_str(), O_RDWR | O_NOCTTY), STDERR_FILENO);
        ::dup2(settings.isOnTerminal && settings.isAsked ? STDERR_FILENO : ::open("/dev/null", O_RDONLY), STDIN_FILENO);
        SetOutput(settings);
        ::execv(words.front().c_str(), argv.data());
        ::_exit(126);
    }
}

void StartedProgram::SetOutput(const Settings& settings)
{
    if (settings.isOnTerminal) {
        ::dup2(STDERR_FILENO, STDOUT_FILENO);
    } else if (settings.hasNoReader) {
        std::array<int, 2> pipe {};
        if (::pipe(pipe.data()) != 0) {
            ::_exit(126);
        }
        ::close(pipe[0]);
        ::dup2(pipe[1], STDOUT_FILENO);
    } else if (settings.output.empty()) {
        ::close(STDOUT_FILENO);
    } else {
        ::dup2(::open(settings.output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO);
    }
}

StartedProgram::~StartedProgram()
{
    if (mProcess > 0) {
        ::kill(mProcess, SIGKILL);
        End();
    }
    ::close(mTerminal);
}

bool StartedProgram::ReadMore()
{
    std::array<char, 4096> buffer;
    // The terminal fails when its last user has gone.
    const auto got = ::read(mTerminal, buffer.data(), buffer.size());
    if (got > 0) {
        mShown.append(buffer.data(), static_cast<std::size_t>(got));
    }
    return got > 0;
}

bool StartedProgram::WaitFor(const std::string& text)
{
    while (mShown.find(text) == std::string::npos) {
        if (!ReadMore()) {
            return false;
        }
    }
    return true;
}

void StartedProgram::Type(const std::string& text)
{
    if (::write(mTerminal, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        throw std::runtime_error("the terminal takes nothing");
    }
}

int StartedProgram::End()
{
    while (ReadMore()) { }
    int status = 0;
    ::waitpid(mProcess, &status, 0);
    mProcess = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}
