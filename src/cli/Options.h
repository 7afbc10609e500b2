#pragma once

#include "session/ProfileOptions.h"

namespace tempodial {

/// The options of every command.
struct Options : ProfileOptions
{
    /// The answer is one JSON document.
    bool json = false;
    /// Neither progress nor a summary is shown.
    bool quiet = false;
};

}
