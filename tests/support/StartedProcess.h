#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace tempodial {

/// A program that a test needs beside itself; it ends with the object.
class StartedProcess
{
public:
    /// Starts a program of PATH, its output to nowhere; what is written to `descriptor` of it comes to `ReadLine`.
    explicit StartedProcess(
        std::vector<std::string> words, const std::vector<std::string>& environment = {}, int descriptor = -1);
    ~StartedProcess();
    StartedProcess(const StartedProcess&) = delete;
    StartedProcess& operator=(const StartedProcess&) = delete;

    /// The next line; empty when the program has ended.
    std::string ReadLine() const;
    void Send(int signal) const;
    /// Ends the program and waits for that.
    void End();
    /// Waits for its end; the exit status, or 128 and the signal's number.
    int Wait();

private:
    pid_t mProcess = -1;
    int mReader = -1;
};

}
