#pragma once

#include "review/Activity.h"
#include "review/Period.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// An activity on a day of October 2006, from one minute of the day to another.
inline Activity ActivityOn(int day, int from, int to, const std::string& project, const std::string& type = "Word",
    const std::string& description = "a.doc")
{
    const auto midnight = Date::FromYearMonthDay(2006, 10, day);
    Activity activity;
    activity.start = midnight.AddMinutes(from);
    activity.end = midnight.AddMinutes(to);
    activity.duration = to - from;
    activity.project = project;
    activity.type = type;
    activity.description = description;
    return activity;
}

/// Gives these activities one by one.
inline ActivityStream Each(std::vector<Activity> activities)
{
    return [activities = std::move(activities)](const std::function<void(const Activity&)>& take) {
        for (const auto& activity : activities) {
            take(activity);
        }
    };
}

/// The days from one to another of October 2006.
inline Period OctoberDays(int first, int last)
{
    return { Date::FromYearMonthDay(2006, 10, first), Date::FromYearMonthDay(2006, 10, last) };
}

}
