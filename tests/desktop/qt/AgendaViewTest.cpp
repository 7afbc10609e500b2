#include "desktop/qt/AgendaView.h"

#include "WorkedWeekFixture.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "review/ActivityReader.h"

#include <gmock/gmock.h>

#include <QScrollBar>
#include <QTest>

namespace tempodial {

class AgendaViewTest : public WorkedWeekFixture
{
protected:
    AgendaView& View() { return mWindow->Agenda(); }
    std::size_t PieceOf(const QString& title)
    {
        for (std::size_t i = 0; i < View().Scene().Layout().Pieces().size(); ++i) {
            if (View().ActivityOf(i).description == title.toStdString()) {
                return i;
            }
        }
        ADD_FAILURE() << "nothing is called " << title.toStdString();
        return 0;
    }
    QRect Box(const QString& title)
    {
        const auto& scene = View().Scene();
        return View().InView(scene.Geometry().BoxOf(scene.Layout().Pieces()[PieceOf(title)])).toRect();
    }
    std::int64_t Number(const QString& title) { return View().ActivityOf(PieceOf(title)).number; }
    Activity Named(const QString& title) { return View().ActivityOf(PieceOf(title)); }
    void Click(const QString& title, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, modifiers, Box(title).center());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&View(), key, modifiers); }
    std::set<std::string> Selected()
    {
        std::set<std::string> titles;
        for (const auto& item : SelectedItems()) {
            titles.insert(item);
        }
        return titles;
    }
    /// What the product sees selected, by the words of the subjects' ends.
    std::vector<std::string> SelectedItems()
    {
        std::vector<std::string> titles;
        const auto selection = mDesk->Windows().OpenExplorers().front()->Selection();
        for (std::int32_t i = 1; i <= selection->Count(); ++i) {
            const auto subject = selection->Item(i)->Subject();
            for (const auto* title : { "Plan", "Inbox", "Sheet", "Letter" }) {
                if (subject.find(title) != std::string::npos) {
                    titles.emplace_back(title);
                }
            }
        }
        return titles;
    }
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers modifiers = {})
    {
        auto* viewport = View().viewport();
        QTest::mousePress(viewport, Qt::LeftButton, modifiers, from);
        // A drag begins with a small step.
        for (const auto& place : { from + QPoint(0, 12), to }) {
            QMouseEvent move(
                QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, modifiers);
            QCoreApplication::sendEvent(viewport, &move);
        }
        QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, to);
    }
    int Minutes(double minutes) { return static_cast<int>(View().Scene().Scale().PixelsPerMinute() * minutes); }
};

TEST_F(AgendaViewTest, Click_Activity_SelectsItInTheModel)
{
    Click("Inbox");
    EXPECT_EQ(Selected(), std::set<std::string> { "Inbox" });
    EXPECT_EQ(mWindow->Foot().Title(), "Inbox");
    Click("Plan", Qt::ControlModifier);
    EXPECT_EQ(Selected(), (std::set<std::string> { "Inbox", "Plan" }));
    Click("Plan", Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::set<std::string> { "Inbox" });
    Click("Sheet", Qt::ShiftModifier);
    EXPECT_EQ(Selected(), (std::set<std::string> { "Plan", "Inbox", "Sheet" }));
}

TEST_F(AgendaViewTest, Click_FreePlace_SelectsNothing)
{
    Click("Inbox");
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, Box("Sheet").center() + QPoint(0, Minutes(120)));
    EXPECT_TRUE(Selected().empty());
}

TEST_F(AgendaViewTest, RubberBand_OverDays_SelectsWhatItMeets)
{
    const auto from = Box("Plan").topLeft() - QPoint(0, Minutes(20));
    Drag(from, Box("Letter").center());
    EXPECT_EQ(Selected(), (std::set<std::string> { "Plan", "Letter" }));
}

TEST_F(AgendaViewTest, Drag_Activity_MovesItBySteps)
{
    const auto from = Box("Sheet").center();
    Drag(from, from - QPoint(0, Minutes(61)));
    EXPECT_EQ(Named("Sheet").start, On(15, 12));
    EXPECT_EQ(Named("Sheet").end, On(15, 13));
    QTest::keyClick(mWindow, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Named("Sheet").start, On(15, 13));
}

TEST_F(AgendaViewTest, Drag_BeyondTheEdge_ScrollsThere)
{
    const auto from = Box("Sheet").center();
    const auto top = [this] { return View().Scene().Scale().SecondAt(View().verticalScrollBar()->value()); };
    const auto before = top();
    Drag(from, QPoint(from.x(), View().viewport()->height() + Minutes(30)));
    EXPECT_GT(top(), before);
    EXPECT_GT(Named("Sheet").start, On(15, 13, 30));
}

TEST_F(AgendaViewTest, Drag_LowerEdge_MovesTheEndAlone)
{
    const auto box = Box("Sheet");
    const QPoint edge(box.center().x(), box.bottom() - 1);
    Drag(edge, edge + QPoint(0, Minutes(30)));
    EXPECT_EQ(Named("Sheet").start, On(15, 13));
    EXPECT_EQ(Named("Sheet").end, On(15, 14, 30));
}

TEST_F(AgendaViewTest, Drag_Escape_LeavesItWhereItWas)
{
    auto* viewport = View().viewport();
    const auto from = Box("Sheet").center();
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    const auto to = from + QPoint(0, Minutes(90));
    QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    Key(Qt::Key_Escape);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
    EXPECT_EQ(Named("Sheet").start, On(15, 13));
}

TEST_F(AgendaViewTest, Drag_OntoAProject_SetsIt)
{
    auto& rows = mWindow->Side().Projects().Rows();
    const auto row = std::find_if(rows.begin(), rows.end(), [](const auto* it) { return it->text() == "Alpha"; });
    ASSERT_NE(row, rows.end());
    const auto place = View().viewport()->mapFromGlobal((*row)->mapToGlobal((*row)->rect().center()));
    Drag(Box("Inbox").center(), place);
    EXPECT_EQ(Named("Inbox").project, "Alpha");
}

TEST_F(AgendaViewTest, DoubleClick_Activity_OpensIt)
{
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, Box("Plan").center());
    ASSERT_EQ(mDesk->Windows().OpenInspectors().size(), 1U);
}

TEST_F(AgendaViewTest, Arrows_GoAndSelect)
{
    View().setFocus();
    Key(Qt::Key_Down);
    EXPECT_EQ(Selected(), std::set<std::string> { "Plan" });
    Key(Qt::Key_Down);
    EXPECT_EQ(Selected(), std::set<std::string> { "Inbox" });
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), (std::set<std::string> { "Inbox", "Sheet" }));
    Key(Qt::Key_Right);
    EXPECT_EQ(Selected(), std::set<std::string> { "Letter" });
    Key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(Selected(), std::set<std::string> { "Letter" });
    Key(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(Selected().size(), 2U);
}

TEST_F(AgendaViewTest, AltArrow_MovesTheFocusedOne)
{
    Click("Sheet");
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Named("Sheet").start, On(15, 13, 5));
    Key(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(Named("Sheet").start, On(15, 13, 5));
    EXPECT_EQ(Named("Sheet").end, On(15, 14));
}

TEST_F(AgendaViewTest, DigitKey_SetsTheProjectAndUndoTakesItBack)
{
    Click("Inbox");
    const auto project = mWindow->Foot().Projects().front();
    Key(Qt::Key_1);
    EXPECT_EQ(Named("Inbox").project, project);
    EXPECT_TRUE(Named("Inbox").isProjectByHand);
    QTest::keyClick(mWindow, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(IsUnassigned(Named("Inbox")));
    EXPECT_TRUE(mWindow->Foot().Text().startsWith("Undone: "));
    QTest::keyClick(mWindow, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Named("Inbox").project, project);
}

TEST_F(AgendaViewTest, DeleteKey_DeletesAndUndoBringsBack)
{
    Click("Inbox");
    Key(Qt::Key_Delete);
    EXPECT_EQ(View().Cards().size(), 3U);
    EXPECT_TRUE(mWindow->Selected().empty());
    QTest::keyClick(mWindow, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(View().Cards().size(), 4U);
}

TEST_F(AgendaViewTest, CtrlWheel_KeepsTheMomentUnderThePointer)
{
    const QPointF place(200, 300);
    const auto before = View().Scene().Scale().SecondAt(View().InScene(place).y());
    QWheelEvent wheel(place, View().viewport()->mapToGlobal(place), {}, QPoint(0, 240), Qt::NoButton,
        Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(View().viewport(), &wheel);
    EXPECT_NEAR(View().Scene().Scale().SecondAt(View().InScene(place).y()), before, 60);
    EXPECT_GT(mDesk->Settings().zoom, 0);
    QTest::keyClick(mWindow, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(mDesk->Settings().zoom, DesktopSettings::FittingZoom);
}

TEST_F(AgendaViewTest, Zoom_ByNotches_IsKeptOnceWhenTheyAreOver)
{
    const auto keptText = [this] { return mFolder.Read("config/desktop.toml"); };
    mDesk->Remember([](DesktopSettings& settings) { settings.notifies = false; });
    const auto before = keptText();
    View().Zoom(1);
    View().Zoom(1);
    EXPECT_EQ(keptText(), before);
    EXPECT_TRUE(QTest::qWaitFor([&] { return keptText() != before; }));
    EXPECT_NE(keptText().find("zoom = " + std::to_string(mDesk->Settings().zoom)), std::string::npos);
}

TEST_F(AgendaViewTest, ProjectRow_Clicked_FadesOthersAndEscapeEndsIt)
{
    auto& rows = mWindow->Side().Projects().Rows();
    const auto row = std::find_if(rows.begin(), rows.end(), [](const auto* it) { return it->text() == "Beta"; });
    ASSERT_NE(row, rows.end());
    QTest::mouseClick(*row, Qt::LeftButton);
    const auto faded = [this](const QString& title) {
        return View().Cards()[View().Scene().Layout().Pieces()[PieceOf(title)].activity].isFaded;
    };
    EXPECT_TRUE(faded("Plan"));
    EXPECT_FALSE(faded("Sheet"));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(faded("Plan"));
}

TEST_F(AgendaViewTest, Failure_WhileSomethingIsSelected_StaysUntilOthersAre)
{
    Click("Inbox");
    mDesk->Do([] { throw std::runtime_error("it can't be done: try later"); });
    EXPECT_EQ(mWindow->Foot().Text(), "it can't be done: try later");
    Click("Plan");
    EXPECT_TRUE(mWindow->Foot().Text().startsWith("Wed"));
}

TEST_F(AgendaViewTest, Why_SaysWhereTheProjectIsFrom)
{
    Click("Inbox");
    Key(Qt::Key_Y);
    EXPECT_EQ(mWindow->Foot().Text(), "No rule of a project matches it.");
}

TEST_F(AgendaViewTest, Drag_OverTheHours_StaysInTheFirstDay)
{
    const auto number = Number("Plan");
    Drag(Box("Plan").center(), QPoint(5, Box("Plan").center().y()));
    const auto moved = ActivityNumbered(mDesk->Profile(), number).value();
    EXPECT_EQ(moved.start, On(13, 9));
    EXPECT_EQ(moved.end, On(13, 10));
}

TEST_F(AgendaViewTest, ShiftClick_AboveTheFocus_SelectsAllBetween)
{
    Click("Sheet");
    Click("Plan", Qt::ShiftModifier);
    EXPECT_EQ(Selected(), (std::set<std::string> { "Plan", "Inbox", "Sheet" }));
}

TEST_F(AgendaViewTest, Band_Escape_SelectsNothing)
{
    auto* viewport = View().viewport();
    const auto from = Box("Plan").topRight() + QPoint(8, -20);
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    for (const auto& place : { from + QPoint(0, 12), Box("Sheet").bottomLeft() }) {
        QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport, &move);
    }
    EXPECT_FALSE(View().Selected().empty());
    Key(Qt::Key_Escape);
    EXPECT_TRUE(View().Selected().empty());
    EXPECT_TRUE(Selected().empty());
}

TEST_F(AgendaViewTest, Zoom_SmallSteps_AddUp)
{
    View().Zoom(1);
    const auto before = View().Scene().Scale().PixelsPerMinute();
    for (int i = 0; i < 100; ++i) {
        View().Zoom(0.01);
    }
    EXPECT_GT(View().Scene().Scale().PixelsPerMinute(), before * 1.05);
}

TEST_F(AgendaViewTest, ToolTip_IsTheSubjectThatOtherProgramsShow)
{
    auto& view = mWindow->Agenda();
    const auto& activity = view.ActivityOf(0);
    const auto subject = ItemNumbered(mDesk->Profile(), activity.number)->Subject();
    EXPECT_THAT(subject, testing::StartsWith("[Alpha] "));
    EXPECT_THAT(view.ToolTipOf(activity).toStdString(), testing::HasSubstr(subject));
    EXPECT_THAT(view.ToolTipOf(activity).toStdString(), testing::HasSubstr("09:00 – 10:00 · 1 h"));
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_THAT(view.ToolTipOf(activity).toStdString(), testing::HasSubstr("[Alpha] Writer"));
    EXPECT_THAT(view.ToolTipOf(activity).toStdString(), testing::Not(testing::HasSubstr("Plan")));
}

}
