#pragma once

#include "host/system/DatePattern.h"
#include "platform/system/LocaleFormats.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tempodial {

/// The forms of a locale as ICU knows them, with years of four digits, digits 0 to 9 and plain blanks.
class IcuLocaleFormats : public LocaleFormats
{
public:
    /// Takes a locale's name, such as en_US or de_DE.UTF-8; an unknown one fails (5).
    explicit IcuLocaleFormats(const std::string& localeName);
    IcuLocaleFormats(const IcuLocaleFormats&) = delete;
    IcuLocaleFormats& operator=(const IcuLocaleFormats&) = delete;

    /// True when a locale of that name has forms. "C" and "POSIX" are those of the United States.
    static bool IsKnown(const std::string& localeName);
    /// The name of the locale that the environment asks for, "en_US" when it asks for none that is known.
    static std::string FromEnvironment();

    /// The day with which a week begins in a locale, Sunday 1 to Saturday 7; an unknown locale fails (5).
    static int FirstDayOfWeek(const std::string& localeName);

    std::string ShortDate(Date date) override { return mShortDate.Format(date); }
    std::string LongDate(Date date) override { return mLongDate.Format(date); }
    std::string MediumDate(Date date) override { return mMediumDate.Format(date); }
    std::string ShortTime(Date date) override { return mShortTime.Format(date); }
    std::string LongTime(Date date) override { return mLongTime.Format(date); }
    std::string MonthAbbreviation(int month) override;
    Date Parse(const std::string& text) override;

private:
    /// What ICU tells of a locale.
    struct Source;

    explicit IcuLocaleFormats(const Source& source);

    /// The seconds of a time of day that is all of a text; nothing when it is no time.
    std::optional<std::int64_t> SecondOfDay(std::string_view text) const;

    DateNames mNames;
    DatePattern mShortDate;
    DatePattern mLongDate;
    DatePattern mMediumDate;
    DatePattern mShortTime;
    DatePattern mLongTime;
};

}
