#include "desktop/Autostart.h"

#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

class AutostartTest : public testing::Test
{
protected:
    TempFolder mFolder { TempFolder::InMemory() };
    std::string mName = std::string("config/") + Autostart::FileName;
};

}

TEST_F(AutostartTest, Set_OnAndOff_WritesTheFileAndTakesItAway)
{
    const Autostart autostart(mFolder.Path(mName), "/usr/bin/tempodial-desktop");
    EXPECT_FALSE(autostart.IsOn());
    autostart.Set(false);
    autostart.Set(true);
    EXPECT_TRUE(autostart.IsOn());
    EXPECT_THAT(mFolder.Read(mName), testing::HasSubstr("\nExec=\"/usr/bin/tempodial-desktop\"\n"));
    autostart.Set(false);
    EXPECT_FALSE(autostart.IsOn());
    EXPECT_FALSE(mFolder.Has(mName));
}

TEST_F(AutostartTest, Program_WithMarks_IsQuoted)
{
    Autostart(mFolder.Path(mName), "/a b/$c").Set(true);
    EXPECT_THAT(mFolder.Read(mName), testing::HasSubstr("\nExec=\"/a b/\\\\$c\"\n"));
}

}
