#include "desktop/TimeScale.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

constexpr std::int32_t TenOClock = 10 * 3600;

}

TEST(TimeScaleTest, TimeScale_Zoom_StaysWithinItsLimits)
{
    EXPECT_DOUBLE_EQ(TimeScale(0.1).PixelsPerMinute(), 0.5);
    EXPECT_DOUBLE_EQ(TimeScale(100).PixelsPerMinute(), 12);
    EXPECT_DOUBLE_EQ(TimeScale(2).Zoomed(1000).PixelsPerMinute(), 12);
    EXPECT_DOUBLE_EQ(TimeScale(2).Zoomed(-1000).PixelsPerMinute(), 0.5);
}

TEST(TimeScaleTest, Zoomed_ANotch_IsATenthAndGoesBack)
{
    EXPECT_DOUBLE_EQ(TimeScale(2).Zoomed(1).PixelsPerMinute(), 2.2);
    EXPECT_DOUBLE_EQ(TimeScale(2).Zoomed(3).Zoomed(-3).PixelsPerMinute(), 2);
}

TEST(TimeScaleTest, Fitting_Span_FillsTheHeight)
{
    EXPECT_DOUBLE_EQ(TimeScale::Fitting({ 8 * 3600, 18 * 3600 }, 900, 1).PixelsPerMinute(), 1.5);
}

TEST(TimeScaleTest, Fitting_LongOrEmptySpan_CanBeRead)
{
    EXPECT_DOUBLE_EQ(TimeScale::Fitting({ 0, 86400 }, 900, 1).PixelsPerMinute(), 1.12);
    EXPECT_DOUBLE_EQ(TimeScale::Fitting({ 500, 500 }, 900, 1).PixelsPerMinute(), 12);
}

TEST(TimeScaleTest, PlaceOf_Moment_IsAWholeDevicePixel)
{
    EXPECT_DOUBLE_EQ(TimeScale(1.12, 1).PlaceOf(TenOClock + 300), 678); // 677.6
    EXPECT_DOUBLE_EQ(TimeScale(1.12, 2).PlaceOf(TenOClock + 300), 677.5);
    EXPECT_DOUBLE_EQ(TimeScale(1.12, 1.5).PlaceOf(TenOClock + 300) * 1.5, 1016);
    EXPECT_DOUBLE_EQ(TimeScale(2).DayHeight(), 2880);
}

TEST(TimeScaleTest, SecondAt_Place_IsWithinTheDay)
{
    const TimeScale scale(2);
    EXPECT_EQ(scale.SecondAt(1200), TenOClock);
    EXPECT_EQ(scale.SecondAt(-5), 0);
    EXPECT_EQ(scale.SecondAt(1e9), DaySpan::WholeDay);
}

TEST(TimeScaleTest, ScrollFrom_Zooming_KeepsTheMomentUnderThePointer)
{
    const TimeScale before(2);
    const auto after = before.Zoomed(4);
    const auto scroll = after.ScrollFrom(before, 900, 300);
    EXPECT_NEAR(after.SecondAt(scroll + 300), before.SecondAt(900 + 300), 15);
    EXPECT_DOUBLE_EQ(before.ScrollFrom(before, 900, 300), 900);
}

TEST(TimeScaleTest, GridMinutes_Zoom_DecidesOnLines)
{
    EXPECT_EQ(TimeScale(0.79).GridMinutes(), 60);
    EXPECT_EQ(TimeScale(0.8).GridMinutes(), 30);
    EXPECT_EQ(TimeScale(4).GridMinutes(), 30);
    EXPECT_EQ(TimeScale(4.1).GridMinutes(), 15);
}

}
