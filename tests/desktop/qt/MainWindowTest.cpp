#include "desktop/qt/MainWindow.h"

#include "DesktopFixture.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SystemTheme.h"
#include "desktop/qt/WelcomePage.h"
#include "desktop/qt/WindowPlace.h"

#include <QClipboard>
#include <QDBusVariant>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <chrono>
#include <thread>

namespace tempodial {

class MainWindowTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;

    static QString Title(MainWindow& window, int day)
    {
        return window.Agenda().Head().Days()[static_cast<std::size_t>(day)].number;
    }
};

TEST_F(MainWindowTest, Opened_ShowsTheWeekOfToday)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10, 30));
    auto& window = Open();
    const auto& days = window.Agenda().Head().Days();
    ASSERT_EQ(days.size(), 7U);
    EXPECT_EQ(days[0].number, "13");
    EXPECT_EQ(days[2].total, "1 h 30");
    EXPECT_TRUE(days[4].isToday);
    ASSERT_EQ(window.Agenda().Cards().size(), 1U);
    EXPECT_EQ(window.Agenda().Cards()[0].title, "Plan");
}

TEST_F(MainWindowTest, Log_ChangedElsewhereOnly_IsNotLaidOutAgain)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    auto& window = Open();
    mDesk->Do([] {});
    const auto* scene = &window.Agenda().Scene();
    mDesk->Do([] {});
    EXPECT_EQ(scene, &window.Agenda().Scene());
    mDesk->Do([this] { Add("Alpha", "Before", "Writer", On(1, 9), On(1, 10)); });
    EXPECT_EQ(scene, &window.Agenda().Scene());
    mDesk->Do([this] { Add("Alpha", "Now", "Writer", On(16, 9), On(16, 10)); });
    EXPECT_NE(scene, &window.Agenda().Scene());
    EXPECT_EQ(window.Agenda().Cards().size(), 2U);
}

TEST_F(MainWindowTest, ActivitiesCome_WhileItIsOpen_FirstOneStaysInSight)
{
    auto& window = Open();
    for (int hour = 9; hour < 18; ++hour) {
        mDesk->Do([&] { Add("Alpha", "Plan", "Writer", On(15, hour), On(15, hour, 10)); });
    }
    const auto& scene = window.Agenda().Scene();
    const auto box = window.Agenda().InView(scene.Geometry().BoxOf(scene.Layout().Pieces().front()));
    EXPECT_GE(box.top(), 0);
    EXPECT_LT(box.bottom(), window.Agenda().viewport()->height());
}

TEST_F(MainWindowTest, ViewButton_Day_ShowsThatDayAlone)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    auto& window = Open();
    QTest::mouseClick(&window.Bar().ButtonOf(View::Day), Qt::LeftButton);
    ASSERT_EQ(window.Agenda().Head().Days().size(), 1U);
    EXPECT_EQ(Title(window, 0), "17");
    EXPECT_EQ(mDesk->Settings().view, View::Day);
}

TEST_F(MainWindowTest, DayHead_Clicked_ShowsThatDay)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    auto& window = Open();
    auto& head = window.Agenda().Head();
    QTest::mouseClick(&head, Qt::LeftButton, {}, QPoint(static_cast<int>(head.Days()[1].left) + 20, 10));
    ASSERT_EQ(head.Days().size(), 1U);
    EXPECT_EQ(Title(window, 0), "14");
}

TEST_F(MainWindowTest, Search_Words_ShowsWhatMatchesAndKeepsTheSums)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    Add("Beta", "Inbox", "Mail", On(15, 10), On(15, 11));
    auto& window = Open();
    QTest::keyClicks(&window.Bar().SearchField(), "inb");
    ASSERT_EQ(window.Agenda().Cards().size(), 1U);
    EXPECT_EQ(window.Agenda().Cards()[0].title, "Inbox");
    EXPECT_EQ(window.Agenda().Head().Days()[2].total, "2 h");
}

TEST_F(MainWindowTest, Foot_WordsAreSearched_CountsWhatIsFound)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 13));
    Add("", "Inbox", "Mail", On(15, 13), On(15, 13, 30));
    auto& window = Open();
    EXPECT_EQ(window.Foot().Title(), "2 activities");
    window.Search("inb");
    EXPECT_EQ(window.Foot().Title(), "1 activity") << "most of the week has a project";
}

TEST_F(MainWindowTest, Foot_WordsAreSearchedWhereFewHaveAProject_CountsWhatIsFound)
{
    Add("", "Plan", "Writer", On(15, 9), On(15, 13));
    Add("", "Inbox", "Mail", On(15, 13), On(15, 13, 30));
    auto& window = Open();
    const auto advice = window.Foot().Title();
    EXPECT_EQ(advice, NoProjectsYet);
    window.Search("inb");
    EXPECT_EQ(window.Foot().Title(), "1 activity");
    window.Search("");
    EXPECT_EQ(window.Foot().Title(), advice);
}

TEST_F(MainWindowTest, Job_WindowsTakeLongToFollow_GoesOnMeanwhile)
{
    constexpr std::chrono::milliseconds Long(400);
    int follows = 0;
    const auto slow = mDesk->Subscribe({ .Changed = [&] {
        ++follows;
        std::this_thread::sleep_for(Long);
    } });
    mDesk->Follow();
    mDesk->Follow();
    EXPECT_EQ(follows, 1) << "the time goes from the end of it on";
    std::this_thread::sleep_for(2 * Long);
    mDesk->Follow();
    EXPECT_EQ(follows, 2);
}

TEST_F(MainWindowTest, Log_Changed_IsShownAtOnce)
{
    auto& window = Open();
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10)); });
    EXPECT_EQ(window.Agenda().Cards().size(), 1U);
}

TEST_F(MainWindowTest, New_UntilThereIsAnActivity_TellsWhereTheTrackersFilesAre)
{
    auto& window = Open();
    EXPECT_TRUE(window.Welcome().isVisible());
    QTest::mouseClick(&window.Welcome().CopyButton(), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), mDesk->Profile().DataFolder());
    Picture(window, "welcome");
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10)); });
    EXPECT_FALSE(window.Welcome().isVisible());
    EXPECT_TRUE(window.Agenda().isVisible());
}

TEST_F(MainWindowTest, New_TrackerFileIsThere_ShowsTheDays)
{
    mFolder.Write("profile/Tempodial/" + TrackerFileName(On(17, 0).DayKey()), "<slots>\n");
    auto& window = Open();
    EXPECT_FALSE(window.Welcome().isVisible());
}

TEST_F(MainWindowTest, Log_FirstActivitiesCome_AreScrolledTo)
{
    auto& window = Open();
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(15, 1), On(15, 2)); });
    Settle();
    const auto& scene = window.Agenda().Scene();
    const auto box = window.Agenda().InView(scene.Geometry().BoxOf(scene.Layout().Pieces().front()));
    EXPECT_GE(box.y(), 0);
    EXPECT_LT(box.bottom(), window.Agenda().viewport()->height());
}

TEST_F(MainWindowTest, Log_EarlierOnesFollowAndNobodyScrolled_AreScrolledToToo)
{
    auto& window = Open();
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(15, 14), On(15, 15)); });
    Settle();
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(14, 1), On(14, 2)); });
    Settle();
    const auto topOf = [&window](std::size_t piece) {
        const auto& scene = window.Agenda().Scene();
        return window.Agenda().InView(scene.Geometry().BoxOf(scene.Layout().Pieces()[piece])).y();
    };
    EXPECT_GE(topOf(0), 0);
    window.Agenda().verticalScrollBar()->setValue(window.Agenda().verticalScrollBar()->maximum());
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(13, 0), On(13, 1)); });
    Settle();
    EXPECT_LT(topOf(0), 0);
}

TEST_F(MainWindowTest, Work_Fails_IsToldAtTheFoot)
{
    auto& window = Open();
    mDesk->Do([] { throw std::runtime_error("it can't be done: try later"); });
    EXPECT_EQ(window.Foot().Text(), "it can't be done: try later");
    EXPECT_FALSE(mDesk->IsBusy());
}

TEST_F(MainWindowTest, SystemTheme_Dark_IsFollowedUnlessAnotherIsChosen)
{
    Open();
    mDesk->FollowSystem(true);
    EXPECT_TRUE(mLook.IsDark());
    mDesk->Change([](DesktopSettings& settings) { settings.appearance = DesktopSettings::Appearance::Light; });
    mDesk->FollowSystem(false);
    mDesk->FollowSystem(true);
    EXPECT_FALSE(mLook.IsDark());
}

TEST_F(MainWindowTest, Closed_TheModelGoesAndTheWindowAfterIt)
{
    auto& window = Open();
    bool isAllClosed = false;
    mWindows->mWhenAllClosed = [&] { isAllClosed = true; };
    window.close();
    EXPECT_TRUE(mDesk->Windows().OpenExplorers().empty());
    EXPECT_TRUE(isAllClosed);
}

TEST_F(MainWindowTest, Appearance_Changed_ShowsTheSameActivities)
{
    AddWeek();
    auto& window = Open();
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, name] :
        { std::pair(Look::Light, "light"), std::pair(Look::Dark, "dark"), std::pair(Look::HighContrast, "contrast") }) {
        mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
        Picture(window, std::string("week-") + name);
        EXPECT_EQ(window.Agenda().Cards().size(), window.Log().Activities().size());
    }
}

TEST_F(MainWindowTest, SystemTheme_HighContrast_IsFollowedUnlessAnAppearanceIsChosen)
{
    Open();
    const SystemTheme theme({ .dark = [this](bool isDark) { mDesk->FollowSystem(isDark); },
        .contrast = [this](bool isHigh) { mDesk->FollowSystemContrast(isHigh); } });
    const auto nested = [](uint value) { return QVariant::fromValue(QDBusVariant(value)); };
    theme.Take(SystemTheme::Contrast, nested(1));
    EXPECT_TRUE(mLook.IsHighContrast());
    EXPECT_FALSE(mLook.IsDark());
    theme.Take(SystemTheme::ColourScheme, 1U);
    EXPECT_TRUE(mLook.IsHighContrast());
    EXPECT_TRUE(mLook.IsDark());
    theme.Take(SystemTheme::ColourScheme, 0U);
    EXPECT_TRUE(mLook.IsDark()) << "no wish changes nothing";
    mDesk->Change([](DesktopSettings& settings) { settings.appearance = DesktopSettings::Appearance::Dark; });
    EXPECT_FALSE(mLook.IsHighContrast());
    mDesk->Change([](DesktopSettings& settings) { settings.appearance = DesktopSettings::Appearance::System; });
    theme.Take(SystemTheme::Contrast, nested(0));
    EXPECT_FALSE(mLook.IsHighContrast());
}

TEST_F(MainWindowTest, Closed_NotesSizeAndScreenForTheNext)
{
    auto& first = Open();
    first.resize(1000, 700);
    const auto screen = first.screen()->name().toStdString();
    first.close();
    Settle();
    EXPECT_EQ(mDesk->Settings().width, 1000);
    EXPECT_EQ(mDesk->Settings().screen, screen);
    EXPECT_FALSE(mDesk->Settings().isMaximised);
    QWidget next;
    PutWhereLeft(next, mDesk->Settings());
    EXPECT_EQ(next.size(), QSize(1000, 700));
    EXPECT_FALSE(next.isMaximized());
}

TEST_F(MainWindowTest, WindowLeftMaximised_IsSoAgainAndKeepsItsOtherSize)
{
    DesktopSettings settings;
    settings.width = 1000;
    settings.height = 700;
    settings.isMaximised = true;
    settings.screen = "one that was taken away";
    QWidget window;
    PutWhereLeft(window, settings);
    EXPECT_TRUE(window.isMaximized());
    NotePlace(window, settings);
    EXPECT_TRUE(settings.isMaximised);
    EXPECT_EQ(settings.width, 1000);
    EXPECT_EQ(settings.screen, window.screen()->name().toStdString());
}

}
