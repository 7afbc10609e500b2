#include "host/system/TomlRecords.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// What is wrong with a text; empty when nothing is.
std::string Refusal(const std::string& text)
{
    try {
        TomlRecord::ReadAll("project", text);
    } catch (const TomlRecordsError& error) {
        return error.what();
    }
    return "";
}

}

TEST(TomlRecordsTest, ReadAll_Records_AreInTheirOrder)
{
    const auto records = TomlRecord::ReadAll("project",
        "# mine\n[[project]]\nname = \"A\"\nsubject = 'x \"y\"'\n\n"
        "[[project]]\nname = \"B\"\n");
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].texts.at("name"), "A");
    EXPECT_EQ(records[0].texts.at("subject"), "x \"y\"");
    EXPECT_EQ(records[1].texts.size(), 1U);
    EXPECT_EQ(records[1].line, 6U);
    EXPECT_THAT(TomlRecord::ReadAll("project", ""), IsEmpty());
}

TEST(TomlRecordsTest, ReadAll_AnythingElse_IsRefusedByItsLine)
{
    EXPECT_EQ(Refusal("[[project]]\nname = \"A\n"), "line 2: this is no TOML: correct that line");
    EXPECT_EQ(Refusal("[[project]]\nname = 5\n"), "line 2: name is no text: put it in quotes");
    EXPECT_EQ(Refusal("[project]\nname = \"A\"\n"),
        "line 1: \"project\" is no such record: give records that each begin with [[project]]");
    EXPECT_EQ(Refusal("\nname = \"A\"\n"),
        "line 2: \"name\" is no such record: give records that each begin with [[project]]");
    EXPECT_THAT(Refusal("project = [ 1 ]\n"), HasSubstr("line 1: this is no record"));
    EXPECT_THAT(Refusal("a = " + std::string(100, '[')), HasSubstr("nested more than 32 deep"));
}

TEST(TomlRecordsTest, Text_AnyText_ComesBack)
{
    for (const std::string value : { "", "a", "a\"b'c\\", "Größe 売上", "a\tb", "a\nb", "'''", "\"\"\"", " x " }) {
        const auto text = TomlRecord::Text("project", { { "name", value }, { "not-subject", "n" } });
        const auto records = TomlRecord::ReadAll("project", text);
        ASSERT_EQ(records.size(), 1U) << text;
        EXPECT_EQ(records[0].texts.at("name"), value);
        EXPECT_EQ(records[0].texts.at("not-subject"), "n");
    }
    EXPECT_EQ(TomlRecord::Text("project", { { "name", "A" } }), "\n[[project]]\nname = \"A\"\n");
}

}
