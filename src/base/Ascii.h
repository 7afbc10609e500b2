#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tempodial {

/// Eight bytes, the unit in which ASCII is worked on.
using AsciiWord = std::uint64_t;

/// A word with the same byte in all places.
constexpr AsciiWord EachByte(unsigned char byte)
{
    return byte * AsciiWord(0x0101010101010101);
}

/// The word that begins at a byte.
inline AsciiWord WordAt(const char* bytes)
{
    AsciiWord word = 0;
    std::memcpy(&word, bytes, sizeof(word));
    return word;
}

/// True for a byte of ASCII.
constexpr bool IsAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}
/// True when all bytes of a word are ASCII.
constexpr bool IsAscii(AsciiWord word)
{
    return (word & EachByte(0x80)) == 0;
}

/// Length of the run of ASCII bytes from an offset on.
inline std::size_t AsciiRun(std::string_view text, std::size_t from)
{
    auto offset = from;
    while (offset + sizeof(AsciiWord) <= text.size() && IsAscii(WordAt(text.data() + offset))) {
        offset += sizeof(AsciiWord);
    }
    while (offset < text.size() && IsAscii(text[offset])) {
        ++offset;
    }
    return offset - from;
}

/// True when all of a text is ASCII.
inline bool IsAscii(std::string_view text)
{
    return AsciiRun(text, 0) == text.size();
}

}
