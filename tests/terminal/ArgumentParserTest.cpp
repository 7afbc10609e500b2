#include "terminal/ArgumentParser.h"

#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
    const auto command = Printed({ "projects", "set", "--help" });
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

}
