#include "review/LikelyProjects.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;

/// An activity of that number, which is also the day on which it was.
Activity Numbered(int day, const std::string& project, const std::string& type, const std::string& description)
{
    auto activity = ActivityOn(day, 600, 660, project, type, description);
    activity.number = day;
    return activity;
}

const std::vector<std::string> Projects { "Admin", "Beta", "Gamma", "Delta", "Echo" };

}

TEST(LikelyProjectsTest, LikelyProjects_Past_OrdersByLikenessAndThenByUse)
{
    EXPECT_THAT(LikelyProjects(Projects, { Numbered(20, "", "Mail", "Inbox") },
                    { Numbered(1, "Delta", "Mail", "Inbox"), Numbered(2, "Gamma", "Mail", "Sent"),
                        Numbered(3, "beta", "Mail", "Inbox"), Numbered(4, "Echo", "Word", "Inbox"),
                        Numbered(5, "Gone", "Mail", "Inbox"), Numbered(6, "", "Mail", "Inbox") }),
        ElementsAre("Beta", "Delta", "Gamma", "Echo", "Admin"));
}

TEST(LikelyProjectsTest, LikelyProjects_SeveralUses_TakesTheLikestAndOfItTheLatest)
{
    EXPECT_THAT(LikelyProjects({ "A", "B" }, { Numbered(20, "", "Mail", "Inbox") },
                    { Numbered(1, "A", "Mail", "Inbox"), Numbered(2, "B", "Mail", "Inbox"),
                        Numbered(3, "A", "Mail", "Inbox"), Numbered(9, "B", "Word", "x") }),
        ElementsAre("A", "B"));
    EXPECT_THAT(LikelyProjects({ "A", "B" }, { Numbered(20, "", "Mail", "Inbox") },
                    { Numbered(9, "A", "Word", "x"), Numbered(8, "B", "Mail", "Inbox"),
                        Numbered(2, "A", "Mail", "Inbox"), Numbered(1, "B", "Word", "y") }),
        ElementsAre("B", "A"));
}

TEST(LikelyProjectsTest, LikelyProjects_SeveralChosen_CountEach)
{
    EXPECT_THAT(LikelyProjects({ "A", "B", "C" }, { Numbered(20, "", "Mail", "Inbox"), Numbered(21, "", "Word", "x") },
                    { Numbered(1, "C", "Word", "x"), Numbered(2, "B", "Mail", "Sent") }),
        ElementsAre("C", "B", "A"));
}

TEST(LikelyProjectsTest, LikelyProjects_WhatAllHave_IsNotOffered)
{
    const auto one = Numbered(20, "A", "Mail", "Inbox");
    EXPECT_THAT(LikelyProjects({ "a", "B" }, { one, one }, {}), ElementsAre("B"));
    EXPECT_THAT(LikelyProjects({ "B", "A" }, { one, Numbered(21, "B", "Mail", "Inbox") }, {}), ElementsAre("B", "A"));
}

TEST(LikelyProjectsTest, LikelyProjects_ChosenOnes_AreNoPast)
{
    const auto one = Numbered(20, "B", "Mail", "Inbox");
    const auto other = Numbered(21, "", "Mail", "Inbox");
    EXPECT_THAT(LikelyProjects({ "A", "B" }, { one, other }, { one, other }), ElementsAre("A", "B"));
}

TEST(LikelyProjectsTest, LikelyProjects_NothingChosen_AreByUse)
{
    EXPECT_THAT(LikelyProjects({ "A", "B" }, {}, { Numbered(1, "B", "Word", "x") }), ElementsAre("B", "A"));
}

}
