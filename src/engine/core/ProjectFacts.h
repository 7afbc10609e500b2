#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// What a program knows of projects without starting the add-in.

/// The registry value that holds the names of the projects.
std::string ProjectListValue();
/// The names in a text of that value.
std::vector<std::string> ListedProjects(const std::string& value);
/// The terms of a rule for subjects as they are read, without the blanks around them; empty ones are left out.
std::vector<std::string> SubjectTerms(const std::string& rule);

}
