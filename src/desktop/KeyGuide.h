#pragma once

#include <vector>

namespace tempodial {

/// What keys do in the program's windows.
struct KeyGuideLine
{
    /// Where they do it.
    const char* place;
    const char* keys;
    const char* what;
};

/// All of them in the order in which they are shown, those of a place one behind the other.
const std::vector<KeyGuideLine>& KeyGuide();

}
