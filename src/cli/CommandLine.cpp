#include "cli/CommandLine.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "cli/Arguments.h"
#include "cli/ProductFacts.h"
#include "cli/TerminalText.h"
#include "cli/UsageError.h"
#include "host/profile/ProfileError.h"
#include "host/system/IcuLocaleFormats.h"
#include "host/system/TextEncoding.h"

#include <algorithm>
#include <exception>

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

/// The arguments as the parser wants them: it takes "--option=" for an option whose value is yet to come.
std::vector<std::string> Prepared(const std::vector<std::string>& arguments)
{
    std::vector<std::string> prepared;
    for (const auto& argument : arguments) {
        if (!IsUtf8(argument)) {
            throw UsageError("the argument \"" + argument + "\" isn't valid UTF-8: give it in that encoding");
        }
        const bool endsEmpty = argument.starts_with("--") && argument.find('=') == argument.size() - 1;
        if (endsEmpty) {
            prepared.push_back(argument.substr(0, argument.size() - 1));
            prepared.emplace_back();
        } else {
            prepared.push_back(argument);
        }
    }
    return prepared;
}

/// The words that choose a command, the program's name first.
std::string Words(const CLI::App& app)
{
    const auto* parent = app.get_parent();
    return (parent ? Words(*parent) + " " : "") + app.get_name();
}

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
    mApp.add_option("--profile", mProfile,
            "The folder that holds all that belongs to you; default\nTEMPODIAL_PROFILE, else ~/.local/share/tempodial")
        ->option_text("DIR");
    mApp.add_option("--locale", mLocale, "The locale of dates and names, such as en_US; default\nfrom the environment")
        ->option_text("NAME");
    mApp.add_option("--now", mNow, "Run as if it were this moment; the clock goes on from there")
        ->option_text("YYYY-MM-DDTHH:MM:SS");
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
    try {
        return Execute(arguments);
    } catch (const UsageError& error) {
        Complain(error.what());
        return ExitStatus::Usage;
    } catch (const ProfileInUse& error) {
        Complain(error.what());
        return ExitStatus::ProfileInUse;
    } catch (const Failure& failure) {
        Complain(failure.Description() + ": see to the profile's folder and its disk");
    } catch (const std::bad_alloc&) {
        Complain("there isn't enough memory: close other programs and run the command again");
    } catch (const std::exception& error) {
        Complain(error.what());
    }
    return ExitStatus::NotDone;
}

ExitStatus CommandLine::Execute(const std::vector<std::string>& arguments)
{
    if (!Parse(arguments)) {
        return Print({}, { .quiet = true });
    }
    const auto options = ReadOptions();
    return Print(Chosen().Run(options), options);
}

bool CommandLine::Parse(const std::vector<std::string>& arguments)
{
    auto words = Prepared(arguments);
    std::reverse(words.begin(), words.end());
    try {
        mApp.parse(std::move(words));
        return true;
    } catch (const CLI::CallForVersion&) {
        mOut << "tempodial " << ProductVersion << "\n";
    } catch (const CLI::Success&) {
        mOut << mApp.help();
    } catch (const CLI::ExtrasError&) {
        throw UsageError(UnexpectedArgument());
    } catch (const CLI::ArgumentMismatch& error) {
        const std::string text = error.what();
        throw UsageError(
            text.substr(0, text.find(':')) + " needs exactly one value: see \"" + Words(ChosenApp()) + " --help\"");
    } catch (const CLI::ParseError& error) {
        throw UsageError(std::string(error.what()) + ": see \"" + Words(ChosenApp()) + " --help\"");
    }
    return false;
}

Options CommandLine::ReadOptions() const
{
    Options options { .profile = mProfile, .locale = mLocale, .json = mJson, .quiet = mQuiet };
    if (mProfile && mProfile->empty()) {
        throw UsageError("--profile names no folder: give the path of one");
    }
    if (mLocale && !IcuLocaleFormats::IsKnown(*mLocale)) {
        throw UsageError("there is no locale \"" + *mLocale + "\": give one such as en_US or de_DE");
    }
    if (mNow) {
        options.now = ToMomentWithSeconds("--now", *mNow);
    }
    return options;
}

const CLI::App& CommandLine::ChosenApp() const
{
    const CLI::App* app = &mApp;
    while (!app->get_subcommands().empty()) {
        app = app->get_subcommands().front();
    }
    return *app;
}

Command& CommandLine::Chosen() const
{
    const auto found = mCommandOfApp.find(&ChosenApp());
    if (found == mCommandOfApp.end()) {
        throw UsageError("no command is given: see \"tempodial --help\" for the commands");
    }
    return *found->second;
}

std::string CommandLine::UnexpectedArgument() const
{
    const auto extras = mApp.remaining(true);
    const auto argument = extras.empty() ? std::string() : extras.front();
    if (!argument.starts_with("-") && ChosenApp().get_parent() == nullptr) {
        return "there is no command \"" + argument + R"(": see "tempodial --help" for the commands)";
    }
    return "\"" + argument + "\" isn't expected here: see \"" + Words(ChosenApp()) + " --help\"";
}

void CommandLine::PrintText(const Reply& reply, bool isQuiet)
{
    mOut << (mIsTerminal ? Harmless(Replace(reply.content, CrLf, "\n")) : reply.content)
         << Harmless(reply.text + (isQuiet ? "" : reply.summary));
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
        Complain(complaint);
    }
    if (!mOut) {
        Complain("the answer couldn't be written: see to the disk or the program that reads it");
        return ExitStatus::NotDone;
    }
    return reply.status;
}

void CommandLine::Complain(const std::string& message)
{
    mError << "tempodial: " << HarmlessLine(message) << "\n";
    mError.flush();
}

}
