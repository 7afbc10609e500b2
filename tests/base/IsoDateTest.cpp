#include "base/IsoDate.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(IsoDateTest, Moments_AnyTime_HaveAllTheirDigits)
{
    EXPECT_EQ(IsoMoment(Date::FromParts({ 2006, 1, 2, 3, 4, 5 })), "2006-01-02T03:04:05");
    EXPECT_EQ(IsoMoment(Date::FromParts({ 100, 12, 31, 23, 59, 59 })), "0100-12-31T23:59:59");
    EXPECT_EQ(IsoDay(Date::FromParts({ 2006, 1, 2, 3, 4, 5 })), "2006-01-02");
}

}
