#include "desktop/ActivityWords.h"

#include "desktop/DesktopStrings.h"

#include <utility>

namespace tempodial {

namespace {

/// Stands between what is said one after the other.
constexpr auto SpokenSeparator = ", ";
constexpr int DaysOfWeek = 7;

/// Adds a part of a line, unless it is empty.
void AddPart(std::string& line, const std::string& part, const char* separator = PartSeparator)
{
    if (!part.empty()) {
        line += (line.empty() ? "" : separator) + part;
    }
}

}

ActivityWords::ActivityWords(Ref<LocaleFormats> formats, Titles titles)
    : mFormats(std::move(formats))
    , mTitles(titles)
{
}

std::string ActivityWords::Title(const Activity& activity) const
{
    if (mTitles == Titles::Shown && !activity.description.empty()) {
        return activity.description;
    }
    return activity.type.empty() ? ProjectNameOf(activity) : activity.type;
}

std::string ActivityWords::Detail(const Activity& activity, Coloured coloured) const
{
    std::string line;
    if (coloured == Coloured::Project) {
        line = ProjectNameOf(activity);
    }
    if (Title(activity) != activity.type) {
        AddPart(line, activity.type);
    }
    return line;
}

std::string ActivityWords::Times(const Activity& activity) const
{
    return mFormats->ShortTime(activity.start) + RangeDash + mFormats->ShortTime(activity.end);
}

std::string ActivityWords::Summary(const Activity& activity, const Period& shown) const
{
    const auto day = activity.start.Day();
    const bool isTold = DaysBetween(shown.first, shown.last) < DaysOfWeek && shown.first <= day && day <= shown.last;
    auto line = WeekdayText(activity.start.Weekday()) + " " + (isTold ? "" : mFormats->ShortDate(day) + " ")
        + Times(activity);
    AddPart(line, LengthText(activity.duration));
    AddPart(line, activity.type);
    return line;
}

std::string ActivityWords::Summary(const std::vector<Activity>& activities)
{
    std::int64_t minutes = 0;
    for (const auto& activity : activities) {
        minutes += activity.duration;
    }
    return ActivitiesText(static_cast<std::int64_t>(activities.size())) + PartSeparator + LengthText(minutes);
}

std::string ActivityWords::Spoken(const Activity& activity) const
{
    auto line = Title(activity);
    AddPart(line, mFormats->LongDate(activity.start), SpokenSeparator);
    AddPart(line, mFormats->ShortTime(activity.start) + " to " + mFormats->ShortTime(activity.end), SpokenSeparator);
    AddPart(line, ProjectNameOf(activity), SpokenSeparator);
    return line;
}

std::string ActivityWords::Described(const Activity& activity) const
{
    auto line = LengthText(activity.duration);
    AddPart(line, Title(activity) == activity.type ? "" : activity.type, SpokenSeparator);
    return line;
}

std::string ActivityWords::ShortLabel(const std::vector<Activity>& activities) const
{
    if (activities.size() == 1) {
        return Title(activities.front());
    }
    std::vector<std::string> applications;
    applications.reserve(activities.size());
    for (const auto& activity : activities) {
        applications.push_back(activity.type);
    }
    return ShortOnesText(static_cast<std::int64_t>(activities.size()), applications);
}

std::string ActivityWords::DayAndMonth(Date day) const
{
    const auto parts = day.ToParts();
    return std::to_string(parts.day) + " " + mFormats->MonthAbbreviation(parts.month);
}

std::string ActivityWords::PeriodTitle(const Period& days) const
{
    if (days.first == days.last) {
        return mFormats->LongDate(days.first);
    }
    const auto first = days.first.ToParts();
    const auto last = days.last.ToParts();
    const auto end = DayAndMonth(days.last) + " " + std::to_string(last.year);
    if (first.year != last.year) {
        return DayAndMonth(days.first) + " " + std::to_string(first.year) + RangeDash + end;
    }
    return (first.month == last.month ? std::to_string(first.day) : DayAndMonth(days.first)) + RangeDash + end;
}

std::string ActivityWords::WeekTitle(const Period& days)
{
    if (days.last != days.first.AddDays(DaysOfWeek - 1)) {
        return "";
    }
    // A week is that of its Thursday.
    constexpr int Thursday = 5;
    const auto thursday = days.first.AddDays((Thursday - days.first.Weekday() + DaysOfWeek) % DaysOfWeek);
    const auto newYear = Date::FromYearMonthDay(thursday.ToParts().year, 1, 1);
    return "Week " + std::to_string(DaysBetween(newYear, thursday) / DaysOfWeek + 1);
}

}
