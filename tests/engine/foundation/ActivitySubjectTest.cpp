#include "engine/foundation/ActivitySubject.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(ActivitySubjectTest, Subject_OfEitherOrBoth_LeavesOutWhatIsntKnown)
{
    EXPECT_EQ(ActivitySubject("Word", "a.doc"), "Word, a.doc");
    EXPECT_EQ(ActivitySubject("Word", ""), "Word");
    EXPECT_EQ(ActivitySubject("Word", "None"), "Word");
    EXPECT_EQ(ActivitySubject("Word", "none"), "Word, none");
    EXPECT_EQ(ActivitySubject("", "a.doc"), "a.doc");
    EXPECT_EQ(ActivitySubject("", ""), "");
}

TEST(ActivitySubjectTest, WithoutPeople_Description_LosesThemWithOrWithoutTheirLastSeparator)
{
    EXPECT_EQ(WithoutPeople("Budget - Ann;", "Ann;"), "Budget");
    EXPECT_EQ(WithoutPeople("Budget - Ann", "Ann;"), "Budget");
    EXPECT_EQ(WithoutPeople("Budget", "Ann;"), "Budget");
}

}
