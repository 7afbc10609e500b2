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

TEST_F(JoinCommandTest, Join_AcrossDays_WarnsOfTheLength)
{
    Answer({ "edit", "@3", "--start", "2006-10-12T12:00", "--end", "2006-10-12T12:10" });
    const auto result = Run({ "join", "@1", "@3", "--quiet" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error,
        "tempodial: the activity lasts 51 hours, from 2006-10-10T09:00:00 to 2006-10-12T12:10:00: if that is wrong, "
        "\"tempodial undo\" takes it back\n");
    Answer({ "undo" });
    Answer({ "edit", "@3", "--start", "2006-10-10T22:00", "--end", "2006-10-10T23:50" });
    EXPECT_EQ(Run({ "join", "@1", "@3" }).error, "") << "a long day may be meant";
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
