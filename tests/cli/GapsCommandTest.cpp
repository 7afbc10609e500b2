#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

class GapsCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"), WordSlot(34200, 34500, "b.doc"), WordSlot(35400, 35700, "c.doc") });
        WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc"), WordSlot(43200, 43500, "z.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
};

}

TEST_F(GapsCommandTest, Gaps_NewProfile_HasNone)
{
    Run({ "projects" });
    EXPECT_EQ(Json({ "gaps" }), nlohmann::json::array());
    EXPECT_EQ(Run({ "gaps" }).out, "No gaps over 15 minutes.\n");
}

TEST_F(GapsCommandTest, Gaps_UsualRange_IsToday)
{
    Import();
    EXPECT_EQ(Json({ "gaps" }), nlohmann::json::parse(R"([
        { "from": "2006-10-10T09:05:00", "to": "2006-10-10T09:30:00", "minutes": 25 } ])"));
    EXPECT_EQ(Json({ "gaps", "--longer", "14" }).size(), 2U);
    EXPECT_EQ(Json({ "gaps", "--longer", "15" }).size(), 1U) << "longer than that";
    EXPECT_EQ(Json({ "gaps", "-2d", "--longer", "25" }), nlohmann::json::parse(R"([
        { "from": "2006-10-09T09:05:00", "to": "2006-10-09T12:00:00", "minutes": 175 } ])"));
}

TEST_F(GapsCommandTest, Gaps_ForPeople_AreATable)
{
    Import();
    EXPECT_EQ(Run({ "gaps" }).out, "09:05–09:30  0:25\n\n1 gap, 0:25\n");
    EXPECT_EQ(Run({ "gaps", "-2d", "--quiet" }).out, "2006-10-09  09:05–12:00  2:55\n2006-10-10  09:05–09:30  0:25\n");
}

TEST_F(GapsCommandTest, Gaps_BadArguments_AreRefused)
{
    EXPECT_THAT(Refusal({ "gaps", "--longer", "-1" }, 2), HasSubstr("from 0 to 1440"));
    EXPECT_THAT(Refusal({ "gaps", "someday" }, 2), HasSubstr("RANGE can't be"));
}

}
