#include "review/RuleTrial.h"

#include "review/Rules.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using Rule = RuleTrial::Rule;

RuleTrial::Result TryPlan(const std::string& subject, const std::string& people)
{
    const RuleTrial trial({ Ruled("Plan", "2", " plan , \"big, budget\"", "draft; old", "Ann") });
    auto result = trial.Try(subject, people).at(0);
    result.project = nullptr;
    return result;
}

}

TEST(RuleTrialTest, Try_SubjectHit_TellsTheTermAsTyped)
{
    const auto word = TryPlan("the PLANNING", "");
    EXPECT_TRUE(word.matches);
    EXPECT_EQ(word.rule, Rule::Subject);
    EXPECT_EQ(word.term, "plan");
    EXPECT_EQ(word.excludedBy, std::nullopt);
    EXPECT_EQ(TryPlan("a Big, Budget", "").term, "\"big, budget\"");
}

TEST(RuleTrialTest, Try_NothingHit_TellsNothing)
{
    const auto result = TryPlan("lunch, draft", "Bob");
    EXPECT_FALSE(result.matches);
    EXPECT_EQ(result.rule, Rule::None);
    EXPECT_EQ(result.term, std::nullopt);
    EXPECT_EQ(result.excludedBy, std::nullopt) << "there was nothing to exclude";
}

TEST(RuleTrialTest, Try_Excluded_TellsBothTerms)
{
    const auto result = TryPlan("an old plan", "");
    EXPECT_FALSE(result.matches);
    EXPECT_EQ(result.rule, Rule::Subject);
    EXPECT_EQ(result.term, "plan");
    EXPECT_EQ(result.excludedBy, "old");
}

TEST(RuleTrialTest, Try_PeopleOfAnExcludedSubject_MatchAllTheSame)
{
    const auto result = TryPlan("an old plan", "Bob; Ann Berger");
    EXPECT_TRUE(result.matches);
    EXPECT_EQ(result.rule, Rule::People);
    EXPECT_EQ(result.term, "Ann");
    EXPECT_EQ(result.excludedBy, "old");
}

TEST(RuleTrialTest, Try_SubjectAndPeople_GoesByTheSubject)
{
    EXPECT_EQ(TryPlan("plan", "Ann").rule, Rule::Subject);
    EXPECT_EQ(TryPlan("lunch", "Ann").rule, Rule::People);
}

TEST(RuleTrialTest, First_Projects_AreTriedInTheirOrder)
{
    const RuleTrial trial({ Ruled("B", "1", "x", "y"), Ruled("A", "2", "x"), Ruled("C", "2", "", "", "Ann") });
    const auto first = [&trial](const char* subject, const char* people) {
        const auto* project = trial.First(FoldedText(subject), FoldedText(people));
        return project == nullptr ? "none" : project->name;
    };
    EXPECT_EQ(first("x", ""), "B");
    EXPECT_EQ(first("x y", ""), "A");
    EXPECT_EQ(first("y", "ann"), "C");
    EXPECT_EQ(first("y", ""), "none");
    EXPECT_EQ(first("", ""), "none");
    EXPECT_EQ(trial.Named("b"), &trial.Projects()[0]);
    EXPECT_EQ(trial.Named("D"), nullptr);
}

}
