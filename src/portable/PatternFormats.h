#pragma once

#include "platform/system/LocaleFormats.h"
#include "portable/DatePattern.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The forms of a locale as data: its words, and patterns in the notation of `DatePattern`.
struct LocalePatterns
{
    DateNames names;
    std::string shortDate;
    std::string longDate;
    std::string shortTime;
    std::string longTime;
    /// Dates that are read as well, and never written.
    std::vector<std::string> furtherDates {};
};

/// The forms of a locale by their patterns; years of short dates have four digits.
class PatternFormats : public LocaleFormats
{
public:
    explicit PatternFormats(LocalePatterns patterns);
    PatternFormats(const PatternFormats&) = delete;
    PatternFormats& operator=(const PatternFormats&) = delete;

    std::string ShortDate(Date date) override { return mShortDate.Format(date); }
    std::string LongDate(Date date) override { return mLongDate.Format(date); }
    std::string MediumDate(Date date) override { return mMediumDate.Format(date); }
    std::string ShortTime(Date date) override { return mShortTime.Format(date); }
    std::string LongTime(Date date) override { return mLongTime.Format(date); }
    std::string MonthAbbreviation(int month) override;
    Date Parse(const std::string& text) override;

private:
    /// The moment of a text that begins with a date in a form; nothing when it is none.
    std::optional<Date> MomentOf(std::string_view text, const DatePattern& pattern) const;
    /// The seconds of a time of day that is all of a text; nothing when it is no time.
    std::optional<std::int64_t> SecondOfDay(std::string_view text) const;

    DateNames mNames;
    DatePattern mShortDate;
    DatePattern mLongDate;
    DatePattern mMediumDate;
    DatePattern mShortTime;
    DatePattern mLongTime;
    std::vector<DatePattern> mFurtherDates;
};

/// The blanks that don't break and the narrow ones become plain blanks, as people type them.
std::string WithPlainBlanks(std::string text);

}
