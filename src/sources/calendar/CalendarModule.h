#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// An event of a calendar, each time that it happens by itself.
struct CalendarEvent
{
    /// Seconds since 1970 began, in UTC, or in local time when the calendar says nothing of a zone.
    std::int64_t begin = 0;
    std::int64_t end = 0;
    bool isLocal = false;
    std::string summary;
    /// Stands for the events that this one is one of; 0 for one that was moved away from its own time.
    std::size_t series = 0;
};

/// What a calendar holds, and how many events of it are none of somebody's time.
struct CalendarContent
{
    std::vector<CalendarEvent> events;
    /// The series and the times of those that have moved: they aren't at that time.
    std::set<std::pair<std::size_t, std::int64_t>> moved;
    std::int64_t allDay = 0;
    std::int64_t transparent = 0;
    std::int64_t cancelled = 0;
    std::int64_t declined = 0;
    std::int64_t unreadable = 0;
    /// Times before the span that is read.
    std::int64_t early = 0;
    /// Times that repeated events come to so far; with more than there may be nothing is read any more.
    std::int64_t repeated = 0;
    bool HasTooMany() const;
};

/// The most times that the repeated events of a calendar may come to.
inline constexpr std::int64_t MostRepeatedTimes = 500'000;

inline bool CalendarContent::HasTooMany() const
{
    return repeated > MostRepeatedTimes;
}

/// The times that are read: seconds since 1970, both ends included.
struct CalendarSpan
{
    std::int64_t from = 0;
    std::int64_t until = 0;
};

/// Reads a calendar's text, of the times in a span, and adds what it holds; false when it is no calendar.
using CalendarTextReader = bool (*)(const std::string& text, const CalendarSpan& span, CalendarContent& content);

/// The module that reads calendars, and the name of its one function, a `CalendarTextReader`.
inline constexpr auto CalendarModule = "tempodial-calendar";
inline constexpr auto CalendarTextReaderName = "TempodialReadCalendar";

}
