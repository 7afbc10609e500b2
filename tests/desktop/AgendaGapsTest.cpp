#include "desktop/AgendaGaps.h"

#include "review/Activities.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(AgendaGapsTest, AgendaGaps_Length_IsAQuarterToThreeHours)
{
    const auto gaps
        = AgendaGaps({ ActivityOn(9, 500, 510, "A"), ActivityOn(9, 524, 530, "A"), ActivityOn(9, 545, 550, "A"),
                         ActivityOn(9, 730, 740, "A"), ActivityOn(9, 921, 930, "A") },
            OctoberDays(9, 9));
    ASSERT_EQ(gaps.size(), 2U);
    EXPECT_EQ(gaps[0].minutes, 15);
    EXPECT_EQ(gaps[1].minutes, 180);
}

TEST(AgendaGapsTest, ShowsLengthOf_SeveralDays_NeedsRoom)
{
    const auto day = Date::FromYearMonthDay(2006, 10, 9);
    const Gap gap { day.AddMinutes(600), day.AddMinutes(631), 31 };
    EXPECT_TRUE(ShowsLengthOf(gap, TimeScale(1), 7));
    EXPECT_FALSE(ShowsLengthOf(gap, TimeScale(0.9), 7));
    EXPECT_TRUE(ShowsLengthOf(gap, TimeScale(0.5), 1));
}

}
