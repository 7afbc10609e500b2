#include "driver/StartedDriver.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace tempodial {

namespace {

using Pipe = std::array<int, 2>;

Pipe MakePipe()
{
    Pipe ends { -1, -1 };
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    return ends;
}

/// The next line without its end, "" at the end of the stream.
std::string ReadLine(std::FILE* stream)
{
    std::string line;
    for (int character = std::fgetc(stream); character != EOF && character != '\n'; character = std::fgetc(stream)) {
        line += static_cast<char>(character);
    }
    return line;
}

}

StartedDriver::StartedDriver(const std::vector<std::string>& arguments)
{
    const auto input = MakePipe();
    const auto output = MakePipe();
    const auto errors = MakePipe();
    // The driver's path is that of the program, with an ending.
    std::vector<std::string> words { std::string(TEMPODIAL_EXECUTABLE) + "-drive" };
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (auto& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    mProcess = ::fork();
    if (mProcess == 0) {
        ::dup2(input[0], STDIN_FILENO);
        ::dup2(output[1], STDOUT_FILENO);
        ::dup2(errors[1], STDERR_FILENO);
        ::execv(words.front().c_str(), argv.data());
        ::_exit(126);
    }
    ::close(input[0]);
    ::close(output[1]);
    ::close(errors[1]);
    mInput = input[1];
    mOutput = ::fdopen(output[0], "r");
    mErrors = ::fdopen(errors[0], "r");
}

StartedDriver::~StartedDriver()
{
    if (mProcess > 0) {
        End();
    }
    CloseOutput();
    (void)std::fclose(mErrors);
}

std::string StartedDriver::Say(const std::string& line)
{
    Write(line + "\n");
    return Answer();
}

void StartedDriver::Write(const std::string& text) const
{
    std::size_t written = 0;
    while (written < text.size()) {
        const auto got = ::write(mInput, text.data() + written, text.size() - written);
        if (got <= 0) {
            throw std::runtime_error("the driver doesn't read");
        }
        written += static_cast<std::size_t>(got);
    }
}

std::string StartedDriver::Answer()
{
    return ReadLine(mOutput);
}

void StartedDriver::CloseOutput()
{
    if (mOutput != nullptr) {
        (void)std::fclose(mOutput);
        mOutput = nullptr;
    }
}

int StartedDriver::End()
{
    CloseInput();
    for (int character = std::fgetc(mErrors); character != EOF; character = std::fgetc(mErrors)) {
        mError += static_cast<char>(character);
    }
    int status = 0;
    ::waitpid(mProcess, &status, 0);
    mProcess = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void StartedDriver::CloseInput()
{
    if (mInput >= 0) {
        ::close(mInput);
        mInput = -1;
    }
}

}
