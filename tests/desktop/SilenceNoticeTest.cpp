#include "desktop/SilenceNotice.h"

#include "desktop/October.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

/// Monday to Friday, from 9 to 17.
class SilenceNoticeTest : public testing::Test
{
protected:
    bool Tells(const std::optional<Date>& lastLine, Date now) { return mNotice.Ask(lastLine, now, mHours).has_value(); }

    WorkingHours mHours { 540, 1020, 124 };
    SilenceNotice mNotice;
};

}

TEST_F(SilenceNoticeTest, TwoHoursOfWork_AreToldOnceForEachSilence)
{
    EXPECT_FALSE(Tells(On(9, 10), On(9, 11, 59)));
    EXPECT_TRUE(Tells(On(9, 10), On(9, 12)));
    EXPECT_FALSE(Tells(On(9, 10), On(9, 13)));
    EXPECT_FALSE(Tells(On(9, 13), On(9, 14)));
    EXPECT_TRUE(Tells(On(9, 13), On(9, 15)));
}

TEST_F(SilenceNoticeTest, OutsideOfWork_IsNotTold)
{
    EXPECT_FALSE(Tells(On(9, 16), On(9, 20)));
    EXPECT_FALSE(Tells(On(9, 16), On(10, 9, 30)));
    EXPECT_TRUE(Tells(On(9, 16), On(10, 10)));
}

TEST_F(SilenceNoticeTest, NoTracker_IsNotMissed)
{
    EXPECT_FALSE(Tells(std::nullopt, On(9, 12)));
}

}
