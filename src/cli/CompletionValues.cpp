#include "cli/CompletionValues.h"

#include "base/Text.h"

#include <algorithm>

namespace tempodial {

namespace {

using ValueWords = std::vector<std::string>;

ValueWords DayWords()
{
    return { "today", "yesterday", "monday", "tuesday", "wednesday", "thursday", "friday", "saturday", "sunday" };
}

ValueWords SpanWords()
{
    auto words = DayWords();
    for (const auto* word : { "week", "last-week", "month", "last-month", "year", "last-year", "-7d", "-30d" }) {
        words.emplace_back(word);
    }
    return words;
}

/// The words of a list such as "high, medium or low"; none when the text is something else.
ValueWords ListedIn(const std::string& text)
{
    if (text.find(" or ") == std::string::npos) {
        return {};
    }
    auto words = Split(Replace(text, " or ", ", "), ", ");
    const bool isList = std::none_of(words.begin(), words.end(),
        [](const auto& word) { return word.empty() || word.find_first_of(" \"'()") != std::string::npos; });
    return isList ? words : ValueWords();
}

/// The words of the first such list that is a part of a help by itself.
ValueWords ListedInHelp(const std::string& help)
{
    for (const auto& part : Split(help, ";")) {
        const auto colon = part.rfind(": ");
        auto words = ListedIn(colon == std::string::npos ? part : part.substr(colon + 2));
        if (!words.empty()) {
            return words;
        }
    }
    return {};
}

bool IsOneOf(const std::string& name, std::initializer_list<const char*> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

}

CompletionValues CompletionValues::Of(const ArgumentOutline& argument)
{
    const auto& name = argument.isOption ? argument.value : argument.names.front();
    if (name.empty()) {
        return { Kind::None, {} };
    }
    if (IsOneOf(name, { "FILE" })) {
        return { Kind::File, {} };
    }
    if (IsOneOf(name, { "DIR", "FOLDER" })) {
        return { Kind::Folder, {} };
    }
    if (IsOneOf(name, { "RANGE", "DAY" })) {
        return { Kind::Words, argument.names.back() == "--day" ? DayWords() : SpanWords() };
    }
    if (name.starts_with("@")) {
        return { Kind::Activities, {} };
    }
    if (IsOneOf(name, { "NAME", "PROJECT", "P", "OLD" }) && argument.help.find("roject") != std::string::npos) {
        return { Kind::Projects, {} };
    }
    auto words = ListedInHelp(argument.help);
    return words.empty() ? CompletionValues { Kind::Text, {} } : CompletionValues { Kind::Words, std::move(words) };
}

const char* CompletionValues::NameOf(Kind kind)
{
    switch (kind) {
    case Kind::Words:
        return "words";
    case Kind::File:
        return "file";
    case Kind::Folder:
        return "folder";
    case Kind::Projects:
        return "projects";
    case Kind::Activities:
        return "activities";
    default:
        return "text";
    }
}

}
