#include "engine/import/TempodialDataHandler.h"
#include "faults/FaultPlan.h"
#include "faults/Wrapped.h"
#include "host/store/StoreImportJournal.h"
#include "support/AddInFixture.h"

#include <filesystem>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

}

/// Imports that go by the lines that were reached before.
class TempodialDataHandlerRememberTest : public testing::Test
{
protected:
    TempodialDataHandlerRememberTest()
    {
        mAddIn.storeJournal->SetRemembers(true);
        mAddIn.platform->fileSystem = Wrapped(mAddIn.platform->fileSystem, mFaults);
        mAddIn.Connect();
    }

    void Sync() { mAddIn.main->SyncData(21, true); }
    void Sync(const std::string& dayKey, const std::vector<std::string>& lines)
    {
        mAddIn.WriteTracker(dayKey, lines);
        Sync();
    }
    void Fail(const std::string& call, Error error, std::int64_t skip = 0)
    {
        mFaults->Add({ .call = call, .skip = skip, .failure = Failure(error) });
    }
    /// The unread lines of the last sync, as "20061010 3".
    std::vector<std::string> Unread() const
    {
        std::vector<std::string> texts;
        for (const auto& line : mAddIn.storeJournal->Unread()) {
            texts.push_back(line.day + " " + std::to_string(line.number));
        }
        return texts;
    }
    std::size_t Made() const { return mAddIn.Items().size(); }

    static constexpr auto Today = "20061010";
    static constexpr auto Yesterday = "20061009";

    TempFolder mFolder { TempFolder::InMemory() };
    Ref<FaultPlan> mFaults = MakeRef<FaultPlan>();
    TestAddIn mAddIn { mFolder.Path() };
};

TEST_F(TempodialDataHandlerRememberTest, SyncData_HistoryCannotBeOpened_TakesNothing)
{
    Sync(Today, { WordSlot(0, 300, "a") });
    const auto history = mAddIn.HistoryText();
    mAddIn.WriteTracker(Today, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    Fail("FileSystem.OpenTextFile:TempodialHistory.out", Error::PermissionDenied);
    Sync();
    EXPECT_EQ(Made(), 1);
    EXPECT_EQ(mAddIn.HistoryText(), history);
    Sync();
    EXPECT_EQ(Made(), 2);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_HistoryCannotBeRead_TakesNothing)
{
    Sync(Today, { WordSlot(0, 300, "a") });
    const auto history = mAddIn.HistoryText();
    mAddIn.WriteTracker(Yesterday, { WordSlot(300, 600, "b") });
    Fail("TextStream.ReadAll", Error::DeviceError);
    Sync();
    EXPECT_EQ(Made(), 1);
    EXPECT_EQ(mAddIn.HistoryText(), history);
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061009.out"));
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_ByHistoryAlone_GoesOnWithoutOne)
{
    mAddIn.storeJournal->SetRemembers(false);
    Sync(Today, { WordSlot(0, 300, "a") });
    Fail("TextStream.ReadAll", Error::DeviceError);
    Sync();
    EXPECT_EQ(Made(), 2);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_EmptyHistory_IsOne)
{
    mAddIn.WriteHistory("");
    Sync(Today, { WordSlot(0, 300, "a") });
    EXPECT_EQ(Made(), 1);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00300");
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_FileFailsMidway_GivesTheDayUpAndGoesOnThereNextTime)
{
    mAddIn.WriteTracker(Yesterday, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c") });
    Fail("TextStream.ReadLine", Error::DeviceError, 2);
    Sync();
    EXPECT_EQ(Made(), 1);
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061009.out"));
    EXPECT_FALSE(mAddIn.HasFile("tracker_granules(done)20061009.out"));
    EXPECT_EQ(mAddIn.HistoryText(), "|20061009_00300");
    Sync();
    EXPECT_EQ(Made(), 3);
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules(done)20061009.out"));
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_FileFailsAtOnce_GivesTheDayUp)
{
    mAddIn.WriteTracker(Yesterday, { WordSlot(0, 300, "a") });
    Fail("TextStream.ReadLine", Error::DeviceError);
    Sync();
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules20061009.out"));
    Sync();
    EXPECT_EQ(Made(), 1);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_FileFailsByHistoryAlone_TakesThatForTheEnd)
{
    mAddIn.storeJournal->SetRemembers(false);
    mAddIn.WriteTracker(Yesterday, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    Fail("TextStream.ReadLine", Error::DeviceError, 2);
    Sync();
    EXPECT_EQ(Made(), 1);
    EXPECT_TRUE(mAddIn.HasFile("tracker_granules(done)20061009.out"));
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_LinesOfEachKind_NamesThoseThatCannotBeRead)
{
    mAddIn.WriteTracker(Today,
        { WordSlot(0, 300, "a"), "<slot><half", "", " \t", WordSlot(300, 600, "b"), std::string(2'000'000, 'x'),
            "<slot><StartTime>x</StartTime><EndTime>900</EndTime></slot>",
            "<slot><StartTime>600</StartTime><EndTime>99999999999</EndTime></slot>", "<slot><last" });
    Sync();
    EXPECT_THAT(Unread(), ElementsAre("20061010 3", "20061010 7", "20061010 8", "20061010 9", "20061010 10"));
    Sync();
    EXPECT_THAT(Unread(), IsEmpty());
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_LineWithoutItsEnd_IsNamedOnceItHasOne)
{
    const auto content = "tracker\r\n" + WordSlot(0, 300, "a") + "\r\n<slot><half";
    mFolder.Write("Tempodial/tracker_granules20061010.out", content);
    Sync();
    EXPECT_THAT(Unread(), IsEmpty());
    mFolder.Write("Tempodial/tracker_granules20061010.out", content + "\r\n");
    Sync();
    EXPECT_THAT(Unread(), ElementsAre("20061010 3"));
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_LinesThatEndOtherwise_AreNamed)
{
    mFolder.Write("Tempodial/tracker_granules20061010.out",
        "tracker\r" + WordSlot(0, 300, "a") + "\r" + WordSlot(300, 600, "b") + "\r");
    mFolder.Write("Tempodial/tracker_granules20061009.out", "tracker, half of its line end written\r");
    Sync();
    EXPECT_THAT(Unread(), ElementsAre("20061010 2"));
    Sync();
    EXPECT_THAT(Unread(), IsEmpty());
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_HistoryOfEarlier_TakesNothingTwice)
{
    Sync(Today, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    mAddIn.WriteHistory("20061010_00100");
    Sync(Today, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c") });
    EXPECT_EQ(Made(), 3);
    mAddIn.WriteHistory("20061001_00100");
    Sync();
    EXPECT_EQ(Made(), 3);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_NoHistory_TakesAllAnew)
{
    Sync(Today, { WordSlot(0, 300, "a") });
    std::filesystem::remove(mFolder.Path("Tempodial/TempodialHistory.out"));
    Sync();
    EXPECT_EQ(Made(), 2);
    Sync();
    EXPECT_EQ(Made(), 2);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_ClockAheadForARun_TakesWhatComesBehind)
{
    mAddIn.clock->Advance(86400);
    Sync(Today, { WordSlot(0, 300, "a") });
    EXPECT_FALSE(mAddIn.HasFile("tracker_granules20061010.out"));
    mAddIn.clock->Advance(-86400);
    Sync(Today, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    EXPECT_THAT(
        mAddIn.ItemTexts(), ElementsAre("00:00-00:05 Microsoft Word, \"a\"", "00:05-00:10 Microsoft Word, \"b\""));
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_EndFallsBack_TakesTheLine)
{
    Sync(Today, { WordSlot(3600, 3900, "a") });
    Sync(Today, { WordSlot(3600, 3900, "a"), WordSlot(300, 600, "b") });
    EXPECT_EQ(Made(), 2);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_EqualLines_AreTakenAsOftenAsTheyStandThere)
{
    Sync(Today, { WordSlot(0, 300, "a") });
    Sync(Today, { WordSlot(0, 300, "a"), WordSlot(0, 300, "a") });
    EXPECT_EQ(Made(), 2);
    Sync();
    EXPECT_EQ(Made(), 2);
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_HistoryOfAVersionWithoutMemory_IsGoneBy)
{
    mAddIn.WriteHistory("20061010_00300");
    mAddIn.WriteTracker(Today, { WordSlot(0, 200, "y"), WordSlot(0, 300, "z"), WordSlot(300, 600, "a") });
    // The first sync is cut short: what it has reached isn't all that the history stands for.
    Fail("TextStream.ReadLine", Error::DeviceError, 2);
    Sync();
    EXPECT_EQ(Made(), 0);
    Sync();
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("00:05-00:10 Microsoft Word, \"a\""));
}

TEST_F(TempodialDataHandlerRememberTest, SyncData_AfterImportsByHistory_TakesNothingTwice)
{
    mAddIn.storeJournal->SetRemembers(false);
    Sync(Today, { WordSlot(0, 300, "a") });
    Sync(Today, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b") });
    mAddIn.storeJournal->SetRemembers(true);
    Sync(Today, { WordSlot(0, 300, "a"), WordSlot(300, 600, "b"), WordSlot(600, 900, "c") });
    EXPECT_EQ(Made(), 3);
}

}
