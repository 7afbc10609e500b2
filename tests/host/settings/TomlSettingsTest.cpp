#include "host/settings/TomlSettings.h"

#include "support/SettingsRefusal.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::HasSubstr;

class TomlSettingsTest : public testing::Test
{
protected:
    SettingsFile Read(const std::string& content) { return ReadSettingsFile(mFolder.Write("a.toml", content)); }
    std::string Refusal(const std::string& content)
    {
        return SettingsRefusal([&] { Read(content); });
    }

    TempFolder mFolder { TempFolder::InMemory() };
};

}

TEST_F(TomlSettingsTest, ReadSettingsFile_Records_StandInTheirOrderWithTheirLines)
{
    const auto file = Read("[[rule]]\nb = \"x\"\na = 3\n[[other]]\nc = true\n[[rule]]\nd = [\"p\", \"q\"]\n");
    ASSERT_EQ(file.records.size(), 3U);
    EXPECT_EQ(file.records[0].kind, "rule");
    EXPECT_EQ(file.records[1].kind, "other");
    EXPECT_EQ(file.records[2].line, 6U);
    ASSERT_EQ(file.records[0].settings.size(), 2U);
    EXPECT_EQ(file.records[0].settings[0].name, "a");
    EXPECT_EQ(file.records[0].settings[0].value, SettingValue(std::int64_t(3)));
    EXPECT_EQ(file.records[0].settings[1].line, 2U);
    EXPECT_EQ(file.records[1].settings[0].value, SettingValue(true));
    EXPECT_EQ(file.records[2].settings[0].value, SettingValue(std::vector<std::string> { "p", "q" }));
}

TEST_F(TomlSettingsTest, ReadSettingsFile_AbsentOrEmpty_HasNoRecords)
{
    EXPECT_TRUE(ReadSettingsFile(mFolder.Path("none.toml")).records.empty());
    EXPECT_TRUE(Read("# nothing\n").records.empty());
}

TEST_F(TomlSettingsTest, ReadSettingsFile_WhatIsNoSettings_NamesFileAndLine)
{
    EXPECT_THAT(Refusal("[[rule]]\na = \"x\n"), HasSubstr("a.toml, line 2: "));
    EXPECT_THAT(Refusal("\na = 1\n"), HasSubstr("a.toml, line 2: \"a\" stands alone"));
    EXPECT_THAT(Refusal("[rule]\na = 1\n"), HasSubstr("stands alone"));
    EXPECT_THAT(Refusal("[[rule]]\na = 1.5\n"), HasSubstr("line 2: a is neither"));
    EXPECT_THAT(Refusal("[[rule]]\na = [1]\n"), HasSubstr("line 2: a is a list of something else"));
    EXPECT_THAT(Refusal("a = " + std::string(50, '[')), HasSubstr("nested more than 32 deep"));
    EXPECT_THAT(Refusal(std::string(17 << 20, '#')), HasSubstr("larger than 16 MiB"));
}

TEST_F(TomlSettingsTest, ReadSettingsFile_Folder_CanNotBeRead)
{
    EXPECT_THROW(ReadSettingsFile(mFolder.Path()), SettingsFileError);
}

}
