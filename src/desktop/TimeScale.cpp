#include "desktop/TimeScale.h"

#include <algorithm>
#include <cmath>

namespace tempodial {

namespace {

constexpr double SecondsOfMinute = 60;

}

TimeScale::TimeScale(double pixelsPerMinute, double devicePixels)
    : mPixelsPerMinute(std::clamp(pixelsPerMinute, LeastZoom, MostZoom))
    , mDevicePixels(devicePixels)
{
}

TimeScale TimeScale::Fitting(const DaySpan& span, double height, double devicePixels)
{
    const auto minutes = std::max(span.Seconds() / SecondsOfMinute, 1.0);
    return TimeScale(std::max(height / minutes, ReadableZoom), devicePixels);
}

TimeScale TimeScale::Zoomed(double notches) const
{
    constexpr double Notch = 1.1;
    return TimeScale(mPixelsPerMinute * std::pow(Notch, notches), mDevicePixels);
}

double TimeScale::PlaceOf(std::int32_t second) const
{
    return Snapped(second / SecondsOfMinute * mPixelsPerMinute);
}

std::int32_t TimeScale::SecondAt(double place) const
{
    const auto second = std::floor(place / mPixelsPerMinute * SecondsOfMinute);
    return static_cast<std::int32_t>(std::clamp<double>(second, 0, DaySpan::WholeDay));
}

double TimeScale::Snapped(double place) const
{
    return std::round(place * mDevicePixels) / mDevicePixels;
}

double TimeScale::ScrollFrom(const TimeScale& before, double scroll, double pointer) const
{
    return Snapped((scroll + pointer) / before.mPixelsPerMinute * mPixelsPerMinute - pointer);
}

int TimeScale::GridMinutes() const
{
    constexpr double HoursOnly = 0.8;
    constexpr double Quarters = 4;
    if (mPixelsPerMinute < HoursOnly) {
        return 60;
    }
    return mPixelsPerMinute > Quarters ? 15 : 30;
}

}
