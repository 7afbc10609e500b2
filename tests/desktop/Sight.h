#pragma once

#include "desktop/Colour.h"

#include <array>

namespace tempodial {

/// How people see colours: all of them, or without one of the three kinds of cones.
enum class Sight { Normal, Protan, Deutan, Tritan };

inline constexpr std::array AllSights { Sight::Normal, Sight::Protan, Sight::Deutan, Sight::Tritan };

/// How far apart two colours are seen, in hundredths of OKLab's unit.
double DistanceOf(const Colour& one, const Colour& other, Sight sight);

}
