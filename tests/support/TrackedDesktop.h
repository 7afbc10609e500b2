#pragma once

#include "support/Program.h"
#include "support/TempFolder.h"

#include <chrono>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tempodial {

/// The recorder as it is installed, in front of a desktop and in a session that the test directs.
class TrackedDesktop
{
public:
    TrackedDesktop();
    ~TrackedDesktop();
    TrackedDesktop(const TrackedDesktop&) = delete;
    TrackedDesktop& operator=(const TrackedDesktop&) = delete;

    /// Runs `tempodial` with the profile and further arguments.
    ProgramResult Run(const std::vector<std::string>& arguments) const { return RunIn(Environment(), arguments); }
    ProgramResult RunIn(const std::vector<std::string>& environment, const std::vector<std::string>& arguments) const;
    /// Starts the recorder, and waits until it answers; `wrapper` is a program in front of it.
    void Start(const std::vector<std::string>& arguments, const std::vector<std::string>& wrapper = {})
    {
        StartIn(Environment(), arguments, wrapper);
    }
    void StartIn(std::vector<std::string> environment, const std::vector<std::string>& arguments,
        const std::vector<std::string>& wrapper = {});
    /// Ends it with a signal; gives its exit status, or 128 and the number of the signal that it died of.
    int Stop(int signal);
    /// Waits for its end; gives its exit status.
    int WaitForEnd();
    pid_t Process() const { return mProcess; }

    /// Tells the desktop something; see FakeDesktop.cpp.
    void Tell(const std::string& line) const;
    /// Tells the session something.
    void TellSession(const std::string& line) const;
    /// Waits until something is so; false when it isn't after some seconds.
    static bool WaitUntil(const std::function<bool()>& isSo, std::chrono::seconds limit = std::chrono::seconds(20));

    std::string Profile() const { return mFolder.Path("profile"); }
    const TempFolder& Folder() const { return mFolder; }
    /// What the program has said on standard error.
    std::string Messages() const { return mFolder.Read("messages"); }
    std::vector<std::string> Environment() const;

private:
    std::string Executable() const { return mFolder.Path("tree/bin/tempodial"); }

    TempFolder mFolder;
    pid_t mProcess = 0;
    int mDesktop = -1;
    int mSession = -1;
};

}
