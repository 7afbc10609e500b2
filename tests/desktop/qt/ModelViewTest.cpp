#include "desktop/ModelView.h"

#include "DesktopFixture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/NavigationBar.h"
#include "session/WorkLogFolder.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace tempodial {

/// The views of a window beside the one that the model has of the work log.
class ModelViewTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;

    ModelViewTest()
    {
        Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
        mWindow = &Open();
    }
    /// Clicks an entry of the window's menus.
    void Choose(const QString& text)
    {
        for (const auto* menu : mWindow->menuBar()->findChildren<QMenu*>()) {
            for (auto* action : menu->actions()) {
                if (QString(action->text()).remove('&') == text) {
                    action->trigger();
                    return;
                }
            }
        }
        ADD_FAILURE() << text.toStdString();
    }
    std::string Applied() const { return mWindow->Explorer()->CurrentView(); }

    MainWindow* mWindow;
};

TEST_F(ModelViewTest, ProductsEntries_ShowTheListAndTheWeek)
{
    Choose("View Activities in a List");
    EXPECT_EQ(mWindow->ShownView(), View::List);
    EXPECT_EQ(Applied(), "Tempodial List");
    Choose("View Activities in a Calendar");
    EXPECT_EQ(mWindow->ShownView(), View::Week);
    EXPECT_EQ(mDesk->Settings().view, View::Week);
}

TEST_F(ModelViewTest, ProductsEntry_TheViewIsAppliedAlready_IsShownAllTheSame)
{
    mWindow->Choose(View::SortOut);
    EXPECT_EQ(Applied(), "Tempodial Calendar");
    Choose("View Activities in a Calendar");
    EXPECT_EQ(mWindow->ShownView(), View::Week);
}

TEST_F(ModelViewTest, Calendar_InADay_StaysThere)
{
    mWindow->Show(View::Day, On(15, 0));
    Choose("View Activities in a Calendar");
    EXPECT_EQ(mWindow->ShownView(), View::Day);
    EXPECT_EQ(mWindow->Log().Days().first, On(15, 0));
}

TEST_F(ModelViewTest, OneOfTheViews_IsPicked_IsShown)
{
    mDesk->Do([this] { mWindow->Explorer()->PickView("Tempodial List"); });
    EXPECT_EQ(mWindow->ShownView(), View::List);
}

TEST_F(ModelViewTest, Buttons_TheModelTakesTheViewThatGoesWithThem)
{
    QTest::mouseClick(&mWindow->Bar().ButtonOf(View::List), Qt::LeftButton);
    EXPECT_EQ(Applied(), "Tempodial List");
    EXPECT_EQ(mWindow->ShownView(), View::List);
    QTest::mouseClick(&mWindow->Bar().ButtonOf(View::SortOut), Qt::LeftButton);
    EXPECT_EQ(Applied(), "Tempodial List");
    EXPECT_EQ(mWindow->ShownView(), View::SortOut);
    QTest::mouseClick(&mWindow->Bar().ButtonOf(View::Day), Qt::LeftButton);
    EXPECT_EQ(Applied(), "Tempodial Calendar");
    EXPECT_EQ(mWindow->ShownView(), View::Day);
}

TEST_F(ModelViewTest, AnotherFolder_ItsViewsChangeNothing)
{
    const auto inbox = mDesk->Session().Mailbox()->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox);
    mDesk->Do([&] { mWindow->Explorer()->GoTo(inbox); });
    const auto view = mWindow->Explorer()->CurrentView();
    EXPECT_EQ(inbox->Views()->ItemNamed(view)->ViewType(), ViewType::Table);
    mDesk->Do([&] { mWindow->Explorer()->PickView(view); });
    EXPECT_EQ(mWindow->ShownView(), View::Week);
    mWindow->Choose(View::List);
    EXPECT_EQ(Applied(), view);
}

TEST_F(ModelViewTest, NewWindow_InTheList_StaysThere)
{
    mWindow->Choose(View::List);
    Choose("New Window");
    Settle();
    const auto newest = mDesk->Windows().OpenExplorers().back();
    ASSERT_NE(newest, mWindow->Explorer());
    EXPECT_EQ(mWindows->WindowOf(newest)->ShownView(), View::List);
    EXPECT_EQ(newest->CurrentView(), "Tempodial List");
}

}
