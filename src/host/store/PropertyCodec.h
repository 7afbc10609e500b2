#pragma once

#include "host/store/ItemData.h"

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// User properties as one JSON text: an object whose members are lists of a type number and, once set, a value. A text
/// is a string, a date a number of seconds since 1899-12-30, yes or no a boolean.
class PropertyCodec
{
public:
    static std::string Encode(const std::vector<ItemProperty>& properties);
    /// Fails (440) for a text that isn't of this form.
    static std::vector<ItemProperty> Decode(std::string_view json);
};

}
