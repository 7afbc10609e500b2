#include "base/Text.h"
#include "engine/import/TempodialDataHandler.h"
#include "support/AddInFixture.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr auto History = "TempodialHistory.out";

/// Lines of a day with everything that may stand in a file: continuations, details, some of them at the last count,
/// ends that are equal or fall back, lines that aren't well-formed, a line without its end.
std::vector<std::string> MixedDay(const std::string& name)
{
    return {
        WordSlot(32400, 32700, name + " 1"),
        WordLine(32500, 32700, name + " aside").Detail().Text(),
        WordLine(32700, 33000, name + " 2").Continuation().Text(),
        "<slot><half written",
        WordLine(32800, 33000, name + " more").Detail().Text(),
        WordSlot(33000, 33300, name + " first of two"),
        WordSlot(33000, 33300, name + " second of two"),
        WordSlot(32400, 32700, name + " falls back"),
        "<slot><AppType>2</AppType><WordDocName>no times</WordDocName></slot>",
        SlotLine(33300, 33600).Application(6).Node("URL", "http://" + name).Text(),
        WordLine(33400, 33600, name + " last").Detail().Text(),
    };
}

/// What a sync leaves behind.
struct State
{
    std::vector<std::string> items;
    std::string history;
    std::vector<std::string> files;

    friend bool operator==(const State&, const State&) = default;
};

State StateOf(const TestAddIn& addIn, const std::string& profile)
{
    State state { addIn.ItemTexts(), addIn.HistoryText(), {} };
    for (const auto& entry : fs::directory_iterator(profile + "/Tempodial")) {
        const auto name = entry.path().filename().string();
        if (name.starts_with("tracker_")) {
            state.files.push_back(name + "|" + addIn.ReadFile(name));
        }
    }
    std::sort(state.files.begin(), state.files.end());
    return state;
}

}

/// Imports that ended before their time: killed, cancelled or refused by the store.
class TempodialDataHandlerResumeTest : public AddInFixture
{
protected:
    /// Files, and perhaps a history, that an import begins with.
    using Begin = std::function<void(const TestAddIn& addIn)>;

    void Sync() { mAddIn.main->SyncData(21, true); }
    /// An import of one day that ends, as if killed, before the history is written.
    void ImportWithoutHistory(const std::string& dayKey, const std::vector<std::string>& lines)
    {
        mAddIn.WriteTracker(dayKey, lines);
        FailOn("save", History);
        Sync();
        mAddIn.files->hook = nullptr;
        mAddIn.journal->calls.clear();
        mAddIn.Trace();
    }
    /// Lets operations fail on files of which the path ends so.
    void FailOn(const std::string& failing, const std::string& name)
    {
        mAddIn.files->hook = [failing, name](const std::string& operation, const std::string& path) {
            if (operation == failing && path.ends_with(name)) {
                throw Failure(Error::PermissionDenied);
            }
        };
    }
    void FailOnCall(const std::string& failing)
    {
        mAddIn.journal->hook = [failing](const std::string& call) {
            if (call == failing) {
                throw Failure(Error::DiskFull);
            }
        };
    }

    /// Kills an import at each of its points, lets the next one end it, and compares that with an undisturbed one.
    static void KillEverywhere(const Begin& begin)
    {
        const auto undisturbed = Run(begin, 0);
        ASSERT_FALSE(undisturbed->state.items.empty());
        ASSERT_GT(undisturbed->points, 20);
        for (int point = 1; point <= undisturbed->points; ++point) {
            SCOPED_TRACE("killed at point " + std::to_string(point) + " of " + std::to_string(undisturbed->points));
            const auto resumed = Run(begin, point);
            EXPECT_EQ(resumed->state.items, undisturbed->state.items);
            EXPECT_EQ(resumed->state.history, undisturbed->state.history);
            EXPECT_EQ(resumed->state.files, undisturbed->state.files);
        }
    }

private:
    struct Outcome
    {
        State state;
        int points = 0;
    };

    /// Runs an import; with a point, what the disk holds at that point is all that the next import finds.
    static std::unique_ptr<Outcome> Run(const Begin& begin, int point)
    {
        auto outcome = std::make_unique<Outcome>();
        const TempFolder folder(TempFolder::InMemory());
        const auto first = folder.Path("first");
        const auto second = folder.Path("second");
        fs::create_directory(first);
        {
            TestAddIn addIn(first, first + "/mailbox.db");
            addIn.Connect();
            begin(addIn);
            const auto reachPoint = [&] {
                if (++outcome->points == point) {
                    fs::copy(first, second, fs::copy_options::recursive);
                }
            };
            addIn.journal->hook = [&](const std::string& call) {
                if (call.starts_with("Loaded")) {
                    addIn.clock->Advance(1);
                }
                // From here on nothing is left to be resumed.
                if (call != "End") {
                    reachPoint();
                }
            };
            addIn.files->hook = [&](const std::string&, const std::string& path) {
                if (path.find("WorkLogTrace") == std::string::npos) {
                    reachPoint();
                }
            };
            addIn.main->SyncData(2, true);
            addIn.files->hook = nullptr;
            if (point == 0) {
                outcome->state = StateOf(addIn, first);
                return outcome;
            }
        }
        TestAddIn addIn(second, second + "/mailbox.db");
        addIn.Connect();
        addIn.main->SyncData(2, true);
        outcome->state = StateOf(addIn, second);
        return outcome;
    }
};

TEST_F(TempodialDataHandlerResumeTest, SyncData_KilledAnywhereOnAFirstImport_EndsAsUndisturbed)
{
    KillEverywhere([](const TestAddIn& addIn) {
        addIn.WriteTracker("20061010", MixedDay("today"));
        addIn.WriteTracker("20061009", MixedDay("yesterday"));
    });
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_KilledAnywhereWithoutAFileOfToday_EndsAsUndisturbed)
{
    KillEverywhere([](const TestAddIn& addIn) {
        addIn.WriteHistory("|20061008_32700|20061009_33000");
        addIn.WriteTracker("20061009", MixedDay("yesterday"));
        addIn.WriteTracker("20061008", MixedDay("before"));
    });
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_KilledAnywhereWithNothingNew_EndsAsUndisturbed)
{
    KillEverywhere([](const TestAddIn& addIn) {
        addIn.WriteHistory("|20061008_33600|20061009_33000|20061010_86400");
        addIn.WriteTracker("20061010", {});
        addIn.WriteTracker("20061009", MixedDay("yesterday"));
        addIn.WriteTracker("20061008", { WordSlot(32400, 32700, "known") });
    });
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_OrdinaryImport_KeepsTheJournalStepByStep)
{
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a"), "ignored", WordSlot(300, 600, "b") });
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "c") });
    mAddIn.WriteTracker("20061008", {});
    Sync();
    EXPECT_THAT(mAddIn.journal->calls,
        ElementsAre("Begin", "Loaded 20061010 300 1", "Loaded 20061010 600 3", "Commit", "Loaded 20061009 300 1",
            "Commit", "Commit", "HistorySaved", "End"));
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_TimePasses_CommitsBeforeANewActivityOnly)
{
    mAddIn.journal->hook = [&](const std::string& call) {
        if (call.starts_with("Loaded")) {
            mAddIn.clock->Advance(1);
        }
    };
    mAddIn.WriteTracker("20061010",
        { WordSlot(0, 300, "a"), WordLine(300, 600, "b").Continuation().Text(), WordLine(400, 600, "c").Detail().Text(),
            WordSlot(600, 900, "d"), WordSlot(900, 1200, "e") });
    Sync();
    EXPECT_THAT(mAddIn.journal->calls,
        ElementsAre("Begin", "Loaded 20061010 300 1", "Loaded 20061010 600 2", "Loaded 20061010 600 3", "Commit",
            "Loaded 20061010 900 4", "Commit", "Loaded 20061010 1200 5", "Commit", "HistorySaved", "End"));
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_ManyLines_CommitsEveryThousand)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 2500; ++i) {
        lines.push_back(WordSlot(i, i + 1, "x"));
    }
    mAddIn.WriteTracker("20061010", lines);
    Sync();
    EXPECT_EQ(std::count(mAddIn.journal->calls.begin(), mAddIn.journal->calls.end(), "Commit"), 3);
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_HistoryWasNotWritten_SkipsWhatWasCommitted)
{
    const std::vector<std::string> lines { WordSlot(0, 300, "a"), WordSlot(0, 300, "b") };
    ImportWithoutHistory("20061010", lines);
    EXPECT_EQ(mAddIn.HistoryText(), "(absent)");
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 2);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00300");
    EXPECT_EQ(mAddIn.journal->Committed("20061010"), std::nullopt);
    // Lines that are skipped leave nothing in the trace and show nothing.
    const auto trace = mAddIn.TraceTexts();
    for (const auto& line : trace) {
        EXPECT_FALSE(line.starts_with("load line") || line == "show progress") << line;
    }
    EXPECT_THAT(trace,
        testing::AllOf(Contains("Last count: -1"), Contains("File error Input past end of file ReadLine"),
            Contains("New Last second count: 00300")));
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_LinesBehindTheCommittedOnes_CompareWithTheHistory)
{
    mAddIn.WriteHistory("20061010_00100");
    ImportWithoutHistory("20061010", { WordSlot(0, 300, "a") });
    // The end falls back behind the position, but not behind the history.
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a"), WordSlot(0, 200, "b"), WordSlot(0, 100, "c") });
    Sync();
    EXPECT_THAT(
        mAddIn.ItemTexts(), ElementsAre("00:00-00:05 Microsoft Word, \"a\"", "00:00-00:03 Microsoft Word, \"b\""));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00200");
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_FileWasReplacedByAShorterOne_GoesByTheCount)
{
    ImportWithoutHistory("20061010", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    mAddIn.WriteTracker("20061010", { WordSlot(700, 900, "c") });
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 3);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00900");

    ImportWithoutHistory("20061009", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c") });
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 6);
    EXPECT_FALSE(mAddIn.HasFile("tracker_granules20061009.out"));
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_ShorterFileWithNothingNew_KeepsTheCount)
{
    ImportWithoutHistory("20061010", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a") });
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 2);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00600");
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_ShorterFileCannotBeOpenedAgain_IsNotTakenForFinished)
{
    ImportWithoutHistory("20061009", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    mFolder.Write("Tempodial/tracker_granules20061009.out", "tracker\r\n" + WordSlot(700, 900, "c") + "\r\n");
    int opened = 0;
    mAddIn.files->hook = [&](const std::string& operation, const std::string& path) {
        if (operation == "open" && path.ends_with("granules20061009.out") && ++opened == 2) {
            throw Failure(Error::PermissionDenied);
        }
    };
    Sync();
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("ParseFile error Permission denied ReadLine"));
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061009.out"));
    mAddIn.files->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 3);
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_CancelledBeforeACommittedDay_KeepsItsPosition)
{
    ImportWithoutHistory("20061009", { WordSlot(0, 300, "a") });
    // The file is there again, as if the run had been killed before it was moved.
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "a") });
    mAddIn.WriteTracker("20061010",
        { WordSlot(0, 300, "t"), WordSlot(300, 600, "t"), WordSlot(600, 900, "t"), WordSlot(900, 1200, "t") });
    mAddIn.eventPump->hook = [&] { mAddIn.ClickCancel(); };
    Sync();
    EXPECT_THAT(mAddIn.journal->calls, Not(Contains("HistorySaved")));
    EXPECT_EQ(mAddIn.HistoryText(), "|20061010_00900");

    mAddIn.eventPump->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 5);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_01200");
    EXPECT_FALSE(mAddIn.HasFile("tracker_granules20061009.out"));
    EXPECT_THAT(mAddIn.journal->calls, Contains("HistorySaved"));
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_CommittedDayIsLocked_KeepsItsPosition)
{
    ImportWithoutHistory("20061010", { WordSlot(0, 300, "a") });
    FailOn("open", "granules20061010.out");
    Sync();
    EXPECT_THAT(mAddIn.journal->calls, Not(Contains("HistorySaved")));
    mAddIn.files->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 1);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00300");
    EXPECT_THAT(mAddIn.journal->calls, Contains("HistorySaved"));
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_CommitFails_MovesNothingAndGoesBackToTheLastCommit)
{
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "a") });
    mAddIn.WriteTracker("20061008", { WordSlot(0, 300, "b") });
    FailOnCall("Commit");
    Sync();
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("SyncData error Disk full Close"));
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061009.out"));
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061008.out"));
    // Nothing was committed, so no line counts as loaded.
    EXPECT_EQ(mAddIn.HistoryText(), "");
    EXPECT_EQ(mAddIn.journal->calls.back(), "End");
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_CommitInTheMidstOfAFileFails_KeepsTheCountOfTheLast)
{
    int commits = 0;
    mAddIn.journal->hook = [&](const std::string& call) {
        mAddIn.clock->Advance(call.starts_with("Loaded") ? 1 : 0);
        if (call == "Commit" && ++commits >= 2) {
            throw Failure(Error::DiskFull);
        }
    };
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c") });
    Sync();
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("ParseLine error Disk full .text"));
    EXPECT_THAT(lines, Contains("New Last second count: 00300"));
    EXPECT_EQ(mAddIn.HistoryText(), "|20061010_00300");
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_PositionCannotBeKept_StopsAsIfCancelled)
{
    FailOnCall("Loaded 20061010 600 2");
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c") });
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "y") });
    Sync();
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("ParseLine error Disk full finish up"));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "create item"), 2);
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061009.out"));
    EXPECT_EQ(lines.back(), "Exiting syncdata");
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_StoreRefusesToBegin_LooksAtNoDay)
{
    mAddIn.WriteHistory("20061010_00100");
    mAddIn.WriteTracker("20061010", { WordSlot(0, 300, "a") });
    FailOnCall("Begin");
    Sync();
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("SyncData error Disk full history"));
    EXPECT_THAT(lines, Not(Contains("Last count: 100")));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00100");
    EXPECT_THAT(mAddIn.Items(), IsEmpty());
    EXPECT_THAT(mAddIn.journal->calls, ElementsAre("Begin", "End"));
    mAddIn.journal->hook = nullptr;
    Sync();
    EXPECT_EQ(mAddIn.Items().size(), 1);
}

TEST_F(TempodialDataHandlerResumeTest, SyncData_NoJournal_ImportsAllTheSame)
{
    mAddIn.platform->importJournal = MakeRef<NoImportJournal>();
    mAddIn.WriteTracker("20061010", MixedDay("today"));
    mAddIn.WriteTracker("20061009", { WordSlot(0, 300, "y") });
    Sync();
    const auto withoutJournal = mAddIn.TraceTexts();
    const auto items = mAddIn.ItemTexts();
    EXPECT_FALSE(mAddIn.HasFile("tracker_granules20061009.out"));

    const TempFolder folder(TempFolder::InMemory());
    TestAddIn other(folder.Path());
    other.Connect();
    other.Trace();
    other.WriteTracker("20061010", MixedDay("today"));
    other.WriteTracker("20061009", { WordSlot(0, 300, "y") });
    other.main->SyncData(21, true);
    EXPECT_EQ(other.ItemTexts(), items);
    auto withJournal = other.TraceTexts();
    for (auto& line : withJournal) {
        line = Replace(line, folder.Path(), mFolder.Path());
    }
    EXPECT_EQ(withJournal, withoutJournal);
}

}
