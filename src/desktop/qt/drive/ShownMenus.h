#pragma once

#include "host/windows/HostCommandBars.h"

#include <string>
#include <vector>

namespace tempodial {

class MainWindow;

/// What the menus and buttons of a window show otherwise than the command bars have it, each a sentence. What the
/// desktop has of its own stands behind the model's entries.
std::vector<std::string> MenuDifferences(MainWindow& window, const HostCommandBars& bars);

}
