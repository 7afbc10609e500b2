#include "support/LongTests.h"
#include "support/ProgramFixture.h"
#include "support/SmallDisk.h"

#include <filesystem>
#include <sstream>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

/// An import into a profile on a small disk.
class FullDiskImportTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        if (!mDisk.IsMounted()) {
            GTEST_SKIP() << "this system doesn't let a disk be mounted";
        }
        mProfile = mFolder.Path("disk/profile");
        std::string table = "start,end,program,title\n";
        for (int day = 1; day <= 6; ++day) {
            const auto date = "2006-10-0" + std::to_string(day);
            table += date + "T09:00," + date + "T10:00,atlas,map\n" + date + "T11:00," + date + "T12:00,ledger,sum\n";
        }
        mImport = { "import", "csv", mFolder.Write("table.csv", table), "--quiet" };
    }
    /// A profile whose ledger takes some room by itself.
    void BeginAnew() const
    {
        mDisk.Empty();
        std::filesystem::remove_all(mProfile);
        std::string ledger;
        for (int year = 1991; year <= 1999; ++year) {
            for (int month = 10; month <= 12; ++month) {
                for (int day = 10; day <= 28; ++day) {
                    ledger += "\n[[day]]\nday = \"" + std::to_string(year) + "-" + std::to_string(month) + "-"
                        + std::to_string(day) + "\"\nslots = \"" + std::string(72, 'f') + "\"\n";
                }
            }
        }
        WriteData("imported.toml", ledger);
    }
    std::vector<std::string> Log() const { return Subjects(Json({ "list", "--from", "2006-10-01" })); }

    SmallDisk mDisk { mFolder.Path("disk") };
    Arguments mImport;
};

}

TEST_F(FullDiskImportTest, Import_DiskFullAtAnyStage_IsToldAndTheNextOneCompletes)
{
    BeginAnew();
    EXPECT_EQ(Run(mImport).status, 0);
    const auto undisturbed = Log();
    ASSERT_EQ(undisturbed.size(), 12U);
    const int step = ShortOrLong(9, 1);
    bool isDone = false;
    int withoutLedger = 0;
    for (int pages = 0; !isDone; pages += step) {
        ASSERT_LT(pages, 600) << "the disk is large enough in the end";
        SCOPED_TRACE(std::to_string(pages) + " pages free");
        BeginAnew();
        mDisk.FillBut(pages);
        const auto result = Run(mImport);
        isDone = result.status == 0;
        EXPECT_EQ(result.status, isDone ? 0 : 1);
        EXPECT_EQ(result.error.empty(), isDone);
        std::istringstream lines(result.error);
        for (std::string line; std::getline(lines, line);) {
            EXPECT_THAT(line + "\n", MatchesRegex(MessageForm));
        }
        withoutLedger += result.error.find("imported.toml couldn't be written: ") != std::string::npos ? 1 : 0;
        mDisk.Empty();
        EXPECT_EQ(Run(mImport).status, 0);
        EXPECT_EQ(Log(), undisturbed);
        EXPECT_EQ(Json(mImport).at("created"), 0);
    }
    EXPECT_GT(withoutLedger, 0);
}

TEST_F(FullDiskImportTest, Import_LedgerCanNotBeReplaced_WritesNothing)
{
    BeginAnew();
    Json({ "projects" });
    mDisk.FillBut(10);
    const auto result = Run(mImport);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("imported.toml couldn't be written: "));
    EXPECT_THAT(result.error, HasSubstr("see to the profile's disk and run the import again\n"));
    mDisk.Empty();
    EXPECT_TRUE(Log().empty());
    for (const auto& file : std::filesystem::directory_iterator(DataPath(""))) {
        EXPECT_FALSE(file.path().filename().string().starts_with("tracker_granules")) << file.path();
    }
}

}
