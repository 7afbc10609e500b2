#include "terminal/NearestName.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "terminal/TerminalText.h"

#include <algorithm>
#include <cstddef>

namespace tempodial {

namespace {

/// The letters of a name without regard to case, the hyphens in front of an option left out.
std::u32string Letters(std::string_view name)
{
    std::u32string letters;
    const auto folded = Fold(name.substr(std::min(name.find_first_not_of('-'), name.size())));
    for (std::size_t i = 0; i < folded.size();) {
        const auto character = DecodeUtf8(folded, i);
        letters += character.code;
        i += character.size;
    }
    return letters;
}

/// How many letters have to be put in, taken out, changed, or changed with their neighbour, to make one of the other.
std::size_t Distance(const std::u32string& a, const std::u32string& b)
{
    // The distances of the beginnings of a, a line each, to those of b.
    std::vector<std::vector<std::size_t>> lines(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                lines[i][j] = i + j;
                continue;
            }
            const std::size_t change = a[i - 1] == b[j - 1] ? 0 : 1;
            auto least = std::min({ lines[i - 1][j] + 1, lines[i][j - 1] + 1, lines[i - 1][j - 1] + change });
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                least = std::min(least, lines[i - 2][j - 2] + 1);
            }
            lines[i][j] = least;
        }
    }
    return lines[a.size()][b.size()];
}

}

std::string NearestName(std::string_view typed, const std::vector<std::string>& names)
{
    constexpr std::size_t LongestName = 200;
    constexpr std::size_t LettersAWrongOne = 3;
    const auto letters = Letters(typed);
    std::string nearest;
    auto least = LongestName;
    for (const auto& name : names) {
        const auto others = Letters(name);
        const auto longer = std::max(letters.size(), others.size());
        if (longer > LongestName) {
            continue;
        }
        const auto distance = Distance(letters, others);
        if (distance < least && distance <= longer / LettersAWrongOne) {
            nearest = name;
            least = distance;
        }
    }
    return nearest;
}

std::string NearestAdvice(std::string_view typed, const std::vector<std::string>& names, const std::string& advice)
{
    const auto nearest = NearestName(typed, names);
    return ": " + (nearest.empty() ? advice : "did you mean " + InQuotes(nearest) + "? Else " + advice);
}

}
