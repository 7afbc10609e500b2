#include "slots/TextPattern.h"

#include "base/CaseFold.h"
#include "base/Text.h"
#include "base/Utf8.h"

#include <cstddef>
#include <regex>
#include <stdexcept>

namespace tempodial {

namespace {

/// A text in the units of an expression; letters beyond ASCII have their case folded, since the expression itself sees
/// to the others.
std::wstring Wide(std::string_view text)
{
    constexpr char32_t FirstOfPairs = 0x10000;
    constexpr unsigned BitsOfUnit = 10;
    std::wstring wide;
    for (std::size_t offset = 0; offset < text.size();) {
        const auto character = DecodeUtf8(text, offset);
        offset += character.size;
        const auto code = character.size > 1 ? FoldCharacter(character.code) : character.code;
        if (sizeof(wchar_t) == 2 && code >= FirstOfPairs) {
            wide += static_cast<wchar_t>(0xd800U + ((code - FirstOfPairs) >> BitsOfUnit));
            wide += static_cast<wchar_t>(0xdc00U + ((code - FirstOfPairs) & 0x3ffU));
        } else {
            wide += static_cast<wchar_t>(code);
        }
    }
    return wide;
}

}

struct TextPattern::Expression
{
    explicit Expression(std::string_view pattern)
        : regex(L"[\\s\\S]*?(?:" + Alone(pattern) + L")", Syntax)
    {
    }

    /// The executor of this kind needs no stack, and where it begins at one place only no more time than in proportion
    /// to the text.
    static constexpr auto Syntax = std::regex_constants::ECMAScript | std::regex_constants::icase
        | std::regex_constants::nosubs | std::regex_constants::__polynomial;

    /// The pattern, which must be an expression by itself.
    static std::wstring Alone(std::string_view pattern)
    {
        auto wide = Wide(pattern);
        const std::wregex alone(wide, Syntax);
        return wide;
    }

    std::wregex regex;
};

TextPattern::TextPattern(std::string_view pattern)
{
    constexpr std::size_t LongestExpression = 1000;
    if (pattern.size() < 2 || !pattern.starts_with('/') || !pattern.ends_with('/')) {
        mWords = Fold(pattern);
        return;
    }
    if (pattern.size() > LongestExpression) {
        throw std::invalid_argument("a regular expression has at most 1000 characters");
    }
    try {
        mExpression = std::make_shared<Expression>(pattern.substr(1, pattern.size() - 2));
    } catch (const std::regex_error& error) {
        throw std::invalid_argument(
            "the regular expression " + std::string(pattern) + " can't be read: " + error.what());
    }
}

bool TextPattern::Matches(std::string_view text) const
{
    return Matches(text, mExpression ? std::string() : Fold(text));
}

bool TextPattern::Matches(std::string_view text, std::string_view folded) const
{
    if (mExpression) {
        return std::regex_search(Wide(text), mExpression->regex, std::regex_constants::match_continuous);
    }
    constexpr std::string_view Anything = "*";
    const std::string_view words = mWords;
    if (words.size() > 1 && words.starts_with(Anything) && words.ends_with(Anything)) {
        const auto middle = words.substr(1, words.size() - 2);
        if (middle.find_first_of("*?") == std::string_view::npos) {
            return folded.find(middle) != std::string_view::npos;
        }
    }
    return MatchesWords(folded, words);
}

bool TextPattern::MatchesWords(std::string_view text, std::string_view words)
{
    std::size_t at = 0;
    std::size_t word = 0;
    auto star = std::string_view::npos;
    std::size_t retry = 0;
    while (at < text.size()) {
        const auto size = DecodeUtf8(text, at).size;
        if (word < words.size() && words[word] == '*') {
            star = word++;
            retry = at;
        } else if (word < words.size() && words[word] == '?') {
            at += size;
            ++word;
        } else if (word < words.size() && text.substr(at, size) == words.substr(word, size)) {
            at += size;
            word += size;
        } else if (star != std::string_view::npos) {
            retry += DecodeUtf8(text, retry).size;
            at = retry;
            word = star + 1;
        } else {
            return false;
        }
    }
    return words.find_first_not_of('*', word) == std::string_view::npos;
}

}
