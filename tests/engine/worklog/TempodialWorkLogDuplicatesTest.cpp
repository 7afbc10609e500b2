#include "support/WorkLogFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace tempodial {

namespace {

class TempodialWorkLogDuplicatesTest : public WorkLogFixture
{
protected:
    /// The one activity in the folder.
    Ref<AppointmentItem> OnlyItem()
    {
        const auto items = mLogFolder->Items();
        EXPECT_EQ(items->Count(), 1);
        return items->Item(1).As<AppointmentItem>();
    }
};

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_Appointment_BecomesAnActivity)
{
    AddProject("Beta", "lunch");
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch", "text"), false, true);
    const auto item = OnlyItem();
    EXPECT_EQ(item->MessageClass(), ActivityClass);
    EXPECT_EQ(item->Subject(), "[Beta] Lunch");
    EXPECT_EQ(Property(item, "Description"), "Lunch");
    EXPECT_EQ(Property(item, "Type"), "");
    EXPECT_EQ(Property(item, "People"), "");
    EXPECT_EQ(item->Start(), At(9, 0));
    EXPECT_EQ(item->End(), At(9, 30));
    EXPECT_EQ(item->Duration(), 30);
    EXPECT_EQ(item->Body(), "text");
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_Appointment_IsTracedWithItsTimes)
{
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch"), false, true);
    EXPECT_EQ(Traced().front(), "TDWorklog Create dupe now for: 10/10/2006 9:00:00 AM to 10/10/2006 9:30:00 AM");
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_Length_GivesATruthValueAsDuration)
{
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch"), false, true);
    EXPECT_THAT(Traced(), Not(Contains(HasSubstr("error"))));

    const auto empty = Appointment("Nothing");
    empty->SetEnd(At(9, 0));
    mWorkLog->CreateCalendarDuplicate(empty, false, true);
    EXPECT_THAT(Traced(), Contains(testing::MatchesRegex("TDWorklog update item error .* Fill in Item")).Times(1));
    const auto items = mLogFolder->Items();
    ASSERT_EQ(items->Count(), 2);
    const auto item = items->Item(2).As<AppointmentItem>();
    EXPECT_EQ(item->Start(), At(9, 0));
    EXPECT_EQ(item->End(), At(9, 0));
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_ToBeShown_StaysOpenAndSaved)
{
    int shown = 0;
    mMailbox->SetDisplay([&](const Ref<StoreItem>&) { ++shown; });
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch", "text"), true, true);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(OnlyItem()->Body(), "text");
    EXPECT_FALSE(OnlyItem().As<StoreItem>()->HasChanges());
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_NotToBeSaved_LeavesNothing)
{
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch", "text"), false, false);
    EXPECT_EQ(mLogFolder->Items()->Count(), 0);
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_SecurityPopups_HasNoBody)
{
    mMain->mSecurityPopups = true;
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch", "text"), false, true);
    EXPECT_EQ(OnlyItem()->Body(), "");
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_BodyRefused_IsRemembered)
{
    mWorkLog->CreateCalendarDuplicate(
        ObservedItem(Appointment("Lunch", "text"), FailingAt("AppointmentItem.Body", Error::SecurityRefusal)), false,
        true);
    EXPECT_EQ(OnlyItem()->Body(), "");
    EXPECT_TRUE(mMain->mSecurityPopups);
    const auto traced = Traced();
    EXPECT_THAT(
        traced, Contains("TDWorklog security exception on errorreportApplication-defined or object-defined error"));
    EXPECT_EQ(traced.back(), "TempodialCommonUtils MarkEmailObjectGuardInPlace");
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_BodyFails_IsNoRefusal)
{
    mWorkLog->CreateCalendarDuplicate(
        ObservedItem(Appointment("Lunch", "text"), FailingAt("AppointmentItem.Body")), false, true);
    EXPECT_FALSE(mMain->mSecurityPopups);
    EXPECT_EQ(Traced().back(), "TDWorklog security exception on errorreportAutomation error");
    EXPECT_EQ(OnlyItem()->Subject(), "Lunch");
}

TEST_F(TempodialWorkLogDuplicatesTest, CreateCalendarDuplicate_NoDuplicate_TracesEachStatement)
{
    Observe(FailingAt("Items.Add"));
    mWorkLog->CreateCalendarDuplicate(Appointment("Lunch", "text"), false, true);
    const std::string text = "Object variable or With block variable not set";
    const auto traced = Traced();
    ASSERT_GE(traced.size(), 3U);
    EXPECT_THAT(std::vector<std::string>(traced.end() - 3, traced.end()),
        ElementsAre("TDWorklog security exception on errorreport" + text,
            "TDWorklog create dupe now error " + text + " set registry",
            "TDWorklog create dupe now error " + text + " set registry"));
}

TEST_F(TempodialWorkLogDuplicatesTest, ItemAdd_OurItem_IsIgnored)
{
    const auto item = Activity("A");
    mMailbox->DeliverEvents();
    EXPECT_THAT(Traced(),
        ElementsAre(
            "TDWorklog ItemAdd event", "TDWorklog Check item 2: IPM.Appointment.TDActivity1, [A] Notepad, Plan"));
    EXPECT_EQ(mLogFolder->Items()->Count(), 1);
}

TEST_F(TempodialWorkLogDuplicatesTest, ItemAdd_PlainAppointment_IsReplacedByAnOpenActivity)
{
    std::vector<std::string> shown;
    mMailbox->SetDisplay([&](const Ref<StoreItem>& item) { shown.push_back(item->Subject()); });
    {
        const auto appointment = Appointment("Lunch", "text");
        appointment->Save();
    }
    mMailbox->DeliverEvents();
    const auto item = OnlyItem();
    EXPECT_EQ(item->MessageClass(), ActivityClass);
    EXPECT_EQ(item->Subject(), "Lunch");
    EXPECT_EQ(item->Body(), "text");
    EXPECT_THAT(shown, ElementsAre("Lunch"));
    const auto traced = Traced();
    EXPECT_EQ(traced[0], "TDWorklog ItemAdd event");
    EXPECT_EQ(traced[1], "TDWorklog Check item 2: IPM.Appointment, Lunch");
    EXPECT_EQ(traced[2], "TDWorklog Delete original and popup ours");
    EXPECT_THAT(traced[3], HasSubstr("TDWorklog Create dupe now for: "));
}

TEST_F(TempodialWorkLogDuplicatesTest, ItemAdd_DeleteFails_IsTraced)
{
    mWorkLog->mLogItems_ItemAdd(ObservedItem(Appointment("Lunch"), FailingAt("AppointmentItem.Delete")));
    EXPECT_THAT(Traced().back(), HasSubstr("TDWorklog Itemadd error Automation error "));
}

TEST_F(TempodialWorkLogDuplicatesTest, ItemAdd_MainTerminated_DoesNothing)
{
    const auto appointment = Appointment("Lunch");
    mMain->Terminate();
    appointment->Save();
    mMailbox->DeliverEvents();
    EXPECT_EQ(OnlyItem()->MessageClass(), "IPM.Appointment");
}

}

}
