#include "review/RulePreview.h"

#include "review/Activities.h"
#include "review/Rules.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Move = ProjectMoves::Move;

Activity ByHand(Activity activity)
{
    activity.isProjectByHand = true;
    return activity;
}

RuleTrial Trial()
{
    return RuleTrial({ Ruled("High", "1", "both"), Ruled("Plan", "2", "plan, both", "draft", "Ann") });
}

}

TEST(RulePreviewTest, OfOne_Matching_ComesToTheProject)
{
    auto withAnn = ActivityOn(9, 40, 47, "No Project", "Word", "lunch");
    withAnn.people = "Ann";
    const auto trial = Trial();
    const auto preview = RulePreview::OfOne(trial, "plan",
        { ActivityOn(9, 0, 5, "No Project", "Word", "plan"), ActivityOn(9, 5, 15, "Plan", "Word", "plan"),
            ByHand(ActivityOn(9, 15, 30, "Other", "Plan", "")), ActivityOn(9, 30, 40, "Other", "Word", "draft plan"),
            withAnn, ActivityOn(9, 50, 60, "plan", "Word", "plan") });
    EXPECT_THAT(preview.moves.LargestFirst(),
        ElementsAre(
            Move { "Other", "Plan", 1, 15 }, Move { "No Project", "Plan", 2, 12 }, Move { "plan", "Plan", 1, 10 }));
    EXPECT_EQ(preview.moves.Activities(), 4);
    EXPECT_EQ(preview.targets.size(), 4U);
    EXPECT_THAT(preview.disputed.LargestFirst(), IsEmpty());
    EXPECT_EQ(preview.keptByHand, 0) << "such a one isn't spared";
    EXPECT_THAT(RulePreview::OfOne(trial, "Other", { ActivityOn(9, 0, 5, "Plan") }).targets, IsEmpty());
}

TEST(RulePreviewTest, OfOne_AnotherComesFirst_IsDisputed)
{
    const auto trial = Trial();
    const auto preview = RulePreview::OfOne(
        trial, "Plan", { ActivityOn(9, 0, 5, "High", "Word", "both"), ActivityOn(9, 5, 15, "Plan", "Word", "both") });
    EXPECT_THAT(preview.moves.LargestFirst(), ElementsAre(Move { "High", "Plan", 1, 5 }));
    EXPECT_THAT(preview.disputed.LargestFirst(), ElementsAre(Move { "High", "Plan", 1, 5 }))
        << "the one that has the project already isn't changed";
}

TEST(RulePreviewTest, OfAll_Activities_ComeToTheFirstThatMatches)
{
    const std::vector<Activity> activities { ActivityOn(9, 0, 5, "No Project", "Word", "both"),
        ActivityOn(9, 5, 15, "Plan", "Word", "both"), ActivityOn(9, 15, 30, "Other", "Word", "lunch"),
        ByHand(ActivityOn(9, 30, 35, "Other", "Word", "plan")), ByHand(ActivityOn(9, 35, 40, "Plan", "Word", "plan")),
        ByHand(ActivityOn(9, 40, 45, "Other", "Word", "lunch")),
        ByHand(ActivityOn(9, 45, 51, "No Project", "", "plan")) };
    const auto preview = RulePreview::OfAll(Trial(), activities, false);
    EXPECT_THAT(
        preview.moves.LargestFirst(), ElementsAre(Move { "Plan", "High", 1, 10 }, Move { "No Project", "High", 1, 5 }));
    EXPECT_EQ(preview.keptByHand, 2);

    const auto unassigned = RulePreview::OfAll(Trial(), activities, true);
    EXPECT_THAT(unassigned.moves.LargestFirst(),
        ElementsAre(Move { "No Project", "Plan", 1, 6 }, Move { "No Project", "High", 1, 5 }));
    EXPECT_EQ(unassigned.keptByHand, 0);
}

}
