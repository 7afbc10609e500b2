#include "desktop/EastAsianLetters.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

std::vector<Activity> Called(const std::string& description, const std::string& project = "")
{
    Activity activity;
    activity.description = description;
    activity.project = project;
    return { Activity(), activity };
}

}

TEST(EastAsianLettersTest, Letters_AreFoundInTitlesAndProjects)
{
    for (const auto* text : { "計画.doc", "ひらがな", "한국어", "plan 的", "\U00020000" }) {
        EXPECT_TRUE(HoldEastAsianLetters(Called(text))) << text;
        EXPECT_TRUE(HoldEastAsianLetters(Called("", text))) << text;
    }
}

TEST(EastAsianLettersTest, OthersAndBrokenOnes_AreNone)
{
    for (const auto* text : { "", "Größe", "план", "עברית", "a \xe8\xa8", "😀" }) {
        EXPECT_FALSE(HoldEastAsianLetters(Called(text))) << text;
    }
}

}
