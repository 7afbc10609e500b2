#include "desktop/qt/HostWindows.h"

#include "DesktopFixture.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/PageView.h"
#include "review/ActivityReader.h"
#include "session/WorkLogFolder.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>

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

    void OpenAnother()
    {
        mDesk->Do([this] { mDesk->Windows().OpenExplorer(WorkLogOf(mDesk->Profile())); });
    }
    /// Types into the activity's page, and leaves it there.
    void Retype(const char* text)
    {
        auto& window = dynamic_cast<InspectorWindow&>(*mWindows->WindowOf(mInspector));
        auto& line = *qobject_cast<QLineEdit*>(window.Page()->WidgetOf("SubjectBox"));
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    /// True when the program ends of itself at something that is done.
    static bool IsEndedBy(const std::function<void()>& work)
    {
        constexpr int Patience = 1000;
        QTimer patience;
        QObject::connect(&patience, &QTimer::timeout, [] { QCoreApplication::exit(1); });
        QTimer::singleShot(0, [&] {
            work();
            patience.start(Patience);
        });
        return QCoreApplication::exec() == 0;
    }

    MainWindow* mMain = nullptr;
    Ref<HostInspector> mInspector;
    int mClosed = 0;
};

TEST_F(HostWindowsTest, MainWindowCloses_TheItemsWindowClosesBeforeAndTheProgramEnds)
{
    EXPECT_TRUE(mMain->close());
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty());
    EXPECT_TRUE(mDesk->Windows().OpenExplorers().empty());
    EXPECT_EQ(mClosed, 1);
}

TEST_F(HostWindowsTest, MainWindowCloses_UnsavedAndAskedToStay_BothStay)
{
    Retype("Site plan");
    mMessages->NextAnswer(Answer::Cancel);
    EXPECT_FALSE(mMain->close());
    EXPECT_EQ(mMessages->shown.size(), 1U);
    EXPECT_TRUE(mMain->isVisible());
    EXPECT_TRUE(mWindows->WindowOf(mInspector)->isVisible());
    EXPECT_EQ(mClosed, 0);
    mMessages->NextAnswer(Answer::Yes);
    EXPECT_TRUE(mMain->close());
    EXPECT_EQ(ActivityAt(mDesk->Profile(), On(15, 9, 10))->description, "Site plan");
    EXPECT_EQ(mClosed, 1);
}

TEST_F(HostWindowsTest, OneOfTwoMainWindowsCloses_TheItemsWindowStays)
{
    OpenAnother();
    EXPECT_TRUE(mMain->close());
    EXPECT_FALSE(mInspector->IsGone());
    EXPECT_EQ(mClosed, 0);
}

TEST_F(HostWindowsTest, Quit_UnsavedAndAskedToStay_NothingCloses)
{
    OpenAnother();
    Retype("Site plan");
    // Such a window the toolkit doesn't close by itself.
    mWindows->WindowOf(mInspector)->hide();
    mMessages->NextAnswer(Answer::Cancel);
    EXPECT_FALSE(IsEndedBy([this] { mDesk->Quit(); }));
    EXPECT_EQ(mMessages->shown.size(), 1U);
    EXPECT_EQ(mDesk->Windows().OpenExplorers().size(), 2U);
    EXPECT_FALSE(mInspector->IsGone());
}

TEST_F(HostWindowsTest, RemoveExample_RefusedByAWindow_KeepsItAlsoWhenTheProgramEndsLater)
{
    Retype("Site plan");
    mMessages->NextAnswer(Answer::Cancel);
    EXPECT_FALSE(IsEndedBy([this] { mMain->mRemoveExample(); }));
    EXPECT_FALSE(mWindows->RemovesExample());
    mMessages->NextAnswer(Answer::No);
    EXPECT_TRUE(IsEndedBy([this] { mDesk->Quit(); }));
    EXPECT_FALSE(mWindows->RemovesExample());
}

TEST_F(HostWindowsTest, RemoveExample_AllWindowsClose_LetsItGo)
{
    EXPECT_TRUE(IsEndedBy([this] { mMain->mRemoveExample(); }));
    EXPECT_TRUE(mWindows->RemovesExample());
}

TEST_F(HostWindowsTest, End_WhileHidden_TakesTheWindowsAlongAtOnce)
{
    const QPointer<QWidget> main(mMain);
    const QPointer<QWidget> item(mWindows->WindowOf(mInspector));
    mMain->hide();
    mWindows.reset();
    EXPECT_TRUE(main.isNull()) << "it would hold the mailbox";
    EXPECT_TRUE(item.isNull());
}

TEST_F(HostWindowsTest, Quit_TwoMainWindows_ClosesBoth)
{
    OpenAnother();
    ASSERT_EQ(mDesk->Windows().OpenExplorers().size(), 2U);
    EXPECT_TRUE(IsEndedBy([this] { mDesk->Quit(); }));
    EXPECT_TRUE(mDesk->Windows().OpenExplorers().empty());
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty());
    EXPECT_EQ(mClosed, 1);
}

}
