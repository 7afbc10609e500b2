#pragma once

#include "base/Date.h"

#include <functional>
#include <optional>
#include <string_view>

namespace tempodial {

/// Days from the first to the last, both included, each as its midnight.
struct Period
{
    Date first;
    Date last;

    /// Answers with which day a week begins, as `Date::Weekday` counts; asked only where that matters.
    using WeekStart = std::function<int()>;

    /// What a person calls a span of days: a day (`2006-10-10`, `today`, `yesterday`, or `monday` to `sunday`, the last
    /// such day), `week`, `month` or `year`, these with `last-` in front, `2006`, `2006-10`, `2006-W41`, or `-7d`, that
    /// many days up to today. Days yet to come are part of it. Nothing for another text, and outside the years 100 to
    /// 9999.
    static std::optional<Period> Named(std::string_view words, Date now, const WeekStart& weekStart);
    /// All days that there are.
    static Period Always();
    /// The seven days of a day's week.
    static Period WeekOf(Date day, const WeekStart& weekStart);
    /// The days of a day's month.
    static Period MonthOf(Date day);

    friend bool operator==(const Period&, const Period&) = default;
};

}
