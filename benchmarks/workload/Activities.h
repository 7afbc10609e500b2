#pragma once

#include "workload/Activity.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tempodial {

/// An endless row of invented activities; the same seed gives the same row on every machine. Seven of ten belong to one
/// of the fifty projects, so that the rules of the others are all tried and none matches.
class Activities
{
public:
    explicit Activities(std::uint32_t seed);

    Activity Next();
    /// A number from 0 to one below a bound.
    std::uint32_t Below(std::uint32_t bound);

private:
    std::string Topic(std::string& project);

    // The distributions of the standard library differ between its makers; this engine doesn't.
    std::mt19937 mRandom;
};

}
