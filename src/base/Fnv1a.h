#pragma once

#include <cstdint>
#include <string_view>

namespace tempodial {

/// The hash FNV-1a of 64 bits over bytes that come one after the other; it is the same on every machine.
class Fnv1a
{
public:
    explicit Fnv1a(std::string_view bytes = {}) { Add(bytes); }

    void Add(std::string_view bytes)
    {
        constexpr std::uint64_t Prime = 0x100000001b3;
        for (const char byte : bytes) {
            mHash = (mHash ^ static_cast<unsigned char>(byte)) * Prime;
        }
    }
    std::uint64_t Hash() const { return mHash; }

private:
    std::uint64_t mHash = 0xcbf29ce484222325;
};

}
