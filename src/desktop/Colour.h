#pragma once

#include <cstdint>

namespace tempodial {

/// A colour of a screen (sRGB).
struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    /// The colour of six hexadecimal digits, such as 0x2d6fcd.
    static constexpr Colour Of(std::uint32_t digits)
    {
        constexpr std::uint32_t Byte = 0xff;
        return { static_cast<std::uint8_t>(digits >> 16U & Byte), static_cast<std::uint8_t>(digits >> 8U & Byte),
            static_cast<std::uint8_t>(digits & Byte) };
    }

    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

}
