#include "engine/reports/TempodialAnalyser.h"

#include "engine/dialogs/ProgressBarForm.h"
#include "forms/ButtonModel.h"
#include "forms/FormModel.h"
#include "support/WorkLogFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace tempodial {

namespace {

class TempodialAnalyserTest : public WorkLogFixture
{
protected:
    TempodialAnalyserTest() { Start(mApplication); }

    void Start(const Ref<Application>& application)
    {
        mAnalyser = MakeRef<TempodialAnalyser>(mPlatform);
        mAnalyser->Initialize(mMain, application, mLog);
        ForgetTrace();
    }
    /// A saved activity of five minutes from a moment on.
    Ref<AppointmentItem> ActivityAt(
        Date start, const std::string& project = "", const std::string& description = "Plan")
    {
        auto item = mWorkLog->CreateCalendarItem(
            project, description, "Notepad", "", 5, start, start.AddMinutes(5), "", false, true);
        ForgetTrace();
        return item;
    }
    static std::string ProjectOf(const Ref<AppointmentItem>& item) { return Property(item, "Project"); }
    /// Clicks Cancel when the progress form is updated that many times.
    void CancelAtUpdate(int update)
    {
        mEventPump->hook = [this, update, count = 0]() mutable {
            if (++count == update) {
                const auto form = mForms->NewestVisible("ProgressBarForm");
                form->Control("LoadCancel").As<ButtonModel>()->Click();
            }
        };
    }

    Ref<TempodialAnalyser> mAnalyser;
};

TEST_F(TempodialAnalyserTest, ReturnMatchingItem_EndInThatMinute_IsFound)
{
    const auto item = ActivityAt(At(10, 0, 30));
    const auto found = mAnalyser->ReturnMatchingItem("End", At(10, 5, 10));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->EntryID(), item->EntryID());
    EXPECT_THAT(Traced(),
        ElementsAre("TDMain Get log", "TDWorklog GetSyncedWorkLog called",
            "TDAnalyser ReturnItem by End: 10/10/2006 10:05:10 AM search on: [End] = \"10/10/2006 10:05 AM\"",
            "TDAnalyser found one"));
}

TEST_F(TempodialAnalyserTest, ReturnMatchingItem_NothingEndsThen_GivesNothing)
{
    ActivityAt(At(10, 0));
    EXPECT_FALSE(mAnalyser->ReturnMatchingItem("End", At(10, 4, 59)));
    EXPECT_EQ(Traced().back(), "TDAnalyser didn't find one");
}

TEST_F(TempodialAnalyserTest, ReturnMatchingItem_SearchFails_GivesNothing)
{
    EXPECT_FALSE(mAnalyser->ReturnMatchingItem("No such [thing", At(10, 5)));
    const auto traced = Traced();
    ASSERT_GE(traced.size(), 2U);
    EXPECT_THAT(traced[traced.size() - 2], HasSubstr("TDAnalyser ReturnMatchingItem:"));
    EXPECT_EQ(traced.back(), "TDAnalyser didn't find one");
}

TEST_F(TempodialAnalyserTest, ApplyProject_Days_AreTodayAndThoseBefore)
{
    AddProject("Beta", "plan");
    std::vector<Ref<AppointmentItem>> items;
    for (int day = 0; day < 8; ++day) {
        items.push_back(ActivityAt(At(10, 0).AddDays(-day), "A"));
    }
    mAnalyser->ApplyProject("Beta", 1);
    EXPECT_EQ(ProjectOf(items[0]), "Beta");
    EXPECT_EQ(ProjectOf(items[1]), "A");
    mAnalyser->ApplyProject("Beta", 7);
    EXPECT_EQ(ProjectOf(items[6]), "Beta");
    EXPECT_EQ(ProjectOf(items[7]), "A");
    EXPECT_FALSE(mForms->NewestVisible("ProgressBarForm"));
}

TEST_F(TempodialAnalyserTest, ApplyProject_Log_IsBroughtOnScreenFirst)
{
    mAnalyser->ApplyProject("Beta", 0);
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), mLogFolder->EntryID());
    const auto traced = Traced();
    EXPECT_EQ(traced.front(), "TDMain Switch to the task log now");
    EXPECT_EQ(traced.back(), "TDAnalyser ApplyProject called");
}

TEST_F(TempodialAnalyserTest, ApplyProject_MatchingItem_IsSavedAndOthersAreLeft)
{
    AddProject("Beta", "plan");
    const auto matching = ActivityAt(At(10, 0), "A", "Plan");
    const auto other = ActivityAt(At(11, 0), "A", "Other");
    mAnalyser->ApplyProject("Beta", 1);
    EXPECT_EQ(matching->Subject(), "[Beta] Notepad, Plan");
    EXPECT_EQ(matching->Mileage(), "Beta");
    EXPECT_FALSE(matching.As<StoreItem>()->HasChanges());
    EXPECT_EQ(ProjectOf(other), "A");
}

TEST_F(TempodialAnalyserTest, ApplyProjectForDay_Day_TracesTheWholeRoad)
{
    AddProject("Beta", "plan");
    ActivityAt(At(10, 0), "Beta", "Other");
    mAnalyser->ApplyProjectForDay("Beta", At(0, 0), MakeRef<ProgressBarForm>(mPlatform));
    EXPECT_THAT(Traced(),
        ElementsAre("TDMain Get log", "TDWorklog GetSyncedWorkLog called",
            "TDAnalyser start: 10/10/2006 12:00 AM end: 10/10/2006 11:59 PM", "TDAnalyser create dayitm",
            "TDAnalyser init progress bar", "TDAnalyser show progress bar", "TDAnalyser iterate",
            "TDAnalyser iterate item: [Beta] Notepad, Other", "TDAnalyser trying apply to item: [Beta] Notepad, Other",
            "TDWorklog check if project matches", "TDWorklog createsubject: Notepad, Other",
            "TDProjectMan PM isProject: Beta desc: Notepad, Other", "TDAnalyser checked getinspector"));
}

TEST_F(TempodialAnalyserTest, ApplyProjectForDay_MatchingItem_IsTracedAsSaved)
{
    AddProject("Beta", "plan");
    ActivityAt(At(10, 0), "Beta");
    mAnalyser->ApplyProjectForDay("Beta", At(0, 0), MakeRef<ProgressBarForm>(mPlatform));
    EXPECT_THAT(Traced(), Contains("TDAnalyser matched, save it"));
}

TEST_F(TempodialAnalyserTest, ApplyProjectForDay_Bounds_AreTheWholeDay)
{
    AddProject("Beta", "plan");
    const auto before = ActivityAt(At(0, 0).AddSeconds(-1), "A");
    const auto first = ActivityAt(At(0, 0), "A");
    const auto last = ActivityAt(At(23, 59, 30), "A");
    const auto after = ActivityAt(At(0, 0).AddDays(1), "A");
    mAnalyser->ApplyProjectForDay("Beta", At(0, 0), MakeRef<ProgressBarForm>(mPlatform));
    EXPECT_EQ(ProjectOf(before), "A");
    EXPECT_EQ(ProjectOf(first), "Beta");
    EXPECT_EQ(ProjectOf(last), "Beta");
    EXPECT_EQ(ProjectOf(after), "A");
}

TEST_F(TempodialAnalyserTest, ApplyProjectForDay_Form_ShowsTheDay)
{
    ActivityAt(At(10, 0));
    ActivityAt(At(11, 0));
    std::vector<std::string> shown;
    mEventPump->hook = [&] {
        const auto form = mForms->NewestVisible("ProgressBarForm");
        const auto label = [&](const char* name) { return form->Control(name).As<Label>()->Caption(); };
        const auto bar = form->Control("ProgressBar1").As<ProgressBar>();
        shown.push_back(form->Caption() + "; " + label("Label1") + "; " + label("Label2") + "; "
            + std::to_string(bar->Value()) + " of " + std::to_string(bar->Max()));
    };
    mAnalyser->ApplyProject("Beta", 1);
    EXPECT_THAT(shown,
        ElementsAre("Tempodial; Updating items...; updating 10/10/2006; 1 of 40",
            "Tempodial; Updating items...; updating 10/10/2006; 2 of 40"));
}

TEST_F(TempodialAnalyserTest, ApplyProjectForDay_NoItems_ShowsTheFormAndMovesOn)
{
    const auto progress = MakeRef<ProgressBarForm>(mPlatform);
    EXPECT_FALSE(mAnalyser->ApplyProjectForDay("Beta", At(0, 0), progress));
    EXPECT_TRUE(mForms->NewestVisible("ProgressBarForm"));
    EXPECT_EQ(Traced().back(), "TDAnalyser iterate");
}

TEST_F(TempodialAnalyserTest, ApplyProjectForDay_OpenItem_IsPassedOver)
{
    AddProject("Beta", "plan");
    const auto item = ActivityAt(At(10, 0), "A");
    Open(item);
    EXPECT_FALSE(mAnalyser->ApplyProjectForDay("Beta", At(0, 0), MakeRef<ProgressBarForm>(mPlatform)));
    EXPECT_EQ(ProjectOf(item), "A");
    const auto traced = Traced();
    EXPECT_THAT(traced, Not(Contains(HasSubstr("trying apply"))));
    EXPECT_EQ(traced.back(), "TDAnalyser checked getinspector");
}

TEST_F(TempodialAnalyserTest, ApplyProject_CancelledWithinADay_KeepsWhatWasDone)
{
    AddProject("Beta", "plan");
    std::vector<Ref<AppointmentItem>> items;
    for (int day = 0; day < 4; ++day) {
        items.push_back(ActivityAt(At(10, 0).AddDays(-day), "A"));
        items.push_back(ActivityAt(At(11, 0).AddDays(-day), "A"));
    }
    CancelAtUpdate(5);
    mAnalyser->ApplyProject("Beta", 7);
    for (std::size_t index = 0; index < items.size(); ++index) {
        EXPECT_EQ(ProjectOf(items[index]), index < 5 ? "Beta" : "A") << index;
    }
    EXPECT_FALSE(mForms->NewestVisible("ProgressBarForm"));
}

TEST_F(TempodialAnalyserTest, ApplyProject_AddInEndsMeanwhile_Stops)
{
    AddProject("Beta", "plan");
    const auto first = ActivityAt(At(10, 0), "A");
    const auto second = ActivityAt(At(11, 0), "A");
    mEventPump->hook = [&] { mMain->Terminate(); };
    mMain->ApplyProject("Beta", 7);
    EXPECT_EQ(ProjectOf(first), "Beta");
    EXPECT_EQ(ProjectOf(second), "A");
}

TEST_F(TempodialAnalyserTest, ApplyProject_NoWorkLog_TracesTheFailureOfEachDay)
{
    mMailbox->DeleteFolder(mLogFolder);
    mAnalyser->ApplyProject("Beta", 2);
    EXPECT_THAT(Traced(), Contains(HasSubstr("TDAnalyser ApplyProject:")).Times(4));
}

TEST_F(TempodialAnalyserTest, SetProjectForItem_ItemWithoutProject_GetsIt)
{
    const auto item = ActivityAt(At(10, 0));
    mAnalyser->SetProjectForItem("Beta", item, false);
    EXPECT_EQ(ProjectOf(item), "Beta");
    EXPECT_EQ(item->Mileage(), "Beta");
    EXPECT_EQ(item->Subject(), "[Beta] Notepad, Plan");
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
    EXPECT_EQ(Traced().front(), "TDAnalyser Set project to Beta");
}

TEST_F(TempodialAnalyserTest, SetProjectForItem_ItemWithProject_KeepsItUnlessOverridden)
{
    const auto item = ActivityAt(At(10, 0), "A");
    mAnalyser->SetProjectForItem("Beta", item, false);
    EXPECT_EQ(ProjectOf(item), "A");
    mAnalyser->SetProjectForItem("Beta", item, true);
    EXPECT_EQ(ProjectOf(item), "Beta");
}

TEST_F(TempodialAnalyserTest, SetProjectForItem_ProjectPropertyAbsent_KeepsTheItem)
{
    const auto item = Appointment("plain");
    mAnalyser->SetProjectForItem("Beta", item, false);
    EXPECT_EQ(item->Mileage(), "");
    EXPECT_THAT(Traced(),
        ElementsAre("TDAnalyser Set project to Beta",
            "TDWorklog getattribute error value 91 Object variable or With block variable not set"));
}

TEST_F(TempodialAnalyserTest, SetProjectForItem_OpenItem_IsLeft)
{
    const auto item = ActivityAt(At(10, 0));
    Open(item);
    mAnalyser->SetProjectForItem("Beta", item, true);
    EXPECT_EQ(ProjectOf(item), "No Project");
}

TEST_F(TempodialAnalyserTest, SetProjectForItem_SaveFails_IsTracedAndTheItemClosed)
{
    std::vector<std::string> members;
    const auto item = ObservedItem(ActivityAt(At(10, 0)), [&](const std::string& member) {
        members.push_back(member);
        if (member == "AppointmentItem.Save") {
            throw Failure(Error::DiskFull);
        }
    });
    mAnalyser->SetProjectForItem("Beta", item, true);
    EXPECT_EQ(members.back(), "AppointmentItem.Close");
    EXPECT_EQ(Traced().back(), "TDAnalyser setproject:Disk full");
}

TEST_F(TempodialAnalyserTest, SetProjectForRange_Items_AreThoseThatStartInItBeforeItsEnd)
{
    const auto before = ActivityAt(At(8, 29, 59));
    const auto first = ActivityAt(At(8, 30));
    const auto kept = ActivityAt(At(9, 0), "A");
    const auto last = ActivityAt(At(23, 29, 59));
    const auto after = ActivityAt(At(23, 30));
    mAnalyser->SetProjectForRange("Beta", At(8, 30), At(23, 30), false);
    EXPECT_EQ(ProjectOf(before), "No Project");
    EXPECT_EQ(ProjectOf(first), "Beta");
    EXPECT_EQ(ProjectOf(kept), "A");
    EXPECT_EQ(ProjectOf(last), "Beta");
    EXPECT_EQ(ProjectOf(after), "No Project");
    mAnalyser->SetProjectForRange("Beta", At(8, 30), At(23, 30), true);
    EXPECT_EQ(ProjectOf(kept), "Beta");
    EXPECT_EQ(ProjectOf(after), "No Project");
}

TEST_F(TempodialAnalyserTest, SetProjectForRange_NoItems_TracesTheWholeRoad)
{
    mExplorer->GoTo(mLogFolder);
    ForgetTrace();
    mAnalyser->SetProjectForRange("Beta", At(8, 30), At(23, 30), false);
    EXPECT_THAT(Traced(),
        ElementsAre("TDAnalyser Set project range to Beta", "TDMain Get log", "TDWorklog GetSyncedWorkLog called",
            "TDAnalyser start: 10/10/2006 8:30 AM end: 10/10/2006 11:30 PM", "TDMain Switch to the task log now",
            "TDWorklog GetSyncedWorkLog called", "TDWorklog go to log", "TDMain Switched"));
}

TEST_F(TempodialAnalyserTest, SetProjectForRange_Form_IsNotShown)
{
    ActivityAt(At(10, 0));
    mAnalyser->SetProjectForRange("Beta", At(8, 30), At(23, 30), false);
    EXPECT_FALSE(mForms->NewestVisible("ProgressBarForm"));
}

TEST_F(TempodialAnalyserTest, SetProjectForSelectedItems_OneItem_BringsTheLogOnScreenFirst)
{
    const auto item = ActivityAt(At(10, 0));
    mExplorer->Select({ item });
    mAnalyser->SetProjectForSelectedItems("Beta", false);
    EXPECT_EQ(ProjectOf(item), "Beta");
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), mLogFolder->EntryID());
    const auto traced = Traced();
    EXPECT_EQ(traced[0], "TDWorklog Check item 2: IPM.Appointment.TDActivity1, Notepad, Plan");
    EXPECT_EQ(traced[1], "TDMain Switch to the task log now");
    EXPECT_THAT(traced, Not(Contains(HasSubstr("Set selected item's project"))));
}

TEST_F(TempodialAnalyserTest, SetProjectForSelectedItems_MoreItems_SetsEachActivityWhereItIs)
{
    const auto first = ActivityAt(At(10, 0));
    const auto second = ActivityAt(At(11, 0), "A");
    const auto plain = Appointment("plain");
    mExplorer->Select({ first, plain, nullptr, second });
    mAnalyser->SetProjectForSelectedItems("Beta", true);
    EXPECT_EQ(ProjectOf(first), "Beta");
    EXPECT_EQ(ProjectOf(second), "Beta");
    EXPECT_EQ(ProjectOf(plain), "(absent)");
    EXPECT_THAT(mWindowUses, Not(Contains("Explorer.SetCurrentFolder")));
    EXPECT_THAT(Traced(), Contains("TDAnalyser Set selected item's project toBeta").Times(2));
}

TEST_F(TempodialAnalyserTest, SetProjectForSelectedItems_OnePlainAppointment_DoesNothing)
{
    const auto plain = Appointment("plain");
    mExplorer->Select({ plain });
    mAnalyser->SetProjectForSelectedItems("Beta", true);
    EXPECT_EQ(plain->Mileage(), "");
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog Check item 2: IPM.Appointment, plain"));
}

TEST_F(TempodialAnalyserTest, SetProjectForSelectedItems_NoExplorer_TracesTheFailure)
{
    mApplication->hasActiveExplorer = false;
    mAnalyser->SetProjectForSelectedItems("Beta", true);
    EXPECT_THAT(
        Traced(), Contains("TDAnalyser setprojectforitems:Object variable or With block variable not set").Times(2));
}

TEST_F(TempodialAnalyserTest, Terminate_Analyser_LetsGoOfTheMainObject)
{
    const auto uses = mMain.Shared().use_count();
    mAnalyser->Terminate();
    EXPECT_EQ(mMain.Shared().use_count(), uses - 1);
}

}

}
