#include "addin/win32/UserLocale.h"

#include "addin/base/SystemText.h"
#include "addin/win32/ErrorFailure.h"

#include <algorithm>
#include <cstddef>

namespace tempodial {

namespace {

std::string Fact(LPCWSTR locale, LCTYPE fact)
{
    const auto size = GetLocaleInfoEx(locale, fact, nullptr, 0);
    if (size <= 0) {
        throw FailureOfLastError();
    }
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    GetLocaleInfoEx(locale, fact, text.data(), size);
    text.pop_back();
    return WithPlainBlanks(Narrow(text));
}

/// Facts with numbers that follow on one another.
template <std::size_t Size> void Fill(LPCWSTR locale, LCTYPE first, std::array<std::string, Size>& names)
{
    auto fact = first;
    for (auto& name : names) {
        name = Fact(locale, fact++);
    }
}

/// The weekdays, of which the system's first is Monday.
void FillWeekdays(LPCWSTR locale, LCTYPE first, DateNames::Weekdays& names)
{
    Fill(locale, first, names);
    std::rotate(names.begin(), names.end() - 1, names.end());
}

DateNames NamesOfLocale(LPCWSTR locale)
{
    DateNames names;
    Fill(locale, LOCALE_SMONTHNAME1, names.loneMonths);
    Fill(locale, LOCALE_SABBREVMONTHNAME1, names.loneShortMonths);
    // Inside a date a month may have another form than alone.
    Fill(locale, LOCALE_SMONTHNAME1 | LOCALE_RETURN_GENITIVE_NAMES, names.months);
    names.shortMonths = names.loneShortMonths;
    FillWeekdays(locale, LOCALE_SDAYNAME1, names.weekdays);
    FillWeekdays(locale, LOCALE_SABBREVDAYNAME1, names.shortWeekdays);
    names.dayHalves = { Fact(locale, LOCALE_S1159), Fact(locale, LOCALE_S2359) };
    return names;
}

/// A date without a weekday in front, and what stands between; nothing when none stands there.
std::string WithoutWeekday(const std::string& pattern)
{
    constexpr std::string_view Weekday = "EEEE";
    if (!pattern.starts_with(Weekday)) {
        return {};
    }
    const auto next = pattern.find_first_of("dMy", Weekday.size());
    return next == std::string::npos ? std::string() : pattern.substr(next);
}

LocalePatterns PatternsOf(LPCWSTR locale)
{
    LocalePatterns patterns { .names = NamesOfLocale(locale),
        .shortDate = ToDatePattern(Fact(locale, LOCALE_SSHORTDATE)),
        .longDate = ToDatePattern(Fact(locale, LOCALE_SLONGDATE)),
        .shortTime = ToDatePattern(Fact(locale, LOCALE_SSHORTTIME)),
        .longTime = ToDatePattern(Fact(locale, LOCALE_STIMEFORMAT)) };
    if (auto shorter = WithoutWeekday(patterns.longDate); !shorter.empty()) {
        patterns.furtherDates.push_back(std::move(shorter));
    }
    return patterns;
}

}

LocalePatterns PatternsOfLocale(const std::string& localeName)
{
    return PatternsOf(Wide(localeName).c_str());
}

LocalePatterns PatternsOfUser()
{
    return PatternsOf(LOCALE_NAME_USER_DEFAULT);
}

std::string ToDatePattern(const std::string& pattern)
{
    std::string converted;
    bool isQuoted = false;
    for (std::size_t at = 0; at < pattern.size();) {
        const auto letter = pattern[at];
        const auto end = std::min(pattern.find_first_not_of(letter, at), pattern.size());
        const auto count = letter == '\'' ? 1 : end - at;
        if (letter == '\'') {
            isQuoted = !isQuoted;
        }
        if (isQuoted || (letter != 'd' && letter != 't' && letter != 'g')) {
            converted.append(count, letter);
        } else if (letter == 't') {
            converted.push_back('a');
        } else if (letter == 'd') {
            converted.append(count, count > 2 ? 'E' : 'd');
        }
        at += count;
    }
    return converted;
}

}
