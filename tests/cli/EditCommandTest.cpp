#include "cli/CorrectionFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class EditCommandTest : public CorrectionFixture
{
};

}

TEST_F(EditCommandTest, Edit_Fields_AgreeWithTheSubject)
{
    const auto result = Run({ "edit", "@1", "--json", "--project", "Plan", "--description", "visit", "--application",
        "Meeting", "--people", "ann@x.example" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "Added: the project Plan\n");
    const auto answer = nlohmann::json::parse(result.out);
    ASSERT_EQ(answer.size(), 1U);
    const auto& item = answer.at(0);
    EXPECT_EQ(item.at("subject"), "[Plan] Meeting, visit");
    EXPECT_EQ(item.at("mileage"), "Plan");
    EXPECT_EQ(item.at("billingInformation"), "visit");
    EXPECT_EQ(item.at("properties").at("Project"), "Plan");
    EXPECT_EQ(item.at("properties").at("Type"), "Meeting");
    EXPECT_EQ(item.at("properties").at("Description"), "visit");
    EXPECT_EQ(item.at("properties").at("People"), "ann@x.example");
    EXPECT_THAT(item.at("body").get<std::string>(), HasSubstr("aside.doc"));
    EXPECT_EQ(item, Json({ "list" }).at(0));
}

TEST_F(EditCommandTest, Edit_Times_AreOfTheActivitysOwnDay)
{
    mNow = "2006-10-12T08:00:00";
    const auto answer = Answer({ "edit", "@2", "--start", "08:00", "--end", "2006-10-10T10:05" });
    EXPECT_EQ(Line(answer.at(0)), "@2 08:00-10:05 [Other] Microsoft Word, \"b.doc\"");
    EXPECT_EQ(answer.at(0).at("start"), "2006-10-10T08:00:00");
    EXPECT_EQ(answer.at(0).at("properties").at("StartTime"), "08:00");
    const auto moved = Answer({ "edit", "@2", "--start", "2006-10-09T23:00" }).at(0);
    EXPECT_EQ(moved.at("properties").at("Day"), "2006-10-09T00:00:00");
    EXPECT_EQ(moved.at("end"), "2006-10-10T10:05:00");
}

TEST_F(EditCommandTest, Edit_Several_AnswersInTheOrderGiven)
{
    const auto answer = Answer({ "edit", "@3", "@1", "@3", "--project", "no project", "--description", "x" });
    ASSERT_EQ(answer.size(), 2U);
    EXPECT_EQ(Line(answer.at(0)), "@3 09:15-09:30 Microsoft Word, x");
    EXPECT_EQ(Line(answer.at(1)), "@1 09:00-09:10 Microsoft Word, x");
    EXPECT_EQ(Run({ "edit", "@2", "--description", "" }).out, "@2 09:10–09:15  5 min  [Other] Microsoft Word\n");
}

TEST_F(EditCommandTest, Edit_UnknownNumber_ChangesNothing)
{
    const auto before = Everything();
    EXPECT_THAT(Refusal({ "edit", "@1", "@99", "--project", "New" }, 1), HasSubstr("there is no activity @99: see"));
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(Json({ "log" }), nlohmann::json::array());
}

TEST_F(EditCommandTest, Edit_BadArguments_AreUsageErrors)
{
    const auto before = Everything();
    Refusal({ "edit", "@1" }, 2);
    Refusal({ "edit", "1", "--project", "A" }, 2);
    Refusal({ "edit", "@1", "--project", " " }, 2);
    Refusal({ "edit", "@1", "--end", "25:00" }, 2);
    EXPECT_THAT(Refusal({ "edit", "@1", "--end", "09:00" }, 2), HasSubstr("give another --start or --end"));
    Refusal({ "edit", "@1", "--start", "09:10" }, 2);
    Refusal({ "edit", "@1", "@3", "--end", "09:12" }, 2);
    EXPECT_EQ(Everything(), before);
}

TEST_F(EditCommandTest, Edit_NothingOtherThanBefore_IsNoStep)
{
    Answer({ "edit", "@2", "--description", "\"b.doc\"" });
    EXPECT_EQ(Json({ "log" }), nlohmann::json::array());
}

}
