#include "review/ActivityGroup.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

TEST(ActivityGroupTest, Unassigned_Activities_AreGroupedByApplicationAndDescription)
{
    const auto groups = ActivityGroup::Unassigned(Each({ ActivityOn(9, 600, 605, "No Project", "Word", "a"),
        ActivityOn(9, 605, 665, "Plan", "Word", "a"), ActivityOn(9, 665, 672, "", "Excel", "a"),
        ActivityOn(10, 600, 605, "No Project", "Word", "a"), ActivityOn(10, 610, 617, "no project", "Word", "b") }));
    ASSERT_EQ(groups.size(), 3U);
    EXPECT_EQ(groups[0].application + groups[0].description, "Worda");
    EXPECT_EQ(groups[0].minutes, 10);
    EXPECT_EQ(groups[0].times, 2);
    EXPECT_EQ(groups[0].last, Date::FromYearMonthDay(2006, 10, 10).AddMinutes(600));
    EXPECT_EQ(groups[1].application, "Excel") << "equal ones by name";
    EXPECT_EQ(groups[2].description, "b");
}

TEST(ActivityGroupTest, Unassigned_LatestComesFirst_IsTheLastAllTheSame)
{
    const auto groups = ActivityGroup::Unassigned(
        Each({ ActivityOn(10, 600, 605, "No Project"), ActivityOn(9, 600, 605, "No Project") }));
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups[0].last, Date::FromYearMonthDay(2006, 10, 10).AddMinutes(600));
}

}
