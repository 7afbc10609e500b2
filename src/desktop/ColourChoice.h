#pragma once

#include "desktop/ColourBook.h"
#include "review/Activity.h"

#include <vector>

namespace tempodial {

/// By what activities are coloured, as a person has put it.
enum class ColourChoice { Automatic, Project, Application };

/// By what the shown activities are coloured: unless a person has put it otherwise, by application while less than a
/// quarter of their time has a project, since such a view would tell nothing.
Coloured ColouredBy(ColourChoice choice, const std::vector<Activity>& shown);

}
