#include "engine/dialogs/ProjectSettingsFixture.h"

namespace tempodial {

using testing::Contains;

/// Every statement that changes what is seen fails, from some change on, as it would with a broken toolkit.
class ProjectSettingsFailureTest : public ProjectSettingsFixture
{
protected:
    ProjectSettingsFailureTest() { ShowFor("Beta"); }

    /// Lets so many changes pass and fails the later ones, until `Heal`.
    void BreakAfter(int changes)
    {
        mDrawer = mUser.Form()->SubscribeToChanges({ .Changed = [this, left = changes]() mutable {
            if (left-- <= 0) {
                throw Failure(Error::Automation);
            }
        } });
    }
    void Heal() { mDrawer.End(); }
    /// The lines of an action while the form is broken; a person's own act is one change.
    std::vector<std::string> TraceOf(int changes, const std::function<void()>& action)
    {
        BreakAfter(changes);
        action();
        Heal();
        return mAddIn.TraceTexts();
    }

    Subscription mDrawer;
};

TEST_F(ProjectSettingsFailureTest, ShowMe_TracesAndGoesOn)
{
    const auto lines = TraceOf(0, [&] { mForm->ShowMe("Delta", mOwner); });
    for (const auto* line : {
             "Error ShowMeAutomation error:add iteration",
             "Error refresh lists Automation error:add iteration",
             "Error SetPCF Automation error:add iteration",
             "Error InitFormFields Automation error:add iteration",
             "Error Sset apply fieldsAutomation error:add iteration",
             "Error Sset rulesAutomation error:add iteration",
             "Error Set RCFAutomation error:add iteration",
         }) {
        EXPECT_THAT(lines, Contains(line));
    }
    EXPECT_EQ(lines.back().substr(0, 12), "all set for ");
}

TEST_F(ProjectSettingsFailureTest, Tick_TracesAndGoesOn)
{
    const auto lines = TraceOf(1, [&] { mUser.Checks("ApplyPastCheck"); });
    EXPECT_THAT(lines, Contains("Error Sset apply fieldsAutomation error:add iteration"));
    EXPECT_THAT(lines, Contains("Error applypastAutomation error:add iteration"));
}

TEST_F(ProjectSettingsFailureTest, OtherProject_TracesAndGoesOn)
{
    const auto lines = TraceOf(1, [&] { mUser.Chooses("ProjectComboBox", "Delta"); });
    EXPECT_THAT(lines, Contains("Error ClickAutomation error:add iteration"));
}

TEST_F(ProjectSettingsFailureTest, TypedName_TracesAndIsTaken)
{
    const auto lines = TraceOf(1, [&] { mUser.Types("ProjectComboBox", "Zeta"); });
    EXPECT_THAT(lines, Contains("Error SetPCF Automation error:add iteration"));
    mUser.Clicks("SaveButton");
    EXPECT_EQ(Project("Zeta"), "2|betaword|notbeta");
}

TEST_F(ProjectSettingsFailureTest, Buttons_TraceTheirOwnWords)
{
    EXPECT_THAT(TraceOf(0, [&] { mUser.Clicks("SaveandCloseButton"); }),
        Contains("Error S&C button Automation error:add iteration"));
    ShowFor("Beta");
    EXPECT_THAT(
        TraceOf(0, [&] { mUser.Clicks("CancelButton"); }), Contains("Error Cancel Automation error:add iteration"));
    ShowFor("Beta");
    mUser.Checks("ApplyPastCheck");
    mUser.Types("DaysText", "abc");
    mUser.Clicks("SaveButton");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("Save button Type mismatch:add iteration"));
}

TEST_F(ProjectSettingsFailureTest, Save_DaysThatAreNoNumber_SavesAndAppliesNothing)
{
    mUser.Types("SubjectText", "edited");
    mUser.Checks("ApplyPastCheck");
    mUser.Types("DaysText", "abc");
    mUser.Clicks("SaveandCloseButton");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("Error Save Type mismatch:add iteration"));
    EXPECT_EQ(Project("Beta"), "2|edited|notbeta");
    EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(ProjectSettingsFailureTest, MessageBoxes_NoneAtAll_CountAsUnanswered)
{
    mAddIn.platform->messageBox = nullptr;
    mUser.Clicks("DeleteButton");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains(std::string("Error Delete") + NotSet + ":add iteration"));
    EXPECT_THAT(Projects(), Contains("Beta"));

    mUser.Types("SubjectText", "edited");
    mUser.Chooses("ProjectComboBox", "Delta");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains(std::string("Error prepforchange") + NotSet + ":add iteration"));
    ExpectClean("Delta");
    EXPECT_EQ(Project("Beta"), "2|betaword|notbeta");

    mUser.Types("PrecedenceCombo", "Urgent");
    mUser.Types("SubjectText", "edited");
    mUser.Clicks("SaveButton");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains(std::string("Error Save ") + NotSet + ":add iteration"));
    EXPECT_THAT(lines, Contains(std::string("Save button ") + NotSet + ":add iteration"));
    EXPECT_EQ(Project("Delta"), "3|deltaword|");
    mUser.Clicks("CancelButton");

    ShowFor("Beta");
    mUser.Checks("ApplyPastCheck");
    EXPECT_TRUE(mUser.Closes());
    EXPECT_THAT(mAddIn.TraceTexts(), Contains(std::string("Error QueryUnload ") + NotSet + ":add iteration"));
}

TEST_F(ProjectSettingsFailureTest, OwnerThatFails_CostsALine)
{
    mForm->ShowMe("Beta", MakeRef<TempodialInspector>(mAddIn.platform));
    EXPECT_THAT(mAddIn.TraceTexts(), Contains(std::string("Error refresh lists ") + NotSet + ":add iteration"));
    ExpectClean("Beta");
}

}
