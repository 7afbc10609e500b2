#include "session/KeepingFileSystem.h"

#include "host/store/StoreImportJournal.h"
#include "session/ProfileSettings.h"
#include "support/FailureNumber.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"
#include "support/TestMailbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

class KeepingFileSystemTest : public testing::Test
{
protected:
    /// Lets an import reach lines of the day.
    void Reach(const std::vector<std::string>& lines)
    {
        StoreImportJournal journal(mMailbox);
        journal.Begin();
        journal.BeginDay("20061010", -1);
        for (const auto& line : lines) {
            journal.IsKnown(line);
            journal.Reached(2, true);
        }
        journal.End();
    }
    std::string Write(const std::vector<std::string>& lines) { return mFolder.Write(Name, TrackerText(lines)); }

    static constexpr auto Name = "tracker_granules20061010.out";
    static constexpr auto KeptName = "kept/tracker_granules20061010.out";

    TempFolder mFolder { TempFolder::InMemory() };
    Ref<Mailbox> mMailbox = OpenTestMailbox();
    KeepingFileSystem mFiles { mFolder.Path(), mMailbox, UsualRetention };
};

TEST_F(KeepingFileSystemTest, DeleteFile_LineNobodyReached_KeepsTheFile)
{
    Reach({ "a" });
    mFiles.DeleteFile(Write({ "a", "b" }), false);
    EXPECT_FALSE(mFolder.Has(Name));
    EXPECT_EQ(mFolder.Read(KeptName), TrackerText({ "a", "b" }));
    EXPECT_THAT(mFiles.Kept(), ElementsAre(mFolder.Path(KeptName)));
}

TEST_F(KeepingFileSystemTest, DeleteFile_AllLinesReached_DeletesIt)
{
    Reach({ "a", "b" });
    mFiles.DeleteFile(Write({ "a", "", "b" }), false);
    EXPECT_FALSE(mFolder.Has(Name));
    EXPECT_FALSE(mFolder.Has(KeptName));
    EXPECT_THAT(mFiles.Kept(), IsEmpty());
}

TEST_F(KeepingFileSystemTest, DeleteFile_NoLineThatCouldBeReached_KeepsIt)
{
    mFiles.DeleteFile(mFolder.Write(Name, "tracker\rsome slots\r"), false);
    EXPECT_TRUE(mFolder.Has(KeptName));
}

TEST_F(KeepingFileSystemTest, DeleteFile_OneOfThatNameIsKept_KeepsBoth)
{
    for (const auto* line : { "a", "b", "c" }) {
        mFiles.DeleteFile(Write({ line }), false);
    }
    EXPECT_EQ(mFolder.Read(KeptName), TrackerText({ "a" }));
    EXPECT_EQ(mFolder.Read(std::string(KeptName) + ".2"), TrackerText({ "b" }));
    EXPECT_EQ(mFolder.Read(std::string(KeptName) + ".3"), TrackerText({ "c" }));
}

TEST_F(KeepingFileSystemTest, DeleteFile_ReadOnlyFile_StaysAndFails)
{
    const auto path = Write({ "a" });
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_EQ(FailureNumber([&] { mFiles.DeleteFile(path, false); }), 70);
    EXPECT_TRUE(mFolder.Has(Name));
}

TEST_F(KeepingFileSystemTest, DeleteFile_ByForceOrAnotherFile_DeletesIt)
{
    mFiles.DeleteFile(Write({ "a" }), true);
    mFiles.DeleteFile(mFolder.Write("tracker_granules(done)20061010.out", "x"), false);
    EXPECT_TRUE(std::filesystem::is_empty(mFolder.Path()));
    EXPECT_EQ(FailureNumber([&] { mFiles.DeleteFile(mFolder.Path(Name), false); }), 53);
}

TEST_F(KeepingFileSystemTest, GetFolder_OtherRetention_FilesOfTheTrackerLookOlderOrYounger)
{
    Reach({ "a" });
    Write({ "a" });
    mFolder.Write("tracker_granules(done)20061009.out", "");
    mFolder.Write("tracker_granules20061008.out", TrackerText({ "unread" }));
    mFolder.Write("WorkLogTrace1.out", "");
    const auto daysYounger = [&](std::optional<std::int32_t> retention) {
        const auto usual = mFiles.GetFolder(mFolder.Path()).files;
        const auto files = KeepingFileSystem(mFolder.Path(), mMailbox, retention).GetFolder(mFolder.Path()).files;
        std::vector<std::int32_t> days;
        for (std::size_t i = 0; i < files.size(); ++i) {
            days.push_back(DaysBetween(usual[i].dateCreated, files[i].dateCreated));
        }
        return days;
    };
    EXPECT_THAT(daysYounger(UsualRetention), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(daysYounger(30), ElementsAre(0, 8, 8, 8));
    EXPECT_THAT(daysYounger(std::nullopt), ElementsAre(0, 36478, 36478, 36478));
    EXPECT_THAT(daysYounger(20), ElementsAre(0, -2, 0, -2)) << "what nobody has reached isn't older";
}

}
