#include "cli/Redaction.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tempodial {

namespace {

constexpr auto Digits = "0123456789";
constexpr auto Hidden = "...";

/// The elements of a slot; those that hold numbers or marks come first.
constexpr std::array<std::string_view, 20> SlotElements { "StartTime", "EndTime", "AppType", "Continuation", "Detail",
    "AppName", "WindowText", "OwnedWindowText", "URL", "BaseURL", "WordDocName", "ExcelDocName", "PPTDocName",
    "OutlookFolder", "OutlookSubject", "OutlookDirection", "OutlookTo", "OutlookFrom", "Project", "slot" };
constexpr std::ptrdiff_t NumberElements = 5;

bool IsNumber(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(Digits) == std::string_view::npos;
}

std::string Crossed(std::string_view text)
{
    std::string crosses;
    for (std::size_t i = 0; i < text.size();) {
        i += DecodeUtf8(text, i).size;
        crosses += 'x';
    }
    return crosses;
}

/// A line of a tracker's file. Whatever isn't one of the known elements is text, however it is written.
std::string RedactedSlot(std::string_view line)
{
    std::string redacted;
    bool isNumberAllowed = false;
    while (!line.empty()) {
        const auto end = line.find('>');
        const bool isTag = line.front() == '<' && end != std::string_view::npos;
        if (isTag) {
            const auto name = line.substr(line.starts_with("</") ? 2 : 1, end - (line.starts_with("</") ? 2 : 1));
            const auto* const known = std::find(SlotElements.begin(), SlotElements.end(), name);
            if (known != SlotElements.end()) {
                isNumberAllowed = line[1] != '/' && known - SlotElements.begin() < NumberElements;
                redacted += line.substr(0, end + 1);
                line.remove_prefix(end + 1);
                continue;
            }
        }
        const auto text = line.substr(0, std::max<std::size_t>(1, std::min(line.find('<', 1), line.size())));
        redacted += isNumberAllowed && IsNumber(text) ? std::string(text) : Crossed(text);
        line.remove_prefix(text.size());
    }
    return redacted;
}

/// The end of what a trace line says of its number and moment, nothing for a line that is another's rest.
std::size_t EndOfMoment(std::string_view line)
{
    const auto end = line.find(": ");
    const auto isOfMoment = [](char character) {
        return std::string_view("0123456789/.-: APM").find(character) != std::string_view::npos;
    };
    if (end == std::string_view::npos || !IsNumber(line.substr(0, line.find(' ')))
        || !std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(end), isOfMoment)) {
        return std::string_view::npos;
    }
    return end + 2;
}

bool IsLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// The words at the beginning that are the program's own: the part of it and two more, up to a sign that ends them.
std::string_view OwnWords(std::string_view text)
{
    constexpr int Most = 3;
    std::size_t end = 0;
    for (int i = 0; i < Most && end < text.size(); ++i) {
        const auto word = end + (i == 0 ? 0 : 1);
        auto behind = word;
        while (behind < text.size() && IsLetter(text[behind])) {
            ++behind;
        }
        if (behind == word || (i > 0 && text[end] != ' ')) {
            break;
        }
        if (behind < text.size() && text[behind] != ' ') {
            // Behind a colon comes what the words are about; of a word with other signs in it nothing is known.
            return text.substr(0, text[behind] == ':' ? behind + 1 : end);
        }
        end = behind;
    }
    return text.substr(0, end);
}

/// The program's own text of an error that stands there, empty for another.
std::string_view ErrorTextAt(std::string_view text)
{
    constexpr std::int32_t LastNumber = 500;
    std::string_view longest;
    for (std::int32_t number = 1; number <= LastNumber; ++number) {
        const auto known = ErrorText(number);
        if (text.starts_with(known) && known.size() > longest.size()) {
            longest = known;
        }
    }
    return longest;
}

std::string RedactedTraceLine(std::string_view line)
{
    if (line.empty() || line.starts_with("Tempodial Version: ")) {
        return std::string(line);
    }
    const auto begin = EndOfMoment(line);
    if (begin == std::string_view::npos) {
        return Hidden;
    }
    auto kept = std::string(line.substr(0, begin));
    auto rest = line.substr(begin);
    const auto own = OwnWords(rest);
    kept += own;
    rest.remove_prefix(own.size());
    if (own.ends_with(" error") && rest.starts_with(" ")) {
        const auto error = ErrorTextAt(rest.substr(1));
        kept += rest.substr(0, error.empty() ? 0 : error.size() + 1);
        rest.remove_prefix(error.empty() ? 0 : error.size() + 1);
    }
    return Trim(rest).empty() ? kept : kept + " " + Hidden;
}

/// The text with each line replaced, and with its line ends.
template <class Replacement> std::string WithLines(std::string_view text, Replacement&& replacement)
{
    std::string result;
    while (!text.empty()) {
        const auto end = std::min(text.find_first_of("\r\n"), text.size());
        result += replacement(text.substr(0, end));
        text.remove_prefix(end);
        const auto ends = std::min(text.find_first_not_of("\r\n"), text.size());
        result += text.substr(0, ends);
        text.remove_prefix(ends);
    }
    return result;
}

}

std::string RedactedTrackerFile(std::string_view text)
{
    return WithLines(text, RedactedSlot);
}

std::string RedactedTrace(std::string_view text)
{
    return WithLines(text, RedactedTraceLine);
}

}
