#include "engine/import/TempodialDataHandler.h"

#include "support/AddInFixture.h"
#include "support/FailureNumber.h"

#include <algorithm>
#include <filesystem>

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

constexpr auto LiveToday = "tracker_granules20061010.out";
constexpr auto LiveYesterday = "tracker_granules20061009.out";
constexpr auto DoneYesterday = "tracker_granules(done)20061009.out";

}

/// The walk over the day files, with the history.
class TempodialDataHandlerTest : public AddInFixture
{
protected:
    void Sync() { mAddIn.main->SyncData(21, true); }
    /// True when a sync that isn't forced does its work.
    bool Runs()
    {
        mAddIn.Trace();
        mAddIn.main->SyncData(21, false);
        const auto lines = mAddIn.TraceTexts();
        return !lines.empty() && lines.back() == "Exiting syncdata";
    }
    std::string DataFile(const std::string& name) const { return mFolder.Path("Tempodial/" + name); }
    /// The lines of days without a file, newest first.
    std::vector<std::string> MissingDays(std::int32_t from, std::int32_t to, const std::string& step) const
    {
        std::vector<std::string> lines;
        for (auto i = from; i <= to; ++i) {
            const auto day = Date::FromYearMonthDay(2006, 10, 10).AddDays(-i);
            lines.push_back("file: " + DataFile("tracker_granules" + day.DayKey() + ".out"));
            lines.push_back("SyncData error File not found " + step);
        }
        return lines;
    }
    static std::ptrdiff_t Count(const std::vector<std::string>& lines, const std::string& begin)
    {
        return std::count_if(lines.begin(), lines.end(), [&](const auto& line) { return line.starts_with(begin); });
    }
};

TEST_F(TempodialDataHandlerTest, SyncData_FirstSlot_TracesEachStepInItsOrder)
{
    const auto slot = WordSlot(32400, 32700, "a.doc");
    mAddIn.WriteTracker("20061010", { slot });
    Sync();
    std::vector<std::string> expected {
        "load 21 days",
        "last synced: 10/10/2006 8:59:45 AM",
        "historyfile: " + DataFile("TempodialHistory.out"),
        "SyncData error File not found history",
        "no history",
        "file: " + DataFile(LiveToday),
        "Create zero ",
        "Last count: -1",
        "load line: " + slot,
        "SyncData: Word",
        "start: 10/10/2006 9:00:00 AM End: 10/10/2006 9:05:00 AM Override: ",
        "create item",
        "Create item",
        "CreateCalendarItem - \"a.doc\"",
        "GetSyncedWorkLog called",
        "message class of new item: IPM.Appointment.TDActivity1",
        "Update item ",
        "createsubject: Microsoft Word, \"a.doc\"",
        "PM What Proj: Microsoft Word, \"a.doc\"  = No Project",
        "createsubject: Microsoft Word, \"a.doc\"",
        "calendar item create exit",
        "new last item at: 10/10/2006 9:00:00 AM",
        " new Last count: 32700",
        "show progress",
        "File error Input past end of file ReadLine 2",
        "New Last second count: 32700",
    };
    const auto missing = MissingDays(1, 21, "Close");
    expected.insert(expected.end(), missing.begin(), missing.end());
    expected.emplace_back("Exiting syncdata");
    EXPECT_THAT(mAddIn.TraceTexts(), ElementsAreArray(expected));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_32700");
    EXPECT_TRUE(mAddIn.HasFile(LiveToday));
}

TEST_F(TempodialDataHandlerTest, SyncData_NoFilesAtAll_TracesTheFirstStepWord)
{
    Sync();
    const auto lines = mAddIn.TraceTexts();
    const auto missing = MissingDays(0, 21, "looping through");
    ASSERT_EQ(lines.size(), missing.size() + 6);
    EXPECT_TRUE(std::equal(missing.begin(), missing.end(), lines.begin() + 5));
    EXPECT_EQ(mAddIn.HistoryText(), "");
}

TEST_F(TempodialDataHandlerTest, SyncData_NotForced_RunsTwentySecondsAfterTheLast)
{
    // Start-up counts as a sync fifteen seconds ago.
    mAddIn.clock->Advance(4);
    EXPECT_FALSE(Runs());
    mAddIn.clock->Advance(1);
    EXPECT_TRUE(Runs());
    mAddIn.clock->Advance(19);
    EXPECT_FALSE(Runs());
    mAddIn.clock->Advance(1);
    EXPECT_TRUE(Runs());
    // After the clock was put back it has to pass the old moment by as much.
    mAddIn.clock->Advance(-3600);
    EXPECT_FALSE(Runs());
    mAddIn.clock->Advance(3619);
    EXPECT_FALSE(Runs());
    mAddIn.clock->Advance(1);
    EXPECT_TRUE(Runs());
}

TEST_F(TempodialDataHandlerTest, SyncData_Throttled_TracesTheLastMomentAndNothingElse)
{
    mAddIn.main->SyncData(21, false);
    EXPECT_THAT(mAddIn.TraceTexts(), ElementsAre("load 21 days", "last synced: 10/10/2006 8:59:45 AM"));
    EXPECT_EQ(mAddIn.main->mTempodialDebugLog->mFlushLength, 0);
    EXPECT_THAT(mAddIn.journal->calls, IsEmpty());
    EXPECT_EQ(mAddIn.HistoryText(), "(absent)");
}

TEST_F(TempodialDataHandlerTest, SyncData_Forced_AlwaysRuns)
{
    for (int i = 0; i < 3; ++i) {
        mAddIn.Trace();
        Sync();
        EXPECT_THAT(mAddIn.TraceTexts(), Contains("Exiting syncdata"));
    }
}

TEST_F(TempodialDataHandlerTest, SyncData_CalledWithinASync_DoesNothing)
{
    int calls = 0;
    mAddIn.eventPump->hook = [&] {
        ++calls;
        mAddIn.main->SyncData(21, true);
    };
    mAddIn.WriteTracker("20061010",
        { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c"), WordSlot(900, 1200, "d") });
    Sync();
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(Count(lines, "load 21 days"), 2);
    EXPECT_EQ(Count(lines, "last synced"), 1);
    EXPECT_EQ(mAddIn.Items().size(), 4);
    EXPECT_THAT(lines, Contains("Exiting syncdata"));
}

TEST_F(TempodialDataHandlerTest, SyncData_BuffersTheTraceMeanwhile)
{
    std::vector<std::int32_t> lengths;
    mAddIn.journal->hook
        = [&](const std::string&) { lengths.push_back(mAddIn.main->mTempodialDebugLog->mFlushLength); };
    Sync();
    EXPECT_THAT(lengths, testing::Each(2500));
    EXPECT_EQ(mAddIn.main->mTempodialDebugLog->mFlushLength, 0);
}

TEST_F(TempodialDataHandlerTest, SyncData_LinesUpToTheLastCount_AreNotLoadedAgain)
{
    mAddIn.WriteHistory("20061010_04000");
    mAddIn.WriteTracker(
        "20061010", { WordSlot(3600, 3900, "a"), WordSlot(3900, 4000, "b"), WordSlot(4000, 4300, "c") });
    Sync();
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("01:06-01:11 Microsoft Word, \"c\""));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_04300");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines,
        testing::AllOf(Contains("history: 20061010_04000"), Contains("dayoffset: 1"), Contains("Last count: 4000"),
            Contains("New Last second count: 04300"), Contains("before: 61010_04000"), Contains("after: 61010_04300")));
}

TEST_F(TempodialDataHandlerTest, SyncData_DetailAtTheLastCount_IsLoadedToo)
{
    mAddIn.WriteHistory("20061010_04000");
    mAddIn.WriteTracker("20061010",
        { WordSlot(3600, 3900, "a"), WordLine(3900, 4000, "b").Detail().Text(), WordSlot(4000, 4300, "c") });
    Sync();
    EXPECT_EQ(Count(mAddIn.TraceTexts(), "load line: "), 2);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_04300");
}

TEST_F(TempodialDataHandlerTest, SyncData_EmptyHistoryAndNothingNew_StaysEmpty)
{
    mAddIn.WriteHistory("");
    mAddIn.WriteTracker("20061010", {});
    Sync();
    EXPECT_EQ(mAddIn.HistoryText(), "");
    const auto lines = mAddIn.TraceTexts();
    const auto failed = std::find(lines.begin(), lines.end(), "SyncData error Input past end of file history");
    ASSERT_NE(failed, lines.end());
    EXPECT_EQ(*(failed + 1), "Finished file");
    EXPECT_EQ(*(failed + 2), "history: ");
}

TEST_F(TempodialDataHandlerTest, SyncData_AnyReadPastTheEnd_TracesThatTheFileIsFinished)
{
    mAddIn.journal->hook = [](const std::string& call) {
        if (call == "Begin") {
            throw Failure(Error::InputPastEnd);
        }
    };
    Sync();
    const auto lines = mAddIn.TraceTexts();
    const auto failed = std::find(lines.begin(), lines.end(), "SyncData error Input past end of file history");
    ASSERT_NE(failed, lines.end());
    EXPECT_EQ(*(failed + 1), "Finished file");
}

TEST_F(TempodialDataHandlerTest, SyncData_NothingNewToday_KeepsTheEntryAlone)
{
    mAddIn.WriteHistory("|20061001_00100|20061010_04000");
    mAddIn.WriteTracker("20061010", { WordSlot(3600, 3900, "a") });
    Sync();
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_04000");
}

TEST_F(TempodialDataHandlerTest, SyncData_BadEntry_TakesTheCountOfTheDayBeforeInThisSync)
{
    mAddIn.WriteHistory("20061010_x");
    mAddIn.WriteTracker("20061010", { WordSlot(0, 0, "a") });
    Sync();
    auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("SyncData error Type mismatch looping through"));
    EXPECT_THAT(lines, Contains("Last count: 0"));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00000");

    mAddIn.WriteHistory("|20061010_00500|20061009_x");
    mAddIn.WriteTracker("20061009", {});
    Sync();
    lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "Last count: 500"), 2);
    EXPECT_THAT(lines, Contains("SyncData error Type mismatch Close"));

    mAddIn.WriteHistory("20061010");
    Sync();
    lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("SyncData error Subscript out of range looping through"));
    EXPECT_THAT(lines, Contains("Last count: 0"));
}

TEST_F(TempodialDataHandlerTest, SyncData_PastDay_GetsItsFinishedName)
{
    mAddIn.WriteTracker("20061009", { WordSlot(32400, 32700, "a") });
    const auto content = mAddIn.ReadFile(LiveYesterday);
    mFolder.Write("Tempodial/" + std::string(DoneYesterday), "an older one");
    Sync();
    EXPECT_FALSE(mAddIn.HasFile(LiveYesterday));
    EXPECT_EQ(mAddIn.ReadFile(DoneYesterday), content);
    EXPECT_EQ(mAddIn.Items().size(), 1);
    EXPECT_EQ(mAddIn.HistoryText(), "");
    // A finished file isn't read again.
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 1);
}

TEST_F(TempodialDataHandlerTest, SyncData_OnlyEntryIsYesterdays_CutFailsAndTheEntryStays)
{
    mAddIn.WriteHistory("20061009_02000");
    mAddIn.WriteTracker("20061009", {});
    Sync();
    EXPECT_FALSE(mAddIn.HasFile(LiveYesterday));
    EXPECT_EQ(mAddIn.HistoryText(), "20061009_02000");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("SyncData error Invalid procedure call or argument delete"));
}

TEST_F(TempodialDataHandlerTest, SyncData_TwoPastEntries_CutsTheOneThatIsNotLast)
{
    mAddIn.WriteHistory("|20061008_01000|20061009_02000");
    mAddIn.WriteTracker("20061009", {});
    mAddIn.WriteTracker("20061008", {});
    Sync();
    EXPECT_EQ(mAddIn.HistoryText(), "|20061009_02000");
    EXPECT_THAT(mAddIn.TraceTexts(),
        testing::AllOf(Contains("dayoffset: 17"), Contains("dayoffset: 2"), Contains("Last count: 1000")));
}

TEST_F(TempodialDataHandlerTest, SyncData_CancelledYesterday_KeepsBothCountsAndOlderDays)
{
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "t") });
    std::vector<std::string> lines;
    for (int i = 0; i < 8; ++i) {
        lines.push_back(WordSlot(i * 300, i * 300 + 300, "y"));
    }
    mAddIn.WriteTracker("20061009", lines);
    mAddIn.WriteTracker("20061008", { WordSlot(0, 300, "s") });
    mAddIn.eventPump->hook = [&] { mAddIn.ClickCancel(); };
    Sync();
    EXPECT_EQ(mAddIn.HistoryText(), "|20061010_00300|20061009_00900");
    EXPECT_TRUE(mAddIn.HasFile(LiveYesterday));
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061008.out"));
    EXPECT_EQ(mAddIn.Items().size(), 4);
    EXPECT_THAT(mAddIn.TraceTexts(), Not(Contains("file: " + DataFile("tracker_granules20061008.out"))));

    // The next sync goes on at the next line.
    mAddIn.eventPump->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 10);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00300");
    EXPECT_FALSE(mAddIn.HasFile("tracker_granules20061008.out"));
}

TEST_F(TempodialDataHandlerTest, SyncData_TwentyOneDays_ReachesThatFarAndNoFarther)
{
    mAddIn.WriteTracker("20060919", { WordSlot(0, 300, "in") });
    mAddIn.WriteTracker("20060918", { WordSlot(0, 300, "out") });
    Sync();
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("00:00-00:05 Microsoft Word, \"in\""));
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20060918.out"));
}

TEST_F(TempodialDataHandlerTest, SyncData_LockedFile_IsPassedOver)
{
    mAddIn.WriteHistory("20061010_00100");
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a") });
    mAddIn.files->hook = [&](const std::string& operation, const std::string& path) {
        if (operation == "open" && path == DataFile(LiveToday)) {
            throw Failure(Error::PermissionDenied);
        }
    };
    Sync();
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("SyncData error Permission denied looping through"));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00100");
    mAddIn.files->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 1);
}

TEST_F(TempodialDataHandlerTest, SyncData_CopyFails_DeletesAllTheSame)
{
    mAddIn.WriteHistory("|20061009_00100|20061001_00100");
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "a") });
    mAddIn.files->hook = [](const std::string& operation, const std::string&) {
        if (operation == "copy") {
            throw Failure(Error::DiskFull);
        }
    };
    Sync();
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("SyncData error Disk full copy"));
    EXPECT_FALSE(mAddIn.HasFile(LiveYesterday));
    EXPECT_FALSE(mAddIn.HasFile(DoneYesterday));
    EXPECT_EQ(mAddIn.HistoryText(), "|20061001_00100");
}

TEST_F(TempodialDataHandlerTest, SyncData_DeleteFails_TheFileIsReadAgain)
{
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "a") });
    mAddIn.files->hook = [](const std::string& operation, const std::string& path) {
        if (operation == "delete" && path.ends_with(".out")) {
            throw Failure(Error::PermissionDenied);
        }
    };
    Sync();
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("SyncData error Permission denied delete"));
    EXPECT_TRUE(mAddIn.HasFile(DoneYesterday));
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 2);
}

TEST_F(TempodialDataHandlerTest, SyncData_HistoryCannotBeWritten_EndsInOrder)
{
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a") });
    mAddIn.files->hook = [&](const std::string& operation, const std::string& path) {
        if (operation == "write" && path == DataFile("TempodialHistory.out")) {
            throw Failure(Error::DiskFull);
        }
    };
    Sync();
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("SyncData error Disk full Cleanup"));
    EXPECT_THAT(lines, Contains("SyncData error Device I/O error Cleanup"));
    EXPECT_THAT(mAddIn.journal->calls, Not(Contains("HistorySaved")));
    EXPECT_EQ(lines.back(), "Exiting syncdata");
    EXPECT_FALSE(mAddIn.forms->NewestVisible("ProgressBarForm"));
    EXPECT_EQ(mAddIn.main->mTempodialDebugLog->mFlushLength, 0);
    // The flag is cleared.
    mAddIn.files->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.TraceTexts().back(), "Exiting syncdata");
}

TEST_F(TempodialDataHandlerTest, SyncData_HistoryCannotBeOpened_CostsALineForEachStatement)
{
    mAddIn.files->hook = [&](const std::string& operation, const std::string& path) {
        if (operation == "open" && path == DataFile("TempodialHistory.out")) {
            throw Failure(Error::PermissionDenied);
        }
    };
    Sync();
    auto lines = mAddIn.TraceTexts();
    lines.erase(lines.begin(), lines.end() - 4);
    EXPECT_THAT(lines,
        ElementsAre("SyncData error Permission denied Cleanup",
            "SyncData error Object variable or With block variable not set Cleanup",
            "SyncData error Object variable or With block variable not set Cleanup", "Exiting syncdata"));
}

TEST_F(TempodialDataHandlerTest, SyncData_AnyOneCallFails_EndsInOrderWithALine)
{
    int made = 1;
    for (int failing = 1; failing <= made; ++failing) {
        SCOPED_TRACE("call " + std::to_string(failing));
        const TempFolder folder(TempFolder::InMemory());
        TestAddIn addIn(folder.Path());
        addIn.Connect();
        addIn.WriteHistory("|20061009_00100|20061010_00100");
        addIn.WriteTracker("20061010", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
        addIn.WriteTracker("20061009", { WordSlot(0, 300, "c") });
        addIn.Trace();
        int calls = 0;
        const auto reach = [&] {
            if (++calls == failing) {
                throw Failure(Error::DeviceError);
            }
        };
        addIn.files->hook = [&](const std::string&, const std::string& path) {
            if (path.find("WorkLogTrace") == std::string::npos) {
                reach();
            }
        };
        addIn.journal->hook = [&](const std::string&) { reach(); };
        addIn.main->SyncData(1, true);
        addIn.files->hook = nullptr;
        made = std::max(made, calls);
        const auto lines = addIn.TraceTexts();
        EXPECT_EQ(lines.back(), "Exiting syncdata");
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(),
            [](const auto& line) { return line.find("Device I/O error") != std::string::npos; }));
    }
    EXPECT_GT(made, 15);
}

TEST_F(TempodialDataHandlerTest, SyncData_AddInEndsMeanwhile_StopsAndWritesTheHistory)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 8; ++i) {
        lines.push_back(WordSlot(i * 300, i * 300 + 300, "y"));
    }
    mAddIn.WriteTracker("20061009", lines);
    mAddIn.WriteTracker("20061008", lines);
    mAddIn.eventPump->hook = [&] {
        mAddIn.eventPump->hook = nullptr;
        mAddIn.Disconnect();
    };
    // As a host holds it: nobody else may need the main object while it ends.
    const std::weak_ptr<TempodialMain> gone = mAddIn.main.Shared();
    Sync();
    EXPECT_TRUE(gone.expired());
    EXPECT_TRUE(mAddIn.HasFile(LiveYesterday));
    EXPECT_EQ(mAddIn.HistoryText(), "|20061009_00900");
    EXPECT_EQ(mAddIn.Items().size(), 3);
    EXPECT_EQ(mAddIn.journal->calls.back(), "End");
    EXPECT_FALSE(mAddIn.forms->NewestVisible("ProgressBarForm"));

    mAddIn.Connect();
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 16);
}

TEST_F(TempodialDataHandlerTest, Initialize_TracesItsRevision)
{
    const auto handler = MakeRef<TempodialDataHandler>(mAddIn.platform);
    handler->Initialize(mAddIn.main, mAddIn.application, nullptr, mAddIn.main->mTempodialDebugLog);
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("TDDataHandler Initialize revision 1 TempodialDataHandler"));
}

TEST_F(TempodialDataHandlerTest, Terminate_LetsGo_SoThatALaterSyncFails)
{
    const auto handler = MakeRef<TempodialDataHandler>(mAddIn.platform);
    handler->Initialize(mAddIn.main, nullptr, nullptr, mAddIn.main->mTempodialDebugLog);
    const auto references = mAddIn.main.Shared().use_count();
    handler->Terminate();
    EXPECT_EQ(mAddIn.main.Shared().use_count(), references - 1);
    EXPECT_EQ(FailureNumber([&] { handler->SyncData(21, true); }), 91);
    handler->Terminate();
}

}
