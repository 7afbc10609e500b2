#include "cli/TypedCommand.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(TypedCommandTest, TypedCommand_Surroundings_AreLeftOut)
{
    EXPECT_EQ(TypedCommand({ "--profile", "/p", "--locale", "en_US", "--now", "2006-10-10T17:00:00", "--json", "assign",
                  "Plan", "--from", "2006-10-10T09:00", "--profile=/q", "--to", "2006-10-10T10:00", "--overwrite" }),
        "assign Plan --from 2006-10-10T09:00 --to 2006-10-10T10:00 --overwrite");
    EXPECT_EQ(TypedCommand({ "undo", "--now" }), "undo");
    EXPECT_EQ(TypedCommand({}), "");
}

TEST(TypedCommandTest, TypedCommand_ArgumentThatAShellWouldTakeApart_IsQuoted)
{
    EXPECT_EQ(TypedCommand({ "assign", "No Project", "@5" }), R"(assign "No Project" @5)");
    EXPECT_EQ(TypedCommand({ "edit", "@5", "--description", "" }), R"(edit @5 --description "")");
    EXPECT_EQ(TypedCommand({ "projects", "set", "A", "--subject", R"("a b"; c\d)" }),
        R"(projects set A --subject "\"a b\"; c\\d")");
    EXPECT_EQ(TypedCommand({ "assign", "S\u00fcd", "@5" }), "assign S\u00fcd @5");
}

}
