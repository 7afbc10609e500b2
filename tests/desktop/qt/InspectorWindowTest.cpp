#include "desktop/qt/InspectorWindow.h"

#include "WorkedWeekFixture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/CommandBarView.h"
#include "desktop/qt/PageView.h"
#include "desktop/qt/SelectionBar.h"
#include "review/ActivityReader.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

namespace tempodial {

class InspectorWindowTest : public WorkedWeekFixture
{
protected:
    std::vector<Activity> Activities() { return ActivitiesStartingIn(mDesk->Profile(), { On(15, 0), On(15, 0) }); }
    /// Opens the window of an activity of that day.
    InspectorWindow& OpenItem(std::size_t place)
    {
        mDesk->Do([&] { LogDoings(mDesk->Session()).Open(Activities()[place].number); });
        Front().activateWindow();
        Settle();
        return Front();
    }
    InspectorWindow& Front()
    {
        auto* window = mWindows->WindowOf(mDesk->Windows().OpenInspectors().back());
        return dynamic_cast<InspectorWindow&>(*window);
    }
    static QLineEdit& Line(InspectorWindow& window, const char* name)
    {
        return *qobject_cast<QLineEdit*>(window.Page()->WidgetOf(name));
    }
    static void Retype(QLineEdit& line, const char* text)
    {
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    Ref<StoreItem> Item() { return mDesk->Windows().OpenInspectors().back()->ShownItem(); }
    std::size_t OpenCount() { return mDesk->Windows().OpenInspectors().size(); }
};

TEST_F(InspectorWindowTest, Activity_Opened_ShowsItsPageAndWhy)
{
    auto& window = OpenItem(0);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle().toStdString(), mDesk->Windows().OpenInspectors().back()->Caption());
    EXPECT_EQ(Line(window, "SubjectBox").text(), "Plan");
    EXPECT_EQ(Line(window, "StartBox").text().toStdString(), mDesk->Formats()->General(On(15, 9)));
    EXPECT_EQ(qobject_cast<QComboBox*>(window.Page()->WidgetOf("ProjectComboBox"))->currentText(), "Alpha");
    EXPECT_TRUE(window.Why().text().startsWith("Why? ")) << window.Why().text().toStdString();
}

TEST_F(InspectorWindowTest, LongTitle_InTheKeywordList_LeavesTheWindowItsWidth)
{
    const auto usual = OpenItem(0).sizeHint().width();
    Add("", std::string(100000, 'W'), "Mail", On(15, 15), On(15, 16));
    auto& window = OpenItem(3);
    EXPECT_LT(window.sizeHint().width(), 2 * usual);
    for (const auto* box : window.Page()->findChildren<QComboBox*>()) {
        EXPECT_LT(box->minimumSizeHint().width(), usual);
    }
}

TEST_F(InspectorWindowTest, Field_Left_WritesTheItem)
{
    auto& window = OpenItem(0);
    auto& line = Line(window, "SubjectBox");
    Retype(line, "Site plan");
    EXPECT_FALSE(Item()->HasChanges());
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_TRUE(Item()->HasChanges());
    EXPECT_TRUE(window.windowTitle().startsWith(QChar(0x2022)));
}

TEST_F(InspectorWindowTest, Field_TypedAndPaused_WritesTheItem)
{
    auto& window = OpenItem(0);
    Retype(Line(window, "SubjectBox"), "Site plan");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Item()->HasChanges(); }, 20 * PageView::Pause));
    EXPECT_EQ(Line(window, "SubjectBox").text(), "Site plan");
}

TEST_F(InspectorWindowTest, Moment_Paused_IsWrittenOnlyWhenLeft)
{
    auto& window = OpenItem(0);
    auto& line = Line(window, "EndBox");
    Retype(line, "15/11/2006 09:30");
    QTest::qWait(2 * PageView::Pause);
    EXPECT_FALSE(Item()->HasChanges());
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_EQ(Item()->End(), On(15, 9, 30));
}

TEST_F(InspectorWindowTest, Moment_CantBeRead_IsPutBackWithASentence)
{
    auto& window = OpenItem(0);
    auto& line = Line(window, "EndBox");
    const auto before = line.text();
    Retype(line, "soon");
    QTest::keyClick(&line, Qt::Key_Tab);
    EXPECT_EQ(line.text(), before);
    EXPECT_FALSE(window.Notice().isEmpty());
    EXPECT_EQ(Item()->End(), On(15, 10));
}

TEST_F(InspectorWindowTest, SaveAndClose_WhileTyping_SavesWhatIsSeenAsAStep)
{
    auto& window = OpenItem(0);
    Retype(Line(window, "SubjectBox"), "Site plan");
    QTest::mouseClick(window.Commands().ButtonOf("Save and Close"), Qt::LeftButton);
    EXPECT_EQ(OpenCount(), 0U);
    EXPECT_EQ(Activities()[0].description, "Site plan");
    mDesk->Do([this] { LogDoings(mDesk->Session()).Undo(); });
    EXPECT_EQ(Activities()[0].description, "Plan");
}

TEST_F(InspectorWindowTest, Delete_Clicked_TakesItemAndWindow)
{
    auto& window = OpenItem(0);
    QTest::mouseClick(window.Commands().ButtonOf("Delete"), Qt::LeftButton);
    EXPECT_EQ(OpenCount(), 0U);
    EXPECT_EQ(Activities().size(), 2U);
}

TEST_F(InspectorWindowTest, Frame_UnsavedAndAskedToStay_Stays)
{
    auto& window = OpenItem(0);
    Retype(Line(window, "SubjectBox"), "Site plan");
    mMessages->NextAnswer(Answer::Cancel);
    window.close();
    EXPECT_EQ(mMessages->shown.size(), 1U);
    EXPECT_EQ(OpenCount(), 1U);
    EXPECT_TRUE(window.isVisible());
    mMessages->NextAnswer(Answer::No);
    window.close();
    EXPECT_EQ(OpenCount(), 0U);
    EXPECT_EQ(Activities()[0].description, "Plan");
}

TEST_F(InspectorWindowTest, NextItem_Clicked_ShowsTheOneBehind)
{
    auto& window = OpenItem(0);
    QTest::mouseClick(window.Commands().ButtonOf("Next Item"), Qt::LeftButton, {}, QPoint(5, 5));
    ASSERT_EQ(OpenCount(), 1U);
    EXPECT_EQ(Line(Front(), "SubjectBox").text(), "Inbox");
}

TEST_F(InspectorWindowTest, PreviousItem_List_HasThoseBeforeTheNearestFirst)
{
    auto& window = OpenItem(2);
    auto* menu = window.Commands().ButtonOf("Previous Item")->menu();
    Q_EMIT menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_TRUE(menu->actions()[0]->text().contains("Inbox"));
    menu->actions()[1]->trigger();
    EXPECT_EQ(Line(Front(), "SubjectBox").text(), "Plan");
}

TEST_F(InspectorWindowTest, Item_ChangedByCode_ShowsInItsWindow)
{
    auto& window = OpenItem(0);
    mDesk->Do([this] {
        Item()->SetBody("one\r\ntwo");
        Item()->SetEnd(On(15, 9, 45));
    });
    EXPECT_EQ(window.Body().toPlainText(), "one\ntwo");
    EXPECT_EQ(Line(window, "EndBox").text().toStdString(), mDesk->Formats()->General(On(15, 9, 45)));
}

TEST_F(InspectorWindowTest, Appointment_HasNoPage_ShowsItsTimes)
{
    mDesk->Do([this] {
        const auto folder = mDesk->Session().Mailbox()->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar);
        const auto item
            = mDesk->Windows().User().Create(folder, { .subject = "Dentist", .start = On(16, 8), .end = On(16, 9) });
        mDesk->Windows().OpenInspector(item);
    });
    auto& window = Front();
    EXPECT_EQ(window.Page(), nullptr);
    EXPECT_TRUE(window.windowTitle().contains("Dentist"));
}

TEST_F(InspectorWindowTest, Activity_InAllColours_IsDrawnWhole)
{
    auto& window = OpenItem(0);
    mDesk->Do([this] { Item()->SetBody("09:00 Plan of the site\r\n09:20 Plan of the site, page 2"); });
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, name] : { std::pair(Look::Light, "light"), std::pair(Look::Dark, "dark") }) {
        mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
        Picture(window, std::string("activity-") + name);
        for (const auto* widget : window.Page()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            EXPECT_TRUE(window.Page()->rect().contains(widget->geometry())) << widget->objectName().toStdString();
        }
    }
}

TEST_F(InspectorWindowTest, Activity_OpenedTwice_ComesToTheFrontWithWhatIsTyped)
{
    auto& window = OpenItem(0);
    const auto first = mDesk->Windows().OpenInspectors().front();
    Retype(Line(window, "SubjectBox"), "Site plan");
    OpenItem(1);
    mDesk->Do([&] { LogDoings(mDesk->Session()).Open(Activities()[0].number); });
    EXPECT_EQ(OpenCount(), 2U);
    EXPECT_EQ(mDesk->Windows().ActiveInspector(), first);
    EXPECT_EQ(Line(window, "SubjectBox").text(), "Site plan");
}

TEST_F(InspectorWindowTest, UndoOfItsStep_Unsaved_IsRefusedAndKeepsWhatIsTyped)
{
    const auto plan = Activities()[0].number;
    mWindow->Select({ plan });
    mWindow->SetProject("Beta");
    auto& window = OpenItem(0);
    auto& line = Line(window, "SubjectBox");
    Retype(line, "Site plan");
    QTest::keyClick(&line, Qt::Key_Tab);
    mWindow->Undo();
    EXPECT_TRUE(mWindow->Foot().Said().contains("save them or close its window"));
    EXPECT_EQ(line.text(), "Site plan");
    mMessages->NextAnswer(Answer::No);
    window.close();
    mWindow->Undo();
    EXPECT_EQ(ActivityNumbered(mDesk->Profile(), plan)->project, "Alpha");
}

TEST_F(InspectorWindowTest, Dragged_Unsaved_StaysAndSavesNothing)
{
    const auto plan = Activities()[0].number;
    auto& line = Line(OpenItem(0), "SubjectBox");
    Retype(line, "Site plan");
    QTest::keyClick(&line, Qt::Key_Tab);
    mWindow->Agenda().mWishes.move(plan, { On(15, 8), On(15, 9) });
    EXPECT_TRUE(mWindow->Foot().Said().contains("save them or close its window"));
    EXPECT_EQ(Activities()[0].description, "Plan");
    EXPECT_EQ(Activities()[0].start, On(15, 9));
    EXPECT_TRUE(Item()->HasChanges());
}

TEST_F(InspectorWindowTest, TitlesHidden_StandNeitherInTheWindowsTitleNorInItsListsNorInWhy)
{
    mDesk->Session().AddIn().UpdateorAddProject("Alpha", "plan", "", "", "1", false);
    auto& window = OpenItem(1);
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    EXPECT_EQ(window.windowTitle(), "Mail");
    auto* menu = window.Commands().ButtonOf("Previous Item")->menu();
    Q_EMIT menu->aboutToShow();
    QString texts = window.Why().text();
    for (const auto* action : menu->actions()) {
        texts += action->text();
    }
    EXPECT_TRUE(texts.contains("Writer")) << texts.toStdString();
    EXPECT_FALSE(texts.contains("plan", Qt::CaseInsensitive)) << texts.toStdString();
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = false; });
    EXPECT_EQ(window.windowTitle().toStdString(), mDesk->Windows().OpenInspectors().back()->Caption());
}

}
