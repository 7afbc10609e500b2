#include "review/ActivityReader.h"

#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/Items.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

namespace tempodial {

namespace {

Activity ReadItem(const Ref<AppointmentItem>& item)
{
    const auto properties = item->UserProperties();
    const auto text = [&properties](const char* name) {
        const auto property = properties->Item(name);
        return property ? property->Value().ToText() : std::string();
    };
    return { .start = item->Start(),
        .end = item->End(),
        .duration = item->Duration(),
        .project = text("Project"),
        .type = text("Type"),
        .description = text("Description"),
        .people = text("People") };
}

}

std::vector<Activity> ActivitiesStartingIn(const Profile& profile, const Period& days)
{
    constexpr std::int64_t LastMinute = 24 * 60 - 1;
    const auto workLog = WorkLogOf(profile);
    if (!workLog) {
        return {};
    }
    const auto& formats = profile.Surroundings().formats;
    const auto items = workLog->Items()->Restrict("[Start] >= \"" + formats->Moment(days.first) + "\" and [Start] <= \""
        + formats->Moment(days.last.AddMinutes(LastMinute)) + "\"");
    items->Sort("[Start]", false);
    std::vector<Activity> activities;
    for (std::int32_t i = 1; i <= items->Count(); ++i) {
        if (const auto item = items->Item(i).As<AppointmentItem>(); item && item->MessageClass() == ActivityClass) {
            activities.push_back(ReadItem(item));
        }
    }
    return activities;
}

std::vector<Activity> ActivitiesTouching(const Profile& profile, const Period& days)
{
    return ActivitiesStartingIn(profile, { days.first.AddDays(-1), days.last });
}

}
