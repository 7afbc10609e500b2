#include "desktop/qt/MainCommands.h"

#include "DesktopFixture.h"
#include "desktop/KeyGuide.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/KeysDialog.h"
#include "desktop/qt/LogPage.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "desktop/qt/SortOutView.h"
#include "desktop/qt/WhyBubble.h"
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

    /// Does something with the menu that comes, and closes it.
    void AtMenu(std::function<void(QMenu&)> work)
    {
        QTimer::singleShot(0, [this, work = std::move(work)] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            mHasCome = true;
            work(*menu);
            menu->close();
        });
    }
    static void Choose(const QMenu& menu, const QString& caption)
    {
        for (auto* action : menu.actions()) {
            if (action->text() == caption) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << caption.toStdString();
    }
    /// Chooses an entry of the window's own menus.
    static void Trigger(const MainWindow& window, const QString& caption)
    {
        for (auto* action : window.findChildren<QAction*>()) {
            if (action->text() == caption) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << caption.toStdString();
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

TEST_F(MainCommandsTest, Export_WritesWhatIsShownInItsForm)
{
    auto& window = OpenWithWork();
    using ExportForm = LogExport::Form;
    window.Commands().Outlets().Export(mFolder.Path("a.csv"), ExportForm::Table);
    EXPECT_THAT(mFolder.Read("a.csv"), testing::HasSubstr("2006-11-15T09:00:00,2006-11-15T10:00:00,60,Alpha"));
    window.Commands().Outlets().Export(mFolder.Path("a.txt"), ExportForm::Text);
    EXPECT_THAT(mFolder.Read("a.txt"), testing::StartsWith("15/11/2006\t"));
    window.Commands().Outlets().Export(mFolder.Path("a.ics"), ExportForm::Calendar);
    EXPECT_THAT(mFolder.Read("a.ics"),
        testing::AllOf(testing::HasSubstr("DTSTART:20061115T090000\r\n"), testing::HasSubstr("CATEGORIES:Alpha\r\n"),
            testing::HasSubstr("Plan")));
    window.Commands().Outlets().Export(mFolder.Path("a.json"), ExportForm::Fields);
    EXPECT_THAT(mFolder.Read("a.json"),
        testing::AllOf(testing::StartsWith("["), testing::HasSubstr("\"start\": \"2006-11-15T09:00:00\""),
            testing::HasSubstr("\"Description\": \"Plan\"")));
}

TEST_F(MainCommandsTest, Export_SaysHowManyAndWhich)
{
    auto& window = OpenWithWork();
    auto& outlets = window.Commands().Outlets();
    EXPECT_EQ(outlets.Scope(), "2 activities of 13 – 19 Nov 2006");
    EXPECT_EQ(outlets.FileName(), "13 – 19 Nov 2006");
    window.Select({ window.ShownActivities().front().number });
    EXPECT_EQ(outlets.Scope(), "1 selected of 2 activities");
    EXPECT_EQ(outlets.FileName(), "13 – 19 Nov 2006, in part");
    const auto path = ToQt(mFolder.Path("part.csv"));
    outlets.ExportAndSay(path, LogExport::Form::Table);
    EXPECT_EQ(window.Foot().Said(), "Saved 1 selected of 2 activities as " + path);
    EXPECT_TRUE(mFolder.Has("part.csv"));
    window.Search("inb");
    EXPECT_EQ(outlets.Scope(), "1 activity that the search has found");
    EXPECT_EQ(outlets.FileName(), "13 – 19 Nov 2006, in part");
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

TEST_F(MainCommandsTest, Export_TitlesHidden_KeepsThemAtHome)
{
    auto& window = OpenWithWork();
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    for (const auto& form : LogExport::Forms) {
        window.Commands().Outlets().Export(mFolder.Path("hidden"), form.form);
        EXPECT_THAT(mFolder.Read("hidden"), testing::AllOf(testing::HasSubstr("Writer"), testing::HasSubstr("Alpha")));
        EXPECT_THAT(mFolder.Read("hidden"),
            testing::AllOf(testing::Not(testing::HasSubstr("Plan")), testing::Not(testing::HasSubstr("Inbox"))))
            << form.ending;
    }
}

TEST_F(MainCommandsTest, ColourBy_Chosen_IsThatOfThePanel)
{
    auto& window = OpenWithWork();
    Trigger(window, "By &Application");
    EXPECT_EQ(window.Log().ColouredBy(), Coloured::Application);
    Trigger(window, "By &Project");
    EXPECT_EQ(window.Log().ColouredBy(), Coloured::Project);
}

TEST_F(MainCommandsTest, Keys_ListsAllOfThem)
{
    auto& window = OpenWithWork();
    Trigger(window, "&Keys");
    auto* dialog = window.findChild<KeysDialog*>();
    ASSERT_NE(dialog, nullptr);
    int count = 0;
    for (int place = 0; place < dialog->List().topLevelItemCount(); ++place) {
        count += dialog->List().topLevelItem(place)->childCount();
    }
    EXPECT_EQ(count, static_cast<int>(KeyGuide().size()));
    Picture(*dialog, "keys");
    dialog->close();
}

TEST_F(MainCommandsTest, OnlyThisProject_FadesTheOthersUntilEscape)
{
    auto& window = OpenWithWork();
    mDesk->Change([](DesktopSettings& settings) { settings.colours = ColourChoice::Project; });
    window.Select({ ActivityAt(mDesk->Profile(), On(15, 9, 10))->number });
    AtMenu([](QMenu& menu) { Choose(menu, "O&nly This Project"); });
    window.Commands().ShowMenu(window.mapToGlobal(QPoint(9, 9)));
    EXPECT_TRUE(mHasCome);
    EXPECT_FALSE(window.Agenda().Cards()[0].isFaded);
    EXPECT_TRUE(window.Agenda().Cards()[1].isFaded);
    QTest::keyClick(&window.Agenda(), Qt::Key_Escape);
    EXPECT_FALSE(window.Agenda().Cards()[1].isFaded);
    // The same of what has none.
    window.Select({ ActivityAt(mDesk->Profile(), On(16, 9, 10))->number });
    AtMenu([](QMenu& menu) { Choose(menu, "O&nly This Project"); });
    window.Commands().ShowMenu(window.mapToGlobal(QPoint(9, 9)));
    mDesk->Do([] {});
    EXPECT_TRUE(window.Agenda().Cards()[0].isFaded);
    EXPECT_FALSE(window.Agenda().Cards()[1].isFaded);
}

TEST_F(MainCommandsTest, ProjectRow_OtherTone_IsSeenEverywhereAndKept)
{
    auto& window = OpenWithWork();
    mDesk->Change([](DesktopSettings& settings) { settings.colours = ColourChoice::Project; });
    const auto before = window.Agenda().Cards()[0].style.colours;
    const auto plum = mLook.CardOf(ToneUse { ToneCount - 1, false });
    AtMenu([](QMenu& menu) { Choose(*menu.findChild<QMenu*>(), "Plum"); });
    auto& row = *window.Side().Projects().Rows().front();
    row.customContextMenuRequested(QPoint(5, 5));
    EXPECT_TRUE(mHasCome);
    EXPECT_EQ(window.Agenda().Cards()[0].style.colours, plum);
    EXPECT_NE(window.Agenda().Cards()[0].style.colours, before);
    EXPECT_EQ(window.Side().Projects().Rows().front()->Shown().style.colours, plum);
    EXPECT_THAT(mFolder.Read("profile/colours.toml"), testing::HasSubstr("plum"));
}

TEST_F(MainCommandsTest, SortOutRow_HasTheMenuOfWhatIsSelected)
{
    auto& window = OpenWithWork();
    window.Show(View::SortOut);
    Settle();
    AtMenu([](QMenu& menu) { EXPECT_GT(menu.actions().size(), 5); });
    auto& list = window.SortOut().List();
    list.customContextMenuRequested(list.visualItemRect(list.topLevelItem(0)).center());
    EXPECT_TRUE(mHasCome);
}

TEST_F(MainCommandsTest, LettersOff_OnlyThoseThatGoElsewhereAreOff)
{
    auto& window = OpenWithWork();
    mDesk->Change([](DesktopSettings& settings) { settings.hasLetterKeys = false; });
    window.SelectAll();
    QTest::keyClick(&window.Agenda(), Qt::Key_D);
    EXPECT_EQ(window.ShownView(), View::Week);
    QTest::keyClick(&window.Agenda(), Qt::Key_Y);
    EXPECT_FALSE(window.Foot().Said().isEmpty());
    mDesk->Change([](DesktopSettings& settings) { settings.hasLetterKeys = true; });
    QTest::keyClick(&window.Agenda(), Qt::Key_D);
    EXPECT_EQ(window.ShownView(), View::Day);
}

TEST_F(MainCommandsTest, Y_PressedAgain_ShowsWhatTheRulesOfAllProjectsSay)
{
    mDesk->Session().AddIn().UpdateorAddProject("Alpha", "plan", "", "", "1", false);
    auto& window = OpenWithWork();
    window.Select({ ActivityAt(mDesk->Profile(), On(15, 9, 10))->number });
    QTest::keyClick(&window.Agenda(), Qt::Key_Y);
    EXPECT_EQ(window.WhyTable(), nullptr);
    QTest::keyClick(&window.Agenda(), Qt::Key_Y);
    ASSERT_NE(window.WhyTable(), nullptr);
    const auto& list = window.WhyTable()->List();
    ASSERT_GE(list.topLevelItemCount(), 1);
    EXPECT_EQ(list.topLevelItem(0)->text(0), "Alpha");
    EXPECT_EQ(list.topLevelItem(0)->text(2), "\"plan\" in the subject");
    Picture(*window.WhyTable(), "why");
    QTest::keyClick(&window.WhyTable()->List(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(window.WhyTable(), nullptr);
}

}
