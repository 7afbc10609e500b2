#include "DesktopFixture.h"
#include "desktop/qt/ActivityList.h"
#include "desktop/qt/AgendaAccess.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/JobStrip.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SortOutView.h"
#include "platform/controls/Button.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

namespace tempodial {

/// The list, the view that sorts out, and the agenda for assistive programs.
class OtherViewsTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;

    OtherViewsTest()
    {
        Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
        Add("", "Inbox", "Mail", On(15, 10), On(15, 12));
        Add("", "Inbox", "Mail", On(16, 10), On(16, 11));
        Add("", "News", "Browser", On(16, 11), On(16, 12));
        Add("Beta", "Old letter", "Writer", On(1, 9), On(1, 10));
    }

    static std::vector<QString> Lines(const ActivityList& list)
    {
        std::vector<QString> lines;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            const auto* activity = list.Model().ActivityOf(row);
            lines.push_back(activity == nullptr ? list.model()->index(row, 0).data().toString()
                                                : QString::fromStdString(activity->description));
        }
        return lines;
    }
};

TEST_F(OtherViewsTest, List_Shown_HasTheGroupsOfTheProductsView)
{
    auto& window = Open();
    window.Show(View::List, On(15, 0));
    EXPECT_THAT(Lines(window.List()),
        testing::ElementsAre("\u25be Alpha \u00b7 1 activity \u00b7 1 h", "Plan",
            "\u25be No Project \u00b7 3 activities \u00b7 4 h", "News", "Inbox", "Inbox"));
    Picture(window, "list");
}

TEST_F(OtherViewsTest, List_GroupFolded_StaysSoWhenTheLogChanges)
{
    auto& window = Open();
    window.Show(View::List, On(15, 0));
    auto& list = window.List();
    list.setCurrentIndex(list.model()->index(2, 0));
    QTest::keyClick(&list, Qt::Key_Left);
    EXPECT_EQ(Lines(list).size(), 3U);
    mDesk->Do([this] { Add("Alpha", "Sheet", "Calc", On(15, 13), On(15, 14)); });
    EXPECT_EQ(Lines(list).size(), 4U);
}

TEST_F(OtherViewsTest, List_RowSelected_IsSelectedInTheModelAndEnterOpensIt)
{
    auto& window = Open();
    window.Show(View::List, On(15, 0));
    window.List().setCurrentIndex(window.List().model()->index(1, 0));
    EXPECT_EQ(window.Selected().size(), 1U);
    EXPECT_EQ(mDesk->Windows().OpenExplorers().front()->Selection()->Count(), 1);
    QTest::keyClick(&window.List(), Qt::Key_Return);
    EXPECT_EQ(mDesk->Windows().OpenInspectors().size(), 1U);
}

TEST_F(OtherViewsTest, SearchField_Enter_FindsInTheWholeLog)
{
    auto& window = Open();
    QTest::keyClicks(&window.Bar().SearchField(), "letter");
    QTest::keyClick(&window.Bar().SearchField(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.Foot().Title().contains("found in the whole log"); }));
    EXPECT_THAT(Lines(window.List()), testing::Contains(QString("Old letter")));
    window.Bar().SearchField().clear();
    EXPECT_EQ(Lines(window.List()).size(), 6U);
}

TEST_F(OtherViewsTest, SortOut_Shown_SelectsTheLargestGroup)
{
    auto& window = Open();
    window.Show(View::SortOut, On(15, 0));
    ASSERT_EQ(window.SortOut().Groups().size(), 2U);
    EXPECT_EQ(window.SortOut().Groups().front().description, "Inbox");
    EXPECT_EQ(window.Selected().size(), 2U);
    Picture(window, "sort-out");
}

TEST_F(OtherViewsTest, SortOut_DigitKey_SetsTheProjectOfAllAndGoesOn)
{
    auto& window = Open();
    window.Show(View::SortOut, On(15, 0));
    QTest::keyClick(&window.SortOut().List(), Qt::Key_1);
    Settle();
    ASSERT_EQ(window.SortOut().Groups().size(), 1U);
    EXPECT_EQ(window.SortOut().Groups().front().description, "News");
    EXPECT_EQ(window.Selected().size(), 1U);
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.SortOut().Groups().size(), 2U);
}

TEST_F(OtherViewsTest, Accessible_Agenda_TellsEachActivityWithDayAndProject)
{
    auto& window = Open();
    auto* agenda = QAccessible::queryAccessibleInterface(&window.Agenda());
    ASSERT_NE(agenda, nullptr);
    EXPECT_EQ(agenda->role(), QAccessible::List);
    ASSERT_EQ(agenda->childCount(), 4);
    auto* plan = agenda->child(0);
    EXPECT_EQ(plan->text(QAccessible::Name), "Plan, Wednesday, 15 November 2006, 09:00 to 10:00, Alpha");
    EXPECT_FALSE(plan->state().selected);
    EXPECT_TRUE(plan->state().focusable);
    EXPECT_EQ(agenda->indexOfChild(plan), 0);
    const auto middle = plan->rect().center();
    EXPECT_EQ(agenda->childAt(middle.x(), middle.y()), plan);
    EXPECT_EQ(agenda->child(4), nullptr);
}

TEST_F(OtherViewsTest, Accessible_Actions_OpenAndDelete)
{
    auto& window = Open();
    auto* agenda = QAccessible::queryAccessibleInterface(&window.Agenda());
    auto* action = agenda->child(0)->actionInterface();
    ASSERT_NE(action, nullptr);
    action->doAction("Open");
    // Who asks is answered before a window or a menu comes up.
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty());
    Settle();
    EXPECT_EQ(mDesk->Windows().OpenInspectors().size(), 1U);
    agenda->child(3)->actionInterface()->doAction("Delete");
    Settle();
    EXPECT_EQ(agenda->childCount(), 3);
}

TEST_F(OtherViewsTest, JobStrip_JobTakesAWhile_IsShownAndCancels)
{
    auto& window = Open();
    EXPECT_TRUE(window.Job().isHidden());
    const auto form = mDesk->Session().Forms()->Create({ .className = "ProgressBarForm",
        .title = "Loading activities",
        .rows = { { { .name = "Label1", .kind = ControlKind::Label, .text = "Loading" } },
            { { .name = "Label2", .kind = ControlKind::Label, .text = "Today" } },
            { { .name = "ProgressBar1", .kind = ControlKind::ProgressBar, .text = "" } },
            { { .name = "LoadCancel", .kind = ControlKind::Button, .text = "&Cancel" } } } });
    bool isCancelled = false;
    const auto clicks = form->Control("LoadCancel").As<Button>()->Subscribe({ .Click = [&] { isCancelled = true; } });
    form->Show();
    mDesk->Do([] {});
    EXPECT_TRUE(window.Job().isHidden());
    QTest::qWait(450);
    mDesk->Do([] {});
    EXPECT_FALSE(window.Job().isHidden());
    EXPECT_EQ(window.Job().Text(), "Loading \u00b7 Today");
    QTest::mouseClick(&window.Job().Cancel(), Qt::LeftButton);
    EXPECT_TRUE(isCancelled);
    form->Unload();
    mDesk->Do([] {});
    EXPECT_TRUE(window.Job().isHidden());
}

}
