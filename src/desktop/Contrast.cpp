#include "desktop/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tempodial {

namespace {

/// The light of a channel, by the definition of sRGB.
double LinearLight(std::uint8_t channel)
{
    const auto value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

}

double Luminance(const Colour& colour)
{
    return 0.2126 * LinearLight(colour.red) + 0.7152 * LinearLight(colour.green) + 0.0722 * LinearLight(colour.blue);
}

double ContrastOf(const Colour& one, const Colour& other)
{
    constexpr double Stray = 0.05; // light that a screen gives back
    const auto [darker, lighter] = std::minmax({ Luminance(one), Luminance(other) });
    return (lighter + Stray) / (darker + Stray);
}

Colour Mixed(const Colour& over, const Colour& under, double opacity)
{
    const auto mixed = [opacity](std::uint8_t above, std::uint8_t below) {
        return static_cast<std::uint8_t>(std::lround(above * opacity + below * (1 - opacity)));
    };
    return { mixed(over.red, under.red), mixed(over.green, under.green), mixed(over.blue, under.blue) };
}

bool IsDark(const Colour& ground)
{
    return ContrastOf(ground, Colour::Of(0xffffff)) > ContrastOf(ground, Colour::Of(0x000000));
}

}
