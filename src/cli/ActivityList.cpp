#include "cli/ActivityList.h"

#include "base/Number.h"
#include "base/Text.h"
#include "cli/ProjectStyle.h"
#include "host/store/StoreItem.h"
#include "platform/objectmodel/Items.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

#include <utility>

namespace tempodial {

namespace {

std::string DurationText(std::int64_t minutes)
{
    constexpr std::int64_t MinutesOfHour = 60;
    const auto rest = static_cast<std::int32_t>(minutes % MinutesOfHour);
    if (minutes < MinutesOfHour) {
        return std::to_string(rest) + " min";
    }
    return std::to_string(minutes / MinutesOfHour) + " h " + Padded(rest, 2) + " min";
}

}

std::string ProjectOf(const Ref<AppointmentItem>& activity)
{
    const auto property = activity->UserProperties()->Item("Project");
    return property ? property->Value().ToText() : "";
}

std::int64_t NumberOf(const Ref<AppointmentItem>& activity)
{
    return activity.As<StoreItem>()->Number();
}

std::vector<Ref<AppointmentItem>> ActivitiesIn(const Ref<MAPIFolder>& workLog, const Ref<LocaleFormats>& formats,
    const Period& days, const std::optional<std::string>& project)
{
    constexpr std::int64_t LastMinute = 24 * 60 - 1;
    const auto items = workLog->Items()->Restrict("[Start] >= \"" + formats->Moment(days.first) + "\" and [Start] <= \""
        + formats->Moment(days.last.AddMinutes(LastMinute)) + "\"");
    items->Sort("[Start]", false);
    std::vector<Ref<AppointmentItem>> activities;
    const auto count = items->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        auto item = items->Item(i).As<AppointmentItem>();
        if (item && item->MessageClass() == ActivityClass
            && (!project || EqualIgnoringCase(ProjectOf(item), *project))) {
            activities.push_back(std::move(item));
        }
    }
    return activities;
}

std::vector<Ref<AppointmentItem>> ActivitiesOf(
    const Profile& profile, const Period& days, const std::optional<std::string>& project)
{
    const auto workLog = WorkLogOf(profile);
    return workLog ? ActivitiesIn(workLog, profile.Surroundings().formats, days, project)
                   : std::vector<Ref<AppointmentItem>>();
}

ShownText ActivityTable(const std::vector<Ref<AppointmentItem>>& activities, const Ref<LocaleFormats>& formats,
    const Period& days, bool hasTotals, Numbers numbers)
{
    using enum TextTable::Side;
    const bool hasHeadings = days.first != days.last;
    ShownText text;
    for (std::size_t i = 0; i < activities.size();) {
        const auto day = activities[i]->Start().Day();
        std::int64_t minutes = 0;
        TextTable table({ Left, Right, Left });
        for (; i < activities.size() && activities[i]->Start().Day() == day; ++i) {
            const auto& item = activities[i];
            const auto duration = item->Duration();
            const auto number = numbers == Numbers::Shown ? "@" + std::to_string(NumberOf(item)) + " " : "";
            table.AddStyled({ { number + item->Start().HourMinute() + "–" + item->End().HourMinute(), {} },
                { DurationText(duration), {} }, { item->Subject(), ProjectStyle(ProjectOf(item)) } });
            minutes += duration;
        }
        if (hasHeadings) {
            text += text.IsEmpty() ? "" : "\n";
            text.AddHeading(formats->LongDate(day) + (hasTotals ? "  " + DurationText(minutes) : ""));
        }
        text += std::move(table);
    }
    return text;
}

std::string ActivityTotal(const std::vector<Ref<AppointmentItem>>& activities)
{
    if (activities.empty()) {
        return "No activities.\n";
    }
    std::int64_t minutes = 0;
    for (const auto& item : activities) {
        minutes += item->Duration();
    }
    const auto count = activities.size();
    return "\n" + std::to_string(count) + (count == 1 ? " activity, " : " activities, ") + DurationText(minutes) + "\n";
}

}
