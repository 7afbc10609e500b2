#pragma once

#include "slots/Program.h"

#include <string>
#include <string_view>

namespace tempodial {

/// Where one is inside a program, as its title tells.
class PlaceRule
{
public:
    /// A title in the form in which the log has it, and the place that it is in.
    struct Placed
    {
        std::string text;
        std::string place;
    };

    /// Takes the cleaned title apart as the program's titles are made; `host` is the page's site, where it is known.
    static Placed Of(const Program& program, const std::string& title, const std::string& host);
};

}
