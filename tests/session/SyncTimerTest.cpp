#include "session/SyncTimer.h"

#include "host/system/HostFileSystem.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace tempodial {

namespace {

class SyncTimerTest : public testing::Test
{
protected:
    void SetUp() override { ::setenv("XDG_CONFIG_HOME", mFolder.Path().c_str(), 1); }
    void TearDown() override { ::unsetenv("XDG_CONFIG_HOME"); }
    /// Enables a timer with that text.
    void Enable(const std::string& text) const
    {
        std::filesystem::create_directories(mFolder.Path("systemd/user/timers.target.wants"));
        mFolder.Write("systemd/user/timers.target.wants/tempodial-sync.timer", text);
    }
    std::optional<SyncTimer> Found() const
    {
        HostFileSystem files(mFolder.Path());
        return SyncTimer::Of(Date::FromParts({ 2006, 10, 10, 17, 20, 30 }), files);
    }

    TempFolder mFolder;
};

}

TEST_F(SyncTimerTest, Of_NoUnit_IsNothing)
{
    EXPECT_FALSE(Found());
}

TEST_F(SyncTimerTest, Of_UnitThatIsNotEnabled_HasNoNextMoment)
{
    std::filesystem::create_directories(mFolder.Path("systemd/user"));
    mFolder.Write("systemd/user/tempodial-sync.timer", "[Timer]\nOnCalendar=hourly\n");
    ASSERT_TRUE(Found());
    EXPECT_FALSE(Found()->next);
}

TEST_F(SyncTimerTest, Of_Calendar_TellsTheNextMoment)
{
    Enable("[Unit]\nDescription=x\n\n[Timer]\nOnCalendar=hourly\nPersistent=true\n");
    ASSERT_TRUE(Found());
    EXPECT_EQ(Found()->unit, "tempodial-sync.timer");
    EXPECT_EQ(Found()->next, Date::FromParts({ 2006, 10, 10, 18, 0, 0 }));
    Enable("[Timer]\nOnCalendar=daily");
    EXPECT_EQ(Found()->next, Date::FromParts({ 2006, 10, 11, 0, 0, 0 }));
}

TEST_F(SyncTimerTest, Of_OtherCalendar_HasNoNextMoment)
{
    Enable("[Timer]\nOnCalendar=Mon..Fri 10:00\n");
    ASSERT_TRUE(Found());
    EXPECT_FALSE(Found()->next);
    Enable("");
    ASSERT_TRUE(Found());
    EXPECT_FALSE(Found()->next);
}

}
