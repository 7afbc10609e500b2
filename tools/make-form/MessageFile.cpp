#include "MessageFile.h"

#include <cstdio>
#include <utility>

namespace tempodial {

namespace {

enum PropertyType : std::uint16_t { Integer32 = 0x0003, Boolean = 0x000b, Text = 0x001f, Binary = 0x0102 };

constexpr std::uint32_t Tag(std::uint16_t identifier, PropertyType type)
{
    return (std::uint32_t(identifier) << 16U) | type;
}

std::string StreamName(std::uint32_t tag)
{
    char name[32];
    static_cast<void>(std::snprintf(name, sizeof(name), "__substg1.0_%08X", tag));
    return name;
}

}

void MessageFile::SetNumber(std::uint16_t identifier, std::int32_t number)
{
    mValues[Tag(identifier, Integer32)] = { static_cast<std::uint32_t>(number), {}, false };
}

void MessageFile::SetBoolean(std::uint16_t identifier, bool value)
{
    mValues[Tag(identifier, Boolean)] = { value ? 1U : 0U, {}, false };
}

void MessageFile::SetText(std::uint16_t identifier, std::string_view text)
{
    constexpr std::uint32_t TerminatorSize = 2;
    auto bytes = Utf16(text);
    const auto size = static_cast<std::uint32_t>(bytes.size()) + TerminatorSize;
    mValues[Tag(identifier, Text)] = { size, std::move(bytes), true };
}

void MessageFile::SetBinary(std::uint16_t identifier, Bytes bytes)
{
    const auto size = static_cast<std::uint32_t>(bytes.size());
    mValues[Tag(identifier, Binary)] = { size, std::move(bytes), true };
}

void MessageFile::WriteTo(CompoundFolder& root) const
{
    constexpr std::size_t HeaderSize = 32;
    constexpr std::uint32_t ReadableAndWritable = 6;
    Bytes stream(HeaderSize, '\0');
    for (const auto& [tag, value] : mValues) {
        Append(stream, tag);
        Append(stream, ReadableAndWritable);
        Append(stream, value.word);
        Append(stream, std::uint32_t(0));
        if (value.isLong) {
            root.Write(StreamName(tag), value.bytes);
        }
    }
    root.Write("__properties_version1.0", stream);
}

}
