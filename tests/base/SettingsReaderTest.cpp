#include "base/SettingsReader.h"

#include "support/SettingsRefusal.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

constexpr SettingWord<int> Words[] { { "one", 1 }, { "two", 2 } };

class SettingsReaderTest : public testing::Test
{
protected:
    SettingsFile mFile {
        "/a.toml",
        { { "rule", 2, { { "text", std::string("x"), 3 }, { "flag", true, 4 }, { "word", std::string("two"), 5 } } } }
    };
    SettingsReader mReader { mFile, mFile.records[0] };
};

}

TEST_F(SettingsReaderTest, Take_Value_IsTakenWhenItIsThere)
{
    std::string text = "usual";
    mReader.Take("absent", text, "a text");
    EXPECT_EQ(text, "usual");
    mReader.Take("text", text, "a text");
    EXPECT_EQ(text, "x");
    EXPECT_EQ(SettingsRefusal([&] { mReader.Take("flag", text, "a text"); }),
        "/a.toml, line 4: flag must be a text: correct that line");
}

TEST_F(SettingsReaderTest, TakeWord_Word_IsOneOfThem)
{
    int number = 0;
    mReader.TakeWord("absent", number, Words);
    EXPECT_EQ(number, 0);
    mReader.TakeWord("word", number, Words);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(SettingsRefusal([&] { mReader.TakeWord("text", number, Words); }),
        "/a.toml, line 3: text can't be \"x\", but one of \"one\", \"two\": correct that line");
}

TEST_F(SettingsReaderTest, RequireNothingElse_WhatWasNotAskedFor_IsRefused)
{
    std::string text;
    mReader.Take("text", text, "a text");
    EXPECT_EQ(SettingsRefusal([&] { mReader.RequireNothingElse(); }),
        "/a.toml, line 4: \"flag\" isn't known in [[rule]]: correct that line");
    bool flag = false;
    mReader.Take("flag", flag, "true or false");
    mReader.Take("word", text, "a text");
    mReader.RequireNothingElse();
}

TEST_F(SettingsReaderTest, RequireKind_OtherHeading_IsRefused)
{
    mReader.RequireKind("rule");
    EXPECT_EQ(SettingsRefusal([&] { mReader.RequireKind("tone"); }),
        "/a.toml, line 2: [[rule]] isn't known here, only [[tone]]: correct that line");
    EXPECT_EQ(mReader.LineOf("absent"), 2U);
    EXPECT_EQ(mReader.LineOf("word"), 5U);
}

}
