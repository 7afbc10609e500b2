#pragma once

#include "base/Date.h"
#include "platform/system/FileSystemObject.h"
#include "session/Profile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// The invented tracker files in the data folder of a profile. A note beside them tells that they aren't all there yet,
/// and how they were invented, so that a run that was killed can be made good.
class DemoFiles
{
public:
    /// How many files and slots were written.
    struct Count
    {
        std::size_t files = 0;
        std::size_t lines = 0;
    };

    /// What they are invented from.
    struct Recipe
    {
        std::uint32_t seed = 1;
        std::int32_t days = 1;
        /// The present moment.
        Date now;
    };

    explicit DemoFiles(const Profile& profile);

    /// Writes them, all or none. What a killed run has written goes first, as long as it is as it was written. Fails
    /// with a `CommandError` when there are other tracker files, and when one can't be written.
    Count Write(const Recipe& recipe) const;

private:
    void RemoveUnfinished() const;
    void RequireNoTrackerFiles() const;
    std::string PathOf(const std::string& name) const;
    void WriteLines(const std::string& path, const std::vector<std::string>& lines) const;
    std::string Content(const std::string& path) const;

    const Profile& mProfile;
    FileSystemObject& mFiles;
};

}
