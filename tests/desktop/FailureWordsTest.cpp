#include "desktop/FailureWords.h"

#include "base/Failure.h"
#include "desktop/LogDoings.h"
#include "desktop/LogFixture.h"
#include "support/SmallDisk.h"

#include <array>
#include <new>
#include <stdexcept>

namespace tempodial {

namespace {

constexpr std::array AllErrors { Error::InvalidCall, Error::Overflow, Error::OutOfMemory, Error::SubscriptOutOfRange,
    Error::DivisionByZero, Error::TypeMismatch, Error::BadFileName, Error::FileNotFound, Error::BadFileMode,
    Error::DeviceError, Error::FileExists, Error::DiskFull, Error::InputPastEnd, Error::PermissionDenied,
    Error::PathFileAccess, Error::PathNotFound, Error::ObjectNotSet, Error::InvalidNull, Error::SecurityRefusal,
    Error::InvalidPropertyValue, Error::ObjectRequired, Error::CannotCreateObject, Error::NotSupported,
    Error::Automation, Error::KeyExists, Error::ServerUnavailable, Error::InvalidPicture, Error::ObjectNotFound };

}

TEST(FailureWordsTest, FailureSentence_SaysWhatToDo)
{
    EXPECT_EQ(FailureSentence(Failure(Error::DiskFull), "/home/ann/log"),
        "The disk is full, so nothing was changed and nothing is lost: make room on the disk of /home/ann/log, and do "
        "it again.");
    EXPECT_EQ(FailureSentence(Failure(Error::PermissionDenied, "It is read-only"), "/log"),
        "It is read-only: see whether you may write to /log, and do it again.");
    EXPECT_EQ(FailureSentence(Failure(Error::PathFileAccess), "/log"),
        "Path/File access error: see whether you may write to /log, and do it again.");
    EXPECT_EQ(FailureSentence(Failure(Error::DeviceError), "/log"),
        "Device I/O error: see to the disk of /log, and do it again.");
    EXPECT_EQ(FailureSentence(Failure(Error::PathNotFound), "/log"),
        "Path not found: see whether /log is still there as a whole, and do it again.");
    EXPECT_EQ(FailureSentence(Failure(Error::ObjectNotSet), "/log"),
        "Object variable or With block variable not set: do it again, and if that fails too, quit and start again.");
}

TEST(FailureWordsTest, FailureSentence_NoMemory_IsTheSameFromAnywhere)
{
    const auto* const sentence = "There isn't enough memory: close other programs, and do it again.";
    EXPECT_EQ(FailureSentence(Failure(Error::OutOfMemory), "/log"), sentence);
    EXPECT_EQ(FailureSentence(std::bad_alloc(), "/log"), sentence);
}

TEST(FailureWordsTest, FailureSentence_OwnWords_StayAsTheyAre)
{
    EXPECT_EQ(FailureSentence(std::runtime_error("close it first"), "/log"), "close it first");
    EXPECT_EQ(FailureSentence(Failure(Error::InvalidCall, "The activity is open: close it."), "/log"),
        "The activity is open: close it.");
    EXPECT_EQ(FailureSentence(Failure(Error::FileNotFound, "No guide: install it."), "/log"), "No guide: install it.");
}

TEST(FailureWordsTest, FailureSentence_EveryNumber_SaysWhatToDo)
{
    for (const auto error : AllErrors) {
        const auto sentence = FailureSentence(Failure(error), "/log");
        EXPECT_NE(sentence.find("do it again"), std::string::npos) << sentence;
        EXPECT_EQ(sentence.back(), '.') << sentence;
    }
}

TEST(FailureWordsTest, TroubleSentence_SaysThatNothingIsChangedAndWhatToDo)
{
    EXPECT_EQ(TroubleSentence(Failure(Error::Automation, "The mailbox /log/mailbox.db is damaged")),
        "The mailbox /log/mailbox.db is damaged, so nothing more is changed: quit, see what \"tempodial doctor\" says, "
        "and bring a backup back with \"tempodial restore\".");
    EXPECT_EQ(TroubleSentence(Failure(Error::OutOfMemory)),
        "There wasn't enough memory, so nothing more is changed: close other programs, and start this one again.");
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
