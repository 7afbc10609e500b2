#pragma once

#include "slots/Presence.h"
#include "slots/Sighting.h"
#include "sources/SightingTable.h"
#include "sources/Skipped.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// A time that somebody noted down, with its exact ends: seconds of local time, as those of `Date`.
struct SourceEntry
{
    std::int64_t start = 0;
    std::int64_t end = 0;
    /// What it was, as a window would say it. With `isWindow` that is one, and understood as such.
    Sighting words;
    std::string project;
    bool isWindow = false;

    bool operator==(const SourceEntry&) const = default;
};

/// A window in front of a computer for some time: seconds of local time, as those of `Date`.
struct SeenWindow
{
    std::int64_t begin = 0;
    std::int64_t end = 0;
    std::uint32_t computer = 0;
    /// Which of the sightings it is.
    std::uint32_t sighting = 0;
};

/// All that a source holds and that can be of use.
struct SourceData
{
    /// The times that somebody was at a computer.
    struct Computer
    {
        Presence presence;
        /// False when the source says nothing of it: then it follows from the windows.
        bool isTold = false;
    };

    /// What windows said.
    SightingTable sightings;
    std::vector<SeenWindow> windows;
    std::vector<Computer> computers;
    std::vector<SourceEntry> entries;
    Skipped skipped;
    /// What is left out and has a name, a message each.
    std::vector<std::string> remarks;
};

}
