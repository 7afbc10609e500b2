#include "DesktopFixture.h"
#include "desktop/qt/ActivityList.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/JobStrip.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SortOutView.h"
#include "platform/controls/Button.h"
#include "platform/objectmodel/Views.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

#include <gmock/gmock.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

namespace tempodial {

/// The list and the view that sorts out.
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

TEST_F(OtherViewsTest, List_OthersComeAndGo_TheCurrentRowStaysOnItsActivity)
{
    auto& window = Open();
    window.Show(View::List, On(15, 0));
    auto& list = window.List();
    const auto current = [&list] { return *list.Model().ActivityOf(list.currentIndex().row()); };
    list.setCurrentIndex(list.model()->index(1, 0));
    const auto plan = current().number;
    mDesk->Do([this] { Add("Alpha", "Earlier", "Writer", On(14, 9), On(14, 10)); });
    EXPECT_EQ(current().number, plan);
    list.setCurrentIndex(list.model()->index(4, 0));
    const auto news = current();
    EXPECT_EQ(news.description, "News");
    mDesk->Do([&] { LogDoings(mDesk->Session()).Delete({ plan }); });
    EXPECT_EQ(current().number, news.number);
}

TEST_F(OtherViewsTest, List_ViewIsRefreshed_HasItsWidthsAndElseThoseOfThePerson)
{
    auto& window = Open();
    window.Show(View::List, On(15, 0));
    constexpr int Dragged = 77;
    auto* header = window.List().header();
    header->resizeSection(1, Dragged);
    mDesk->Do([this] { Add("Alpha", "Sheet", "Calc", On(15, 13), On(15, 14)); });
    EXPECT_EQ(header->sectionSize(1), Dragged);
    const auto views = WorkLogOf(mDesk->Profile())->Views();
    const auto view = views->ItemNamed(std::string(ProductName) + " List");
    ASSERT_TRUE(view);
    auto xml = view->XML();
    const auto width = std::to_string(window.List().Model().Layout().columns[1].width);
    const auto place = xml.find("<width>" + width + "</width>");
    ASSERT_NE(place, std::string::npos) << xml;
    mDesk->Do([&] {
        view->SetXML(xml.replace(place, width.size() + 15, "<width>123</width>"));
        view->Save();
        Add("Alpha", "Sheet", "Calc", On(15, 14), On(15, 15));
    });
    EXPECT_EQ(header->sectionSize(1), 123);
}

TEST_F(OtherViewsTest, List_Shown_TheAgendaBehindItHoldsNothing)
{
    auto& window = Open();
    window.Show(View::List, On(15, 0));
    EXPECT_TRUE(window.Agenda().Scene().Activities().empty());
    EXPECT_TRUE(window.Agenda().Cards().empty());
    window.Agenda().Zoom(1);
    mDesk->Change([](DesktopSettings& settings) { settings.appearance = DesktopSettings::Appearance::Dark; });
    mDesk->Do([this] { Add("Alpha", "Sheet", "Calc", On(15, 13), On(15, 14)); });
    EXPECT_TRUE(window.Agenda().Cards().empty());
    window.Agenda().Zoom(-1);
    window.Show(View::Week);
    EXPECT_EQ(window.Agenda().Cards().size(), 5U);
    EXPECT_EQ(window.Agenda().Cards().size(), window.Agenda().Scene().Activities().size());
}

TEST_F(OtherViewsTest, List_ShownForAMoment_TheAgendaIsScrolledAsItWas)
{
    auto& window = Open();
    window.resize(900, 400);
    Settle();
    auto* bar = window.Agenda().verticalScrollBar();
    bar->setValue(bar->maximum());
    const auto scrolled = bar->value();
    ASSERT_GT(scrolled, 0);
    window.Show(View::List, On(15, 0));
    Settle();
    window.Show(View::Week);
    Settle();
    EXPECT_EQ(bar->value(), scrolled);
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

TEST_F(OtherViewsTest, EmptyDays_EachViewSaysSoAndLeadsToTheLast)
{
    auto& window = Open();
    for (const auto view : { View::Week, View::List, View::SortOut }) {
        window.Show(view, On(27, 0));
        auto& note = view == View::Week ? window.Agenda().Note()
                                        : (view == View::List ? window.List().Note() : window.SortOut().Note());
        EXPECT_TRUE(note.isVisible());
        EXPECT_TRUE(note.text().contains("Nothing was recorded in these days.")) << note.text().toStdString();
        note.linkActivated("#");
        EXPECT_FALSE(note.isVisible());
        EXPECT_EQ(window.Log().Days().first, On(13, 0));
    }
}

TEST_F(OtherViewsTest, SearchInTheWholeLog_InVain_SaysSo)
{
    auto& window = Open();
    window.Bar().SearchField().setText("nowhere");
    QTest::keyClick(&window.Bar().SearchField(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.List().Note().text().contains("the whole log"); }));
    EXPECT_TRUE(window.List().Note().isVisible());
}

}
