#include "base/Date.h"

#include "base/Failure.h"
#include "base/Number.h"

#include <chrono>
#include <limits>

namespace tempodial {

namespace {

constexpr std::int64_t SecondsOfDay = 86400;
constexpr std::chrono::sys_days DayZero = std::chrono::year(1899) / std::chrono::December / std::chrono::day(30);

constexpr std::int64_t FloorDivide(std::int64_t value, std::int64_t by)
{
    return value / by - (value % by < 0 ? 1 : 0);
}

constexpr std::int64_t DayNumber(int year, int month, int day)
{
    const std::chrono::sys_days date = std::chrono::year(year) / month / day;
    return (date - DayZero).count();
}

std::int32_t UnitsBetween(Date from, Date to, std::int64_t secondsOfUnit)
{
    const auto units = FloorDivide(to.Seconds(), secondsOfUnit) - FloorDivide(from.Seconds(), secondsOfUnit);
    if (units < std::numeric_limits<std::int32_t>::min() || units > std::numeric_limits<std::int32_t>::max()) {
        throw Failure(Error::Overflow);
    }
    return static_cast<std::int32_t>(units);
}

void CheckWithin16Bits(std::int32_t number)
{
    if (number < std::numeric_limits<std::int16_t>::min() || number > std::numeric_limits<std::int16_t>::max()) {
        throw Failure(Error::Overflow);
    }
}

}

Date Date::FromYearMonthDay(std::int32_t year, std::int32_t month, std::int32_t day)
{
    CheckWithin16Bits(year);
    CheckWithin16Bits(month);
    CheckWithin16Bits(day);

    constexpr int MonthsOfYear = 12;
    constexpr int LastYearOf2000s = 29;
    if (year >= 0 && year <= LastYearOf2000s) {
        year += 2000;
    } else if (year > LastYearOf2000s && year <= 99) {
        year += 1900;
    }
    const auto months = FloorDivide(month - 1, MonthsOfYear);
    const auto wholeYear = year + static_cast<int>(months);
    const auto wholeMonth = month - static_cast<int>(months) * MonthsOfYear;
    constexpr int FarthestYear = 32000;
    if (wholeYear < -FarthestYear || wholeYear > FarthestYear) {
        throw Failure(Error::InvalidCall);
    }
    const auto number = DayNumber(wholeYear, wholeMonth, 1) + day - 1;
    if (number < DayNumber(100, 1, 1) || number > DayNumber(9999, 12, 31)) {
        throw Failure(Error::InvalidCall);
    }
    return Date(number * SecondsOfDay);
}

Date Date::FromTexts(std::string_view year, std::int32_t month, std::string_view day)
{
    const auto yearNumber = ToInt16(year);
    const auto dayNumber = ToInt16(day);
    return FromYearMonthDay(yearNumber, month, dayNumber);
}

Date Date::FromParts(const Parts& parts)
{
    const std::chrono::hh_mm_ss time(
        std::chrono::hours(parts.hour) + std::chrono::minutes(parts.minute) + std::chrono::seconds(parts.second));
    return Date(DayNumber(parts.year, parts.month, parts.day) * SecondsOfDay + time.to_duration().count());
}

Date::Parts Date::ToParts() const
{
    const std::chrono::year_month_day date(DayZero + std::chrono::days(FloorDivide(mSeconds, SecondsOfDay)));
    const std::chrono::hh_mm_ss time { std::chrono::seconds(SecondOfDay()) };
    return { int(date.year()), int(unsigned(date.month())), int(unsigned(date.day())), int(time.hours().count()),
        int(time.minutes().count()), int(time.seconds().count()) };
}

Date Date::Day() const
{
    return Date(mSeconds - SecondOfDay());
}

std::int64_t Date::SecondOfDay() const
{
    return mSeconds - FloorDivide(mSeconds, SecondsOfDay) * SecondsOfDay;
}

int Date::Weekday() const
{
    constexpr std::int64_t DaysOfWeek = 7;
    const auto fromSunday = FloorDivide(mSeconds, SecondsOfDay) - 1;
    return static_cast<int>(fromSunday - FloorDivide(fromSunday, DaysOfWeek) * DaysOfWeek) + 1;
}

Date Date::Minute() const
{
    return Date(FloorDivide(mSeconds, 60) * 60);
}

std::string Date::DayKey() const
{
    const auto parts = ToParts();
    return Padded(parts.year, 4) + Padded(parts.month, 2) + Padded(parts.day, 2);
}

std::string Date::HourMinute() const
{
    const auto minutes = static_cast<std::int32_t>(SecondOfDay() / 60);
    return Padded(minutes / 60, 2) + ":" + Padded(minutes % 60, 2);
}

std::int32_t MinutesBetween(Date from, Date to)
{
    return UnitsBetween(from, to, 60);
}

std::int32_t DaysBetween(Date from, Date to)
{
    return UnitsBetween(from, to, SecondsOfDay);
}

std::int64_t SecondsBetween(Date from, Date to)
{
    return to.Seconds() - from.Seconds();
}

}
