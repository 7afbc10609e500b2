#include "engine/projects/ProjectRule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAreArray;

namespace tempodial {

namespace {

struct CutCase
{
    const char* name;
    const char* rule;
    bool semicolon;
    std::vector<std::string> terms;
};

class ProjectRuleTest : public testing::TestWithParam<CutCase>
{
};

TEST_P(ProjectRuleTest, ForSubjects_RuleAsTyped_IsCutIntoTerms)
{
    const auto rule = ProjectRule::ForSubjects(GetParam().rule);
    EXPECT_EQ(ProjectRule::IsSemiColonSeparator(GetParam().rule), GetParam().semicolon);
    EXPECT_THAT(rule.Terms(), ElementsAreArray(GetParam().terms));
    EXPECT_EQ(rule.Text(), GetParam().rule);
}

INSTANTIATE_TEST_SUITE_P(Rules, ProjectRuleTest,
    testing::Values(CutCase { "Empty", "", false, {} }, CutCase { "OneWord", "plan", false, { "plan" } },
        CutCase { "Commas", "a, b", false, { "a", " b" } }, CutCase { "Blank", "a b", false, { "a b" } },
        CutCase { "SemiColons", "a;b", true, { "a", "b" } }, CutCase { "CommaWins", "a;b,c", false, { "a;b", "c" } },
        CutCase { "MiddleOfAPhraseStaysApart", "\"a,b,c\"", false, { "\"a,c\"", "b", "" } },
        CutCase { "CommaInQuotes", "\"annual, review\";budget", true, { "\"annual, review\"", "budget" } },
        CutCase { "PhraseJoined", "\"annual, review\", budget", false, { "\"annual, review\"", "", " budget" } },
        CutCase {
            "TwoPhrases", "\"annual, review\";\"budget, plan\"", true, { "\"annual, review\"", "\"budget, plan\"" } },
        CutCase { "OpenPhraseReplaced", "\"a, b, \"c, d\"", false, { "\"a", " b", " \"c, d\"", "" } },
        CutCase { "ClosingWithoutOpening", "a\", b\"", false, { "a\"", " b\"" } },
        CutCase { "SemiColonsInQuotes", "\"a;b\";c;\"d;e\"", true, { "\"a;b\"", "", "c", "\"d;e\"", "" } },
        CutCase { "QuotesInside", "\"a\"b,c\"d\"", false, { "\"a\"b,c\"d\"", "" } },
        CutCase { "QuoteInTheMiddle", "\"a,b\"c,d\"", false, { "\"a,d\"", "b\"c", "" } },
        CutCase { "OnlySeparatorInQuotes", "\"a;b\"", false, { "\"a;b\"" } },
        CutCase { "Unpaired", "\"a;b", true, { "\"a", "b" } }, CutCase { "LoneQuote", "\"", false, { "\"" } }),
    [](const auto& test) { return test.param.name; });

TEST(ProjectRulePlainTest, ForPeople_QuotesAndCommas_CutAtSemiColonsAlone)
{
    EXPECT_THAT(
        ProjectRule::ForPeople("Lee, Ann;\"Bob;Eve\"").Terms(), ElementsAreArray({ "Lee, Ann", "\"Bob", "Eve\"" }));
    EXPECT_TRUE(ProjectRule::ForPeople("").Terms().empty());
}

TEST(ProjectRulePlainTest, HasTerm_OtherCaseOrBlanks_IsAnotherTerm)
{
    const auto rule = ProjectRule::ForSubjects("a, b");
    EXPECT_TRUE(rule.HasTerm("a"));
    EXPECT_TRUE(rule.HasTerm(" b"));
    EXPECT_FALSE(rule.HasTerm("b"));
    EXPECT_FALSE(rule.HasTerm("A"));
}

TEST(ProjectRulePlainTest, MatchTerms_EmptyTerms_AreLeftOut)
{
    EXPECT_EQ(ProjectRule::ForSubjects(" , ,a").MatchTerms().size(), 1U);
}

}

}
