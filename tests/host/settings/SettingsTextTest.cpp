#include "host/settings/SettingsText.h"

#include "base/Failure.h"
#include "host/settings/TomlSettings.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(SettingsTextTest, SettingsText_Records_StandBelowTheirHeadings)
{
    const std::vector<SettingsRecord> records { { "rule", 0,
                                                    { { "a", std::string("x") }, { "b", std::int64_t { -3 } } } },
        { "other", 0, { { "c", true }, { "d", std::vector<std::string> { "p", "q" } }, { "e", false } } },
        { "empty", 0, {} } };
    EXPECT_EQ(SettingsText(records),
        "[[rule]]\na = \"x\"\nb = -3\n\n[[other]]\nc = true\nd = [\"p\", \"q\"]\ne = false\n\n[[empty]]\n");
    EXPECT_EQ(SettingsText({}), "");
}

TEST(SettingsTextTest, WriteSettingsFile_AnyText_IsReadAsItWas)
{
    const TempFolder folder(TempFolder::InMemory());
    std::string all;
    for (char character = 1; character < 127; ++character) {
        all += character;
    }
    all += "\x7fü€𝄞";
    const SettingsFile file { folder.Path("a.toml"),
        { { "rule", 0, { { "a", all }, { "b", std::vector<std::string> { "", all } } } } } };
    WriteSettingsFile(file);
    const auto read = ReadSettingsFile(file.path);
    ASSERT_EQ(read.records.size(), 1U);
    EXPECT_EQ(read.records[0].settings[0].value, file.records[0].settings[0].value);
    EXPECT_EQ(read.records[0].settings[1].value, file.records[0].settings[1].value);
}

TEST(SettingsTextTest, SettingsText_BytesOfNoCharacter_AreShownAsSuch)
{
    EXPECT_EQ(SettingsText({ { "a", 0, { { "b", std::string("x\xffy") } } } }), "[[a]]\nb = \"x\uFFFDy\"\n");
}

TEST(SettingsTextTest, WriteSettingsFile_NoFolder_Fails)
{
    const TempFolder folder(TempFolder::InMemory());
    EXPECT_THROW(WriteSettingsFile({ folder.Path("none/a.toml"), {} }), Failure);
}

}
