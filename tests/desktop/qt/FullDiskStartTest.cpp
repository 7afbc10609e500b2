#include "desktop/StartRefusal.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/OffscreenApplication.h"
#include "session/ProfileError.h"
#include "support/CannedMessageBox.h"
#include "support/SmallDisk.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

/// A start of the desktop program on a disk without room, and again when there is some.
class FullDiskStartTest : public testing::Test
{
protected:
    /// Starts it; what a person is told when that fails, empty when it doesn't.
    std::string Refusal()
    {
        try {
            Appearance look;
            Desk desk(mOptions, mFolder.Path("config/desktop.toml"), look);
            desk.Start(MakeRef<CannedMessageBox>());
            desk.Exit();
            return {};
        } catch (const std::exception& failure) {
            return StartRefusal(failure, mOptions).reason;
        }
    }

    GuardedApplication& mApplication = OffscreenApplication();
    TempFolder mFolder;
    SmallDisk mDisk { mFolder.Path("disk") };
    ProfileOptions mOptions { .profile = mFolder.Path("disk/profile"), .locale = "en_US" };
};

TEST_F(FullDiskStartTest, NoRoomForAProfile_SaysSoAndIsTriedAgain)
{
    if (!mDisk.IsMounted()) {
        GTEST_SKIP() << "no rights to mount";
    }
    mDisk.FillBut(0);
    EXPECT_THAT(
        Refusal(), testing::AllOf(testing::HasSubstr("Disk full"), testing::HasSubstr("make room on the disk")));
    mDisk.Empty();
    EXPECT_EQ(Refusal(), "");
}

}
