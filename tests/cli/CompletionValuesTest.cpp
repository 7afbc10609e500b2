#include "cli/CompletionValues.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using Kind = CompletionValues::Kind;

CompletionValues ValuesOfOption(const std::string& value, const std::string& help)
{
    return CompletionValues::Of({ .names = { "-o", "--option" }, .value = value, .help = help, .isOption = true });
}

CompletionValues ValuesOfPlace(const std::string& name, const std::string& help)
{
    return CompletionValues::Of({ .names = { name }, .value = "", .help = help });
}

}

TEST(CompletionValuesTest, Of_OptionWithoutValue_IsNothing)
{
    EXPECT_EQ(ValuesOfOption("", "high, medium or low").kind, Kind::None);
}

TEST(CompletionValuesTest, Of_ListInTheHelp_IsItsWords)
{
    const std::vector<std::string> words { "high", "medium", "low" };
    for (const auto* help : { "high, medium or low", "What comes first: high, medium or low",
             "Colours: high, medium or low; default high, on a screen or a printer" }) {
        const auto values = ValuesOfOption("WHEN", help);
        EXPECT_EQ(values.kind, Kind::Words) << help;
        EXPECT_EQ(values.words, words) << help;
    }
    EXPECT_EQ(ValuesOfPlace("HIVE", "HKCU or HKLM").words, (std::vector<std::string> { "HKCU", "HKLM" }));
}

TEST(CompletionValuesTest, Of_HelpWithoutList_IsText)
{
    for (const auto* help : { "How many days, the last being today: 1 to 22; default 21", "A name or a part of one",
             "The locale, such as en_US; default from the environment", "", ";: " }) {
        const auto values = ValuesOfOption("TEXT", help);
        EXPECT_EQ(values.kind, Kind::Text) << help;
        EXPECT_TRUE(values.words.empty()) << help;
    }
}

TEST(CompletionValuesTest, Of_Name_IsOfAProjectWhereTheHelpSaysSo)
{
    EXPECT_EQ(ValuesOfPlace("NAME", "The project").kind, Kind::Projects);
    EXPECT_EQ(ValuesOfOption("NAME", "Only activities of that project").kind, Kind::Projects);
    EXPECT_EQ(ValuesOfOption("NAME", "The locale of dates and names").kind, Kind::Text);
    EXPECT_EQ(ValuesOfOption("RULE", "Words of the project").kind, Kind::Text);
}

TEST(CompletionValuesTest, Of_FilesDaysAndActivities_AreKnownByTheirNames)
{
    EXPECT_EQ(ValuesOfOption("FILE", "The file to write").kind, Kind::File);
    EXPECT_EQ(ValuesOfOption("DIR", "The folder").kind, Kind::Folder);
    EXPECT_EQ(ValuesOfPlace("@N", "The activity").kind, Kind::Activities);
    EXPECT_EQ(ValuesOfPlace("RANGE", "The days").words.front(), "today");
    EXPECT_EQ(ValuesOfOption("DAY", "First day").words.back(), "-30d");
    EXPECT_EQ(CompletionValues::Of({ .names = { "--day" }, .value = "DAY", .isOption = true }).words.back(), "sunday");
}

}
