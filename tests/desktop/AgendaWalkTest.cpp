#include "desktop/AgendaWalk.h"

#include "review/Activities.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

class AgendaWalkTest : public testing::Test
{
protected:
    /// By day: 0, 1, 2; none; 3, 4, 5.
    std::vector<Activity> mActivities { ActivityOn(9, 500, 510, "A"), ActivityOn(9, 600, 660, "A"),
        ActivityOn(9, 900, 960, "A"), ActivityOn(11, 400, 500, "A"), ActivityOn(11, 520, 700, "A"),
        ActivityOn(11, 620, 640, "A") };
    AgendaLayout mLayout { mActivities, OctoberDays(9, 12) };
    AgendaWalk mWalk { mLayout };
};

}

TEST_F(AgendaWalkTest, AboveAndBelow_Day_EndAtItsEnds)
{
    EXPECT_EQ(mWalk.Below(0), 1U);
    EXPECT_EQ(mWalk.Below(2), std::nullopt);
    EXPECT_EQ(mWalk.Below(5), std::nullopt);
    EXPECT_EQ(mWalk.Above(2), 1U);
    EXPECT_EQ(mWalk.Above(0), std::nullopt);
    EXPECT_EQ(mWalk.Above(3), std::nullopt);
}

TEST_F(AgendaWalkTest, LeftAndRight_OverAnEmptyDay_GoToTheNearestInTime)
{
    EXPECT_EQ(mWalk.Right(0), 3U);
    EXPECT_EQ(mWalk.Left(3), 0U);
    EXPECT_EQ(mWalk.Left(5), 1U);
    EXPECT_EQ(mWalk.Right(3), std::nullopt);
    EXPECT_EQ(mWalk.Left(0), std::nullopt);
}

TEST_F(AgendaWalkTest, Right_SeveralAtThatMoment_GoesToThatWhichBeginsNearest)
{
    EXPECT_EQ(mWalk.Right(1), 5U);
    EXPECT_EQ(mWalk.Right(2), 4U);
}

TEST_F(AgendaWalkTest, FirstAndLast_OfADay)
{
    EXPECT_EQ(mWalk.FirstOf(2), 3U);
    EXPECT_EQ(mWalk.LastOf(2), 5U);
    EXPECT_EQ(mWalk.FirstOf(1), std::nullopt);
    EXPECT_EQ(mWalk.LastOf(3), std::nullopt);
}

TEST_F(AgendaWalkTest, Nearest_EmptyDay_IsNothing)
{
    EXPECT_EQ(mWalk.Nearest(1, 0), std::nullopt);
    EXPECT_EQ(mWalk.Nearest(0, 0), 0U);
    EXPECT_EQ(mWalk.Nearest(0, DaySpan::WholeDay), 2U);
}

}
