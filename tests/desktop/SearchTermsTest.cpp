#include "desktop/SearchTerms.h"

#include "review/Activities.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

bool Finds(const std::string& typed)
{
    auto activity = ActivityOn(9, 0, 10, "Riverside", "Writer", "Größe des Plans.odt");
    activity.people = "Ann Lee;";
    return SearchTerms(typed).Match(activity);
}

}

TEST(SearchTermsTest, Match_Words_AreInAnyField)
{
    for (const auto* typed : { "river", "WRITER", "größe plans", "GRÖ", "lee", "lee river  plan", "", "  " }) {
        EXPECT_TRUE(Finds(typed)) << typed;
    }
}

TEST(SearchTermsTest, Match_AWordThatIsNowhere_FindsNothing)
{
    EXPECT_FALSE(Finds("river bank"));
    EXPECT_FALSE(Finds("sidewriter"));
    EXPECT_FALSE(Finds("riversidewriter"));
}

TEST(SearchTermsTest, Match_NoProject_IsFoundByItsName)
{
    EXPECT_TRUE(SearchTerms("no project").Match(ActivityOn(9, 0, 10, "")));
    EXPECT_FALSE(SearchTerms("no project").Match(ActivityOn(9, 0, 10, "A")));
}

TEST(SearchTermsTest, AreEmpty_Blanks_AreNoWords)
{
    EXPECT_TRUE(SearchTerms("  ").AreEmpty());
    EXPECT_FALSE(SearchTerms(" a ").AreEmpty());
}

}
