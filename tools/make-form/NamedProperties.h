#pragma once

#include "Bytes.h"
#include "ClassId.h"
#include "CompoundFile.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The properties of a message file that are known by a name or number in a property set, and the identifiers that they
/// have in this file.
class NamedProperties
{
public:
    /// The identifier of a property that has a number in a set.
    std::uint16_t Add(const ClassId& set, std::uint32_t number);
    /// The identifier of a property that has an ASCII name among the public strings.
    std::uint16_t Add(std::string_view name);

    /// Writes the folder that maps them.
    void WriteTo(CompoundFolder& root) const;

private:
    struct Property
    {
        std::uint16_t set;
        /// The number, or the offset of the name among the names.
        std::uint32_t key;
        /// The number, or the checksum of the name.
        std::uint32_t hash;
        bool isNamed;
    };

    std::uint16_t Add(const Property& property);
    std::uint16_t SetIndex(const ClassId& set);

    std::vector<Property> mProperties;
    std::vector<ClassId> mSets;
    Bytes mNames;
};

}
