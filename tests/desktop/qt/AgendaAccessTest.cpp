#include "desktop/qt/AgendaAccess.h"

#include "HeardEvents.h"
#include "WorkedWeekFixture.h"
#include "review/ActivityReader.h"

#include <gmock/gmock.h>

#include <QTest>

namespace tempodial {

/// The agenda as assistive programs see it: a table of seven days, with three activities on Wednesday and one on
/// Thursday.
class AgendaAccessTest : public WorkedWeekFixture
{
protected:
    static constexpr int Heads = 7;
    static constexpr int Wednesday = 2;

    AgendaView& View() { return mWindow->Agenda(); }
    QAccessibleInterface& Agenda() { return *QAccessible::queryAccessibleInterface(&View()); }
    QAccessibleTableInterface& Table() { return *Agenda().tableInterface(); }
    QAccessibleInterface& Cell(int place) { return *Agenda().child(Heads + place); }
    static QString NameOf(const QAccessibleInterface* it) { return it->text(QAccessible::Name); }
    static QString DescriptionOf(const QAccessibleInterface* it) { return it->text(QAccessible::Description); }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&View(), key, modifiers); }
    /// Puts focus and selection on the first activity.
    void GoToFirst()
    {
        View().setFocus();
        Key(Qt::Key_Down);
        ASSERT_EQ(View().Focus(), 0U);
    }
    std::vector<bool> Selected()
    {
        std::vector<bool> selected;
        for (int i = 0; i < Agenda().childCount() - Heads; ++i) {
            selected.push_back(Cell(i).state().selected);
        }
        return selected;
    }
};

TEST_F(AgendaAccessTest, Tree_Week_IsATableOfDaysWithHeads)
{
    EXPECT_EQ(Agenda().role(), QAccessible::Table);
    EXPECT_EQ(NameOf(&Agenda()), "Activities");
    EXPECT_EQ(Agenda().childCount(), Heads + 4);
    EXPECT_EQ(Table().columnCount(), Heads);
    EXPECT_EQ(Table().rowCount(), 3);
    auto* head = Agenda().child(Wednesday);
    EXPECT_EQ(head->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(NameOf(head), "Wednesday, 15 November 2006 · 3 h");
    EXPECT_EQ(DescriptionOf(head), "Beta 1 h, Alpha 1 h, No Project 1 h");
    EXPECT_EQ(Table().columnDescription(Wednesday), NameOf(head));
    EXPECT_EQ(DescriptionOf(Agenda().child(4)), "today");
    EXPECT_EQ(NameOf(Agenda().child(0)), "Monday, 13 November 2006 · 0 min");
    EXPECT_EQ(Agenda().child(-1), nullptr);
    EXPECT_EQ(Agenda().child(Heads + 4), nullptr);
}

TEST_F(AgendaAccessTest, Cell_Activity_HasNameDescriptionAndState)
{
    EXPECT_EQ(Cell(0).role(), QAccessible::Cell);
    EXPECT_EQ(NameOf(&Cell(0)), "Plan, Wednesday, 15 November 2006, 09:00 to 10:00, Alpha");
    EXPECT_EQ(DescriptionOf(&Cell(0)), "1 h, Writer");
    EXPECT_EQ(NameOf(&Cell(1)), "Inbox, Wednesday, 15 November 2006, 10:00 to 11:00, No Project");
    // The gap before it is painted, too.
    EXPECT_EQ(DescriptionOf(&Cell(2)), "1 h, Calc, after 2 h without a record");
    const auto state = Cell(0).state();
    EXPECT_TRUE(state.focusable);
    EXPECT_TRUE(state.selectable);
    EXPECT_FALSE(state.selected);
    EXPECT_FALSE(state.focused);
    EXPECT_FALSE(state.invisible);
}

TEST_F(AgendaAccessTest, Cell_MayStillGrow_SaysSo)
{
    mDesk->Do([this] { Add("Alpha", "Call", "Phone", On(17, 16), On(17, 16, 10)); });
    EXPECT_EQ(DescriptionOf(&Cell(4)), "10 min, Phone, may still grow");
}

TEST_F(AgendaAccessTest, Cell_Activity_KnowsItsPlaceAndItsHead)
{
    auto* cell = Cell(3).tableCellInterface();
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->columnIndex(), 3);
    EXPECT_EQ(cell->rowIndex(), 0);
    EXPECT_EQ(cell->table(), &Agenda());
    ASSERT_EQ(cell->columnHeaderCells().size(), 1);
    EXPECT_EQ(NameOf(cell->columnHeaderCells().front()), "Thursday, 16 November 2006 · 1 h");
    EXPECT_EQ(Table().cellAt(0, 3), &Cell(3));
    EXPECT_EQ(Table().cellAt(2, Wednesday), &Cell(2));
    EXPECT_EQ(Agenda().indexOfChild(&Cell(3)), Heads + 3);
    EXPECT_EQ(Agenda().indexOfChild(Agenda().child(3)), 3);
    EXPECT_EQ(Cell(3).parent(), &Agenda());
}

TEST_F(AgendaAccessTest, CellAt_NothingThere_IsBlankAndNeverNull)
{
    auto* blank = Table().cellAt(1, 3);
    ASSERT_NE(blank, nullptr);
    EXPECT_EQ(NameOf(blank), "");
    EXPECT_EQ(blank->role(), QAccessible::Cell);
    EXPECT_EQ(blank->tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(blank->tableCellInterface()->columnHeaderCells().front(), Agenda().child(3));
    EXPECT_EQ(Agenda().indexOfChild(blank), -1);
    for (const auto& [row, column] : { std::pair(3, 0), std::pair(-1, 0), std::pair(0, -1), std::pair(0, Heads) }) {
        auto* outside = Table().cellAt(row, column);
        ASSERT_NE(outside, nullptr) << row << ", " << column;
        EXPECT_TRUE(outside->tableCellInterface()->columnHeaderCells().isEmpty());
    }
}

TEST_F(AgendaAccessTest, ChildAt_PlaceOfACellOrAHead_IsThat)
{
    for (int i = 0; i < Agenda().childCount(); ++i) {
        const auto middle = Agenda().child(i)->rect().center();
        EXPECT_EQ(Agenda().childAt(middle.x(), middle.y()), Agenda().child(i)) << i;
    }
    const auto corner = Agenda().rect().bottomLeft();
    EXPECT_EQ(Agenda().childAt(corner.x() + 1, corner.y() - 1), nullptr);
}

TEST_F(AgendaAccessTest, AnotherActivityComesBefore_NoneStandsForAnother)
{
    const auto plan = QAccessible::uniqueId(&Cell(0));
    mDesk->Do([this] { Add("Alpha", "Early", "Writer", On(15, 6), On(15, 7)); });
    EXPECT_TRUE(NameOf(&Cell(0)).startsWith("Early"));
    auto* same = QAccessible::accessibleInterface(plan);
    ASSERT_NE(same, nullptr);
    EXPECT_TRUE(NameOf(same).startsWith("Plan"));
    EXPECT_EQ(Agenda().indexOfChild(same), Heads + 1);
}

TEST_F(AgendaAccessTest, ActivityGoes_ItsObjectGoes)
{
    const auto plan = QAccessible::uniqueId(&Cell(0));
    const auto inbox = QAccessible::uniqueId(&Cell(1));
    Cell(0).actionInterface()->doAction("Delete");
    Settle();
    EXPECT_EQ(QAccessible::accessibleInterface(plan), nullptr);
    ASSERT_NE(QAccessible::accessibleInterface(inbox), nullptr);
    EXPECT_TRUE(NameOf(QAccessible::accessibleInterface(inbox)).startsWith("Inbox"));
    EXPECT_EQ(Agenda().childCount(), Heads + 3);
}

TEST_F(AgendaAccessTest, OtherDaysAreShown_AllOfThoseBeforeGo)
{
    const auto head = QAccessible::uniqueId(Agenda().child(0));
    const auto plan = QAccessible::uniqueId(&Cell(0));
    const HeardEvents events;
    mWindow->Page(-1);
    EXPECT_EQ(QAccessible::accessibleInterface(head), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(plan), nullptr);
    EXPECT_EQ(NameOf(Agenda().child(0)), "Monday, 6 November 2006 · 0 min");
    EXPECT_THAT(events.Of(QAccessible::TableModelChanged), testing::Contains("Activities"));
}

TEST_F(AgendaAccessTest, NoActivities_TheSentenceIsRead)
{
    EXPECT_EQ(Table().summary(), nullptr);
    mWindow->Page(1);
    ASSERT_EQ(Agenda().childCount(), Heads + 1);
    auto* note = Agenda().child(Heads);
    EXPECT_EQ(note, Table().summary());
    EXPECT_EQ(note->role(), QAccessible::StaticText);
    EXPECT_THAT(NameOf(note).toStdString(), testing::EndsWith("Show Thursday, 16 November 2006"));
    EXPECT_EQ(Agenda().indexOfChild(note), Heads);
    EXPECT_EQ(note->parent(), &Agenda());
    const auto middle = note->rect().center();
    EXPECT_EQ(Agenda().childAt(middle.x(), middle.y()), note);
    EXPECT_EQ(Table().rowCount(), 0);
    EXPECT_NE(Table().cellAt(0, 0), nullptr);
}

TEST_F(AgendaAccessTest, ArrowKey_TellsFocusAndSelection)
{
    GoToFirst();
    EXPECT_EQ(Agenda().focusChild(), &Cell(0));
    const auto plan = NameOf(&Cell(0)).toStdString();
    const auto inbox = NameOf(&Cell(1)).toStdString();
    const HeardEvents events;
    Key(Qt::Key_Down);
    EXPECT_THAT(events.All(),
        testing::ElementsAre(HeardEvents::Heard { QAccessible::Focus, inbox },
            HeardEvents::Heard { QAccessible::SelectionRemove, plan },
            HeardEvents::Heard { QAccessible::SelectionAdd, inbox }));
    EXPECT_TRUE(Cell(1).state().focused);
    EXPECT_TRUE(Cell(1).state().selected);
    EXPECT_FALSE(Cell(0).state().focused);
    EXPECT_FALSE(Cell(0).state().selected);
}

TEST_F(AgendaAccessTest, ManyAreSelected_AreToldOnce)
{
    for (int i = 0; i < 20; ++i) {
        Add("Alpha", "Note", "Writer", On(14, 8).AddMinutes(i * 10), On(14, 8).AddMinutes(i * 10 + 10));
    }
    mDesk->Do([] {});
    const HeardEvents events;
    mWindow->SelectAll();
    EXPECT_THAT(events.All(), testing::ElementsAre(HeardEvents::Heard { QAccessible::SelectionWithin, "Activities" }));
}

TEST_F(AgendaAccessTest, MoveByKey_TellsTheNewTimes)
{
    GoToFirst();
    EXPECT_EQ(NameOf(&Cell(0)), "Plan, Wednesday, 15 November 2006, 09:00 to 10:00, Alpha");
    const auto plan = QAccessible::uniqueId(&Cell(0));
    const HeardEvents events;
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(events.Of(QAccessible::NameChanged),
        testing::ElementsAre("Plan, Wednesday, 15 November 2006, 08:55 to 09:55, Alpha"));
    EXPECT_TRUE(events.Of(QAccessible::DescriptionChanged).empty());
    EXPECT_EQ(QAccessible::uniqueId(Agenda().focusChild()), plan);
}

TEST_F(AgendaAccessTest, StretchByKey_TellsTimesAndLength)
{
    GoToFirst();
    EXPECT_EQ(DescriptionOf(&Cell(0)), "1 h, Writer");
    const HeardEvents events;
    Key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    const std::string name = "Plan, Wednesday, 15 November 2006, 09:00 to 09:55, Alpha";
    EXPECT_THAT(events.Of(QAccessible::NameChanged), testing::ElementsAre(name));
    EXPECT_THAT(events.Of(QAccessible::DescriptionChanged), testing::ElementsAre(name));
    EXPECT_EQ(DescriptionOf(&Cell(0)), "55 min, Writer");
}

TEST_F(AgendaAccessTest, MovedPastAnother_KeepsItsObjectAndTheFocus)
{
    GoToFirst();
    const auto plan = QAccessible::uniqueId(&Cell(0));
    for (int i = 0; i < 13; ++i) {
        Key(Qt::Key_Down, Qt::AltModifier);
    }
    EXPECT_TRUE(NameOf(&Cell(0)).startsWith("Inbox"));
    EXPECT_EQ(
        NameOf(QAccessible::accessibleInterface(plan)), "Plan, Wednesday, 15 November 2006, 10:05 to 11:05, Alpha");
    EXPECT_EQ(QAccessible::uniqueId(Agenda().focusChild()), plan);
    EXPECT_TRUE(QAccessible::accessibleInterface(plan)->state().focused);
}

TEST_F(AgendaAccessTest, FocusedOneGoes_TheAgendaHasTheFocus)
{
    GoToFirst();
    const HeardEvents events;
    Key(Qt::Key_Delete);
    EXPECT_THAT(events.Of(QAccessible::Focus), testing::ElementsAre("Activities"));
}

TEST_F(AgendaAccessTest, Actions_OpenSetProjectAndFocus)
{
    auto* action = Cell(0).actionInterface();
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->actionNames(),
        QStringList({ "Open", "Set Project", "Delete", QAccessibleActionInterface::setFocusAction() }));
    action->doAction("Open");
    // Who asks is answered before a window or a menu comes up.
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty());
    Settle();
    EXPECT_EQ(mDesk->Windows().OpenInspectors().size(), 1U);
    EXPECT_EQ(Selected(), std::vector<bool>({ false, false, false, false }));
    int asked = 0;
    View().mWishes.chooseProject = [&] { ++asked; };
    Cell(1).actionInterface()->doAction("Set Project");
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Selected(), std::vector<bool>({ false, true, false, false }));
    Cell(2).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    Settle();
    EXPECT_EQ(View().Focus(), 2U);
    EXPECT_EQ(Selected(), std::vector<bool>({ false, false, true, false }));
}

TEST_F(AgendaAccessTest, Action_AnotherComesBeforeItIsDone_IsDoneToTheSame)
{
    Cell(1).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    mDesk->Do([this] { Add("Alpha", "Early", "Writer", On(15, 6), On(15, 7)); });
    Settle();
    EXPECT_EQ(View().Focus(), 2U);
    EXPECT_TRUE(NameOf(&Cell(2)).startsWith("Inbox"));
}

TEST_F(AgendaAccessTest, Head_IsPressed_ShowsTheDay)
{
    Agenda().child(Wednesday)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    Settle();
    EXPECT_EQ(Table().columnCount(), 1);
    EXPECT_EQ(NameOf(Agenda().child(0)), "Wednesday, 15 November 2006 · 3 h");
    EXPECT_EQ(Agenda().childCount(), 1 + 3);
}

TEST_F(AgendaAccessTest, ColumnAndRow_AreSelected_TheirActivitiesAre)
{
    EXPECT_TRUE(Table().selectColumn(Wednesday));
    EXPECT_EQ(Selected(), std::vector<bool>({ true, true, true, false }));
    EXPECT_TRUE(Table().isColumnSelected(Wednesday));
    EXPECT_FALSE(Table().isColumnSelected(0));
    EXPECT_EQ(Table().selectedColumns(), QList({ Wednesday }));
    EXPECT_EQ(Table().selectedCellCount(), 3);
    EXPECT_EQ(Table().selectedCells(), QList({ &Cell(0), &Cell(1), &Cell(2) }));
    EXPECT_EQ(Table().selectedRows(), QList({ 1, 2 }));
    EXPECT_TRUE(Table().selectRow(0));
    EXPECT_EQ(Table().selectedRows(), QList({ 0, 1, 2 }));
    EXPECT_TRUE(Table().unselectColumn(Wednesday));
    EXPECT_EQ(Selected(), std::vector<bool>({ false, false, false, true }));
    EXPECT_TRUE(Table().unselectRow(0));
    EXPECT_EQ(Table().selectedCellCount(), 0);
    EXPECT_FALSE(Table().selectColumn(0));
    EXPECT_FALSE(Table().selectRow(9));
}

TEST_F(AgendaAccessTest, ListIsShown_TheAgendasCellsAreInvisible)
{
    mWindow->Show(DesktopSettings::View::List, On(15, 0));
    mWindow->Show(DesktopSettings::View::List, On(15, 0));
    EXPECT_TRUE(Agenda().state().invisible);
    for (int i = 0; i < Agenda().childCount(); ++i) {
        EXPECT_TRUE(Agenda().child(i)->state().invisible) << i;
    }
}

TEST_F(AgendaAccessTest, ScrolledAway_IsOffscreen)
{
    EXPECT_FALSE(Cell(0).state().offscreen);
    View().Zoom(30);
    View().SetFocusOn(2);
    EXPECT_TRUE(Cell(0).state().offscreen);
    EXPECT_FALSE(Cell(2).state().offscreen);
}

}
