#include "terminal/ArgumentParser.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "session/ProductFacts.h"
#include "terminal/NearestName.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace tempodial {

namespace {

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

/// The command that the arguments read chose, the program itself when they chose none.
const CLI::App& ChosenApp(const CLI::App& app)
{
    const auto* chosen = &app;
    while (!chosen->get_subcommands().empty()) {
        chosen = chosen->get_subcommands().front();
    }
    return *chosen;
}

/// The words that choose a command, the program's name first.
std::string Words(const CLI::App& app)
{
    const auto* parent = app.get_parent();
    return (parent ? Words(*parent) + " " : "") + app.get_name();
}

std::string SeeHelp(const CLI::App& app)
{
    return "see \"" + Words(ChosenApp(app)) + " --help\"";
}

/// The first argument that nothing was declared for, empty when there is none.
std::string FirstExtra(const CLI::App& app)
{
    const auto extras = app.remaining(true);
    return extras.empty() ? "" : extras.front();
}

bool IsOption(const std::string& argument)
{
    return argument.starts_with("-");
}

/// The names of the commands below another, or of the program's own.
std::vector<std::string> CommandNames(const CLI::App& app)
{
    std::vector<std::string> names;
    for (const auto* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        names.push_back(command->get_name());
    }
    return names;
}

/// The options of a command and of all above it.
std::vector<std::string> OptionNames(const CLI::App& app)
{
    auto names = app.get_parent() ? OptionNames(*app.get_parent()) : std::vector<std::string>();
    for (const auto* option : app.get_options()) {
        for (const auto& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    return names;
}

std::string UnexpectedArgument(const CLI::App& app)
{
    const auto argument = FirstExtra(app);
    const auto& chosen = ChosenApp(app);
    if (IsOption(argument)) {
        const auto name = argument.substr(0, argument.find('='));
        return InQuotes(argument) + " isn't expected here" + NearestAdvice(name, OptionNames(chosen), SeeHelp(app));
    }
    const auto commands = CommandNames(chosen);
    if (!commands.empty() && chosen.get_parent() == nullptr) {
        return "there is no command " + InQuotes(argument)
            + NearestAdvice(argument, commands, SeeHelp(app) + " for the commands");
    }
    return InQuotes(argument) + " isn't expected here" + NearestAdvice(argument, commands, SeeHelp(app));
}

ArgumentOutline OutlineOf(const CLI::Option& option)
{
    ArgumentOutline outline { .value = option.get_option_text(),
        .help = Replace(option.get_description(), "\n", " "),
        .isOption = !option.get_positional(),
        .isRequired = option.get_required(),
        .isRepeated
        = option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll || option.get_items_expected_max() > 1 };
    for (const auto& name : option.get_snames()) {
        outline.names.push_back("-" + name);
    }
    for (const auto& name : option.get_lnames()) {
        outline.names.push_back("--" + name);
    }
    if (!outline.isOption) {
        outline.names.push_back(option.get_name());
    }
    return outline;
}

/// Adds the outline of a command and of those below it; the words in front of its own are those of its parent.
void AddOutlines(const CLI::App& app, const std::string& name, std::vector<CommandOutline>& outlines)
{
    CommandOutline outline { .name = name, .summary = app.get_description(), .details = app.get_footer() };
    for (const auto* option : app.get_options()) {
        outline.arguments.push_back(OutlineOf(*option));
    }
    outlines.push_back(std::move(outline));
    for (const auto* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        AddOutlines(*command, (name.empty() ? "" : name + " ") + command->get_name(), outlines);
    }
}

}

ArgumentParser::ArgumentParser(const Help& program)
    : mApp(std::make_unique<CLI::App>(program.description, program.name))
{
    mApp->get_formatter()->label("SUBCOMMAND", "COMMAND");
    mApp->get_formatter()->label("Positionals", "Arguments");
    mApp->get_formatter()->label("TEXT", "");
    mApp->get_formatter()->label("REQUIRED", "");
    mApp->footer(program.footer);
    mApp->require_subcommand(0, 1);
    mApp->set_help_flag("-h,--help", "Show this help");
    mApp->set_version_flag("--version", ProductVersion, "Show the version");
}

ArgumentParser::~ArgumentParser() = default;

ArgumentList ArgumentParser::Arguments() const
{
    return ArgumentList(*mApp);
}

ArgumentList ArgumentParser::AddCommand(const Help& command) const
{
    mApp->get_help_ptr()->description("Show this help, or that of a command");
    auto* app = mApp.get();
    for (const auto& word : Split(command.name, " ")) {
        const auto below = app->get_subcommands([&word](const CLI::App* sub) { return sub->get_name() == word; });
        app = below.empty() ? app->add_subcommand(word) : below.front();
    }
    app->description(command.description);
    app->footer(command.footer);
    app->group("Commands");
    app->fallthrough();
    return ArgumentList(*app);
}

bool ArgumentParser::Parse(const std::vector<std::string>& arguments, std::ostream& out) const
{
    auto words = Prepared(arguments);
    // "help list" is what many type first for "list --help".
    if (!words.empty() && words.front() == "help" && !CommandNames(*mApp).empty()) {
        words.erase(words.begin());
        words.emplace_back("--help");
    }
    std::reverse(words.begin(), words.end());
    try {
        mApp->parse(std::move(words));
        return true;
    } catch (const CLI::CallForVersion&) {
        out << mApp->get_name() << " " << ProductVersion << "\n";
    } catch (const CLI::Success&) {
        out << mApp->help();
    } catch (const CLI::ExtrasError&) {
        throw UsageError(UnexpectedArgument(*mApp));
    } catch (const CLI::RequiredError& error) {
        // What is missed may stand there under another name.
        throw UsageError(
            IsOption(FirstExtra(*mApp)) ? UnexpectedArgument(*mApp) : error.what() + (": " + SeeHelp(*mApp)));
    } catch (const CLI::ArgumentMismatch& error) {
        const std::string text = error.what();
        throw UsageError(text.substr(0, text.find(':')) + " needs exactly one value: " + SeeHelp(*mApp));
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what() + (": " + SeeHelp(*mApp)));
    }
    return false;
}

std::string ArgumentParser::ChosenCommand() const
{
    const auto& chosen = ChosenApp(*mApp);
    return &chosen == mApp.get() ? "" : Words(chosen).substr(mApp->get_name().size() + 1);
}

std::vector<CommandOutline> ArgumentParser::Outline() const
{
    std::vector<CommandOutline> outlines;
    AddOutlines(*mApp, "", outlines);
    return outlines;
}

}
