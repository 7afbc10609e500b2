#include "desktop/ViewDays.h"

namespace tempodial {

Period DaysOfView(DesktopSettings::View view, Date day, const Period::WeekStart& weekStart)
{
    return view == DesktopSettings::View::Day ? Period { day.Day(), day.Day() } : Period::WeekOf(day, weekStart);
}

Date PagedDay(DesktopSettings::View view, Date day, int pages)
{
    constexpr int DaysOfWeek = 7;
    const auto paged = day.AddDays(view == DesktopSettings::View::Day ? pages : pages * DaysOfWeek);
    // A week must lie within the days that there are.
    const auto always = Period::Always();
    return paged < always.first.AddDays(DaysOfWeek) || paged > always.last.AddDays(-DaysOfWeek) ? day : paged;
}

}
