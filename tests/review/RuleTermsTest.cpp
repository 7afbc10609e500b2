#include "review/RuleTerms.h"

#include "engine/projects/FoldedText.h"
#include "engine/projects/ProjectRule.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

/// The rule with another term; "refused" when there is none.
std::string Added(const std::string& rule, const std::string& term)
{
    RuleTerms terms(rule);
    return terms.Add(term) ? terms.Rule() : "refused";
}

std::string Removed(const std::string& rule, const std::string& term)
{
    RuleTerms terms(rule);
    return terms.Remove(term) ? terms.Rule() : "refused";
}

}

TEST(RuleTermsTest, Add_NewTerm_StandsBehindTheOthers)
{
    EXPECT_EQ(Added("", "plan"), "plan");
    EXPECT_EQ(Added("plan", "kick-off meeting"), "plan, kick-off meeting");
    EXPECT_EQ(Added("a, b", " c "), "a, b, c");
}

TEST(RuleTermsTest, Add_Semicolons_StayTheSeparator)
{
    EXPECT_EQ(Added("a; b", "c"), "a; b; c");
    EXPECT_EQ(Added("a; b", "c, d"), "a; b; \"c, d\"");
    EXPECT_EQ(Added("a; b", "\"c, d\""), "a; b; \"c, d\"");
    EXPECT_EQ(Added("a", "b;c"), "a, \"b;c\"");
}

TEST(RuleTermsTest, Add_KnownTerm_ChangesNothing)
{
    for (const auto* term : { "b", "B", " b " }) {
        EXPECT_EQ(Added("a ,b,c", term), "a ,b,c");
    }
    EXPECT_EQ(Added("\"a, b\"", "A, B"), "\"a, b\"");
}

TEST(RuleTermsTest, Add_WhatNoRuleCanHold_IsRefused)
{
    EXPECT_EQ(Added("a", ""), "refused");
    EXPECT_EQ(Added("a", "  "), "refused");
    EXPECT_EQ(Added("a", "\"b, c"), "refused");
    EXPECT_EQ(Added("\"a", "b\""), "refused") << "the two would be one";
}

TEST(RuleTermsTest, Remove_KnownTerm_LeavesTheOthers)
{
    EXPECT_EQ(Removed("a, b, c", "B"), "a, c");
    EXPECT_EQ(Removed("a", "a"), "");
    EXPECT_EQ(Removed("a; b; c", "a"), "b; c");
    EXPECT_EQ(Removed("a; \"b, c\"; d", "b, c"), "a; d");
    EXPECT_EQ(Removed("a, b, A", "a"), "b");
    EXPECT_EQ(Removed("a, b", "c"), "refused");
    EXPECT_EQ(Removed("", "c"), "refused");
}

TEST(RuleTermsTest, Remove_LeavesATermWithTheOtherSeparator_KeepsItWhole)
{
    const auto rule = Removed("a, b;c", "a");
    EXPECT_EQ(rule, "b;c,");
    const auto read = ProjectRule::ForSubjects(rule);
    EXPECT_NE(read.TermIn(FoldedText("b;c")), nullptr);
    EXPECT_EQ(read.TermIn(FoldedText("b")), nullptr);
}

}
