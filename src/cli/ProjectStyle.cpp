#include "cli/ProjectStyle.h"

#include "base/Text.h"
#include "session/ProductFacts.h"

#include <array>
#include <cstdint>

namespace tempodial {

namespace {

/// Colours of the palette of 256, about as far from white as from black.
constexpr std::array<int, 12> Colors { 28, 30, 32, 62, 64, 99, 130, 133, 160, 162, 167, 97 };

/// A number that is the same for a text on any machine.
std::uint32_t HashOf(const std::string& text)
{
    std::uint32_t hash = 2'166'136'261U;
    for (const char byte : text) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 16'777'619U;
    }
    return hash;
}

}

TextStyle ProjectStyle(const std::string& project)
{
    if (project.empty() || EqualIgnoringCase(project, NoProject)) {
        return { "2" };
    }
    return { "38;5;" + std::to_string(Colors[HashOf(Fold(project)) % Colors.size()]) };
}

}
