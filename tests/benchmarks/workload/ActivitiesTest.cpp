#include "workload/Activities.h"

#include "base/Text.h"
#include "workload/Projects.h"

#include <map>

namespace tempodial {

namespace {

TEST(ActivitiesTest, Next_ManyActivities_BelongToAllProjectsSevenTimesOfTen)
{
    constexpr int count = 20000;
    Activities activities(1);
    std::map<std::string, int> projects;
    for (int index = 0; index < count; ++index) {
        const auto activity = activities.Next();
        ++projects[activity.project];
        if (!activity.project.empty()) {
            EXPECT_NE(activity.description.find(activity.project), std::string::npos) << activity.description;
        }
    }
    EXPECT_EQ(projects.size(), Projects::Usual + 1);
    EXPECT_NEAR(projects[""], count * 3 / 10, count / 50);
}

TEST(ActivitiesTest, Next_Seed_DecidesTheFirstActivity)
{
    // These stay the same on every machine, or figures couldn't be compared.
    const auto activity = Activities(1).Next();
    EXPECT_EQ(activity.application, 5);
    EXPECT_EQ(activity.description, "\"drawings of the yard 0\" - Tom Okafor");
}

TEST(ActivitiesTest, Below_Bound_IsNeverReached)
{
    Activities activities(2);
    std::map<std::uint32_t, int> numbers;
    for (int index = 0; index < 3000; ++index) {
        ++numbers[activities.Below(3)];
    }
    EXPECT_EQ(numbers.size(), 3U);
    EXPECT_EQ(numbers.rbegin()->first, 2U);
}

}

}
