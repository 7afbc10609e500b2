#include "sources/JsonRepair.h"

#include <gtest/gtest.h>

#include <istream>
#include <iterator>
#include <sstream>

namespace tempodial {

namespace {

std::string RepairedText(const std::string& text)
{
    std::istringstream source(text);
    JsonRepair repair(*source.rdbuf());
    std::istream stream(&repair);
    return { std::istreambuf_iterator<char>(stream), {} };
}

}

TEST(JsonRepairTest, Read_SoundDocument_IsTheSame)
{
    for (const auto* text : { R"({"a":[1,-2.5e3,true,null,"\ud83d\ude00 \u00e9\\\" NaN é😀"]})", "", "[]", "12",
             "[1e308]", R"({"a":"x)", R"({"a":"\)", R"({"a":"\u12)", "{\"a\":tr" }) {
        // An escape that ends too early stays no escape.
        const std::string_view cut = R"({"a":"\u12)";
        EXPECT_EQ(RepairedText(text), text == cut ? R"({"a":"\\u12)" : text);
    }
}

TEST(JsonRepairTest, Read_HalvesOfPairsAndBytesThatAreNoLetter_AreOut)
{
    EXPECT_EQ(RepairedText(R"("a\ud83db\ude00c\ud83d\ud83d\ude00\ud83d")"), R"("abc\ud83d\ude00")");
    EXPECT_EQ(RepairedText("\"a\xff"
                           "b\xc3\xed\xa0\x80\xe2\x82\""),
        "\"ab\"");
    EXPECT_EQ(RepairedText("\"a\nb\x01\""), "\"a b \"");
    EXPECT_EQ(RepairedText(R"("\x41\uZZZZ")"), R"("\\x41\\uZZZZ")");
}

TEST(JsonRepairTest, Read_WhatIsNoNumber_IsNull)
{
    EXPECT_EQ(RepairedText("[NaN, -Infinity,1e999,-1E+400,1e5,\"NaN\"]"), "[null, null,null,null,1e5,\"NaN\"]");
    EXPECT_EQ(RepairedText("[" + std::string(500, '9') + "]"), "[null]");
    EXPECT_EQ(
        RepairedText("[" + std::string(350, '9') + ",12345678901234567890123]"), "[null,12345678901234567890123]");
    EXPECT_EQ(RepairedText("Infinity"), "null");
}

TEST(JsonRepairTest, Read_PiecesThatEndAnywhere_ChangeNothing)
{
    // A pair, a letter and a number stand over every border between two pieces.
    for (const std::string& part :
        { std::string(R"("\ud83d\ude00")"), std::string("\"\u20ac\""), std::string("123.5e1") }) {
        std::string text = "[";
        while (text.size() < 200'000) {
            text += part + ",";
        }
        text += "0]";
        for (std::size_t shift = 0; shift < part.size() + 1; ++shift) {
            const auto shifted = std::string(shift, ' ') + text;
            ASSERT_EQ(RepairedText(shifted), shifted);
        }
    }
}

}
