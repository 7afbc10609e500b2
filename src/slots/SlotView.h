#pragma once

#include "slots/Program.h"

#include <string>

namespace tempodial {

/// What was in front, in the words that the log may have.
struct SlotView
{
    /// The program's name.
    std::string program;
    ProgramSort sort = ProgramSort::Other;
    /// The tracker's index of the program; one of a document or a mail only when there is one.
    int kind = 0;
    /// The title, cleaned; empty when there is nothing to say.
    std::string text;
    /// Where that is inside the program.
    std::string place;
    /// The project that a rule gives, empty when none does.
    std::string project;

    bool operator==(const SlotView&) const = default;
};

/// A view with the seconds that it was in front.
struct ViewTime
{
    SlotView view;
    std::int64_t seconds;
};

}
