#include "terminal/TerminalText.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(TerminalTextTest, Harmless_ControlCharacters_BecomeSigns)
{
    EXPECT_EQ(Harmless("a\x1b[31mb\x07\x7f"), "a␛[31mb␇␡");
    EXPECT_EQ(Harmless("a\r\tb"), "a␍␉b");
    EXPECT_EQ(Harmless(std::string_view("a\0b", 3)), "a␀b");
    EXPECT_EQ(Harmless("a\xc2\x9b"
                       "31mb"),
        "a\uFFFD31mb");
}

TEST(TerminalTextTest, Harmless_LineFeed_Stays)
{
    EXPECT_EQ(Harmless("a\nb\n"), "a\nb\n");
}

TEST(TerminalTextTest, Harmless_MarksOfDirection_AreLeftOut)
{
    EXPECT_EQ(Harmless("a\u202Ecod.exe\u202C\u2066b\u2069\u200F\u200E\u061C"), "acod.exeb");
    EXPECT_EQ(Harmless("שלום"), "שלום");
}

TEST(TerminalTextTest, Harmless_Isolates_StayWhereTheyEndInTheirLine)
{
    EXPECT_EQ(Harmless("a\u2068b\u2069c\n"), "a\u2068b\u2069c\n");
    EXPECT_EQ(Harmless("\u2068a\u2068b\u2068c\n\u2069d"), "abc\nd");
    EXPECT_EQ(Harmless("\u2069a\u2068b\u2068c\u2069\u202Ed"), "ab\u2068c\u2069d");
}

TEST(TerminalTextTest, IsolatedLine_RightToLeftOrMarks_IsIsolated)
{
    EXPECT_EQ(IsolatedLine("a\tb"), "a b");
    EXPECT_EQ(IsolatedLine("שלום"), "\u2068שלום\u2069");
    EXPECT_EQ(IsolatedLine("خطة a"), "\u2068خطة a\u2069");
    EXPECT_EQ(IsolatedLine("a\u202Egpj.exe"), "\u2068agpj.exe\u2069");
    EXPECT_EQ(IsolatedLine("a\u2069\u202Eb\u2068"), "\u2068ab\u2069") << "it can't end the isolate";
    EXPECT_EQ(Harmless(IsolatedLine("שלום") + "\n"), "\u2068שלום\u2069\n");
}

TEST(TerminalTextTest, Isolated_RightToLeftOrMarks_KeepsTheOtherBytes)
{
    EXPECT_EQ(Isolated("a\x01\t\xff"), "a\x01\t\xff");
    EXPECT_EQ(Isolated("a\x01\t\xff\u202Eש"), "\u2068a\x01\t\xffש\u2069");
    EXPECT_TRUE(TurnsDirection("aש") && TurnsDirection("\u200E"));
    EXPECT_FALSE(TurnsDirection("") || TurnsDirection("売上 é \xff"));
}

TEST(TerminalTextTest, Harmless_BytesThatAreNoUtf8_AreReplacedOneByOne)
{
    EXPECT_EQ(Harmless("M\xfcller"), "M\uFFFDller");
    EXPECT_EQ(Harmless("\xe4\xb8"), "\uFFFD\uFFFD");
    EXPECT_EQ(Harmless("\xc0\x80"), "\uFFFD\uFFFD");
    EXPECT_EQ(Harmless("\xed\xa0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(Harmless("\xf4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(Harmless("Größe 売上 😀"), "Größe 売上 😀");
}

TEST(TerminalTextTest, HarmlessLine_LineEndsAndTabs_BecomeABlank)
{
    EXPECT_EQ(HarmlessLine("a\r\nb\nc\td"), "a b c d");
    EXPECT_EQ(HarmlessLine("a\rb"), "a␍b");
}

TEST(TerminalTextTest, DisplayWidth_WideAndCombining_CountAsDrawn)
{
    EXPECT_EQ(DisplayWidth(""), 0);
    EXPECT_EQ(DisplayWidth("abc"), 3);
    EXPECT_EQ(DisplayWidth("Größe"), 5);
    EXPECT_EQ(DisplayWidth("売上"), 4);
    EXPECT_EQ(DisplayWidth("e\u0301"), 1);
    EXPECT_EQ(DisplayWidth("😀"), 2);
    EXPECT_EQ(DisplayWidth("\u2068שלום\u2069"), 4);
    EXPECT_EQ(DisplayWidth("กำ"), 2);
    EXPECT_EQ(DisplayWidth("נָ"), 1);
    EXPECT_EQ(DisplayWidth("한"), 2);
    EXPECT_EQ(DisplayWidth("ｱｲ"), 2) << "half-width";
    EXPECT_EQ(DisplayWidth("\xff\U0010FFFF"), 2) << "what nobody knows takes one";
}

TEST(TerminalTextTest, Shortened_WidthOfColumns_IsKept)
{
    EXPECT_EQ(Shortened("abcdef", 4), "abc…");
    EXPECT_EQ(Shortened("abcdef", 1), "…");
    EXPECT_EQ(Shortened("売上表", 4), "売…") << "half a character isn't shown";
    EXPECT_EQ(Shortened("売上表", 5), "売上…");
    EXPECT_EQ(Shortened("e\u0301e\u0301e\u0301", 3), "e\u0301e\u0301…");
    EXPECT_EQ(Shortened("\u2068שלום\u2069", 3), "\u2068של…\u2069");
}

TEST(TerminalTextTest, InQuotes_RightToLeft_IsIsolatedWithinThem)
{
    EXPECT_EQ(InQuotes("a\nb"), "\"a b\"");
    EXPECT_EQ(InQuotes("שלום"), "\"\u2068שלום\u2069\"");
}

}
