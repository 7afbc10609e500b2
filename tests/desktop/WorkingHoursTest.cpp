#include "desktop/WorkingHours.h"

#include "desktop/October.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

const WorkingHours Usual(480, 1020, 124);

}

TEST(WorkingHoursTest, HoursOf_Days_AreThoseOfTheirBits)
{
    for (int day = 9; day <= 13; ++day) {
        EXPECT_EQ(Usual.HoursOf(On(day, 12)), (DaySpan { 8 * 3600, 17 * 3600 })) << day;
    }
    EXPECT_EQ(Usual.HoursOf(On(14, 12)).Seconds(), 0);
    EXPECT_EQ(Usual.HoursOf(On(15, 12)).Seconds(), 0);
    EXPECT_EQ(WorkingHours(480, 1020, 128).HoursOf(On(15, 12)).Seconds(), 9 * 3600);
    EXPECT_EQ(WorkingHours(480, 1020, 2).HoursOf(On(14, 12)).Seconds(), 9 * 3600);
}

TEST(WorkingHoursTest, HoursOf_NumbersOfNoDay_StayWithinIt)
{
    EXPECT_EQ(WorkingHours(-5, 2000, 254).HoursOf(On(9, 0)), (DaySpan { 0, 86400 }));
    EXPECT_EQ(WorkingHours(1020, 480, 254).HoursOf(On(9, 0)), (DaySpan { 0, 86400 }));
}

TEST(WorkingHoursTest, WorkedBetween_Moments_CountsWorkingHoursAlone)
{
    EXPECT_EQ(Usual.WorkedBetween(On(9, 7), On(9, 9)), 3600);
    EXPECT_EQ(Usual.WorkedBetween(On(9, 16), On(10, 9, 30)), 3600 + 5400);
    EXPECT_EQ(Usual.WorkedBetween(On(13, 16), On(16, 8, 30)), 3600 + 1800);
    EXPECT_EQ(Usual.WorkedBetween(On(10, 9), On(9, 9)), 0);
    EXPECT_EQ(Usual.WorkedBetween(On(9, 9), On(9, 9)), 0);
}

TEST(WorkingHoursTest, IsTrackerSilent_TwoWorkingHours_AreTooMany)
{
    EXPECT_FALSE(Usual.IsTrackerSilent(On(9, 10), On(9, 11, 59)));
    EXPECT_TRUE(Usual.IsTrackerSilent(On(9, 10), On(9, 12)));
    EXPECT_FALSE(Usual.IsTrackerSilent(On(9, 10), On(9, 17))) << "nobody is at work";
    EXPECT_FALSE(Usual.IsTrackerSilent(On(13, 16, 30), On(16, 9)));
    EXPECT_TRUE(Usual.IsTrackerSilent(On(13, 16, 30), On(16, 9, 30)));
    EXPECT_TRUE(Usual.IsTrackerSilent(Date(), On(9, 8)));
    EXPECT_FALSE(Usual.IsTrackerSilent(Date(), On(14, 10)));
}

}
