#include "track/OpenSlot.h"

#include "track/TrackMoment.h"

namespace tempodial {

SlotTimes OpenSlot::ToTimes() const
{
    SlotTimes times;
    times.start = start;
    times.presence = presence / MillisecondsOfSecond;
    for (const auto& time : views) {
        times.views.push_back({ time.view, time.seconds / MillisecondsOfSecond });
    }
    return times;
}

}
