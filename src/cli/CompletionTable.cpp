#include "cli/CompletionTable.h"

namespace tempodial {

namespace {

/// The words in front of a command's last, and that one.
std::pair<std::string, std::string> Parted(const std::string& command)
{
    const auto blank = command.rfind(' ');
    return blank == std::string::npos ? std::pair(std::string(), command)
                                      : std::pair(command.substr(0, blank), command.substr(blank + 1));
}

std::vector<CompletionTable::Word> CommandsBelow(const std::vector<CommandOutline>& commands, const std::string& name)
{
    std::vector<CompletionTable::Word> words;
    for (const auto& command : commands) {
        const auto [parent, word] = Parted(command.name);
        if (!command.name.empty() && parent == name) {
            words.push_back({ word, command.summary });
        }
    }
    return words;
}

std::vector<CompletionTable::Word> OptionsOf(const CommandOutline& command)
{
    std::vector<CompletionTable::Word> words;
    for (const auto& argument : command.arguments) {
        // Every command has its own help, which is said once.
        if (argument.isOption && (command.name.empty() || argument.names.back() != "--help")) {
            words.push_back({ argument.names.back(), argument.help });
        }
    }
    return words;
}

void AddTakings(const CommandOutline& command, const std::string& name, std::vector<CompletionTable::Taking>& takings)
{
    int place = 0;
    for (const auto& argument : command.arguments) {
        auto values = CompletionValues::Of(argument);
        if (values.kind == CompletionValues::Kind::None) {
            continue;
        }
        if (argument.isOption) {
            takings.push_back({ name + ":" + argument.names.back(), std::move(values) });
        } else {
            const auto number = argument.isRepeated ? "[0-9]*" : std::to_string(++place);
            auto pattern = name + ":";
            pattern += number;
            takings.push_back({ std::move(pattern), std::move(values) });
        }
    }
}

}

CompletionTable::CompletionTable(const std::vector<CommandOutline>& commands)
{
    for (const auto& command : commands) {
        auto& own = command.name.empty() ? options : entries.emplace_back().options;
        own = OptionsOf(command);
        if (!command.name.empty()) {
            entries.back().command = command.name;
            entries.back().commands = CommandsBelow(commands, command.name);
            AddTakings(command, command.name, takings);
        }
    }
    entries.push_back({ "", CommandsBelow(commands, ""), {} });
    AddTakings(commands.front(), "*", takings);
}

}
