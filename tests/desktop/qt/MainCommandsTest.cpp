#include "desktop/qt/MainCommands.h"

#include "DesktopFixture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/LogPage.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "desktop/qt/SortOutView.h"
#include "host/windows/BuiltInCommand.h"
#include "review/ActivityReader.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace tempodial {

class MainCommandsTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;

    MainWindow& OpenWithWork()
    {
        Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
        Add("", "Inbox", "Mail", On(16, 9), On(16, 9, 30));
        auto& window = Open();
        window.activateWindow();
        Settle();
        return window;
    }
    /// The host's command is clicked in the window's menu.
    void Click(std::int32_t command)
    {
        const auto& window = *mWindows->WindowOf(mDesk->Windows().OpenExplorers().front());
        const auto caption = QString::fromStdString(BuiltInCommand::Of(command)->caption);
        for (const auto* menu : window.menuBar()->findChildren<QMenu*>()) {
            for (auto* action : menu->actions()) {
                if (action->text() == caption && action->menu() == nullptr) {
                    action->trigger();
                    return;
                }
            }
        }
        ADD_FAILURE() << caption.toStdString();
    }
    /// Does something with the dialog that comes.
    template <class Dialog> void AtDialog(std::function<void(Dialog&)> work)
    {
        QTimer::singleShot(0, [this, work = std::move(work)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            mHasCome = true;
            work(*dialog);
        });
    }

    bool mHasCome = false;
};

TEST_F(MainCommandsTest, Find_FocusesTheSearch)
{
    auto& window = OpenWithWork();
    Click(BuiltInCommand::Find);
    EXPECT_EQ(window.focusWidget(), &window.Bar().SearchField());
}

TEST_F(MainCommandsTest, Help_SaysWhereTheGuideIs)
{
    auto& window = OpenWithWork();
    Click(BuiltInCommand::Help);
    EXPECT_TRUE(window.Foot().Said().endsWith("/userguide/userguide.html")) << window.Foot().Said().toStdString();
}

TEST_F(MainCommandsTest, Print_LetsChooseAPrinter)
{
    OpenWithWork();
    AtDialog<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    Click(BuiltInCommand::Print);
    EXPECT_TRUE(mHasCome);
}

TEST_F(MainCommandsTest, PrintedPage_HasADayEachWithWhatWasDone)
{
    auto& window = OpenWithWork();
    const ActivityTable table(mDesk->Formats(), Titles::Shown, window.ShownActivities());
    const auto text = LogPage("13 – 19 Nov 2006", "2 activities", table).toPlainText().toStdString();
    for (const auto* part : { "13 – 19 Nov 2006", "2 activities", "15/11/2006", "09:00 – 10:00", "Plan", "16/11/2006",
             "No Project", "Inbox" }) {
        EXPECT_THAT(text, testing::HasSubstr(part));
    }
}

TEST_F(MainCommandsTest, Copy_PutsWhatIsSelectedOnTheClipboard)
{
    auto& window = OpenWithWork();
    QGuiApplication::clipboard()->setText("before");
    window.Commands().Outlets().Copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
    EXPECT_EQ(window.Foot().Said(), "Nothing is selected: select what is to be copied, or all with Ctrl+A.");
    window.SelectAll();
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
        "15/11/2006\t09:00 – 10:00\t1 h\tAlpha\tWriter\tPlan\n"
        "16/11/2006\t09:00 – 09:30\t30 min\tNo Project\tMail\tInbox\n");
}

TEST_F(MainCommandsTest, Export_WritesWhatIsShownInTheFormOfItsName)
{
    auto& window = OpenWithWork();
    window.Commands().Outlets().Export(mFolder.Path("a.csv"));
    EXPECT_THAT(mFolder.Read("a.csv"), testing::HasSubstr("2006-11-15T09:00:00,2006-11-15T10:00:00,60,Alpha"));
    window.Commands().Outlets().Export(mFolder.Path("a.txt"));
    EXPECT_THAT(mFolder.Read("a.txt"), testing::StartsWith("15/11/2006\t"));
}

TEST_F(MainCommandsTest, ListOfAMonth_ShowsAndPagesMonths)
{
    Add("Alpha", "Early", "Writer", On(1, 9), On(1, 10));
    auto& window = OpenWithWork();
    for (auto* action : window.actions()) {
        if (action->text() == "List of a &Month") {
            action->trigger();
        }
    }
    EXPECT_EQ(window.ShownView(), View::List);
    EXPECT_EQ(window.ShownActivities().size(), 3U);
    EXPECT_EQ(window.Log().Days().last, On(30, 0));
    window.Page(-1);
    EXPECT_EQ(window.Log().Days().last, Date::FromYearMonthDay(2006, 10, 31));
    window.Show(View::Week);
    EXPECT_EQ(window.Log().DayCount(), 7);
}

TEST_F(MainCommandsTest, F6_GoesFromPaneToPaneAndBack)
{
    auto& window = OpenWithWork();
    window.Agenda().setFocus();
    QTest::keyClick(&window, Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(window.Side().isAncestorOf(window.focusWidget()));
    QTest::keyClick(&window, Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(window.Bar().isAncestorOf(window.focusWidget()));
    QTest::keyClick(&window, Qt::Key_F6);
    QTest::keyClick(&window, Qt::Key_F6);
    EXPECT_EQ(window.focusWidget(), &window.Agenda());
    window.SelectAll();
    QTest::keyClick(&window, Qt::Key_F6);
    EXPECT_TRUE(window.Foot().isAncestorOf(window.focusWidget()));
    QTest::keyClick(&window, Qt::Key_F6);
    EXPECT_TRUE(window.Bar().isAncestorOf(window.focusWidget()));
}

TEST_F(MainCommandsTest, N_GivesTheGroupAProjectThatIsNew)
{
    auto& window = OpenWithWork();
    window.Show(View::SortOut);
    Settle();
    AtDialog<QInputDialog>([](QInputDialog& dialog) {
        dialog.setTextValue("Post");
        dialog.accept();
    });
    QTest::keyClick(&window.SortOut().List(), Qt::Key_N);
    EXPECT_TRUE(mHasCome);
    EXPECT_EQ(ActivityAt(mDesk->Profile(), On(16, 9, 10))->project, "Post");
    EXPECT_THAT(LogDoings(mDesk->Session()).Projects(), testing::Contains("Post"));
    window.Undo();
    EXPECT_TRUE(IsUnassigned(*ActivityAt(mDesk->Profile(), On(16, 9, 10))));
    EXPECT_THAT(LogDoings(mDesk->Session()).Projects(), testing::Not(testing::Contains("Post")));
    window.Redo();
    EXPECT_EQ(ActivityAt(mDesk->Profile(), On(16, 9, 10))->project, "Post");
    EXPECT_THAT(LogDoings(mDesk->Session()).Projects(), testing::Contains("Post"));
}

TEST_F(MainCommandsTest, NewWindow_AnotherIsInFront_ShowsTheFolderOfThisOne)
{
    auto& window = OpenWithWork();
    const auto inbox = mDesk->Session().Mailbox()->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox);
    mDesk->Do([&] { mDesk->Windows().OpenExplorer(inbox); });
    for (auto* action : window.findChildren<QAction*>()) {
        if (action->shortcut() == QKeySequence::New) {
            action->trigger();
        }
    }
    const auto& explorers = mDesk->Windows().OpenExplorers();
    ASSERT_EQ(explorers.size(), 3U);
    EXPECT_EQ(explorers.back()->CurrentFolder()->EntryID(), explorers.front()->CurrentFolder()->EntryID());
    EXPECT_NE(explorers.back()->CurrentFolder()->EntryID(), inbox->EntryID());
}

TEST_F(MainCommandsTest, GoToDate_ADateOrNot_GoesThereOrSaysWhatADateIs)
{
    auto& window = Open();
    const auto type = [](const char* text) {
        return [text](QInputDialog& dialog) {
            dialog.setTextValue(text);
            dialog.accept();
        };
    };
    AtDialog<QInputDialog>(type("10/10/2006"));
    window.GoToDate();
    const auto days = window.Log().Days();
    EXPECT_EQ(days.first, Date::FromYearMonthDay(2006, 10, 9));
    EXPECT_EQ(window.Foot().Said(), "");
    AtDialog<QInputDialog>(type("teatime"));
    window.GoToDate();
    EXPECT_EQ(window.Foot().Said(), "\"teatime\" is no date: type one such as 10/10/2006.");
    EXPECT_EQ(window.Log().Days(), days);
}

TEST_F(MainCommandsTest, N_NameThatTheProductRefuses_ChangesNothing)
{
    auto& window = OpenWithWork();
    window.SelectAll();
    AtDialog<QInputDialog>([](QInputDialog& dialog) {
        dialog.setTextValue("No Project");
        dialog.accept();
    });
    window.SetNewProject();
    EXPECT_FALSE(window.Foot().Said().isEmpty());
    EXPECT_EQ(ActivityAt(mDesk->Profile(), On(15, 9, 10))->project, "Alpha");
}

}
