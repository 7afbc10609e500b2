#pragma once

#include "cli/TextStyle.h"

#include <string>

namespace tempodial {

/// How what belongs to a project is drawn: in a colour that is the same at any time, whatever the case of the name's
/// letters, and can be read on light and on dark ground; dim for an empty name and No Project.
TextStyle ProjectStyle(const std::string& project);

}
