#include "host/system/IcuLocaleFormats.h"

#include "base/Failure.h"

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
#include <utility>

namespace tempodial {

namespace {

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

/// The locale of a name, with the calendar and the digits that the product writes; an unknown one fails (5).
icu::Locale LocaleOf(const std::string& name)
{
    if (!IcuLocaleFormats::IsKnown(name)) {
        throw Failure(Error::InvalidCall);
    }
    auto locale = icu::Locale::createFromName(PlainName(name).c_str());
    auto status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", "gregorian", status);
    locale.setKeywordValue("numbers", "latn", status);
    CheckIcu(status);
    return locale;
}

LocalePatterns PatternsOf(const icu::Locale& locale)
{
    return { .names = NamesOf(locale),
        .shortDate = DatePatternOf(locale, icu::DateFormat::kShort),
        .longDate = DatePatternOf(locale, icu::DateFormat::kFull),
        .shortTime = TimePatternOf(locale, icu::DateFormat::kShort),
        .longTime = TimePatternOf(locale, icu::DateFormat::kMedium) };
}

}

IcuLocaleFormats::IcuLocaleFormats(const std::string& localeName)
    : PatternFormats(PatternsOf(LocaleOf(localeName)))
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
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(LocaleOf(localeName), status));
    CheckIcu(status);
    return calendar->getFirstDayOfWeek();
}

}
