#pragma once

#include "Bytes.h"

#include <string>
#include <vector>

namespace tempodial {

/// The types of the user's fields.
enum class FieldType { Text, Date, YesNo };

/// A user's field: its name and type.
struct FieldDefinition
{
    std::string name;
    FieldType type;
};

/// The stream that defines those fields, in its second format.
Bytes DefineFields(const std::vector<FieldDefinition>& fields);

}
