#include "session/ProfileSettings.h"

#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/ProfileError.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tempodial {

namespace {

class ProfileSettingsTest : public testing::Test
{
protected:
    int FirstDay(const std::string& setting, const std::string& locale)
    {
        const ProfileOptions options { .profile = mFolder.Path("profile"), .locale = locale };
        {
            OpenProfile(options).Registry()->Write(Hive::CurrentUser, ProductKey, WeekStartValue, setting);
        }
        return FirstDayOfWeek(options);
    }

    TempFolder mFolder;
};

}

TEST_F(ProfileSettingsTest, FirstDayOfWeek_SetOrNot_IsTheSettingElseTheLocales)
{
    EXPECT_EQ(FirstDay("monday", "en_US"), 2);
    EXPECT_EQ(FirstDay("Saturday", "en_US"), 7);
    EXPECT_EQ(FirstDay("sunday", "de_DE"), 1);
    for (const auto* setting : { "locale", "", "someday" }) {
        EXPECT_EQ(FirstDay(setting, "en_US"), 1) << setting;
        EXPECT_EQ(FirstDay(setting, "de_DE"), 2) << setting;
    }
}

TEST_F(ProfileSettingsTest, FirstDayOfWeek_NoProfile_IsTheLocalesAndMakesNone)
{
    EXPECT_EQ(FirstDayOfWeek({ .profile = mFolder.Path("none"), .locale = "de_DE" }), 2);
    EXPECT_FALSE(std::filesystem::exists(mFolder.Path("none")));
}

TEST_F(ProfileSettingsTest, FirstDayOfWeek_DamagedRegistry_IsAnErrorOfTheProfile)
{
    std::filesystem::create_directories(mFolder.Path("damaged"));
    std::ofstream(mFolder.Path("damaged/registry.toml")) << "[";
    EXPECT_THROW(FirstDayOfWeek({ .profile = mFolder.Path("damaged"), .locale = "de_DE" }), ProfileError);
}

TEST_F(ProfileSettingsTest, AuthorOf_SetOrNot_IsItOrEmpty)
{
    const auto profile = OpenProfile({ .profile = mFolder.Path("profile"), .locale = "en_US" });
    EXPECT_EQ(AuthorOf(profile), "");
    profile.Registry()->Write(Hive::CurrentUser, ProductKey, AuthorValue, "Zoë Müller");
    EXPECT_EQ(AuthorOf(profile), "Zoë Müller");
}

}
