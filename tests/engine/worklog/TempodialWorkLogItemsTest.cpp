#include "host/store/StoreItem.h"
#include "support/WorkLogFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace tempodial {

namespace {

class TempodialWorkLogItemsTest : public WorkLogFixture
{
protected:
    std::int32_t Update(const Ref<AppointmentItem>& item, const std::string& project, const std::string& description,
        bool newItem = false, bool closeIt = true, bool saveIt = true)
    {
        return mWorkLog->UpdateCalendarItem(
            item, project, description, "Notepad", "Eve;", 10, At(9, 0), At(9, 10), "", newItem, closeIt, saveIt);
    }
};

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_Values_FillTheWholeItem)
{
    const auto item = mWorkLog->CreateCalendarItem(
        "Alpha", "Plan", "Notepad", "Ann;Bob;", 5, At(9, 0, 30), At(9, 5, 30), "http://a", false, true);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->MessageClass(), ActivityClass);
    EXPECT_EQ(item->Subject(), "[Alpha] Notepad, Plan");
    EXPECT_EQ(item->Start(), At(9, 0, 30));
    EXPECT_EQ(item->End(), At(9, 5, 30));
    EXPECT_EQ(item->Duration(), 5);
    EXPECT_EQ(item->Body(), "http://a");
    EXPECT_EQ(item->Mileage(), "Alpha");
    EXPECT_EQ(item->BillingInformation(), "Plan");
    const auto properties = item->UserProperties();
    EXPECT_EQ(properties->Item("Type")->Value(), Variant("Notepad"));
    EXPECT_EQ(properties->Item("Day")->Value(), Variant(At(0, 0)));
    EXPECT_EQ(properties->Item("StartTime")->Value(), Variant("09:00"));
    EXPECT_EQ(properties->Item("Project")->Value(), Variant("Alpha"));
    EXPECT_EQ(properties->Item("Description")->Value(), Variant("Plan"));
    EXPECT_EQ(properties->Item("People")->Value(), Variant("Ann;Bob;"));
    EXPECT_EQ(properties->Item("Keyword")->Value(), Variant("<word or phrase to match an activity to this project>"));
    EXPECT_EQ(properties->Item("ApplyPast")->Value(), Variant(false));
    EXPECT_NE(item->EntryID(), "");
    EXPECT_EQ(mLogFolder->Items()->Count(), 1);
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_NoProject_TracesTheWholeRoad)
{
    ASSERT_TRUE(mWorkLog->CreateCalendarItem("", "Plan", "Notepad", "", 5, At(9, 0), At(9, 5), "", false, true));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog CreateCalendarItem - Plan", "TDWorklog GetSyncedWorkLog called",
            "TDWorklog message class of new item: IPM.Appointment.TDActivity1", "TDWorklog Update item ",
            "TDWorklog createsubject: Notepad, Plan", "TDProjectMan PM What Proj: Notepad, Plan  = No Project",
            "TDWorklog createsubject: Notepad, Plan", "TDWorklog calendar item create exit"));
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_ToBeShown_IsDisplayedOnceAndStaysOpen)
{
    int shown = 0;
    mMailbox->SetDisplay([&](const Ref<StoreItem>&) { ++shown; });
    const auto item = mWorkLog->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", true, true);
    EXPECT_EQ(shown, 1);
    const auto traced = Traced();
    ASSERT_GE(traced.size(), 2U);
    EXPECT_EQ(traced[traced.size() - 2], "TDWorklog display");
    EXPECT_EQ(traced.back(), "TDWorklog calendar item create exit");
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_NotToBeSaved_IsDiscarded)
{
    const auto item = mWorkLog->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", false, false);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->EntryID(), "");
    EXPECT_EQ(mLogFolder->Items()->Count(), 0);
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_NoFolder_GivesNothing)
{
    const auto other = MakeRef<TempodialWorkLog>(mPlatform);
    mMailbox->DeleteFolder(mLogFolder);
    other->Initialize(mMain, mApplication, mNamespace, mLog);
    ForgetTrace();
    EXPECT_FALSE(other->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", false, true));
    EXPECT_EQ(Traced().back(), "TDWorklog no Work log");
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_AddFails_GoesOnToItsExit)
{
    mMailbox->DeleteFolder(mLogFolder);
    ForgetTrace();
    EXPECT_FALSE(mWorkLog->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", false, true));
    const auto traced = Traced();
    ASSERT_GE(traced.size(), 2U);
    EXPECT_EQ(traced[traced.size() - 2], "TDWorklog Add failed");
    EXPECT_EQ(traced.back(), "TDWorklog calendar item create exit");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_ProjectByRule_MatchesApplicationAndDescription)
{
    AddProject("Beta", "notepad plan");
    EXPECT_EQ(Activity("")->Mileage(), "Beta");
    EXPECT_EQ(Activity("", "Other")->Mileage(), "No Project");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_ProjectByPeople_IsNotOffered)
{
    AddProject("Beta", "", "Ann");
    EXPECT_EQ(Activity("", "Plan", "Notepad", "Ann;")->Mileage(), "No Project");
}

struct ProjectCase
{
    const char* given;
    const char* present;
    const char* written;
};

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_Continuation_KeepsAProjectOnceGiven)
{
    AddProject("R", "more");
    for (const auto& [given, present, written] : { ProjectCase { "X", "A", "X" }, ProjectCase { "", "A", "A" },
             ProjectCase { "", "No Project", "R" }, ProjectCase { "", "", "" } }) {
        const auto item = Activity("A");
        item->UserProperties()->Item("Project")->SetValue(present);
        EXPECT_EQ(Update(item, given, "more"), 0);
        EXPECT_EQ(Property(item, "Project"), written);
        EXPECT_EQ(item->Mileage(), written);
    }
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_ContinuationOfNoProjectByHand_KeepsItWhereImportsRemember)
{
    AddProject("R", "more");
    for (const bool remembers : { true, false }) {
        mHost.storeJournal->SetRemembers(remembers);
        const auto item = Activity("No Project");
        item.As<StoreItem>()->SetProjectByHand(true);
        EXPECT_EQ(Update(item, "", "more"), 0);
        EXPECT_EQ(Property(item, "Project"), remembers ? "No Project" : "R");
        EXPECT_EQ(item->Mileage(), remembers ? "No Project" : "R");
    }
}

TEST_F(TempodialWorkLogItemsTest, ExtraCalendarItemInfo_ProjectByHand_KeepsIt)
{
    mHost.storeJournal->SetRemembers(true);
    AddProject("R", "detail");
    for (const bool isByHand : { true, false }) {
        const auto item = Activity("A");
        item.As<StoreItem>()->SetProjectByHand(isByHand);
        mWorkLog->ExtraCalendarItemInfo(item, "detail", "Notepad", "", "", At(9, 0), At(9, 5), "text");
        EXPECT_EQ(Property(item, "Project"), isByHand ? "A" : "R");
        EXPECT_EQ(item->Mileage(), isByHand ? "A" : "R");
        EXPECT_THAT(item->Subject(), testing::StartsWith(isByHand ? "[A] Notepad" : "[R] Notepad"));
    }
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_NewItem_IgnoresItsProjectProperty)
{
    AddProject("R", "more");
    const auto item = Activity("A");
    EXPECT_EQ(Update(item, "", "more", true), 0);
    EXPECT_EQ(Property(item, "Project"), "R");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_ProjectPropertyAbsent_KeepsTheRulesAnswer)
{
    AddProject("R", "more");
    const auto item = Appointment("plain");
    EXPECT_EQ(Update(item, "", "more"), 0);
    EXPECT_EQ(Property(item, "Project"), "R");
    EXPECT_THAT(Traced(),
        Contains("TDWorklog update item error Object variable or With block variable not set Fill in Item").Times(1));
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_Continuation_ReplacesEverythingButTheBody)
{
    const auto item
        = mWorkLog->CreateCalendarItem("A", "Plan", "Notepad", "Ann;", 5, At(9, 0), At(9, 5), "text", false, true);
    item->UserProperties()->Item("Keyword")->SetValue("k");
    item->UserProperties()->Item("ApplyPast")->SetValue(true);
    EXPECT_EQ(Update(item, "", "More"), 0);
    EXPECT_EQ(item->End(), At(9, 10));
    EXPECT_EQ(item->Duration(), 10);
    EXPECT_EQ(item->Subject(), "[A] Notepad, More");
    EXPECT_EQ(item->BillingInformation(), "More");
    EXPECT_EQ(item->Body(), "text");
    EXPECT_EQ(Property(item, "Description"), "More");
    EXPECT_EQ(Property(item, "People"), "Eve;");
    EXPECT_EQ(Property(item, "Keyword"), "<word or phrase to match an activity to this project>");
    EXPECT_EQ(Property(item, "ApplyPast"), "False");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_PropertiesAbsent_AreAdded)
{
    const auto item = Appointment("plain");
    EXPECT_EQ(Update(item, "A", "d"), 0);
    for (const auto* name : { "Type", "StartTime", "Project", "Description", "People", "Keyword", "ApplyPast" }) {
        EXPECT_NE(Property(item, name), "(absent)") << name;
    }
    EXPECT_EQ(item->UserProperties()->Item("Day")->Value(), Variant(At(0, 0)));
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_ItemIsOpen_ChangesNothing)
{
    const auto item = Activity("A");
    Open(item);
    EXPECT_EQ(Update(item, "B", "More"), 0);
    EXPECT_EQ(item->End(), At(9, 5));
    EXPECT_EQ(item->Subject(), "[A] Notepad, Plan");
    EXPECT_EQ(Property(item, "Project"), "A");
    EXPECT_EQ(Property(item, "People"), "");
    EXPECT_THAT(
        Traced(), ElementsAre("TDWorklog Update item ", "TDMain IsInspector - open", "TDWorklog It's open, abort"));
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_NewItemIsOpen_IsFilledAllTheSame)
{
    const auto item = Activity("A");
    Open(item);
    EXPECT_EQ(Update(item, "B", "More", true), 0);
    EXPECT_EQ(item->Subject(), "[B] Notepad, More");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_SaveFails_AnswersOneAndStillCloses)
{
    const auto item = Activity("A");
    std::vector<std::string> members;
    const auto observed = ObservedItem(item, [&](const std::string& member) {
        members.push_back(member);
        if (member == "AppointmentItem.Save") {
            throw Failure(Error::DiskFull);
        }
    });
    EXPECT_EQ(Update(observed, "B", "More"), 1);
    EXPECT_EQ(members.back(), "AppointmentItem.Close");
    EXPECT_EQ(Traced().back(), "TDWorklog save failed Disk full");
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_SaveFails_GivesNothing)
{
    Observe(FailingAt("AppointmentItem.Save", Error::DiskFull));
    EXPECT_FALSE(mWorkLog->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", true, true));
    const auto traced = Traced();
    EXPECT_THAT(traced, Contains("TDWorklog save failed Disk full"));
    EXPECT_THAT(traced, Not(Contains("TDWorklog display")));
    EXPECT_THAT(traced, Not(Contains("TDWorklog calendar item create exit")));
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_FormNotPublished_DropsTheItem)
{
    mFormClass = "IPM.Appointment.Other";
    const auto mailbox = Mailbox::Open(":memory:", mPlatform->formats, mPlatform->xml);
    const auto nameSpace = mailbox->NameSpace();
    mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
    mWorkLog->Initialize(mMain, mApplication, nameSpace, mLog);
    const auto folder = mWorkLog->GetSyncedWorkLog(true);
    ForgetTrace();
    EXPECT_FALSE(mWorkLog->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", false, true));
    EXPECT_EQ(folder->Items()->Count(), 0);
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog CreateCalendarItem - d", "TDWorklog GetSyncedWorkLog called",
            "TDWorklog message class of new item: IPM.Appointment"));
}

TEST_F(TempodialWorkLogItemsTest, CreateCalendarItem_ClassCantBeRead_DropsTheItem)
{
    Observe(FailingAt("AppointmentItem.MessageClass"));
    EXPECT_FALSE(mWorkLog->CreateCalendarItem("A", "d", "Notepad", "", 5, At(9, 0), At(9, 5), "", false, true));
    EXPECT_EQ(Traced().back(), "TDWorklog CCI error Automation error set registry");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_AnyMemberFails_WritesTheRestAndTracesTheFailure)
{
    std::vector<std::string> members;
    const auto count = [&](const std::string& member) { members.push_back(member); };
    ASSERT_EQ(Update(ObservedItem(Appointment("first"), count), "", "d"), 0);
    const auto calls = members;
    ASSERT_GT(calls.size(), 30U);
    for (std::size_t failing = 0; failing < calls.size(); ++failing) {
        members.clear();
        const auto item = Appointment("plain");
        ForgetTrace();
        const auto observed = ObservedItem(item, [&](const std::string& member) {
            members.push_back(member);
            if (members.size() == failing + 1) {
                throw Failure(Error::Automation);
            }
        });
        const auto code = Update(observed, "", "d");
        EXPECT_EQ(code, calls[failing] == "AppointmentItem.Save" ? 1 : 0) << calls[failing];
        EXPECT_THAT(Traced(), Contains(HasSubstr("Automation error"))) << calls[failing];
        EXPECT_EQ(members.back(), "AppointmentItem.Close") << calls[failing];
        if (calls[failing] != "AppointmentItem.SetSubject" && calls[failing] != "AppointmentItem.Save") {
            EXPECT_EQ(item->Subject(), "Notepad, d") << calls[failing];
        }
    }
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_ProjectCantBeWritten_NamesItsOldValue)
{
    const auto item = ObservedItem(Activity("A"), FailingAt("UserProperty.SetValue Project"));
    EXPECT_EQ(Update(item, "B", "d"), 0);
    EXPECT_THAT(
        Traced(), Contains("TDWorklog update item error Automation error write props Value - current Value: A"));
    EXPECT_EQ(item->Mileage(), "B");
    EXPECT_EQ(Property(item, "Description"), "d");
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_StepsFail_AreNamed)
{
    const auto traced = [&](const char* member) {
        Update(ObservedItem(Appointment("plain"), FailingAt(member)), "B", "d");
        return Traced();
    };
    const std::string words = "TDWorklog update item error Automation error ";
    EXPECT_THAT(traced("AppointmentItem.UserProperties"), Contains(words + "get item properties"));
    EXPECT_THAT(traced("AppointmentItem.SetStart"), Contains(words + "Fill in Item"));
    EXPECT_THAT(traced("UserProperties.Item Type"), Contains(words + "get props"));
    EXPECT_THAT(traced("UserProperties.Add Day"), Contains(words + "add props"));
    EXPECT_THAT(traced("UserProperty.SetValue People"), Contains(words + "write props"));
    EXPECT_THAT(traced("AppointmentItem.Close"), Contains(words + "write props"));
}

TEST_F(TempodialWorkLogItemsTest, UpdateCalendarItem_NoItem_AnswersOneForTheSave)
{
    EXPECT_EQ(Update(nullptr, "B", "d"), 1);
}

TEST_F(TempodialWorkLogItemsTest, IsContinuable_AnyItem_IsTrue)
{
    EXPECT_TRUE(mWorkLog->IsContinuable(Activity("A")));
    EXPECT_TRUE(mWorkLog->IsContinuable(nullptr));
    EXPECT_THAT(Traced(), IsEmpty());
}

}

}
