#pragma once

#include "base/Date.h"
#include "sources/SourceReader.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tempodial {

/// A moment as other programs write it down.
struct WrittenMoment
{
    /// The time as it stands there.
    Date written;
    /// Seconds by which that is before UTC; nothing when it says nothing of it, and the time is local.
    std::optional<std::int64_t> offset = std::nullopt;
    /// What stands behind the whole seconds.
    int milliseconds = 0;

    /// Seconds since 1970 began in UTC, for one with an offset.
    std::int64_t Moment() const;
};

/// A moment such as 2026-11-21T10:00:00.25+01:00, its fraction cut to milliseconds; blanks may stand for the T, seconds
/// and offset may be absent. Nothing for another text.
std::optional<WrittenMoment> ReadMoment(std::string_view text);
/// A day as 2026-11-21, or with its three numbers in that order or the year at the end; nothing for another text and
/// for days that there aren't.
std::optional<Date> ReadDay(std::string_view text, DateOrder order);
/// True for a day whose order of numbers needn't be known.
bool IsYearFirst(std::string_view text);
/// Seconds after midnight of a time with or without seconds, in 24 hours or 12; nothing for another text.
std::optional<std::int64_t> ReadTime(std::string_view text);
/// Seconds of a length such as 01:30:00; nothing for another text.
std::optional<std::int64_t> ReadLength(std::string_view text);

/// Seconds since 1970 began, as seconds of `Date`.
std::int64_t WallSeconds(std::int64_t seconds);
/// A moment in UTC as local time of a zone, in seconds as those of `Date`.
std::int64_t LocalSeconds(TimeZone& zone, std::int64_t moment);
/// Calls back with the local times of what lies between two moments: one, or two where the clock is put forward or
/// back in between.
template <class Callback> void ForLocalTimes(TimeZone& zone, std::int64_t begin, std::int64_t end, Callback&& callback)
{
    while (begin < end) {
        const auto offset = zone.OffsetAt(begin);
        auto until = end;
        if (zone.OffsetAt(end) != offset) {
            // The first second with another offset lies behind `same`, and not behind `until`.
            auto same = begin;
            while (until - same > 1) {
                const auto middle = same + (until - same) / 2;
                (zone.OffsetAt(middle) == offset ? same : until) = middle;
            }
        }
        const auto first = LocalSeconds(zone, begin);
        callback(first, first + (until - begin));
        begin = until;
    }
}

}
