#include "support/StartedProcess.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

StartedProcess::StartedProcess(
    std::vector<std::string> words, const std::vector<std::string>& environment, int descriptor)
{
    std::array<int, 2> pipe {};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    std::vector<char*> argv;
    for (auto& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    mProcess = ::fork();
    if (mProcess == 0) {
        // It doesn't outlive a test that is killed.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (const auto& variable : environment) {
            const auto end = variable.find('=');
            ::setenv(variable.substr(0, end).c_str(), variable.substr(end + 1).c_str(), 1);
        }
        const int nowhere = ::open("/dev/null", O_RDWR | O_CLOEXEC);
        for (const int standard : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
            ::dup2(nowhere, standard);
        }
        if (descriptor >= 0) {
            ::dup2(pipe[1], descriptor);
        }
        ::execvp(argv.front(), argv.data());
        ::_exit(127);
    }
    ::close(pipe[1]);
    mReader = pipe[0];
}

StartedProcess::~StartedProcess()
{
    End();
    ::close(mReader);
}

std::string StartedProcess::ReadLine() const
{
    std::string line;
    char byte = 0;
    while (::read(mReader, &byte, 1) == 1 && byte != '\n') {
        line += byte;
    }
    return line;
}

void StartedProcess::Send(int signal) const
{
    ::kill(mProcess, signal);
}

void StartedProcess::End()
{
    if (mProcess > 0) {
        Send(SIGTERM);
        Wait();
    }
}

int StartedProcess::Wait()
{
    int status = 0;
    ::waitpid(std::exchange(mProcess, -1), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}
