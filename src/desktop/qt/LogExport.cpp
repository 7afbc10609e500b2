#include "desktop/qt/LogExport.h"

#include "desktop/ActivityTable.h"
#include "host/store/StoreItem.h"
#include "review/ActivityCalendar.h"
#include "review/ActivityReader.h"
#include "terminal/ItemJson.h"
#include "terminal/JsonListText.h"

#include <utility>

namespace tempodial {

LogExport::LogExport(const Profile& profile, Titles titles, std::vector<Activity> activities)
    : mProfile(profile)
    , mTitles(titles)
    , mActivities(std::move(activities))
{
}

std::string LogExport::In(Form form) const
{
    const ActivityTable table(mProfile.Surroundings().formats, mTitles, mActivities);
    switch (form) {
    case Form::Calendar:
        return Calendar();
    case Form::Fields:
        return Fields();
    case Form::Text:
        return table.Text();
    default:
        return table.Csv();
    }
}

std::string LogExport::Calendar() const
{
    std::vector<ActivityRecord> records;
    for (const auto& activity : mActivities) {
        auto record = ReadActivity(ItemNumbered(mProfile, activity.number));
        if (mTitles == Titles::Hidden) {
            record.subject = activity.type;
            for (auto* text : { &record.description, &record.people, &record.body }) {
                text->clear();
            }
        }
        records.push_back(std::move(record));
    }
    return ActivityCalendar(records);
}

std::string LogExport::Fields() const
{
    JsonListText items;
    for (const auto& activity : mActivities) {
        auto fields = ItemJson(activity.number, ItemNumbered(mProfile, activity.number));
        if (mTitles == Titles::Hidden) {
            fields.Set("subject", activity.type);
            fields.Set("body", "");
            fields.Set("billingInformation", "");
            fields.Set("properties", { { "Type", activity.type }, { "Project", ProjectNameOf(activity) } });
        }
        items.Append(fields);
    }
    return items.Take() + "\n";
}

}
