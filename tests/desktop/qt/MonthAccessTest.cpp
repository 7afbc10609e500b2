#include "desktop/qt/MonthAccess.h"

#include "HeardEvents.h"
#include "WorkedWeekFixture.h"
#include "desktop/qt/MiniMonth.h"
#include "desktop/qt/SidePanel.h"

#include <gmock/gmock.h>

#include <QTest>

namespace tempodial {

/// November 2006, which begins on a Wednesday, with the week of the 13th shown beside.
class MonthAccessTest : public WorkedWeekFixture
{
protected:
    /// The places of days in it.
    static constexpr int Monday13 = 14;
    static constexpr int Wednesday15 = 16;

    MiniMonth& Widget() { return mWindow->Side().Month(); }
    QAccessibleInterface& Month() { return *QAccessible::queryAccessibleInterface(&Widget()); }
    static QString NameOf(const QAccessibleInterface* it) { return it->text(QAccessible::Name); }
};

TEST_F(MonthAccessTest, Tree_IsATableOfSixWeeks)
{
    EXPECT_EQ(Month().role(), QAccessible::Table);
    EXPECT_EQ(NameOf(&Month()), "Calendar");
    EXPECT_EQ(Month().childCount(), 42);
    auto* table = Month().tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 6);
    EXPECT_EQ(table->columnCount(), 7);
    EXPECT_EQ(table->columnDescription(2), "Wed");
    EXPECT_EQ(table->rowDescription(2), "Week 46");
    auto* day = Month().child(Wednesday15);
    EXPECT_EQ(NameOf(day), "Wednesday, 15 November 2006 · 3 h");
    EXPECT_EQ(table->cellAt(2, 2), day);
    EXPECT_EQ(day->tableCellInterface()->rowIndex(), 2);
    EXPECT_EQ(day->tableCellInterface()->columnIndex(), 2);
    EXPECT_EQ(Month().indexOfChild(day), Wednesday15);
    EXPECT_EQ(Month().child(42), nullptr);
    EXPECT_NE(table->cellAt(6, 0), nullptr);
    const auto middle = day->rect().center();
    EXPECT_EQ(Month().childAt(middle.x(), middle.y()), day);
    EXPECT_EQ(Month().childAt(-9, -9), nullptr);
}

TEST_F(MonthAccessTest, Day_OfTheShownWeek_IsSelected)
{
    EXPECT_FALSE(Month().child(Monday13 - 1)->state().selected);
    EXPECT_TRUE(Month().child(Monday13)->state().selected);
    EXPECT_EQ(Month().child(Monday13)->text(QAccessible::Description), "");
    EXPECT_EQ(Month().child(Monday13 + 4)->text(QAccessible::Description), "today");
}

TEST_F(MonthAccessTest, Day_IsPressed_IsShown)
{
    Month().child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    Settle();
    EXPECT_EQ(mWindow->Log().Days().first, Date::FromYearMonthDay(2006, 10, 30));
}

TEST_F(MonthAccessTest, Key_GoesToADay_TellsItsFocus)
{
    Widget().setFocus();
    const HeardEvents events;
    QTest::keyClick(&Widget(), Qt::Key_Right);
    EXPECT_THAT(events.Of(QAccessible::Focus), testing::ElementsAre("Tuesday, 14 November 2006 · 0 min"));
    EXPECT_EQ(Month().focusChild(), Month().child(Monday13 + 1));
    EXPECT_TRUE(Month().child(Monday13 + 1)->state().focused);
}

TEST_F(MonthAccessTest, OtherMonth_DaysThatArentSeenGo)
{
    const auto day = QAccessible::uniqueId(Month().child(Wednesday15));
    const auto last = QAccessible::uniqueId(Month().child(41));
    const auto name = NameOf(Month().child(41));
    Month().actionInterface()->doAction("Next Month");
    EXPECT_EQ(QAccessible::accessibleInterface(day), nullptr);
    ASSERT_NE(QAccessible::accessibleInterface(last), nullptr);
    EXPECT_EQ(NameOf(QAccessible::accessibleInterface(last)), name);
    EXPECT_EQ(NameOf(Month().child(4)), "Friday, 1 December 2006 · 0 min");
    EXPECT_TRUE(Month().text(QAccessible::Description).startsWith("Dec 2006"));
    Month().actionInterface()->doAction("Previous Month");
    EXPECT_EQ(NameOf(Month().child(2)), "Wednesday, 1 November 2006 · 0 min");
}

TEST_F(MonthAccessTest, MoreWork_TellsTheDaysTime)
{
    EXPECT_NE(Month().child(Wednesday15), nullptr);
    const HeardEvents events;
    mDesk->Do([this] { Add("Alpha", "Early", "Writer", On(15, 6), On(15, 7)); });
    EXPECT_THAT(events.Of(QAccessible::NameChanged), testing::Contains("Wednesday, 15 November 2006 · 4 h"));
}

}
