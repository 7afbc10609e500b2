#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ProjectsCommandTest : public ProgramFixture
{
protected:
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& project : Json({ "projects" })) {
            names.push_back(project.at("name"));
        }
        return names;
    }
    static nlohmann::json Project(const std::string& name, const std::string& precedence,
        const std::string& subject = "", const std::string& notSubject = "", const std::string& people = "")
    {
        return { { "name", name }, { "precedence", precedence }, { "subject", subject }, { "notSubject", notSubject },
            { "people", people } };
    }
};

}

TEST_F(ProjectsCommandTest, Projects_NewProfile_AreTheDefaultOnes)
{
    EXPECT_EQ(Json({ "projects" }),
        nlohmann::json::array({ Project("Critical", "2"), Project("Other", "2"), Project("Personal", "2"),
            Project("Supportive", "2"), Project("Wish", "2") }));
}

TEST_F(ProjectsCommandTest, Projects_ForPeople_AreATable)
{
    for (const auto& name : Names()) {
        Run({ "projects", "remove", name });
    }
    EXPECT_EQ(Run({ "projects" }).out, "No projects.\n");
    Run({ "projects", "set", "売上", "--subject", "a, b", "--precedence", "low" });
    Run({ "projects", "set", "A", "--people", "Ann", "--precedence", "high" });
    EXPECT_EQ(Run({ "projects" }).out,
        "PROJECT  PRECEDENCE  SUBJECT  NOT SUBJECT  PEOPLE\n"
        "A        high                              Ann\n"
        "売上     low         a, b\n");
}

TEST_F(ProjectsCommandTest, Set_NewProject_IsMediumUnlessSaid)
{
    EXPECT_EQ(Json({ "projects", "set", "Plan" }), Project("Plan", "2"));
    EXPECT_EQ(Json({ "projects", "set", "Zebra", "--precedence", "high", "--subject", "z", "--not-subject", "n",
                  "--people", "Ann;Bob" }),
        Project("Zebra", "1", "z", "n", "Ann;Bob"));
    EXPECT_EQ(Json({ "projects", "set", "Aardvark", "--precedence", "low" }), Project("Aardvark", "3"));
    EXPECT_THAT(
        Names(), ElementsAre("Zebra", "Critical", "Other", "Personal", "Plan", "Supportive", "Wish", "Aardvark"));
}

TEST_F(ProjectsCommandTest, Set_KnownProject_KeepsWhatIsntNamed)
{
    Json(
        { "projects", "set", "Plan", "--subject", "s", "--not-subject", "n", "--people", "p", "--precedence", "high" });
    EXPECT_EQ(Json({ "projects", "set", "Plan" }), Project("Plan", "1", "s", "n", "p"));
    EXPECT_EQ(Json({ "projects", "set", "Plan", "--subject", "x" }), Project("Plan", "1", "x", "n", "p"));
    EXPECT_EQ(Json({ "projects", "set", "Plan", "--not-subject=" }), Project("Plan", "1", "x", "", "p"));
    EXPECT_EQ(Json({ "projects", "set", "Plan", "--people", "q" }), Project("Plan", "1", "x", "", "q"));
    EXPECT_EQ(Json({ "projects", "set", "Plan", "--precedence", "medium" }), Project("Plan", "2", "x", "", "q"));
    EXPECT_EQ(Json({ "projects", "set", "plan", "--subject", "y" }), Project("Plan", "2", "y", "", "q"));
    EXPECT_EQ(Json({ "projects" }).size(), 6U);
}

TEST_F(ProjectsCommandTest, Set_RulesWithEveryCharacter_ComeBackInTheNextRun)
{
    const std::string rule = R"("a, b" & <c> 'd' "e" Größe 売上 \)";
    Json({ "projects", "set", "R&D <'\">", "--subject", rule, "--people", rule });
    EXPECT_EQ(Json({ "projects" }).at(3), Project("R&D <'\">", "2", rule, "", rule));
}

TEST_F(ProjectsCommandTest, Set_Refused_SaysWhyAndChangesNothing)
{
    Json({ "projects" });
    EXPECT_EQ(Run({ "projects", "set", "a|b" }).error, "tempodial: Project names may not include the | character.\n");
    EXPECT_EQ(Run({ "projects", "set", "a|b" }).status, 1);
    EXPECT_EQ(Run({ "projects", "set", "No Project" }).error, "tempodial: Invalid project selected\n");
    EXPECT_EQ(Run({ "projects", "set", "No Project" }).status, 1);
    EXPECT_EQ(Run({ "projects", "set", "no project" }).error, "tempodial: Invalid project selected\n");
    for (const auto* option : { "--subject", "--not-subject", "--people" }) {
        EXPECT_THAT(Refusal({ "projects", "set", "Wish", option, "a|b" }, 1), HasSubstr("can't hold \"|\""));
    }
    for (const auto* name : { "", " ", "a\x01z" }) {
        EXPECT_THAT(Refusal({ "projects", "set", name }, 2), HasSubstr("the name of a project can't"));
    }
    EXPECT_THAT(Refusal({ "projects", "set", "a\uFFFE" }, 1), HasSubstr("a name can't hold control characters"));
    EXPECT_THAT(Refusal({ "projects", "set", "Wish", "--people", "a\rb" }, 1),
        HasSubstr("a rule can't hold control characters"));
    EXPECT_THAT(Refusal({ "projects", "set", "Wish", "--subject", "a\uFFFE" }, 1), HasSubstr("control characters"));
    EXPECT_THAT(Refusal({ "projects", "set", "Wish", "--precedence", "highest" }, 2), HasSubstr("high, medium or low"));
    EXPECT_THAT(Refusal({ "projects", "set" }, 2), HasSubstr("NAME is required"));
    EXPECT_THAT(Names(), ElementsAre("Critical", "Other", "Personal", "Supportive", "Wish"));
    EXPECT_EQ(Json({ "projects" }).at(4), Project("Wish", "2"));
}

TEST_F(ProjectsCommandTest, Set_RuleWithBothSeparators_IsWarnedOf)
{
    const auto set = [this](const std::string& option, const std::string& rule) {
        const auto result = Run({ "projects", "set", "Plan", option, rule, "--quiet" });
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out, "");
        return result.error;
    };
    for (const auto* option : { "--subject", "--not-subject" }) {
        EXPECT_EQ(set(option, "a, b;c ;d"),
            "tempodial: in the rule \"a, b;c ;d\" commas part the terms, and semicolons belong to them: it is read as "
            "a "
            "| b;c ;d\n");
        for (const auto* rule : { "a, b", "a; b", "\"a;b\", c", "\"a,b\"; c", "" }) {
            EXPECT_EQ(set(option, rule), "") << rule;
        }
    }
    EXPECT_EQ(set("--people", "Berger, Ann; Bob"), "") << "its terms stand between semicolons";
}

TEST_F(ProjectsCommandTest, Remove_KnownAndUnknown_AnswerSo)
{
    EXPECT_EQ(Json({ "projects", "remove", "wish" }), (nlohmann::json { { "removed", "Wish" } }));
    EXPECT_THAT(Names(), ElementsAre("Critical", "Other", "Personal", "Supportive"));
    EXPECT_THAT(Refusal({ "projects", "remove", "Wish" }, 1), HasSubstr("there is no project \"Wish\""));
    EXPECT_THAT(Refusal({ "projects", "remove" }, 2), HasSubstr("NAME is required"));
}

TEST_F(ProjectsCommandTest, Match_Subjects_GetTheProjectOfTheRules)
{
    Json({ "projects", "set", "Plan", "--subject", "plan, budget", "--not-subject", "draft", "--people", "Ann" });
    const auto match = [this](const Arguments& arguments) {
        Arguments whole { "projects", "match" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        return Json(whole).at("project").get<std::string>();
    };
    EXPECT_EQ(match({ "the PLAN" }), "Plan");
    EXPECT_EQ(match({ "budget draft" }), "No Project");
    EXPECT_EQ(match({ "budget draft", "--people", "Ann Berger" }), "Plan");
    EXPECT_EQ(match({ "" }), "No Project");
    EXPECT_EQ(Run({ "projects", "match", "the plan" }).out, "Plan\n");
    EXPECT_THAT(Refusal({ "projects", "match" }, 2), HasSubstr("SUBJECT is required"));
}

}
