#include "review/ActivityReader.h"

#include "host/store/ActivityRows.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreItem.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

#include <algorithm>
#include <span>
#include <utility>

namespace tempodial {

namespace {

/// So many items are read by one query, which takes them as they are stored, with all their texts.
constexpr std::size_t ReadTogether = 500;

std::optional<ActivityRows> RowsOf(const Profile& profile)
{
    const auto workLog = WorkLogOf(profile);
    return workLog ? std::optional(ActivityRows(profile.Mailbox(), workLog, ActivityClass)) : std::nullopt;
}

}

std::vector<Activity> ActivitiesStartingIn(const Profile& profile, const Period& days)
{
    const auto rows = RowsOf(profile);
    return rows ? rows->StartingIn(days.first, days.last.AddDays(1)) : std::vector<Activity>();
}

ActivityStream EachStartingIn(const Profile& profile, const Period& days)
{
    return [&profile, days](const std::function<void(const Activity&)>& take) {
        if (const auto rows = RowsOf(profile)) {
            rows->EachStartingIn(days.first, days.last.AddDays(1), take);
        }
    };
}

std::vector<Activity> ActivitiesTouching(const Profile& profile, const Period& days)
{
    const auto rows = RowsOf(profile);
    return rows ? rows->Overlapping(days.first, days.last.AddDays(1)) : std::vector<Activity>();
}

std::optional<Date> LastStartBefore(const Profile& profile, Date moment)
{
    const auto rows = RowsOf(profile);
    return rows ? rows->LastStartBefore(moment) : std::nullopt;
}

std::optional<Activity> ActivityNumbered(const Profile& profile, std::int64_t number)
{
    const auto rows = RowsOf(profile);
    return rows ? rows->Numbered(number) : std::nullopt;
}

void EachNumbered(const Profile& profile, const std::vector<std::int64_t>& numbers,
    const std::function<bool(Activity& activity)>& take)
{
    if (const auto rows = RowsOf(profile)) {
        for (const auto number : numbers) {
            if (auto activity = rows->Numbered(number); activity && !take(*activity)) {
                return;
            }
        }
    }
}

std::optional<Activity> ActivityAt(const Profile& profile, Date moment)
{
    const auto rows = RowsOf(profile);
    auto found = rows ? rows->Overlapping(moment, moment.AddSeconds(1)) : std::vector<Activity>();
    return found.empty() ? std::nullopt : std::optional(std::move(found.back()));
}

std::string SubjectNumbered(const Profile& profile, std::int64_t number)
{
    return ActivityNumbered(profile, number) ? ItemNumbered(profile, number)->Subject() : std::string();
}

Ref<StoreItem> ItemNumbered(const Profile& profile, std::int64_t number)
{
    return profile.Mailbox()->Store()->Item(number);
}

std::vector<Ref<StoreItem>> ItemsNumbered(const Profile& profile, const std::vector<std::int64_t>& numbers)
{
    std::vector<Ref<StoreItem>> items;
    const auto workLog = WorkLogOf(profile);
    if (!workLog) {
        return items;
    }
    const auto store = profile.Mailbox()->Store();
    const auto folder = store->RowOf(workLog);
    items.reserve(numbers.size());
    const std::span<const std::int64_t> all(numbers);
    for (std::size_t begin = 0; begin < all.size(); begin += ReadTogether) {
        for (auto& item : store->Table().Load(all.subspan(begin, std::min(ReadTogether, all.size() - begin)))) {
            if (item && item->folder == folder && item->data.messageClass == ActivityClass) {
                items.push_back(store->Share(std::move(*item)));
            }
        }
    }
    return items;
}

}
