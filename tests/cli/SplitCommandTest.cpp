#include "cli/CorrectionFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SplitCommandTest : public CorrectionFixture
{
};

}

TEST_F(SplitCommandTest, Split_FirstHalf_KeepsNumberAndBody)
{
    const auto answer = Json({ "split", "@1", "--at", "09:03" });
    ASSERT_EQ(answer.size(), 2U);
    const auto subject = answer.at(0).at("subject").get<std::string>();
    EXPECT_EQ(Line(answer.at(0)), "@1 09:00-09:03 " + subject);
    EXPECT_EQ(Line(answer.at(1)), "@4 09:03-09:10 " + subject);
    EXPECT_THAT(answer.at(0).at("body").get<std::string>(), HasSubstr("aside.doc"));
    EXPECT_EQ(answer.at(1).at("body"), "");
    EXPECT_EQ(answer.at(1).at("properties").at("StartTime"), "09:03");
    EXPECT_EQ(Json({ "list" }).size(), 4U);
}

TEST_F(SplitCommandTest, Split_ProjectAndPeople_AreThoseOfBoth)
{
    Answer({ "edit", "@2", "--people", "ann@x.example", "--project", "No Project" });
    Run({ "projects", "set", "Rule", "--subject", "word" });
    const auto answer = Json({ "split", "@2", "--at", "2006-10-10T09:12" });
    for (const auto& item : answer) {
        EXPECT_EQ(item.at("properties").at("Project"), "No Project");
        EXPECT_EQ(item.at("properties").at("People"), "ann@x.example");
    }
}

TEST_F(SplitCommandTest, Split_OutsideOrAtAnEnd_IsRefused)
{
    const auto before = Everything();
    for (const auto* at : { "09:00", "09:10", "08:00", "2006-10-09T09:05" }) {
        EXPECT_THAT(Refusal({ "split", "@1", "--at", at }, 1), HasSubstr("isn't within the activity")) << at;
    }
    Refusal({ "split", "@1", "--at", "9" }, 2);
    Refusal({ "split", "@9", "--at", "09:05" }, 1);
    EXPECT_EQ(Everything(), before);
}

}
