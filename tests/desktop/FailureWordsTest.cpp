#include "desktop/FailureWords.h"

#include "base/Failure.h"
#include "desktop/LogDoings.h"
#include "desktop/LogFixture.h"
#include "support/SmallDisk.h"

#include <stdexcept>

namespace tempodial {

TEST(FailureWordsTest, FailureSentence_SaysWhatToDo)
{
    EXPECT_EQ(FailureSentence(Failure(Error::DiskFull), "/home/ann/log"),
        "The disk is full, so nothing was changed and nothing is lost: make room on the disk of /home/ann/log, and do "
        "it again.");
    EXPECT_EQ(FailureSentence(Failure(Error::PermissionDenied, "It is read-only"), "/log"),
        "It is read-only: see whether you may write to /log, and do it again.");
    EXPECT_EQ(FailureSentence(std::runtime_error("close it first"), "/log"), "close it first");
}

/// A log on a disk that gets full.
class FullDiskTest : public testing::Test
{
protected:
    TempFolder mFolder;
    SmallDisk mDisk { mFolder.Path("disk") };
};

TEST_F(FullDiskTest, Move_DiskFull_GoesBackAndSaysSo)
{
    if (!mDisk.IsMounted()) {
        GTEST_SKIP() << "no rights to mount";
    }
    Session session({ .profile = mFolder.Path("disk/profile"), .locale = "en_US", .now = On(10, 17) });
    auto surroundings = session.Surroundings();
    surroundings.messageBox = MakeRef<CannedMessageBox>();
    session.Start(surroundings);
    const auto start = On(10, 9);
    session.AddIn().CreateCalendarItem("A", "plan", "Word", "", 30, start, start.AddMinutes(30), "", false);
    const auto number = ActivityAt(session.Profile(), start)->number;
    const LogDoings doings(session);
    mDisk.FillBut(0);
    std::string said;
    for (int i = 1; i <= 2000 && said.empty(); ++i) {
        // What is already in the journal's file takes no room.
        const auto moved = start.AddMinutes(i % 2 == 0 ? 5 : 10);
        try {
            doings.Move(number, { moved, moved.AddMinutes(30) });
        } catch (const std::exception& failure) {
            said = FailureSentence(failure, "/log");
        }
    }
    EXPECT_EQ(said.find("The disk is full"), 0U) << said;
    mDisk.Empty();
    const auto before = ActivityNumbered(session.Profile(), number)->start;
    EXPECT_TRUE(before == start.AddMinutes(5) || before == start.AddMinutes(10) || before == start);
    EXPECT_TRUE(doings.Move(number, { start, start.AddMinutes(30) })) << "with room it goes on";
    EXPECT_EQ(ActivityNumbered(session.Profile(), number)->start, start);
    session.End();
}

}
