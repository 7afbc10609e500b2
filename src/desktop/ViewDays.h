#pragma once

#include "desktop/DesktopSettings.h"
#include "review/Period.h"

namespace tempodial {

/// The days that a view shows around one of them: that day alone, or its week, and in the list and in what is sorted
/// out as much as a person wants.
Period DaysOfView(
    DesktopSettings::View view, DesktopSettings::ListSpan span, Date day, const Period::WeekStart& weekStart);

/// The day around which a view shows so many periods later, or earlier for a negative number; the same where time ends.
Date PagedDay(DesktopSettings::View view, DesktopSettings::ListSpan span, Date day, int pages);

}
