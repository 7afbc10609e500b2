#include "support/ProgramFixture.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tempodial {

/// How often a command waits for the disk.
class DiskWaitsTest : public ProgramFixture
{
protected:
    DiskWaitsTest()
    {
        WriteTracker("20061010", { WordSlot(32400, 32700, "a") });
        EXPECT_EQ(Run({ "sync" }).status, 0);
    }
    /// Runs a command and holds which files and folders it flushes, by their names and in that order.
    void ExpectFlushes(const std::vector<std::string>& command, const std::vector<std::string>& expected) const
    {
        std::vector<std::string> names;
        const auto result = RunTempodialObserved(Whole(command), { .flushed = [&](const std::string& path) {
            names.push_back(std::filesystem::canonical(path).filename().string());
        } });
        if (!result) {
            GTEST_SKIP() << "this system doesn't let a process be observed";
        }
        EXPECT_EQ(result->status, 0) << result->error;
        EXPECT_EQ(names, expected);
    }
    void AddLine() { WriteTracker("20061010", { WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b") }); }
};

TEST_F(DiskWaitsTest, Sync_OneNewLine_WaitsFourTimes)
{
    AddLine();
    ExpectFlushes({ "sync" }, { "mailbox.db-wal", ".TempodialHistory.out.new", "Tempodial", "mailbox.db" });
}

TEST_F(DiskWaitsTest, Sync_JournalWasTakenAway_MakesItsNameDurableFirst)
{
    AddLine();
    std::filesystem::remove(mProfile + "/mailbox.db-wal");
    ExpectFlushes({ "sync" },
        { "mailbox.db-wal", std::filesystem::path(mProfile).filename().string(), "mailbox.db-wal",
            ".TempodialHistory.out.new", "Tempodial", "mailbox.db" });
}

TEST_F(DiskWaitsTest, List_NeverWaits)
{
    ExpectFlushes({ "list" }, {});
}

}
