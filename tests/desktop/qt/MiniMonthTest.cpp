#include "desktop/qt/MiniMonth.h"

#include "DesktopFixture.h"
#include "PaintCounter.h"
#include "desktop/qt/SidePanel.h"

#include <QTest>

namespace tempodial {

/// The month in small beside the week of 13 November.
class MiniMonthTest : public DesktopFixture
{
protected:
    MiniMonthTest()
    {
        mMonth.resize(262, mMonth.sizeHint().height());
        mMonth.Follow({ On(13, 0), On(19, 0) });
        mMonth.mGoTo = [this](Date day) { mGone = day; };
    }

    /// Turns the wheel, in eighths of a degree, away from the person when it is positive.
    void Turn(int eighths)
    {
        const QPointF place(10, 60);
        QWheelEvent wheel(place, mMonth.mapToGlobal(place), {}, QPoint(0, eighths), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&mMonth, &wheel);
    }
    /// The day of the first cell, which a click goes to.
    Date FirstShown()
    {
        const auto cell = mMonth.width() / 8.0;
        const auto row = mMonth.sizeHint().height() / 8.0;
        QTest::mouseClick(&mMonth, Qt::LeftButton, {}, QPointF(1.5 * cell, 2.5 * row).toPoint());
        return mGone;
    }

    MiniMonth mMonth { *mDesk, nullptr };
    Date mGone;
};

/// The same month on the screen, with how often it is painted.
class ShownMonthTest : public MiniMonthTest
{
protected:
    ShownMonthTest()
    {
        mMonth.show();
        Settle();
    }

    PaintCounter mPaints { mMonth };
};

TEST_F(MiniMonthTest, Wheel_ANotch_PagesAMonth)
{
    EXPECT_EQ(FirstShown(), Date::FromYearMonthDay(2006, 10, 30));
    Turn(-120);
    EXPECT_EQ(FirstShown(), Date::FromYearMonthDay(2006, 11, 27)) << "towards the person is later";
    Turn(240);
    EXPECT_EQ(FirstShown(), Date::FromYearMonthDay(2006, 9, 25));
}

TEST_F(MiniMonthTest, Wheel_PartsOfANotch_AddUp)
{
    for (int i = 0; i < 3; ++i) {
        Turn(-30);
        EXPECT_EQ(FirstShown(), Date::FromYearMonthDay(2006, 10, 30)) << i;
    }
    Turn(-30);
    EXPECT_EQ(FirstShown(), Date::FromYearMonthDay(2006, 11, 27));
}

TEST_F(MiniMonthTest, Wheel_OverTheYear_GoesOn)
{
    Turn(-120);
    Turn(-120);
    EXPECT_EQ(FirstShown(), Date::FromYearMonthDay(2007, 1, 1));
}

TEST_F(MiniMonthTest, Keys_GoByDaysAndChooseOne)
{
    QTest::keyClick(&mMonth, Qt::Key_Right);
    QTest::keyClick(&mMonth, Qt::Key_Down);
    QTest::keyClick(&mMonth, Qt::Key_Return);
    EXPECT_EQ(mGone, On(21, 0));
    EXPECT_TRUE(mMonth.accessibleDescription().contains("21"));
}

TEST_F(ShownMonthTest, Follow_AnotherWeekOfTheMonth_PaintsTheBandAnew)
{
    mPaints.Take();
    mMonth.Follow({ On(13, 0), On(19, 0) });
    EXPECT_EQ(mPaints.Take(), 0) << "nothing has changed";
    mMonth.Follow({ On(20, 0), On(26, 0) });
    EXPECT_EQ(mPaints.Take(), 1);
}

TEST_F(ShownMonthTest, Keys_WithinTheMonth_PaintTheFrameAnew)
{
    mPaints.Take();
    QTest::keyClick(&mMonth, Qt::Key_Right);
    EXPECT_EQ(mPaints.Take(), 1);
}

}
