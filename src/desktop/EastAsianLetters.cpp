#include "desktop/EastAsianLetters.h"

#include "base/Utf8.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tempodial {

namespace {

struct LetterRange
{
    char32_t first;
    char32_t last;
};

/// Kana and ideographs, Hangul, the ideographs beside them, and those of the second plane.
constexpr std::array Ranges { LetterRange { 0x3040, 0x9fff }, LetterRange { 0xac00, 0xd7a3 },
    LetterRange { 0xf900, 0xfaff }, LetterRange { 0x20000, 0x3ffff } };

bool Holds(std::string_view text)
{
    // What is seen of a line.
    constexpr std::size_t MostBytes = 1024;
    text = text.substr(0, MostBytes);
    for (std::size_t offset = 0; offset < text.size();) {
        const auto letter = DecodeUtf8(text, offset);
        const bool isOne = std::any_of(Ranges.begin(), Ranges.end(),
            [&letter](const LetterRange& range) { return letter.code >= range.first && letter.code <= range.last; });
        if (letter.isValid && isOne) {
            return true;
        }
        offset += letter.size;
    }
    return false;
}

}

bool HoldEastAsianLetters(const std::vector<Activity>& activities)
{
    return std::any_of(activities.begin(), activities.end(),
        [](const Activity& activity) { return Holds(activity.description) || Holds(activity.project); });
}

}
