#include "cli/PeriodArguments.h"

#include "base/Text.h"
#include "host/system/HostClock.h"
#include "session/ProfileSettings.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>

namespace tempodial {

namespace {

std::optional<Period> PeriodNamed(const std::string& text, const Options& options)
{
    return Period::Named(text, HostClock(options.now).Now(), PeriodArguments::WeekStart(options));
}

[[noreturn]] void RefuseDays(
    const std::string& name, const std::string& text, const std::string& advice, const Options& options)
{
    const auto small = Fold(text);
    throw UsageError(name + " can't be " + InQuotes(text) + ": give "
        + (small != text && PeriodNamed(small, options) ? small + ", in small letters" : advice));
}

}

void PeriodArguments::Declare(ArgumentList& arguments)
{
    arguments.Optional("RANGE", mRange, "The days: a day, or a word for several");
    arguments.Optional("--from DAY", mFrom, "First day, or a word for several, of which it is the first");
    arguments.Optional("--to DAY", mTo, "Last day, or the last of several");
}

std::string PeriodArguments::HelpWith(const std::string& usual)
{
    return Replace(Help, "it is today; where", "it is " + usual + ".\nWhere");
}

Period::WeekStart PeriodArguments::WeekStart(const Options& options)
{
    return [options] { return FirstDayOfWeek(options); };
}

void PeriodArguments::Take(const std::string& range)
{
    if (mRange) {
        throw UsageError(
            "RANGE is given twice, as " + InQuotes(range) + " and as " + InQuotes(*mRange) + ": leave one of them out");
    }
    mRange = range;
}

Period PeriodArguments::Days(const Options& options, const std::string& usual) const
{
    if (mRange && (mFrom || mTo)) {
        throw UsageError("RANGE " + InQuotes(*mRange) + " stands beside --from or --to: leave one of them out");
    }
    if (mRange) {
        return ToPeriod("RANGE", *mRange, options);
    }
    if (!mFrom && !mTo) {
        return ToPeriod("RANGE", usual, options);
    }
    const auto today = HostClock(options.now).Now().Day();
    Period days { today, today };
    if (mFrom) {
        days.first = ToPeriod("--from", *mFrom, options).first;
    }
    if (mTo) {
        days.last = ToPeriod("--to", *mTo, options).last;
    }
    if (!mFrom) {
        days.first = std::min(today, days.last);
    }
    if (!mTo) {
        days.last = std::max(today, days.first);
    }
    if (days.first > days.last) {
        throw UsageError("--from " + IsoDay(days.first) + " is later than --to " + IsoDay(days.last)
            + ": give the earlier day as --from");
    }
    return days;
}

Date PeriodArguments::ToDay(const std::string& name, const std::string& text, const Options& options)
{
    const auto period = PeriodNamed(text, options);
    if (!period || period->first != period->last) {
        RefuseDays(name, text,
            "a day as YYYY-MM-DD, today, yesterday or a day of the week, such as friday for the last one", options);
    }
    return period->first;
}

Period PeriodArguments::ToPeriod(const std::string& name, const std::string& text, const Options& options)
{
    const auto period = PeriodNamed(text, options);
    if (!period) {
        RefuseDays(name, text,
            "a day as YYYY-MM-DD, today, yesterday, monday to sunday for the last such day, week, last-week, month, "
            "last-month, year, last-year, 2026, 2026-11, 2026-W47, or -7d for seven days up to today",
            options);
    }
    return *period;
}

}
