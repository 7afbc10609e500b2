#include "review/Period.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>

namespace tempodial {

namespace {

constexpr int DaysOfWeek = 7;
/// In the order in which days of the week are counted.
constexpr std::array<std::string_view, DaysOfWeek> DayNames { "sunday", "monday", "tuesday", "wednesday", "thursday",
    "friday", "saturday" };

/// The number of a text that is all digits, as many as that.
std::optional<int> Digits(std::string_view text, std::size_t count)
{
    int number = 0;
    const auto* end = text.data() + text.size();
    const bool begins = text.size() == count && !text.empty() && text.front() != '-';
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return begins && error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

Period Days(Date first, int count)
{
    return { first, first.AddDays(count - 1) };
}

Period YearOf(int year)
{
    return { Date::FromYearMonthDay(year, 1, 1), Date::FromYearMonthDay(year, 12, 31) };
}

/// Days back from a day to the last one of that weekday, which may be the day itself.
int DaysBackTo(int weekday, Date day)
{
    return (day.Weekday() - weekday + DaysOfWeek) % DaysOfWeek;
}

/// A week as ISO counts: the first is the one with the fourth of January, and each begins on a Monday.
std::optional<Period> IsoWeek(int year, int week)
{
    constexpr int Monday = 2;
    constexpr int DaysToThursday = 3;
    const auto fourth = Date::FromYearMonthDay(year, 1, 4);
    const auto monday = fourth.AddDays(DaysOfWeek * (week - 1) - DaysBackTo(Monday, fourth));
    const bool isOfYear = week >= 1 && monday.AddDays(DaysToThursday).ToParts().year == year;
    return isOfYear ? std::optional(Days(monday, DaysOfWeek)) : std::nullopt;
}

std::optional<Period> OfMonth(int year, int month)
{
    constexpr int Months = 12;
    const bool isMonth = month >= 1 && month <= Months;
    return isMonth ? std::optional(Period::MonthOf(Date::FromYearMonthDay(year, month, 1))) : std::nullopt;
}

std::optional<Period> OfDay(int year, int month, int day)
{
    const auto whole = OfMonth(year, month);
    const bool isDay = whole && day >= 1 && day <= whole->last.ToParts().day;
    return isDay ? std::optional(Days(whole->first.AddDays(day - 1), 1)) : std::nullopt;
}

/// `2006`, `2006-10`, `2006-W41` or `2006-10-10`.
std::optional<Period> OfNumbers(std::string_view text)
{
    constexpr int FirstYear = 100;
    constexpr std::size_t YearSize = 4;
    constexpr std::size_t MonthAt = 5;
    constexpr std::size_t DayAt = 8;
    const auto year = Digits(text.substr(0, YearSize), YearSize);
    if (!year || *year < FirstYear || (text.size() > YearSize && text[YearSize] != '-')) {
        return std::nullopt;
    }
    if (text.size() == YearSize) {
        return YearOf(*year);
    }
    const auto behind = text.substr(MonthAt);
    if (behind.starts_with('W')) {
        const auto week = Digits(behind.substr(1), 2);
        return week ? IsoWeek(*year, *week) : std::nullopt;
    }
    const auto month = Digits(behind.substr(0, 2), 2);
    if (!month || behind.size() == 2) {
        return month ? OfMonth(*year, *month) : std::nullopt;
    }
    const auto day = behind[2] == '-' ? Digits(text.substr(DayAt), 2) : std::nullopt;
    return day ? OfDay(*year, *month, *day) : std::nullopt;
}

/// `-7d`.
std::optional<Period> OfDaysBack(std::string_view text, Date today)
{
    constexpr std::size_t MostDigits = 5;
    if (text.size() < 3 || text.size() > MostDigits + 2 || text.front() != '-' || text.back() != 'd') {
        return std::nullopt;
    }
    const auto count = Digits(text.substr(1, text.size() - 2), text.size() - 2);
    return count && *count > 0 ? std::optional(Days(today.AddDays(1 - *count), *count)) : std::nullopt;
}

}

std::optional<Period> Period::Named(std::string_view words, Date now, const WeekStart& weekStart)
{
    const auto today = now.Day();
    const auto year = today.ToParts().year;
    if (words == "today") {
        return Days(today, 1);
    }
    if (words == "yesterday") {
        return Days(today.AddDays(-1), 1);
    }
    if (words == "week" || words == "last-week") {
        return WeekOf(words == "week" ? today : today.AddDays(-DaysOfWeek), weekStart);
    }
    if (words == "month") {
        return MonthOf(today);
    }
    if (words == "last-month") {
        return MonthOf(MonthOf(today).first.AddDays(-1));
    }
    if (words == "year" || words == "last-year") {
        return YearOf(words == "year" ? year : year - 1);
    }
    const auto* const name = std::find(DayNames.begin(), DayNames.end(), words);
    if (name != DayNames.end()) {
        return Days(today.AddDays(-DaysBackTo(static_cast<int>(name - DayNames.begin()) + 1, today)), 1);
    }
    const auto back = OfDaysBack(words, today);
    return back ? back : OfNumbers(words);
}

Period Period::Always()
{
    constexpr int FirstYear = 100;
    constexpr int LastYear = 9999;
    return { YearOf(FirstYear).first, YearOf(LastYear).last };
}

Period Period::WeekOf(Date day, const WeekStart& weekStart)
{
    return Days(day.Day().AddDays(-DaysBackTo(weekStart(), day)), DaysOfWeek);
}

Period Period::MonthOf(Date day)
{
    const auto first = day.Day().AddDays(1 - day.ToParts().day);
    constexpr int MostDays = 31;
    const auto beyond = first.AddDays(MostDays);
    return { first, beyond.AddDays(-beyond.ToParts().day) };
}

}
