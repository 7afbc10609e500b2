#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "platform/objectmodel/AppointmentItem.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The values of an activity that other programs can use. A property that an item lacks is empty.
struct ActivityRecord
{
    std::string entryId;
    Date start;
    Date end;
    /// Minutes.
    std::int32_t duration = 0;
    /// "No Project" for none.
    std::string project;
    std::string application;
    std::string description;
    std::string people;
    std::string subject;
    std::string body;
    /// When it was last saved, in UTC; for one from before that was noted, its end.
    Date saved;
};

/// Reads an item; fails as the store does.
ActivityRecord ReadActivity(const Ref<AppointmentItem>& item);

}
