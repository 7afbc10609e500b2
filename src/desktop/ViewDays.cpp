#include "desktop/ViewDays.h"

#include <algorithm>
#include <cstdint>

namespace tempodial {

namespace {

using LogView = DesktopSettings::View;
using ListSpan = DesktopSettings::ListSpan;

constexpr int DaysOfWeek = 7;
constexpr int DaysOfLongYear = 366;
constexpr int MonthsOfYear = 12;
constexpr int LastDay = 31;

/// A person chooses how much such a view shows.
bool HasSpan(LogView view)
{
    return view == LogView::List || view == LogView::SortOut;
}

/// The day of the same number so many months later, or the month's last.
Date InMonth(Date day, int months)
{
    const auto parts = day.ToParts();
    const auto month = Period::MonthOf(Date::FromYearMonthDay(parts.year, parts.month + months, 1));
    return std::min(month.first.AddDays(parts.day - 1), month.last);
}

}

Period DaysOfView(LogView view, ListSpan span, Date day, const Period::WeekStart& weekStart)
{
    if (view == LogView::Day) {
        return { day.Day(), day.Day() };
    }
    if (HasSpan(view) && span == ListSpan::Month) {
        return Period::MonthOf(day);
    }
    if (HasSpan(view) && span == ListSpan::Year) {
        const auto year = day.ToParts().year;
        return { Date::FromYearMonthDay(year, 1, 1), Date::FromYearMonthDay(year, MonthsOfYear, LastDay) };
    }
    return Period::WeekOf(day, weekStart);
}

Date PagedDay(LogView view, ListSpan span, Date day, int pages)
{
    const auto always = Period::Always();
    // What is shown must lie within the days that there are.
    const auto isWithin = [&always](Date paged, std::int64_t days) {
        return paged >= always.first.AddDays(days) && paged <= always.last.AddDays(-days);
    };
    if (HasSpan(view) && span != ListSpan::Week) {
        const auto reach = day.AddDays(std::int64_t { pages } * DaysOfLongYear);
        const auto months = span == ListSpan::Year ? pages * MonthsOfYear : pages;
        return isWithin(reach, DaysOfLongYear) ? InMonth(day, months) : day;
    }
    const auto paged = day.AddDays(view == LogView::Day ? pages : pages * DaysOfWeek);
    return isWithin(paged, DaysOfWeek) ? paged : day;
}

}
