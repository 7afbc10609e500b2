#include "host/system/IcuLocaleFormats.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <unicode/calendar.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/uloc.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

namespace tempodial {

namespace {

constexpr int HoursOfHalfDay = 12;
/// Understood in every locale.
const std::array<std::string, 2> PlainDayHalves = { "AM", "PM" };

/// The blanks that don't break and the narrow ones become plain blanks, as people type them.
std::string WithPlainBlanks(std::string text)
{
    for (const std::string_view blank : { "\u00A0", "\u202F", "\u2009" }) {
        if (text.find(blank) != std::string::npos) {
            text = Replace(text, blank, " ");
        }
    }
    return text;
}

std::string TextOf(const icu::UnicodeString& string)
{
    std::string text;
    string.toUTF8String(text);
    return WithPlainBlanks(std::move(text));
}

/// The name without an encoding or a modifier, and that of the neutral locale as the one it stands for.
std::string PlainName(const std::string& localeName)
{
    auto name = localeName.substr(0, localeName.find_first_of(".@"));
    return name == "C" || name == "POSIX" ? "en_US" : name;
}

void CheckIcu(UErrorCode status)
{
    if (U_FAILURE(status)) {
        throw Failure(Error::InvalidCall);
    }
}

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

template <std::size_t Size> void Fill(std::array<std::string, Size>& names, const icu::UnicodeString* first)
{
    std::transform(first, first + Size, names.begin(), TextOf);
}

DateNames NamesOf(const icu::Locale& locale)
{
    using Symbols = icu::DateFormatSymbols;
    auto status = U_ZERO_ERROR;
    const Symbols symbols(locale, status);
    CheckIcu(status);
    std::int32_t count = 0;
    DateNames names;
    Fill(names.months, symbols.getMonths(count, Symbols::FORMAT, Symbols::WIDE));
    Fill(names.shortMonths, symbols.getMonths(count, Symbols::FORMAT, Symbols::ABBREVIATED));
    Fill(names.loneMonths, symbols.getMonths(count, Symbols::STANDALONE, Symbols::WIDE));
    Fill(names.loneShortMonths, symbols.getMonths(count, Symbols::STANDALONE, Symbols::ABBREVIATED));
    // ICU counts weekdays from 1.
    Fill(names.weekdays, symbols.getWeekdays(count, Symbols::FORMAT, Symbols::WIDE) + 1);
    Fill(names.shortWeekdays, symbols.getWeekdays(count, Symbols::FORMAT, Symbols::ABBREVIATED) + 1);
    Fill(names.dayHalves, symbols.getAmPmStrings(count));
    names.era = TextOf(symbols.getEras(count)[1]);
    for (auto& month : names.loneShortMonths) {
        // A month in a list or between hyphens has no full stop, unless it has one inside too.
        if (month.find('.') == month.size() - 1) {
            month.pop_back();
        }
    }
    return names;
}

std::string PatternOf(std::unique_ptr<icu::DateFormat> format)
{
    const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
    if (simple == nullptr) {
        throw Failure(Error::InvalidCall);
    }
    icu::UnicodeString pattern;
    simple->toPattern(pattern);
    return TextOf(pattern);
}

std::string DatePatternOf(const icu::Locale& locale, icu::DateFormat::EStyle style)
{
    return PatternOf(std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateInstance(style, locale)));
}

std::string TimePatternOf(const icu::Locale& locale, icu::DateFormat::EStyle style)
{
    return PatternOf(std::unique_ptr<icu::DateFormat>(icu::DateFormat::createTimeInstance(style, locale)));
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

struct IcuLocaleFormats::Source
{
    explicit Source(const std::string& localeName)
    {
        if (!IsKnown(localeName)) {
            throw Failure(Error::InvalidCall);
        }
        locale = icu::Locale::createFromName(PlainName(localeName).c_str());
        auto status = U_ZERO_ERROR;
        locale.setKeywordValue("calendar", "gregorian", status);
        locale.setKeywordValue("numbers", "latn", status);
        CheckIcu(status);
    }

    icu::Locale locale;
};

IcuLocaleFormats::IcuLocaleFormats(const std::string& localeName)
    : IcuLocaleFormats(Source(localeName))
{
}

IcuLocaleFormats::IcuLocaleFormats(const Source& source)
    : mNames(NamesOf(source.locale))
    , mShortDate(WithWholeYears(DatePatternOf(source.locale, icu::DateFormat::kShort)), mNames)
    , mLongDate(DatePatternOf(source.locale, icu::DateFormat::kFull), mNames)
    , mMediumDate("dd-LLL-yy", mNames)
    , mShortTime(TimePatternOf(source.locale, icu::DateFormat::kShort), mNames)
    , mLongTime(TimePatternOf(source.locale, icu::DateFormat::kMedium), mNames)
{
}

bool IcuLocaleFormats::IsKnown(const std::string& localeName)
{
    const auto locale = icu::Locale::createFromName(PlainName(localeName).c_str());
    const std::string_view language = locale.getLanguage();
    if (language.empty() || *locale.getVariant() != '\0') {
        return false;
    }
    const bool hasCountry = *locale.getCountry() == '\0' || *locale.getISO3Country() != '\0';
    for (std::int32_t index = 0; index < uloc_countAvailable(); ++index) {
        const std::string_view available = uloc_getAvailable(index);
        const auto itsLanguage = available.substr(0, available.find('_'));
        if (available == locale.getName() || (hasCountry && itsLanguage == language)) {
            return true;
        }
    }
    return false;
}

std::string IcuLocaleFormats::FromEnvironment()
{
    for (const auto* variable : { "LC_ALL", "LC_TIME", "LANG" }) {
        const auto* name = std::getenv(variable);
        if (name != nullptr && *name != '\0') {
            return IsKnown(name) ? name : "en_US";
        }
    }
    return "en_US";
}

int IcuLocaleFormats::FirstDayOfWeek(const std::string& localeName)
{
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(Source(localeName).locale, status));
    CheckIcu(status);
    return calendar->getFirstDayOfWeek();
}

std::string IcuLocaleFormats::MonthAbbreviation(int month)
{
    if (month < 1 || month > 12) {
        throw Failure(Error::InvalidCall);
    }
    return mNames.loneShortMonths[static_cast<std::size_t>(month) - 1];
}

Date IcuLocaleFormats::Parse(const std::string& text)
{
    const auto plain = WithPlainBlanks(text);
    const auto whole = WithoutBlanks(plain);
    // Where times are written with full stops, 01.02.03 is one: dates have years of four digits.
    if (const auto seconds = SecondOfDay(whole)) {
        return Date().AddSeconds(*seconds);
    }
    for (const auto* pattern : { &mShortDate, &mLongDate, &mMediumDate }) {
        auto rest = whole;
        DateFields fields;
        const auto day = pattern->TakeOff(rest, fields) ? DayOf(fields) : std::nullopt;
        if (day && rest.empty()) {
            return *day;
        }
        const auto seconds = day && rest.starts_with(' ') ? SecondOfDay(WithoutBlanks(rest)) : std::nullopt;
        if (seconds) {
            return day->AddSeconds(*seconds);
        }
    }
    throw Failure(Error::TypeMismatch);
}

std::optional<std::int64_t> IcuLocaleFormats::SecondOfDay(std::string_view text) const
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
