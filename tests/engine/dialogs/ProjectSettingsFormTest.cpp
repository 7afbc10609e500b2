#include "engine/dialogs/ProjectSettingsForm.h"

#include "engine/dialogs/ProjectSettingsFixture.h"
#include "forms/ComboBoxModel.h"

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

class ProjectSettingsFormTest : public ProjectSettingsFixture
{
};

TEST_F(ProjectSettingsFormTest, Form_HasItsControls)
{
    EXPECT_EQ(mUser.Form()->Caption(), "Project Settings");
    EXPECT_THAT(mUser.Controls(),
        UnorderedElementsAre(
            "PrecedenceCombo|combo|Medium|If an activity matches several projects, the one with the highest precedence "
            "will be used.",
            "DaysText|text||For example, to back apply this project to today's activities, enter 1. To back apply to "
            "today and yesterday, enter 2.",
            "ApplyPastCheck|check|&Back apply project settings to all activities in past|",
            "ProjectComboBox|combo|None|Select a project from the dropdown, or create a new project by typing the name "
            "directly into the box.",
            "SubjectText|text||Enter text to match against an activity's subject, application or description. For an "
            "exact match, use quotes.",
            "DeleteButton|button|&Remove from list|", "SaveandCloseButton|default button|OK|",
            "CancelButton|cancel button|Cancel|",
            "NotSubjectText|text||Enter text that will exclude an activity from the selected project. ",
            "SaveButton|button|Apply|",
            "Label3|label|Precedence:|If an activity matches several projects, the one with the highest precedence "
            "will be used.",
            "Label4|label|Subject doesn't match|", "Label7|label|Apply |",
            "Label5|label|Select a project, or create a new one by entering a name.|", "DaysLabel|label|days|",
            "Label1|label|Subject matches|",
            "SubjectLabel|label|Change the words or e-mail addresses that automatically match an activity with this "
            "project. For example: plan, \"annual review\", example.com|",
            "NotSubjectLabel|label|Change the words that exclude an activity from this project. For example: personal, "
            "private, example.org|"));
}

TEST_F(ProjectSettingsFormTest, Initialise_SetsTheDaysAndShowsNothing)
{
    const auto form = MakeRef<ProjectSettingsForm>(mAddIn.platform);
    form->Initialise(Main(), Main()->mTempodialDebugLog);
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("ProjSettingsForm PSF Init"));
    EXPECT_EQ(mUser.Text("DaysText"), "7");
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(ProjectSettingsFormTest, ShowMe_FromTheMenu_ShowsTheFirstProject)
{
    mForm->ShowMe("No Project", nullptr);
    EXPECT_TRUE(mUser.Sees());
    ExpectClean("Alpha");
    EXPECT_THAT(mUser.List("ProjectComboBox"), ElementsAre("Alpha", "Beta", "Gamma", "Delta", NewProject));
    EXPECT_THAT(mUser.List("PrecedenceCombo"), ElementsAre("High", "Medium", "Low"));
    EXPECT_EQ(mUser.Text("PrecedenceCombo"), "High");
    EXPECT_EQ(mUser.Get<ComboBoxModel>("PrecedenceCombo")->ListIndex(), 0);
    EXPECT_EQ(mUser.Text("SubjectText"), "alphaword");
    EXPECT_EQ(mUser.Text("NotSubjectText"), "notalpha");
    EXPECT_EQ(CountTraced("UpdateProjectDropdown"), 0) << "nobody to tell";
}

TEST_F(ProjectSettingsFormTest, ShowMe_FromTheMenuWithAProject_ShowsTheFirstAllTheSame)
{
    mForm->ShowMe("Beta", nullptr);
    ExpectClean("Alpha");
    EXPECT_EQ(CountTraced("show first project in list"), 1);
}

TEST_F(ProjectSettingsFormTest, ShowMe_FromAnActivity_ShowsItsProject)
{
    mForm->ShowMe("Beta", mOwner);
    ExpectClean("Beta");
    EXPECT_EQ(mUser.Text("PrecedenceCombo"), "Medium");
    EXPECT_EQ(mUser.Text("SubjectText"), "betaword");
    EXPECT_EQ(mUser.Text("NotSubjectText"), "notbeta");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Not(Contains("show first project in list")));
    EXPECT_THAT(lines, Contains("UpdateProjectDropdown"));
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsFormTest, ShowMe_FromAnActivityWithoutValidProject_ShowsTheFirst)
{
    for (const auto* project : { "No Project", NewProject, "a|b" }) {
        mForm->ShowMe(project, mOwner);
        ExpectClean("Alpha");
        EXPECT_EQ(CountTraced("show first project in list"), 1) << project;
    }
}

TEST_F(ProjectSettingsFormTest, ShowMe_UnknownProjectOfAnActivity_ShowsItAsANewOne)
{
    mForm->ShowMe("Zeta", mOwner);
    ExpectClean("Zeta");
    EXPECT_EQ(mUser.Text("PrecedenceCombo"), "Medium");
    EXPECT_EQ(mUser.Text("SubjectText"), "");
}

TEST_F(ProjectSettingsFormTest, ShowMe_EachPrecedence_IsSelected)
{
    for (const auto& [project, precedence] :
        { std::pair { "Alpha", "High" }, { "Gamma", "Medium" }, { "Delta", "Low" } }) {
        mForm->ShowMe(project, mOwner);
        EXPECT_EQ(mUser.Text("PrecedenceCombo"), precedence);
        ExpectClean(project);
    }
}

TEST_F(ProjectSettingsFormTest, ShowMe_TracesItsSteps)
{
    mForm->ShowMe("Beta", mOwner);
    const auto lines = mAddIn.TraceTexts();
    std::vector<std::string> own;
    for (const auto& line : lines) {
        for (const auto* begin :
            { "PSF ", "click/change", "prepared", "validate error", "set for", "all set", "precedence changed" }) {
            if (line.starts_with(begin)) {
                own.push_back(line);
            }
        }
    }
    EXPECT_THAT(own,
        ElementsAre("PSF ShowMe: Beta", "PSF PreparedForProjectChangeWithoutInput", "click/change to new project",
            "prepared complete for Noneprepared? True", "validate error: ", "PSF Lists", "set for Beta",
            "PSF Set Apply", "PSF SetRules", "precedence changed click", "all set for Beta"));
}

TEST_F(ProjectSettingsFormTest, ShowMe_WhileVisible_TakesTheNewOwnerAndProject)
{
    ShowFor("Beta");
    const auto other = Owner();
    mForm->ShowMe("Delta", other);
    ExpectClean("Delta");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsFormTest, ShowMe_UnsavedRules_AsksFirst)
{
    struct Case
    {
        Answer answer;
        std::string project;
        std::string rule;
        std::string stored;
    };
    const Case cases[] = {
        { Answer::Cancel, "Beta", "edited", "2|betaword|notbeta" },
        { Answer::No, "Delta", "deltaword", "2|betaword|notbeta" },
        { Answer::Yes, "Delta", "deltaword", "2|edited|notbeta" },
    };
    for (const auto& [answer, project, rule, stored] : cases) {
        ShowFor("Beta");
        mUser.Types("SubjectText", "edited");
        mMessages->NextAnswer(answer);
        mForm->ShowMe("Delta", nullptr);
        ASSERT_EQ(mMessages->shown.size(), 1U);
        EXPECT_EQ(mMessages->shown[0],
            (CannedMessageBox::Box { "Do you want to save the changes to Beta?",
                { Answer::Yes, Answer::No, Answer::Cancel }, MessageIcon::Question }));
        mMessages->shown.clear();
        EXPECT_EQ(mUser.Text("ProjectComboBox"), answer == Answer::Cancel ? "Beta" : "Alpha");
        EXPECT_EQ(Project("Beta"), stored);
        EXPECT_TRUE(mUser.Sees());
        if (answer == Answer::Cancel) {
            EXPECT_EQ(mUser.Text("SubjectText"), "edited");
            EXPECT_TRUE(mUser.CanWork("SaveButton"));
        }
        mUser.Clicks("CancelButton");
        mMessages->shown.clear();
    }
}

TEST_F(ProjectSettingsFormTest, ShowMe_Refused_KeepsTheOldOwner)
{
    ShowFor("Beta");
    mUser.Types("SubjectText", "edited");
    mMessages->NextAnswer(Answer::Cancel);
    mForm->ShowMe("Delta", nullptr);
    mAddIn.Trace();
    mUser.Clicks("SaveButton");
    EXPECT_EQ(CountTraced("UpdateProjectDropdown"), 1);
}

TEST_F(ProjectSettingsFormTest, ShowMe_UnsavedName_IsRefused)
{
    ShowFor("Beta");
    mUser.Types("ProjectComboBox", "Zeta");
    mForm->ShowMe("Delta", mOwner);
    EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("You must save or cancel your last change."));
    EXPECT_EQ(mUser.Text("ProjectComboBox"), "Zeta");
}

TEST_F(ProjectSettingsFormTest, ShowMe_AfterEachEnd_ShowsAWorkingForm)
{
    const std::function<void()> ends[] = {
        [&] { mUser.Clicks("SaveandCloseButton"); },
        [&] { mUser.Clicks("CancelButton"); },
        [&] { EXPECT_TRUE(mUser.Closes()); },
    };
    for (const auto& end : ends) {
        ShowFor("Beta");
        end();
        EXPECT_FALSE(mUser.Sees());
        mForm->ShowMe("Gamma", mOwner);
        EXPECT_TRUE(mUser.Sees());
        ExpectClean("Gamma");
        EXPECT_THAT(mUser.List("ProjectComboBox"), ElementsAre("Alpha", "Beta", "Gamma", "Delta", NewProject));
        mUser.Types("SubjectText", "again");
        EXPECT_TRUE(mUser.CanWork("SaveButton"));
        mUser.Clicks("CancelButton");
    }
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(ProjectSettingsFormTest, ApplyPastCheck_EnablesTheDays)
{
    ShowFor("Beta");
    mUser.Checks("ApplyPastCheck");
    EXPECT_TRUE(mUser.CanWork("DaysText"));
    EXPECT_TRUE(mUser.CanWork("SaveButton"));
    mUser.Checks("ApplyPastCheck", false);
    EXPECT_FALSE(mUser.CanWork("DaysText"));
    EXPECT_TRUE(mUser.CanWork("SaveButton"));
}

TEST_F(ProjectSettingsFormTest, SaveButton_IsLitByEachEdit)
{
    const std::function<void()> edits[] = {
        [&] { mUser.Types("SubjectText", "x"); },
        [&] { mUser.Types("NotSubjectText", "x"); },
        [&] { mUser.Types("ProjectComboBox", "x"); },
        [&] { mUser.Chooses("PrecedenceCombo", "Low"); },
        [&] { mUser.Checks("ApplyPastCheck"); },
    };
    for (const auto& edit : edits) {
        ShowFor("Beta");
        EXPECT_FALSE(mUser.CanWork("SaveButton"));
        edit();
        EXPECT_TRUE(mUser.CanWork("SaveButton"));
        mUser.Clicks("CancelButton");
    }
    ShowFor("Beta");
    mUser.Types("PrecedenceCombo", "Urgent");
    EXPECT_FALSE(mUser.CanWork("SaveButton")) << "typing there is no click";
}

TEST_F(ProjectSettingsFormTest, SaveButton_LitByDays_GoesOutWithTheNextProject)
{
    ShowFor("Beta");
    mUser.Checks("ApplyPastCheck");
    mUser.Types("DaysText", "3");
    EXPECT_TRUE(mUser.CanWork("SaveButton"));
    mUser.Chooses("ProjectComboBox", "Gamma");
    ExpectClean("Gamma");
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty()) << "days and tick are nothing to save";
}

TEST_F(ProjectSettingsFormTest, OpenSetProjectForm_ShowsItForTheProjectOnShow)
{
    ShowFor("Beta");
    mForm->OpenSetProjectForm();
    const FormUser user(mAddIn.forms, "SetProjectForm");
    ASSERT_TRUE(user.Sees());
    EXPECT_EQ(user.Text("ProjectComboBox"), "Beta");
    user.Clicks("Command2");
    EXPECT_FALSE(user.Sees());
}

TEST_F(ProjectSettingsFormTest, Unload_ShownForm_AsksNothing)
{
    ShowFor("Beta");
    mUser.Types("SubjectText", "edited");
    mForm->Unload();
    EXPECT_FALSE(mUser.Sees());
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");
}

TEST_F(ProjectSettingsFormTest, Terminate_LetsItsReferencesGo)
{
    mForm->Terminate();
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("ProjSettingsForm PSF term"));
    mForm->Terminate();
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
}

TEST_F(ProjectSettingsFormTest, Events_NoLogAnyMore_LetNothingEscape)
{
    ShowFor("Beta");
    mForm->Terminate();
    mUser.Types("SubjectText", "x");
    mUser.Types("ProjectComboBox", "Zeta");
    mUser.Chooses("ProjectComboBox", "Alpha");
    mUser.Chooses("PrecedenceCombo", "Low");
    mUser.Checks("ApplyPastCheck");
    for (const auto* button : { "SaveandCloseButton", "SaveButton", "DeleteButton", "CancelButton" }) {
        if (mUser.CanWork(button)) {
            mUser.Clicks(button);
        }
    }
    if (mUser.Sees()) {
        mUser.Closes();
    }
    EXPECT_THAT(Projects(), ElementsAre("Alpha", "Beta", "Gamma", "Delta"));
}

TEST_F(ProjectSettingsFormTest, Forms_NoneAtAll_IsComeThrough)
{
    mAddIn.platform->forms = nullptr;
    const auto form = MakeRef<ProjectSettingsForm>(mAddIn.platform);
    form->Initialise(Main(), Main()->mTempodialDebugLog);
    mAddIn.Trace();
    form->ShowMe("Beta", mOwner);
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains(HasSubstr(std::string("Error ShowMe") + NotSet + ":")));
    EXPECT_THAT(lines, Contains(std::string("Error refresh lists ") + NotSet + ":add iteration"));
    form->Unload();
    form->Terminate();
}

}
