#include "faults/FaultPlan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 2> Classes { "CommandBarButton", "CommandBarControl" };

}

class FaultPlanTest : public testing::Test
{
protected:
    /// Makes calls, and answers for each whether it passed (+) or failed (-).
    std::string Calls(int count, std::string_view member = "Caption", std::string_view key = "")
    {
        std::string outcome;
        for (int i = 0; i < count; ++i) {
            try {
                mPlan.Before({ Classes, member, key, {} });
                outcome += '+';
            } catch (const Failure& failure) {
                mLast = failure;
                outcome += '-';
            }
        }
        return outcome;
    }

    FaultPlan mPlan;
    Failure mLast { Error::Overflow };
};

TEST_F(FaultPlanTest, Before_NothingPlanned_PassesAndCounts)
{
    EXPECT_EQ(Calls(3), "+++");
    EXPECT_EQ(mPlan.CallCount(), 3);
}

TEST_F(FaultPlanTest, Before_Planned_FailsAfterTheSkippedAsOftenAsAsked)
{
    mPlan.Add({ .call = "CommandBarButton.Caption", .skip = 2, .times = 3, .failure = Failure(287, "No") });
    EXPECT_EQ(Calls(7), "++---++");
    EXPECT_EQ(mLast.Number(), 287);
    EXPECT_EQ(mLast.Description(), "No");
}

TEST_F(FaultPlanTest, Before_OtherMembersAndClasses_DontCount)
{
    mPlan.Add({ .call = "CommandBarButton.Tag" });
    mPlan.Add({ .call = "CommandBarPopup.Caption" });
    mPlan.Add({ .call = "Caption" });
    EXPECT_EQ(Calls(2), "++");
    EXPECT_EQ(Calls(2, "Tag"), "-+");
}

TEST_F(FaultPlanTest, Before_BaseClassOrAnyCase_IsTheSame)
{
    mPlan.Add({ .call = "CommandBarControl.Caption" });
    EXPECT_EQ(Calls(2), "-+");
    mPlan.Add({ .call = "commandbarcontrol.CAPTION" });
    EXPECT_EQ(Calls(2), "-+");
}

TEST_F(FaultPlanTest, Before_Keys_AreToldApart)
{
    mPlan.Add({ .call = "CommandBarButton.Item:Menu Bar", .times = 2 });
    EXPECT_EQ(Calls(2, "Item", "Standard"), "++");
    EXPECT_EQ(Calls(1, "Item", "menu bar"), "-");
    EXPECT_EQ(Calls(2, "Item"), "++");
    EXPECT_EQ(Calls(2, "Item", "Menu Bar"), "-+");
    mPlan.Add({ .call = "CommandBarButton.Item", .times = 2 });
    EXPECT_EQ(Calls(1, "Item", "Standard"), "-");
    EXPECT_EQ(Calls(2, "Item"), "-+");
}

TEST_F(FaultPlanTest, Add_Several_CountEachForItself)
{
    mPlan.Add({ .call = "CommandBarButton.Caption", .times = 2, .failure = Failure(1, "first") });
    mPlan.Add({ .call = "CommandBarControl.Caption", .skip = 1, .times = 2, .failure = Failure(2, "second") });
    EXPECT_EQ(Calls(1), "-");
    EXPECT_EQ(mLast.Description(), "first");
    EXPECT_EQ(Calls(1), "-");
    EXPECT_EQ(mLast.Description(), "first");
    EXPECT_EQ(Calls(2), "-+");
    EXPECT_EQ(mLast.Description(), "second");
}

TEST_F(FaultPlanTest, Add_NoTimes_PlansNothing)
{
    mPlan.Add({ .call = "CommandBarButton.Caption", .times = 0 });
    EXPECT_EQ(Calls(3), "+++");
}

TEST_F(FaultPlanTest, FailCall_Number_FailsThatCallOfAll)
{
    Calls(2);
    mPlan.FailCall(4);
    EXPECT_EQ(Calls(1, "Tag"), "+");
    EXPECT_EQ(mPlan.FailedCall(), "");
    EXPECT_EQ(Calls(1, "Style", "k"), "-");
    EXPECT_EQ(mPlan.FailedCall(), "CommandBarButton.Style:k");
    EXPECT_EQ(Calls(2), "++");
    EXPECT_EQ(mLast.Number(), 440);
}

}
