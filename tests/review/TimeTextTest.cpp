#include "review/TimeText.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(TimeTextTest, HourText_Minutes_HaveTwoDigits)
{
    EXPECT_EQ(HourText(0), "0:00");
    EXPECT_EQ(HourText(65), "1:05");
    EXPECT_EQ(HourText(6000), "100:00");
}

TEST(TimeTextTest, DecimalHours_Hundredths_GoToTheNearest)
{
    EXPECT_EQ(DecimalHours(0), "0.00");
    EXPECT_EQ(DecimalHours(15), "0.25");
    EXPECT_EQ(DecimalHours(1), "0.02") << "1.67 hundredths";
    EXPECT_EQ(DecimalHours(20), "0.33");
    EXPECT_EQ(DecimalHours(3), "0.05");
    EXPECT_EQ(DecimalHours(6005), "100.08");
}

}
