#pragma once

#include "addin/base/Windows.h"
#include "wire/ByteChannel.h"

namespace tempodial {

/// The standard streams of this program, as the channel to the host.
class StandardChannel final : public ByteChannel
{
public:
    std::size_t Read(char* buffer, std::size_t size) override;
    void Write(std::string_view bytes) override;

private:
    HANDLE mInput = GetStdHandle(STD_INPUT_HANDLE);
    HANDLE mOutput = GetStdHandle(STD_OUTPUT_HANDLE);
};

}
