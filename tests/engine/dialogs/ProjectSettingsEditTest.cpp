#include "engine/dialogs/ProjectSettingsFixture.h"
#include "forms/ComboBoxModel.h"

#include <utility>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ProjectSettingsEditTest : public ProjectSettingsFixture
{
protected:
    ProjectSettingsEditTest() { ShowFor("Beta"); }
};

TEST_F(ProjectSettingsEditTest, OtherProject_NothingEdited_IsShown)
{
    mUser.Chooses("ProjectComboBox", "Delta");
    ExpectClean("Delta");
    EXPECT_EQ(mUser.Text("PrecedenceCombo"), "Low");
    EXPECT_EQ(mUser.Text("SubjectText"), "deltaword");
    EXPECT_EQ(mUser.Text("NotSubjectText"), "");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, OtherProject_NewNameTyped_IsRefusedUntilItIsSavedOrCancelled)
{
    mUser.Types("ProjectComboBox", "Zeta");
    mUser.Chooses("ProjectComboBox", "Delta");
    ASSERT_EQ(mMessages->shown.size(), 1U);
    EXPECT_EQ(mMessages->shown[0],
        (CannedMessageBox::Box { "You must save or cancel your last change.", { Answer::Ok }, MessageIcon::None }));
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Zeta");
    EXPECT_EQ(mUser.Get<ComboBoxModel>("ProjectComboBox")->ListIndex(), -1);
    EXPECT_EQ(mUser.Text("SubjectText"), "betaword");
    EXPECT_TRUE(mUser.CanWork("SaveButton"));
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("prepared complete for Zetaprepared? False"));
    mUser.Clicks("CancelButton");
    EXPECT_THAT(Projects(), Not(Contains("Zeta")));
    ShowFor("Delta");
    ExpectClean("Delta");
}

TEST_F(ProjectSettingsEditTest, OtherProject_NameTypedBackToItself_AsksOnlyForRules)
{
    mUser.Types("ProjectComboBox", "Zeta");
    mUser.Types("ProjectComboBox", "Beta");
    mUser.Chooses("ProjectComboBox", "Delta");
    ExpectClean("Delta");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, OtherProject_EditsThenNo_AreGone)
{
    mUser.Types("SubjectText", "edited");
    mUser.Types("NotSubjectText", "edited too");
    mMessages->NextAnswer(Answer::No);
    mUser.Chooses("ProjectComboBox", "Delta");
    EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("Do you want to save the changes to Beta?"));
    ExpectClean("Delta");
    EXPECT_EQ(mUser.Text("SubjectText"), "deltaword");
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
}

TEST_F(ProjectSettingsEditTest, OtherProject_EditsThenYes_SavesButAppliesNothing)
{
    const auto item = Activity("edited", 1);
    mUser.Types("SubjectText", "edited");
    mUser.Chooses("PrecedenceCombo", "High");
    mUser.Checks("ApplyPastCheck");
    mMessages->NextAnswer(Answer::Yes);
    mAddIn.Trace();
    mUser.Chooses("ProjectComboBox", "Delta");
    EXPECT_EQ(CountTraced("PSF Lists"), 0) << "no refresh on this road";
    ExpectClean("Delta");
    EXPECT_EQ(Project("Beta"), "1|edited|notbeta");
    EXPECT_EQ(ProjectOf(item), "No Project");
}

TEST_F(ProjectSettingsEditTest, OtherProject_EditsThenCancel_StaysWithTheEdits)
{
    mUser.Types("SubjectText", "edited");
    mMessages->NextAnswer(Answer::Cancel);
    mUser.Chooses("ProjectComboBox", "Delta");
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Beta");
    EXPECT_EQ(mUser.Text("SubjectText"), "edited");
    EXPECT_TRUE(mUser.CanWork("SaveButton"));
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
    mMessages->TakeTexts();
    mUser.Clicks("SaveButton");
    EXPECT_EQ(Project("Beta"), "2|edited|notbeta");
}

TEST_F(ProjectSettingsEditTest, OtherProject_PrecedenceClicked_AsksToo)
{
    mUser.Chooses("PrecedenceCombo", "Low");
    mMessages->NextAnswer(Answer::Yes);
    mUser.Chooses("ProjectComboBox", "Alpha");
    EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("Do you want to save the changes to Beta?"));
    EXPECT_EQ(Project("Beta"), "3|betaword|notbeta");
    ExpectClean("Alpha");
}

TEST_F(ProjectSettingsEditTest, OtherProject_YesButUnknownPrecedence_StaysAndTellsTwice)
{
    mUser.Types("SubjectText", "edited");
    mUser.Types("PrecedenceCombo", "Urgent");
    mMessages->NextAnswer(Answer::Yes);
    mUser.Chooses("ProjectComboBox", "Alpha");
    EXPECT_THAT(mMessages->TakeTexts(),
        ElementsAre(
            "Do you want to save the changes to Beta?", "Invalid precedence selected", "Invalid precedence selected"));
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Beta");
    EXPECT_EQ(mUser.Text("SubjectText"), "edited");
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
}

TEST_F(ProjectSettingsEditTest, OtherProject_NewProjectEntry_IsShownAsAnyOther)
{
    mUser.Chooses("ProjectComboBox", NewProject);
    ExpectClean(NewProject);
    EXPECT_EQ(mUser.Text("PrecedenceCombo"), "Medium");
    EXPECT_EQ(mUser.Text("SubjectText"), "");
}

TEST_F(ProjectSettingsEditTest, Apply_NewName_CreatesItAndRefreshesTheLists)
{
    mUser.Types("ProjectComboBox", "Zeta");
    mUser.Types("SubjectText", "zetaword");
    mUser.Chooses("PrecedenceCombo", "Low");
    mAddIn.Trace();
    mUser.Clicks("SaveButton");
    EXPECT_TRUE(mUser.Sees());
    ExpectClean("Zeta");
    EXPECT_EQ(Project("Zeta"), "3|zetaword|notbeta") << "with the rules on show";
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
    EXPECT_THAT(mUser.List("ProjectComboBox"), ElementsAre("Alpha", "Beta", "Gamma", "Delta", "Zeta", NewProject));
    EXPECT_EQ(CountTraced("UpdateProjectDropdown"), 1);
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, Apply_TracesItsSteps)
{
    mUser.Types("SubjectText", "edited");
    mAddIn.Trace();
    mUser.Clicks("SaveButton");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(lines.at(0), "save clicked for Beta");
    EXPECT_EQ(lines.at(1), "PSF Save");
    EXPECT_THAT(lines, Contains("saved on current: Beta"));
    mUser.Types("SubjectText", "more");
    mAddIn.Trace();
    mUser.Clicks("SaveandCloseButton");
    EXPECT_EQ(mAddIn.TraceTexts().at(0), "save and close clicked for Beta");
}

TEST_F(ProjectSettingsEditTest, Save_RefusedName_ShowsTheMessageAndStays)
{
    for (const auto& [name, message] : { std::pair { "a|b", "Project names may not include the | character." },
             std::pair { "No Project", "Invalid project selected" },
             std::pair { NewProject, "Invalid project selected" } }) {
        for (const auto* button : { "SaveButton", "SaveandCloseButton" }) {
            mUser.Types("ProjectComboBox", name);
            mMessages->shown.clear();
            mUser.Clicks(button);
            ASSERT_EQ(mMessages->shown.size(), 1U);
            EXPECT_EQ(mMessages->shown[0], (CannedMessageBox::Box { message, { Answer::Ok }, MessageIcon::None }));
            EXPECT_TRUE(mUser.Sees());
            EXPECT_TRUE(mUser.CanWork("SaveButton"));
            EXPECT_EQ(mUser.Text("ProjectComboBox"), name);
        }
    }
    EXPECT_THAT(Projects(), ElementsAre("Alpha", "Beta", "Gamma", "Delta"));
}

TEST_F(ProjectSettingsEditTest, Save_UnknownPrecedence_TellsTwice)
{
    for (const auto* button : { "SaveButton", "SaveandCloseButton" }) {
        mUser.Types("SubjectText", std::string("edited ") + button);
        mUser.Types("PrecedenceCombo", "high");
        mUser.Clicks(button);
        EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("Invalid precedence selected", "Invalid precedence selected"));
        EXPECT_TRUE(mUser.Sees());
    }
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
}

TEST_F(ProjectSettingsEditTest, Save_AnyProject_EmptiesItsPeopleRule)
{
    Main()->UpdateorAddProject("Gamma", "gammaword", "", "anna;", "2", false);
    ShowFor("Gamma");
    mUser.Types("NotSubjectText", "x");
    mUser.Clicks("SaveandCloseButton");
    EXPECT_EQ(Main()->GetProjectPeopleRule("Gamma"), "");
    EXPECT_EQ(Project("Gamma"), "2|gammaword|x");
}

TEST_F(ProjectSettingsEditTest, OK_NothingChanged_JustHides)
{
    mAddIn.Trace();
    mUser.Clicks("SaveandCloseButton");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("ProjSettingsForm save and close clicked for Beta"));
}

TEST_F(ProjectSettingsEditTest, OK_Edited_SavesAndHides)
{
    mUser.Types("SubjectText", "edited");
    mUser.Clicks("SaveandCloseButton");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(Project("Beta"), "2|edited|notbeta");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, OK_EditedAndTicked_SavesAndApplies)
{
    const auto item = Activity("edited", 1);
    mUser.Types("SubjectText", "edited");
    mUser.Checks("ApplyPastCheck");
    mUser.Clicks("SaveandCloseButton");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(ProjectOf(item), "Beta");
    EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
}

TEST_F(ProjectSettingsEditTest, OnlyTheBoxTicked_AppliesToThatManyDaysAndSavesNothing)
{
    for (const auto* button : { "SaveandCloseButton", "SaveButton" }) {
        const auto today = Activity("betaword", 0);
        const auto yesterday = Activity("betaword", 1);
        const auto before = Activity("betaword", 2);
        ShowFor("Beta");
        mUser.Checks("ApplyPastCheck");
        mUser.Types("DaysText", " 2 ");
        mAddIn.Trace();
        mUser.Clicks(button);
        EXPECT_EQ(CountTraced("PSF Save"), 0);
        EXPECT_EQ(ProjectOf(today), "Beta");
        EXPECT_EQ(ProjectOf(yesterday), "Beta");
        EXPECT_EQ(ProjectOf(before), "No Project");
        EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
        EXPECT_EQ(mUser.Sees(), button == std::string("SaveButton"));
    }
    ExpectClean("Beta");
}

TEST_F(ProjectSettingsEditTest, OnlyTheBoxTicked_DaysThatAreNoWholeNumber_ApplyNothing)
{
    const auto item = Activity("betaword", 0);
    for (const auto* days : { "", "abc", "7.5", "1,5" }) {
        ShowFor("Beta");
        mUser.Checks("ApplyPastCheck");
        mUser.Types("DaysText", days);
        mAddIn.Trace();
        mUser.Clicks("SaveandCloseButton");
        EXPECT_EQ(CountTraced("Error S&C button Type mismatch:add iteration"), 1) << days;
        EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
        EXPECT_FALSE(mUser.Sees());
    }
    EXPECT_EQ(ProjectOf(item), "No Project");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, Cancel_Edited_WritesAndAsksNothing)
{
    mUser.Types("ProjectComboBox", "Zeta");
    mUser.Types("SubjectText", "edited");
    mUser.Chooses("PrecedenceCombo", "Low");
    mUser.Checks("ApplyPastCheck");
    mAddIn.Trace();
    mUser.Clicks("CancelButton");
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("ProjSettingsForm PSF Cancel"));
    EXPECT_FALSE(mUser.Sees());
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
    EXPECT_THAT(Projects(), ElementsAre("Alpha", "Beta", "Gamma", "Delta"));
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
    ShowFor("Beta");
    ExpectClean("Beta");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, Delete_Answered_RemovesOrKeeps)
{
    mMessages->NextAnswer(Answer::No);
    mUser.Clicks("DeleteButton");
    ASSERT_EQ(mMessages->shown.size(), 1U);
    EXPECT_EQ(mMessages->shown[0],
        (CannedMessageBox::Box { "Are you sure you want to remove this project from the list?",
            { Answer::Yes, Answer::No }, MessageIcon::Exclamation }));
    EXPECT_THAT(Projects(), Contains("Beta"));
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Beta");
    mMessages->NextAnswer(Answer::Yes);
    mAddIn.Trace();
    mUser.Clicks("DeleteButton");
    EXPECT_THAT(Projects(), ElementsAre("Alpha", "Gamma", "Delta"));
    EXPECT_THAT(mUser.List("ProjectComboBox"), ElementsAre("Alpha", "Gamma", "Delta", NewProject));
    ExpectClean("Alpha");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(lines.at(0), "PSF Del");
    EXPECT_THAT(lines, Contains("UpdateProjectDropdown"));
}

TEST_F(ProjectSettingsEditTest, Delete_TheLastProject_ShowsTheNewProjectEntry)
{
    for (int count = 0; count < 4; ++count) {
        mUser.Clicks("DeleteButton");
    }
    EXPECT_THAT(Projects(), IsEmpty());
    EXPECT_THAT(mUser.List("ProjectComboBox"), ElementsAre(NewProject));
    ExpectClean(NewProject);
}

TEST_F(ProjectSettingsEditTest, Frame_NothingChanged_Closes)
{
    mAddIn.Trace();
    EXPECT_TRUE(mUser.Closes());
    EXPECT_FALSE(mUser.Sees());
    EXPECT_THAT(mAddIn.TraceTexts(),
        ElementsAre("PSF QueryUnload", "PSF PreparedForProjectChangeWithoutInput", "click/change to new project",
            "prepared complete for Betaprepared? True"));
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsEditTest, Frame_Edited_AsksAndMayStay)
{
    mUser.Types("SubjectText", "edited");
    mMessages->NextAnswer(Answer::Cancel);
    EXPECT_FALSE(mUser.Closes());
    EXPECT_TRUE(mUser.Sees());
    EXPECT_EQ(mUser.Text("SubjectText"), "edited");
    mMessages->NextAnswer(Answer::No);
    EXPECT_TRUE(mUser.Closes());
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
    ShowFor("Beta");
    mUser.Types("SubjectText", "edited");
    mMessages->NextAnswer(Answer::Yes);
    EXPECT_TRUE(mUser.Closes());
    EXPECT_EQ(Project("Beta"), "2|edited|notbeta");
}

TEST_F(ProjectSettingsEditTest, Frame_NewNameTyped_Stays)
{
    mUser.Types("ProjectComboBox", "Zeta");
    EXPECT_FALSE(mUser.Closes());
    EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("You must save or cancel your last change."));
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Zeta");
}

TEST_F(ProjectSettingsEditTest, Frame_BoxTicked_AsksWhetherToApply)
{
    for (const auto answer : { Answer::No, Answer::Yes }) {
        const auto item = Activity("betaword", 0);
        ShowFor("Beta");
        mUser.Checks("ApplyPastCheck");
        mMessages->NextAnswer(answer);
        mMessages->shown.clear();
        mAddIn.TraceTexts();
        EXPECT_TRUE(mUser.Closes());
        EXPECT_THAT(mAddIn.TraceTexts(), Contains("PSF Set Apply")) << "the box is cleared whatever the answer";
        ASSERT_EQ(mMessages->shown.size(), 1U);
        EXPECT_EQ(mMessages->shown[0],
            (CannedMessageBox::Box { "Apply to past activities?", { Answer::Yes, Answer::No }, MessageIcon::None }));
        EXPECT_EQ(ProjectOf(item), answer == Answer::Yes ? "Beta" : "No Project");
        EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
    }
}

TEST_F(ProjectSettingsEditTest, Frame_LetsTheOwnerGo)
{
    EXPECT_TRUE(mUser.Closes());
    const std::weak_ptr<TempodialInspector> owner = mOwner.Shared();
    mOwner = nullptr;
    EXPECT_TRUE(owner.expired());
}

TEST_F(ProjectSettingsEditTest, AddInEndsDuringAQuestion_IsComeThrough)
{
    const std::function<void()> roads[] = {
        [&] { mUser.Chooses("ProjectComboBox", "Delta"); },
        [&] { mUser.Clicks("DeleteButton"); },
        [&] { mUser.Closes(); },
        [&] { mForm->ShowMe("Delta", nullptr); },
    };
    for (const auto& road : roads) {
        ShowFor("Beta");
        mUser.Types("SubjectText", "edited");
        mMessages->onShow = [this] {
            mForm->Unload();
            mAddIn.Disconnect();
        };
        road();
        mMessages->onShow = nullptr;
        EXPECT_FALSE(mUser.Sees());
        mAddIn.Connect();
        mForm = MakeRef<ProjectSettingsForm>(mAddIn.platform);
        mForm->Initialise(Main(), Main()->mTempodialDebugLog);
    }
}

TEST_F(ProjectSettingsEditTest, ProjectChangedDuringTheJob_IsComeThrough)
{
    Activity("betaword", 0);
    mUser.Checks("ApplyPastCheck");
    bool changed = false;
    mAddIn.eventPump->hook = [&] {
        if (!std::exchange(changed, true)) {
            mUser.Chooses("ProjectComboBox", "Alpha");
        }
    };
    mUser.Clicks("SaveandCloseButton");
    EXPECT_TRUE(changed);
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Alpha");
}

}
