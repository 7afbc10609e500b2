#pragma once

#include "base/Date.h"

#include <string>

namespace tempodial {

/// The forms of dates and times of the user's locale.
class LocaleFormats
{
public:
    virtual ~LocaleFormats() = default;

    /// Such as 10/10/2006.
    virtual std::string ShortDate(Date date) = 0;
    /// Such as Tuesday, October 10, 2006.
    virtual std::string LongDate(Date date) = 0;
    /// Such as 10-Oct-06.
    virtual std::string MediumDate(Date date) = 0;
    /// Such as 9:05 AM.
    virtual std::string ShortTime(Date date) = 0;
    /// Such as 9:05:00 AM.
    virtual std::string LongTime(Date date) = 0;
    /// The abbreviated name of a month from 1 to 12; another fails (5).
    virtual std::string MonthAbbreviation(int month) = 0;
    /// A text in the forms above as a moment: a date, a time of day (of the zero day) or both, and times of 24 hours
    /// with or without seconds in every locale; another text fails (13).
    virtual Date Parse(const std::string& text) = 0;

    /// The general form: short date, blank and long time, without the time at midnight and without the zero day.
    std::string General(Date date)
    {
        if (date.Day() == Date()) {
            return LongTime(date);
        }
        return date.SecondOfDay() == 0 ? ShortDate(date) : ShortDate(date) + " " + LongTime(date);
    }
    /// The moment at minute grain, as a filter quotes it: short date, blank and short time.
    std::string Moment(Date date) { return ShortDate(date) + " " + ShortTime(date); }
};

}
