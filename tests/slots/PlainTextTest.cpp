#include "slots/PlainText.h"

#include "base/Ascii.h"
#include "base/Text.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(PlainTextTest, PlainText_WhatNobodySees_IsOut)
{
    EXPECT_EQ(PlainText("a\x01\x1f\x7f"
                        "b\u0085c"),
        "ab c");
    EXPECT_EQ(PlainText("Microsoft\u200b Edge\ufeff"), "Microsoft Edge");
    EXPECT_EQ(PlainText("\u202eexe.\u2066doc\u2069\u061c"), "exe.doc");
    EXPECT_EQ(PlainText("a\ufffe\uffff\U0001fffe"
                        "b"),
        "ab");
}

TEST(PlainTextTest, PlainText_BytesThatAreNoCharacter_AreOut)
{
    EXPECT_EQ(PlainText("B\xfcro \xed\xa0\x80x\xf0\x9f"), "Bro x");
}

TEST(PlainTextTest, PlainText_Blanks_AreOneAndNoneAtTheEnds)
{
    EXPECT_EQ(PlainText("\t a \r\n\u00a0\u3000 b \n"), "a b");
    EXPECT_EQ(PlainText(" \n"), "");
}

TEST(PlainTextTest, PlainText_LettersOfAllScripts_Stay)
{
    EXPECT_EQ(PlainText("売上 Überblick \U0001F600 שלום"), "売上 Überblick \U0001F600 שלום");
}

TEST(PlainTextTest, Shortened_LongText_EndsInAnEllipsis)
{
    EXPECT_EQ(Shortened("abcdef", 6), "abcdef");
    EXPECT_EQ(Shortened("äbcdefg", 6), "äbcde\u2026");
    EXPECT_EQ(Shortened("abcd efg", 6), "abcd\u2026");
    EXPECT_EQ(Length(Shortened(std::string(10000, 'x'), LongestText)), 200);
}

TEST(PlainTextTest, NodeText_WordForNothing_IsAnotherWord)
{
    EXPECT_EQ(NodeText(" None ", LongestText), "none");
    EXPECT_EQ(NodeText("None of it", LongestText), "None of it");
}

}
