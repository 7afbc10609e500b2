#include "FieldDefinitions.h"

#include <cstdint>

namespace tempodial {

namespace {

/// The field is the user's own, and it is printed.
constexpr std::uint32_t Flags = 0x45;

struct TypeNumbers
{
    std::uint16_t automation;
    std::uint32_t internal;
};

TypeNumbers NumbersOf(FieldType type)
{
    switch (type) {
    case FieldType::Date:
        return { 7, 5 };
    case FieldType::YesNo:
        return { 11, 4 };
    case FieldType::Text:
        break;
    }
    return { 8, 0 };
}

void Define(Bytes& bytes, const FieldDefinition& field)
{
    const auto numbers = NumbersOf(field.type);
    const auto name = Utf16(field.name);
    const auto length = static_cast<std::uint8_t>(field.name.size());

    Append(bytes, Flags);
    Append(bytes, numbers.automation);
    Append(bytes, std::uint32_t(0)); // a built-in field would have its dispatch identifier here
    Append(bytes, std::uint16_t(length));
    bytes += name;
    Append(bytes, length);
    bytes += field.name;
    Append(bytes, std::uint32_t(0)); // four empty texts: formula, rule, text of the rule, error
    Append(bytes, numbers.internal);
    Append(bytes, static_cast<std::uint32_t>(sizeof(length) + name.size()));
    Append(bytes, length);
    bytes += name;
    Append(bytes, std::uint32_t(0)); // no further block
}

}

Bytes DefineFields(const std::vector<FieldDefinition>& fields)
{
    constexpr std::uint16_t SecondFormat = 0x0103;
    Bytes bytes;
    Append(bytes, SecondFormat);
    Append(bytes, static_cast<std::uint32_t>(fields.size()));
    for (const auto& field : fields) {
        Define(bytes, field);
    }
    return bytes;
}

}
