#include "terminal/ArgumentParser.h"

#include "base/Utf8.h"
#include "session/ProductFacts.h"
#include "terminal/UsageError.h"

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

/// The words that choose a command, the program's name first.
std::string Words(const CLI::App& app)
{
    const auto* parent = app.get_parent();
    return (parent ? Words(*parent) + " " : "") + app.get_name();
}

std::string SeeHelp(const CLI::App& app)
{
    return ": see \"" + Words(ChosenApp(app)) + " --help\"";
}

std::string UnexpectedArgument(const CLI::App& app)
{
    const auto extras = app.remaining(true);
    const auto argument = extras.empty() ? std::string() : extras.front();
    const bool hasCommands = !app.get_subcommands([](const CLI::App*) { return true; }).empty();
    if (hasCommands && !argument.starts_with("-") && ChosenApp(app).get_parent() == nullptr) {
        return "there is no command \"" + argument + "\": see \"" + app.get_name() + " --help\" for the commands";
    }
    return "\"" + argument + "\" isn't expected here" + SeeHelp(app);
}

}

bool ParseArguments(CLI::App& app, const std::vector<std::string>& arguments, std::ostream& out)
{
    auto words = Prepared(arguments);
    std::reverse(words.begin(), words.end());
    try {
        app.parse(std::move(words));
        return true;
    } catch (const CLI::CallForVersion&) {
        out << app.get_name() << " " << ProductVersion << "\n";
    } catch (const CLI::Success&) {
        out << app.help();
    } catch (const CLI::ExtrasError&) {
        throw UsageError(UnexpectedArgument(app));
    } catch (const CLI::ArgumentMismatch& error) {
        const std::string text = error.what();
        throw UsageError(text.substr(0, text.find(':')) + " needs exactly one value" + SeeHelp(app));
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what() + SeeHelp(app));
    }
    return false;
}

const CLI::App& ChosenApp(const CLI::App& app)
{
    const auto* chosen = &app;
    while (!chosen->get_subcommands().empty()) {
        chosen = chosen->get_subcommands().front();
    }
    return *chosen;
}

}
