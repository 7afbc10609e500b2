#pragma once

#include "desktop/Titles.h"
#include "platform/system/LocaleFormats.h"
#include "review/Activity.h"
#include "session/Profile.h"

#include <array>
#include <string>
#include <vector>

namespace tempodial {

/// Activities as a file for other programs. Where titles are hidden they stay at home.
class LogExport
{
public:
    enum class Form { Table, Calendar, Fields, Text };

    /// What a form is called, and how the names of its files end.
    struct FormWords
    {
        Form form;
        const char* caption;
        const char* filter;
        const char* ending;
    };
    static constexpr std::array<FormWords, 4> Forms { {
        { Form::Table, "&Table (CSV)\u2026", "Table (*.csv)", ".csv" },
        { Form::Calendar, "&Calendar (iCalendar)\u2026", "Calendar (*.ics)", ".ics" },
        { Form::Fields, "&All Fields (JSON)\u2026", "All fields (*.json)", ".json" },
        { Form::Text, "Plain Te&xt\u2026", "Text (*.txt)", ".txt" },
    } };

    /// The profile must live as long as this.
    LogExport(const Profile& profile, Titles titles, std::vector<Activity> activities);

    /// What stands in a file of that form; fails as the store does.
    std::string In(Form form) const;

private:
    std::string Calendar() const;
    std::string Fields() const;

    const Profile& mProfile;
    Titles mTitles;
    std::vector<Activity> mActivities;
};

}
