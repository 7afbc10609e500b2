#include "terminal/ArgumentParser.h"

#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

namespace tempodial {

using testing::HasSubstr;
using testing::Not;

class ArgumentParserTest : public testing::Test
{
protected:
    using Words = std::vector<std::string>;

    void AddCommands()
    {
        for (const auto* name : { "list", "projects", "projects set" }) {
            mParser.AddCommand({ name, std::string("About ") + name, "" });
        }
    }
    std::string Chosen(const Words& words)
    {
        EXPECT_TRUE(mParser.Parse(words, mOut));
        return mParser.ChosenCommand();
    }
    std::string Printed(const Words& words)
    {
        mOut.str("");
        EXPECT_FALSE(mParser.Parse(words, mOut));
        return mOut.str();
    }
    std::string Refusal(const Words& words)
    {
        try {
            mParser.Parse(words, mOut);
        } catch (const UsageError& error) {
            return error.what();
        }
        ADD_FAILURE() << "nothing was refused";
        return "";
    }

    ArgumentParser mParser { { "prog", "A program", "An end" } };
    std::ostringstream mOut;
};

TEST_F(ArgumentParserTest, Parse_Command_IsChosen)
{
    AddCommands();
    EXPECT_EQ(Chosen({}), "");
    EXPECT_EQ(Chosen({ "list" }), "list");
    EXPECT_EQ(Chosen({ "projects" }), "projects");
    EXPECT_EQ(Chosen({ "projects", "set" }), "projects set");
}

TEST_F(ArgumentParserTest, Parse_ArgumentOfTheProgram_StandsAnywhere)
{
    std::string value;
    mParser.Arguments().Optional("--value TEXT", value, "A value");
    AddCommands();
    EXPECT_EQ(Chosen({ "--value", "a", "projects", "set" }), "projects set");
    EXPECT_EQ(value, "a");
    EXPECT_EQ(Chosen({ "projects", "set", "--value=b" }), "projects set");
    EXPECT_EQ(value, "b");
}

TEST_F(ArgumentParserTest, Parse_WhatIsNotExpected_IsRefusedByItsKind)
{
    EXPECT_EQ(Refusal({ "list" }), "\"list\" isn't expected here: see \"prog --help\"");
    AddCommands();
    EXPECT_EQ(Refusal({ "nothing" }), "there is no command \"nothing\": see \"prog --help\" for the commands");
    EXPECT_EQ(Refusal({ "--lists" }), "\"--lists\" isn't expected here: see \"prog --help\"");
    EXPECT_EQ(Refusal({ "projects", "none" }), "\"none\" isn't expected here: see \"prog projects --help\"");
}

TEST_F(ArgumentParserTest, Parse_WhatIsNearlyThere_IsAnsweredWithIt)
{
    std::string value;
    mParser.Arguments().Optional("--value TEXT", value, "A value");
    AddCommands();
    std::string from;
    mParser.AddCommand({ "report", "", "" }).Required("--from DAY", from, "A day");
    EXPECT_EQ(Refusal({ "lits" }),
        "there is no command \"lits\": did you mean \"list\"? Else see \"prog --help\" for the commands");
    EXPECT_EQ(Refusal({ "projects", "sat" }),
        "\"sat\" isn't expected here: did you mean \"set\"? Else see \"prog projects --help\"");
    EXPECT_EQ(Refusal({ "--vlaue=x" }),
        "\"--vlaue=x\" isn't expected here: did you mean \"--value\"? Else see \"prog --help\"");
    EXPECT_EQ(Refusal({ "projects", "set", "--vale", "x" }),
        "\"--vale\" isn't expected here: did you mean \"--value\"? Else see \"prog projects set --help\"");
    EXPECT_EQ(Refusal({ "report", "--form", "today" }),
        "\"--form\" isn't expected here: did you mean \"--from\"? Else see \"prog report --help\"");
    EXPECT_EQ(Refusal({ "list", "--from", "today" }), "\"--from\" isn't expected here: see \"prog list --help\"");
}

TEST_F(ArgumentParserTest, Parse_TextThatIsNoUtf8_IsRefused)
{
    EXPECT_THAT(Refusal({ "M\xfcller" }), HasSubstr("isn't valid UTF-8"));
}

TEST_F(ArgumentParserTest, Parse_Help_PrintsThatOfWhatIsChosen)
{
    const auto alone = Printed({ "--help" });
    EXPECT_THAT(alone, HasSubstr("A program"));
    EXPECT_THAT(alone, HasSubstr("Show this help\n"));
    EXPECT_THAT(alone, HasSubstr("An end"));
    AddCommands();
    const auto whole = Printed({ "-h" });
    EXPECT_THAT(whole, HasSubstr("Show this help, or that of a command\n"));
    EXPECT_THAT(whole, HasSubstr("Usage: prog [OPTIONS] [COMMAND]\n"));
    EXPECT_THAT(whole, HasSubstr("About list\n"));
    EXPECT_EQ(Printed({ "help" }), whole);
    const auto command = Printed({ "projects", "set", "--help" });
    EXPECT_EQ(Printed({ "help", "projects", "set" }), command);
    EXPECT_THAT(command, HasSubstr("About projects set\n"));
    EXPECT_THAT(command, HasSubstr("Usage: prog projects set"));
    EXPECT_THAT(command, Not(HasSubstr("About list")));
}

TEST_F(ArgumentParserTest, Parse_Version_PrintsIt)
{
    EXPECT_EQ(Printed({ "--version" }), "prog 1.2.0\n");
    AddCommands();
    EXPECT_EQ(Printed({ "list", "--version" }), "prog 1.2.0\n");
}

TEST_F(ArgumentParserTest, Outline_NestedCommands_AreInTheirOrderWithTheirArguments)
{
    AddCommands();
    std::optional<std::string> days;
    std::string name;
    std::vector<std::string> rules;
    bool isAll = false;
    auto arguments = mParser.AddCommand({ "list", "About list", "Details" });
    arguments.Optional("--days N", days, "How many\ndays");
    arguments.Required("NAME", name, "A name");
    arguments.Repeated("--rule RULE", rules, "A rule");
    arguments.Flag("--all", isAll, "All");

    const auto outline = mParser.Outline();

    ASSERT_EQ(outline.size(), 4U);
    EXPECT_EQ(outline[0].name, "");
    EXPECT_EQ(outline[0].details, "An end");
    EXPECT_EQ(outline[2].name, "projects");
    EXPECT_EQ(outline[3].name, "projects set");
    const auto& list = outline[1];
    EXPECT_EQ(list.name, "list");
    EXPECT_EQ(list.summary, "About list");
    EXPECT_EQ(list.details, "Details");
    ASSERT_EQ(list.arguments.size(), 5U);
    EXPECT_EQ(list.arguments[0].names, (Words { "-h", "--help" }));
    EXPECT_EQ(list.arguments[1].names, Words { "--days" });
    EXPECT_EQ(list.arguments[1].value, "N");
    EXPECT_EQ(list.arguments[1].help, "How many days");
    EXPECT_TRUE(list.arguments[1].isOption);
    EXPECT_FALSE(list.arguments[1].isRequired);
    EXPECT_FALSE(list.arguments[1].isRepeated);
    EXPECT_EQ(list.arguments[2].names, Words { "NAME" });
    EXPECT_EQ(list.arguments[2].value, "");
    EXPECT_FALSE(list.arguments[2].isOption);
    EXPECT_TRUE(list.arguments[2].isRequired);
    EXPECT_TRUE(list.arguments[3].isRepeated);
    EXPECT_EQ(list.arguments[4].value, "");
    EXPECT_TRUE(list.arguments[4].isOption);
}

}
