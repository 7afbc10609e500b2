#pragma once

#include "base/Date.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The words that a locale has for dates and times.
struct DateNames
{
    using Months = std::array<std::string, 12>;
    using Weekdays = std::array<std::string, 7>;

    /// As they stand inside a date, from January.
    Months months;
    Months shortMonths;
    /// As they stand alone, from January.
    Months loneMonths;
    Months loneShortMonths;
    /// From Sunday.
    Weekdays weekdays;
    Weekdays shortWeekdays;
    /// Before and after noon.
    std::array<std::string, 2> dayHalves;
    std::string era;
};

/// What was found in a text; -1 is what wasn't.
struct DateFields
{
    int year = -1;
    int month = -1;
    int day = -1;
    /// Sunday 1 to Saturday 7.
    int weekday = -1;
    int hour = -1;
    int minute = -1;
    int second = -1;
    /// Before noon 0, after noon 1.
    int dayHalf = -1;
};

/// A pattern of date and time fields in the notation of Unicode, made ready for formatting and matching many times.
class DatePattern
{
public:
    /// Takes words that must outlive it.
    DatePattern(std::string_view pattern, const DateNames& names);

    std::string Format(Date date) const;
    /// Takes a text in this form off the front of another and adds its fields; false when there is none. Numbers may
    /// lack leading zeros, and words may be in any case.
    bool TakeOff(std::string_view& text, DateFields& fields) const;

private:
    enum class Field {
        Literal,
        Year,
        YearOfCentury,
        Month,
        MonthName,
        Day,
        WeekdayName,
        Hour,
        HalfHour,
        Minute,
        Second,
        DayHalf
    };
    struct Piece
    {
        Field field;
        /// Hours that begin at 1 show this for 0: 12 or 24.
        int forZero = 0;
        std::size_t digits = 0;
        std::string literal;
        const std::string* names = nullptr;
        std::size_t nameCount = 0;
    };

    void AddField(char letter, std::size_t count, const DateNames& names);
    void AddLiteral(std::string_view text);

    std::vector<Piece> mPieces;
};

/// Takes a text off the front of another; false when it isn't there.
bool TakeOffLiteral(std::string_view& text, std::string_view literal);
/// Takes a number of up to that many digits off the front of a text; -1 when there is none.
int TakeOffNumber(std::string_view& text, std::size_t maximalDigits);
/// Takes the longest of some words off the front of a text, in any case; its index, or -1 when there is none.
int TakeOffName(std::string_view& text, const std::string* names, std::size_t count);

}
