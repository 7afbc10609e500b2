#include "desktop/DragGesture.h"

#include <algorithm>
#include <cstdlib>

namespace tempodial {

namespace {

constexpr std::int64_t SecondsOfDay = 86400;

std::int64_t SecondsOf(DragGesture::Step step)
{
    return static_cast<std::int64_t>(step) * 60;
}

/// The whole steps that are nearest to a number of seconds.
std::int64_t Nearest(std::int64_t seconds, std::int64_t step)
{
    const auto half = step / 2;
    const auto lower = seconds + half;
    return (lower >= 0 ? lower / step : (lower - step + 1) / step) * step;
}

}

TimeSpan DragGesture::To(Date pointer, Step step) const
{
    const auto least = SecondsOf(step);
    switch (mPart) {
    case Part::Start:
        return { std::min(Moved(pointer, step), std::max(mSpan.start, mSpan.end.AddSeconds(-least))), mSpan.end };
    case Part::End:
        return { mSpan.start, std::max(Moved(pointer, step), std::min(mSpan.end, mSpan.start.AddSeconds(least))) };
    default:
        const auto start = Moved(pointer, step);
        return { start, start.AddSeconds(SecondsBetween(mSpan.start, mSpan.end)) };
    }
}

Date DragGesture::Moved(Date pointer, Step step) const
{
    const auto from = mPart == Part::End ? mSpan.end : mSpan.start;
    const auto seconds = SecondsBetween(mGrabbed, pointer);
    const auto days = Nearest(seconds, SecondsOfDay);
    if (std::abs(seconds - days) * 2 < SecondsOf(step)) {
        return from.AddSeconds(days);
    }
    return Date::FromSeconds(Nearest(from.AddSeconds(seconds).Seconds(), SecondsOf(step)));
}

TimeSpan DragGesture::Nudged(Part part, const TimeSpan& span, std::int32_t steps)
{
    const auto seconds = steps * SecondsOf(Step::Usual);
    const TimeSpan moved { part == Part::End ? span.start : span.start.AddSeconds(seconds),
        part == Part::Start ? span.end : span.end.AddSeconds(seconds) };
    return part == Part::Whole || moved.start < moved.end ? moved : span;
}

bool DragGesture::MayGrow(Date end, Date now)
{
    constexpr std::int64_t StillOpen = 600;
    const auto since = SecondsBetween(end, now);
    return since >= 0 && since < StillOpen;
}

}
