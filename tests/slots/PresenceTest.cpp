#include "slots/Presence.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using Stretches = std::vector<Presence::Stretch>;

}

TEST(PresenceTest, Add_Overlapping_CountsOnce)
{
    Presence presence;
    presence.Add(100, 200);
    presence.Add(150, 180);
    presence.Add(0, 120);
    presence.Add(200, 210);
    presence.Add(300, 300);
    presence.Add(400, 350);
    EXPECT_EQ(presence.Stretches(), (Stretches { { 0, 210 } }));
    EXPECT_EQ(presence.Seconds(), 210);
}

TEST(PresenceTest, Add_AnyOrder_GivesTheSame)
{
    Presence presence;
    for (const auto begin : { 500, 100, 300, 700, 0 }) {
        presence.Add(begin, begin + 50);
    }
    EXPECT_EQ(presence.Stretches(), (Stretches { { 0, 50 }, { 100, 150 }, { 300, 350 }, { 500, 550 }, { 700, 750 } }));
}

TEST(PresenceTest, Remove_Middle_LeavesBothSides)
{
    Presence presence;
    presence.Add(0, 100);
    presence.Add(200, 300);
    Presence away;
    away.Add(50, 60);
    away.Add(150, 250);
    away.Add(290, 400);
    presence.Remove(away);
    EXPECT_EQ(presence.Stretches(), (Stretches { { 0, 50 }, { 60, 100 }, { 250, 290 } }));
}

TEST(PresenceTest, Bridge_GapsUpToTheLimit_AreFilled)
{
    Presence presence;
    presence.Add(0, 100);
    presence.Add(280, 300);
    presence.Add(481, 500);
    presence.Bridge(180);
    EXPECT_EQ(presence.Stretches(), (Stretches { { 0, 300 }, { 481, 500 } }));
}

TEST(PresenceTest, Within_CountsWhatLiesBetween)
{
    Presence presence;
    presence.Add(0, 100);
    presence.Add(200, 300);
    EXPECT_EQ(presence.Within(50, 250), 100);
    EXPECT_EQ(presence.Within(100, 200), 0);
    EXPECT_EQ(presence.Within(300, 400), 0);
    EXPECT_EQ(presence.Within(-10, 1000), 200);
}

TEST(PresenceTest, ForEach_BetweenTwoMoments_GivesTheCutStretches)
{
    Presence presence;
    presence.Add(0, 10);
    presence.Add(20, 30);
    presence.Add(40, 50);
    Stretches seen;
    presence.ForEach(5, 41, [&seen](std::int64_t begin, std::int64_t end) { seen.push_back({ begin, end }); });
    EXPECT_EQ(seen, (Stretches { { 5, 10 }, { 20, 30 }, { 40, 41 } }));
    seen.clear();
    presence.ForEach(10, 20, [&seen](std::int64_t begin, std::int64_t end) { seen.push_back({ begin, end }); });
    EXPECT_TRUE(seen.empty());
}

}
