#pragma once

#include "review/Activity.h"
#include "review/Period.h"
#include "session/Profile.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

class StoreItem;

/// Reads activities of a profile's work log, as rows and without changing anything; there are none when there is no
/// work log. The lists are in order of start. Every function fails as the store does.

/// Those that start in a span of days.
std::vector<Activity> ActivitiesStartingIn(const Profile& profile, const Period& days);
/// The same, one by one, which takes no room however many they are. The profile must live as long as this.
ActivityStream EachStartingIn(const Profile& profile, const Period& days);
/// Those that have some time in common with the span, wherever they start.
std::vector<Activity> ActivitiesTouching(const Profile& profile, const Period& days);
/// When the last one before a moment starts.
std::optional<Date> LastStartBefore(const Profile& profile, Date moment);
/// The one of that number.
std::optional<Activity> ActivityNumbered(const Profile& profile, std::int64_t number);
/// Reads those of those numbers in that order, without the ones that are gone, until one isn't taken.
void EachNumbered(const Profile& profile, const std::vector<std::int64_t>& numbers,
    const std::function<bool(Activity& activity)>& take);
/// The one during which a moment is; of several the one that starts last.
std::optional<Activity> ActivityAt(const Profile& profile, Date moment);
/// The subject of the one of that number as other programs show it, with its project in brackets; empty when it is
/// gone.
std::string SubjectNumbered(const Profile& profile, std::int64_t number);
/// The item of an activity of that number, to work on; fails (-2147221233) when it is gone.
Ref<StoreItem> ItemNumbered(const Profile& profile, std::int64_t number);
/// The items of the activities of those numbers in that order, to work on, without the ones that are gone.
std::vector<Ref<StoreItem>> ItemsNumbered(const Profile& profile, const std::vector<std::int64_t>& numbers);

}
