#include "track/x11/CompoundText.h"

#include <gtest/gtest.h>

namespace tempodial {

using namespace std::string_view_literals;

TEST(CompoundTextTest, FromLatin1_AnyByte_IsACharacter)
{
    EXPECT_EQ(FromLatin1("a\xe9\xff"), "a\u00e9\u00ff");
    EXPECT_EQ(FromLatin1(""), "");
}

TEST(CompoundTextTest, FromCompoundText_WithoutEscapes_IsLatin1)
{
    EXPECT_EQ(FromCompoundText("caf\xe9 \xa0x\n"), "caf\u00e9 \u00a0x\n");
    EXPECT_EQ(FromCompoundText(""), "");
}

TEST(CompoundTextTest, FromCompoundText_Utf8_IsItself)
{
    EXPECT_EQ(FromCompoundText("a\x1b%G\u2013\u20ac\x1b%@\xe9"), "a\u2013\u20ac\u00e9");
    EXPECT_EQ(FromCompoundText("\x1b%G\u20ac cut\xe2\x82"), "\u20ac cut");
}

TEST(CompoundTextTest, FromCompoundText_NationalSets_AreConverted)
{
    EXPECT_EQ(FromCompoundText("\x1b-B\xb9\x1b-C\xa1\x1b-D\xa2"), "\u0161\u0126\u0138");
    EXPECT_EQ(FromCompoundText("\x1b-F\xe1\x1b-G\xc7\x1b-H\xe0"), "\u03b1\u0627\u05d0");
    EXPECT_EQ(FromCompoundText("\x1b-L\xbf\xe0\x1b-M\xfe\x1b-b\xa4"), "\u041f\u0440\u015f\u20ac");
    EXPECT_EQ(FromCompoundText("\x1b$(B\x46\x7c\x4b\x5c \x1b(Bx"), "\u65e5\u672c x");
    EXPECT_EQ(FromCompoundText("\x1b$)A\xd6\xd0\x1b$)C\xb0\xa1"), "\u4e2d\uac00");
    EXPECT_EQ(FromCompoundText("\x1b)I\xb1\xb2"), "\uff71\uff72");
    EXPECT_EQ(FromCompoundText("\x1b$(D\x30\x21"), "\u4e02");
}

TEST(CompoundTextTest, FromCompoundText_NamedSegments_AreConverted)
{
    EXPECT_EQ(FromCompoundText("<\x1b%/1\x80\x88koi8-r\x02\xc1>"), "<\u0430>");
    EXPECT_EQ(FromCompoundText("<\x1b%/1\x80\x88secret\x02x>"), "<>");
    EXPECT_EQ(FromCompoundText("<\x1b%/1\xff\xffkoi8-r\x02\xc1"), "<\u0430");
    EXPECT_EQ(FromCompoundText("\x1b%/2\x80\x82xy>"), ">");
}

TEST(CompoundTextTest, FromCompoundText_Directions_AreLeftOut)
{
    EXPECT_EQ(FromCompoundText("a\x9b"
                               "2]b\x9b]c"),
        "abc");
    EXPECT_EQ(FromCompoundText("a\x9b"), "a");
}

TEST(CompoundTextTest, FromCompoundText_CutOrUnknown_LosesOnlyThat)
{
    for (const auto text : { "a\x1b"sv, "a\x1b("sv, "a\x1b$"sv, "a\x1b$("sv, "a\x1b%"sv, "a\x1b%/"sv, "a\x1b%/1\x80"sv,
             "a\x1b$(B\x46"sv, "a\x1b-L"sv }) {
        EXPECT_EQ(FromCompoundText(text), "a") << text;
    }
    EXPECT_EQ(FromCompoundText("\x1b-?\xe9\x1b-A\xe9"), "\u00e9");
    EXPECT_EQ(FromCompoundText("a\x1b #9b"), "ab");
}

}
