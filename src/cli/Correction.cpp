#include "cli/Correction.h"

#include "cli/ActivityList.h"
#include "cli/CommandError.h"
#include "review/ActivityReader.h"
#include "terminal/Arguments.h"
#include "terminal/ItemJson.h"

#include <algorithm>

namespace tempodial {

std::vector<std::int64_t> Correction::Numbers(const std::vector<std::string>& arguments)
{
    std::vector<std::int64_t> numbers;
    for (const auto& argument : arguments) {
        const auto number = ToActivityNumber(argument);
        if (std::find(numbers.begin(), numbers.end(), number) == numbers.end()) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

std::vector<Ref<StoreItem>> Correction::Activities(const std::vector<std::int64_t>& numbers) const
{
    std::vector<Ref<StoreItem>> activities;
    for (const auto number : numbers) {
        if (!ActivityNumbered(mRun.Profile(), number)) {
            throw CommandError("there is no activity @" + std::to_string(number)
                + ": see \"tempodial list --ids\" for the numbers of a day");
        }
        activities.push_back(ItemNumbered(mRun.Profile(), number));
    }
    return activities;
}

ActivityContent Correction::ContentOf(const Ref<StoreItem>& activity) const
{
    const auto text = [&](const char* name) { return AddIn().GetAttribute(name, activity).ToText(); };
    return { .project = text("Project"),
        .application = text("Type"),
        .description = text("Description"),
        .people = text("People"),
        .start = activity->Start(),
        .end = activity->End() };
}

void Correction::Write(const Ref<StoreItem>& activity, const ActivityContent& content, const std::string& body) const
{
    AddIn().UpdateCalendarItem(activity, content.project, content.description, content.application, content.people,
        MinutesBetween(content.start, content.end), content.start, content.end, body, false, true);
}

Ref<StoreItem> Correction::Make(const ActivityContent& content) const
{
    return AddIn()
        .CreateCalendarItem(content.project, content.description, content.application, content.people,
            MinutesBetween(content.start, content.end), content.start, content.end, "", false)
        .As<StoreItem>();
}

void Correction::Choosing(bool isPerson, const std::function<void()>& work) const
{
    mRun.Profile().Mailbox()->ChoosingProjects(isPerson ? ProjectChoice::Person : ProjectChoice::Nobody, work);
}

void Correction::WarnIfTooLong(const ActivityContent& content, Reply& reply)
{
    constexpr int MinutesOfAnHour = 60;
    constexpr int MostHours = 12;
    const auto hours = MinutesBetween(content.start, content.end) / MinutesOfAnHour;
    if (content.start.Day() != content.end.Day() && hours >= MostHours) {
        reply.warnings.push_back("the activity lasts " + std::to_string(hours) + " hours, from "
            + IsoMoment(content.start) + " to " + IsoMoment(content.end)
            + ": if that is wrong, \"tempodial undo\" takes it back");
    }
}

Reply Correction::Concluded(const std::vector<Ref<StoreItem>>& activities, Reply reply)
{
    reply.document = JsonValue::Array();
    std::vector<Ref<AppointmentItem>> listed;
    for (const auto& activity : activities) {
        if (activity) {
            reply.document.Append(ItemJson(activity->Number(), activity));
            listed.emplace_back(activity);
        }
    }
    reply.text = ActivityTable(listed, mRun.Host().formats, {}, false, tempodial::Numbers::Shown);
    return mRun.Concluded(std::move(reply));
}

}
