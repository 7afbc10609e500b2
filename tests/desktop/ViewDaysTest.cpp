#include "desktop/ViewDays.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using Kind = DesktopSettings::View;
using ListSpan = DesktopSettings::ListSpan;

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
    EXPECT_EQ(DaysOfView(Kind::Day, ListSpan::Year, OnDay(11, 9), MondayFirst), (Period { OnDay(11), OnDay(11) }));
    for (const auto view : { Kind::Week, Kind::List, Kind::SortOut }) {
        EXPECT_EQ(DaysOfView(view, ListSpan::Week, OnDay(11, 9), MondayFirst), (Period { OnDay(9), OnDay(15) }));
    }
}

TEST(ViewDaysTest, DaysOfView_List_IsAsMuchAsIsWanted)
{
    EXPECT_EQ(DaysOfView(Kind::List, ListSpan::Month, OnDay(11, 9), MondayFirst), (Period { OnDay(1), OnDay(31) }));
    const Period year { Date::FromYearMonthDay(2006, 1, 1), Date::FromYearMonthDay(2006, 12, 31) };
    EXPECT_EQ(DaysOfView(Kind::List, ListSpan::Year, OnDay(11, 9), MondayFirst), year);
    EXPECT_EQ(DaysOfView(Kind::Week, ListSpan::Year, OnDay(11, 9), MondayFirst), (Period { OnDay(9), OnDay(15) }));
}

TEST(ViewDaysTest, PagedDay_ListOfMonths_StaysInTheMonth)
{
    EXPECT_EQ(PagedDay(Kind::List, ListSpan::Month, OnDay(31), 1), Date::FromYearMonthDay(2006, 11, 30));
    EXPECT_EQ(PagedDay(Kind::List, ListSpan::Month, OnDay(11), -10), Date::FromYearMonthDay(2005, 12, 11));
    EXPECT_EQ(PagedDay(Kind::List, ListSpan::Year, OnDay(11), 2), Date::FromYearMonthDay(2008, 10, 11));
    const auto last = Period::Always().last.AddDays(-3);
    EXPECT_EQ(PagedDay(Kind::List, ListSpan::Year, last, 1), last);
    EXPECT_EQ(PagedDay(Kind::List, ListSpan::Month, Period::Always().first, -1), Period::Always().first);
}

TEST(ViewDaysTest, PagedDay_Pages_GoByDaysOrWeeks)
{
    EXPECT_EQ(PagedDay(Kind::Day, ListSpan::Week, OnDay(11), 1), OnDay(12));
    EXPECT_EQ(PagedDay(Kind::Week, ListSpan::Week, OnDay(11), -1), OnDay(4));
    EXPECT_EQ(PagedDay(Kind::List, ListSpan::Week, OnDay(11), 2), OnDay(25));
}

TEST(ViewDaysTest, PagedDay_EndOfTime_Stays)
{
    const auto last = Period::Always().last.AddDays(-3);
    EXPECT_EQ(PagedDay(Kind::Week, ListSpan::Week, last, 1), last);
    const auto first = Period::Always().first;
    EXPECT_EQ(PagedDay(Kind::Day, ListSpan::Week, first, -1), first);
}

}
