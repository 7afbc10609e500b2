#include "scenarios/TroubleFixture.h"
#include "support/LongTests.h"
#include "support/SmallDisk.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

/// A profile on a disk of its own.
class DiskTroubleTest : public TroubleFixture
{
protected:
    void SetUp() override
    {
        mProfile = mFolder.Path("disk/profile");
        if (!mDisk.IsMounted()) {
            GTEST_SKIP() << "this system doesn't let a disk be mounted";
        }
    }
    void ExpectNextSyncLosesNothing() const
    {
        ExpectNextSyncImportsAll();
        // kept: the file of a day that was imported goes although there was no room for its copy.
        const auto expected = FilesOf(mExpected);
        for (const auto& [name, content] : FilesOf(StateOf(mProfile, mNow))) {
            EXPECT_TRUE(expected.contains(name) && expected.at(name) == content) << name;
        }
        EXPECT_TRUE(std::filesystem::exists(DataPath(Live)));
    }
    void BeginAnew() const
    {
        mDisk.Empty();
        std::filesystem::remove_all(mProfile);
        WriteDays();
    }

    SmallDisk mDisk { mFolder.Path("disk") };
};

}

TEST_F(DiskTroubleTest, Sync_DiskFullAtAnyStage_IsToldAndTheNextSyncCompletes)
{
    const int step = ShortOrLong(13, 1);
    bool isDone = false;
    int refused = 0;
    for (int pages = 0; !isDone; pages += step) {
        ASSERT_LT(pages, 600) << "the disk is large enough in the end";
        SCOPED_TRACE(std::to_string(pages) + " pages free");
        BeginAnew();
        mDisk.FillBut(pages);
        const auto result = Sync();
        ExpectTold(result);
        isDone = result.status == 0;
        refused += isDone ? 0 : 1;
        if (isDone) {
            EXPECT_EQ(StateOf(mProfile, mNow).items, mExpected.items) << "done is done";
        }
        mDisk.Empty();
        ExpectNextSyncLosesNothing();
    }
    EXPECT_GT(refused, 3);
}

TEST_F(DiskTroubleTest, Sync_DiskFullAfterAnEarlierSync_IsToldAndTheNextSyncCompletes)
{
    const int step = ShortOrLong(7, 1);
    int refused = 0;
    for (int pages = 0; pages < 60; pages += step) {
        SCOPED_TRACE(std::to_string(pages) + " pages free");
        BeginAnew();
        WriteTracker("20061010", { SlotsOf("today", 1).front() });
        std::filesystem::remove(DataPath("tracker_granules20061009.out"));
        std::filesystem::remove(DataPath("tracker_granules20061007.out"));
        ASSERT_EQ(Sync().status, 0);
        WriteDays();
        mDisk.FillBut(pages);
        const auto result = Sync();
        ExpectTold(result);
        refused += result.status;
        mDisk.Empty();
        ExpectNextSyncLosesNothing();
    }
    EXPECT_GT(refused, 0);
}

TEST_F(DiskTroubleTest, OtherCommands_DiskFull_AreToldAndLeaveNoHalfFile)
{
    BeginAnew();
    ASSERT_EQ(Sync().status, 0);
    const auto mail = mFolder.Path("disk/report.eml");
    const auto table = mFolder.Path("disk/activities.csv");
    mDisk.FillBut(0);
    for (const auto& arguments :
        { Arguments { "report", "--out", mail }, Arguments { "export", "--format", "csv", "--out", table },
            Arguments { "projects", "set", "New", "--subject", "word" },
            Arguments { "registry", "set", "HKCU", "", "New", std::string(10'000, 'x') },
            Arguments { "assign", "Plan", "--from", "2006-10-10T09:00", "--to", "2006-10-10T12:00" },
            Arguments { "edit", "@1", "--description", std::string(10'000, 'x') }, Arguments { "delete", "@1", "@2" },
            Arguments { "add", "--from", "08:00", "--to", "08:30" } }) {
        SCOPED_TRACE(arguments.front());
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 1);
        ExpectTold(result);
    }
    EXPECT_FALSE(std::filesystem::exists(mail));
    EXPECT_FALSE(std::filesystem::exists(table));
    // The mailbox needs some room also to be read.
    EXPECT_THAT(Refusal({ "list" }, 1), HasSubstr("Disk full: the mailbox "));
    mDisk.Empty();
    ExpectNextSyncCompletes();
    EXPECT_EQ(Json({ "log" }), nlohmann::json::array()) << "neither the change nor its step";
    EXPECT_EQ(Run({ "registry", "get", "HKCU", "", "New" }).status, 1);
}

TEST_F(DiskTroubleTest, EachCommand_ReadOnlyProfile_IsToldAndHarmsNothing)
{
    BeginAnew();
    ASSERT_EQ(Run({ "projects" }).status, 0);
    mDisk.MakeReadOnly();
    for (const auto& arguments : OneOfEachCommand()) {
        SCOPED_TRACE(arguments.front() + " " + arguments.back());
        ExpectTold(Run(arguments));
    }
    const auto result = Sync();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr(mProfile));
    mDisk.MakeWritable();
    ExpectNextSyncCompletes();
}

}
