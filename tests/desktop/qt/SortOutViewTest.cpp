#include "desktop/qt/SortOutView.h"

#include "DesktopFixture.h"
#include "desktop/qt/AgendaView.h"

#include <QComboBox>
#include <QTest>
#include <QTreeWidget>

namespace tempodial {

class SortOutViewTest : public DesktopFixture
{
protected:
    static constexpr int Groups = 100;
    static constexpr int Days = 5;

    /// A week with so many groups, twenty a day.
    MainWindow& OpenGroups()
    {
        for (int group = 0; group < Groups; ++group) {
            const auto start = On(13 + group % Days, 8).AddMinutes(std::int64_t { group / Days } * 20);
            Add("", "Note " + std::to_string(group), "Writer", start, start.AddMinutes(15));
        }
        return Open();
    }
    /// A key to what has the focus, as a keyboard sends it.
    void Press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        ++mStrokes;
        Settle();
    }

    int mStrokes = 0;
};

TEST_F(SortOutViewTest, HundredGroups_ByKeyboardAlone_TakeOneStrokeEach)
{
    auto& window = OpenGroups();
    window.activateWindow();
    window.Agenda().setFocus();
    Settle();
    Press(Qt::Key_S);
    ASSERT_EQ(window.SortOut().Groups().size(), static_cast<std::size_t>(Groups));
    while (!window.SortOut().Groups().empty() && mStrokes < 2 * Groups) {
        Press(mStrokes % 2 == 0 ? Qt::Key_1 : Qt::Key_2);
    }
    constexpr int Most = 110;
    EXPECT_LE(mStrokes, Most);
    EXPECT_EQ(window.Log().UnassignedMinutes(), 0);
    for (const auto& activity : window.Log().Activities()) {
        EXPECT_TRUE(activity.isProjectByHand) << activity.description;
    }
}

TEST_F(SortOutViewTest, Span_AMonth_SortsOutAllOfItAndPagesMonths)
{
    Add("", "Early", "Writer", On(1, 8), On(1, 9));
    Add("", "Late", "Writer", On(15, 8), On(15, 9));
    auto& window = Open();
    window.Show(DesktopSettings::View::SortOut);
    auto& view = window.SortOut();
    EXPECT_EQ(view.Groups().size(), 1U);
    view.Span().setCurrentIndex(1);
    view.Span().activated(1);
    EXPECT_EQ(view.Groups().size(), 2U);
    EXPECT_EQ(mDesk->Settings().sortOutSpan, DesktopSettings::ListSpan::Month);
    window.Page(-1);
    EXPECT_EQ(window.Log().Days().last, Date::FromYearMonthDay(2006, 10, 31));
    window.Show(DesktopSettings::View::Week);
    EXPECT_EQ(window.Log().DayCount(), 7);
}

}
