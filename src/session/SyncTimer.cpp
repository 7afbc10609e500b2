#include "session/SyncTimer.h"

#include "base/Failure.h"

#include <cstdlib>
#include <vector>

namespace tempodial {

namespace {

constexpr auto TimerUnit = "tempodial-sync.timer";
constexpr auto TimeKey = "OnCalendar=";

/// Where units for a user's session stand, that user's own first.
std::vector<std::string> UnitFolders()
{
    std::vector<std::string> folders;
    if (const auto* settings = std::getenv("XDG_CONFIG_HOME"); settings != nullptr && *settings == '/') {
        folders.emplace_back(settings);
    } else if (const auto* home = std::getenv("HOME"); home != nullptr) {
        folders.push_back(std::string(home) + "/.config");
    }
    folders.emplace_back("/etc");
    for (auto& folder : folders) {
        folder += "/systemd/user/";
    }
    return folders;
}

bool IsThere(const std::string& path, FileSystemObject& files)
{
    try {
        return files.FileExists(path);
    } catch (const Failure&) {
        return false; // What can't be looked at isn't there.
    }
}

std::optional<Date> NextBy(const std::string& calendar, Date now)
{
    constexpr std::int64_t SecondsOfHour = 3600;
    if (calendar == "daily") {
        return now.Day().AddDays(1);
    }
    if (calendar == "hourly") {
        return Date::FromSeconds(now.Seconds() / SecondsOfHour * SecondsOfHour + SecondsOfHour);
    }
    return std::nullopt;
}

/// What the timer of a file goes by; empty when it has no calendar or can't be read.
std::string CalendarIn(const std::string& path, FileSystemObject& files)
{
    try {
        const auto file = files.OpenTextFile(path, OpenMode::Reading, false);
        for (;;) {
            const auto line = file->ReadLine();
            if (line.starts_with(TimeKey)) {
                return line.substr(std::string(TimeKey).size());
            }
        }
    } catch (const Failure&) {
        return "";
    }
}

}

std::optional<SyncTimer> SyncTimer::Of(Date now, FileSystemObject& files)
{
    const auto folders = UnitFolders();
    for (const auto& folder : folders) {
        // There systemd notes what is enabled.
        if (const auto path = folder + "timers.target.wants/" + TimerUnit; IsThere(path, files)) {
            return SyncTimer { TimerUnit, NextBy(CalendarIn(path, files), now) };
        }
    }
    return IsThere(folders.front() + TimerUnit, files) ? std::optional(SyncTimer { TimerUnit, std::nullopt })
                                                       : std::nullopt;
}

}
