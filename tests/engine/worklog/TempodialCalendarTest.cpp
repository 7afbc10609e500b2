#include "engine/worklog/TempodialCalendar.h"

#include "support/WorkLogFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace tempodial {

namespace {

class TempodialCalendarTest : public WorkLogFixture
{
protected:
    TempodialCalendarTest()
    {
        mCalendar->Initialize(mMain, mApplication, mNamespace, mLog);
        ForgetTrace();
    }

    void Arrive(const std::string& subject, bool recurring)
    {
        ItemData data;
        data.messageClass = "IPM.Appointment";
        data.subject = subject;
        data.start = At(9, 0);
        data.end = At(9, 30);
        data.recurring = recurring;
        mMailbox->NewItem(Calendar(), data)->Save();
        mMailbox->DeliverEvents();
    }

    Ref<TempodialCalendar> mCalendar = MakeRef<TempodialCalendar>(mPlatform);
};

TEST_F(TempodialCalendarTest, Initialize_Context_IsItsOwn)
{
    EXPECT_EQ(mCalendar->mTraceInfo, "TDCalendar");
    EXPECT_EQ(mCalendar->mNamespace, mNamespace);
    EXPECT_EQ(mCalendar->mTempodialID, "");
    EXPECT_EQ(mCalendar->mErrorText, "");
}

TEST_F(TempodialCalendarTest, ItemAdd_RecurringAppointment_IsCopiedIntoTheWorkLog)
{
    Arrive("Standup", true);
    EXPECT_EQ(Calendar()->Items()->Count(), 1);
    const auto items = mLogFolder->Items();
    ASSERT_EQ(items->Count(), 1);
    EXPECT_EQ(items->Item(1)->Subject(), "Standup");
    // It arrived there as a plain appointment.
    EXPECT_EQ(items->Item(1)->MessageClass(), ActivityClass);
    EXPECT_EQ(Traced().front(), "TDCalendar new item add: 10/10/2006 9:00:00 AM");
}

TEST_F(TempodialCalendarTest, ItemAdd_OtherAppointment_IsPassedOver)
{
    Arrive("Lunch", false);
    EXPECT_EQ(mLogFolder->Items()->Count(), 0);
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialCalendarTest, ItemAdd_CopyFails_IsTraced)
{
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.start = At(9, 0);
    data.end = At(9, 30);
    data.recurring = true;
    mCalendar->mCalendarItems_ItemAdd(
        ObservedItem(mMailbox->NewItem(Calendar(), data), FailingAt("AppointmentItem.Copy")));
    EXPECT_THAT(Traced(),
        ElementsAre("TDCalendar new item add: 10/10/2006 9:00:00 AM", "TDCalendar new appt Automation error",
            "TDCalendar new appt Object variable or With block variable not set"));
    mCalendar->mCalendarItems_ItemAdd(nullptr);
    EXPECT_THAT(Traced(), ElementsAre("TDCalendar new appt Object variable or With block variable not set"));
}

TEST_F(TempodialCalendarTest, Terminate_Calendar_IsWatchedNoMore)
{
    mCalendar->Terminate();
    Arrive("Standup", true);
    EXPECT_EQ(mLogFolder->Items()->Count(), 0);
    EXPECT_FALSE(mCalendar->mNamespace);
}

}

}
