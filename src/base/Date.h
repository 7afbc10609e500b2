#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

/// A local wall-clock moment in whole seconds since 1899-12-30 00:00:00; that moment is the value of an unset date.
class Date
{
public:
    /// Year, month and day of the month, with hour, minute and second of the day.
    struct Parts
    {
        int year, month, day, hour, minute, second;
    };

    constexpr Date() = default;
    /// The moment that many seconds after 1899-12-30 00:00:00.
    static constexpr Date FromSeconds(std::int64_t seconds) { return Date(seconds); }
    /// The midnight of a day, with months and days out of range rolled over and years 0 to 99 taken as 1930 to 2029.
    /// Fails (5) outside the years 100 to 9999, and (6) when a part is beyond 16 bits.
    static Date FromYearMonthDay(std::int32_t year, std::int32_t month, std::int32_t day);
    /// The same from texts; a text that is no number fails (13), one beyond 16 bits (6).
    static Date FromTexts(std::string_view year, std::int32_t month, std::string_view day);
    /// The moment of those parts, which must be in range.
    static Date FromParts(const Parts& parts);

    /// Seconds since 1899-12-30 00:00:00.
    constexpr std::int64_t Seconds() const { return mSeconds; }
    /// The calendar parts.
    Parts ToParts() const;
    /// The midnight that begins this moment's day.
    Date Day() const;
    /// Seconds since that midnight, 0 to 86399.
    std::int64_t SecondOfDay() const;
    /// Day of the week, Sunday 1 to Saturday 7.
    int Weekday() const;
    /// This moment with the seconds cut off.
    Date Minute() const;
    constexpr Date AddSeconds(std::int64_t seconds) const { return Date(mSeconds + seconds); }
    constexpr Date AddMinutes(std::int64_t minutes) const { return Date(mSeconds + minutes * 60); }
    constexpr Date AddDays(std::int64_t days) const { return Date(mSeconds + days * 86400); }

    /// The day key: eight digits, such as 20061010.
    std::string DayKey() const;
    /// The time of day as "hh:mm", 24 hours.
    std::string HourMinute() const;

    friend constexpr auto operator<=>(const Date&, const Date&) = default; // NOLINT(modernize-use-nullptr)

private:
    explicit constexpr Date(std::int64_t seconds)
        : mSeconds(seconds)
    {
    }

    std::int64_t mSeconds = 0;
};

/// Minute boundaries crossed from one moment to the other, negative when that goes back. Fails (6) beyond 32 bits.
std::int32_t MinutesBetween(Date from, Date to);
/// Day boundaries crossed from one moment to the other, negative when that goes back. Fails (6) beyond 32 bits.
std::int32_t DaysBetween(Date from, Date to);
/// Seconds from one moment to the other, negative when that goes back.
std::int64_t SecondsBetween(Date from, Date to);

}
