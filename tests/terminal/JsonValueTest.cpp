#include "terminal/JsonValue.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <utility>

namespace tempodial {

TEST(JsonValueTest, Text_PlainValues_AreWrittenAsTheyAre)
{
    EXPECT_EQ(JsonValue().Text(), "null");
    EXPECT_EQ(JsonValue(nullptr).Text(), "null");
    EXPECT_EQ(JsonValue(true).Text(), "true");
    EXPECT_EQ(JsonValue(-7).Text(), "-7");
    EXPECT_EQ(JsonValue(std::size_t { 5'000'000'000 }).Text(), "5000000000");
    EXPECT_EQ(JsonValue("a\"\\\n\x1b").Text(), R"("a\"\\\n\u001b")");
    EXPECT_EQ(JsonValue(std::string("Zoë")).Text(), "\"Zoë\"");
}

TEST(JsonValueTest, Text_BytesThatAreNoUtf8_AreReplaced)
{
    EXPECT_EQ(JsonValue("M\xfcller").Text(), "\"M\uFFFDller\"");
}

TEST(JsonValueTest, Text_Members_KeepTheirOrder)
{
    const JsonValue value { { "z", 1 }, { "a", nullptr }, { "m", { { "inner", "text" } } } };
    EXPECT_EQ(value.Text(), "{\n  \"z\": 1,\n  \"a\": null,\n  \"m\": {\n    \"inner\": \"text\"\n  }\n}");
    EXPECT_EQ(JsonValue::Object().Text(), "{}");
}

TEST(JsonValueTest, Append_Values_AreEntriesInOrder)
{
    auto array = JsonValue::Array();
    EXPECT_EQ(array.Text(), "[]");
    array.Append("a");
    array.Append({ { "b", false } });
    EXPECT_EQ(array.Value().dump(), R"(["a",{"b":false}])");
    EXPECT_EQ(JsonValue(std::vector<std::string> { "x", "y" }).Value().dump(), R"(["x","y"])");
}

TEST(JsonValueTest, Set_KnownMember_TakesItsPlace)
{
    JsonValue value { { "a", 1 }, { "b", 2 } };
    value.Set("a", "new");
    value.Set("c", JsonValue::Array());
    EXPECT_EQ(value.Value().dump(), R"({"a":"new","b":2,"c":[]})");
}

TEST(JsonValueTest, IsNull_OnlyOfNull_IsTrue)
{
    EXPECT_TRUE(JsonValue().IsNull());
    EXPECT_FALSE(JsonValue::Object().IsNull());
    EXPECT_FALSE(JsonValue(0).IsNull());
}

TEST(JsonValueTest, Copy_Changed_LeavesTheOther)
{
    JsonValue value { { "a", 1 } };
    const auto copy = value;
    value.Set("a", 2);
    EXPECT_EQ(copy.Value().dump(), R"({"a":1})");
    value = copy;
    EXPECT_EQ(value.Value().dump(), R"({"a":1})");
    const auto moved = std::move(value);
    EXPECT_EQ(moved.Value().dump(), R"({"a":1})");
}

}
