#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

/// The terms and the preview of `projects set`.
class ProjectsSetCommandTest : public ProgramFixture
{
protected:
    std::string Subject(const Arguments& arguments)
    {
        Arguments whole { "projects", "set", "Plan" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        return Json(whole).at("subject");
    }
};

}

TEST_F(ProjectsSetCommandTest, Terms_AddedAndTakenAway_LeaveTheOthers)
{
    EXPECT_EQ(Subject({ "--add-subject", "plan", "--add-subject", "big budget" }), "plan, big budget");
    EXPECT_EQ(Subject({ "--add-subject", "PLAN" }), "plan, big budget") << "one that is there isn't added";
    EXPECT_EQ(Subject({ "--add-subject", "a, b", "--remove-subject", "plan" }), "big budget, \"a, b\"");
    EXPECT_EQ(Subject({ "--subject", "a; b", "--add-subject", "c" }), "a; b; c") << "a semicolon stays";
    EXPECT_EQ(Subject({ "--remove-subject", "a", "--remove-subject", "b", "--remove-subject", "c" }), "");
}

TEST_F(ProjectsSetCommandTest, Terms_ThatCantBe_ChangeNothing)
{
    Subject({ "--subject", "plan" });
    EXPECT_THAT(Refusal({ "projects", "set", "Plan", "--remove-subject", "x", "--add-subject", "y" }, 1),
        HasSubstr("has no term \"x\""));
    EXPECT_THAT(Refusal({ "projects", "set", "Plan", "--add-subject", "a|b" }, 1), HasSubstr("can't hold \"|\""));
    EXPECT_THAT(Refusal({ "projects", "set", "Plan", "--add-subject", " " }, 2), HasSubstr("--add-subject can't be"));
    EXPECT_THAT(Refusal({ "projects", "set", "Plan", "today" }, 2), HasSubstr("goes with --preview"));
    EXPECT_EQ(Subject({}), "plan");
}

TEST_F(ProjectsSetCommandTest, Preview_NewRule_ListsWhatItWouldChange)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "plan.doc"), WordSlot(32700, 33600, "lunch.doc") });
    WriteTracker("20061002", { WordSlot(32400, 32700, "plan.doc") });
    Run({ "sync" });
    const auto preview = [this](const Arguments& arguments) {
        Arguments whole { "projects", "set", "Plan", "--add-subject", "plan", "--preview" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        return Json(whole);
    };
    EXPECT_EQ(preview({}), nlohmann::json::parse(R"({ "changed": 1, "keptByHand": 0, "changes": [
        { "from": "No Project", "to": "Plan", "activities": 1, "minutes": 5 } ] })"));
    EXPECT_EQ(preview({ "month" }).at("changed"), 2);
    EXPECT_EQ(preview({ "--not-subject", "doc" }).at("changed"), 0);
    EXPECT_EQ(Json({ "projects" }).size(), 5U) << "nothing was written";
    EXPECT_EQ(Run({ "projects", "set", "Plan", "--add-subject", "plan", "--preview" }).out,
        "FROM        TO    ACTIVITIES  TIME\n"
        "No Project  Plan           1  0:05\n"
        "\n"
        "1 activity would change\n");
    EXPECT_EQ(Run({ "projects", "set", "a|b", "--preview" }).status, 1);
    EXPECT_EQ(Run({ "projects", "set", "No Project", "--preview" }).status, 1);
}

}
