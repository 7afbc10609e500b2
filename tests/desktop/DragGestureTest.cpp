#include "desktop/DragGesture.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using GesturePart = DragGesture::Part;
using Step = DragGesture::Step;

Date At(int day, int minute, int second = 0)
{
    return Date::FromYearMonthDay(2006, 10, day).AddMinutes(minute).AddSeconds(second);
}

TimeSpan Span(int from, int to)
{
    return { At(9, from), At(9, to) };
}

}

TEST(DragGestureTest, To_Whole_KeepsItsLengthAndComesToFiveMinutes)
{
    const DragGesture drag(GesturePart::Whole, Span(603, 640), At(9, 610));
    EXPECT_EQ(drag.To(At(9, 670), Step::Usual), Span(665, 702));
    EXPECT_EQ(drag.To(At(9, 669), Step::Usual), Span(660, 697));
    EXPECT_EQ(drag.To(At(9, 669, 20), Step::Fine), Span(662, 699));
    EXPECT_EQ(drag.To(At(9, 550), Step::Usual), Span(545, 582));
}

TEST(DragGestureTest, To_SameTimeOfDay_IsKeptAsItIs)
{
    const DragGesture drag(GesturePart::Whole, Span(603, 640), At(9, 610));
    EXPECT_EQ(drag.To(At(9, 612), Step::Usual), Span(603, 640));
    EXPECT_EQ(drag.To(At(11, 608), Step::Usual), (TimeSpan { At(11, 603), At(11, 640) }));
    EXPECT_EQ(drag.To(At(8, 611), Step::Usual), (TimeSpan { At(8, 603), At(8, 640) }));
    EXPECT_EQ(drag.To(At(11, 640), Step::Usual), (TimeSpan { At(11, 635), At(11, 672) }));
}

TEST(DragGestureTest, To_AcrossMidnight_IsMoved)
{
    const DragGesture drag(GesturePart::Whole, { At(9, 1380), At(10, 60) }, At(10, 30));
    EXPECT_EQ(drag.To(At(10, 90), Step::Usual), (TimeSpan { At(10, 0), At(10, 120) }));
}

TEST(DragGestureTest, To_Start_StaysBeforeTheEnd)
{
    const DragGesture drag(GesturePart::Start, Span(600, 660), At(9, 601));
    EXPECT_EQ(drag.To(At(9, 622), Step::Usual), Span(620, 660));
    EXPECT_EQ(drag.To(At(9, 900), Step::Usual), Span(655, 660));
    EXPECT_EQ(drag.To(At(9, 900), Step::Fine), Span(659, 660));
    EXPECT_EQ(drag.To(At(9, 301), Step::Usual), Span(300, 660));
}

TEST(DragGestureTest, To_End_StaysBehindTheStart)
{
    const DragGesture drag(GesturePart::End, Span(600, 660), At(9, 658));
    EXPECT_EQ(drag.To(At(9, 700), Step::Usual), Span(600, 700));
    EXPECT_EQ(drag.To(At(9, 100), Step::Usual), Span(600, 605));
    EXPECT_EQ(drag.To(At(10, 58), Step::Usual), (TimeSpan { At(9, 600), At(10, 60) }));
}

TEST(DragGestureTest, To_EdgeOfAShortOne_StaysWhereItIs)
{
    EXPECT_EQ(DragGesture(GesturePart::Start, Span(600, 602), At(9, 600)).To(At(9, 640), Step::Usual), Span(600, 602));
    EXPECT_EQ(DragGesture(GesturePart::End, Span(600, 602), At(9, 602)).To(At(9, 500), Step::Usual), Span(600, 602));
}

TEST(DragGestureTest, Nudged_Keys_MoveByFiveMinutes)
{
    EXPECT_EQ(DragGesture::Nudged(GesturePart::Whole, Span(603, 640), 1), Span(608, 645));
    EXPECT_EQ(DragGesture::Nudged(GesturePart::Whole, Span(603, 603), -2), Span(593, 593));
    EXPECT_EQ(DragGesture::Nudged(GesturePart::End, Span(603, 640), 2), Span(603, 650));
    EXPECT_EQ(DragGesture::Nudged(GesturePart::Start, Span(603, 640), -1), Span(598, 640));
}

TEST(DragGestureTest, Nudged_NoTimeLeft_StaysAsItIs)
{
    EXPECT_EQ(DragGesture::Nudged(GesturePart::End, Span(600, 605), -1), Span(600, 605));
    EXPECT_EQ(DragGesture::Nudged(GesturePart::Start, Span(600, 605), 1), Span(600, 605));
    EXPECT_EQ(DragGesture::Nudged(GesturePart::End, Span(600, 606), -1), Span(600, 601));
}

TEST(DragGestureTest, MayGrow_EndedLessThanTenMinutesAgo)
{
    EXPECT_TRUE(DragGesture::MayGrow(At(9, 600), At(9, 600)));
    EXPECT_TRUE(DragGesture::MayGrow(At(9, 600), At(9, 609, 59)));
    EXPECT_FALSE(DragGesture::MayGrow(At(9, 600), At(9, 610)));
    EXPECT_FALSE(DragGesture::MayGrow(At(9, 600), At(9, 599, 59)));
}

}
