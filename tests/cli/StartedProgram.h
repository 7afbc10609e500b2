#pragma once

#include <csignal>
#include <string>
#include <sys/resource.h>
#include <sys/types.h>
#include <vector>

namespace tempodial {

/// The built program, started with standard error on a terminal of its own, standard output where a test wants it, and
/// nothing on standard input.
class StartedProgram
{
public:
    struct Settings
    {
        /// The file that standard output goes to, "" for none at all: the stream is closed.
        std::string output = "/dev/null";
        /// Standard output is on the terminal too, whatever it is said to be.
        bool isOnTerminal = false;
        /// Standard input is there as well.
        bool isAsked = true;
        int columns = 80;
        int rows = 24;
        /// Variables that it finds besides those of the test, as "NAME=value".
        std::vector<std::string> environment;
        /// Variables that it doesn't find.
        std::vector<std::string> absent;
        /// Standard output goes to a pipe that nobody reads any more, instead.
        bool hasNoReader = false;
        /// The largest size of a file that may be written, in bytes.
        rlim_t largestFile = RLIM_INFINITY;
    };

    StartedProgram(const std::vector<std::string>& arguments, const Settings& settings);
    ~StartedProgram();
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    /// Waits until the terminal shows a text; false when the program ends before.
    bool WaitFor(const std::string& text);
    /// Types a text at the terminal.
    void Type(const std::string& text);
    void Send(int signal) const { ::kill(mProcess, signal); }
    /// Waits for the end; the exit status, or 128 and the signal's number.
    int End();
    /// What the terminal showed until now.
    const std::string& Shown() const { return mShown; }

private:
    static void SetOutput(const Settings& settings);
    bool ReadMore();

    pid_t mProcess = -1;
    int mTerminal = -1;
    std::string mShown;
};

}
