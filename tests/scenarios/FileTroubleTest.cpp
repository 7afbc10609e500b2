#include "scenarios/TroubleFixture.h"
#include "support/LongTests.h"

#include <sqlite3.h>

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

class FileTroubleTest : public TroubleFixture
{
protected:
    Arguments SyncArguments() const { return Whole({ "sync", "--quiet" }); }
    /// Syncs new profiles; at points spread over the run something is done to the files. The run's result is told, and
    /// then comes what must be true.
    void DisturbEverywhere(const std::function<void()>& disturb, const std::function<void(const ProgramResult&)>& then)
    {
        WriteDays();
        const auto whole = RunTempodialDisturbedAt(SyncArguments(), 0, [] {});
        if (!whole) {
            GTEST_SKIP() << "this system doesn't let a process be observed";
        }
        const int points = StopPoints(8, 60);
        for (int i = 1; i <= points; ++i) {
            const auto call = whole->systemCalls * i / (points + 1);
            SCOPED_TRACE("at system call " + std::to_string(call) + " of " + std::to_string(whole->systemCalls));
            fs::remove_all(mProfile);
            WriteDays();
            const auto result = RunTempodialDisturbedAt(SyncArguments(), call, disturb);
            ExpectTold(*result);
            then(*result);
        }
    }
    /// The subjects of all activities in the mailbox.
    std::vector<std::string> AllSubjects() const
    {
        auto subjects = Subjects(Json({ "list", "--from", "2006-10-01", "--to", "2006-10-20" }));
        std::sort(subjects.begin(), subjects.end());
        return subjects;
    }
    void ExpectNothingTwice() const
    {
        const auto subjects = AllSubjects();
        EXPECT_EQ(std::set<std::string>(subjects.begin(), subjects.end()).size(), subjects.size());
    }
};

}

TEST_F(FileTroubleTest, Sync_TodaysFileVanishesWhileItIsRead_GoesOnWhenItIsBack)
{
    const auto away = mFolder.Path("away");
    DisturbEverywhere([&] { fs::rename(DataPath(Live), away); },
        [&](const ProgramResult&) {
            ExpectNothingTwice();
            fs::rename(away, DataPath(Live));
            ExpectNextSyncCompletes();
        });
}

TEST_F(FileTroubleTest, Sync_PastFileVanishesWhileItIsRead_LosesNothingElse)
{
    DisturbEverywhere([&] { fs::remove(DataPath("tracker_granules20061009.out")); },
        [&](const ProgramResult&) {
            EXPECT_EQ(Sync().status, 0);
            ExpectNothingTwice();
            const auto subjects = AllSubjects();
            const auto ofOthers = std::count_if(subjects.begin(), subjects.end(),
                [](const auto& subject) { return subject.find("yesterday") == std::string::npos; });
            EXPECT_EQ(ofOthers, 19);
        });
}

TEST_F(FileTroubleTest, Sync_FileGrowsWhileItIsRead_TakesEachLineOnce)
{
    const auto whole = mFolder.Path("whole");
    DisturbEverywhere(
        [&] {
            std::ofstream(DataPath(Live), std::ios::binary | std::ios::app)
                << WordSlot(60000, 60300, "added.doc") << "\r\n<slot><StartTime>60300</StartTime>";
        },
        [&](const ProgramResult&) {
            // The tracker ends the line that it had half written.
            std::ofstream(DataPath(Live), std::ios::binary | std::ios::app)
                << "<EndTime>60600</EndTime><AppType>3</AppType><ExcelDocName>half.xls</ExcelDocName></slot>\r\n";
            EXPECT_EQ(Sync().status, 0);
            const auto subjects = AllSubjects();
            EXPECT_EQ(subjects.size(), 33U);
            ExpectNothingTwice();
        });
}

TEST_F(FileTroubleTest, Sync_FileCutWhileItIsRead_TakesNothingTwice)
{
    DisturbEverywhere([&] { fs::resize_file(DataPath(Live), 1000); },
        [&](const ProgramResult&) {
            EXPECT_EQ(Sync().status, 0);
            ExpectNothingTwice();
            WriteTracker("20061010", SlotsOf("today", 12));
            EXPECT_EQ(Sync().status, 0);
            ExpectNothingTwice();
            EXPECT_EQ(AllSubjects().size(), 31U);
        });
}

TEST_F(FileTroubleTest, Sync_DataFolderVanishes_MakesAnother)
{
    const auto away = mFolder.Path("away");
    DisturbEverywhere([&] { fs::rename(mProfile + "/Tempodial", away); },
        [&](const ProgramResult&) {
            for (const auto* name : { "TempodialHistory.out", "WorkLogTrace1.out" }) {
                fs::remove(DataPath(name));
            }
            if (fs::exists(mProfile + "/Tempodial")) {
                for (const auto& entry : fs::directory_iterator(mProfile + "/Tempodial")) {
                    fs::rename(entry.path(), away + "/" + entry.path().filename().string());
                }
                fs::remove(mProfile + "/Tempodial");
            }
            fs::rename(away, mProfile + "/Tempodial");
            ExpectNextSyncCompletes();
        });
}

TEST_F(FileTroubleTest, Sync_FolderOrPipeWhereAFileShouldBe_IsToldAndTheNextSyncCompletes)
{
    for (const std::string name : { "registry.toml", "mailbox.db", "mailbox.db-wal", "mailbox.db-shm", "mailbox.db.new",
             ".registry.toml.new", "Tempodial/tracker_granules20061010.out", "Tempodial/tracker_granules20061009.out",
             "Tempodial/TempodialHistory.out", "Tempodial/WorkLogTrace1.out" }) {
        for (const bool isPipe : { false, true }) {
            SCOPED_TRACE(name + (isPipe ? " is a pipe" : " is a folder"));
            fs::remove_all(mProfile);
            WriteDays();
            const auto path = mProfile + "/" + name;
            fs::remove(path);
            if (isPipe) {
                ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
            } else {
                fs::create_directories(path + "/in it");
            }
            ExpectTold(Sync());
            EXPECT_TRUE(isPipe || fs::is_directory(path + "/in it")) << "what somebody has put there stays";
            fs::remove_all(path);
            if (name.find("tracker") != std::string::npos) {
                const bool isToday = name.find("10.out") != std::string::npos;
                WriteTracker(isToday ? "20061010" : "20061009", SlotsOf(isToday ? "today" : "yesterday", 12));
            }
            ExpectNextSyncCompletes();
        }
    }
}

TEST_F(FileTroubleTest, Sync_FileWhereTheDataFolderShouldBe_IsToldAndTheNextSyncCompletes)
{
    fs::create_directories(mProfile);
    std::ofstream(mProfile + "/Tempodial") << "x";
    const auto result = Sync();
    EXPECT_EQ(result.status, 1);
    ExpectTold(result);
    EXPECT_EQ(ContentOf(mProfile + "/Tempodial"), "x");
    fs::remove(mProfile + "/Tempodial");
    WriteDays();
    ExpectNextSyncCompletes();
}

TEST_F(FileTroubleTest, Sync_FolderWhereTheFinishedFileShouldBe_IsToldAndImportsAll)
{
    WriteDays();
    fs::create_directories(DataPath("tracker_granules(done)20061009.out"));
    const auto result = Sync();
    EXPECT_EQ(result.status, 1);
    ExpectTold(result);
    EXPECT_EQ(AllSubjects().size(), 31U);
    // kept: the day's file goes although it couldn't be copied.
    EXPECT_FALSE(fs::exists(DataPath("tracker_granules20061009.out")));
    EXPECT_EQ(Sync().status, 0);
    EXPECT_EQ(AllSubjects().size(), 31U);
}

TEST_F(FileTroubleTest, Sync_FileLockedByTheTracker_IsToldAndTheNextSyncCompletes)
{
    for (const auto* name :
        { "tracker_granules20061010.out", "tracker_granules20061009.out", "TempodialHistory.out" }) {
        SCOPED_TRACE(name);
        fs::remove_all(mProfile);
        WriteDays();
        const int file = ::open(DataPath(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        ASSERT_EQ(::flock(file, LOCK_EX), 0);
        const auto result = Sync();
        EXPECT_EQ(result.status, 1);
        ExpectTold(result);
        EXPECT_THAT(result.error, HasSubstr(name));
        ::close(file);
        ExpectNextSyncCompletes();
    }
}

TEST_F(FileTroubleTest, Sync_MailboxLockedByAnotherProgram_IsToldAndTheNextSyncCompletes)
{
    WriteDays();
    ASSERT_EQ(Run({ "projects" }).status, 0);
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open((mProfile + "/mailbox.db").c_str(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    const auto result = Sync();
    EXPECT_EQ(result.status, 1);
    ExpectTold(result);
    EXPECT_EQ(Run({ "list" }).status, 0) << "reading goes on";
    sqlite3_close(other);
    ExpectNextSyncCompletes();
}

TEST_F(FileTroubleTest, Sync_SecondProcessAtAnyTime_IsToldAndHarmsNothing)
{
    WriteDays();
    const auto whole = RunTempodialDisturbedAt(SyncArguments(), 0, [] {});
    if (!whole) {
        GTEST_SKIP() << "this system doesn't let a process be observed";
    }
    fs::remove_all(mProfile);
    WriteDays();
    int refused = 0;
    const auto first = RunTempodialDisturbedAt(SyncArguments(), whole->systemCalls * 2 / 3, [&] {
        for (auto arguments : OneOfEachWriter()) {
            arguments.insert(arguments.end(), { "--wait", "0" });
            refused += Run(arguments).status == 3 ? 1 : 0;
        }
        for (const auto& arguments : OneOfEachReader()) {
            EXPECT_NE(Run(arguments).status, 3) << arguments.front();
        }
    });
    EXPECT_EQ(first->status, 0) << first->error;
    EXPECT_EQ(refused, static_cast<int>(OneOfEachWriter().size()));
    ExpectNextSyncCompletes();
}

TEST_F(FileTroubleTest, EachCommand_MailboxCutInHalf_IsToldAndAGoodCopyGoesOn)
{
    WriteDays();
    ASSERT_EQ(Sync().status, 0);
    const auto path = mProfile + "/mailbox.db";
    const auto sound = ContentOf(path);
    for (const auto size : { sound.size() / 2, sound.size() / 2 / 4096 * 4096, std::size_t { 100 }, std::size_t { 1 },
             std::size_t { 0 } }) {
        fs::resize_file(path, size);
        for (const auto& arguments : { Arguments { "sync" }, Arguments { "list" }, Arguments { "report" } }) {
            EXPECT_THAT(Refusal(arguments, 1), HasSubstr(path));
        }
        EXPECT_EQ(fs::file_size(path), size) << "a mailbox that isn't one is never written to";
        std::ofstream(path, std::ios::binary) << sound;
    }
    ExpectNextSyncCompletes();
}

TEST_F(FileTroubleTest, Sync_LineOfTenMegabytes_IsPassedOver)
{
    for (const auto& line : { std::string(10 << 20, 'x'), WordSlot(40000, 40300, std::string(10 << 20, 'y')),
             std::string(10 << 20, '<'), std::string(10 << 20, '\0') }) {
        fs::remove_all(mProfile);
        auto slots = SlotsOf("today", 12);
        slots.insert(slots.begin() + 3, line);
        WriteTracker("20061010", slots);
        const auto result = Sync();
        EXPECT_EQ(result.status, 0) << result.error;
        EXPECT_EQ(AllSubjects().size(), 12U);
    }
}

TEST_F(FileTroubleTest, EachCommand_ProfileWithAHostileName_WorksAsInAnyOther)
{
    const auto usual = mProfile;
    const std::vector<std::string> names { "a b'c\"d", "%n%s$HOME`id`;&|", "-v", "line\nend\ttab", "\x1b[31mred",
        "\u8A08\u753B \u202Egpj", "[x]*?{y}", std::string(200, 'n') };
    for (const auto& name : names) {
        SCOPED_TRACE(name);
        mProfile = mFolder.Path(name);
        WriteDays();
        ExpectNextSyncCompletes();
        for (const auto& arguments : { Arguments { "projects", "set", "Plan", "--subject", "word" },
                 Arguments { "report", "--out", mProfile + "/" + name + ".eml" },
                 Arguments { "export", "--format", "ics", "--out", mProfile + "/" + name + ".ics" },
                 Arguments { "trace" }, Arguments { "registry", "get", "HKCU", "", "CurrentVersion" } }) {
            const auto result = Run(arguments);
            EXPECT_EQ(result.status, 0) << arguments.front() << ": " << result.error;
            EXPECT_EQ(result.out.find('\x1b'), std::string::npos);
        }
        EXPECT_TRUE(fs::exists(mProfile + "/" + name + ".eml"));
    }
    mProfile = usual;
}

TEST_F(FileTroubleTest, Sync_OtherFilesInTheDataFolder_AreLeftAlone)
{
    WriteDays();
    const std::vector<std::string> names { "tracker_granules20061010.out.bak", "tracker_granules2006101.out",
        "tracker_granules20061332.out", "tracker_granules(done)20061010.out\n", "tracker_granules\xff.out", "-rf *",
        "WorkLogTrace1.out.tmp" };
    for (const auto& name : names) {
        WriteData(name, "kept");
    }
    EXPECT_EQ(Sync().status, 0);
    for (const auto& name : names) {
        EXPECT_EQ(ContentOf(DataPath(name)), "kept") << name;
        fs::remove(DataPath(name));
    }
    ExpectNextSyncCompletes();
}

}
