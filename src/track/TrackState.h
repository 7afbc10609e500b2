#pragma once

#include "track/OpenSlot.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// A line of a day's file that isn't there yet.
struct UnsavedLine
{
    /// The day's midnight, in seconds.
    std::int64_t midnight = 0;
    /// Without its end.
    std::string text;

    bool operator==(const UnsavedLine&) const = default;
};

/// What the recorder keeps over its end: the time that isn't written yet, in words that the log may have, and what it
/// was told. Times are local, in milliseconds.
struct TrackState
{
    bool isPaused = false;
    /// When the pause ends, in UTC; nothing for one without an end.
    std::optional<std::int64_t> pausedUntil;
    /// The project of all lines, empty when there is none.
    std::string project;
    /// The last input, and how long after it somebody is still taken to be there.
    std::int64_t input = 0;
    std::int64_t patience = 0;
    std::vector<OpenSlot> slots;
    std::vector<ViewStretch> stretches;
    /// Lines of days' files that couldn't be written yet.
    std::vector<UnsavedLine> unsaved;

    /// As a text of lines.
    std::string Text() const;
    /// Reads such a text; what can't be read is left out.
    static TrackState Of(const std::string& text);
};

}
