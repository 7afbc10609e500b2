#include "DesktopFixture.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "desktop/qt/SortOutView.h"
#include "review/ActivityReader.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace tempodial {

using testing::ElementsAre;

/// What a person does reaches what they see, and nothing else.
class SeenWorkTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;

    SeenWorkTest()
    {
        Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
        Add("", "Inbox", "Mail", On(15, 10), On(15, 12));
        Add("", "News", "Browser", On(16, 11), On(16, 12));
    }

    std::int64_t Number(MainWindow& window, const std::string& description)
    {
        for (const auto& activity : window.Log().All()) {
            if (activity.description == description) {
                return activity.number;
            }
        }
        ADD_FAILURE() << "nothing is called " << description;
        return 0;
    }
    std::string ProjectOf(std::int64_t number) { return ActivityNumbered(mDesk->Profile(), number).value().project; }
    int SelectedInModel() { return mDesk->Windows().OpenExplorers().front()->Selection()->Count(); }
};

TEST_F(SeenWorkTest, SearchHidesASelectedOne_TheProjectIsSetOnTheOther)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    const auto inbox = Number(window, "Inbox");
    window.Select({ plan, inbox });
    QTest::keyClicks(&window.Bar().SearchField(), "inbox");
    EXPECT_EQ(SelectedInModel(), 1);
    window.SetProject("Beta");
    EXPECT_EQ(ProjectOf(inbox), "Beta");
    EXPECT_EQ(ProjectOf(plan), "Alpha");
}

TEST_F(SeenWorkTest, OtherDaysAreShown_NothingUnseenStaysSelected)
{
    auto& window = Open();
    window.Select({ Number(window, "Plan") });
    window.Page(1);
    EXPECT_EQ(SelectedInModel(), 0);
    EXPECT_TRUE(window.Selected().empty());
}

TEST_F(SeenWorkTest, ListGrowsShorter_NothingUnseenStaysSelected)
{
    Add("Alpha", "Older", "Writer", On(1, 9), On(1, 10));
    auto& window = Open();
    const auto setSpan = [this](DesktopSettings::ListSpan span) {
        mDesk->Change([span](DesktopSettings& settings) { settings.listSpan = span; });
    };
    setSpan(DesktopSettings::ListSpan::Year);
    window.Show(View::List);
    window.SelectAll();
    ASSERT_EQ(SelectedInModel(), 4);
    setSpan(DesktopSettings::ListSpan::Week);
    EXPECT_EQ(SelectedInModel(), 3);
    EXPECT_EQ(window.Selected().size(), 3U);
}

TEST_F(SeenWorkTest, FoundInTheWholeLogThenTheSameWeek_NothingUnseenStaysSelected)
{
    Add("Alpha", "Older", "Writer", On(1, 9), On(1, 10));
    auto& window = Open();
    window.Show(View::List);
    QTest::keyClicks(&window.Bar().SearchField(), "alpha");
    QTest::keyClick(&window.Bar().SearchField(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.Foot().Title().contains("found in the whole log"); }));
    window.SelectAll();
    ASSERT_EQ(SelectedInModel(), 2);
    window.Show(View::Week);
    EXPECT_EQ(SelectedInModel(), 1);
}

TEST_F(SeenWorkTest, MovedOutOfTheDays_IsSelectedNoMore)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    const auto inbox = Number(window, "Inbox");
    window.Select({ plan, inbox });
    mDesk->Do([&] { LogDoings(mDesk->Session()).Move(plan, { On(25, 9), On(25, 10) }); });
    EXPECT_EQ(SelectedInModel(), 1);
    EXPECT_THAT(window.Selected(), ElementsAre(inbox));
}

TEST_F(SeenWorkTest, MovedDuringAJob_StaysSelectedUntilItIsOver)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    window.Select({ plan, Number(window, "Inbox") });
    mDesk->Do([&] {
        LogDoings(mDesk->Session()).Move(plan, { On(25, 9), On(25, 10) });
        mDesk->Show();
        EXPECT_EQ(SelectedInModel(), 2);
    });
    EXPECT_EQ(SelectedInModel(), 1);
}

TEST_F(SeenWorkTest, DeletedOneInTheSelection_TheOthersGetTheProject)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    const auto inbox = Number(window, "Inbox");
    window.Select({ plan, inbox });
    mDesk->Do([&] { mDesk->Windows().User().Delete(ItemNumbered(mDesk->Profile(), plan)); });
    ASSERT_EQ(SelectedInModel(), 2) << "the model has let it go";
    window.SetProject("Beta");
    EXPECT_EQ(ProjectOf(inbox), "Beta");
    window.Undo();
    EXPECT_EQ(ProjectOf(inbox), NoProject);
}

TEST_F(SeenWorkTest, AnotherWindowInFront_TheProjectIsSetOnWhatThisOneShows)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    const auto inbox = Number(window, "Inbox");
    window.Select({ plan });
    mDesk->Do([this] { mDesk->Windows().OpenExplorer(WorkLogOf(mDesk->Profile())); });
    mWindows->WindowOf(mDesk->Windows().OpenExplorers().back())->Select({ inbox });
    window.SetProject("Beta");
    EXPECT_EQ(ProjectOf(plan), "Beta");
    EXPECT_EQ(ProjectOf(inbox), NoProject);
}

TEST_F(SeenWorkTest, OpenOneInTheSelection_IsPassedOverAndTheBarSaysSo)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    const auto inbox = Number(window, "Inbox");
    mDesk->Do([&] { LogDoings(mDesk->Session()).Open(plan); });
    window.Select({ plan, inbox });
    window.SetProject("Beta");
    EXPECT_EQ(ProjectOf(plan), "Alpha");
    EXPECT_EQ(ProjectOf(inbox), "Beta");
    EXPECT_EQ(window.Foot().Said().toStdString(), PassedOverText(1));
    window.Say({});
    window.SetProject("Alpha");
    EXPECT_EQ(window.Foot().Said(), "") << "the open one has that project";
}

TEST_F(SeenWorkTest, SortOut_SelectAll_TakesThoseWithoutAProject)
{
    auto& window = Open();
    window.Show(View::SortOut);
    window.SelectAll();
    EXPECT_THAT(window.Selected(), ElementsAre(Number(window, "Inbox"), Number(window, "News")));
}

TEST_F(SeenWorkTest, OtherViewOfTheSameDays_KeepsTheSelection)
{
    auto& window = Open();
    window.Select({ Number(window, "Plan") });
    window.Show(View::List, On(17, 0));
    EXPECT_EQ(SelectedInModel(), 1);
}

TEST_F(SeenWorkTest, Search_HidesWork_ItsTimeIsNoGap)
{
    Add("", "Late mail", "Mail", On(15, 15), On(15, 16));
    Add("Alpha", "Sheet", "Calc", On(15, 12), On(15, 15));
    auto& window = Open();
    QTest::keyClicks(&window.Bar().SearchField(), "mail");
    ASSERT_EQ(window.Agenda().Cards().size(), 2U);
    EXPECT_TRUE(window.Agenda().Scene().Gaps().empty());
    // A new activity would lie on what isn't seen.
    bool isCreated = false;
    window.Agenda().mWishes.create = [&](const TimeSpan&) { isCreated = true; };
    const auto& geometry = window.Agenda().Scene().Geometry();
    const auto column = geometry.Column(2);
    const auto place
        = window.Agenda().InView({ column.left + column.width / 2, geometry.Scale().PlaceOf(13 * 3600), 1, 1 });
    QTest::mouseDClick(window.Agenda().viewport(), Qt::LeftButton, {}, place.center().toPoint());
    EXPECT_FALSE(isCreated);
}

TEST_F(SeenWorkTest, SearchField_Escape_ShowsAllAgain)
{
    auto& window = Open();
    auto& field = window.Bar().SearchField();
    field.setFocus();
    QTest::keyClicks(&field, "inbox");
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(window.Agenda().Cards().size(), 3U);
}

TEST_F(SeenWorkTest, FoundInTheWholeLog_ChangesAreSeen)
{
    auto& window = Open();
    const auto inbox = Number(window, "Inbox");
    const auto news = Number(window, "News");
    QTest::keyClicks(&window.Bar().SearchField(), "i");
    QTest::keyClick(&window.Bar().SearchField(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.Foot().Title().contains("found in the whole log"); }));
    window.Select({ inbox });
    window.SetProject("Beta");
    const auto selected = window.SelectedActivities();
    ASSERT_EQ(selected.size(), 1U);
    EXPECT_EQ(selected.front().project, "Beta");
    window.DeleteSelected();
    const auto& shown = window.ShownActivities();
    EXPECT_TRUE(std::none_of(
        shown.begin(), shown.end(), [inbox](const Activity& activity) { return activity.number == inbox; }));
    EXPECT_NE(ActivityNumbered(mDesk->Profile(), news), std::nullopt);
}

TEST_F(SeenWorkTest, SortOut_ALargerGroupComes_TheChosenOneStaysChosen)
{
    auto& window = Open();
    window.Show(View::SortOut, On(15, 0));
    auto& list = window.SortOut().List();
    list.setCurrentItem(list.topLevelItem(1));
    list.topLevelItem(1)->setExpanded(true);
    const auto news = Number(window, "News");
    ASSERT_THAT(window.Selected(), ElementsAre(news));
    mDesk->Do([this] { Add("", "Page", "Browser", On(15, 13), On(15, 18)); });
    Settle();
    EXPECT_EQ(window.SortOut().Groups().size(), 3U);
    EXPECT_THAT(window.Selected(), ElementsAre(news));
    EXPECT_TRUE(list.currentItem()->isExpanded());
    list.setCurrentItem(list.currentItem()->child(0));
    mDesk->Do([this] { Add("", "Post", "Browser", On(16, 13), On(16, 19)); });
    Settle();
    EXPECT_THAT(window.Selected(), ElementsAre(news));
    EXPECT_NE(list.currentItem()->parent(), nullptr);
}

TEST_F(SeenWorkTest, RedoTwice_DoesBothAgain)
{
    auto& window = Open();
    const auto plan = Number(window, "Plan");
    window.Select({ plan });
    window.SetProject("Beta");
    window.SetProject("Gamma");
    window.Undo();
    window.Undo();
    EXPECT_EQ(ProjectOf(plan), "Alpha");
    window.Redo();
    EXPECT_EQ(ProjectOf(plan), "Beta");
    window.Redo();
    EXPECT_EQ(ProjectOf(plan), "Gamma");
    window.Redo();
    EXPECT_EQ(ProjectOf(plan), "Gamma");
    EXPECT_TRUE(window.Foot().Text().contains("there is nothing to do again"));
    window.Undo();
    EXPECT_EQ(ProjectOf(plan), "Beta");
    window.SetProject("Delta");
    window.Redo();
    EXPECT_EQ(ProjectOf(plan), "Delta");
}

TEST_F(SeenWorkTest, Digit_WithShift_SetsTheProjectToo)
{
    auto& window = Open();
    const auto inbox = Number(window, "Inbox");
    window.Select({ inbox });
    ASSERT_FALSE(window.Foot().Projects().empty());
    const auto first = window.Foot().Projects().front();
    QTest::keyClick(&window.Agenda(), Qt::Key_1, Qt::ShiftModifier);
    EXPECT_EQ(ProjectOf(inbox), first);
}

TEST_F(SeenWorkTest, LongTitle_Selected_IsElidedAndLaterWhole)
{
    const std::string title(400, 'w');
    Add("Alpha", title, "Writer", On(14, 9), On(14, 10));
    auto& window = Open();
    window.Select({ Number(window, title) });
    const auto* label = window.Foot().findChildren<QLabel*>().front();
    EXPECT_TRUE(label->text().endsWith("\u2026"));
    EXPECT_LE(QFontMetrics(label->font()).horizontalAdvance(label->text()), label->width());
}

TEST_F(SeenWorkTest, FocusOnTheLaterDay_LogChanges_StaysOnThatDay)
{
    Add("Alpha", "Night", "Writer", On(15, 23), On(16, 1));
    auto& window = Open();
    const auto& pieces = window.Agenda().Scene().Layout().Pieces();
    std::size_t last = 0;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        last = window.Agenda().ActivityOf(i).description == "Night" ? i : last;
    }
    ASSERT_EQ(pieces[last].day, 3);
    window.Agenda().SetFocusOn(last);
    mDesk->Do([this] { Add("Alpha", "Early", "Writer", On(14, 6), On(14, 7)); });
    ASSERT_TRUE(window.Agenda().Focus());
    const auto focus = *window.Agenda().Focus();
    EXPECT_EQ(window.Agenda().ActivityOf(focus).description, "Night");
    EXPECT_EQ(window.Agenda().Scene().Layout().Pieces()[focus].day, 3);
}

TEST_F(SeenWorkTest, OnlyAProjectThatOtherDaysLack_IsForgottenThere)
{
    auto& window = Open();
    auto& projects = window.Side().Projects();
    QPushButton* row = nullptr;
    for (auto* button : projects.findChildren<QPushButton*>()) {
        row = button->isCheckable() && button->isVisible() ? button : row;
    }
    ASSERT_NE(row, nullptr);
    row->click();
    ASSERT_TRUE(row->isChecked());
    window.Page(5);
    EXPECT_FALSE(projects.ShowAll()) << "nothing is left that could fade all";
}

}
