#include "DesktopFixture.h"
#include "PaintCounter.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/SidePanel.h"

#include <QLabel>
#include <QTimer>
#include <QTimerEvent>
#include <algorithm>

namespace tempodial {

/// What the window says while time goes on and nothing else happens.
class MainWindowClockTest : public DesktopFixture
{
protected:
    static constexpr int Minute = 60000;

    /// It is a moment, and the window's minute is over.
    void GoTo(MainWindow& window, Date now)
    {
        mDesk->Profile().Clock()->Set(now);
        for (auto* timer : window.findChildren<QTimer*>()) {
            if (timer->interval() == Minute) {
                QTimerEvent over(timer->timerId());
                QCoreApplication::sendEvent(timer, &over);
            }
        }
    }
    static bool Says(MainWindow& window, const QString& words)
    {
        const auto labels = window.Side().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const auto* label) { return label->text() == words; });
    }
};

TEST_F(MainWindowClockTest, AnotherWeekBegins_ThePanelNamesTheDays)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    auto& window = Open();
    EXPECT_TRUE(Says(window, "This week"));
    GoTo(window, On(20, 0, 1));
    EXPECT_FALSE(Says(window, "This week"));
}

TEST_F(MainWindowClockTest, TenMinutesGo_TheLastEndIsFinal)
{
    Add("Alpha", "Plan", "Writer", On(17, 15), On(17, 16, 10));
    auto& window = Open();
    EXPECT_TRUE(window.Agenda().Cards().front().isSoft);
    GoTo(window, On(17, 16, 30));
    EXPECT_FALSE(window.Agenda().Cards().front().isSoft);
}

TEST_F(MainWindowClockTest, Midnight_TheMonthIsPaintedAnew)
{
    Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
    auto& window = Open();
    PaintCounter paints(window.Side().Month());
    paints.Take();
    GoTo(window, On(18, 0, 1));
    EXPECT_EQ(paints.Take(), 1);
}

TEST_F(MainWindowClockTest, ListIsShown_TheAgendaLetsTheClockGo)
{
    Add("Alpha", "Plan", "Writer", On(17, 15), On(17, 16, 10));
    auto& window = Open();
    window.Show(DesktopSettings::View::List);
    GoTo(window, On(17, 16, 30));
    EXPECT_TRUE(window.Agenda().Cards().empty());
    window.Show(DesktopSettings::View::Week);
    EXPECT_FALSE(window.Agenda().Cards().front().isSoft);
}

}
