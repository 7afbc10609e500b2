#include "workload/WorkLogFiller.h"

#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

#include <optional>
#include <stdexcept>

namespace tempodial {

namespace {

constexpr std::int64_t ItemMinutes = 5;
constexpr std::int64_t DaysOfCommit = 30;

}

WorkLogFiller::WorkLogFiller(const std::string& profile)
    : mProfile(profile, "en_US", std::nullopt)
{
}

void WorkLogFiller::Fill(Date last, std::int64_t days)
{
    auto& store = *mProfile.Mailbox()->Store();
    const auto workLog = WorkLogOf(mProfile);
    if (!workLog) {
        throw std::runtime_error("the profile has no work log yet");
    }
    const auto folder = store.RowOf(workLog);
    for (auto back = days; back > 0; back -= DaysOfCommit) {
        store.Database().Atomically([&] {
            for (auto day = back; day > 0 && day > back - DaysOfCommit; --day) {
                const auto midnight = last.AddDays(1 - day);
                Activities activities(static_cast<std::uint32_t>(DaysBetween(Date(), midnight)));
                for (std::int64_t item = 0; item < ItemsOfDay; ++item) {
                    store.Table().Insert(
                        folder, Item(activities, midnight.AddMinutes(item * ItemMinutes)), std::nullopt);
                }
            }
        });
    }
}

ItemData WorkLogFiller::Item(Activities& activities, Date start)
{
    const auto activity = activities.Next();
    const auto project = activity.project.empty() ? NoProject : activity.project;
    ItemData item;
    item.messageClass = ActivityClass;
    item.subject = (activity.project.empty() ? "" : "[" + project + "] ") + activity.type + ", " + activity.description;
    item.start = start;
    item.end = start.AddMinutes(ItemMinutes);
    item.mileage = project;
    item.billingInformation = activity.description;
    item.properties = { { "Type", PropertyType::Text, activity.type }, { "Day", PropertyType::DateTime, start.Day() },
        { "StartTime", PropertyType::Text, start.HourMinute() }, { "Project", PropertyType::Text, project },
        { "Description", PropertyType::Text, activity.description }, { "People", PropertyType::Text, activity.people },
        { "Keyword", PropertyType::Text, "<word or phrase to match an activity to this project>" },
        { "ApplyPast", PropertyType::YesNo, false } };
    return item;
}

}
