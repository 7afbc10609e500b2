#pragma once

#include "Bytes.h"

#include <array>
#include <cstdint>

namespace tempodial {

/// A class or property set identifier; those of the platform end all alike, {xxxxxxxx-0000-0000-C000-000000000046}.
using ClassId = std::array<std::uint8_t, 16>;

/// The platform's identifier that begins with that number.
constexpr ClassId PlatformId(std::uint32_t number)
{
    return { static_cast<std::uint8_t>(number & 0xffU), static_cast<std::uint8_t>((number >> 8U) & 0xffU),
        static_cast<std::uint8_t>((number >> 16U) & 0xffU), static_cast<std::uint8_t>(number >> 24U), 0, 0, 0, 0, 0xc0,
        0, 0, 0, 0, 0, 0, 0x46 };
}

/// The class of a form template.
inline constexpr auto TemplateClass = PlatformId(0x0006f046);
/// The property sets of an item.
inline constexpr auto PublicStrings = PlatformId(0x00020329);
inline constexpr auto CommonProperties = PlatformId(0x00062008);
inline constexpr auto AppointmentProperties = PlatformId(0x00062002);

}
