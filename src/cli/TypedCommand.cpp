#include "cli/TypedCommand.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 3> SurroundingOptions { "--profile", "--locale", "--now" };
constexpr std::string_view Plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_=+./,:@%";

std::string Quoted(const std::string& argument)
{
    const bool isPlain = std::all_of(argument.begin(), argument.end(), [](char character) {
        return static_cast<signed char>(character) < 0 || Plain.find(character) != std::string_view::npos;
    });
    if (isPlain && !argument.empty()) {
        return argument;
    }
    std::string quoted = "\"";
    for (const char character : argument) {
        if (character == '"' || character == '\\') {
            quoted += '\\';
        }
        quoted += character;
    }
    return quoted + '"';
}

}

std::string TypedCommand(const std::vector<std::string>& arguments)
{
    std::string command;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const auto& argument = arguments[i];
        const auto isNamed = [&argument](std::string_view option) { return argument == option; };
        const auto isNamedWithValue = [&argument](std::string_view option) {
            return argument.starts_with(option) && argument.substr(option.size()).starts_with('=');
        };
        if (std::any_of(SurroundingOptions.begin(), SurroundingOptions.end(), isNamed)) {
            ++i;
        } else if (argument != "--json"
            && std::none_of(SurroundingOptions.begin(), SurroundingOptions.end(), isNamedWithValue)) {
            command += (command.empty() ? "" : " ") + Quoted(argument);
        }
    }
    return command;
}

}
