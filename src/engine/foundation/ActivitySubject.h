#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// What stands for a text that isn't known.
inline constexpr auto UnknownText = "None";

/// The subject of an activity without its project, by which rules find it: the application, and the description unless
/// that isn't known.
std::string ActivitySubject(const std::string& application, const std::string& description);

/// A description without the people that stand behind it.
std::string WithoutPeople(const std::string& description, const std::string& people);
/// What a rule is offered of a description without people, of an application, and of people, one by one.
std::string DescriptionKeyword(const std::string& description);
std::string ApplicationKeyword(const std::string& application);
std::vector<std::string> PeopleKeywords(const std::string& people);

}
