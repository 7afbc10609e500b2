#include "DesktopFixture.h"
#include "desktop/qt/SelectionBar.h"
#include "review/ActivityReader.h"
#include "session/ProductFacts.h"
#include "support/SlotLines.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QTest>
#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::IsEmpty;

}

/// Imports with the window open, while something happens to the tracker's files.
class DisturbedImportTest : public DesktopFixture
{
protected:
    static constexpr int Documents = 12;

    DisturbedImportTest()
    {
        WriteDay(16);
        WriteDay(17);
        mWindow = &Open();
    }

    static std::string TextOfDay(int day)
    {
        constexpr int Morning = 8 * 3600;
        constexpr int Length = 1800;
        std::vector<std::string> lines;
        for (int i = 0; i < Documents; ++i) {
            const auto start = Morning + i * Length;
            lines.push_back(WordSlot(start, start + Length, std::to_string(day) + "-" + std::to_string(i) + ".doc"));
        }
        return TrackerText(lines);
    }
    std::string PathOf(int day) const { return DataPath(TrackerFileName(On(day, 0).DayKey())); }
    std::string DataPath(const std::string& name) const { return mDesk->Profile().DataFolder() + "/" + name; }
    void WriteDay(int day) const
    {
        fs::create_directories(mDesk->Profile().DataFolder());
        std::ofstream(PathOf(day), std::ios::binary) << TextOfDay(day);
    }
    void Import()
    {
        mDesk->Do([this] { mDesk->Session().AddIn().SyncData(SavedDataDays, true); });
    }
    /// An import in whose midst something is done.
    template <class Work> void ImportWhile(const Work& disturb)
    {
        bool isDone = false;
        const auto during = mDesk->Subscribe({ .Changed = [&] {
            if (mDesk->IsBusy() && !isDone) {
                isDone = true;
                disturb();
            }
        } });
        Import();
        EXPECT_TRUE(isDone);
    }
    std::size_t Count() const { return ActivitiesStartingIn(mDesk->Profile(), { On(1, 0), On(30, 0) }).size(); }
    std::string Said() const { return mWindow->Foot().Said().toStdString(); }
    /// The next import finds all back and takes each line once.
    void ExpectNextIsRight()
    {
        mWindow->Say({});
        Import();
        EXPECT_EQ(Count(), 2U * Documents);
        EXPECT_THAT(Said(), IsEmpty());
    }

    MainWindow* mWindow;
};

TEST_F(DisturbedImportTest, Nothing_IsSaidOfAnImportThatGoesWell)
{
    ImportWhile([] {});
    EXPECT_EQ(Count(), 2U * Documents);
    EXPECT_THAT(Said(), IsEmpty());
    EXPECT_TRUE(fs::exists(DataPath(FinishedTrackerFileName("20061116"))));
}

TEST_F(DisturbedImportTest, TodaysFile_Vanishes_IsSaidAndTheNextIsRight)
{
    ImportWhile([this] { fs::rename(PathOf(17), mFolder.Path("away")); });
    EXPECT_THAT(
        Said(), HasSubstr("The tracker's file tracker_granules20061117.out has gone; what was imported of it is"));
    fs::rename(mFolder.Path("away"), PathOf(17));
    ExpectNextIsRight();
}

TEST_F(DisturbedImportTest, Warning_LongerThanTheBar_IsReadAsAWhole)
{
    mWindow->resize(1000, 700);
    ImportWhile([this] { fs::rename(PathOf(17), mFolder.Path("away")); });
    Settle();
    const auto labels = mWindow->Foot().findChildren<QLabel*>();
    const auto said = std::find_if(
        labels.begin(), labels.end(), [this](const QLabel* label) { return label->text() == mWindow->Foot().Said(); });
    ASSERT_NE(said, labels.end()) << "nothing of it is cut";
    EXPECT_TRUE(QTest::qWaitFor([&] { return (*said)->height() >= (*said)->heightForWidth((*said)->width()); }));
    Picture(*mWindow, "vanished-file");
    const auto isWrapped = [&] { return (*said)->wordWrap(); };
    EXPECT_TRUE(isWrapped());
    mWindow->Say("Short.");
    EXPECT_FALSE(isWrapped());
}

TEST_F(DisturbedImportTest, PastFile_VanishesBeforeItsTurn_NothingElseIsLost)
{
    ImportWhile([this] { fs::rename(PathOf(16), mFolder.Path("away")); });
    EXPECT_THAT(Said(), IsEmpty()) << "what was never read isn't missed";
    fs::rename(mFolder.Path("away"), PathOf(16));
    ExpectNextIsRight();
}

TEST_F(DisturbedImportTest, File_IsCutShort_IsSaidAndTheNextIsRight)
{
    ImportWhile([this] { fs::resize_file(PathOf(17), 500); });
    EXPECT_THAT(Said(), HasSubstr("The tracker's file tracker_granules20061117.out has become shorter"));
    WriteDay(17);
    ExpectNextIsRight();
}

TEST_F(DisturbedImportTest, File_BecomesAFolder_IsSaidAsLongAsItIsOne)
{
    ImportWhile([this] {
        fs::rename(PathOf(17), mFolder.Path("away"));
        fs::create_directory(PathOf(17));
    });
    EXPECT_THAT(Said(), HasSubstr("There is no file any more at " + PathOf(17)));
    Import();
    EXPECT_THAT(Said(), HasSubstr("There is a folder at " + PathOf(17) + ", where a file should be: move it away"));
    fs::remove(PathOf(17));
    fs::rename(mFolder.Path("away"), PathOf(17));
    ExpectNextIsRight();
}

TEST_F(DisturbedImportTest, History_CantBeRead_IsSaidAndNothingIsTaken)
{
    fs::create_directory(DataPath(HistoryFileName));
    Import();
    EXPECT_THAT(Said(), HasSubstr("There is a folder at " + DataPath(HistoryFileName)));
    EXPECT_EQ(Count(), 0U);
    fs::remove(DataPath(HistoryFileName));
    ExpectNextIsRight();
}

TEST_F(DisturbedImportTest, Line_CantBeRead_IsNamed)
{
    std::ofstream(PathOf(17), std::ios::binary | std::ios::app) << "<slot><broken\r\n"
                                                                << WordSlot(60000, 60300, "l.doc") << "\r\n";
    Import();
    EXPECT_THAT(Said(), HasSubstr("The import left out line 14 of tracker_granules20061117.out"));
    EXPECT_EQ(Count(), 2U * Documents + 1);
    mWindow->Say({});
    Import();
    EXPECT_THAT(Said(), IsEmpty()) << "it is said once";
}

TEST_F(DisturbedImportTest, Disk_IsFull_IsSaidAndTheNextIsRight)
{
    FillDisk(mDesk->Session().Mailbox());
    Import();
    EXPECT_THAT(Said(), HasSubstr("The import ended early, and goes on from there the next time. The disk is full"));
    FreeDisk(mDesk->Session().Mailbox());
    ExpectNextIsRight();
}

TEST_F(DisturbedImportTest, Mailbox_IsDamagedWhileItIsOpen_IsSaidWhateverIsDone)
{
    Import();
    TestDatabase(mDesk->Session().Mailbox())
        .Execute("UPDATE item SET properties = substr(properties, 1, 40) WHERE properties <> ''");
    const auto damaged = HasSubstr("is damaged: ");
    mWindow->Show(DesktopSettings::View::List, On(17, 0));
    mWindow->SelectAll();
    EXPECT_THAT(Said(),
        HasSubstr("so nothing more is changed: quit, see what \"tempodial doctor\" says, and bring a "
                  "backup back with \"tempodial restore\"."));
    mWindow->Say({});
    Import();
    EXPECT_THAT(Said(), damaged) << "also of what comes next";
}

TEST_F(DisturbedImportTest, Undo_Meanwhile_SaysThatAnImportIsGoingOn)
{
    Add("Alpha", "Plan", "Writer", On(1, 9), On(1, 10));
    const auto plan = ActivityAt(mDesk->Profile(), On(1, 9, 10))->number;
    mWindow->Show(DesktopSettings::View::Day, On(1, 0));
    mWindow->Select({ plan });
    mWindow->SetProject("Beta");
    const auto busy = HasSubstr("an import is going on: try again when it is over");
    ImportWhile([&] {
        mWindow->Undo();
        EXPECT_THAT(Said(), busy);
    });
    EXPECT_EQ(ActivityNumbered(mDesk->Profile(), plan)->project, "Beta");
    EXPECT_EQ(Count(), 2U * Documents + 1);
    mWindow->Undo();
    EXPECT_EQ(ActivityNumbered(mDesk->Profile(), plan)->project, "Alpha");
}

}
