#include "base/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {
namespace {

TEST(Utf8Test, DecodeUtf8_EachLength_GivesCodePointAndSize)
{
    const struct
    {
        std::string text;
        char32_t code;
    } rows[] = { { std::string(1, '\0'), 0 }, { "\x7f", 0x7f }, { "\xc2\x80", 0x80 }, { "\xdf\xbf", 0x7ff },
        { "\xe0\xa0\x80", 0x800 }, { "\xed\x9f\xbf", 0xd7ff }, { "\xee\x80\x80", 0xe000 }, { "\xef\xbf\xbf", 0xffff },
        { "\xf0\x90\x80\x80", 0x10000 }, { "\xf4\x8f\xbf\xbf", 0x10ffff } };
    for (const auto& row : rows) {
        const auto character = DecodeUtf8("x" + row.text + "y", 1);
        EXPECT_EQ(character.code, row.code);
        EXPECT_EQ(character.size, row.text.size()) << row.text;
        EXPECT_TRUE(character.isValid) << row.text;
        EXPECT_TRUE(IsUtf8(row.text)) << row.text;
        std::string text = "x";
        AppendUtf8(text, row.code);
        EXPECT_EQ(text, "x" + row.text) << row.text;
    }
}

TEST(Utf8Test, DecodeUtf8_NoCharacter_GivesTheByte)
{
    for (const std::string text : { "\x80", "\xbf", "\xc0\xaf", "\xc1\xbf", "\xc3",
             "\xc3"
             "(",
             "\xe0\x80\xaf", "\xe0\x9f\xbf", "\xe2\x82",
             "\xe2\x82"
             "(",
             "\xed\xa0\x80", "\xed\xbf\xbf", "\xf0\x8f\xbf\xbf", "\xf0\x9f\x98", "\xf4\x90\x80\x80", "\xf5\x80\x80\x80",
             "\xff" }) {
        const auto character = DecodeUtf8(text, 0);
        EXPECT_EQ(character.code, static_cast<unsigned char>(text[0]));
        EXPECT_EQ(character.size, 1U) << text;
        EXPECT_FALSE(character.isValid) << text;
        EXPECT_FALSE(IsUtf8(text)) << text;
    }
}

TEST(Utf8Test, IsUtf8_BadByteAtAnyPlace_IsFound)
{
    const std::string good = "0123456789 häuser am see 0123456789 € 😀 0123456789";
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8(good));
    for (std::size_t at = 0; at <= good.size(); ++at) {
        auto bad = good;
        bad.insert(at, 1, '\xff');
        EXPECT_FALSE(IsUtf8(bad)) << at;
    }
}

TEST(Utf8Test, IsUtf8Tail_OnlyBytesInsideACharacter_AreIt)
{
    EXPECT_TRUE(IsUtf8Tail('\x80'));
    EXPECT_TRUE(IsUtf8Tail('\xbf'));
    EXPECT_FALSE(IsUtf8Tail('\x7f'));
    EXPECT_FALSE(IsUtf8Tail('\xc3'));
}

}
}
