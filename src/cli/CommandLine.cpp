#include "cli/CommandLine.h"

#include "base/Text.h"
#include "session/ProductFacts.h"
#include "terminal/ArgumentParser.h"
#include "terminal/ProgramRun.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

namespace tempodial {

namespace {

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
                               "  tempodial projects set Riverside --subject riverside\n"
                               "                                    add a project with a rule\n"
                               "  tempodial apply Riverside         give it to the past seven days\n"
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
    std::vector<std::unique_ptr<Command>> commands, std::ostream& out, bool isTerminal, std::ostream& error)
    : mCommands(std::move(commands))
    , mOut(out)
    , mIsTerminal(isTerminal)
    , mError(error)
    , mApp(ProgramDescription, "tempodial")
{
    mApp.get_formatter()->label("SUBCOMMAND", "COMMAND");
    mApp.get_formatter()->label("Positionals", "Arguments");
    mApp.get_formatter()->label("TEXT", "");
    mApp.get_formatter()->label("REQUIRED", "");
    mApp.footer(ProgramFooter);
    mApp.require_subcommand(0, 1);
    DeclareOptions();
    for (const auto& command : mCommands) {
        DeclareCommand(*command);
    }
}

void CommandLine::DeclareOptions()
{
    mApp.set_help_flag("-h,--help", "Show this help, or that of a command");
    mApp.set_version_flag("--version", ProductVersion, "Show the version");
    mProfile.Declare(mApp);
    mApp.add_flag("--json", mJson, "Answer with one JSON document");
    mApp.add_flag("--quiet", mQuiet, "No progress and no summary");
}

void CommandLine::DeclareCommand(Command& command)
{
    auto* app = &mApp;
    for (const auto& word : Split(command.About().name, " ")) {
        const auto below = app->get_subcommands([&word](const CLI::App* sub) { return sub->get_name() == word; });
        app = below.empty() ? app->add_subcommand(word) : below.front();
    }
    app->description(command.About().summary);
    app->footer(command.About().details + "\n\n" + CommandFooter);
    app->group("Commands");
    app->fallthrough();
    app->get_parent()->require_subcommand(0, 1);
    command.Declare(*app);
    mCommandOfApp[app] = &command;
}

ExitStatus CommandLine::Run(const std::vector<std::string>& arguments) noexcept
{
    return RunProgram(mApp.get_name(), mError, [&] { return Execute(arguments); });
}

ExitStatus CommandLine::Execute(const std::vector<std::string>& arguments)
{
    if (!ParseArguments(mApp, arguments, mOut)) {
        return Print({}, {});
    }
    const auto options = ReadOptions();
    return Print(Chosen().Run(options), options);
}

Options CommandLine::ReadOptions() const
{
    return { mProfile.Options(), mJson, mQuiet };
}

Command& CommandLine::Chosen() const
{
    const auto found = mCommandOfApp.find(&ChosenApp(mApp));
    if (found == mCommandOfApp.end()) {
        throw UsageError("no command is given: see \"tempodial --help\" for the commands");
    }
    return *found->second;
}

void CommandLine::PrintText(const Reply& reply, bool isQuiet)
{
    if (mIsTerminal) {
        mOut << Harmless(Replace(reply.content, CrLf, "\n"));
    } else {
        mOut << reply.content;
    }
    mOut << Harmless(reply.text + (isQuiet ? "" : reply.summary));
}

ExitStatus CommandLine::Print(const Reply& reply, const Options& options)
{
    if (!options.json) {
        PrintText(reply, options.quiet);
    } else if (!reply.document.is_null()) {
        constexpr int Indentation = 2;
        mOut << reply.document.dump(Indentation, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << "\n";
    }
    mOut.flush();
    for (const auto& complaint : reply.complaints) {
        Complain(mError, mApp.get_name(), complaint);
    }
    if (!mOut) {
        Complain(
            mError, mApp.get_name(), "the answer couldn't be written: see to the disk or the program that reads it");
        return ExitStatus::NotDone;
    }
    return reply.status;
}

}
