#pragma once

#include <string>

namespace tempodial {

/// The folder of the tracker's files, below the profile.
inline constexpr auto TrackerFolderName = "Tempodial";
/// What the names of the tracker's files begin with.
inline constexpr auto TrackerFilePrefix = "tracker_granules";

/// The tracker's file of a day.
inline std::string TrackerFileName(const std::string& dayKey)
{
    return TrackerFilePrefix + dayKey + ".out";
}

/// What that file is called once the day is over and all of it was loaded.
inline std::string FinishedTrackerFileName(const std::string& dayKey)
{
    return TrackerFilePrefix + ("(done)" + dayKey + ".out");
}

}
