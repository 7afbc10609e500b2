#pragma once

#include "session/ProductFacts.h"
#include "session/Profile.h"
#include "session/ProfileOptions.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tempodial {

/// What a person has set that the add-in doesn't know of, in values of the registry's own key.

/// The value that holds the day with which a week begins: `monday` to `sunday`, or `locale`.
inline constexpr auto WeekStartValue = "Week Start";
/// The days as that value names them, from Sunday on.
inline constexpr std::array<std::string_view, 7> WeekDays { "sunday", "monday", "tuesday", "wednesday", "thursday",
    "friday", "saturday" };
/// The value that holds who sends a timesheet.
inline constexpr auto AuthorValue = "Author";
/// The value that holds where problem reports go.
inline constexpr auto SupportAddressValue = "Support Address";
/// The value that holds how many days the tracker's files are kept: a number from 1 on, or `forever`.
inline constexpr auto RetentionValue = "Retention";

/// How many days the tracker's files are kept, the one on which they were made included, when nothing is set.
inline constexpr std::int32_t UsualRetention = SavedDataDays + 1;
/// The most days that can be set.
inline constexpr std::int32_t LongestRetention = 36500;
/// What is set in their place for files that are kept for ever.
inline constexpr auto RetentionForever = "forever";

/// The day with which a week begins, Sunday 1 to Saturday 7: as it is set in the profile that the options name, which
/// needn't be there, else as the locale has it. Fails with `ProfileError`.
int FirstDayOfWeek(const ProfileOptions& options);
/// Who sends a timesheet, empty when that isn't set.
std::string AuthorOf(const Profile& profile);
/// Where problem reports go, empty when that isn't set.
std::string SupportAddressOf(const Profile& profile);
/// How many days the tracker's files are kept, nothing when for ever.
std::optional<std::int32_t> RetentionOf(const Profile& profile);

}
