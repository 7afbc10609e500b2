#pragma once

#include "desktop/DaySpan.h"

#include <cstdint>

namespace tempodial {

/// How a day's time is drawn downwards. Places are those of whole device pixels, so that lines stay sharp.
class TimeScale
{
public:
    /// Pixels a minute.
    static constexpr double LeastZoom = 0.5;
    static constexpr double MostZoom = 12;
    /// At which ten minutes are a line of text.
    static constexpr double ReadableZoom = 1.12;

    /// Takes pixels a minute, brought within the limits, and how many device pixels a pixel has.
    explicit TimeScale(double pixelsPerMinute = ReadableZoom, double devicePixels = 1);

    /// The scale at which a part of the day fills a height, but never one at which ten minutes can't be read.
    static TimeScale Fitting(const DaySpan& span, double height, double devicePixels);

    double PixelsPerMinute() const { return mPixelsPerMinute; }
    /// This scale after some notches of the wheel, each of a tenth; a pinch gives parts of one.
    TimeScale Zoomed(double notches) const;
    /// Where a second of the day is, below its midnight.
    double PlaceOf(std::int32_t second) const;
    /// The second of the day at a place, within the day.
    std::int32_t SecondAt(double place) const;
    /// The height of a whole day.
    double DayHeight() const { return PlaceOf(DaySpan::WholeDay); }
    /// A place as that of a whole device pixel.
    double Snapped(double place) const;
    /// How far to scroll so that the moment under a pointer stays there; the pointer is seen from the visible top.
    double ScrollFrom(const TimeScale& before, double scroll, double pointer) const;
    /// Minutes between two lines.
    int GridMinutes() const;

private:
    double mPixelsPerMinute;
    double mDevicePixels;
};

}
