#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/CompletionScripts.h"
#include "engine/core/ProjectFacts.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/NearestName.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <sstream>

namespace tempodial {

namespace {

JsonValue ToJson(const ArgumentOutline& argument)
{
    return { { "names", argument.names }, { "value", argument.value }, { "help", argument.help },
        { "option", argument.isOption }, { "required", argument.isRequired }, { "repeated", argument.isRepeated } };
}

JsonValue ToJson(const std::vector<CommandOutline>& commands)
{
    auto document = JsonValue::Array();
    for (const auto& command : commands) {
        auto arguments = JsonValue::Array();
        for (const auto& argument : command.arguments) {
            arguments.Append(ToJson(argument));
        }
        document.Append({ { "name", command.name }, { "summary", command.summary }, { "details", command.details },
            { "arguments", std::move(arguments) } });
    }
    return document;
}

/// The program and its commands.
std::vector<CommandOutline> ProgramOutline()
{
    std::ostringstream unused;
    return CommandLine(AllCommands(), unused, {}, unused).Outline();
}

class CompletionCommand final : public Command
{
public:
    CompletionCommand()
        : Command({ "completion", "Print what lets a shell complete commands and names",
            "Prints a script for the shell, which then completes commands, options, words for\n"
            "days, projects and activities. An installed package has brought it already.\n"
            "\n"
            "  . <(tempodial completion bash)          in ~/.bashrc\n"
            "  . <(tempodial completion zsh)           in ~/.zshrc, below compinit\n"
            "  tempodial completion fish | source      in ~/.config/fish/config.fish\n"
            "\n"
            "The scripts ask \"tempodial completion projects\" for the names of projects.\n"
            "\"tempodial completion outline\" gives all commands and options as JSON." })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("SHELL", mShell, "The shell: bash, zsh or fish");
    }

    Reply Run(const Options& options) override
    {
        if (mShell == "projects") {
            return Projects(options);
        }
        const auto outline = ProgramOutline();
        if (mShell == "outline") {
            auto document = ToJson(outline);
            auto content = document.Text() + "\n";
            return { .document = std::move(document), .content = std::move(content) };
        }
        auto script = Script(outline);
        JsonValue document { { "script", script } };
        return { .document = std::move(document), .content = std::move(script) };
    }

private:
    std::string Script(const std::vector<CommandOutline>& outline) const
    {
        if (mShell == "bash") {
            return BashCompletion(outline);
        }
        if (mShell == "zsh") {
            return ZshCompletion(outline);
        }
        if (mShell == "fish") {
            return FishCompletion(outline);
        }
        throw UsageError("there is no completion for \"" + mShell + "\""
            + NearestAdvice(mShell, { "bash", "zsh", "fish" }, "give bash, zsh or fish"));
    }

    static Reply Projects(const Options& options)
    {
        const auto profile = ReadProfile(options);
        auto names
            = ListedProjects(profile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectListValue()).ToText());
        names.emplace_back(NoProject);
        Reply reply;
        for (const auto& name : names) {
            reply.content += HarmlessLine(name) + "\n";
        }
        reply.document.Set("projects", names);
        return reply;
    }

    std::string mShell;
};

}

std::unique_ptr<Command> MakeCompletionCommand()
{
    return std::make_unique<CompletionCommand>();
}

}
