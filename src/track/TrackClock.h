#pragma once

#include "base/Date.h"
#include "track/TrackMoment.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace tempodial {

/// The clocks that the recorder goes by: the machine's, or faster ones that begin at another moment.
class TrackClock
{
public:
    /// Without a start the wall's clock is the machine's at this moment; at a speed other than 1 it goes on by itself.
    explicit TrackClock(std::optional<Date> start = std::nullopt, int speed = 1);

    TrackMoment Now() const;
    /// The time on these clocks that a time of the machine is.
    std::int64_t Scaled(std::chrono::milliseconds time) const { return time.count() * mSpeed; }
    /// The machine's time that a time on these clocks takes, at least a millisecond.
    std::chrono::milliseconds Real(std::int64_t time) const;

private:
    int mSpeed;
    /// What the clocks are counted from, when they aren't the machine's own.
    struct Start
    {
        std::int64_t universal, boot, awake;
    };
    std::optional<Start> mStart;
};

}
