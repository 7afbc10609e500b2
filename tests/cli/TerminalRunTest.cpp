#include "cli/Interruption.h"
#include "cli/StartedProgram.h"
#include "support/ProgramFixture.h"

#include <csignal>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;

class TerminalRunTest : public ProgramFixture
{
protected:
    /// A day file that takes the program a while.
    void WriteLongDay(const std::string& dayKey, int lines) const
    {
        std::vector<std::string> slots;
        for (int i = 1; i <= lines; ++i) {
            slots.push_back(WordSlot(i * 10, i * 10 + 10, std::to_string(i) + ".doc"));
        }
        WriteTracker(dayKey, slots);
    }
};

}

TEST_F(TerminalRunTest, Sync_OnATerminal_DrawsProgressAndTakesItOff)
{
    WriteLongDay("20061010", 40);
    StartedProgram program(Whole({ "sync" }), {});
    EXPECT_EQ(program.End(), 0);
    EXPECT_THAT(program.Shown(), HasSubstr("\rloading Tuesday, October 10, 2006"));
    EXPECT_THAT(program.Shown(), HasSubstr("[####----------------]"));
    EXPECT_TRUE(program.Shown().ends_with(" \r"));
    EXPECT_EQ(program.Shown().find('\n'), std::string::npos);
}

TEST_F(TerminalRunTest, Sync_QuietOnATerminal_DrawsNothing)
{
    WriteLongDay("20061010", 40);
    StartedProgram program(Whole({ "sync", "--quiet" }), {});
    EXPECT_EQ(program.End(), 0);
    EXPECT_EQ(program.Shown(), "");
}

TEST_F(TerminalRunTest, Sync_NothingRecordedYet_SaysWhatRecords)
{
    StartedProgram first(Whole({ "sync" }), { .isOnTerminal = true });
    EXPECT_EQ(first.End(), 0);
    EXPECT_THAT(first.Shown(), HasSubstr("\"tempodial track install\" records from now on"));
    WriteTracker("20061009", { WordSlot(32400, 32700, "a.doc") });
    for (int i = 0; i < 2; ++i) {
        StartedProgram later(Whole({ "sync" }), { .isOnTerminal = true });
        EXPECT_EQ(later.End(), 0);
        EXPECT_THAT(later.Shown(), Not(HasSubstr("track install")));
    }
}

TEST_F(TerminalRunTest, Sync_ControlC_StopsAndTheNextSyncGoesOn)
{
    WriteLongDay("20061010", 8000);
    const auto output = mFolder.Path("output");
    StartedProgram program(Whole({ "sync", "--json" }), { .output = output });
    ASSERT_TRUE(program.WaitFor("["));
    program.Send(SIGINT);
    EXPECT_EQ(program.End(), 130);
    const auto first = nlohmann::json::parse(mFolder.Read("output"));
    EXPECT_EQ(first.at("cancelled"), true);
    EXPECT_GT(first.at("created"), 0);
    EXPECT_LT(first.at("created"), 8000);

    const auto second = Json({ "sync" });
    EXPECT_EQ(second.at("cancelled"), false);
    EXPECT_EQ(first.at("created").get<int>() + second.at("created").get<int>(), 8000);
    EXPECT_EQ(Json({ "list" }).size(), 8000U);
}

TEST_F(TerminalRunTest, Apply_ControlC_StopsWithWhatWasDone)
{
    WriteLongDay("20061010", 3000);
    Json({ "sync" });
    Json({ "projects", "set", "Wish", "--subject", "word" });
    const auto output = mFolder.Path("output");
    StartedProgram program(Whole({ "apply", "Wish", "--json" }), { .output = output });
    ASSERT_TRUE(program.WaitFor("["));
    program.Send(SIGINT);
    EXPECT_EQ(program.End(), 130);
    const auto changed = nlohmann::json::parse(mFolder.Read("output")).at("changed").get<std::size_t>();
    EXPECT_LT(changed, 3000U);
    EXPECT_EQ(Json({ "list", "--project", "Wish" }).size(), changed);
}

TEST_F(TerminalRunTest, List_OutputClosed_IsToldAndHarmsNothing)
{
    WriteLongDay("20061010", 10);
    Json({ "sync" });
    for (const auto* command : { "list", "projects", "sync" }) {
        StartedProgram program(Whole({ command, "--json" }), { .output = "" });
        EXPECT_EQ(program.End(), 1);
        EXPECT_THAT(program.Shown(), HasSubstr("the answer couldn't be written"));
    }
    EXPECT_EQ(Json({ "list" }).size(), 10U);
}

TEST_F(TerminalRunTest, AnyCommand_ReaderGone_EndsInSilence)
{
    auto commands = OneOfEachCommand();
    for (const auto& arguments : { Arguments { "--help" }, Arguments { "list", "--json" }, Arguments { "--version" },
             Arguments { "report", "--text" }, Arguments { "export", "--format", "csv", "--out", "-" } }) {
        commands.push_back(arguments);
    }
    for (auto& arguments : commands) {
        std::filesystem::remove_all(mProfile);
        if (arguments.front() != "demo") {
            WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), WordSlot(32700, 33000, "b.doc") });
            Json({ "sync" });
        }
        if (arguments.front() == "undo") {
            Json({ "delete", "@2" });
        }
        if (arguments.front() == "problem-report") {
            arguments.back() = "-";
        }
        StartedProgram program(Whole(arguments), { .hasNoReader = true });
        EXPECT_EQ(program.End(), 128 + SIGPIPE) << testing::PrintToString(arguments);
        EXPECT_EQ(program.Shown().find("tempodial:"), std::string::npos) << program.Shown();
    }
}

TEST_F(TerminalRunTest, AnyCommand_ReaderGone_HasMadeItsChanges)
{
    WriteLongDay("20061010", 10);
    for (const auto& arguments : { Arguments { "sync" }, Arguments { "projects", "set", "Plan", "--subject", "word" },
             Arguments { "apply", "Plan" }, Arguments { "registry", "set", "HKCU", "", "A", "b" } }) {
        StartedProgram program(Whole(arguments), { .hasNoReader = true });
        EXPECT_EQ(program.End(), 128 + SIGPIPE) << arguments.front();
    }
    EXPECT_EQ(Json({ "list", "--project", "Plan" }).size(), 10U);
    EXPECT_EQ(Json({ "projects" }).size(), 6U);
    EXPECT_EQ(Json({ "registry", "get", "HKCU", "", "A" }).at("text"), "b");
}

TEST_F(TerminalRunTest, List_FullDisk_IsTold)
{
    StartedProgram program(Whole({ "list" }), { .output = "/dev/full" });
    EXPECT_EQ(program.End(), 1);
    EXPECT_THAT(program.Shown(), HasSubstr("the answer couldn't be written"));
}

TEST_F(TerminalRunTest, Demo_FileMayNotGrow_IsToldAndLeavesNone)
{
    Json({ "projects" });
    StartedProgram program(Whole({ "demo" }), { .largestFile = std::filesystem::file_size(mProfile + "/mailbox.db") });
    EXPECT_EQ(program.End(), 0) << "the files are smaller than the mailbox";
    std::filesystem::remove_all(mProfile + "/Tempodial");
    StartedProgram limited(Whole({ "demo" }), { .largestFile = 5000 });
    EXPECT_EQ(limited.End(), 1);
    EXPECT_FALSE(
        std::filesystem::exists(mProfile + "/Tempodial") && !std::filesystem::is_empty(mProfile + "/Tempodial"));
}

TEST_F(TerminalRunTest, Sync_MailboxMayNotGrow_IsToldAndTheNextSyncGoesOn)
{
    Json({ "projects" });
    WriteLongDay("20061010", 3000);
    const auto size = std::filesystem::file_size(mProfile + "/mailbox.db");
    StartedProgram program(Whole({ "sync", "--json" }), { .largestFile = size + 200'000 });
    EXPECT_EQ(program.End(), 1);
    EXPECT_THAT(program.Shown(), HasSubstr("couldn't be saved"));
    Json({ "sync" });
    EXPECT_EQ(Json({ "list" }).size(), 3000U);
}

TEST_F(TerminalRunTest, NewProfile_MailboxMayNotGrow_IsToldAndTheNextRunMakesIt)
{
    for (rlim_t size = 0; size < 72'000; size += 12'000) {
        StartedProgram program(Whole({ "projects" }), { .largestFile = size });
        EXPECT_EQ(program.End(), 1) << size;
        EXPECT_THAT(program.Shown(), HasSubstr("mailbox.db"));
        EXPECT_FALSE(std::filesystem::exists(mProfile + "/mailbox.db.new"));
        Json({ "projects" });
        std::filesystem::remove_all(mProfile);
    }
}

TEST(InterruptionTest, SecondControlC_EndsTheProcess)
{
    EXPECT_EXIT(
        {
            const Interruption interruption;
            (void)std::raise(SIGINT);
            std::fputs(Interruption::IsRequested() ? "requested" : "missed", stderr);
            (void)std::raise(SIGINT);
        },
        testing::KilledBySignal(SIGINT), "requested");
}

TEST(InterruptionTest, NoControlC_IsNotRequested)
{
    const Interruption interruption;
    EXPECT_FALSE(Interruption::IsRequested());
}

TEST(InterruptionTest, End_BringsBackWhatWasThere)
{
    {
        const Interruption interruption;
    }
    EXPECT_EXIT((void)std::raise(SIGINT), testing::KilledBySignal(SIGINT), "");
}

}
