#include "desktop/Sight.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tempodial {

namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

double Linear(std::uint8_t channel)
{
    const auto value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

Triple Product(const Matrix& matrix, const Triple& by)
{
    Triple product {};
    for (std::size_t row = 0; row < product.size(); ++row) {
        product[row] = matrix[row][0] * by[0] + matrix[row][1] * by[1] + matrix[row][2] * by[2];
    }
    return product;
}

/// Linear light as it is seen without a kind of cones (Machado, Oliveira and Fernandes, 2009, severity 1).
Triple Seen(const Triple& light, Sight sight)
{
    constexpr Matrix Protan { Triple { 0.152286, 1.052583, -0.204868 }, Triple { 0.114503, 0.786281, 0.099216 },
        Triple { -0.003882, -0.048116, 1.051998 } };
    constexpr Matrix Deutan { Triple { 0.367322, 0.860646, -0.227968 }, Triple { 0.280085, 0.672501, 0.047413 },
        Triple { -0.011820, 0.042940, 0.968881 } };
    constexpr Matrix Tritan { Triple { 1.255528, -0.076749, -0.178779 }, Triple { -0.078411, 0.930809, 0.147602 },
        Triple { 0.004733, 0.691367, 0.303900 } };
    if (sight == Sight::Normal) {
        return light;
    }
    auto seen = Product(sight == Sight::Protan ? Protan : sight == Sight::Deutan ? Deutan : Tritan, light);
    for (auto& channel : seen) {
        channel = std::clamp(channel, 0.0, 1.0);
    }
    return seen;
}

Triple OklabOf(const Triple& light)
{
    constexpr Matrix Cones { Triple { 0.4122214708, 0.5363325363, 0.0514459929 },
        Triple { 0.2119034982, 0.6806995451, 0.1073969566 }, Triple { 0.0883024619, 0.2817188376, 0.6299787005 } };
    constexpr Matrix Lab { Triple { 0.2104542553, 0.7936177850, -0.0040720468 },
        Triple { 1.9779984951, -2.4285922050, 0.4505937099 }, Triple { 0.0259040371, 0.7827717662, -0.8086757660 } };
    auto cones = Product(Cones, light);
    for (auto& cone : cones) {
        cone = std::cbrt(cone);
    }
    return Product(Lab, cones);
}

}

double DistanceOf(const Colour& one, const Colour& other, Sight sight)
{
    const auto lab = [sight](const Colour& colour) {
        return OklabOf(Seen({ Linear(colour.red), Linear(colour.green), Linear(colour.blue) }, sight));
    };
    const auto a = lab(one);
    const auto b = lab(other);
    return 100 * std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

}
