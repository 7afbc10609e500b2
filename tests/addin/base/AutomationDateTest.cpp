#include "addin/base/AutomationDate.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tempodial {

TEST(AutomationDateTest, ToAutomationDate_AnyMoment_ComesBack)
{
    for (const auto& parts : { Date::Parts { 2006, 10, 10, 9, 5, 1 }, Date::Parts { 1899, 12, 30, 18, 0, 0 },
             Date::Parts { 1899, 12, 29, 18, 0, 0 }, Date::Parts { 100, 1, 1, 23, 59, 59 },
             Date::Parts { 9999, 12, 31, 23, 59, 59 } }) {
        const auto moment = Date::FromParts(parts);
        EXPECT_EQ(FromAutomationDate(ToAutomationDate(moment)), moment) << moment.Seconds();
    }
}

TEST(AutomationDateTest, ToAutomationDate_BeforeTheFirstDay_CountsTheTimeAwayFromZero)
{
    EXPECT_DOUBLE_EQ(ToAutomationDate(Date::FromParts({ 1899, 12, 31, 6, 0, 0 })), 1.25);
    EXPECT_DOUBLE_EQ(ToAutomationDate(Date::FromParts({ 1899, 12, 29, 6, 0, 0 })), -1.25);
    EXPECT_EQ(FromAutomationDate(-1.25), Date::FromParts({ 1899, 12, 29, 6, 0, 0 }));
    EXPECT_EQ(FromAutomationDate(-0.25), Date::FromParts({ 1899, 12, 30, 6, 0, 0 }));
}

TEST(AutomationDateTest, FromAutomationDate_PartsOfASecond_AreRounded)
{
    constexpr double Second = 1.0 / 86400;
    EXPECT_EQ(FromAutomationDate(2 + 1.4 * Second), Date::FromSeconds(2 * 86400 + 1));
    EXPECT_EQ(FromAutomationDate(2 + 1.6 * Second), Date::FromSeconds(2 * 86400 + 2));
    EXPECT_EQ(FromAutomationDate(3 - 0.1 * Second), Date::FromSeconds(3 * 86400));
}

TEST(AutomationDateTest, FromAutomationDate_OutOfRange_Fails)
{
    for (const double days : { -657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
             std::numeric_limits<double>::quiet_NaN() }) {
        EXPECT_THROW(FromAutomationDate(days), Failure) << days;
    }
}

}
