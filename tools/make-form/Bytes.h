#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace tempodial {

/// Bytes of a stream.
using Bytes = std::string;

/// Appends a whole number, lowest byte first.
template <class Number> void Append(Bytes& bytes, Number number)
{
    auto rest = static_cast<std::make_unsigned_t<Number>>(number);
    for (std::size_t index = 0; index < sizeof(Number); ++index) {
        bytes += static_cast<char>(rest & 0xffU);
        rest = static_cast<decltype(rest)>(static_cast<std::uint64_t>(rest) >> 8U);
    }
}

/// An ASCII text as UTF-16, lowest byte first.
inline Bytes Utf16(std::string_view ascii)
{
    Bytes bytes;
    for (const char character : ascii) {
        Append(bytes, static_cast<std::uint16_t>(character));
    }
    return bytes;
}

}
