#pragma once

#include "wire/FrameType.h"
#include "wire/WireValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// Makes a frame: its length in four bytes, its type, then what is written. Numbers are little-endian.
class FrameWriter
{
public:
    explicit FrameWriter(FrameType type);

    FrameWriter& Byte(std::uint8_t byte);
    FrameWriter& Number(std::int64_t number);
    FrameWriter& Text(std::string_view text);
    FrameWriter& Value(const WireValue& value);
    FrameWriter& Values(const std::vector<WireValue>& values);

    /// The whole frame.
    const std::string& Frame();
    /// The frame without the length in front.
    std::string WithoutLength() const;

private:
    std::string mBytes;
};

}
