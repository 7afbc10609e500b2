#pragma once

#include "host/system/LocalTime.h"
#include "platform/system/Clock.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace tempodial {

/// The clock of the system, or one that was set to another moment and goes on from there.
class HostClock : public Clock
{
public:
    /// Without a start it shows the system's local time.
    explicit HostClock(std::optional<Date> start = std::nullopt);

    Date Now() override;
    /// The present moment in UTC.
    Date UniversalNow();
    /// Sets it to a moment, from which it goes on.
    void Set(Date now);

private:
    std::int64_t SecondsGone() const;

    std::optional<Date> mStart;
    /// The same moment in UTC, once it was asked for.
    std::optional<Date> mUniversalStart;
    /// How long the system ran then.
    std::chrono::nanoseconds mStartedAt;
    LocalTime mLocalTime;
};

}
