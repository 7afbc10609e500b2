#include "wire/FrameWriter.h"

#include <bit>
#include <cstddef>

namespace tempodial {

namespace {

constexpr std::size_t LengthSize = 4;
constexpr unsigned BitsOfByte = 8;

void AppendNumber(std::string& bytes, std::uint64_t number, std::size_t size)
{
    for (std::size_t index = 0; index < size; ++index) {
        bytes.push_back(static_cast<char>(number >> (index * BitsOfByte)));
    }
}

}

FrameWriter::FrameWriter(FrameType type)
    : mBytes(LengthSize, '\0')
{
    Byte(static_cast<std::uint8_t>(type));
}

FrameWriter& FrameWriter::Byte(std::uint8_t byte)
{
    mBytes.push_back(static_cast<char>(byte));
    return *this;
}

FrameWriter& FrameWriter::Number(std::int64_t number)
{
    AppendNumber(mBytes, static_cast<std::uint64_t>(number), sizeof number);
    return *this;
}

FrameWriter& FrameWriter::Text(std::string_view text)
{
    AppendNumber(mBytes, text.size(), LengthSize);
    mBytes.append(text);
    return *this;
}

FrameWriter& FrameWriter::Value(const WireValue& value)
{
    Byte(static_cast<std::uint8_t>(value.kind));
    switch (value.kind) {
    case WireKind::Flag:
    case WireKind::Number:
    case WireKind::Moment:
        return Number(value.number);
    case WireKind::Real:
        return Number(std::bit_cast<std::int64_t>(value.real));
    case WireKind::Text:
        return Text(value.text);
    case WireKind::Object:
        return Number(value.number).Text(value.text);
    case WireKind::List:
        return Values(value.list);
    case WireKind::Nothing:
    case WireKind::Null:
    case WireKind::Missing:
        break;
    }
    return *this;
}

FrameWriter& FrameWriter::Values(const std::vector<WireValue>& values)
{
    AppendNumber(mBytes, values.size(), LengthSize);
    for (const auto& value : values) {
        Value(value);
    }
    return *this;
}

std::string FrameWriter::WithoutLength() const
{
    return mBytes.substr(LengthSize);
}

const std::string& FrameWriter::Frame()
{
    std::string length;
    AppendNumber(length, mBytes.size() - LengthSize, LengthSize);
    mBytes.replace(0, LengthSize, length);
    return mBytes;
}

}
