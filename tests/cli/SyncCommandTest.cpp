#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

class SyncCommandTest : public ProgramFixture
{
protected:
    static nlohmann::json Counts(int created, int extended, int detailed)
    {
        return { { "created", created }, { "extended", extended }, { "detailed", detailed }, { "cancelled", false } };
    }
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
