#include "desktop/Autostart.h"

#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

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
    const Autostart autostart(mFolder.Path("config"), "/usr/bin/tempodial-desktop", std::nullopt);
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
    Autostart(mFolder.Path("config"), "/a b/$c", std::nullopt).Set(true);
    EXPECT_THAT(mFolder.Read(mName), testing::HasSubstr("\nExec=\"/a b/\\\\$c\"\n"));
}

TEST_F(AutostartTest, OtherProfile_HasAFileOfItsOwnThatNamesIt)
{
    const Autostart usual(mFolder.Path("config"), "/bin/t", std::nullopt);
    const Autostart other(mFolder.Path("config"), "/bin/t", "/home/a/my work");
    other.Set(true);
    EXPECT_TRUE(other.IsOn());
    EXPECT_FALSE(usual.IsOn());
    EXPECT_FALSE(Autostart(mFolder.Path("config"), "/bin/t", "/home/a/third").IsOn());
    std::stringstream file;
    file << std::ifstream(other.Path()).rdbuf();
    EXPECT_THAT(file.str(), testing::HasSubstr("\nExec=\"/bin/t\" --profile \"/home/a/my work\"\n"));
    usual.Set(true);
    other.Set(false);
    EXPECT_TRUE(usual.IsOn());
}

}
