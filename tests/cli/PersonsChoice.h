#pragma once

#include "base/Date.h"

#include <string>

namespace tempodial {

/// Has a person choose the project of the activity at a moment, in a profile that nobody holds.
void ChooseProject(const std::string& profile, Date moment, const std::string& project);

}
