#include "wire/FrameReader.h"

#include "wire/WireFailure.h"

#include <bit>

namespace tempodial {

namespace {

constexpr std::size_t LengthBytes = 4;
constexpr unsigned BitsInByte = 8;
constexpr int DeepestList = 16;

}

std::uint8_t FrameReader::Byte()
{
    Need(1);
    return static_cast<std::uint8_t>(mBytes[mAt++]);
}

std::int64_t FrameReader::Number()
{
    return static_cast<std::int64_t>(Unsigned(sizeof(std::int64_t)));
}

std::string FrameReader::Text()
{
    const auto size = static_cast<std::size_t>(Unsigned(LengthBytes));
    Need(size);
    auto text = mBytes.substr(mAt, size);
    mAt += size;
    return text;
}

WireValue FrameReader::Value(int depth)
{
    WireValue value;
    value.kind = static_cast<WireKind>(Byte());
    switch (value.kind) {
    case WireKind::Nothing:
    case WireKind::Null:
    case WireKind::Missing:
        return value;
    case WireKind::Flag:
    case WireKind::Number:
    case WireKind::Moment:
        value.number = Number();
        return value;
    case WireKind::Real:
        value.real = std::bit_cast<double>(Number());
        return value;
    case WireKind::Text:
        value.text = Text();
        return value;
    case WireKind::Object:
        value.number = Number();
        value.text = Text();
        return value;
    case WireKind::List:
        value.list = Values(depth + 1);
        return value;
    }
    throw WireBroken("a value of an unknown kind came over the wire");
}

std::vector<WireValue> FrameReader::Values(int depth)
{
    const auto count = static_cast<std::size_t>(Unsigned(LengthBytes));
    // Each value takes a byte at least.
    Need(count);
    if (depth > DeepestList) {
        throw WireBroken("a list that is nested too deeply came over the wire");
    }
    std::vector<WireValue> values(count);
    for (auto& value : values) {
        value = Value(depth);
    }
    return values;
}

std::uint64_t FrameReader::Unsigned(std::size_t size)
{
    Need(size);
    std::uint64_t number = 0;
    for (std::size_t index = 0; index < size; ++index) {
        number |= std::uint64_t { static_cast<unsigned char>(mBytes[mAt + index]) } << (index * BitsInByte);
    }
    mAt += size;
    return number;
}

void FrameReader::Need(std::size_t size) const
{
    if (mBytes.size() - mAt < size) {
        throw WireBroken("a frame that ends too soon came over the wire");
    }
}

}
