#pragma once

#include "base/Date.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// A tracker file: its name and its lines, of which the first is no slot.
struct DemoFile
{
    std::string name;
    std::vector<std::string> lines;
};

/// Invents the tracker files of a plausible working life. The same seed and moment give the same files, and a day is
/// the same however many there are.
class DemoTracker
{
public:
    /// `now` is the present moment: nothing is invented behind it.
    DemoTracker(std::uint32_t seed, Date now)
        : mSeed(seed)
        , mNow(now)
    {
    }

    /// The files of that many days, of which the last is today, in order of time. A free day has no file; today always
    /// has one.
    std::vector<DemoFile> Files(std::int32_t days) const;

private:
    std::uint32_t mSeed;
    Date mNow;
};

}
