#include "engine/projects/TempodialProject.h"

#include "base/Text.h"
#include "support/TraceFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace tempodial {

namespace {

class TempodialProjectTest : public TraceFixture
{
protected:
    Ref<TempodialProject> Project(
        const std::string& subjects, const std::string& notSubjects = "", const std::string& people = "")
    {
        const auto project = MakeRef<TempodialProject>(mPlatform);
        project->Initialize(mLog, "Alpha", subjects, people, notSubjects, "2");
        ForgetTrace();
        return project;
    }
};

TEST_F(TempodialProjectTest, Initialize_Rules_AreTracedInTheOrderSubjectPeopleNotSubject)
{
    const auto project = MakeRef<TempodialProject>(mPlatform);
    project->Initialize(mLog, "Alpha", "sub", "peop", "not", "1");
    EXPECT_THAT(Traced(),
        ElementsAre("TDProject Initialize revision 1 TempodialProject", "TDProject Project Init: Alpha sub peop not"));
    EXPECT_EQ(project->GetName(), "Alpha");
    EXPECT_EQ(project->GetSubjectRule(), "sub");
    EXPECT_EQ(project->GetPeopleRule(), "peop");
    EXPECT_EQ(project->GetNotSubjectRule(), "not");
    EXPECT_EQ(project->GetPrecedence(), "1");
}

TEST_F(TempodialProjectTest, Terminate_Project_LetsGoOfItsTexts)
{
    const auto project = Project("plan", "draft", "Ann");
    project->Terminate();
    EXPECT_EQ(project->GetName(), "");
    EXPECT_EQ(project->GetSubjectRule(), "");
    EXPECT_EQ(project->GetPeopleRule(), "");
    EXPECT_EQ(project->GetNotSubjectRule(), "");
    EXPECT_EQ(project->GetPrecedence(), "");
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialProjectTest, SetPrecedence_AnyValue_IsStoredAsText)
{
    const auto project = Project("");
    project->SetPrecedence(3);
    EXPECT_EQ(project->GetPrecedence(), "3");
    project->SetPrecedence(std::string("7"));
    EXPECT_EQ(project->GetPrecedence(), "7");
    project->SetPrecedence(Date());
    EXPECT_EQ(project->GetPrecedence(), "7");
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialProjectTest, IsSemiColonSeparator_Rule_IsJudgedOutsideQuotes)
{
    const auto project = Project("");
    EXPECT_TRUE(project->IsSemiColonSeparator("\"a,b\";c"));
    EXPECT_FALSE(project->IsSemiColonSeparator("\"a;b\",c"));
}

struct AppendCase
{
    const char* rule;
    const char* appended;
    const char* after;
    std::size_t terms;
};

TEST_F(TempodialProjectTest, AppendSubjectRule_Text_ChoosesTheSeparator)
{
    for (const auto& [rule, appended, after, terms] :
        { AppendCase { "", "plan", "plan", 1 }, AppendCase { "plan", "Plan", "plan,Plan", 2 },
            AppendCase { "a, b", "b", "a, b,b", 3 }, AppendCase { "a, b", " b", "a, b", 2 },
            AppendCase { "a;b", "c", "a;b,c", 2 }, AppendCase { "a", "x;y", "a;x;y", 3 },
            AppendCase { "a,b", "x;y", "a,b;x;y", 2 }, AppendCase { "a;b", "x;y", "a;b;x;y", 4 },
            AppendCase { "a;b", "\"p,q\"", "a;b,\"p,q\"", 3 }, AppendCase { "\"p,q\"", "\"p,q\"", "\"p,q\"", 2 },
            AppendCase { "a;b", "a;b", "a;b;a;b", 4 }, AppendCase { "plan", "", "plan", 1 } }) {
        const auto project = Project(rule);
        project->AppendSubjectRule(appended);
        EXPECT_EQ(project->GetSubjectRule(), after);
        EXPECT_EQ(ProjectRule::ForSubjects(after).Terms().size(), terms) << after;
    }
}

TEST_F(TempodialProjectTest, AppendPeopleRule_Name_GoesBehindASemiColon)
{
    for (const auto& [rule, appended, after] :
        std::vector<std::array<const char*, 3>> { { "Ann", "Bob", "Ann;Bob" }, { "Ann", "ann", "Ann;ann" },
            { "", "Ann", "Ann" }, { "Ann", "", "Ann" }, { "Ann;Bob", "Bob", "Ann;Bob" } }) {
        const auto project = Project("", "", rule);
        project->AppendPeopleRule(appended);
        EXPECT_EQ(project->GetPeopleRule(), after);
    }
}

struct MatchCase
{
    const char* subject;
    const char* rule;
    const char* notRule;
    bool match;
};

TEST_F(TempodialProjectTest, isSubjectMatch_SubjectAndRules_AnswersWhetherItBelongs)
{
    for (const auto& [subject, rule, notRule, match] : { MatchCase { "Weekly REPORT", "report", "", true },
             MatchCase { "Report", "port", "", true }, MatchCase { "Budget draft", "budget", "draft", false },
             MatchCase { "Budget", "budget", "draft", true }, MatchCase { "Draft", "budget", "draft", false },
             MatchCase { "b and a", "a b", "", true }, MatchCase { "b or c", "a b", "", false },
             MatchCase { "a b", "a  b", "", true }, MatchCase { "x", "\"\"", "", true },
             MatchCase { "", "\"\"", "", false }, MatchCase { "plan", "\"plan", "", true },
             MatchCase { "plan", "plan\"", "", true }, MatchCase { "annual,  review", "\"annual, review\"", "", false },
             MatchCase { "the Annual, Review", "\"annual, review\", budget", "", true },
             MatchCase { "anything", "", "x", false }, MatchCase { "anything", "", "", false },
             MatchCase { "a;b", "a;b,c", "", true }, MatchCase { "a and b", "a;b,c", "", false },
             MatchCase { "say a\"b", "a\"b", "", true }, MatchCase { "say ab", "a\"b", "", false },
             MatchCase { "second", "first, second", "", true }, MatchCase { "a c", "\"a,b,c\"", "", false },
             MatchCase { "has b", "\"a,b,c\"", "", true }, MatchCase { "", "a", "", false },
             MatchCase { "two words", "\" words\"", "", true }, MatchCase { "words", "\" words\"", "", false },
             MatchCase { "GR\xC3\x9C\xC3\x9F"
                         "E",
                 "gr\xC3\xBC\xC3\x9F"
                 "e",
                 "", true } }) {
        EXPECT_EQ(Project(rule, notRule)->isSubjectMatch(subject), match) << subject << " by " << rule;
    }
}

TEST_F(TempodialProjectTest, isSubjectMatch_LoneQuote_FailsOncePerTest)
{
    EXPECT_TRUE(Project("\"")->isSubjectMatch("x"));
    EXPECT_THAT(Traced(), ElementsAre("TDProject isMatch Invalid procedure call or argument:match thing"));
    EXPECT_FALSE(Project("\"")->isSubjectMatch(""));
    EXPECT_THAT(Traced(), ElementsAre("TDProject isMatch Invalid procedure call or argument:match thing"));
    EXPECT_TRUE(Project("zz,\"")->isSubjectMatch("y"));
    EXPECT_THAT(Traced(), ElementsAre("TDProject isMatch Invalid procedure call or argument:iterate"));
}

TEST_F(TempodialProjectTest, isSubjectMatch_UnquotedTerm_IsTracedWhenItHits)
{
    EXPECT_TRUE(Project("zz, plan")->isSubjectMatch("Plan"));
    EXPECT_THAT(Traced(), ElementsAre("TDProject unquoted match"));
    EXPECT_TRUE(Project("\"plan\"")->isSubjectMatch("Plan"));
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialProjectTest, isSubjectMatch_NoSubjectTermHits_StillTriesNotSubjectTerms)
{
    EXPECT_FALSE(Project("budget", "draft")->isSubjectMatch("Draft"));
    EXPECT_THAT(Traced(), ElementsAre("TDProject unquoted match"));
}

TEST_F(TempodialProjectTest, isPeopleMatch_People_AnswersWhetherTheyBelong)
{
    EXPECT_TRUE(Project("", "", "Ann Lee;Bob")->isPeopleMatch("Bobby"));
    EXPECT_TRUE(Project("", "", "Ann Lee;Bob")->isPeopleMatch("Lee, Ann"));
    EXPECT_FALSE(Project("", "", "Ann Lee;Bob")->isPeopleMatch("Ann"));
    EXPECT_FALSE(Project("", "", "\"\"")->isPeopleMatch(""));
    EXPECT_TRUE(Project("", "", "\"Lee, Ann\"")->isPeopleMatch("lee, ann"));
    EXPECT_FALSE(Project("", "", "\"Ann;Bob\"")->isPeopleMatch("Eve"));
}

TEST_F(TempodialProjectTest, isPeopleMatch_LoneQuote_FailsOncePerTest)
{
    EXPECT_TRUE(Project("", "", "\"")->isPeopleMatch("x"));
    EXPECT_THAT(Traced(), ElementsAre("TDProject isMatch Invalid procedure call or argument:match thing"));
}

TEST_F(TempodialProjectTest, SetSubjectRule_OtherRule_ReplacesTheTerms)
{
    const auto project = Project("plan", "draft", "Ann");
    project->SetSubjectRule("budget");
    project->SetNotSubjectRule("old");
    project->SetPeopleRule("Bob");
    EXPECT_FALSE(project->isSubjectMatch("plan"));
    EXPECT_TRUE(project->isSubjectMatch("budget draft"));
    EXPECT_FALSE(project->isSubjectMatch("old budget"));
    EXPECT_FALSE(project->isPeopleMatch("Ann"));
    EXPECT_TRUE(project->isPeopleMatch("Bob"));
}

TEST_F(TempodialProjectTest, isFoldedSubjectMatch_FoldedText_MatchesLikeTheTextItself)
{
    EXPECT_TRUE(Project("REPORT")->isFoldedSubjectMatch(FoldedText("Weekly Report")));
    EXPECT_TRUE(Project("", "", "ANN")->isFoldedPeopleMatch(FoldedText("Ann")));
}

}

}
