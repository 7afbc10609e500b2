#pragma once

#include <string_view>

namespace tempodial {

/// The fields of an activity that a list knows by itself; others are properties of the item.

inline constexpr std::string_view StartField = "Start";
inline constexpr std::string_view EndField = "End";
inline constexpr std::string_view SubjectField = "Subject";
inline constexpr std::string_view DurationField = "Duration";
inline constexpr std::string_view ProjectField = "Project";
inline constexpr std::string_view ApplicationField = "Type";
inline constexpr std::string_view DescriptionField = "Description";
inline constexpr std::string_view PeopleField = "People";
inline constexpr std::string_view KeywordField = "Keyword";

}
