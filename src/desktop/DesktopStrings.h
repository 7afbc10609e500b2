#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// The words of the desktop program itself; what the product says is the product's.

inline constexpr auto YesText = "Yes";
inline constexpr auto NoText = "No";
/// Between parts of a line, and between two times.
inline constexpr auto PartSeparator = " · ";
inline constexpr auto RangeDash = " – ";

/// What the bar says while hardly anything has a project, and the step that helps.
inline constexpr auto NoProjectsYet = "No activity has a project yet.";
inline constexpr auto FewProjectsYet = "Most of these days has no project yet.";
inline constexpr auto NoProjectsYetHelp = "Sort out the largest ones and Tempodial assigns the rest by rules.";
/// What is said while the end of an activity is dragged that isn't final.
inline constexpr auto MayGrowText = "The tracker may still make this activity longer; the next import will then begin "
                                    "a new one.";

/// What is said of an activity whose end isn't final.
inline constexpr auto NotFinalText = "may still grow";

/// Why a view is empty.
enum class EmptyView { NothingRecorded, NothingInPeriod, NothingFound, NothingInLog };

/// The sentence that stands in an empty view.
std::string EmptyText(EmptyView reason);
/// A length of time, such as 45 min, 7 h, 7 h 30.
std::string LengthText(std::int64_t minutes);
/// A number of things, such as 1 activity, 3 activities.
std::string ActivitiesText(std::int64_t count);
/// What is said of activities that got no project since they are open, and what to do.
std::string PassedOverText(std::int64_t count);
/// What stands in a gap.
std::string GapText(std::int64_t minutes);
/// What stands beside several stripes; each application is named once.
std::string ShortOnesText(std::int64_t count, const std::vector<std::string>& applications);
/// The heading of a group in a list.
std::string GroupText(const std::string& name, std::int64_t count, std::int64_t minutes);
/// The day of the week, Sunday 1 to Saturday 7, in three letters.
std::string WeekdayText(int weekday);

}
