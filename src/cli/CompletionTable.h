#pragma once

#include "cli/CompletionValues.h"

#include <string>
#include <vector>

namespace tempodial {

/// What may stand behind a command, in the order in which shells look it up.
struct CompletionTable
{
    /// A word and what is said of it.
    struct Word
    {
        std::string text;
        std::string help;
    };

    /// What a command takes.
    struct Entry
    {
        /// The words that choose the command, empty for the program itself.
        std::string command;
        /// The words that choose a command below it.
        std::vector<Word> commands;
        /// Its own options.
        std::vector<Word> options;
    };

    /// An argument that takes a value.
    struct Taking
    {
        /// The command, a colon, and the option or the place; with wildcards.
        std::string pattern;
        CompletionValues values;
    };

    std::vector<Entry> entries;
    /// The options of every command.
    std::vector<Word> options;
    /// The first that fits counts.
    std::vector<Taking> takings;

    explicit CompletionTable(const std::vector<CommandOutline>& commands);
};

}
