#pragma once

#include "terminal/CommandOutline.h"

#include <string>
#include <vector>

namespace tempodial {

/// What a shell may offer as the value of an argument.
struct CompletionValues
{
    enum class Kind {
        /// The argument is an option without a value.
        None,
        /// Anything; nothing is offered.
        Text,
        Words,
        File,
        Folder,
        Projects,
        Activities
    };

    Kind kind = Kind::None;
    /// What to choose from, when it is one of several words.
    std::vector<std::string> words;

    /// What an argument takes, by what its help calls and says of it.
    static CompletionValues Of(const ArgumentOutline& argument);
    /// The word by which the scripts call a kind.
    static const char* NameOf(Kind kind);
};

}
