#include "desktop/qt/SettingsDialog.h"

#include "DesktopFixture.h"
#include "desktop/qt/SelectionBar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace tempodial {

class SettingsDialogTest : public DesktopFixture
{
protected:
    SettingsDialog& Show()
    {
        mDialog = new SettingsDialog(*mDesk, mAutostart, nullptr);
        mDialog->show();
        return *mDialog;
    }
    QPushButton& Button(QDialogButtonBox::StandardButton which)
    {
        return *mDialog->findChild<QDialogButtonBox*>()->button(which);
    }
    QCheckBox& Check(const char* name) { return *qobject_cast<QCheckBox*>(mDialog->ControlOf(name)); }
    ~SettingsDialogTest() override { delete mDialog; }

    Autostart mAutostart { mFolder.Path(), "/bin/a", std::nullopt };
    QPointer<SettingsDialog> mDialog;
};

TEST_F(SettingsDialogTest, Ok_TakesOverWhatWasChosenAndKeepsIt)
{
    auto& dialog = Show();
    qobject_cast<QComboBox*>(dialog.ControlOf("appearance"))->setCurrentIndex(2);
    QTest::mouseClick(&Check("hide-titles"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseClick(&Check("autostart"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_FALSE(mDesk->Settings().hidesTitles);
    QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_TRUE(mDesk->Settings().hidesTitles);
    EXPECT_TRUE(mLook.IsDark());
    EXPECT_TRUE(mAutostart.IsOn());
    EXPECT_NE(mFolder.Read("config/desktop.toml").find("appearance = \"dark\""), std::string::npos);
    Settle();
    EXPECT_TRUE(mDialog.isNull());
}

TEST_F(SettingsDialogTest, FirstDay_Chosen_IsShownAtOnce)
{
    auto& window = Open();
    auto& dialog = Show();
    EXPECT_EQ(window.Log().Days().first, On(13, 0));
    qobject_cast<QComboBox*>(dialog.ControlOf("first-day"))->setCurrentText("Sunday");
    QTest::mouseClick(&Button(QDialogButtonBox::Apply), Qt::LeftButton);
    EXPECT_EQ(window.Log().Days().first, On(12, 0));
}

TEST_F(SettingsDialogTest, Locale_Unknown_IsRefusedWithWords)
{
    auto& window = Open();
    auto& dialog = Show();
    auto& locale = *qobject_cast<QLineEdit*>(dialog.ControlOf("locale"));
    locale.setText("xx_nowhere");
    QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_TRUE(window.Foot().Said().startsWith("There is no locale \"xx_nowhere\""))
        << window.Foot().Said().toStdString();
    EXPECT_FALSE(mDialog.isNull());
    locale.setText("de_DE");
    QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_EQ(mDesk->Settings().locale, "de_DE");
}

TEST_F(SettingsDialogTest, Cancel_ChangesNothing)
{
    Show();
    const auto before = mDesk->Settings();
    Check("hide-titles").click();
    Check("autostart").click();
    QTest::mouseClick(&Button(QDialogButtonBox::Cancel), Qt::LeftButton);
    EXPECT_EQ(mDesk->Settings(), before);
    EXPECT_FALSE(mAutostart.IsOn());
}

TEST_F(SettingsDialogTest, BeginInTheTray_WithoutOne_CantBeChosen)
{
    Show();
    EXPECT_FALSE(Check("start-hidden").isEnabled());
    Check("tray").click();
    EXPECT_TRUE(Check("start-hidden").isEnabled());
    Check("start-hidden").click();
    Check("tray").click();
    Button(QDialogButtonBox::Apply).click();
    EXPECT_FALSE(mDesk->Settings().startsHidden);
}

TEST_F(SettingsDialogTest, InAllColours_IsDrawnWhole)
{
    auto& dialog = Show();
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, name] : { std::pair(Look::Light, "light"), std::pair(Look::Dark, "dark") }) {
        mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
        Picture(dialog, std::string("settings-") + name);
        for (const auto* box : dialog.findChildren<QCheckBox*>()) {
            EXPECT_TRUE(dialog.rect().contains(box->geometry())) << box->objectName().toStdString();
        }
    }
}

}
