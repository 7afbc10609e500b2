#include "DesktopFixture.h"
#include "desktop/qt/SelectionBar.h"

#include <gmock/gmock.h>

namespace tempodial {

using testing::HasSubstr;
using testing::IsEmpty;

/// Settings and colours that a person has broken by hand.
class BrokenSettingsTest : public DesktopFixture
{
protected:
    static constexpr auto Broken = "[[desktop]]\nappearance = \"dark\"\nview = \"month\"\n";

    BrokenSettingsTest()
    {
        // The settings are kept once, so that there are folders for them.
        mDesk->Change([](DesktopSettings& settings) { settings.zoom = 200; });
    }

    /// Starts the program anew.
    void Restart()
    {
        mWindows.reset();
        Settle();
        mDesk->Exit();
        mDesk.reset();
        const ProfileOptions options { .profile = mFolder.Path("profile"), .locale = "en_GB", .now = On(17, 16, 12) };
        mDesk = std::make_unique<Desk>(options, mSettingsPath, mLook);
        mDesk->Start(mMessages);
    }
};

TEST_F(BrokenSettingsTest, Settings_AreAsUsualAndItIsSaidInTheWindow)
{
    mFolder.Write("config/desktop.toml", Broken);
    Restart();
    EXPECT_EQ(mDesk->Settings(), DesktopSettings());
    auto& window = Open();
    const auto said = window.Foot().Said().toStdString();
    EXPECT_THAT(said, HasSubstr("All settings are as usual: " + mSettingsPath + ", line 3: view can't be \"month\""));
    EXPECT_THAT(said,
        HasSubstr("correct that line and start again, or change a setting here, which keeps that file as "
            + mSettingsPath + ".broken."));
    Picture(window, "broken-settings");
    // How windows are left is no wish.
    window.Show(DesktopSettings::View::Day, On(15, 0));
    mDesk->RememberSoon([](DesktopSettings& settings) { settings.zoom = 300; });
    window.close();
    Restart();
    EXPECT_EQ(mFolder.Read("config/desktop.toml"), Broken);
    EXPECT_FALSE(mFolder.Has("config/desktop.toml.broken"));
}

TEST_F(BrokenSettingsTest, ASettingIsChanged_KeepsTheFileBeside)
{
    mFolder.Write("config/desktop.toml", Broken);
    Restart();
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_EQ(mFolder.Read("config/desktop.toml.broken"), Broken);
    Restart();
    EXPECT_TRUE(mDesk->Settings().hidesTitles);
    EXPECT_THAT(mDesk->Notice(), IsEmpty());
    EXPECT_EQ(Open().Foot().Said(), "");
}

TEST_F(BrokenSettingsTest, AnotherProgramsSettings_StayBesideOwnChanges)
{
    mFolder.Write("config/desktop.toml", "[[desktop]]\nappearance = \"dark\"\nzoom = 200\n");
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_NE(mDesk->Settings().appearance, DesktopSettings::Appearance::Dark) << "this window stays as it is";
    mDesk->Remember([](DesktopSettings& settings) { settings.view = DesktopSettings::View::Day; });
    Restart();
    EXPECT_EQ(mDesk->Settings().appearance, DesktopSettings::Appearance::Dark);
    EXPECT_TRUE(mDesk->Settings().hidesTitles);
    EXPECT_EQ(mDesk->Settings().view, DesktopSettings::View::Day);
    EXPECT_EQ(mDesk->Settings().zoom, 200);
}

TEST_F(BrokenSettingsTest, SettingsThatBreakMeanwhile_AreKeptBesideWhenOneIsChanged)
{
    mFolder.Write("config/desktop.toml", Broken);
    mDesk->Remember([](DesktopSettings& settings) { settings.view = DesktopSettings::View::Day; });
    EXPECT_EQ(mFolder.Read("config/desktop.toml"), Broken);
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_EQ(mFolder.Read("config/desktop.toml.broken"), Broken);
    Restart();
    EXPECT_THAT(mDesk->Notice(), IsEmpty());
    EXPECT_EQ(mDesk->Settings().view, DesktopSettings::View::Day);
    EXPECT_EQ(mDesk->Settings().zoom, 200);
    EXPECT_TRUE(mDesk->Settings().hidesTitles);
}

TEST_F(BrokenSettingsTest, SettingsCorrectedMeanwhile_AreTheOnesThatAChangeGoesInto)
{
    mFolder.Write("config/desktop.toml", Broken);
    Restart();
    mFolder.Write("config/desktop.toml", "[[desktop]]\nzoom = 300\n");
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_FALSE(mFolder.Has("config/desktop.toml.broken"));
    Restart();
    EXPECT_EQ(mDesk->Settings().zoom, 300);
    EXPECT_TRUE(mDesk->Settings().hidesTitles);
}

TEST_F(BrokenSettingsTest, SettingsThatAreAFolder_AreToldToo)
{
    ASSERT_EQ(std::remove(mSettingsPath.c_str()), 0);
    mFolder.Write("config/desktop.toml", "");
    ASSERT_EQ(std::remove(mSettingsPath.c_str()), 0);
    std::filesystem::create_directory(mSettingsPath);
    Restart();
    EXPECT_THAT(mDesk->Notice(), HasSubstr(mSettingsPath + " can't be read: "));
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_TRUE(std::filesystem::is_directory(mSettingsPath + ".broken"));
    EXPECT_THAT(mFolder.Read("config/desktop.toml"), HasSubstr("hide-titles = true"));
}

TEST_F(BrokenSettingsTest, Colours_AreGivenAnewAndTheFileStays)
{
    const auto* const colours = "[[tone]]\nproject = \"Alpha\"\ntone = \"mud\"\n";
    mFolder.Write("profile/colours.toml", colours);
    Restart();
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    auto& window = Open();
    EXPECT_THAT(window.Foot().Said().toStdString(),
        HasSubstr("All colours are given anew: " + mFolder.Path("profile/colours.toml") + ", line 3: "));
    mDesk->Do([] {});
    Restart();
    EXPECT_EQ(mFolder.Read("profile/colours.toml"), colours);
}

}
