#include "cli/CorrectionFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

class AddCommandTest : public CorrectionFixture
{
};

}

TEST_F(AddCommandTest, Add_WithoutProject_IsGivenItByTheRules)
{
    Run({ "projects", "set", "Visits", "--subject", "visit" });
    const auto answer = Json(
        { "add", "--from", "13:00", "--to", "14:30", "--application", "Meeting", "--description", "site visit" });
    ASSERT_EQ(answer.size(), 1U);
    EXPECT_EQ(Line(answer.at(0)), "@4 13:00-14:30 [Visits] Meeting, site visit");
    EXPECT_EQ(answer.at(0).at("start"), "2006-10-10T13:00:00");
    EXPECT_EQ(answer.at(0).at("duration"), 90);
    EXPECT_EQ(answer.at(0).at("body"), "");
    EXPECT_EQ(Line(Json({ "add", "--from", "15:00", "--to", "15:30" }).at(0)), "@5 15:00-15:30 ");
}

TEST_F(AddCommandTest, Add_Project_ComesIntoBeing)
{
    const auto result = Run({ "add", "--from", "2006-10-09T13:00", "--to", "2006-10-09T13:05", "--project", "New" });
    EXPECT_EQ(result.out, "@4 13:00–13:05  5 min  [New]\n");
    EXPECT_EQ(result.error, "Added: the project New\n");
    EXPECT_EQ(Json({ "list", "--project", "New", "yesterday" }).size(), 1U);
}

TEST_F(AddCommandTest, Add_IntoAnotherDay_WarnsWhereANightIsShorter)
{
    const auto night = Run({ "add", "--from", "2006-10-08T18:01", "--to", "2006-10-09T06:00" });
    EXPECT_EQ(night.error, "");
    const auto longer = Run({ "add", "--from", "2006-10-08T18:00", "--to", "2006-10-09T06:00" });
    EXPECT_EQ(longer.status, 0);
    EXPECT_THAT(longer.error, HasSubstr("lasts 12 hours"));
    EXPECT_THAT(Run({ "edit", "@1", "--end", "2006-10-12T10:00" }).error, HasSubstr("lasts 49 hours"));
    EXPECT_EQ(Run({ "edit", "@1", "--description", "seen" }).error, "") << "its times were warned of already";
}

TEST_F(AddCommandTest, Add_BadArguments_AreUsageErrors)
{
    const auto before = Everything();
    EXPECT_THAT(Refusal({ "add", "--from", "13:00", "--to", "13:00" }, 2), HasSubstr("isn't later than"));
    Refusal({ "add", "--from", "13:00" }, 2);
    Refusal({ "add", "--from", "13:00", "--to", "14:00", "--project", "" }, 2);
    EXPECT_EQ(Run({ "add", "--from", "13:00", "--to", "14:00", "--project", "a|b" }).status, 1);
    EXPECT_EQ(Everything(), before);
}

}
