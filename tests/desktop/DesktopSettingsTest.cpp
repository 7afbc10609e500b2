#include "desktop/DesktopSettings.h"

#include "host/settings/SettingsText.h"
#include "host/settings/TomlSettings.h"
#include "support/SettingsRefusal.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::HasSubstr;

class DesktopSettingsTest : public testing::Test
{
protected:
    DesktopSettings Read(const std::string& content)
    {
        return DesktopSettings::Read(ReadSettingsFile(mFolder.Write("desktop.toml", content)));
    }
    std::string Refusal(const std::string& content)
    {
        return SettingsRefusal([&] { Read("[[desktop]]\n" + content); });
    }

    TempFolder mFolder { TempFolder::InMemory() };
};

}

TEST_F(DesktopSettingsTest, Read_NoFile_IsAsUsual)
{
    EXPECT_EQ(DesktopSettings::Read(ReadSettingsFile(mFolder.Path("none.toml"))), DesktopSettings());
    EXPECT_EQ(Read("[[desktop]]\n"), DesktopSettings());
    EXPECT_FALSE(DesktopSettings().hasTray);
}

TEST_F(DesktopSettingsTest, Keep_EverySetting_IsReadAgain)
{
    DesktopSettings settings;
    settings.appearance = DesktopSettings::Appearance::HighContrast;
    settings.view = DesktopSettings::View::SortOut;
    settings.listSpan = DesktopSettings::ListSpan::Year;
    settings.sortOutSpan = DesktopSettings::ListSpan::Month;
    settings.colours = ColourChoice::Application;
    settings.locale = "de_DE";
    settings.firstDay = DesktopSettings::FirstDay::Sunday;
    settings.zoom = 250;
    settings.foldsShortOnes = true;
    settings.hidesTitles = true;
    settings.hasSidePanel = false;
    settings.hasLetterKeys = false;
    settings.hasTray = true;
    settings.startsHidden = true;
    settings.notifies = false;
    settings.width = 1440;
    settings.height = 900;
    settings.isMaximised = true;
    settings.screen = "HDMI \"1\"";
    WriteSettingsFile(settings.Keep(mFolder.Path("kept.toml")));
    EXPECT_EQ(DesktopSettings::Read(ReadSettingsFile(mFolder.Path("kept.toml"))), settings);
}

TEST_F(DesktopSettingsTest, KeepOver_Others_ChangesOnlyWhatIsDifferentFromBefore)
{
    DesktopSettings before;
    before.zoom = 200;
    auto settings = before;
    settings.hidesTitles = true;
    settings.locale = "de_DE";
    DesktopSettings others;
    others.locale = "fr_FR";
    others.width = 800;
    WriteSettingsFile(settings.KeepOver(others, before, mFolder.Path("kept.toml")));
    auto expected = others;
    expected.hidesTitles = true;
    expected.locale = "de_DE";
    EXPECT_EQ(DesktopSettings::Read(ReadSettingsFile(mFolder.Path("kept.toml"))), expected);
}

TEST_F(DesktopSettingsTest, FirstDayOfWeek_Set_GoesBeforeTheLocale)
{
    DesktopSettings settings;
    EXPECT_EQ(settings.FirstDayOfWeek(2), 2);
    using FirstDay = DesktopSettings::FirstDay;
    for (const auto& [day, number] :
        { std::pair(FirstDay::Sunday, 1), std::pair(FirstDay::Monday, 2), std::pair(FirstDay::Saturday, 7) }) {
        settings.firstDay = day;
        EXPECT_EQ(settings.FirstDayOfWeek(3), number);
    }
}

TEST_F(DesktopSettingsTest, Read_FileByHand_IsTaken)
{
    const auto settings = Read("[[desktop]]\nappearance = \"dark\"\nview = \"day\"\nzoom = 50\ntray = true\n");
    EXPECT_EQ(settings.appearance, DesktopSettings::Appearance::Dark);
    EXPECT_EQ(settings.view, DesktopSettings::View::Day);
    EXPECT_EQ(settings.zoom, 50);
    EXPECT_TRUE(settings.hasTray);
    EXPECT_TRUE(settings.hasSidePanel);
}

TEST_F(DesktopSettingsTest, Read_WrongSetting_NamesLineAndRemedy)
{
    EXPECT_THAT(Refusal("appearance = \"pink\"\n"),
        HasSubstr(
            "line 2: appearance can't be \"pink\", but one of \"system\", \"light\", \"dark\", \"high-contrast\""));
    EXPECT_THAT(Refusal("zoom = 49\n"), HasSubstr("line 2: zoom can be 0, or 50 to 1200"));
    EXPECT_THAT(Refusal("zoom = 1201\n"), HasSubstr("zoom can be 0, or 50 to 1200"));
    EXPECT_THAT(Refusal("width = -1\n"), HasSubstr("width can be 0, or 1 to 32767"));
    EXPECT_THAT(Refusal("tray = 1\n"), HasSubstr("tray must be true or false"));
    EXPECT_THAT(Refusal("trey = true\n"), HasSubstr("\"trey\" isn't known in [[desktop]]"));
}

}
