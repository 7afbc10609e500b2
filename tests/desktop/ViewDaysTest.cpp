#include "desktop/ViewDays.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using Kind = DesktopSettings::View;

Date OnDay(int day, int hour = 0)
{
    return Date::FromParts({ 2006, 10, day, hour, 0, 0 });
}

int MondayFirst()
{
    return 2;
}

}

TEST(ViewDaysTest, DaysOfView_Day_IsThatDayAndOthersItsWeek)
{
    EXPECT_EQ(DaysOfView(Kind::Day, OnDay(11, 9), MondayFirst), (Period { OnDay(11), OnDay(11) }));
    for (const auto view : { Kind::Week, Kind::List, Kind::SortOut }) {
        EXPECT_EQ(DaysOfView(view, OnDay(11, 9), MondayFirst), (Period { OnDay(9), OnDay(15) }));
    }
}

TEST(ViewDaysTest, PagedDay_Pages_GoByDaysOrWeeks)
{
    EXPECT_EQ(PagedDay(Kind::Day, OnDay(11), 1), OnDay(12));
    EXPECT_EQ(PagedDay(Kind::Week, OnDay(11), -1), OnDay(4));
    EXPECT_EQ(PagedDay(Kind::List, OnDay(11), 2), OnDay(25));
}

TEST(ViewDaysTest, PagedDay_EndOfTime_Stays)
{
    const auto last = Period::Always().last.AddDays(-3);
    EXPECT_EQ(PagedDay(Kind::Week, last, 1), last);
    const auto first = Period::Always().first;
    EXPECT_EQ(PagedDay(Kind::Day, first, -1), first);
}

}
