#include "slots/PlainText.h"

#include "base/Utf8.h"

#include <algorithm>
#include <iterator>

namespace tempodial {

namespace {

struct CharacterRange
{
    char32_t first, last;
};

/// What nobody sees, or what turns the letters around it.
constexpr CharacterRange Unseen[] { { 0x00, 0x08 }, { 0x0e, 0x1f }, { 0x7f, 0x84 }, { 0x86, 0x9f }, { 0xad, 0xad },
    { 0x34f, 0x34f }, { 0x61c, 0x61c }, { 0x180e, 0x180e }, { 0x200b, 0x200f }, { 0x202a, 0x202e }, { 0x2060, 0x206f },
    { 0xfeff, 0xfeff }, { 0xfff9, 0xfffb }, { 0xe0000, 0xe0fff } };

/// What stands between words.
constexpr CharacterRange Blanks[] { { 0x09, 0x0d }, { 0x20, 0x20 }, { 0x85, 0x85 }, { 0xa0, 0xa0 }, { 0x1680, 0x1680 },
    { 0x2000, 0x200a }, { 0x2028, 0x2029 }, { 0x202f, 0x202f }, { 0x205f, 0x205f }, { 0x3000, 0x3000 } };

template <std::size_t Size> bool IsIn(const CharacterRange (&ranges)[Size], char32_t code)
{
    return std::any_of(std::begin(ranges), std::end(ranges),
        [code](const auto& range) { return code >= range.first && code <= range.last; });
}

/// True for the two code points at the end of each plane that are no characters.
bool IsNoncharacter(char32_t code)
{
    constexpr char32_t EndOfPlane = 0xfffe;
    return (code & EndOfPlane) == EndOfPlane || (code >= 0xfdd0 && code <= 0xfdef);
}

/// The offset behind that many characters, or the end.
std::size_t OffsetBehind(std::string_view text, std::size_t characters)
{
    std::size_t offset = 0;
    while (offset < text.size() && characters > 0) {
        offset += DecodeUtf8(text, offset).size;
        --characters;
    }
    return offset;
}

}

std::string PlainText(std::string_view text)
{
    std::string plain;
    bool isApart = false;
    for (std::size_t offset = 0; offset < text.size();) {
        const auto character = DecodeUtf8(text, offset);
        offset += character.size;
        if (IsIn(Blanks, character.code) && character.isValid) {
            isApart = !plain.empty();
        } else if (character.isValid && !IsIn(Unseen, character.code) && !IsNoncharacter(character.code)) {
            if (isApart) {
                plain += ' ';
                isApart = false;
            }
            AppendUtf8(plain, character.code);
        }
    }
    return plain;
}

std::string Shortened(std::string_view text, std::size_t characters)
{
    if (OffsetBehind(text, characters) == text.size()) {
        return std::string(text);
    }
    return std::string(Trimmed(text.substr(0, OffsetBehind(text, characters - 1)))) + "\u2026";
}

std::string NodeText(std::string_view text, std::size_t characters)
{
    auto plain = Shortened(PlainText(text), characters);
    return plain == "None" ? "none" : plain;
}

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}
