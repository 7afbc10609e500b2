#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tempodial {

/// A request that the other end couldn't do: a number and a text.
class WireFailure : public std::runtime_error
{
public:
    /// The number of a call of a member that the object doesn't have.
    static constexpr std::int64_t NoMember = -1;
    /// The number of something that was refused with a text alone.
    static constexpr std::int64_t Refused = -2;

    WireFailure(std::int64_t number, const std::string& text)
        : std::runtime_error(text)
        , mNumber(number)
    {
    }

    std::int64_t Number() const noexcept { return mNumber; }

private:
    std::int64_t mNumber;
};

/// The other end is gone, or what came from it can't be read.
class WireBroken : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
