#include "portable/PatternFormats.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

constexpr int HoursOfHalfDay = 12;
/// Understood in every locale.
const std::array<std::string, 2> PlainDayHalves = { "AM", "PM" };

/// Every year of a short date has four digits.
std::string WithWholeYears(const std::string& pattern)
{
    const auto first = pattern.find('y');
    if (first == std::string::npos) {
        return pattern;
    }
    const auto last = pattern.find_first_not_of('y', first);
    return pattern.substr(0, first) + "yyyy" + (last == std::string::npos ? "" : pattern.substr(last));
}

/// The day of the fields; nothing when there is no such day.
std::optional<Date> DayOf(const DateFields& fields)
{
    if (fields.month < 1 || fields.month > 12 || fields.day < 1 || fields.day > 31) {
        return std::nullopt;
    }
    const auto day = Date::FromYearMonthDay(fields.year, fields.month, fields.day);
    const bool isWeekday = fields.weekday < 0 || fields.weekday == day.Weekday();
    return isWeekday && day.ToParts().day == fields.day ? std::optional(day) : std::nullopt;
}

/// Seconds from midnight to the fields' time; nothing when there is no such time.
std::optional<std::int64_t> SecondsOf(const DateFields& fields)
{
    if (fields.hour < 0 || fields.hour > 23 || fields.minute < 0 || fields.minute > 59 || fields.second > 59) {
        return std::nullopt;
    }
    auto hour = fields.hour;
    // An hour that can only be one of 24 doesn't heed the half of the day.
    if (fields.dayHalf == 0 && hour == HoursOfHalfDay) {
        hour = 0;
    } else if (fields.dayHalf == 1 && hour < HoursOfHalfDay) {
        hour += HoursOfHalfDay;
    }
    return hour * 3600 + fields.minute * 60 + std::max(fields.second, 0);
}

std::string_view WithoutBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}

std::string WithPlainBlanks(std::string text)
{
    for (const std::string_view blank : { "\u00A0", "\u202F", "\u2009" }) {
        if (text.find(blank) != std::string::npos) {
            text = Replace(text, blank, " ");
        }
    }
    return text;
}

PatternFormats::PatternFormats(LocalePatterns patterns)
    : mNames(std::move(patterns.names))
    , mShortDate(WithWholeYears(patterns.shortDate), mNames)
    , mLongDate(patterns.longDate, mNames)
    , mMediumDate("dd-LLL-yy", mNames)
    , mShortTime(patterns.shortTime, mNames)
    , mLongTime(patterns.longTime, mNames)
{
    for (const auto& pattern : patterns.furtherDates) {
        mFurtherDates.emplace_back(pattern, mNames);
    }
}

std::string PatternFormats::MonthAbbreviation(int month)
{
    if (month < 1 || month > 12) {
        throw Failure(Error::InvalidCall);
    }
    return mNames.loneShortMonths[static_cast<std::size_t>(month) - 1];
}

Date PatternFormats::Parse(const std::string& text)
{
    const auto plain = WithPlainBlanks(text);
    const auto whole = WithoutBlanks(plain);
    // Where times are written with full stops, 01.02.03 is one: dates have years of four digits.
    if (const auto seconds = SecondOfDay(whole)) {
        return Date().AddSeconds(*seconds);
    }
    for (const auto* pattern : { &mShortDate, &mLongDate, &mMediumDate }) {
        if (const auto moment = MomentOf(whole, *pattern)) {
            return *moment;
        }
    }
    for (const auto& pattern : mFurtherDates) {
        if (const auto moment = MomentOf(whole, pattern)) {
            return *moment;
        }
    }
    throw Failure(Error::TypeMismatch);
}

std::optional<Date> PatternFormats::MomentOf(std::string_view text, const DatePattern& pattern) const
{
    DateFields fields;
    const auto day = pattern.TakeOff(text, fields) ? DayOf(fields) : std::nullopt;
    if (!day || text.empty()) {
        return day;
    }
    const auto seconds = text.starts_with(' ') ? SecondOfDay(WithoutBlanks(text)) : std::nullopt;
    return seconds ? std::optional(day->AddSeconds(*seconds)) : std::nullopt;
}

std::optional<std::int64_t> PatternFormats::SecondOfDay(std::string_view text) const
{
    for (const auto* pattern : { &mLongTime, &mShortTime }) {
        auto rest = text;
        DateFields fields;
        if (pattern->TakeOff(rest, fields) && rest.empty()) {
            return SecondsOf(fields);
        }
    }
    DateFields fields;
    fields.hour = TakeOffNumber(text, 2);
    if (TakeOffLiteral(text, ":")) {
        fields.minute = TakeOffNumber(text, 2);
        if (fields.minute >= 0 && TakeOffLiteral(text, ":")) {
            fields.second = TakeOffNumber(text, 2);
            if (fields.second < 0) {
                return std::nullopt;
            }
        }
    }
    text = WithoutBlanks(text);
    if (!text.empty()) {
        fields.dayHalf = TakeOffName(text, mNames.dayHalves.data(), mNames.dayHalves.size());
        if (fields.dayHalf < 0) {
            fields.dayHalf = TakeOffName(text, PlainDayHalves.data(), PlainDayHalves.size());
        }
        // An hour alone is a time only with the half of the day behind it.
        if (fields.dayHalf >= 0 && fields.minute < 0) {
            fields.minute = 0;
        }
    }
    return text.empty() ? SecondsOf(fields) : std::nullopt;
}

}
