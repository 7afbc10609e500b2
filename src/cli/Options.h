#pragma once

#include "cli/TextLayout.h"
#include "session/ProfileOptions.h"
#include "terminal/Screen.h"

#include <string>

namespace tempodial {

/// The options of every command.
struct Options : ProfileOptions
{
    /// The answer is one JSON document.
    bool json = false;
    /// Neither progress nor a summary is shown.
    bool quiet = false;
    /// Where the answer is shown.
    Screen screen;
    /// How texts for people are laid out there.
    TextLayout layout;
    /// The command as it was typed, as the log of steps shows it.
    std::string command;
};

}
