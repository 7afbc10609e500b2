#pragma once

#include "base/Date.h"
#include "session/Profile.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The tracker's files in a profile, by name, as far as they aren't finished.
struct TrackerFiles
{
    /// A file, and when it was written last.
    struct Written
    {
        std::string name;
        Date when;
    };

    /// The one of the latest day, nothing when there is none; a finished one counts.
    std::optional<Written> latest;
    /// Those with lines that the next sync will take, in order of their days.
    std::vector<std::string> waiting;
    /// Those that are too old for a sync, with those that were kept for that.
    std::vector<std::string> tooOld;

    /// Looks at the files of a profile, by the profile's clock.
    static TrackerFiles Of(const Profile& profile);
};

/// The names of the unfinished files in a folder that are too old for a sync of that moment, in order; none when there
/// is no folder.
std::vector<std::string> TooOldFiles(FileSystemObject& files, const std::string& folder, Date now);

}
