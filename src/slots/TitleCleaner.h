#pragma once

#include "slots/Program.h"

#include <string>
#include <string_view>

namespace tempodial {

/// Takes out of a window's title what says nothing of the work in it, so that the same work has the same title.
class TitleCleaner
{
public:
    /// A title with nothing but its words.
    struct Cleaned
    {
        std::string text;
        /// The program's name as it stood at the title's end, empty when it didn't.
        std::string suffix;
        /// True when the title is one of windows that stand for nothing.
        bool isNothing = false;
    };

    /// Takes away, in this order: what isn't plain text, marks of change, spinners and counters, the program's name at
    /// the end, and query and fragment of addresses. The text is as long as it comes.
    static Cleaned Clean(std::string_view title, const Program& program);
};

}
