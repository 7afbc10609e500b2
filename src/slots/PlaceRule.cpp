#include "slots/PlaceRule.h"

#include "base/Text.h"
#include "slots/PlainText.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace tempodial {

namespace {

using Placed = PlaceRule::Placed;

constexpr std::string_view Dashes[] { " - ", " \u2014 ", " \u2013 " };
constexpr std::string_view Separators[] { " - ", " \u2014 ", " \u2013 ", " | ", " \u00b7 ", " \u2022 " };

/// The parts of a title between separators, without empty ones.
template <std::size_t Size>
std::vector<std::string> Parts(std::string_view title, const std::string_view (&separators)[Size])
{
    std::vector<std::string> parts;
    while (!title.empty()) {
        auto end = title.size();
        auto next = title.size();
        for (const auto separator : separators) {
            if (const auto at = title.find(separator); at < end) {
                end = at;
                next = at + separator.size();
            }
        }
        if (const auto part = Trimmed(title.substr(0, end)); !part.empty()) {
            parts.emplace_back(part);
        }
        title.remove_prefix(next);
    }
    return parts;
}

/// The last folder of a path.
std::string LastFolder(std::string_view path)
{
    while (path.size() > 1 && (path.ends_with('/') || path.ends_with('\\'))) {
        path.remove_suffix(1);
    }
    return std::string(path.substr(path.find_last_of("/\\") + 1));
}

Placed OfPage(const std::string& title, const std::string& host)
{
    if (host.empty()) {
        const auto parts = Parts(title, Separators);
        return { title, parts.empty() ? title : parts.back() };
    }
    if (title.empty()) {
        return { host, host };
    }
    const bool isSaid = InStrIgnoringCase(title, host) > 0;
    return { isSaid ? title : title + " (" + host + ")", host };
}

Placed OfFile(const std::string& file, const std::string& project)
{
    return { project + ": " + file, project };
}

Placed OfFileInProject(const std::string& title)
{
    // Such as "main.py (~/src/Atlas)".
    if (const auto open = title.rfind(" ("); open != std::string::npos && open > 0 && title.ends_with(')')) {
        const auto folder = LastFolder(std::string_view(title).substr(open + 2, title.size() - open - 3));
        if (!folder.empty()) {
            return OfFile(LastFolder(Trimmed(title.substr(0, open))), folder);
        }
    }
    const auto parts = Parts(title, Dashes);
    constexpr std::size_t FileAndProject = 2;
    return parts.size() < FileAndProject ? Placed { title, title } : OfFile(LastFolder(parts[0]), parts[1]);
}

Placed OfProjectWithFile(const std::string& title)
{
    const auto parts = Parts(title, Dashes);
    constexpr std::size_t ProjectAndFile = 2;
    if (parts.size() < ProjectAndFile) {
        return { title, title };
    }
    // Such as "Atlas - src/main.py [Atlas]".
    const auto file = parts[1].substr(0, parts[1].find(" ["));
    return OfFile(LastFolder(file), parts[0]);
}

bool IsDirectory(std::string_view text)
{
    constexpr std::size_t DriveLength = 3;
    const bool isDrive = text.size() >= DriveLength && text[1] == ':' && text[2] == '\\';
    // Words behind it would be the arguments of a command.
    const bool isOneWord = text.find(' ') == std::string_view::npos;
    return isOneWord && (text.starts_with('/') || text.starts_with('~') || isDrive);
}

/// Length of the first word of a command line, in which blanks in quotes and behind a backslash don't end it.
std::size_t CommandWordLength(std::string_view command)
{
    char quote = 0;
    for (std::size_t i = 0; i < command.size(); ++i) {
        const char letter = command[i];
        if (letter == '\\' && quote != '\'') {
            ++i;
        } else if (quote != 0) {
            quote = letter == quote ? '\0' : quote;
        } else if (letter == '"' || letter == '\'') {
            quote = letter;
        } else if (letter == ' ') {
            return i;
        }
    }
    return command.size();
}

/// A command line without the variables that it sets for the program, whose values may be secrets.
std::string_view WithoutVariables(std::string_view command)
{
    for (;;) {
        command = Trimmed(command);
        const auto length = CommandWordLength(command);
        const auto word = command.substr(0, length);
        const auto name = word.substr(0, word.find('='));
        if (name.size() == word.size() || name.find_first_of("/\\\"'") != std::string_view::npos) {
            return command;
        }
        command.remove_prefix(length);
    }
}

/// The program that a command line runs, without its folder and its arguments.
std::string CalledProgram(std::string_view command)
{
    command = WithoutVariables(command);
    return LastFolder(command.substr(0, command.find(' ')));
}

Placed OfDirectory(std::string_view title)
{
    constexpr std::string_view Administrator = "Administrator: ";
    if (title.starts_with(Administrator)) {
        title.remove_prefix(Administrator.size());
    }
    title = WithoutVariables(title);
    std::string host;
    // Such as "ann@box: ~/src" or "ann@box:~/src".
    const auto at = title.find('@');
    const auto colon = title.find(':');
    if (at != std::string_view::npos && colon != std::string_view::npos && at < colon
        && title.substr(0, colon).find(' ') == std::string_view::npos) {
        host = title.substr(at + 1, colon - at - 1);
        title = Trimmed(title.substr(colon + 1));
    }
    // Such as "~/src : make".
    constexpr std::string_view Runs = " : ";
    const auto runs = title.find(Runs);
    const auto first = title.substr(0, runs);
    auto text = IsDirectory(first) ? std::string(first) : CalledProgram(first);
    if (!host.empty()) {
        text = text.empty() ? host : host + ": " + text;
    }
    return { text, text };
}

/// True for the name of a room that is a talk between people.
bool IsTalk(std::string_view room)
{
    return room.starts_with('@') || room.ends_with("(DM)") || room.ends_with("(Direct Message)");
}

/// True for what a chat says of itself in front of a talk's name, or of what is new.
bool IsChatWord(const std::string& part)
{
    constexpr std::string_view Words[] { "Chat", "Calls", "Activity", "Calendar", "Threads" };
    return std::find(std::begin(Words), std::end(Words), part) != std::end(Words) || part.ends_with(" new item")
        || part.ends_with(" new items");
}

std::string WithoutChannelMark(const std::string& room)
{
    constexpr std::string_view Mark = " (Channel)";
    return room.ends_with(Mark) ? room.substr(0, room.size() - Mark.size()) : room;
}

Placed OfRoom(const std::string& title, bool namesPeople)
{
    auto parts = Parts(title, Separators);
    const bool isTalk = !parts.empty() && (parts.front() == "Chat" || parts.front() == "Calls");
    std::erase_if(parts, IsChatWord);
    if (parts.empty()) {
        return {};
    }
    const auto workspace = parts.size() > 1 ? parts.back() : "";
    if ((isTalk || IsTalk(parts.front())) && !namesPeople) {
        // Of a talk between people not even the rest is told, which may hold their names in another order.
        return isTalk ? Placed() : Placed { workspace, workspace };
    }
    const auto room = WithoutChannelMark(parts.front());
    return workspace.empty() ? Placed { room, room } : Placed { room + " (" + workspace + ")", workspace };
}

Placed OfMail(const std::string& title)
{
    std::string text;
    for (const auto& part : Parts(title, Dashes)) {
        if (part.find('@') == std::string::npos || part.find(' ') != std::string::npos) {
            text += (text.empty() ? "" : " - ") + part;
        }
    }
    return { text, text };
}

}

PlaceRule::Placed PlaceRule::Of(const Program& program, const std::string& title, const std::string& host)
{
    switch (program.place) {
    case PlaceForm::Page:
        return OfPage(title, host);
    case PlaceForm::FileInProject:
        return OfFileInProject(title);
    case PlaceForm::ProjectWithFile:
        return OfProjectWithFile(title);
    case PlaceForm::Directory:
        return OfDirectory(title);
    case PlaceForm::Room:
        return OfRoom(title, program.namesPeople);
    case PlaceForm::Person:
        return program.namesPeople ? Placed { title, title } : Placed();
    case PlaceForm::Mail:
        return OfMail(title);
    case PlaceForm::Document:
        break;
    }
    return { title, title };
}

}
