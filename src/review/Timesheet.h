#pragma once

#include "review/Activity.h"
#include "review/HourlyRate.h"
#include "review/Period.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What a timesheet is made by.
struct TimesheetTerms
{
    /// What is rounded up to whole steps of billed time.
    enum class Rounding { Day, Entry, Total };
    /// What tells what was done.
    enum class What { Descriptions, Applications, None };

    /// Minutes of a step; 1 rounds nothing.
    std::int32_t step = 1;
    Rounding rounding = Rounding::Day;
    What what = What::Descriptions;
    std::optional<HourlyRate> rate;
};

/// What one sends to a client: measured and billed time of one project day by day, and what was done.
struct Timesheet
{
    struct Day
    {
        Date date;
        std::int64_t minutes = 0;
        std::int64_t billedMinutes = 0;
        /// All different texts, by their time and then by name.
        std::vector<std::string> what;
    };

    std::string project;
    Period period;
    /// Those with time.
    std::vector<Day> days;
    std::int64_t minutes = 0;
    std::int64_t billedMinutes = 0;
    /// Nothing without a rate.
    std::optional<Money> amount;

    /// Takes activities of that project alone, which come in order of start.
    static Timesheet Of(const std::string& project, const Period& period, const std::vector<Activity>& activities,
        const TimesheetTerms& terms);
};

}
