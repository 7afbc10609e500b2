#pragma once

#include "desktop/Titles.h"
#include "platform/system/LocaleFormats.h"
#include "review/Activity.h"

#include <string>
#include <vector>

namespace tempodial {

/// Activities as they leave the program: for other programs, and on paper.
class ActivityTable
{
public:
    /// A line, in the words of the locale.
    struct Line
    {
        std::string day;
        std::string times;
        std::string length;
        std::string project;
        std::string application;
        std::string description;
    };

    /// Where titles are hidden they stay at home.
    ActivityTable(const Ref<LocaleFormats>& formats, Titles titles, std::vector<Activity> activities);

    std::vector<Line> Lines() const;
    /// A line each, tabs between: what is copied.
    std::string Text() const;
    /// Comma-separated values for a spreadsheet, with a header line; moments are as ISO has them.
    std::string Csv() const;

private:
    std::string DescriptionOf(const Activity& activity) const;

    Ref<LocaleFormats> mFormats;
    Titles mTitles;
    std::vector<Activity> mActivities;
};

}
