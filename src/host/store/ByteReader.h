#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

/// Reads numbers and texts from bytes, lowest byte first; going past the end fails (440).
class ByteReader
{
public:
    /// The bytes outlive the reader.
    explicit ByteReader(std::string_view bytes)
        : mRest(bytes)
    {
    }

    /// True when nothing is left.
    bool AtEnd() const { return mRest.empty(); }
    std::uint8_t Number8();
    std::uint16_t Number16();
    std::uint32_t Number32();
    /// That many bytes.
    std::string_view Bytes(std::size_t count);
    /// A text of that many units of UTF-16, as UTF-8.
    std::string Utf16(std::size_t units);

private:
    std::uint32_t Number(std::size_t bytes);

    std::string_view mRest;
};

}
