#include "cli/CorrectionFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class JoinCommandTest : public CorrectionFixture
{
};

}

TEST_F(JoinCommandTest, Join_WhicheverIsNamedFirst_KeepsTheOneThatStartsFirst)
{
    const auto answer = Json({ "join", "@3", "@2" });
    ASSERT_EQ(answer.size(), 1U);
    EXPECT_EQ(Line(answer.at(0)), "@2 09:10-09:30 [Other] Microsoft Word, \"b.doc\"");
    EXPECT_EQ(Json({ "list" }).size(), 2U);
}

TEST_F(JoinCommandTest, Join_Bodies_StandOneBelowTheOther)
{
    const auto body = Body(1);
    Json({ "split", "@1", "--at", "09:03" });
    Json({ "join", "@1", "@4" });
    EXPECT_EQ(Body(1), body);
    Json({ "join", "@2", "@3" });
    EXPECT_EQ(Body(2), "");
    Answer({ "edit", "@2", "--start", "08:00" });
    Json({ "join", "@1", "@2" });
    EXPECT_EQ(Body(2), body);
}

TEST_F(JoinCommandTest, Join_OneWithinTheOther_KeepsTheLaterEnd)
{
    Answer({ "edit", "@1", "--end", "10:00" });
    EXPECT_THAT(Line(Json({ "join", "@2", "@1" }).at(0)), testing::StartsWith("@1 09:00-10:00 "));
}

TEST_F(JoinCommandTest, Join_WithItselfOrUnknown_IsRefused)
{
    const auto before = Everything();
    Refusal({ "join", "@1", "@1" }, 2);
    Refusal({ "join", "@1" }, 2);
    Refusal({ "join", "@1", "@9" }, 1);
    EXPECT_EQ(Everything(), before);
}

}
