#include "cli/StartedProgram.h"
#include "support/ProgramFixture.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace tempodial {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class ForgetCommandTest : public ProgramFixture
{
protected:
    /// Three activities: @1 with a detail, @2 of the project "Garten", @3.
    void SetUp() override
    {
        WriteTracker("20061010",
            { WordSlot(32400, 33000, "a.doc"), WordLine(32700, 33000, "Gehe&im.doc").Detail().Text(),
                WordLine(33000, 33300, "beet.doc").Node("Project", "Garten").Text(),
                WordSlot(33300, 34200, "secret plan.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    /// The files of the profile that hold a text in some case, in order.
    std::vector<std::string> FilesWith(std::string text) const
    {
        const auto lower = [](std::string bytes) {
            std::transform(bytes.begin(), bytes.end(), bytes.begin(), [](unsigned char c) { return std::tolower(c); });
            return bytes;
        };
        text = lower(text);
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(mProfile)) {
            if (entry.is_regular_file()) {
                std::ostringstream content;
                content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
                if (lower(content.str()).find(text) != std::string::npos) {
                    names.push_back(entry.path().filename().string());
                }
            }
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    std::vector<std::string> Log() const { return Subjects(Json({ "list", "2006" })); }
    std::string Tracker(const std::string& name = "tracker_granules20061010.out") const
    {
        return mFolder.Read("profile/Tempodial/" + name);
    }
};

}

TEST_F(ForgetCommandTest, Match_InSubject_LeavesNoByteOfIt)
{
    EXPECT_THAT(FilesWith("secret"), Not(IsEmpty()));
    const auto answer = Json({ "forget", "--match", "SECRET", "--yes" });
    EXPECT_EQ(answer.at("activities"), 1);
    EXPECT_EQ(answer.at("lines"), 1);
    EXPECT_EQ(answer.at("steps"), 0);
    EXPECT_GT(answer.at("traceLines"), 0);
    EXPECT_THAT(FilesWith("secret"), IsEmpty());
    EXPECT_THAT(FilesWith("a.doc"), Not(IsEmpty()));
    EXPECT_THAT(
        Log(), ElementsAre("Microsoft Word, including: \"Gehe&im.doc\"", "[Garten] Microsoft Word, \"beet.doc\""));
    EXPECT_EQ(Json({ "log" }).size(), 0U) << "it is no step";
}

TEST_F(ForgetCommandTest, Forgotten_NextSyncs_BringNothingBackAndTakeNothingTwice)
{
    Json({ "forget", "--match", "secret", "--yes" });
    EXPECT_EQ(Json({ "sync" }).at("created"), 0);
    EXPECT_EQ(Log().size(), 2U);
    {
        std::ofstream file(DataPath("tracker_granules20061010.out"), std::ios::app | std::ios::binary);
        file << WordSlot(34200, 34500, "new.doc") << "\r\n";
    }
    EXPECT_EQ(Json({ "sync" }).at("created"), 1);
    mNow = "2006-10-11T09:00:00";
    EXPECT_EQ(Json({ "sync" }).at("created"), 0);
    EXPECT_EQ(Log().size(), 3U);
    fs::remove(DataPath("TempodialHistory.out"));
    fs::remove(mProfile + "/mailbox.db");
    EXPECT_EQ(Run({ "sync" }).status, 0);
    EXPECT_THAT(FilesWith("secret"), IsEmpty());
}

TEST_F(ForgetCommandTest, Match_InADetailOrALineAlone_TakesTheActivity)
{
    const auto answer = Json({ "forget", "--match", "gehe&im", "--yes" });
    EXPECT_EQ(answer.at("activities"), 1);
    EXPECT_EQ(answer.at("lines"), 2) << "all lines that it came from";
    EXPECT_THAT(Log(), ElementsAre("[Garten] Microsoft Word, \"beet.doc\"", "Microsoft Word, \"secret plan.doc\""));
    EXPECT_THAT(FilesWith("gehe"), IsEmpty());
    EXPECT_THAT(FilesWith("a.doc"), IsEmpty());
    // Only the tracker's line has what was edited away.
    ASSERT_EQ(Run({ "edit", "@3", "--description", "harmless" }).status, 0);
    EXPECT_EQ(Json({ "forget", "--match", "secret", "--yes" }).at("activities"), 1);
    EXPECT_THAT(FilesWith("secret"), IsEmpty());
    EXPECT_THAT(FilesWith("harmless"), IsEmpty());
}

TEST_F(ForgetCommandTest, Match_UnderSteps_TakesThemToo)
{
    ASSERT_EQ(Run({ "edit", "@1", "--description", "hush" }).status, 0);
    ASSERT_EQ(Run({ "edit", "@1", "--description", "open" }).status, 0);
    ASSERT_EQ(Run({ "edit", "@2", "--description", "kept" }).status, 0);
    ASSERT_EQ(Run({ "projects", "set", "Other", "--subject", "hush" }).status, 0);
    ASSERT_EQ(Run({ "projects", "set", "Other", "--subject", "" }).status, 0);
    const auto answer = Json({ "forget", "--match", "hush", "--yes" });
    EXPECT_EQ(answer.at("activities"), 0);
    EXPECT_EQ(answer.at("steps"), 4);
    EXPECT_THAT(FilesWith("hush"), IsEmpty());
    EXPECT_EQ(Json({ "log" }).size(), 1U);
    EXPECT_EQ(Json({ "undo" }).at("restored"), 1);
    EXPECT_EQ(Log()[1], "[Garten] Microsoft Word, \"beet.doc\"");
}

TEST_F(ForgetCommandTest, Match_DeletedActivity_IsForgottenInItsStep)
{
    ASSERT_EQ(Run({ "delete", "@3" }).status, 0);
    const auto answer = Json({ "forget", "--match", "secret", "--yes" });
    EXPECT_EQ(answer.at("activities"), 0);
    EXPECT_EQ(answer.at("lines"), 1);
    EXPECT_EQ(answer.at("steps"), 1);
    EXPECT_THAT(FilesWith("secret"), IsEmpty());
    Refusal({ "undo" }, 1);
    EXPECT_EQ(Json({ "sync" }).at("created"), 0);
}

TEST_F(ForgetCommandTest, Project_Alone_TakesItsNameToo)
{
    ASSERT_EQ(Run({ "projects", "set", "Garten", "--subject", "beet" }).status, 0);
    ASSERT_EQ(Run({ "projects", "set", "Haus", "--subject", "dach" }).status, 0);
    ASSERT_EQ(Run({ "assign", "Garten", "@1", "--overwrite" }).status, 0);
    const auto answer = Json({ "forget", "--project", "garten", "--yes" });
    EXPECT_EQ(answer.at("activities"), 2);
    EXPECT_EQ(answer.at("lines"), 3);
    EXPECT_THAT(FilesWith("garten"), IsEmpty());
    EXPECT_THAT(Log(), ElementsAre("Microsoft Word, \"secret plan.doc\""));
    std::vector<std::string> names;
    for (const auto& project : Json({ "projects" })) {
        names.push_back(project.at("name"));
    }
    EXPECT_THAT(names, testing::Contains("Haus"));
    EXPECT_THAT(names, Not(testing::Contains("Garten")));
    EXPECT_THAT(Refusal({ "forget", "--project", "Garten", "--yes" }, 1), HasSubstr("there is no project \"Garten\""));
    EXPECT_EQ(Json({ "log" }).size(), 1U) << "the step of the other project stays";
    EXPECT_EQ(Run({ "undo" }).status, 0);
}

TEST_F(ForgetCommandTest, Several_WhatMeetsAll_IsForgotten)
{
    WriteTracker("20061009", { WordLine(32400, 33000, "beet alt.doc").Node("Project", "Garten").Text() });
    ASSERT_EQ(Run({ "sync" }).status, 0);
    EXPECT_EQ(Json({ "forget", "--project", "Garten", "--match", "dach", "--preview" }).at("activities"), 0);
    EXPECT_EQ(Json({ "forget", "--project", "Garten", "--before", "2006-10-10", "--yes" }).at("activities"), 1);
    EXPECT_THAT(FilesWith("beet alt"), IsEmpty());
    EXPECT_THAT(FilesWith("garten"), Not(IsEmpty())) << "the project is still used";
    EXPECT_EQ(Json({ "forget", "--match", "secret", "--before", "today", "--preview" }).at("activities"), 0);
    EXPECT_EQ(Json({ "forget", "--match", "secret", "--before", "2006-10-11", "--preview" }).at("activities"), 1);
}

TEST_F(ForgetCommandTest, Before_Day_TakesOlderOnesWithTheirFiles)
{
    WriteTracker("20061008", { WordSlot(32400, 33000, "vergangen.doc"), WordSlot(33000, 33600, "vorvergangen.doc") });
    ASSERT_EQ(Run({ "sync" }).status, 0);
    ASSERT_TRUE(fs::exists(DataPath("tracker_granules(done)20061008.out")));
    const auto answer = Json({ "forget", "--before", "2006-10-10", "--yes" });
    EXPECT_EQ(answer.at("activities"), 2);
    EXPECT_EQ(answer.at("lines"), 2);
    EXPECT_FALSE(fs::exists(DataPath("tracker_granules(done)20061008.out"))) << "nothing is left in it";
    EXPECT_THAT(FilesWith("vergangen"), IsEmpty());
    EXPECT_EQ(Log().size(), 3U);
    EXPECT_EQ(Json({ "forget", "--before", "2006-10-11", "--yes" }).at("activities"), 3);
    EXPECT_THAT(Log(), IsEmpty());
    EXPECT_TRUE(fs::exists(DataPath("tracker_granules20061010.out"))) << "the tracker may go on with it";
}

TEST_F(ForgetCommandTest, Forget_KeptFilesAndOthers_AreSweptAndTheRestStays)
{
    fs::create_directories(DataPath("kept"));
    const auto kept = TrackerText({ WordSlot(32400, 33000, "one.doc"), WordSlot(33000, 33600, "Secret two.doc") });
    WriteData("kept/tracker_granules20060101.out", kept);
    WriteData("kept/tracker_granules20060101.out.2", kept);
    WriteData("Report.csv", "a,b\r\nsecret,1\r\nother,2\r\n");
    WriteData("latin.txt",
        "Stra\xdf"
        "e\nsecret\n\nend");
    const auto answer = Json({ "forget", "--match", "secret", "--yes" });
    EXPECT_EQ(answer.at("lines"), 3);
    EXPECT_THAT(FilesWith("secret"), IsEmpty());
    const auto rest = TrackerText({ WordSlot(32400, 33000, "one.doc") });
    EXPECT_EQ(Tracker("kept/tracker_granules20060101.out"), rest);
    EXPECT_EQ(Tracker("kept/tracker_granules20060101.out.2"), rest);
    EXPECT_EQ(Tracker("Report.csv"), "a,b\r\nother,2\r\n");
    EXPECT_EQ(Tracker("latin.txt"),
        "Stra\xdf"
        "e\n\nend");
}

TEST_F(ForgetCommandTest, Forget_CutOffSync_GoesOnWhereItWas)
{
    WriteData("tracker_granules20061010.out",
        Tracker() + WordSlot(34200, 34500, "secret tail.doc") + "\r\n" + WordSlot(34500, 34800, "tail.doc") + "\r\n");
    const auto answer = Json({ "forget", "--match", "secret", "--yes" });
    EXPECT_EQ(answer.at("activities"), 1);
    EXPECT_EQ(answer.at("lines"), 2) << "a line that waits goes too";
    EXPECT_EQ(Json({ "sync" }).at("created"), 1);
    EXPECT_THAT(Log(), testing::Contains("Microsoft Word, \"tail.doc\""));
    EXPECT_EQ(Log().size(), 3U);
}

TEST_F(ForgetCommandTest, Waiting_LinesInTheSpanOfAForgottenActivity_Stay)
{
    ASSERT_EQ(Run({ "add", "--from", "2006-10-10T10:00", "--to", "2006-10-10T11:00", "--project", "Mine" }).status, 0);
    WriteData("tracker_granules20061010.out", Tracker() + WordSlot(36000, 36600, "waits.doc") + "\r\n");
    EXPECT_EQ(Json({ "forget", "--project", "Mine", "--yes" }).at("lines"), 0);
    EXPECT_EQ(Json({ "sync" }).at("created"), 1);
}

TEST_F(ForgetCommandTest, Preview_TellsTheSameAndChangesNothing)
{
    const auto tracker = Tracker();
    const auto trace = mFolder.Read("profile/Tempodial/WorkLogTrace1.out");
    const auto seen = Json({ "forget", "--match", "secret", "--preview", "--yes" });
    EXPECT_EQ(seen, Json({ "forget", "--match", "secret", "--preview" }));
    EXPECT_EQ(Tracker(), tracker);
    EXPECT_EQ(mFolder.Read("profile/Tempodial/WorkLogTrace1.out"), trace);
    EXPECT_EQ(Log().size(), 3U);
    EXPECT_EQ(Json({ "forget", "--match", "secret", "--yes" }), seen);
    EXPECT_THAT(Run({ "forget", "--match", "beet", "--preview" }).out,
        testing::MatchesRegex(
            "Would forget 1 activity, 1 line of the tracker, 0 steps and [0-9]+ lines of the trace\n"));
}

TEST_F(ForgetCommandTest, BadArguments_AreRefused)
{
    Refusal({ "forget" }, 2);
    Refusal({ "forget", "--yes" }, 2);
    Refusal({ "forget", "--match", "", "--yes" }, 2);
    Refusal({ "forget", "--match", " ", "--yes" }, 2);
    Refusal({ "forget", "--project", " ", "--yes" }, 2);
    Refusal({ "forget", "--before", "soon", "--yes" }, 2);
    EXPECT_THAT(Refusal({ "forget", "--match", "secret" }, 2), HasSubstr("--yes"));
    EXPECT_THAT(Refusal({ "forget", "--project", "Gartn", "--yes" }, 1), HasSubstr("Garten"));
    EXPECT_EQ(Log().size(), 3U);
}

TEST_F(ForgetCommandTest, OnATerminal_IsAsked)
{
    {
        StartedProgram program(Whole({ "forget", "--match", "secret" }), { .isOnTerminal = true });
        ASSERT_TRUE(program.WaitFor("for good? [y/N] "));
        program.Type("n\n");
        EXPECT_EQ(program.End(), 1);
        EXPECT_THAT(program.Shown(), HasSubstr("nothing was forgotten"));
    }
    EXPECT_EQ(Log().size(), 3U);
    {
        StartedProgram program(Whole({ "forget", "--match", "secret" }), { .isOnTerminal = true });
        ASSERT_TRUE(program.WaitFor("for good? [y/N] "));
        program.Type("y\n");
        EXPECT_EQ(program.End(), 0);
    }
    EXPECT_EQ(Log().size(), 2U);
}

TEST_F(ForgetCommandTest, ReadOnlyTrackerFile_NothingIsForgotten)
{
    ASSERT_EQ(::chmod(DataPath("tracker_granules20061010.out").c_str(), 0400), 0);
    EXPECT_THAT(Refusal({ "forget", "--match", "secret", "--yes" }, 1), HasSubstr("make it writable"));
    EXPECT_EQ(Log().size(), 3U);
    ASSERT_EQ(::chmod(DataPath("tracker_granules20061010.out").c_str(), 0600), 0);
    EXPECT_EQ(Json({ "forget", "--match", "secret", "--yes" }).at("activities"), 1);
}

TEST_F(ForgetCommandTest, NoProject_TakesWhatHasNone)
{
    EXPECT_EQ(Json({ "forget", "--project", "no project", "--yes" }).at("activities"), 2);
    EXPECT_THAT(Log(), ElementsAre("[Garten] Microsoft Word, \"beet.doc\""));
    EXPECT_THAT(FilesWith("secret"), IsEmpty());
}

TEST_F(ForgetCommandTest, Numbers_AreNeverGivenAgain)
{
    Json({ "forget", "--match", "secret", "--yes" });
    ASSERT_EQ(Run({ "add", "--from", "2006-10-10T12:00", "--to", "2006-10-10T12:10" }).status, 0);
    EXPECT_EQ(Json({ "list" }).back().at("id"), 4);
}

}
