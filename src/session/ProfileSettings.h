#pragma once

#include "session/Profile.h"
#include "session/ProfileOptions.h"

#include <string>

namespace tempodial {

/// What a person has set that the add-in doesn't know of, in values of the registry's own key.

/// The value that holds the day with which a week begins: `monday` to `sunday`, or `locale`.
inline constexpr auto WeekStartValue = "Week Start";
/// The value that holds who sends a timesheet.
inline constexpr auto AuthorValue = "Author";

/// The day with which a week begins, Sunday 1 to Saturday 7: as it is set in the profile that the options name, which
/// needn't be there, else as the locale has it. Fails with `ProfileError`.
int FirstDayOfWeek(const ProfileOptions& options);
/// Who sends a timesheet, empty when that isn't set.
std::string AuthorOf(const Profile& profile);

}
