#include "cli/CorrectionFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class UndoCommandTest : public CorrectionFixture
{
protected:
    std::vector<std::string> Steps() const
    {
        std::vector<std::string> steps;
        for (const auto& step : Json({ "log" })) {
            steps.push_back(step.at("step").dump() + " " + step.at("command").get<std::string>() + " "
                + step.at("activities").dump());
        }
        return steps;
    }
};

}

TEST_F(UndoCommandTest, Undo_EachCommand_IsTakenBack)
{
    const std::vector<Arguments> commands { { "projects", "set", "New", "--subject", "word" },
        { "projects", "set", "Wish", "--precedence", "high", "--people", "ann" }, { "projects", "remove", "Wish" },
        { "apply", "New" }, { "assign", "Other", "@1", "@3", "--overwrite" },
        { "assign", "Third", "--from", "09:00", "--to", "09:20", "--overwrite" },
        { "edit", "@2", "--project", "Fourth", "--start", "08:00" }, { "split", "@1", "--at", "09:05" },
        { "join", "@2", "@3" }, { "add", "--from", "12:00", "--to", "13:00", "--project", "Fifth" },
        { "delete", "@1" } };
    std::vector<std::string> states;
    for (const auto& command : commands) {
        states.push_back(Everything());
        ASSERT_EQ(Run(command).status, 0) << command.front();
        ASSERT_NE(Everything(), states.back()) << command.front();
    }
    EXPECT_EQ(Steps().size(), commands.size());
    for (; !states.empty(); states.pop_back()) {
        EXPECT_EQ(Json({ "undo" }).at("kept"), 0);
        EXPECT_EQ(Everything(), states.back()) << states.size();
    }
}

TEST_F(UndoCommandTest, Undo_Answer_NamesTheStep)
{
    Run({ "--quiet", "assign", "No Project", "@2", "--overwrite" });
    EXPECT_EQ(Json({ "undo", "--preview" }),
        (nlohmann::json { { "step", 1 }, { "command", "--quiet assign \"No Project\" @2 --overwrite" },
            { "restored", 1 }, { "kept", 0 } }));
    EXPECT_EQ(Steps().size(), 1U);
    const auto result = Run({ "undo", "1" });
    EXPECT_EQ(result.out,
        "Taken back: step 1, --quiet assign \"No Project\" @2 --overwrite\n"
        "1 activity restored\n");
    EXPECT_THAT(Steps(), ElementsAre("2 undo 1 1", "1 --quiet assign \"No Project\" @2 --overwrite 1"));
}

TEST_F(UndoCommandTest, Undo_WhatItMakesGo_IsSaidToBeRemoved)
{
    Run({ "add", "--from", "12:00", "--to", "13:00" });
    EXPECT_EQ(
        Run({ "undo", "--preview" }).out, "Would take back step 1, add --from 12:00 --to 13:00\n1 activity removed\n");
    EXPECT_EQ(Run({ "undo" }).out, "Taken back: step 1, add --from 12:00 --to 13:00\n1 activity removed\n");
    Run({ "split", "@1", "--at", "09:05" });
    EXPECT_EQ(
        Run({ "undo" }).out, "Taken back: step 3, split @1 --at 09:05\n1 activity restored, 1 activity removed\n");
    Run({ "split", "@1", "--at", "09:05" });
    Run({ "edit", "@1", "--description", "x" });
    EXPECT_EQ(Run({ "undo", "5" }).out,
        "Taken back: step 5, split @1 --at 09:05\n1 activity removed, 1 activity changed since and kept\n");
}

TEST_F(UndoCommandTest, Undo_ChangedSince_IsKeptAndCounted)
{
    Run({ "assign", "A", "@1", "@2", "@3", "--overwrite" });
    Run({ "edit", "@3", "--description", "x" });
    const auto answer = Json({ "undo", "1" });
    EXPECT_EQ(answer.at("restored"), 2);
    EXPECT_EQ(answer.at("kept"), 1);
    EXPECT_THAT(
        Log(), ElementsAre(testing::Not(HasSubstr("[A]")), HasSubstr("[Other]"), HasSubstr("[A] Microsoft Word, x")));
}

TEST_F(UndoCommandTest, Undo_AllChangedSince_SaysSoAndLeavesTheStep)
{
    Run({ "edit", "@3", "--description", "x" });
    Run({ "edit", "@3", "--description", "y" });
    const std::string said = " of step 1, edit @3 --description x\n"
                             "1 activity changed since and kept; \"tempodial undo N\" takes another step back\n";
    EXPECT_EQ(Run({ "undo", "1", "--preview" }).out, "Nothing would go back" + said);
    EXPECT_EQ(Run({ "undo", "1" }).out, "Nothing went back" + said);
    EXPECT_EQ(Steps().size(), 2U);
    Json({ "undo" });
    EXPECT_EQ(Json({ "undo" }).at("restored"), 1);
}

TEST_F(UndoCommandTest, Undo_ImportSince_Keeps)
{
    Run({ "assign", "A", "@3" });
    WriteTracker("20061010",
        { WordSlot(32400, 33000, "a.doc"), WordLine(32700, 33000, "aside.doc").Detail().Text(),
            WordLine(33000, 33300, "b.doc").Node("Project", "Other").Text(), WordSlot(33300, 34200, "c.doc"),
            WordLine(34200, 34500, "c.doc").Continuation().Text() });
    Run({ "sync" });
    EXPECT_EQ(Json({ "undo" }).at("kept"), 1);
    EXPECT_THAT(Log().back(), HasSubstr("@3 09:15-09:35 [A]"));
}

TEST_F(UndoCommandTest, Undo_OfAnUndo_MakesTheStepUndoableAgain)
{
    const auto before = Everything();
    Run({ "assign", "A", "@1" });
    const auto after = Everything();
    Run({ "undo" });
    EXPECT_EQ(Json({ "undo", "2" }).at("command"), "undo");
    EXPECT_EQ(Everything(), after);
    EXPECT_EQ(Json({ "undo" }).at("step"), 1);
    EXPECT_EQ(Everything(), before);
    Refusal({ "undo" }, 1);
}

TEST_F(UndoCommandTest, Undo_NothingThere_IsRefused)
{
    EXPECT_THAT(Refusal({ "undo" }, 1), HasSubstr("nothing to take back"));
    Refusal({ "undo", "7" }, 1);
    Refusal({ "undo", "--preview" }, 1);
    Refusal({ "undo", "x" }, 2);
    Refusal({ "undo", "0" }, 2);
    Run({ "assign", "A", "@1" });
    Run({ "undo", "1" });
    EXPECT_THAT(Refusal({ "undo", "1" }, 1), HasSubstr("taken back already"));
}

TEST_F(UndoCommandTest, Undo_WhatIsNoStep_IsNotInTheLog)
{
    WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
    Run({ "sync" });
    Run({ "list" });
    Run({ "report" });
    Run({ "assign", "Other", "@2" });
    Run({ "registry", "set", "HKCU", "", "A", "b" });
    EXPECT_THAT(Steps(), ElementsAre());
}

TEST_F(UndoCommandTest, Log_Lines_AreTheNewest)
{
    EXPECT_EQ(Run({ "log" }).out, "No steps.\n");
    Run({ "assign", "A", "@1" });
    mNow = "2006-10-11T08:30:00";
    Run({ "delete", "@2", "@3" });
    Run({ "undo", "1" });
    EXPECT_EQ(Run({ "log" }).out,
        "3  2006-10-11 08:30  1  undo 1\n"
        "2  2006-10-11 08:30  2  delete @2 @3\n"
        "1  2006-10-10 17:00  1  assign A @1  (taken back)\n");
    EXPECT_EQ(Run({ "log", "--lines", "1" }).out, "3  2006-10-11 08:30  1  undo 1\n");
    const auto when = Json({ "log" }).at(2).at("when").get<std::string>();
    EXPECT_THAT(when, testing::StartsWith("2006-10-10T17:00:"));
    Refusal({ "log", "--lines", "0" }, 2);
    mNow = "2007-03-01T08:30:00";
    EXPECT_EQ(Json({ "log" }), nlohmann::json::array());
    Refusal({ "undo", "2" }, 1);
}

}
