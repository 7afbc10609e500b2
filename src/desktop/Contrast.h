#pragma once

#include "desktop/Colour.h"

namespace tempodial {

/// The light that a colour gives, from 0 for black to 1 for white.
double Luminance(const Colour& colour);
/// How well two colours can be told apart as text and ground, from 1 to 21.
double ContrastOf(const Colour& one, const Colour& other);
/// What is seen of a colour that covers another by that much, from 0 to 1.
Colour Mixed(const Colour& over, const Colour& under, double opacity);
/// True for the ground of a dark theme.
bool IsDark(const Colour& ground);

}
