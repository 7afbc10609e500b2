#pragma once

#include "base/Date.h"
#include "host/store/ItemData.h"
#include "session/Profile.h"
#include "workload/Activities.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// Fills the work log of a profile with days of invented activities, as they are after an import. A day is the same
/// however many days there are.
class WorkLogFiller
{
public:
    /// Activities of a day, five minutes each; a year of them is 100,000.
    static constexpr std::int64_t ItemsOfDay = 274;

    /// The profile must have a work log already.
    explicit WorkLogFiller(const std::string& profile);

    /// Stores the activities of that many days up to a last one.
    void Fill(Date last, std::int64_t days);

private:
    static ItemData Item(Activities& activities, Date start);

    Profile mProfile;
};

}
