#pragma once

#include "base/Ascii.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tempodial {

/// What a text may begin with to say that it is UTF-8; it is no part of it.
inline constexpr std::string_view Utf8ByteOrderMark = "\uFEFF";
/// What is shown for bytes that are no character.
inline constexpr char32_t ReplacementCharacter = 0xfffd;

/// A character of a text in UTF-8, or a byte that belongs to none.
struct Utf8Character
{
    /// The code point; the byte's own value when it belongs to no character.
    char32_t code;
    /// The bytes it takes.
    std::size_t size;
    bool isValid;
};

/// The character at an offset, which must be inside of the text, when it isn't ASCII.
Utf8Character DecodeBeyondAscii(std::string_view text, std::size_t offset);
/// The character at an offset, which must be inside of the text.
inline Utf8Character DecodeUtf8(std::string_view text, std::size_t offset)
{
    return IsAscii(text[offset]) ? Utf8Character { static_cast<unsigned char>(text[offset]), 1, true }
                                 : DecodeBeyondAscii(text, offset);
}
/// Adds a code point to a text.
void AppendUtf8(std::string& text, char32_t code);
/// True when all of a text is valid UTF-8.
bool IsUtf8(std::string_view text);
/// True for a byte that goes on with a character that began before it.
constexpr bool IsUtf8Tail(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

}
