#include "standin/StandardChannel.h"

#include "wire/WireFailure.h"

namespace tempodial {

std::size_t StandardChannel::Read(char* buffer, std::size_t size)
{
    DWORD count = 0;
    // A pipe whose other end is closed fails, which is its end.
    return ReadFile(mInput, buffer, static_cast<DWORD>(size), &count, nullptr) == FALSE ? 0 : count;
}

void StandardChannel::Write(std::string_view bytes)
{
    while (!bytes.empty()) {
        DWORD count = 0;
        if (WriteFile(mOutput, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == FALSE) {
            throw WireBroken("the host is gone");
        }
        bytes.remove_prefix(count);
    }
}

}
