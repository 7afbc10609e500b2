#include "engine/projects/FoldedText.h"

#include "base/Text.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {

namespace {

TEST(FoldedTextTest, Contains_AnyPieceOfTheText_IsFoundWhateverItsCase)
{
    const std::string text = "Weekly REPORT: \xC3\x9C"
                             "bersicht 10%";
    const FoldedText folded(text);
    for (std::int32_t start = 1; start <= Length(text); ++start) {
        for (std::int32_t length = 0; length <= Length(text); ++length) {
            const auto piece = Mid(text, start, length);
            EXPECT_TRUE(folded.Contains(Fold(piece))) << piece;
        }
    }
}

TEST(FoldedTextTest, Contains_OtherText_IsNotFound)
{
    const FoldedText folded("abcab");
    EXPECT_FALSE(folded.Contains("ba"));
    EXPECT_FALSE(folded.Contains("x"));
    // All of its letter pairs occur.
    EXPECT_FALSE(folded.Contains("bcabc"));
    // Its letters share the places of those of the text.
    EXPECT_FALSE(folded.Contains("!\""));
    EXPECT_FALSE(folded.Contains("abcabc"));
}

TEST(FoldedTextTest, Contains_EmptyText_HoldsNothing)
{
    const FoldedText empty("");
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_FALSE(empty.Contains(""));
    EXPECT_FALSE(empty.Contains("a"));
    EXPECT_FALSE(FoldedText("a").IsEmpty());
    EXPECT_TRUE(FoldedText("a").Contains(""));
}

}

}
