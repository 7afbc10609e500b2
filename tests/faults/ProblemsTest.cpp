#include "faults/Problems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

using testing::ElementsAre;

TEST(ProblemsTest, Note_MessageTwice_IsKeptOnceInOrder)
{
    Problems problems;
    problems.Note("b");
    problems.Note("a");
    problems.Note("b");
    EXPECT_THAT(problems.Messages(), ElementsAre("b", "a"));
}

TEST(ProblemsTest, NoteFile_Message_IsThatOfTheFile)
{
    Problems problems;
    problems.NoteFile("/a b", "couldn't be read");
    problems.NoteFile("/a b", "couldn't be read");
    EXPECT_THAT(problems.Messages(), ElementsAre("/a b couldn't be read"));
    EXPECT_TRUE(problems.HasOneWith("/a b"));
    EXPECT_FALSE(problems.HasOneWith("/a"));
}

TEST(ProblemsTest, HasOneWith_MessageThatNamesAFile_IsFalse)
{
    Problems problems;
    problems.Note("/a couldn't be read");
    EXPECT_FALSE(problems.HasOneWith("/a"));
}

}
