#pragma once

#include "cli/Options.h"
#include "review/Period.h"
#include "terminal/ArgumentList.h"

#include <optional>
#include <string>

namespace tempodial {

/// The arguments RANGE, --from and --to of a command that works on a span of days.
class PeriodArguments
{
public:
    /// What the help of such a command says of them.
    static constexpr auto Help = "Without a range it is today; where only one end is given, the other is today, or\n"
                                 "the same day if today would be out of order. RANGE and both ends are days,\n"
                                 "YYYY-MM-DD, or words: today, yesterday, monday to sunday (the last such day),\n"
                                 "week, month, year, last-week, last-month, last-year, 2026, 2026-11, 2026-W47,\n"
                                 "-7d (seven days up to today).\n";

    /// The same for a command that takes other days than today when none are given, which are called by that.
    static std::string HelpWith(const std::string& usual);

    /// Adds them to a command; they are kept here as they are parsed.
    void Declare(ArgumentList& arguments);
    /// True when any of them was given.
    bool IsGiven() const { return mRange || mFrom || mTo; }
    /// Takes a text that stood in front of them for RANGE. Fails with a `UsageError` when there is one.
    void Take(const std::string& range);
    /// The span that they name, or the usual one when they name none. Fails with a `UsageError`.
    Period Days(const Options& options, const std::string& usual = "today") const;

    /// Tells with which day a week begins.
    static Period::WeekStart WeekStart(const Options& options);
    /// The days that an argument of that name calls by its text. Fails with a `UsageError`.
    static Period ToPeriod(const std::string& name, const std::string& text, const Options& options);
    /// The one day that an argument of that name calls by its text. Fails with a `UsageError`.
    static Date ToDay(const std::string& name, const std::string& text, const Options& options);

private:
    std::optional<std::string> mRange;
    std::optional<std::string> mFrom;
    std::optional<std::string> mTo;
};

}
