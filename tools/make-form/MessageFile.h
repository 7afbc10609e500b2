#pragma once

#include "Bytes.h"
#include "CompoundFile.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace tempodial {

/// The properties of a message, to be written into a message file.
class MessageFile
{
public:
    void SetNumber(std::uint16_t identifier, std::int32_t number);
    void SetBoolean(std::uint16_t identifier, bool value);
    /// Sets an ASCII text.
    void SetText(std::uint16_t identifier, std::string_view text);
    void SetBinary(std::uint16_t identifier, Bytes bytes);

    /// Writes the stream of properties and those of the long values.
    void WriteTo(CompoundFolder& root) const;

private:
    struct Value
    {
        /// The value itself, or the size of a long value.
        std::uint32_t word;
        /// A long value.
        Bytes bytes;
        bool isLong;
    };

    /// By tag: identifier and type.
    std::map<std::uint32_t, Value> mValues;
};

}
