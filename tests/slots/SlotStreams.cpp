#include "slots/SlotStreams.h"

namespace tempodial {

SlotTimes Slot(std::int64_t number, const std::vector<Glance>& glances, std::int64_t presence)
{
    SlotTimes slot;
    slot.start = number * SlotSeconds;
    slot.presence = presence;
    for (const auto& glance : glances) {
        SlotView view;
        view.program = glance.program;
        view.text = glance.text;
        view.place = glance.place.empty() ? glance.text : glance.place;
        view.project = glance.project;
        slot.Add(view, glance.seconds);
    }
    return slot;
}

}
