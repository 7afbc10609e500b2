#pragma once

#include <cstdio>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tempodial {

/// The built driver, started with pipes to its standard streams.
class StartedDriver
{
public:
    explicit StartedDriver(const std::vector<std::string>& arguments);
    ~StartedDriver();
    StartedDriver(const StartedDriver&) = delete;
    StartedDriver& operator=(const StartedDriver&) = delete;

    /// Writes a line and waits for the answer, "" when the program ends instead.
    std::string Say(const std::string& line);
    /// Writes a text as it is.
    void Write(const std::string& text) const;
    /// Waits for a further answer, "" when the program ends instead.
    std::string Answer();
    /// Goes away without reading the answers.
    void CloseOutput();
    /// Ends the input and waits for the end of the program; the exit status, or 128 and the signal's number.
    int End();
    /// What the program wrote to standard error; known at its end.
    const std::string& Error() const { return mError; }

private:
    void CloseInput();

    pid_t mProcess = -1;
    int mInput = -1;
    std::FILE* mOutput = nullptr;
    std::FILE* mErrors = nullptr;
    std::string mError;
};

}
