#pragma once

#include "scenarios/DrivenPerson.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>

namespace tempodial {

/// What must be true of a day in which one of the add-in's calls fails, whichever it was.
class FaultFixture : public testing::Test
{
protected:
    /// Plans the failure of a call, and does what a person does; nothing may leave the host.
    static void RunWithFault(
        DrivenPerson& person, std::int64_t call, const std::function<void(DrivenPerson& person)>& run);
    /// Every window can be looked at and closed, and nothing stays behind when the add-in stops. On the days after, the
    /// add-in works, and what was put off and not met on this day comes up.
    static void LiveOn(DrivenPerson& person);
    /// The work log has activities at so many different times, and none of them twice. It may have any number when the
    /// call that failed was reading a line: the line is damaged then, and a damaged end time is the place where the
    /// next sync begins.
    static void ExpectWhole(DrivenPerson& person, std::size_t least, std::size_t most);
};

}
