#include "desktop/DesktopStrings.h"

#include "base/Number.h"

#include <algorithm>
#include <array>

namespace tempodial {

std::string EmptyText(EmptyView reason)
{
    switch (reason) {
    case EmptyView::NothingRecorded:
        return "Nothing is recorded yet: start your tracker, or add an activity by a double-click.";
    case EmptyView::NothingInPeriod:
        return "Nothing was recorded in these days.";
    case EmptyView::NothingInLog:
        return "No activity of the whole log matches: search for fewer words, or press Escape to show these days.";
    default:
        return "No activity of these days matches: press Enter to search all, or Escape to show all of these days.";
    }
}

std::string LengthText(std::int64_t minutes)
{
    constexpr std::int64_t Hour = 60;
    const auto hours = minutes / Hour;
    const auto rest = minutes % Hour;
    if (hours == 0) {
        return std::to_string(rest) + " min";
    }
    return std::to_string(hours) + " h" + (rest == 0 ? "" : " " + Padded(static_cast<std::int32_t>(rest), 2));
}

std::string ActivitiesText(std::int64_t count)
{
    return std::to_string(count) + (count == 1 ? " activity" : " activities");
}

std::string PassedOverText(std::int64_t count)
{
    return ActivitiesText(count)
        + (count == 1 ? " was passed over since it is open: set its project in its own window."
                      : " were passed over since they are open: set their projects in their own windows.");
}

std::string GapText(std::int64_t minutes)
{
    return LengthText(minutes) + " without a record";
}

std::string ShortOnesText(std::int64_t count, const std::vector<std::string>& applications)
{
    auto text = std::to_string(count) + " short";
    std::string separator = PartSeparator;
    for (auto application = applications.begin(); application != applications.end(); ++application) {
        if (!application->empty() && std::find(applications.begin(), application, *application) == application) {
            text += separator + *application;
            separator = ", ";
        }
    }
    return text;
}

std::string GroupText(const std::string& name, std::int64_t count, std::int64_t minutes)
{
    return name + PartSeparator + ActivitiesText(count) + PartSeparator + LengthText(minutes);
}

std::string WeekdayText(int weekday)
{
    constexpr std::array names { "Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat" };
    return names[static_cast<std::size_t>(weekday - 1)];
}

}
