#pragma once

#include "host/store/ItemData.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// A property whose text is wanted, empty when there is none, and where it is to stand.
struct WantedText
{
    std::string_view name;
    std::string* text;
};

/// User properties as one JSON text: an object whose members are lists of a type number and, once set, a value. A text
/// is a string, a date a number of seconds since 1899-12-30, yes or no a boolean.
class PropertyCodec
{
public:
    static std::string Encode(const std::vector<ItemProperty>& properties);
    /// Fails (440) for a text that isn't of this form.
    static std::vector<ItemProperty> Decode(std::string_view json);
    /// Reads the texts of some properties alone; fails as above.
    static void Read(std::string_view json, std::span<const WantedText> wanted);
};

}
