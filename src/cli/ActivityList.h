#pragma once

#include "cli/ShownText.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "platform/system/LocaleFormats.h"
#include "review/Period.h"
#include "session/Profile.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The project of an activity, empty when it has none.
std::string ProjectOf(const Ref<AppointmentItem>& activity);

/// The number by which people name an activity.
std::int64_t NumberOf(const Ref<AppointmentItem>& activity);

/// The activities of a work log that start in the range, in order of start; with a project only those of that project,
/// whatever the case of its letters. Fails as the store does.
std::vector<Ref<AppointmentItem>> ActivitiesIn(const Ref<MAPIFolder>& workLog, const Ref<LocaleFormats>& formats,
    const Period& days, const std::optional<std::string>& project);

/// The same of the work log of a profile; none when there is no work log.
std::vector<Ref<AppointmentItem>> ActivitiesOf(
    const Profile& profile, const Period& days, const std::optional<std::string>& project);

/// Whether a table shows the numbers of the activities.
enum class Numbers { Hidden, Shown };

/// The activities as a table for people, under a heading for each day when the range has several, which may tell its
/// total.
ShownText ActivityTable(const std::vector<Ref<AppointmentItem>>& activities, const Ref<LocaleFormats>& formats,
    const Period& days, bool hasTotals, Numbers numbers = Numbers::Hidden);

/// What stands below the table: how many there are, and how long they took in all.
std::string ActivityTotal(const std::vector<Ref<AppointmentItem>>& activities);

}
