#include "track/PendingTime.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

SlotView PendingView(const std::string& program)
{
    SlotView view;
    view.program = program;
    return view;
}

TEST(PendingTimeTest, Confirm_StretchOverTwoSlots_IsPutIntoBoth)
{
    PendingTime pending;
    pending.Add({ 200000, 700000, PendingView("A") });
    pending.Confirm(650000);
    ASSERT_EQ(pending.Slots().size(), 3U);
    EXPECT_EQ(pending.Slots()[0].presence, 100000);
    EXPECT_EQ(pending.Slots()[1].presence, 300000);
    EXPECT_EQ(pending.Slots()[2].presence, 50000);
    EXPECT_EQ(pending.Slots()[2].views[0].seconds, 50000);
    ASSERT_EQ(pending.Stretches().size(), 1U);
    EXPECT_EQ(pending.Stretches()[0].begin, 650000);
}

TEST(PendingTimeTest, Drop_UpToAMoment_LeavesTheRest)
{
    PendingTime pending;
    pending.Add({ 0, 100, PendingView("A") });
    pending.Add({ 100, 200, PendingView("B") });
    pending.Drop(150);
    ASSERT_EQ(pending.Stretches().size(), 1U);
    EXPECT_EQ(pending.Stretches()[0], (ViewStretch { 150, 200, PendingView("B") }));
    EXPECT_TRUE(pending.Slots().empty());
}

TEST(PendingTimeTest, Add_SameViewGoesOn_IsOneStretch)
{
    PendingTime pending;
    pending.Add({ 0, 100, PendingView("A") });
    pending.Add({ 100, 200, PendingView("A") });
    pending.Add({ 200, 200, PendingView("A") });
    ASSERT_EQ(pending.Stretches().size(), 1U);
    EXPECT_EQ(pending.Stretches()[0].end, 200);
}

TEST(PendingTimeTest, Take_SlotsThatHaveEnded_LeavesTheOneInHand)
{
    PendingTime pending;
    pending.Add({ 0, 400000, PendingView("A") });
    pending.Confirm(400000);
    EXPECT_EQ(pending.Take(400000).size(), 1U);
    EXPECT_TRUE(pending.Take(400000).empty());
    EXPECT_TRUE(pending.TakeCounting().empty());
    pending.Add({ 400000, 460000, PendingView("A") });
    pending.Confirm(460000);
    EXPECT_EQ(pending.TakeCounting().size(), 1U);
    EXPECT_TRUE(pending.Slots().empty());
}

TEST(PendingTimeTest, Forget_WhatReachesBehindAMoment_IsGone)
{
    PendingTime pending;
    pending.Add({ 0, 700000, PendingView("A") });
    pending.Confirm(650000);
    pending.Forget(320000);
    ASSERT_EQ(pending.Slots().size(), 1U);
    EXPECT_EQ(pending.Slots()[0].start, 0);
    EXPECT_TRUE(pending.Stretches().empty());
}

TEST(PendingTimeTest, Restore_SlotInHand_GoesOn)
{
    PendingTime pending;
    pending.Restore({ .start = 300, .presence = 250000, .views = { { PendingView("A"), 250000 } } });
    pending.Add({ 500000, 700000, PendingView("A") });
    pending.Confirm(700000);
    ASSERT_EQ(pending.Slots().size(), 2U);
    EXPECT_EQ(pending.Slots()[0].presence, 300000);
    EXPECT_EQ(pending.Slots()[0].ToTimes().views[0].seconds, 350);
}

}

}
