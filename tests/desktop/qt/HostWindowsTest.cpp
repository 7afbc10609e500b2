#include "desktop/qt/HostWindows.h"

#include "DesktopFixture.h"
#include "desktop/qt/ItemWindow.h"
#include "review/ActivityReader.h"
#include "session/WorkLogFolder.h"

#include <QCoreApplication>
#include <QTimer>

namespace tempodial {

/// A main window with one activity opened, told when all are closed.
class HostWindowsTest : public DesktopFixture
{
protected:
    HostWindowsTest()
    {
        Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
        mMain = &Open();
        mWindows->mWhenAllClosed = [this] { ++mClosed; };
        mDesk->Do([this] {
            mDesk->Windows().OpenInspector(ItemNumbered(mDesk->Profile(), mMain->Log().All().front().number));
        });
        mInspector = mDesk->Windows().OpenInspectors().front();
    }

    MainWindow* mMain = nullptr;
    Ref<HostInspector> mInspector;
    int mClosed = 0;
};

TEST_F(HostWindowsTest, MainWindowCloses_ProgramEndsOnlyWithTheLastWindow)
{
    auto* item = mWindows->WindowOf(mInspector);
    EXPECT_TRUE(mMain->close());
    EXPECT_EQ(mClosed, 0);
    EXPECT_TRUE(item->isVisible());
    EXPECT_TRUE(item->close());
    EXPECT_EQ(mClosed, 1);
}

TEST_F(HostWindowsTest, OnlyAnItemsWindowIsLeft_RaisingShowsIt)
{
    auto* item = mWindows->WindowOf(mInspector);
    mMain->close();
    item->hide();
    mWindows->Raise();
    EXPECT_TRUE(item->isVisible());
}

TEST_F(HostWindowsTest, Quit_TwoMainWindows_ClosesBoth)
{
    mDesk->Do([this] { mDesk->Windows().OpenExplorer(WorkLogOf(mDesk->Profile())); });
    ASSERT_EQ(mDesk->Windows().OpenExplorers().size(), 2U);
    constexpr int Patience = 5000;
    QTimer::singleShot(0, mMain, [this] { mDesk->Quit(); });
    QTimer::singleShot(Patience, mMain, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0) << "it isn't quit";
    EXPECT_TRUE(mDesk->Windows().OpenExplorers().empty());
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty());
    EXPECT_EQ(mClosed, 1);
}

}
