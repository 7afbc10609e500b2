#include "cli/CommandLine.h"

#include "base/MemoryShortage.h"
#include "cli/ReplyPrinter.h"
#include "cli/TypedCommand.h"
#include "terminal/Arguments.h"
#include "terminal/ProgramRun.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <sstream>

namespace tempodial {

namespace {

/// What is done when no command is named.
constexpr auto UsualCommand = "status";

/// Seconds to wait for a profile that another process holds.
constexpr std::int32_t UsualWait = 5;
constexpr std::int32_t LongestWait = 24 * 60 * 60;

constexpr auto ProgramDescription
    = "Turns what you do at your PC into a calendar of activities, each with the\n"
      "project it belongs to.\n"
      "\n"
      "A tracker writes down, in slots of five minutes, which window you work in.\n"
      "\"sync\" makes activities of that and gives each a project by your rules;\n"
      "\"list\" shows them; \"projects\" keeps the rules; \"report\" tells where the time\n"
      "went.\n";

constexpr auto ProgramFooter = "An example session, with an invented working life instead of a tracker:\n"
                               "  tempodial demo                    write three weeks of tracker files\n"
                               "  tempodial sync                    make activities of them\n"
                               "  tempodial list --from yesterday   look at them\n"
                               "  tempodial summary -7d             see which projects they belong to\n"
                               "  tempodial unassigned -7d          see what belongs to none\n"
                               "  tempodial projects set Team --add-subject notepad\n"
                               "                                    add a word to a project's rule\n"
                               "  tempodial apply Team              give it to the past seven days\n"
                               "  tempodial undo                    take that back\n"
                               "  tempodial report --by project --text\n"
                               "                                    see where the time of today went\n"
                               "\n"
                               "\"tempodial COMMAND --help\" tells more about a command.\n"
                               "\n"
                               "Exit status: 0 done; 1 not done, or not all of it; 2 unusable arguments; 3 the\n"
                               "profile is in use by another process; 130 interrupted.";

constexpr auto CommandFooter = "\"tempodial --help\" lists the options of every command, such as --profile and\n"
                               "--json.";

}

CommandLine::CommandLine(
    std::vector<std::unique_ptr<Command>> commands, std::ostream& out, const Screen& screen, std::ostream& error)
    : mCommands(std::move(commands))
    , mOut(out)
    , mScreen(screen)
    , mError(error)
    , mParser({ Name, ProgramDescription, ProgramFooter })
{
    DeclareOptions();
    for (const auto& command : mCommands) {
        const auto& about = command->About();
        auto arguments = mParser.AddCommand({ about.name, about.summary, about.details + "\n\n" + CommandFooter });
        command->Declare(arguments);
    }
}

void CommandLine::DeclareOptions()
{
    auto arguments = mParser.Arguments();
    mProfile.Declare(arguments);
    arguments.Optional(
        "--wait SECONDS", mWait, "How long to wait for a profile that another process holds;\ndefault 5, 0 not at all");
    arguments.Flag("--json", mJson, "Answer with one JSON document");
    arguments.Flag("--quiet", mQuiet, "No progress and no summary");
    arguments.Optional(
        "--color WHEN", mColor, "Colours: auto, always or never; default auto, on a\nterminal unless NO_COLOR is set");
    arguments.Flag("--wide", mIsWide, "Don't cut tables to the width of the terminal");
}

ExitStatus CommandLine::Run(const std::vector<std::string>& arguments) noexcept
{
    return RunProgram(Name, mError, [&] { return Execute(arguments); });
}

std::vector<CommandOutline> CommandLine::Outline() const
{
    auto outlines = mParser.Outline();
    for (auto& outline : outlines) {
        const auto found = std::find_if(mCommands.begin(), mCommands.end(),
            [&outline](const auto& command) { return command->About().name == outline.name; });
        if (found != mCommands.end()) {
            outline.details = (*found)->About().details;
        }
    }
    return outlines;
}

ExitStatus CommandLine::Execute(const std::vector<std::string>& arguments)
{
    if (std::ostringstream help; !mParser.Parse(arguments, help)) {
        Options options;
        options.screen = mScreen;
        return Print({ .text = help.str() }, options);
    }
    auto options = ReadOptions();
    options.command = TypedCommand(arguments);
    const auto reply = Chosen().Run(options);
    MemoryShortage::RequireNone();
    return Print(reply, options);
}

Options CommandLine::ReadOptions() const
{
    Options options { mProfile.Options(), mJson, mQuiet, mScreen, {} };
    options.layout.width = mScreen.isTerminal && !mIsWide ? std::optional(mScreen.columns) : std::nullopt;
    options.layout.hasColors = HasColors();
    options.wait = std::chrono::seconds(mWait ? ToCount("--wait", *mWait, 0, LongestWait) : UsualWait);
    options.warn = [this](const std::string& message) { Complain(mError, Name, message); };
    return options;
}

Command& CommandLine::Chosen() const
{
    auto name = mParser.ChosenCommand();
    if (name.empty()) {
        name = UsualCommand;
    }
    const auto found = std::find_if(
        mCommands.begin(), mCommands.end(), [&name](const auto& command) { return command->About().name == name; });
    if (found == mCommands.end()) {
        throw UsageError("no command is given: see \"tempodial --help\" for the commands");
    }
    return **found;
}

bool CommandLine::HasColors() const
{
    if (mColor != "auto" && mColor != "always" && mColor != "never") {
        throw UsageError("--color can't be " + InQuotes(mColor) + ": give auto, always or never");
    }
    return mColor == "always" || (mColor == "auto" && mScreen.hasColors);
}

ExitStatus CommandLine::Print(const Reply& reply, const Options& options)
{
    return ReplyPrinter(Name, mOut, mError).Print(reply, options);
}

}
