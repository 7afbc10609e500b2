#include "review/KeywordCandidates.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

}

TEST(KeywordCandidatesTest, KeywordCandidates_Activity_AreDescriptionApplicationAndPeople)
{
    auto activity = ActivityOn(9, 0, 1, "", "Outlook", "Budget - Ann Lee; Bob;");
    activity.people = "Ann Lee; Bob;";
    EXPECT_THAT(KeywordCandidates(activity), ElementsAre("Budget", "\"Outlook\"", "Ann Lee", " Bob"));
}

TEST(KeywordCandidatesTest, KeywordCandidates_LongTexts_AreCut)
{
    const std::string sixty(60, 'x');
    EXPECT_THAT(
        KeywordCandidates(ActivityOn(9, 0, 1, "", sixty + "y", sixty + "z")), ElementsAre(sixty, "\"" + sixty + "\""));
}

TEST(KeywordCandidatesTest, KeywordCandidates_WhatIsEmpty_IsNotOffered)
{
    EXPECT_THAT(KeywordCandidates(ActivityOn(9, 0, 1, "A", "", "")), IsEmpty());
}

}
