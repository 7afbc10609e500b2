#pragma once

#include <string>

namespace tempodial {

/// What stands for a text that isn't known.
inline constexpr auto UnknownText = "None";

/// The subject of an activity without its project, by which rules find it: the application, and the description unless
/// that isn't known.
std::string ActivitySubject(const std::string& application, const std::string& description);

}
