#pragma once

#include "cli/Options.h"
#include "cli/Reply.h"
#include "terminal/ArgumentList.h"

#include <string>
#include <utility>

namespace tempodial {

/// One command of the program. It stands in a file of its own, and in the list of Commands.cpp.
class Command
{
public:
    /// What the help says of a command.
    struct Description
    {
        /// The word that chooses it, or several for a command below another, such as "projects set".
        std::string name;
        /// What it does, in one line.
        std::string summary;
        /// What else a user wants to know, with examples: lines without a line feed behind the last.
        std::string details;
    };

    explicit Command(Description description)
        : mDescription(std::move(description))
    {
    }
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// What the help says of it.
    const Description& About() const { return mDescription; }
    /// Adds its own arguments, which are then kept here as they are parsed.
    virtual void Declare(ArgumentList& arguments) = 0;
    /// Does the work with the arguments parsed. Fails with `UsageError`, `CommandError`, `ProfileError` or `Failure`.
    virtual Reply Run(const Options& options) = 0;

private:
    Description mDescription;
};

}
