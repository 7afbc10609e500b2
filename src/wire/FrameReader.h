#pragma once

#include "wire/WireValue.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// Reads what a frame holds behind its length. A frame that ends too soon, or holds a value of no kind, fails with
/// `WireBroken`.
class FrameReader
{
public:
    /// Takes a frame without its length.
    explicit FrameReader(std::string bytes)
        : mBytes(std::move(bytes))
    {
    }

    std::uint8_t Byte();
    std::int64_t Number();
    std::string Text();
    WireValue Value() { return Value(0); }
    std::vector<WireValue> Values() { return Values(0); }

private:
    WireValue Value(int depth);
    std::vector<WireValue> Values(int depth);
    std::uint64_t Unsigned(std::size_t size);
    void Need(std::size_t size) const;

    std::string mBytes;
    std::size_t mAt = 0;
};

}
