#include "sources/MomentText.h"

#include "base/UnixTime.h"
#include "slots/PlainText.h"

#include <array>
#include <charconv>
#include <chrono>

namespace tempodial {

namespace {

constexpr std::int64_t SecondsOfHour = 3600;
constexpr std::int64_t SecondsOfMinute = 60;
constexpr std::int64_t HoursOfDay = 24;

/// Takes digits from the beginning; nothing when there are none, or more than may be.
std::optional<int> TakeNumber(std::string_view& text, std::size_t mostDigits)
{
    std::size_t digits = 0;
    while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9') {
        ++digits;
    }
    int number = 0;
    if (digits == 0 || digits > mostDigits
        || std::from_chars(text.data(), text.data() + digits, number).ec != std::errc()) {
        return std::nullopt;
    }
    text.remove_prefix(digits);
    return number;
}

bool Take(std::string_view& text, char character)
{
    if (!text.starts_with(character)) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

std::optional<Date> DayOf(int year, int month, int day)
{
    const std::chrono::year_month_day date { std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
        std::chrono::day(static_cast<unsigned>(day)) };
    constexpr int FirstYear = 1000;
    constexpr int LastYear = 9998;
    if (!date.ok() || year < FirstYear || year > LastYear) {
        return std::nullopt;
    }
    return Date::FromParts({ year, month, day, 0, 0, 0 });
}

/// Takes the digits of a fraction as milliseconds; nothing when there are none.
std::optional<int> TakeMilliseconds(std::string_view& text)
{
    constexpr std::size_t MostDigits = 9;
    constexpr std::size_t Digits = 3;
    constexpr int Ten = 10;
    const auto whole = text;
    if (!TakeNumber(text, MostDigits)) {
        return std::nullopt;
    }
    int milliseconds = 0;
    const auto length = whole.size() - text.size();
    for (std::size_t i = 0; i < Digits; ++i) {
        milliseconds = milliseconds * Ten + (i < length ? whole[i] - '0' : 0);
    }
    return milliseconds;
}

/// Takes hours and minutes, and seconds if there are some, with a fraction.
std::optional<std::int64_t> TakeClock(std::string_view& text, int& milliseconds)
{
    constexpr std::size_t TwoDigits = 2;
    const auto hours = TakeNumber(text, TwoDigits);
    if (!hours || !Take(text, ':')) {
        return std::nullopt;
    }
    const auto minutes = TakeNumber(text, TwoDigits);
    std::optional<int> seconds = 0;
    if (Take(text, ':')) {
        seconds = TakeNumber(text, TwoDigits);
        if (Take(text, '.') || Take(text, ',')) {
            const auto fraction = TakeMilliseconds(text);
            if (!fraction) {
                return std::nullopt;
            }
            milliseconds = *fraction;
        }
    }
    if (!minutes || !seconds || *hours >= HoursOfDay || *minutes >= SecondsOfMinute || *seconds > SecondsOfMinute) {
        return std::nullopt;
    }
    return *hours * SecondsOfHour + *minutes * SecondsOfMinute + *seconds;
}

/// Takes an offset; nothing when what is left is none.
std::optional<std::int64_t> TakeOffset(std::string_view& text)
{
    if (Take(text, 'Z') || Take(text, 'z')) {
        return 0;
    }
    const bool isBehind = text.starts_with('-');
    if (!isBehind && !text.starts_with('+')) {
        return std::nullopt;
    }
    text.remove_prefix(1);
    constexpr std::size_t FourDigits = 4;
    constexpr int HoursFactor = 100;
    const auto digits = text.size();
    const auto first = TakeNumber(text, FourDigits);
    if (!first) {
        return std::nullopt;
    }
    const auto length = digits - text.size();
    auto hours = *first;
    auto minutes = 0;
    if (length == FourDigits) {
        minutes = hours % HoursFactor;
        hours /= HoursFactor;
    } else if (Take(text, ':')) {
        minutes = TakeNumber(text, 2).value_or(-1);
    }
    if (hours >= HoursOfDay || minutes < 0 || minutes >= SecondsOfMinute) {
        return std::nullopt;
    }
    const auto offset = hours * SecondsOfHour + minutes * SecondsOfMinute;
    return isBehind ? -offset : offset;
}

}

std::int64_t WrittenMoment::Moment() const
{
    return written.Seconds() - SecondsTo1970 - offset.value_or(0);
}

std::optional<WrittenMoment> ReadMoment(std::string_view text)
{
    constexpr std::size_t DayLength = 10;
    text = Trimmed(text);
    if (text.size() < DayLength) {
        return std::nullopt;
    }
    const auto day = IsYearFirst(text.substr(0, DayLength)) ? ReadDay(text.substr(0, DayLength), DateOrder::FromTheFile)
                                                            : std::nullopt;
    text.remove_prefix(DayLength);
    if (!day || (!Take(text, 'T') && !Take(text, 't') && !Take(text, ' '))) {
        return std::nullopt;
    }
    int milliseconds = 0;
    const auto time = TakeClock(text, milliseconds);
    if (!time) {
        return std::nullopt;
    }
    WrittenMoment moment { day->AddSeconds(*time), std::nullopt, milliseconds };
    text = Trimmed(text);
    if (!text.empty()) {
        moment.offset = TakeOffset(text);
        if (!moment.offset || !text.empty()) {
            return std::nullopt;
        }
    }
    return moment;
}

std::optional<Date> ReadDay(std::string_view text, DateOrder order)
{
    text = Trimmed(text);
    constexpr std::size_t MostDigits = 4;
    std::array<int, 3> numbers {};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (i > 0 && !Take(text, '-') && !Take(text, '/') && !Take(text, '.')) {
            return std::nullopt;
        }
        const auto number = TakeNumber(text, MostDigits);
        if (!number) {
            return std::nullopt;
        }
        numbers.at(i) = *number;
    }
    constexpr int LargestShort = 31;
    if (!text.empty()) {
        return std::nullopt;
    }
    if (numbers[0] > LargestShort) {
        return DayOf(numbers[0], numbers[1], numbers[2]);
    }
    return order == DateOrder::DayFirst ? DayOf(numbers[2], numbers[1], numbers[0])
                                        : DayOf(numbers[2], numbers[0], numbers[1]);
}

bool IsYearFirst(std::string_view text)
{
    constexpr std::size_t YearDigits = 4;
    text = Trimmed(text);
    const auto length = text.size();
    return TakeNumber(text, YearDigits) && length - text.size() == YearDigits;
}

std::optional<std::int64_t> ReadTime(std::string_view text)
{
    constexpr std::int64_t HalfDay = 12 * SecondsOfHour;
    text = Trimmed(text);
    int milliseconds = 0;
    auto time = TakeClock(text, milliseconds);
    text = Trimmed(text);
    if (!time || text.empty()) {
        return time;
    }
    const auto half = PlainText(text);
    const bool isMorning = half == "AM" || half == "am" || half == "a.m.";
    const bool isEvening = half == "PM" || half == "pm" || half == "p.m.";
    if ((!isMorning && !isEvening) || *time < SecondsOfHour || *time >= HalfDay + SecondsOfHour) {
        return std::nullopt;
    }
    return *time % HalfDay + (isEvening ? HalfDay : 0);
}

std::optional<std::int64_t> ReadLength(std::string_view text)
{
    constexpr std::size_t MostDigits = 6;
    text = Trimmed(text);
    const auto hours = TakeNumber(text, MostDigits);
    if (!hours || !Take(text, ':')) {
        return std::nullopt;
    }
    const auto minutes = TakeNumber(text, 2);
    const auto seconds = Take(text, ':') ? TakeNumber(text, 2) : std::optional(0);
    if (!minutes || !seconds || !text.empty()) {
        return std::nullopt;
    }
    return *hours * SecondsOfHour + *minutes * SecondsOfMinute + *seconds;
}

std::int64_t WallSeconds(std::int64_t seconds)
{
    return seconds + SecondsTo1970;
}

std::int64_t LocalSeconds(TimeZone& zone, std::int64_t moment)
{
    return WallSeconds(moment + zone.OffsetAt(moment));
}

}
