#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// The commands that give projects to activities: on 9 October an activity at 09:00, on the 10th three from 09:00 on.
class AssignCommandTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33000, "b.doc").Node("Project", "Other").Text(),
                WordSlot(33000, 33300, "c.doc") });
        WriteTracker("20061009", { WordSlot(32400, 32700, "a.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    std::vector<std::string> Projects() const
    {
        std::vector<std::string> projects;
        for (const auto& item : Json({ "list", "--from", "yesterday" })) {
            projects.push_back(item.at("properties").at("Project"));
            EXPECT_EQ(item.at("mileage"), projects.back());
        }
        return projects;
    }
    static nlohmann::json Changed(int count) { return { { "changed", count } }; }
    static Arguments Assign(const std::string& name, const std::string& from, const std::string& to)
    {
        return { "assign", name, "--from", "2006-10-" + from, "--to", "2006-10-" + to };
    }
};

}

TEST_F(AssignCommandTest, Assign_Span_TakesItsBeginAndNotItsEnd)
{
    const auto result = Run(Assign("Plan", "09T09:00", "10T09:10"));
    EXPECT_EQ(result.out, "2 activities changed\n");
    EXPECT_EQ(result.error, "Added: the project Plan\n");
    EXPECT_THAT(Projects(), ElementsAre("Plan", "Plan", "Other", "No Project"));
    EXPECT_EQ(Json({ "projects" }).size(), 6U) << "the project came into being";
    const auto again = Run(Assign("Plan", "09T09:00", "10T09:10"));
    EXPECT_EQ(again.out, "0 activities changed\n");
    EXPECT_THAT(again.error, HasSubstr("give --overwrite"));
}

TEST_F(AssignCommandTest, Assign_Numbers_TakesThoseWithoutAProject)
{
    EXPECT_EQ(Run({ "assign", "Plan", "@1", "@2", "@1" }).out, "1 activity changed\n");
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Plan", "Other", "No Project"));
    EXPECT_EQ(Json({ "assign", "plan", "@2", "@3", "--overwrite" }), Changed(2));
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Plan", "Plan", "Plan"));
    EXPECT_EQ(Json({ "assign", "no project", "@3", "--overwrite" }), Changed(1));
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Plan", "Plan", "No Project"));
}

TEST_F(AssignCommandTest, Assign_ProjectsThatStay_AreToldWithTheOptionThatChangesThem)
{
    const auto result = Run({ "assign", "Plan", "@2", "@3" });
    EXPECT_EQ(result.out, "1 activity changed\n");
    EXPECT_EQ(result.error,
        "Added: the project Plan\n"
        "tempodial: 1 activity keeps the project that it has: give --overwrite to change that, too\n");
    EXPECT_EQ(Run({ "assign", "plan", "@3" }).error, "") << "it has that project already";
    EXPECT_EQ(Run({ "assign", "Other", "@2", "@3", "--quiet" }).error, "");
    EXPECT_THAT(Run(Assign("no project", "10T00:00", "11T00:00")).error, HasSubstr("2 activities keep the projects"));
    EXPECT_EQ(Run({ "assign", "Plan", "@2", "--overwrite" }).error, "");
}

TEST_F(AssignCommandTest, Assign_Touching_TakesWhatOverlaps)
{
    EXPECT_EQ(Run({ "assign", "Plan", "--from", "09:04", "--to", "09:10" }).out, "0 activities changed\n");
    EXPECT_EQ(Run({ "assign", "Plan", "--from", "09:04", "--to", "09:10", "--touching" }).out, "1 activity changed\n");
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Plan", "Other", "No Project"));
    EXPECT_EQ(Json({ "assign", "Plan", "--from", "09:05", "--to", "09:10", "--touching", "--overwrite" }), Changed(1));
    EXPECT_EQ(Json({ "assign", "Other", "--from", "2006-10-01T00:00", "--to", "2006-10-09T09:01", "--touching" }),
        Changed(1));
    EXPECT_EQ(Json({ "assign", "Other", "--from", "11:00", "--to", "12:00", "--touching" }), Changed(0));
}

TEST_F(AssignCommandTest, Assign_NumbersAndSpans_AreNotMixed)
{
    EXPECT_THAT(Refusal({ "assign", "Plan", "@1", "--from", "09:00", "--to", "10:00" }, 2), HasSubstr("can't both"));
    Refusal({ "assign", "Plan", "@1", "--touching" }, 2);
    Refusal({ "assign", "Plan", "@1", "--to", "10:00" }, 2);
    Refusal({ "assign", "Plan", "1" }, 2);
    EXPECT_THAT(Refusal({ "assign", "Plan" }, 2), HasSubstr("no activities are named"));
    Refusal({ "assign", "Plan", "--from", "09:00" }, 2);
    EXPECT_THAT(Refusal({ "assign", "Plan", "@1", "@99" }, 1), HasSubstr("there is no activity @99"));
    EXPECT_EQ(Json({ "projects" }).size(), 5U) << "nothing came into being";
}

TEST_F(AssignCommandTest, Assign_Overwrite_ChangesThoseThatHaveAProject)
{
    auto arguments = Assign("Plan", "10T09:00", "10T23:59");
    arguments.emplace_back("--overwrite");
    arguments.emplace_back("--quiet");
    EXPECT_EQ(Json(arguments), Changed(3));
    EXPECT_EQ(Json(arguments), Changed(0)) << "they have it";
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Plan", "Plan", "Plan"));
}

TEST_F(AssignCommandTest, Assign_NoProject_TakesTheProjectAway)
{
    auto arguments = Assign("nO proJect", "10T09:00", "10T23:59");
    arguments.emplace_back("--overwrite");
    EXPECT_EQ(Run(arguments).status, 0);
    EXPECT_THAT(Projects(), ElementsAre("No Project", "No Project", "No Project", "No Project"));
    EXPECT_EQ(Json({ "projects" }).size(), 5U) << "it is no project of the list";
}

TEST_F(AssignCommandTest, Assign_NameInOtherCase_GivesTheNameKept)
{
    EXPECT_EQ(Json(Assign("wISH", "10T09:00", "10T09:05")), Changed(1));
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Wish", "Other", "No Project"));
}

TEST_F(AssignCommandTest, Assign_NameThatNoProjectMayHave_IsAUsageError)
{
    for (const auto* name : { "", " ", "\u3000", "a\x01z", "a\nb", "a\tb", "a\x7f", "a\u0085" }) {
        EXPECT_THAT(Refusal(Assign(name, "10T09:00", "10T10:00"), 2), HasSubstr("the name of a project can't"));
    }
    EXPECT_THAT(Projects(), ElementsAre("No Project", "No Project", "Other", "No Project"));
}

TEST_F(AssignCommandTest, Assign_Refused_ChangesNothing)
{
    EXPECT_EQ(Run(Assign("a|b", "10T09:00", "10T10:00")).error,
        "tempodial: Project names may not include the | character.\n");
    EXPECT_EQ(Run(Assign("a|b", "10T09:00", "10T10:00")).status, 1);
    EXPECT_EQ(Run(Assign("<New project..>", "10T09:00", "10T10:00")).status, 1);
    EXPECT_THAT(Refusal(Assign("Wish", "10T10:00", "10T10:00"), 2), HasSubstr("isn't earlier than --to"));
    EXPECT_THAT(Refusal(Assign("Wish", "10", "10T10:00"), 2), HasSubstr("YYYY-MM-DDTHH:MM"));
    EXPECT_THAT(Refusal({ "assign", "Wish", "--from", "2006-10-10T09:00" }, 2), HasSubstr("--to is required"));
    EXPECT_THAT(Projects(), ElementsAre("No Project", "No Project", "Other", "No Project"));
    EXPECT_EQ(Json({ "projects" }).size(), 5U);
}

TEST_F(AssignCommandTest, Apply_Days_CountTodayAsTheFirst)
{
    Json({ "projects", "set", "Wish", "--subject", R"("a.doc", "b.doc")" });
    EXPECT_EQ(Json({ "apply", "wish", "--days", "1" }).at("changed"), 2);
    EXPECT_THAT(Projects(), ElementsAre("No Project", "Wish", "Wish", "No Project"));
    EXPECT_EQ(Json({ "apply", "Wish" }).at("changed"), 1) << "two have it already";
    EXPECT_THAT(Projects(), ElementsAre("Wish", "Wish", "Wish", "No Project"));
    EXPECT_EQ(Run({ "apply", "Wish" }).out, "0 activities changed\n");
}

TEST_F(AssignCommandTest, Apply_Refused_SaysWhy)
{
    EXPECT_THAT(Refusal({ "apply", "Nothing" }, 1), HasSubstr("there is no project \"Nothing\""));
    EXPECT_THAT(Refusal({ "apply", "No Project" }, 1), HasSubstr("there is no project \"No Project\""));
    for (const auto* days : { "0", "-1", "x", "1.5", "" }) {
        EXPECT_THAT(Refusal({ "apply", "Wish", "--days", days }, 2), HasSubstr("--days can't be"));
    }
    EXPECT_THAT(Refusal({ "apply" }, 2), HasSubstr("NAME is required"));
}

}
