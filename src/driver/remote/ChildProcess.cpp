#include "driver/remote/ChildProcess.h"

#include "wire/WireFailure.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <sched.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// A pipe's ends, for reading and for writing.
std::array<int, 2> NewPipe()
{
    std::array<int, 2> ends { -1, -1 };
    if (::pipe(ends.data()) != 0) {
        throw WireBroken("there is no pipe to be had: close some files");
    }
    return ends;
}

/// Keeps this process, and those that it starts, on the processor on which it runs. Of two that wait for each other in
/// turns only one ever has work, and to wake the other one on an idle processor takes longer than most of that.
void StayOnThisProcessor()
{
    const auto processor = ::sched_getcpu();
    if (processor >= 0) {
        cpu_set_t only;
        CPU_ZERO(&only);
        CPU_SET(static_cast<unsigned>(processor), &only);
        // Where that isn't permitted all goes on, slower.
        ::sched_setaffinity(0, sizeof only, &only);
    }
}

/// Turns this process, just forked, into the program.
[[noreturn]] void BecomeProgram(
    char* const* arguments, const std::array<int, 2>& input, const std::array<int, 2>& output)
{
    ::dup2(input[0], STDIN_FILENO);
    ::dup2(output[1], STDOUT_FILENO);
    // The program would keep its own pipes open with the other ends of them.
    for (const auto end : { input[0], input[1], output[0], output[1] }) {
        ::close(end);
    }
    ::execvp(arguments[0], arguments);
    ::_exit(EXIT_FAILURE);
}

}

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, std::chrono::seconds patience)
    : mPatience(patience)
{
    auto texts = arguments;
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    const auto input = NewPipe();
    const auto output = NewPipe();
    StayOnThisProcessor();
    mProcess = ::fork();
    if (mProcess == 0) {
        BecomeProgram(pointers.data(), input, output);
    }
    ::close(input[0]);
    ::close(output[1]);
    mInput = input[1];
    mOutput = output[0];
    if (mProcess < 0) {
        throw WireBroken("the program " + arguments.front() + " can't be started");
    }
}

ChildProcess::~ChildProcess()
{
    CloseInput();
    Wait(std::chrono::seconds(1));
    ::close(mOutput);
}

std::size_t ChildProcess::Read(char* buffer, std::size_t size)
{
    using std::chrono::milliseconds;
    pollfd wanted { .fd = mOutput, .events = POLLIN, .revents = 0 };
    int ready = 0;
    do {
        ready = ::poll(&wanted, 1, static_cast<int>(milliseconds(mPatience).count()));
    } while (ready < 0 && errno == EINTR);
    if (ready == 0) {
        ::kill(mProcess, SIGKILL);
        throw WireBroken("the program hasn't answered for " + std::to_string(mPatience.count()) + " s");
    }
    const auto count = ::read(mOutput, buffer, size);
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

void ChildProcess::Write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto count = ::write(mInput, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            throw WireBroken("the program takes nothing any more");
        }
        bytes.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
}

int ChildProcess::Finish()
{
    CloseInput();
    Wait(mPatience);
    return mStatus;
}

void ChildProcess::CloseInput()
{
    const auto input = std::exchange(mInput, -1);
    if (input >= 0) {
        ::close(input);
    }
}

void ChildProcess::Wait(std::chrono::seconds patience)
{
    constexpr std::chrono::milliseconds Step(2);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (mProcess > 0) {
        int status = 0;
        const auto ended = ::waitpid(mProcess, &status, WNOHANG);
        if (ended != 0) {
            mStatus = ended > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            mProcess = -1;
        } else if (std::chrono::steady_clock::now() > end) {
            ::kill(mProcess, SIGKILL);
        } else {
            std::this_thread::sleep_for(Step);
        }
    }
}

}
