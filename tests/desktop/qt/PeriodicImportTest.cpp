#include "desktop/qt/PeriodicImport.h"

#include "DesktopFixture.h"
#include "desktop/qt/WelcomePage.h"
#include "support/SlotLines.h"

#include <QApplication>
#include <QTest>

namespace tempodial {

/// The program of a new user, which imports by itself and has found nothing yet.
class PeriodicImportTest : public DesktopFixture
{
protected:
    PeriodicImportTest()
        : mWindow(Open())
    {
        mDesk->Profile().Clock()->Set(On(17, 16, 13));
        // The first import, a minute later than its time.
        const auto imports = mDesk->Subscribe({ .Changed = [this] { mHasImported = true; } });
        qApp->applicationStateChanged(Qt::ApplicationActive);
        EXPECT_TRUE(QTest::qWaitFor([this] { return mHasImported; }));
    }

    MainWindow& mWindow;
    bool mHasImported = false;
    PeriodicImport mImport { *mDesk };
};

TEST_F(PeriodicImportTest, TodaysFile_IsThereAtLast_IsImportedSoon)
{
    EXPECT_TRUE(mWindow.Welcome().isVisible());
    mDesk->Profile().Clock()->Set(On(17, 16, 13).AddSeconds(40));
    mFolder.Write("profile/Tempodial/" + TrackerFileName(On(17, 0).DayKey()),
        TrackerText({ WordSlot(9 * 3600, 10 * 3600, "plan.doc") }));
    // The program asks now, instead of half a minute later.
    qApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !mWindow.Welcome().isVisible(); }));
    EXPECT_EQ(mWindow.Log().All().size(), 1U);
}

}
