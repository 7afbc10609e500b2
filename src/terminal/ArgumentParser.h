#pragma once

#include "terminal/ArgumentList.h"
#include "terminal/CommandOutline.h"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// Reads the arguments of a program and of its commands, and prints its help and version.
class ArgumentParser
{
public:
    /// What the help says of a program or of a command.
    struct Help
    {
        /// The program's name, or the words that choose the command.
        std::string name;
        /// What stands in front of the arguments.
        std::string description;
        /// What stands behind them.
        std::string footer;
    };

    explicit ArgumentParser(const Help& program);
    ~ArgumentParser();
    ArgumentParser(const ArgumentParser&) = delete;
    ArgumentParser& operator=(const ArgumentParser&) = delete;

    /// The program's own arguments, which may stand before and behind a command.
    ArgumentList Arguments() const;
    /// Adds a command, or one below another for a name of several words; gives its arguments.
    ArgumentList AddCommand(const Help& command) const;

    /// Reads arguments, the program's name left out. False when only help or the version was wanted, which is then
    /// printed to the stream. Fails with `UsageError`.
    bool Parse(const std::vector<std::string>& arguments, std::ostream& out) const;
    /// The name of the command that the arguments read chose, empty when they chose none.
    std::string ChosenCommand() const;

    /// What was declared: the program first, then the commands, each before those below it.
    std::vector<CommandOutline> Outline() const;

private:
    std::unique_ptr<CLI::App> mApp;
};

}
