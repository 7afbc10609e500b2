#include "desktop/SyncSchedule.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

Date ClockAt(int hour, int minute, int second)
{
    return Date::FromParts({ 2006, 10, 9, hour, minute, second });
}

class SyncScheduleTest : public testing::Test
{
protected:
    /// The first moment from one on at which it is due, asking each second.
    Date DueFrom(Date moment)
    {
        while (!mSchedule.IsDue(moment)) {
            moment = moment.AddSeconds(1);
        }
        return moment;
    }

    SyncSchedule mSchedule { ClockAt(9, 0, 0) };
};

}

TEST_F(SyncScheduleTest, IsDue_Start_IsAFewSecondsLater)
{
    EXPECT_EQ(mSchedule.SecondsToWait(ClockAt(9, 0, 0)), 6);
    EXPECT_EQ(DueFrom(ClockAt(9, 0, 0)), ClockAt(9, 0, 6));
    EXPECT_TRUE(mSchedule.IsDue(ClockAt(9, 0, 40))) << "it stays so until it has run";
}

TEST_F(SyncScheduleTest, IsDue_EachSlot_IsAQuarterMinuteBehindIt)
{
    mSchedule.Ran(ClockAt(9, 0, 6));
    EXPECT_EQ(DueFrom(ClockAt(9, 0, 6)), ClockAt(9, 0, 15));
    mSchedule.Ran(ClockAt(9, 0, 15));
    EXPECT_EQ(DueFrom(ClockAt(9, 0, 15)), ClockAt(9, 5, 15));
    mSchedule.Ran(ClockAt(9, 7, 0));
    EXPECT_EQ(DueFrom(ClockAt(9, 7, 0)), ClockAt(9, 10, 15));
    EXPECT_EQ(mSchedule.SecondsToWait(ClockAt(9, 10, 15)), 1);
}

TEST_F(SyncScheduleTest, CameToFront_LastOneIsOld_IsDueAtOnce)
{
    mSchedule.Ran(ClockAt(9, 0, 20));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(9, 1, 19)));
    mSchedule.CameToFront(ClockAt(9, 1, 20));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(9, 1, 20)));
    mSchedule.CameToFront(ClockAt(9, 1, 21));
    EXPECT_TRUE(mSchedule.IsDue(ClockAt(9, 1, 21)));
}

TEST_F(SyncScheduleTest, FileGrew_Again_DoesNotPutItOff)
{
    mSchedule.Ran(ClockAt(9, 0, 20));
    mSchedule.FileGrew(ClockAt(9, 0, 30));
    mSchedule.FileGrew(ClockAt(9, 0, 31));
    EXPECT_EQ(DueFrom(ClockAt(9, 0, 31)), ClockAt(9, 0, 32));
}

TEST_F(SyncScheduleTest, FileGrew_InTheFirstMoments_WaitsForTheirEnd)
{
    mSchedule.FileGrew(ClockAt(9, 0, 0));
    EXPECT_EQ(DueFrom(ClockAt(9, 0, 0)), ClockAt(9, 0, 6));
}

TEST_F(SyncScheduleTest, IsDue_AfterSleep_IsAtOnce)
{
    mSchedule.Ran(ClockAt(9, 0, 20));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(9, 0, 21)));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(9, 0, 51)));
    EXPECT_TRUE(mSchedule.IsDue(ClockAt(9, 2, 0)));
}

TEST_F(SyncScheduleTest, IsDue_AfterALongImport_IsNotTakenForSleep)
{
    EXPECT_TRUE(mSchedule.IsDue(ClockAt(9, 0, 6)));
    mSchedule.Ran(ClockAt(9, 3, 0));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(9, 3, 1)));
}

TEST_F(SyncScheduleTest, IsDue_ClockSetBack_IsAtOnce)
{
    mSchedule.Ran(ClockAt(9, 0, 20));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(9, 0, 21)));
    EXPECT_TRUE(mSchedule.IsDue(ClockAt(8, 0, 21)));
    mSchedule.Ran(ClockAt(8, 0, 21));
    EXPECT_FALSE(mSchedule.IsDue(ClockAt(8, 0, 22)));
    EXPECT_EQ(mSchedule.SecondsToWait(ClockAt(8, 0, 22)), 30);
}

}
