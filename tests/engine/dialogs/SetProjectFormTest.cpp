#include "engine/dialogs/SetProjectForm.h"

#include "forms/ComboBoxModel.h"
#include "support/AddInFixture.h"
#include "support/FormUser.h"

#include <utility>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class SetProjectFormTest : public AddInFixture
{
protected:
    SetProjectFormTest()
    {
        mForm->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        mAddIn.Trace();
    }

    /// An activity of today that begins at that minute of the day.
    Ref<AppointmentItem> Activity(std::int32_t minute, const std::string& project = "No Project") const
    {
        const auto start = mAddIn.clock->Now().Day().AddMinutes(minute);
        return mAddIn.main->CreateCalendarItem(
            project, "letter", "Notepad", "", 5, start, start.AddMinutes(5), "", false);
    }
    std::string ProjectOf(const Ref<AppointmentItem>& item) const { return mAddIn.Property(item, "Project").ToText(); }
    /// The range that an OK sets the project on, as it is traced.
    std::string RangeOfOK()
    {
        mAddIn.Trace();
        mUser.Clicks("Command1");
        for (const auto& line : mAddIn.TraceTexts()) {
            if (line.starts_with("Set project on date range ")) {
                return line.substr(26);
            }
        }
        return "(none)";
    }
    void ExpectTimesEnabled(bool enabled) const
    {
        for (const auto* box : { "YearCombo", "MonthCombo", "DayCombo", "FromTimeCombo", "ToTimeCombo" }) {
            EXPECT_EQ(mUser.CanWork(box), enabled) << box;
        }
    }

    Ref<SetProjectForm> mForm = MakeRef<SetProjectForm>(mAddIn.platform);
    FormUser mUser { mAddIn.forms, "SetProjectForm" };
};

TEST_F(SetProjectFormTest, Form_IsLaidOutInItsOrder)
{
    EXPECT_EQ(mUser.Form()->Caption(), "Set Project For Selected Activities");
    EXPECT_THAT(mUser.Controls(),
        ElementsAre("Label1|label|Apply |", "Label7|label|Project:|",
            "ProjectComboBox|combo||Select a project from the dropdown, or create a new project by typing the name "
            "directly into the box.",
            "Label2|label|Apply this project to:|",
            "SelectedCheck|option|&Selected activities  (to select activities, hold down CTRL and click on them)|",
            "SpecifiedCheck|option|&Activities at these times:|", "Label5|label|&Day:|", "YearCombo|combo||",
            "MonthCombo|combo||", "DayCombo|combo||", "Label4|label|&Between:|", "FromTimeCombo|combo||",
            "Label3|label|and|", "ToTimeCombo|combo||", "Label6|label|Options|",
            "OverwriteCheck|check|&Overwrite any existing project |", "Command1|default button|OK|",
            "Command2|cancel button|Cancel|"));
}

TEST_F(SetProjectFormTest, Initialise_FillsTheLists)
{
    const auto form = MakeRef<SetProjectForm>(mAddIn.platform);
    form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("SetProjectForm SetProjectForm Init"));
    for (const auto* box : { "FromTimeCombo", "ToTimeCombo" }) {
        const auto times = mUser.List(box);
        ASSERT_THAT(times, SizeIs(48));
        EXPECT_EQ(times[0], "12:00:00 AM");
        EXPECT_EQ(times[1], "12:30:00 AM");
        EXPECT_EQ(times[17], "8:30:00 AM");
        EXPECT_EQ(times[47], "11:30:00 PM");
    }
    EXPECT_THAT(mUser.List("YearCombo"), ElementsAre("2006", "2007", "2008"));
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(SetProjectFormTest, ShowMe_NoProject_HasTheDefaults)
{
    mForm->ShowMe("");
    EXPECT_TRUE(mUser.Sees());
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Select A Project...");
    EXPECT_THAT(mUser.List("ProjectComboBox"),
        ElementsAre("Critical", "Other", "Personal", "Supportive", "Wish", "No Project"));
    EXPECT_EQ(mUser.Text("YearCombo"), "2006");
    EXPECT_EQ(mUser.Text("MonthCombo"), "Oct");
    EXPECT_EQ(mUser.Text("DayCombo"), "10");
    EXPECT_EQ(mUser.Text("FromTimeCombo"), "12:00:00 AM");
    EXPECT_EQ(mUser.Text("ToTimeCombo"), "11:30:00 PM");
    EXPECT_TRUE(mUser.IsOn("SelectedCheck"));
    EXPECT_FALSE(mUser.IsOn("SpecifiedCheck"));
    EXPECT_FALSE(mUser.IsOn("OverwriteCheck"));
    ExpectTimesEnabled(false);
    EXPECT_THAT(mAddIn.Trace(), Contains("SetProjectForm SetProjectForm ShowMe "));
    mUser.Clicks("Command2");
}

TEST_F(SetProjectFormTest, ShowMe_NoProjectsAtAll_OffersNoProject)
{
    for (const auto* name : { "Critical", "Other", "Personal", "Supportive", "Wish" }) {
        mAddIn.main->DeleteProject(name);
    }
    mForm->ShowMe("");
    EXPECT_THAT(mUser.List("ProjectComboBox"), ElementsAre("No Project"));
    mUser.Clicks("Command2");
}

TEST_F(SetProjectFormTest, SpecifiedCheck_EnablesTheTimes_AndTheOtherLeavesThem)
{
    mForm->ShowMe("");
    mUser.Picks("SpecifiedCheck");
    EXPECT_FALSE(mUser.IsOn("SelectedCheck"));
    ExpectTimesEnabled(true);
    mUser.Picks("SelectedCheck");
    EXPECT_FALSE(mUser.IsOn("SpecifiedCheck"));
    ExpectTimesEnabled(true);
    mUser.Clicks("Command2");
}

TEST_F(SetProjectFormTest, OK_NoProjectChosen_OnlyCloses)
{
    const auto item = Activity(9 * 60);
    mAddIn.explorer->Select({ item });
    mForm->ShowMe("");
    mAddIn.Trace();
    mUser.Clicks("Command1");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("SetProjectForm Set project", "SetProjectForm ReportForm term"));
    EXPECT_EQ(ProjectOf(item), "No Project");
    EXPECT_THAT(mAddIn.messageBox->TakeTexts(), IsEmpty());
}

TEST_F(SetProjectFormTest, OK_WithAProject_SetsItOnTheSelection)
{
    const auto item = Activity(9 * 60);
    const auto other = Activity(10 * 60);
    mAddIn.explorer->Select({ item });
    mForm->ShowMe("Critical");
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Critical");
    EXPECT_EQ(RangeOfOK(), "[12:00:00 AM, 12:00:00 AM)");
    EXPECT_EQ(ProjectOf(item), "Critical");
    EXPECT_EQ(ProjectOf(other), "No Project");
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(SetProjectFormTest, OK_NewName_CreatesTheProject)
{
    const auto item = Activity(9 * 60);
    mAddIn.explorer->Select({ item });
    mForm->ShowMe("");
    mUser.Types("ProjectComboBox", "Zeta");
    mUser.Clicks("Command1");
    EXPECT_EQ(ProjectOf(item), "Zeta");
    std::vector<std::string> projects;
    mAddIn.main->GetProjects(projects, false, false, false);
    EXPECT_THAT(projects, Contains("Zeta"));
    EXPECT_EQ(mAddIn.main->GetProjectPrecedence("Zeta"), "2");
    EXPECT_EQ(mAddIn.main->GetProjectSubRule("Zeta"), "");
}

TEST_F(SetProjectFormTest, OK_NoProjectFromTheList_IsSetAsAnyName)
{
    const auto item = Activity(9 * 60, "Critical");
    mAddIn.explorer->Select({ item });
    mForm->ShowMe("");
    mUser.Chooses("ProjectComboBox", "No Project");
    mUser.Checks("OverwriteCheck");
    mUser.Clicks("Command1");
    EXPECT_EQ(ProjectOf(item), "No Project");
}

TEST_F(SetProjectFormTest, OK_Overwrite_ReachesItemsWithAProject)
{
    for (const bool overwrite : { false, true }) {
        const auto item = Activity(9 * 60, "Wish");
        mAddIn.explorer->Select({ item });
        const auto form = MakeRef<SetProjectForm>(mAddIn.platform);
        form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        form->ShowMe("Critical");
        mUser.Checks("OverwriteCheck", overwrite);
        mUser.Clicks("Command1");
        EXPECT_EQ(ProjectOf(item), overwrite ? "Critical" : "Wish");
    }
}

TEST_F(SetProjectFormTest, OK_Times_SetTheItemsBetween)
{
    const auto before = Activity(8 * 60);
    const auto first = Activity(8 * 60 + 30);
    const auto last = Activity(21 * 60);
    const auto behind = Activity(21 * 60 + 15);
    mAddIn.explorer->Select({ before });
    mForm->ShowMe("Critical");
    mUser.Picks("SpecifiedCheck");
    mUser.Chooses("FromTimeCombo", "8:30:00 AM");
    mUser.Types("ToTimeCombo", "9:15:59 PM");
    EXPECT_EQ(RangeOfOK(), "[10/10/2006 8:30:00 AM, 10/10/2006 9:15:00 PM)");
    EXPECT_EQ(ProjectOf(before), "No Project") << "the selection isn't asked";
    EXPECT_EQ(ProjectOf(first), "Critical");
    EXPECT_EQ(ProjectOf(last), "Critical");
    EXPECT_EQ(ProjectOf(behind), "No Project");
}

TEST_F(SetProjectFormTest, OK_EachTime_IsByListOrText)
{
    struct Case
    {
        std::string chosen;
        std::string typed;
        std::string expected;
    };
    for (const auto& [chosen, typed, expected] : {
             Case { "8:30:00 AM", "", "10/10/2006 8:30:00 AM" },
             Case { "11:30:00 PM", "", "10/10/2006 11:30:00 PM" },
             Case { "", "9:15:59 PM", "10/10/2006 9:15:00 PM" },
             Case { "", "14:05", "10/10/2006 2:05:00 PM" },
             Case { "", "1/2/2007 9:05:00 AM", "10/10/2006 9:05:00 AM" },
         }) {
        const auto form = MakeRef<SetProjectForm>(mAddIn.platform);
        form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        form->ShowMe("Critical");
        mUser.Picks("SpecifiedCheck");
        if (typed.empty()) {
            mUser.Chooses("ToTimeCombo", chosen);
        } else {
            mUser.Types("ToTimeCombo", typed);
        }
        EXPECT_EQ(RangeOfOK(), "[10/10/2006, " + expected + ")");
    }
}

TEST_F(SetProjectFormTest, OK_DefaultTimes_AreTheWholeDayToHalfPastEleven)
{
    mForm->ShowMe("Critical");
    mUser.Picks("SpecifiedCheck");
    EXPECT_EQ(RangeOfOK(), "[10/10/2006, 10/10/2006 11:30:00 PM)");
}

TEST_F(SetProjectFormTest, OK_TimesThatCanNotBeRead_AreTracedAndCountAsMidnight)
{
    for (const auto* time : { "24:00", "", "noon" }) {
        const auto form = MakeRef<SetProjectForm>(mAddIn.platform);
        form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        form->ShowMe("Critical");
        mUser.Picks("SpecifiedCheck");
        mUser.Types("FromTimeCombo", time);
        mAddIn.Trace();
        mUser.Clicks("Command1");
        EXPECT_THAT(mAddIn.TraceTexts(),
            testing::IsSupersetOf({ "Error setting Type mismatch:specified",
                "Set project on date range [10/10/2006, 10/10/2006 11:30:00 PM)", "Set project toCritical" }));
    }
}

TEST_F(SetProjectFormTest, OK_FromBehindTo_IsPassedOn)
{
    mForm->ShowMe("Critical");
    mUser.Picks("SpecifiedCheck");
    mUser.Chooses("FromTimeCombo", "11:00:00 PM");
    mUser.Chooses("ToTimeCombo", "8:30:00 AM");
    EXPECT_EQ(RangeOfOK(), "[10/10/2006 11:00:00 PM, 10/10/2006 8:30:00 AM)");
    EXPECT_THAT(mAddIn.messageBox->TakeTexts(), IsEmpty());
}

TEST_F(SetProjectFormTest, OK_DayThatIsNone_IsTheZeroDay)
{
    mForm->ShowMe("Critical");
    mUser.Picks("SpecifiedCheck");
    mUser.Types("YearCombo", "abc");
    EXPECT_EQ(RangeOfOK(), "[12:00:00 AM, 11:30:00 PM)");
}

TEST_F(SetProjectFormTest, EachEnd_LetsTheFormGo)
{
    mForm = nullptr;
    const auto known = mAddIn.forms->Forms().size();
    const std::function<void()> ends[] = {
        [&] { mUser.Clicks("Command1"); },
        [&] { mUser.Clicks("Command2"); },
        [&] { EXPECT_TRUE(mUser.Closes()); },
    };
    for (const auto& end : ends) {
        auto form = MakeRef<SetProjectForm>(mAddIn.platform);
        const std::weak_ptr<SetProjectForm> alive = form.Shared();
        form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        form->ShowMe("");
        form = nullptr;
        ASSERT_FALSE(alive.expired());
        mAddIn.Trace();
        end();
        EXPECT_TRUE(alive.expired());
        EXPECT_EQ(mAddIn.forms->Forms().size(), known);
        EXPECT_THAT(mAddIn.Trace(), Contains("SetProjectForm ReportForm term"));
    }
}

TEST_F(SetProjectFormTest, HostEnds_FormOnTheScreen_LetsTheFormGo)
{
    const std::weak_ptr<SetProjectForm> alive = mForm.Shared();
    mForm->ShowMe("Critical");
    mForm = nullptr;
    mAddIn.Disconnect();
    EXPECT_FALSE(alive.expired());
    mAddIn.forms->CloseAll();
    EXPECT_TRUE(alive.expired());
}

TEST_F(SetProjectFormTest, Cancel_SetsNothing)
{
    const auto item = Activity(9 * 60);
    mAddIn.explorer->Select({ item });
    mForm->ShowMe("Critical");
    mAddIn.Trace();
    mUser.Clicks("Command2");
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("SetProjectForm ReportForm term"));
    EXPECT_EQ(ProjectOf(item), "No Project");
}

TEST_F(SetProjectFormTest, OK_FormOrAddInEndsDuringTheJob_IsComeThrough)
{
    const std::function<void()> ends[] = {
        [&] { mUser.Clicks("Command2"); },
        [&] { EXPECT_TRUE(mUser.Closes()); },
        [&] { mUser.Clicks("Command1"); },
        [&] { mAddIn.Disconnect(); },
    };
    std::int32_t begin = 0;
    for (const auto& end : ends) {
        // Going to the work log imports, and the import lets messages be processed.
        std::vector<std::string> slots;
        for (const auto* document : { "a.doc", "b.doc", "c.doc", "d.doc" }) {
            slots.push_back(WordSlot(begin, begin + 300, document));
            begin += 300;
        }
        mAddIn.WriteTracker("20061010", slots);
        mAddIn.clock->Advance(60);
        const auto inbox = mAddIn.mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox);
        mAddIn.explorer->GoTo(inbox);
        const auto form = MakeRef<SetProjectForm>(mAddIn.platform);
        form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        form->ShowMe("Critical");
        mUser.Picks("SpecifiedCheck");
        bool ended = false;
        mAddIn.eventPump->hook = [&] {
            if (!std::exchange(ended, true)) {
                end();
            }
        };
        mUser.Clicks("Command1");
        mAddIn.eventPump->hook = nullptr;
        EXPECT_TRUE(ended);
        EXPECT_FALSE(mUser.Sees());
    }
}

TEST_F(SetProjectFormTest, Forms_NoneAtAll_CostLines)
{
    mAddIn.platform->forms = nullptr;
    const auto form = MakeRef<SetProjectForm>(mAddIn.platform);
    form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
    const std::string notSet = "Object variable or With block variable not set:";
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("Error SetProjectForm Init" + notSet));
    form->ShowMe("");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("Error ShowMe" + notSet));
}

}
