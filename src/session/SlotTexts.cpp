#include "session/SlotTexts.h"

#include "base/Text.h"
#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace tempodial {

namespace {

constexpr std::array<std::pair<std::string_view, char>, 5> Entities { { { "amp", '&' }, { "lt", '<' }, { "gt", '>' },
    { "quot", '"' }, { "apos", '\'' } } };
constexpr std::array<std::string_view, 4> NotTold { "AppName", "AppType", "Continuation", "Detail" };
constexpr char32_t LastCharacter = 0x10ffff;

/// The character that a reference such as "#228" or "amp" stands for, 0 for none.
char32_t Meant(std::string_view reference)
{
    for (const auto& [name, character] : Entities) {
        if (name == reference) {
            return static_cast<unsigned char>(character);
        }
    }
    constexpr int decimal = 10;
    constexpr int hexadecimal = 16;
    if (!reference.starts_with('#')) {
        return 0;
    }
    const bool isHexadecimal = reference.starts_with("#x");
    const auto digits = reference.substr(isHexadecimal ? 2 : 1);
    std::uint32_t code = 0;
    const auto* const end = digits.data() + digits.size();
    const auto [stop, problem] = std::from_chars(digits.data(), end, code, isHexadecimal ? hexadecimal : decimal);
    return problem == std::errc() && stop == end && code <= LastCharacter ? code : 0;
}

std::int64_t Seconds(std::string_view text)
{
    std::int64_t seconds = 0;
    std::from_chars(text.data(), text.data() + text.size(), seconds);
    return seconds;
}

}

SlotTexts SlotTexts::Of(std::string_view line)
{
    SlotTexts slot;
    bool hasStart = false;
    std::string_view element;
    while (!line.empty()) {
        const auto tagEnd = line.front() == '<' ? line.find('>') : std::string_view::npos;
        if (tagEnd != std::string_view::npos) {
            element = line.substr(1, tagEnd - 1);
            line.remove_prefix(tagEnd + 1);
            continue;
        }
        const auto text = line.substr(0, std::min(line.find('<', 1), line.size()));
        line.remove_prefix(text.size());
        if (element == "StartTime") {
            slot.start = Seconds(text);
            hasStart = true;
        } else if (element == "EndTime") {
            slot.end = Seconds(text);
        } else if (element == "Project") {
            slot.project = Unescaped(text);
        } else if (std::find(NotTold.begin(), NotTold.end(), element) == NotTold.end()) {
            slot.texts.push_back(Unescaped(text));
        }
    }
    if (!hasStart) {
        slot.start = slot.end;
    }
    return slot;
}

std::string SlotTexts::Unescaped(std::string_view text)
{
    std::string result;
    while (!text.empty()) {
        const auto end = text.front() == '&' ? text.find(';') : std::string_view::npos;
        const auto character = end == std::string_view::npos ? 0 : Meant(text.substr(1, end - 1));
        if (character != 0) {
            AppendUtf8(result, character);
            text.remove_prefix(end + 1);
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

bool SlotTexts::Holds(const std::string& line, const std::string& foldedText)
{
    const auto folded = Fold(line);
    return folded.find(foldedText) != std::string::npos || Fold(Unescaped(line)).find(foldedText) != std::string::npos;
}

}
