#include "desktop/Tone.h"

#include "desktop/Contrast.h"

namespace tempodial {

namespace {

constexpr CardColours Card(std::uint32_t mark, std::uint32_t fill, std::uint32_t ink)
{
    return { Colour::Of(mark), Colour::Of(fill), Colour::Of(ink) };
}

// clang-format off
constexpr std::array<Tone, ToneCount> AllTones { {
    { "blue", Card(0x2d6fcd, 0xe0ecfe, 0x16273f), Card(0x70a6f5, 0x21324b, 0xe6effc) },
    { "brown", Card(0x803e00, 0xffe6d6, 0x391f0d), Card(0xc16e2f, 0x452a18, 0xfaebe2) },
    { "amber", Card(0xb98a02, 0xf6ead1, 0x322405), Card(0xecbd57, 0x3e2f11, 0xf5eee0) },
    { "cyan", Card(0x22a2bd, 0xd2f2fa, 0x002c36), Card(0x64d6f2, 0x0a3842, 0xe0f2f7) },
    { "violet", Card(0x624082, 0xf1e6fe, 0x2c203a), Card(0x9774bb, 0x382b46, 0xf2ebf9) },
    { "rose", Card(0xa4546f, 0xfee3ea, 0x3a1b25), Card(0xdd87a2, 0x462630, 0xfbe9ee) },
    { "olive", Card(0x787618, 0xededd3, 0x292807), Card(0xabaa53, 0x343313, 0xeff0e1) },
    { "green", Card(0x016242, 0xd8f3e4, 0x0a2e1f), Card(0x199e6e, 0x17392a, 0xe3f3ea) },
    { "leaf", Card(0x79a057, 0xe3f1d9, 0x1d2b10), Card(0xaad388, 0x28371b, 0xeaf2e4) },
    { "orchid", Card(0x955890, 0xf9e3f7, 0x341d32), Card(0xcc8bc5, 0x40283e, 0xf7eaf5) },
    { "fern", Card(0x468246, 0xdef2dd, 0x162d16), Card(0x79b778, 0x213821, 0xe7f2e6) },
    { "plum", Card(0x773869, 0xfbe3f4, 0x361c30), Card(0xaf6b9f, 0x42273b, 0xf8eaf4) },
} };
// clang-format on

}

Colour CardColours::SecondInk() const
{
    constexpr double Strength = 0.82;
    return Mixed(ink, fill, Strength);
}

const std::array<Tone, ToneCount>& Tones()
{
    return AllTones;
}

}
