#pragma once

#include "cli/Command.h"
#include "terminal/ArgumentParser.h"
#include "terminal/ExitStatus.h"
#include "terminal/ProfileArguments.h"
#include "terminal/Screen.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// The command line: reads the arguments, runs the command that they name, and prints its answer.
class CommandLine
{
public:
    static constexpr auto Name = "tempodial";

    /// Prints answers to the first stream, which that screen is behind, and what went wrong to the second.
    CommandLine(
        std::vector<std::unique_ptr<Command>> commands, std::ostream& out, const Screen& screen, std::ostream& error);

    /// Does what the arguments, without the program's name, ask for. Fails never.
    ExitStatus Run(const std::vector<std::string>& arguments) noexcept;
    /// The program and its commands with their arguments.
    std::vector<CommandOutline> Outline() const;

private:
    void DeclareOptions();
    ExitStatus Execute(const std::vector<std::string>& arguments);
    Options ReadOptions() const;
    Command& Chosen() const;
    bool HasColors() const;
    ExitStatus Print(const Reply& reply, const Options& options);

    std::vector<std::unique_ptr<Command>> mCommands;
    std::ostream& mOut;
    Screen mScreen;
    std::ostream& mError;
    ArgumentParser mParser;
    ProfileArguments mProfile;
    std::optional<std::string> mWait;
    bool mJson = false;
    bool mQuiet = false;
    std::string mColor = "auto";
    bool mIsWide = false;
};

}
