#pragma once

#include "support/StartedProcess.h"
#include "support/TempFolder.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// Half an hour in front of a desktop, recorded by the built program with a clock that is faster: from a minute past
/// ten on, on Monday, 23 November 2026.
class DesktopDay
{
public:
    /// Starts the recorder on the desktop that the environment names.
    explicit DesktopDay(int speed);

    /// Lets time go on until so many minutes after the start; somebody presses keys all the while.
    void Until(double minutes, const std::function<void()>& press) const;
    /// Ends the recorder; its exit status.
    int End();

    /// The day's file without its heading.
    std::vector<std::string> Lines() const;
    /// The activities that a sync makes of it.
    std::vector<std::string> Activities() const;
    /// What `track probe` answers: its exit status, and the desktop that it chooses.
    static std::pair<int, std::string> Probe();

private:
    int mSpeed;
    TempFolder mFolder;
    std::unique_ptr<StartedProcess> mRecorder;
    std::chrono::steady_clock::time_point mStart;
};

/// The lines of a day with three windows in front for 12, 6 and 11 minutes, by their words.
std::vector<std::string> ThreeWindows(const std::string& first, const std::string& second, const std::string& third);

}
