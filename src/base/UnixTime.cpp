#include "base/UnixTime.h"

#include <ctime>

namespace tempodial {

std::optional<std::int64_t> UnixTimeOf(Date local)
{
    constexpr int FirstYear = 1900;
    const auto parts = local.ToParts();
    std::tm fields {};
    fields.tm_year = parts.year - FirstYear;
    fields.tm_mon = parts.month - 1;
    fields.tm_mday = parts.day;
    fields.tm_hour = parts.hour;
    fields.tm_min = parts.minute;
    fields.tm_sec = parts.second;
    fields.tm_isdst = -1;
    // A moment that can't be told leaves the day of the week as it was.
    fields.tm_wday = -1;
    const auto moment = std::mktime(&fields);
    return fields.tm_wday < 0 ? std::nullopt : std::optional<std::int64_t>(moment);
}

}
