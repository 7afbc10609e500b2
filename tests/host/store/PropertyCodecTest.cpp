#include "host/store/PropertyCodec.h"

#include "support/FailureNumber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace tempodial {

namespace {

using testing::ElementsAre;

/// The texts of the properties One, Two and Three.
std::vector<std::string> ReadTexts(std::string_view json)
{
    std::string one = "left from before";
    std::string two = one;
    std::string three = one;
    const std::array wanted { WantedText { "One", &one }, WantedText { "Two", &two }, WantedText { "Three", &three } };
    PropertyCodec::Read(json, wanted);
    return { one, two, three };
}

std::string Encoded(const std::vector<ItemProperty>& properties)
{
    return PropertyCodec::Encode(properties);
}

}

TEST(PropertyCodecTest, Decode_GivesBackWhatWasEncoded)
{
    const std::vector<ItemProperty> properties { { "a \"b\" \\ \n", PropertyType::Text, Variant("\x01\r\nc\"\\") },
        { "Day", PropertyType::DateTime, Variant(Date::FromSeconds(77)) },
        { "Yes", PropertyType::YesNo, Variant(true) }, { "No", PropertyType::YesNo, Variant(false) },
        { "", PropertyType::Text, Variant("") }, { "Unset", PropertyType::Text, {} } };
    EXPECT_EQ(PropertyCodec::Decode(PropertyCodec::Encode(properties)), properties);
    EXPECT_TRUE(PropertyCodec::Decode(" { } ").empty());
}

TEST(PropertyCodecTest, Encode_AnyCharacterAtAnyPlace_IsEscapedWhenItMust)
{
    using Row = std::pair<std::string, std::string>;
    for (const auto& [character, written] :
        { Row("\"", "\\\""), Row("\\", "\\\\"), Row("\x1f", "\\u001f"), Row(std::string(1, '\0'), "\\u0000"),
            Row("\n", "\\u000a"), Row(" ", " "), Row("!", "!"), Row("#", "#"), Row("[", "["), Row("]", "]"),
            Row("\x7f", "\x7f"), Row("\xa2", "\xa2"), Row("\xdc", "\xdc"), Row("\x9f", "\x9f") }) {
        for (std::size_t before = 0; before < 20; ++before) {
            for (std::size_t behind = 0; behind < 20; ++behind) {
                const std::string first(before, 'a');
                const std::string last(behind, 'b');
                EXPECT_EQ(Encoded({ { "x", PropertyType::Text, Variant(first + character + last) } }),
                    "{\"x\":[1,\"" + first + written + last + "\"]}");
            }
        }
    }
}

TEST(PropertyCodecTest, Read_TakesTheWantedTexts)
{
    EXPECT_THAT(
        ReadTexts(Encoded({ { "Zero", PropertyType::Text, Variant("0") }, { "One", PropertyType::Text, Variant("1") },
            { "Day", PropertyType::DateTime, Variant(Date::FromSeconds(7)) },
            { "Two", PropertyType::Text, Variant("") },
            { "Three", PropertyType::Text, Variant("\"3\" \\ \x02 drei") } })),
        ElementsAre("1", "", "\"3\" \\ \x02 drei"));
}

TEST(PropertyCodecTest, Read_OtherOrder_TakesThemToo)
{
    EXPECT_THAT(ReadTexts(Encoded({ { "Three", PropertyType::Text, Variant("3") },
                    { "Two", PropertyType::Text, Variant("2") }, { "One", PropertyType::Text, Variant("1") } })),
        ElementsAre("1", "2", "3"));
}

TEST(PropertyCodecTest, Read_MissingUnsetOrNoText_IsAsDecodingWouldHaveIt)
{
    EXPECT_THAT(ReadTexts("{}"), ElementsAre("", "", ""));
    EXPECT_THAT(
        ReadTexts(Encoded({ { "One", PropertyType::Text, {} }, { "tHREE", PropertyType::Text, Variant("3") } })),
        ElementsAre("", "", "3"));
    EXPECT_THAT(ReadTexts(Encoded({ { "Two", PropertyType::YesNo, Variant(true) } })),
        ElementsAre("", Variant(true).ToText(), ""));
}

TEST(PropertyCodecTest, Read_NamesakeBehind_CountsForNothing)
{
    EXPECT_THAT(ReadTexts(Encoded({ { "One", PropertyType::Text, Variant("first") },
                    { "Two", PropertyType::Text, Variant("2") }, { "Three", PropertyType::Text, Variant("3") },
                    { "One", PropertyType::Text, Variant("second") } })),
        ElementsAre("first", "2", "3"));
}

TEST(PropertyCodecTest, Read_WhatDecodingRefuses_IsRefused)
{
    const auto whole = Encoded({ { "One", PropertyType::Text, Variant("a\\b") },
        { "Two", PropertyType::YesNo, Variant(true) }, { "Three", PropertyType::Text, Variant("\x01") } });
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto cut = whole.substr(0, size);
        EXPECT_EQ(FailureNumber([&] { PropertyCodec::Decode(cut); }), 440) << cut;
        EXPECT_EQ(FailureNumber([&] { ReadTexts(cut); }), 440) << cut;
    }
    for (const std::string text : { R"({"Other":[9,"x"]})", R"({"Other":[1,"\x"]})", R"({"Other":[6,maybe]})",
             R"({"Other":[1,"\u00ff"]})", R"({}x)", R"({"a":[1],})" }) {
        EXPECT_EQ(FailureNumber([&] { PropertyCodec::Decode(text); }), 440) << text;
        EXPECT_EQ(FailureNumber([&] { ReadTexts(text); }), 440) << text;
    }
}

}
