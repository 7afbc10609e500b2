#pragma once

#include <cstdint>
#include <string>
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
};

/// What a calendar holds, and how many events of it are none of somebody's time.
struct CalendarContent
{
    std::vector<CalendarEvent> events;
    std::int64_t allDay = 0;
    std::int64_t transparent = 0;
    std::int64_t cancelled = 0;
    std::int64_t declined = 0;
    std::int64_t unreadable = 0;
};

/// Reads a calendar's text, up to a moment in seconds since 1970; false when it is no calendar.
using CalendarTextReader = bool (*)(const std::string& text, std::int64_t until, CalendarContent& content);

/// The module that reads calendars, and the name of its one function, a `CalendarTextReader`.
inline constexpr auto CalendarModule = "tempodial-calendar";
inline constexpr auto CalendarTextReaderName = "TempodialReadCalendar";

}
