#include "desktop/qt/MainWindow.h"

#include "DesktopFixture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/NavigationBar.h"

#include <QLineEdit>
#include <QTest>

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

TEST_F(MainWindowTest, ViewButton_Day_ShowsThatDayAlone)
{
    auto& window = Open();
    QTest::mouseClick(&window.Bar().ButtonOf(View::Day), Qt::LeftButton);
    ASSERT_EQ(window.Agenda().Head().Days().size(), 1U);
    EXPECT_EQ(Title(window, 0), "17");
    EXPECT_EQ(mDesk->Settings().view, View::Day);
}

TEST_F(MainWindowTest, DayHead_Clicked_ShowsThatDay)
{
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

TEST_F(MainWindowTest, Log_Changed_IsShownAtOnce)
{
    auto& window = Open();
    mDesk->Do([this] { Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10)); });
    EXPECT_EQ(window.Agenda().Cards().size(), 1U);
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

}
