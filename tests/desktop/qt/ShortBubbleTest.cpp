#include "desktop/qt/ShortBubble.h"

#include "DesktopFixture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/SelectionBar.h"
#include "review/ActivityReader.h"

#include <QHelpEvent>
#include <QListWidget>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QTest>

namespace tempodial {

/// Three short activities in a row, and one of an hour.
class ShortBubbleTest : public DesktopFixture
{
protected:
    ShortBubbleTest()
    {
        Add("Alpha", "Plan", "Writer", On(15, 14), On(15, 15));
        for (int i = 0; i < 3; ++i) {
            Add("", "Mail " + std::to_string(i), "Mail", On(15, 10, 2 * i), On(15, 10, 2 * i + 2));
        }
        mWindow = &Open();
        View().Zoom(-20);
    }
    AgendaView& View() { return mWindow->Agenda(); }
    /// A person clicks on the label of the run.
    QListWidget& OpenList()
    {
        const auto& scene = View().Scene();
        const auto box = View().InView(*scene.Runs().front().LabelBox(scene.LabelHeight()));
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, box.center().toPoint());
        return View().Bubble()->List();
    }
    /// A person rests with the pointer on the label of the run.
    void Rest()
    {
        const auto& scene = View().Scene();
        const auto place = View().InView(*scene.Runs().front().LabelBox(scene.LabelHeight())).center().toPoint();
        QHelpEvent rest(QEvent::ToolTip, place, View().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(View().viewport(), &rest);
    }

    MainWindow* mWindow;
};

TEST_F(ShortBubbleTest, Label_Clicked_ListsTheShortOnes)
{
    auto& list = OpenList();
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(1)->text(), "Mail 1 · 10:02 – 10:04 · No Project · Mail");
    EXPECT_EQ(mWindow->Selected().size(), 3U);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(mWindow->Foot().Title(), "Mail 1");
    Picture(list, "short-bubble");
}

TEST_F(ShortBubbleTest, Label_OthersComeDuringTheClick_ListsThoseThatWereClickedOn)
{
    const auto& scene = View().Scene();
    const auto place = View().InView(*scene.Runs().front().LabelBox(scene.LabelHeight())).center().toPoint();
    QTest::mousePress(View().viewport(), Qt::LeftButton, {}, place);
    mDesk->Do([this] {
        for (int i = 0; i < 3; ++i) {
            Add("", "Chat " + std::to_string(i), "Chat", On(14, 10, 2 * i), On(14, 10, 2 * i + 2));
        }
    });
    ASSERT_EQ(View().Scene().Runs().size(), 2U);
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, place);
    ASSERT_NE(View().Bubble(), nullptr);
    EXPECT_TRUE(View().Bubble()->List().item(0)->text().startsWith("Mail 0"));
}

TEST_F(ShortBubbleTest, Label_TheyGoDuringTheClick_OpensNothing)
{
    const auto& scene = View().Scene();
    const auto place = View().InView(*scene.Runs().front().LabelBox(scene.LabelHeight())).center().toPoint();
    QTest::mousePress(View().viewport(), Qt::LeftButton, {}, place);
    mWindow->DeleteSelected();
    EXPECT_TRUE(View().Scene().Runs().empty());
    QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(View().Bubble(), nullptr);
}

TEST_F(ShortBubbleTest, Key_SetsTheProjectOfTheRow)
{
    auto& list = OpenList();
    list.setCurrentRow(1);
    const auto project = mWindow->Foot().Projects().front();
    QTest::keyClick(&list, Qt::Key_1);
    EXPECT_EQ(ActivityAt(mDesk->Profile(), On(15, 10, 3))->project, project);
    Settle();
    EXPECT_EQ(View().Bubble(), nullptr);
}

TEST_F(ShortBubbleTest, EnterOnAStripe_OpensTheListAndEnterThereTheActivity)
{
    View().setFocus();
    View().SetFocusOn(1);
    QTest::keyClick(&View(), Qt::Key_Return);
    ASSERT_NE(View().Bubble(), nullptr);
    auto& list = View().Bubble()->List();
    list.setCurrentRow(2);
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_EQ(mDesk->Windows().OpenInspectors().size(), 1U);
    EXPECT_EQ(mDesk->Windows().OpenInspectors().front()->ShownItem()->Number(),
        ActivityAt(mDesk->Profile(), On(15, 10, 5))->number);
}

TEST_F(ShortBubbleTest, Pinch_Zooms)
{
    const auto before = View().Scene().Scale().PixelsPerMinute();
    const QPointF place(200, 300);
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, place, place,
        View().viewport()->mapToGlobal(place), 0.3, {});
    QCoreApplication::sendEvent(View().viewport(), &pinch);
    EXPECT_GT(View().Scene().Scale().PixelsPerMinute(), before * 1.2);
}

TEST_F(ShortBubbleTest, RestingOnTheLabel_OpensTheListWithoutTheFocusUntilThePointerLeaves)
{
    mWindow->activateWindow();
    View().setFocus();
    Settle();
    Rest();
    ASSERT_NE(View().Bubble(), nullptr);
    EXPECT_TRUE(View().Bubble()->IsResting());
    EXPECT_EQ(View().Bubble()->List().count(), 3);
    EXPECT_TRUE(View().hasFocus());
    EXPECT_TRUE(mWindow->Selected().empty());
    // Into the list it goes by what lies between, and from there away.
    QTest::mouseMove(View().viewport(), QPoint(2, 2));
    QEnterEvent enter({}, {}, {});
    QCoreApplication::sendEvent(View().Bubble(), &enter);
    QTest::qWait(500);
    ASSERT_NE(View().Bubble(), nullptr);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(View().Bubble(), &leave);
    EXPECT_TRUE(QTest::qWaitFor([this] { return View().Bubble() == nullptr; }));
}

TEST_F(ShortBubbleTest, RestingOnTheLabel_AClickOpensTheListWithTheFocus)
{
    Rest();
    OpenList();
    EXPECT_FALSE(View().Bubble()->IsResting());
    EXPECT_EQ(mWindow->Selected().size(), 3U);
}

TEST_F(ShortBubbleTest, RestingOnTheLabel_EscapeEndsIt)
{
    Rest();
    QTest::keyClick(&View(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(View().Bubble(), nullptr);
}

}
