#include "host/store/ByteReader.h"

#include "base/Failure.h"
#include "base/Utf8.h"

namespace tempodial {

namespace {

bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xd800 && unit < 0xdc00;
}

bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xdc00 && unit < 0xe000;
}

}

std::uint8_t ByteReader::Number8()
{
    return static_cast<std::uint8_t>(Number(1));
}

std::uint16_t ByteReader::Number16()
{
    return static_cast<std::uint16_t>(Number(2));
}

std::uint32_t ByteReader::Number32()
{
    return Number(4);
}

std::string_view ByteReader::Bytes(std::size_t count)
{
    if (count > mRest.size()) {
        throw Failure(Error::Automation, "The file ends too early");
    }
    const auto bytes = mRest.substr(0, count);
    mRest.remove_prefix(count);
    return bytes;
}

std::string ByteReader::Utf16(std::size_t units)
{
    ByteReader wide(Bytes(units * 2));
    std::string text;
    while (!wide.AtEnd()) {
        const char32_t unit = wide.Number16();
        if (!IsHighSurrogate(unit)) {
            AppendUtf8(text, IsLowSurrogate(unit) ? ReplacementCharacter : unit);
            continue;
        }
        const auto before = wide.mRest;
        const char32_t next = wide.AtEnd() ? 0 : wide.Number16();
        if (IsLowSurrogate(next)) {
            AppendUtf8(text, 0x10000 + ((unit - 0xd800) << 10) + (next - 0xdc00));
        } else {
            AppendUtf8(text, ReplacementCharacter);
            wide.mRest = before;
        }
    }
    return text;
}

std::uint32_t ByteReader::Number(std::size_t bytes)
{
    std::uint32_t number = 0;
    unsigned shift = 0;
    for (const char byte : Bytes(bytes)) {
        number |= std::uint32_t { static_cast<unsigned char>(byte) } << shift;
        shift += 8;
    }
    return number;
}

}
