#include "host/system/LocalTime.h"

namespace tempodial {

namespace {

constexpr std::time_t QuarterHour = 900;
/// From 1899-12-30 to 1970-01-01.
constexpr std::time_t SecondsTo1970 = 25569LL * 86400;

}

Date LocalTime::At(std::time_t moment)
{
    const auto quarter = moment / QuarterHour;
    if (quarter != mQuarter) {
        std::tm local {};
        if (::localtime_r(&moment, &local) != nullptr) {
            mOffset = local.tm_gmtoff;
            mQuarter = quarter;
        }
    }
    return Date::FromSeconds(moment + mOffset + SecondsTo1970);
}

Date LocalTime::UniversalAt(std::time_t moment)
{
    return Date::FromSeconds(moment + SecondsTo1970);
}

Date LocalTime::UniversalOf(Date local)
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
    return fields.tm_wday < 0 ? local : UniversalAt(moment);
}

}
