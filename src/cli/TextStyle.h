#pragma once

#include <string>

namespace tempodial {

/// How a piece of text is drawn on a terminal with colours.
struct TextStyle
{
    /// The parameters of the terminal's sequence, such as "1" for bold; empty for none.
    std::string parameters;

    static TextStyle Heading() { return { "1" }; }

    /// The text drawn so.
    std::string Drawn(const std::string& text) const
    {
        return parameters.empty() || text.empty() ? text : "\x1b[" + parameters + "m" + text + "\x1b[0m";
    }
};

}
