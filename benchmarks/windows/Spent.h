#pragma once

#include <ctime>

namespace tempodial {

/// Seconds by the clock and of the processor, all of this process' threads together.
struct Spent
{
    double wall = 0;
    double processor = 0;

    /// Since an origin of no meaning; that of the processor is the start of the process.
    static Spent Now() { return { SecondsOf(CLOCK_MONOTONIC), SecondsOf(CLOCK_PROCESS_CPUTIME_ID) }; }
    Spent Since(const Spent& begin) const { return { wall - begin.wall, processor - begin.processor }; }

private:
    static double SecondsOf(clockid_t clock)
    {
        constexpr double Nanosecond = 1e-9;
        timespec time {};
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * Nanosecond;
    }
};

}
