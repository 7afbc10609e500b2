#pragma once

#include "desktop/Colour.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace tempodial {

/// The colours of an activity: those of its mark, of its ground and of the text on it.
struct CardColours
{
    Colour mark;
    Colour fill;
    Colour ink;

    /// The text below the first line.
    Colour SecondInk() const;

    friend constexpr bool operator==(const CardColours&, const CardColours&) = default;
};

/// One of the tones by which projects are told apart.
struct Tone
{
    std::string_view name;
    CardColours light;
    CardColours dark;
};

inline constexpr std::size_t ToneCount = 12;

/// All tones. Their order is chosen so that the first eight stay apart for people who don't see all colours.
const std::array<Tone, ToneCount>& Tones();

}
