#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

class UnassignedCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"), WordLine(33000, 36600, "b.doc").Node("Project", "Plan").Text(),
                WordSlot(36600, 38400, "offer.doc") });
        WriteTracker("20061009", { WordSlot(32400, 33000, "a.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
};

}

TEST_F(UnassignedCommandTest, Unassigned_NewProfile_IsEmpty)
{
    Run({ "projects" });
    EXPECT_EQ(Json({ "unassigned", "today" }), nlohmann::json::parse(R"({ "from": "2006-10-10", "to": "2006-10-10",
        "minutes": 0, "ofMinutes": 0, "groups": [], "words": [] })"));
    EXPECT_EQ(Run({ "unassigned" }).out, "No time without a project.\n");
}

TEST_F(UnassignedCommandTest, Unassigned_Week_IsGroupedWithItsWords)
{
    Import();
    EXPECT_EQ(Json({ "unassigned" }), nlohmann::json::parse(R"({ "from": "2006-10-08", "to": "2006-10-14",
        "minutes": 45, "ofMinutes": 105,
        "groups": [
            { "application": "Microsoft Word", "description": "\"offer.doc\"", "minutes": 30, "times": 1,
                "last": "2006-10-10T10:10:00" },
            { "application": "Microsoft Word", "description": "\"a.doc\"", "minutes": 15, "times": 2,
                "last": "2006-10-10T09:00:00" } ],
        "words": [ { "word": "doc", "minutes": 45 } ] })"))
        << "the other words are covered by the first";
    EXPECT_EQ(Json({ "unassigned", "yesterday" }).at("minutes"), 10);
}

TEST_F(UnassignedCommandTest, Unassigned_Rows_AreThoseOfTheTextAlone)
{
    Import();
    EXPECT_EQ(Run({ "unassigned", "--rows", "1" }).out,
        "TIME  TIMES  LAST        APPLICATION     DESCRIPTION\n"
        "0:30      1  2006-10-10  Microsoft Word  \"offer.doc\"\n"
        "… and 1 more (--rows)\n"
        "\n"
        "TIME  WORD\n"
        "0:45  doc\n"
        "\n"
        "0:45 of 1:45 belong to no project.\n");
    EXPECT_EQ(Json({ "unassigned", "--rows", "1" }).at("groups").size(), 2U);
    EXPECT_THAT(Refusal({ "unassigned", "--rows", "-1" }, 2), HasSubstr("--rows can't be"));
}

}
