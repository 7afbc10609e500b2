#include "session/TrackerDay.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(TrackerDayTest, LiveFile_IsItsDay)
{
    EXPECT_EQ(TrackerDay("tracker_granules20061010.out"), "20061010");
}

TEST(TrackerDayTest, AnyOtherName_IsNone)
{
    for (const auto* name : { "", "tracker_granules", "tracker_granules(done)20061010.out",
             "tracker_granules2006101.out", "tracker_granules20061010.out.2", "tracker_granules2006101x.out",
             "xtracker_granules20061010.out", "TempodialHistory.out" }) {
        EXPECT_EQ(TrackerDay(name), "") << name;
    }
}

}
