#pragma once

#include "base/Ref.h"
#include "desktop/ColourBook.h"
#include "desktop/Titles.h"
#include "platform/system/LocaleFormats.h"
#include "review/Activity.h"
#include "review/Period.h"

#include <string>
#include <vector>

namespace tempodial {

/// What is written of activities and of spans of days, with dates and times as the locale has them.
class ActivityWords
{
public:
    ActivityWords(Ref<LocaleFormats> formats, Titles titles);

    /// The first line: the description, or the application when there is none.
    std::string Title(const Activity& activity) const;
    /// The second line: project and application; the application alone where that gives the colour.
    std::string Detail(const Activity& activity, Coloured coloured) const;
    /// From when to when.
    std::string Times(const Activity& activity) const;
    /// Day, times, length and application: what the selection bar says of one. The day is that of the week, with its
    /// date unless the days that are shown are so few that this tells it.
    std::string Summary(const Activity& activity, const Period& shown) const;
    /// The same of several: how many, and how long together.
    static std::string Summary(const std::vector<Activity>& activities);
    /// What a screen reader says: name, day, times and project.
    std::string Spoken(const Activity& activity) const;
    /// What it says besides: length and application.
    std::string Described(const Activity& activity) const;
    /// What stands beside stripes: of one its name, of several their number and their applications.
    std::string ShortLabel(const std::vector<Activity>& activities) const;
    /// The days that are shown.
    std::string PeriodTitle(const Period& days) const;
    /// The number of the week, as ISO counts, that most of seven days are in; empty for other spans.
    static std::string WeekTitle(const Period& days);

private:
    std::string DayAndMonth(Date day) const;

    Ref<LocaleFormats> mFormats;
    Titles mTitles;
};

}
