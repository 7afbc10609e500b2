#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// Where a command of a window is: the name of a bar, and the captions that lead to it, from one on the bar through the
/// menus below.
struct CommandPath
{
    std::string bar;
    std::vector<std::string> captions;
};

}
