#pragma once

#include "slots/ViewMaker.h"

#include <array>
#include <cstdint>
#include <string>

namespace tempodial {

/// The files that say how windows are taken: the programs of the product and the user's own, and the rules of what may
/// be known of them.
class TrackSettings
{
public:
    /// Takes the folder of the profile.
    explicit TrackSettings(const std::string& profile);

    /// Reads the files; fails with `SettingsFileError`.
    ViewMaker Read();
    /// True when a file has changed since it was read.
    bool HasChanged() const;

private:
    /// What tells a file from the same before it was edited.
    struct Mark
    {
        std::uint64_t number = 0;
        std::uint64_t size = 0;
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;

        bool operator==(const Mark&) const = default;
    };

    static Mark MarkOf(const std::string& path);

    std::string mOwnPrograms;
    std::string mRules;
    std::array<Mark, 2> mMarks;
};

}
