#include "support/ProgramFixture.h"

#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/file.h>
#include <unistd.h>

namespace tempodial {

namespace {

class SyncCommandTest : public ProgramFixture
{
protected:
    static nlohmann::json Counts(int created, int extended, int detailed)
    {
        return { { "created", created }, { "extended", extended }, { "detailed", detailed }, { "cancelled", false },
            { "leftOut", nlohmann::json::array() }, { "unread", nlohmann::json::array() } };
    }
    std::string Content(const std::string& name) const
    {
        std::ifstream file(DataPath(name), std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }
    std::size_t Made() const { return Json({ "list", "--from", "2006-09-01" }).size(); }
};

using testing::HasSubstr;

}

TEST_F(SyncCommandTest, Sync_NewProfile_CountsNothing)
{
    EXPECT_EQ(Json({ "sync" }), Counts(0, 0, 0));
    EXPECT_EQ(Run({ "sync" }).out, "0 created, 0 extended, 0 detailed\n");
    EXPECT_EQ(Run({ "sync", "--quiet" }).out, "");
}

TEST_F(SyncCommandTest, Sync_LinesOfEachKind_AreCounted)
{
    WriteTracker("20061010",
        { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33000, "a.doc").Continuation().Text(),
            WordLine(32800, 33000, "b.doc").Detail().Text(), WordSlot(33000, 33300, "c.doc") });
    WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
    EXPECT_EQ(Json({ "sync" }), Counts(3, 1, 1));
    EXPECT_TRUE(std::filesystem::exists(DataPath("tracker_granules(done)20061009.out")));
    EXPECT_TRUE(std::filesystem::exists(DataPath("tracker_granules20061010.out")));
    EXPECT_EQ(Json({ "sync" }), Counts(0, 0, 0));
}

TEST_F(SyncCommandTest, Sync_NoTerminal_ShowsNoProgress)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    const auto result = Run({ "sync" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
}

TEST_F(SyncCommandTest, Sync_FileThatCantBeRead_IsNamedAndTheOthersAreImported)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    std::filesystem::create_directories(DataPath("tracker_granules20061009.out"));
    const auto result = Run({ "sync", "--json" });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(nlohmann::json::parse(result.out), Counts(1, 0, 0));
    EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
    EXPECT_THAT(result.error, HasSubstr("tracker_granules20061009.out couldn't be read: Permission denied"));
}

TEST_F(SyncCommandTest, Sync_HistoryThatCantBeWritten_IsNamed)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    WriteData("TempodialHistory.out", "");
    std::filesystem::permissions(DataPath("TempodialHistory.out"), std::filesystem::perms::owner_read);
    const auto result = Run({ "sync", "--quiet" });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, HasSubstr("TempodialHistory.out couldn't be written: Permission denied"));
}

TEST_F(SyncCommandTest, Sync_HistoryIsLocked_ChangesNothing)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 0));
    const auto history = Content("TempodialHistory.out");
    WriteTracker("20061009", { WordSlot(32400, 32700, "b.doc") });
    const int lock = ::open(DataPath("TempodialHistory.out").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    const auto result = Run({ "sync", "--json" });
    ::close(lock);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(nlohmann::json::parse(result.out), Counts(0, 0, 0));
    EXPECT_THAT(result.error, HasSubstr("TempodialHistory.out couldn't be read: Permission denied"));
    EXPECT_EQ(Content("TempodialHistory.out"), history);
    EXPECT_TRUE(std::filesystem::exists(DataPath("tracker_granules20061009.out")));
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 0));
}

TEST_F(SyncCommandTest, Sync_LinesThatCantBeRead_AreNamedOnce)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), "<slot><half", WordSlot(32700, 33000, "b.doc") });
    WriteTracker("20061009", { "no slot" });
    const auto result = Run({ "sync", "--json" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("unread"),
        nlohmann::json::parse(R"([{"file":"tracker_granules20061009.out","line":2},
            {"file":"tracker_granules20061010.out","line":3}])"));
    EXPECT_EQ(result.error,
        "tempodial: tracker_granules20061009.out: couldn't read line 2\n"
        "tempodial: tracker_granules20061010.out: couldn't read line 3\n");
    EXPECT_TRUE(std::filesystem::exists(DataPath("tracker_granules(done)20061009.out")));
    EXPECT_EQ(Json({ "sync" }), Counts(0, 0, 0));
}

TEST_F(SyncCommandTest, Sync_LinesThatCantBeReadQuietly_AreNotNamed)
{
    WriteTracker("20061010", { "no slot" });
    EXPECT_EQ(Run({ "sync", "--quiet" }).error, "");
}

TEST_F(SyncCommandTest, Sync_FileInTwoByteCharacters_IsNamed)
{
    std::string wide("\xff\xfe", 2);
    for (const char character : TrackerText(std::vector<std::string>(12, WordSlot(32400, 32700, "a.doc")))) {
        wide += character;
        wide += '\0';
    }
    WriteData("tracker_granules20061010.out", wide);
    const auto result = Run({ "sync" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error,
        "tempodial: tracker_granules20061010.out: couldn't read lines 2, 3, 4, 5, 6, 7, 8, 9, 10, 11 and 2 more\n");
}

TEST_F(SyncCommandTest, Sync_OlderFiles_AreNamed)
{
    WriteTracker("20060918", { WordSlot(32400, 32700, "too old") });
    WriteTracker("20060919", { WordSlot(32400, 32700, "just young enough") });
    WriteData("tracker_granules2006091.out", "no day");
    WriteData("tracker_granules(done)20060901.out", "finished");
    const auto result = Run({ "sync", "--json" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("created"), 1);
    EXPECT_EQ(
        nlohmann::json::parse(result.out).at("leftOut"), nlohmann::json::array({ "tracker_granules20060918.out" }));
    EXPECT_EQ(result.error, "tempodial: left out as older than 21 days: tracker_granules20060918.out\n");
    EXPECT_EQ(Run({ "sync", "--quiet" }).error, "");
}

TEST_F(SyncCommandTest, Sync_FileNobodyImportedIsTooOld_IsKeptAndNamedOnce)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 0));
    WriteTracker("20061011", { WordSlot(32400, 32700, "b.doc") });
    const auto content = Content("tracker_granules20061011.out");
    mNow = "2090-01-01T12:00:00";
    const auto result = Run({ "sync", "--json", "--quiet" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(
        nlohmann::json::parse(result.out).at("leftOut"), nlohmann::json::array({ "tracker_granules20061011.out" }));
    EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
    EXPECT_THAT(result.error, HasSubstr(DataPath("kept/tracker_granules20061011.out")));
    EXPECT_EQ(Content("kept/tracker_granules20061011.out"), content);
    EXPECT_FALSE(std::filesystem::exists(DataPath("tracker_granules20061011.out")));
    // All of this one was imported.
    EXPECT_FALSE(std::filesystem::exists(DataPath("tracker_granules20061010.out")));
    EXPECT_FALSE(std::filesystem::exists(DataPath("kept/tracker_granules20061010.out")));
    EXPECT_EQ(Json({ "sync" }), Counts(0, 0, 0));
}

TEST_F(SyncCommandTest, OtherCommand_FileNobodyImportedIsTooOld_KeepsIt)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    mNow = "2090-01-01T12:00:00";
    const auto result = Run({ "projects", "--quiet" });
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, HasSubstr("kept/tracker_granules20061010.out"));
}

TEST_F(SyncCommandTest, Sync_HistoryOfEarlier_TakesNothingTwice)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), WordLine(32500, 32700, "b.doc").Detail().Text() });
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 1));
    WriteData("TempodialHistory.out", "20061001_00100");
    EXPECT_EQ(Json({ "sync" }), Counts(0, 0, 0));
    std::filesystem::remove(DataPath("TempodialHistory.out"));
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 1)) << "without a history all is read anew";
}

TEST_F(SyncCommandTest, Sync_ClockWasAheadForARun_TakesWhatComesBehind)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    mNow = "2006-10-12T12:00:00";
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 0));
    mNow = "2006-10-10T17:00:00";
    WriteTracker("20061010", { WordSlot(32700, 33000, "b.doc") });
    EXPECT_EQ(Json({ "sync" }), Counts(1, 0, 0));
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), WordSlot(32700, 33000, "b.doc") });
    EXPECT_EQ(Json({ "sync" }), Counts(0, 0, 0));
    EXPECT_EQ(Made(), 2);
}

TEST_F(SyncCommandTest, Sync_NoForm_IsToldAndTheNextSyncImports)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    ASSERT_EQ(Run({ "registry", "set", "HKLM", "", "Install Directory", "/nowhere" }).status, 0);
    const auto result = Run({ "sync" });
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("no new activity can be made"));
    ASSERT_EQ(Run({ "registry", "delete", "HKLM", "", "Install Directory" }).status, 0);
    EXPECT_EQ(Json({ "sync" }).at("created"), 1);
}

TEST_F(SyncCommandTest, Sync_Arguments_AreRefused)
{
    EXPECT_THAT(Refusal({ "sync", "now" }, 2), HasSubstr("\"now\" isn't expected here"));
}

}
