#include "engine/core/ProjectFacts.h"

#include <gtest/gtest.h>

namespace tempodial {

using Texts = std::vector<std::string>;

TEST(ProjectFactsTest, ListedProjects_Value_HasTheNames)
{
    EXPECT_EQ(ProjectListValue(), "Project List");
    EXPECT_EQ(ListedProjects("Plan|R&D <x>"), (Texts { "Plan", "R&D <x>" }));
    EXPECT_EQ(ListedProjects(""), Texts {});
}

TEST(ProjectFactsTest, SubjectTerms_Rule_AreAsTheyAreRead)
{
    EXPECT_EQ(SubjectTerms("a, b;c"), (Texts { "a", "b;c" }));
    EXPECT_EQ(SubjectTerms("a;b ; ;c d"), (Texts { "a", "b", "c d" }));
    EXPECT_EQ(SubjectTerms(R"("a, b", c)"), (Texts { R"("a, b")", "c" }));
    EXPECT_EQ(SubjectTerms(""), Texts {});
}

}
