#include "review/Gaps.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The gap on a day of October 2006 from one minute of the day to another.
Gap GapOn(int day, int from, int to)
{
    const auto midnight = Date::FromYearMonthDay(2006, 10, day);
    return { midnight.AddMinutes(from), midnight.AddMinutes(to), to - from };
}

}

TEST(GapsTest, Between_Activities_AreThoseThatAreLonger)
{
    const std::vector<Activity> activities { ActivityOn(9, 540, 600, "A"), ActivityOn(9, 615, 630, "B"),
        ActivityOn(9, 646, 660, "A"), ActivityOn(9, 660, 670, "A") };
    EXPECT_THAT(Gap::Between(activities, OctoberDays(9, 9), 15), ElementsAre(GapOn(9, 630, 646)));
    EXPECT_THAT(Gap::Between(activities, OctoberDays(9, 9), 0), ElementsAre(GapOn(9, 600, 615), GapOn(9, 630, 646)));
    EXPECT_THAT(Gap::Between({}, OctoberDays(9, 9), 0), IsEmpty());
}

TEST(GapsTest, Between_OverlappingActivities_AreOne)
{
    EXPECT_THAT(
        Gap::Between({ ActivityOn(9, 540, 700, "A"), ActivityOn(9, 550, 560, "B"), ActivityOn(9, 800, 810, "C") },
            OctoberDays(9, 9), 15),
        ElementsAre(GapOn(9, 700, 800)));
}

TEST(GapsTest, Between_Days_HasNone)
{
    EXPECT_THAT(Gap::Between({ ActivityOn(9, 540, 600, "A"), ActivityOn(10, 700, 710, "B"), ActivityOn(11, 0, 5, "C"),
                                 ActivityOn(11, 60, 65, "C") },
                    OctoberDays(9, 11), 15),
        ElementsAre(GapOn(11, 5, 60)));
}

TEST(GapsTest, Between_ActivityPastMidnight_FillsTheMorning)
{
    const std::vector<Activity> activities { ActivityOn(9, 1380, 1440 + 90, "A"), ActivityOn(10, 60, 70, "B"),
        ActivityOn(10, 100, 110, "C"), ActivityOn(10, 300, 310, "D") };
    EXPECT_THAT(Gap::Between(activities, OctoberDays(10, 10), 5), ElementsAre(GapOn(10, 90, 100), GapOn(10, 110, 300)));
}

TEST(GapsTest, Between_OtherDays_AreNotShown)
{
    const std::vector<Activity> activities { ActivityOn(8, 0, 1, "A"), ActivityOn(8, 100, 101, "A"),
        ActivityOn(9, 0, 1, "A"), ActivityOn(9, 100, 101, "A") };
    EXPECT_THAT(Gap::Between(activities, OctoberDays(9, 9), 15), ElementsAre(GapOn(9, 1, 100)));
}

TEST(GapsTest, Between_Seconds_CountsMinuteBoundaries)
{
    auto first = ActivityOn(9, 540, 600, "A");
    first.end = first.end.AddSeconds(30);
    const auto gaps = Gap::Between({ first, ActivityOn(9, 616, 620, "B") }, OctoberDays(9, 9), 15);
    ASSERT_EQ(gaps.size(), 1U);
    EXPECT_EQ(gaps[0].minutes, 16);
}

}
