#pragma once

#include <cstddef>
#include <string_view>

namespace tempodial {

/// The bytes between both ends of the wire; what fails, fails with `WireBroken`.
class ByteChannel
{
public:
    virtual ~ByteChannel() = default;

    /// Waits for bytes and puts up to that many into a buffer; how many they were, 0 at the end.
    virtual std::size_t Read(char* buffer, std::size_t size) = 0;
    /// Writes all bytes.
    virtual void Write(std::string_view bytes) = 0;
};

}
