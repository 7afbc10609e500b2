#include "base/Text.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tempodial {
namespace {

void ExpectInvalidCall(const std::function<void()>& call)
{
    try {
        call();
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 5);
    }
}

TEST(TextTest, Length_AnyText_CountsCodePoints)
{
    EXPECT_EQ(Length(""), 0);
    EXPECT_EQ(Length("abc"), 3);
    EXPECT_EQ(Length("häß"), 3);
    EXPECT_EQ(Length("0123456789€😀x"), 13);
    EXPECT_EQ(Length("😀0123456789012345"), 17);
}

TEST(TextTest, Length_BrokenUtf8_CountsEachByteThatBelongsToNoCharacter)
{
    EXPECT_EQ(Length("a\xff"
                     "b"),
        3);
    EXPECT_EQ(Length("\xc3"), 1) << "lead byte alone";
    EXPECT_EQ(Length("\xe2\x82"), 2) << "last byte is missing";
    EXPECT_EQ(Length("\xc0\xaf"), 2) << "overlong form of two bytes";
    EXPECT_EQ(Length("\xe0\x80\xaf"), 3) << "overlong form of three bytes";
    EXPECT_EQ(Length("\xf0\x8f\xbf\xbf"), 4) << "overlong form of four bytes";
    EXPECT_EQ(Length("\xed\xa0\x80"), 3) << "surrogate";
    EXPECT_EQ(Length("\xf4\x90\x80\x80"), 4) << "beyond U+10FFFF";
    EXPECT_EQ(Length("\x80\x80"), 2) << "continuation bytes alone";
}

TEST(TextTest, InStr_ExactSearch_GivesPositionFromOneOrZero)
{
    const struct
    {
        std::int32_t start;
        std::string text, find;
        std::int32_t expected;
    } rows[] = {
        { 1, "abcb", "b", 2 },
        { 3, "abcb", "b", 4 },
        { 1, "abc", "B", 0 },
        { 1, "abc", "", 1 },
        { 3, "abc", "", 3 },
        { 1, "", "a", 0 },
        { 1, "", "", 0 },
        { 9, "abc", "a", 0 },
        { 9, "abc", "", 0 },
        { 4, "abc", "c", 0 },
        { 1, "äöü", "ü", 3 },
        { 2, "ää", "ä", 2 },
        { 3, "ää", "ä", 0 },
        { 1, "häuser am see", "am", 8 },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(InStr(row.start, row.text, row.find), row.expected) << row.start << row.text << "," << row.find;
    }
    EXPECT_EQ(InStr("abcb", "b"), 2);
}

TEST(TextTest, InStr_StartBelowOne_Fails)
{
    ExpectInvalidCall([] { InStr(0, "abc", "a"); });
    ExpectInvalidCall([] { InStr(-1, "abc", "a"); });
}

TEST(TextTest, InStr_PieceOfACharacter_IsNotFoundInsideOfOne)
{
    EXPECT_EQ(InStr("é", "\xa9"), 0);
    EXPECT_EQ(InStr("é", "\xc3"), 0);
    EXPECT_EQ(InStr("é\xa9", "\xa9"), 2);
    EXPECT_EQ(InStr("a\xc3", "\xc3"), 2);
    EXPECT_EQ(Replace("é\xa9!", "\xa9", "?"), "é?!");
    EXPECT_EQ(InStrRev("\xa9é", "\xa9"), 1);
}

TEST(TextTest, InStrRev_ExactSearch_GivesLastPosition)
{
    EXPECT_EQ(InStrRev("abcb", "b"), 4);
    EXPECT_EQ(InStrRev("abc", "B"), 0);
    EXPECT_EQ(InStrRev("", "\""), 0);
    EXPECT_EQ(InStrRev("", ""), 0);
    EXPECT_EQ(InStrRev("abc", ""), 3);
    EXPECT_EQ(InStrRev("aaaa", "aa"), 3);
    EXPECT_EQ(InStrRev("\"ä\"", "\""), 3);
}

TEST(TextTest, Left_AnyLength_CutsCharacters)
{
    EXPECT_EQ(Left("abc", 2), "ab");
    EXPECT_EQ(Left("abc", 9), "abc");
    EXPECT_EQ(Left("abc", 0), "");
    EXPECT_EQ(Left("äöü", 2), "äö");
    EXPECT_EQ(Left("0123456789€x", 11), "0123456789€");
    ExpectInvalidCall([] { Left("abc", -1); });
}

TEST(TextTest, Right_AnyLength_CutsCharacters)
{
    EXPECT_EQ(Right("abc", 2), "bc");
    EXPECT_EQ(Right("abc", 9), "abc");
    EXPECT_EQ(Right("abc", 0), "");
    EXPECT_EQ(Right("äöü", 2), "öü");
    ExpectInvalidCall([] { Right("abc", -1); });
}

TEST(TextTest, Mid_AnyPlace_CutsCharacters)
{
    EXPECT_EQ(Mid("abc", 2), "bc");
    EXPECT_EQ(Mid("abc", 4), "");
    EXPECT_EQ(Mid("abc", 9), "");
    EXPECT_EQ(Mid("abc", 2, 99), "bc");
    EXPECT_EQ(Mid("abc", 2, 0), "");
    EXPECT_EQ(Mid("abc", 1, 1), "a");
    EXPECT_EQ(Mid("aäöb", 2, 2), "äö");
    EXPECT_EQ(Mid("aäöb", 3), "öb");
    ExpectInvalidCall([] { Mid("abc", 0); });
    ExpectInvalidCall([] { Mid("abc", 0, 1); });
    ExpectInvalidCall([] { Mid("abc", 2, -1); });
}

TEST(TextTest, Overwrite_AnyPlace_KeepsLength)
{
    const struct
    {
        std::string text;
        std::int32_t start, length;
        std::string by, expected;
    } rows[] = {
        { "abcdef", 3, 2, "XY", "abXYef" },
        { "abcdef", 5, 5, "12345", "abcd12" },
        { "abcdef", 1, 6, "XY", "XYcdef" },
        { "abcdef", 2, 1, "XY", "aXcdef" },
        { "abcdef", 2, 0, "XY", "abcdef" },
        { "abcdef", 2, 3, "", "abcdef" },
        { "äöü", 2, 9, "o€x", "äo€" },
    };
    for (const auto& row : rows) {
        auto text = row.text;
        Overwrite(text, row.start, row.length, row.by);
        EXPECT_EQ(text, row.expected);
    }
}

TEST(TextTest, Overwrite_PositionOutsideTheText_FailsAndChangesNothing)
{
    std::string text = "abc";
    ExpectInvalidCall([&] { Overwrite(text, 4, 1, "x"); });
    ExpectInvalidCall([&] { Overwrite(text, 0, 1, "x"); });
    ExpectInvalidCall([&] { Overwrite(text, 1, -1, "x"); });
    EXPECT_EQ(text, "abc");
}

TEST(TextTest, IsBlank_NothingButBlanksTabsAndCarriageReturns_IsTrue)
{
    EXPECT_TRUE(IsBlank(""));
    EXPECT_TRUE(IsBlank(" \t \r"));
    EXPECT_FALSE(IsBlank(" a "));
    EXPECT_FALSE(IsBlank(std::string_view("\0", 1)));
}

TEST(TextTest, Trim_BlanksAtTheEnds_AreTakenOffAndNothingElse)
{
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim(" \ta\r\n "), "\ta\r\n");
    EXPECT_EQ(Trim("\u00a0a"), "\u00a0a");
}

TEST(TextTest, Replace_AllOccurrences_WithoutLookingAtWhatWasPutIn)
{
    EXPECT_EQ(Replace("aaaa", "aa", "a"), "aa");
    EXPECT_EQ(Replace("abc", "", "x"), "abc");
    EXPECT_EQ(Replace("", "a", "b"), "");
    EXPECT_EQ(Replace("abc", "B", "x"), "abc");
    EXPECT_EQ(Replace("a.b.", ".", ".."), "a..b..");
    EXPECT_EQ(Replace("äöä", "ä", ""), "ö");
}

TEST(TextTest, Split_AnyText_GivesThePiecesBetweenSeparators)
{
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(Split("", ","), Pieces());
    EXPECT_EQ(Split("a", ","), Pieces({ "a" }));
    EXPECT_EQ(Split(",", ","), Pieces({ "", "" }));
    EXPECT_EQ(Split("a,,b", ","), Pieces({ "a", "", "b" }));
    EXPECT_EQ(Split("\"a,b\"", ","), Pieces({ "\"a", "b\"" }));
    EXPECT_EQ(Split("a - b - ", " - "), Pieces({ "a", "b", "" }));
    EXPECT_EQ(Split("a,b", ""), Pieces({ "a,b" }));
}

TEST(TextTest, Fold_LettersOfAnyScript_AreFoldedSimply)
{
    EXPECT_EQ(Fold("Hello [World] @`{ 19:AZaz"), "hello [world] @`{ 19:azaz");
    EXPECT_EQ(Fold("ÄÖÜ ŁŻ"), "äöü łż");
    EXPECT_EQ(Fold("ΣΑΣς"), "σασσ");
    EXPECT_EQ(Fold("ЖЯ"), "жя");
    EXPECT_EQ(Fold("\u212a"), "k") << "Kelvin sign";
    EXPECT_EQ(Fold("ß\u1e9e"), "ßß");
    EXPECT_EQ(Fold("\u0130\u0131"), "\u0130\u0131") << "the Turkish letters stay apart from i";
    EXPECT_EQ(Fold("I"), "i");
    EXPECT_EQ(Fold("\U00010400"), "\U00010428");
    EXPECT_EQ(Fold("日本"), "日本");
    EXPECT_EQ(Fold("A\xff"
                   "B"),
        "a\xff"
        "b");
}

TEST(TextTest, Fold_EachAsciiCharacterAtEachPlace_ChangesCapitalsOnly)
{
    for (int code = 0; code < 128; ++code) {
        const auto character = static_cast<char>(code);
        const auto expected = code >= 'A' && code <= 'Z' ? static_cast<char>(code + 32) : character;
        for (std::size_t place = 0; place < 20; ++place) {
            std::string text(20, '-');
            std::string folded = text;
            text[place] = character;
            folded[place] = expected;
            ASSERT_EQ(Fold(text), folded) << code << " at " << place;
        }
    }
}

TEST(TextTest, CompareIgnoringCase_AnyTexts_OrdersFoldedCharacters)
{
    EXPECT_EQ(CompareIgnoringCase("Alpha", "aLPHA"), 0);
    EXPECT_LT(CompareIgnoringCase("alpha", "Beta"), 0);
    EXPECT_GT(CompareIgnoringCase("Gamma", "beta"), 0);
    EXPECT_LT(CompareIgnoringCase("alpha", "Alphabet"), 0);
    EXPECT_GT(CompareIgnoringCase("Alphabet", "alpha"), 0);
    EXPECT_LT(CompareIgnoringCase("", "a"), 0);
    EXPECT_EQ(CompareIgnoringCase("Ärger", "äRGER"), 0);
    EXPECT_LT(CompareIgnoringCase("Zebra", "Ärger"), 0);
    EXPECT_LT(CompareIgnoringCase("Ärger", "Éclair"), 0);
    EXPECT_TRUE(EqualIgnoringCase("\u212aelvin", "kelvin"));
    EXPECT_TRUE(EqualIgnoringCase("Kelvin", "\u212aelvin"));
    EXPECT_FALSE(EqualIgnoringCase("a", "b"));
    EXPECT_FALSE(EqualIgnoringCase("\u212a", "a"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("", "a"));
    EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
}

TEST(TextTest, InStrIgnoringCase_AnyTexts_GivesCharacterPosition)
{
    EXPECT_EQ(InStrIgnoringCase("abc", "B"), 2);
    EXPECT_EQ(InStrIgnoringCase("Weekly REPORT", "report"), 8);
    EXPECT_EQ(InStrIgnoringCase("ÄÖÜ", "ü"), 3);
    EXPECT_EQ(InStrIgnoringCase("abc", "x"), 0);
    EXPECT_EQ(InStrIgnoringCase("abc", ""), 1);
    EXPECT_EQ(InStrIgnoringCase("", ""), 0);
}

}
}
