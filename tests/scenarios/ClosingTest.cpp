#include "scenarios/Scripts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto Question = "Do you want to save your changes?";

}

/// An activity's window that is about to be closed.
class ClosingTest : public testing::Test
{
protected:
    ClosingTest()
    {
        mPerson.WriteTracker();
        mPerson.Start();
        mPerson.GoTo(1, DrivenPerson::Log);
        mInspector = mPerson.OpenFirst("budget");
    }
    ~ClosingTest() override { EXPECT_THAT(mPerson.Refusals(), IsEmpty()); }

    Json Item() { return mPerson.ItemsOf("budget")[0]; }
    std::string Project() { return Item().at("properties").at("Project"); }
    std::size_t WindowCount() { return mPerson.Do({ { "do", "windows" } }).at("inspectors").size(); }
    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (const auto& message : mPerson.Messages()) {
            texts.push_back(message.at("text"));
        }
        return texts;
    }

    DrivenPerson mPerson;
    int mInspector = 0;
};

TEST_F(ClosingTest, Unchanged_IsSavedWithoutAQuestion)
{
    const auto before = Item();
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), false);
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(Item(), before);
    EXPECT_EQ(WindowCount(), 0);
}

TEST_F(ClosingTest, ChangedAndYes_IsWritten)
{
    mPerson.Set(mInspector, "ProjectComboBox", "Plan");
    mPerson.Set(mInspector, "DescCombo", "  \"bud");
    mPerson.Answers({ "yes" });
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), false);
    EXPECT_THAT(Texts(), ElementsAre(Question));
    EXPECT_EQ(Project(), "Plan");
    EXPECT_THAT(Item().at("subject").get<std::string>(), HasSubstr("[Plan]"));
    mPerson.Menu(1, { "Pro&ject Settings..." });
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Plan");
    EXPECT_EQ(mPerson.Form("ProjectSettingsForm").at("controls").at("SubjectText").at("text"), "\"bud\"");
}

TEST_F(ClosingTest, ChangedAndNo_IsSavedAsItWas)
{
    const auto before = Item();
    mPerson.Set(mInspector, "ProjectComboBox", "Plan");
    mPerson.Set(mInspector, "SubjectBox", "x");
    mPerson.Set(mInspector, "StartBox", "2006-10-08T07:00:00");
    mPerson.Set(mInspector, "DescCombo", "x");
    mPerson.Set(mInspector, "ApplyCheckBox", true);
    mPerson.Answers({ "no" });
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), false);
    EXPECT_EQ(Item(), before);
    EXPECT_EQ(WindowCount(), 0);
}

TEST_F(ClosingTest, ChangedAndCancel_StaysOpenAndAsksAgain)
{
    mPerson.Set(mInspector, "ProjectComboBox", "Plan");
    mPerson.Answers({ "cancel", "yes" });
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), true);
    EXPECT_EQ(Project(), "No Project");
    EXPECT_EQ(WindowCount(), 1);
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), false);
    EXPECT_EQ(Project(), "Plan");
    EXPECT_THAT(Texts(), ElementsAre(Question, Question));
}

TEST_F(ClosingTest, RefusedProject_KeepsTheWindowOpen)
{
    mPerson.Set(mInspector, "ProjectComboBox", "a|b");
    mPerson.Answers({ "yes" });
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), true);
    mPerson.Toolbar(mInspector, SaveAndClose);
    EXPECT_EQ(mPerson.Do({ { "do", "inspector.save" }, { "inspector", mInspector } }).at("cancelled"), true);
    EXPECT_EQ(WindowCount(), 1);
    EXPECT_EQ(Project(), "No Project");
    const std::string refusal = "Project names may not include the | character.";
    EXPECT_THAT(Texts(), ElementsAre(Question, refusal, refusal, refusal));
}

TEST_F(ClosingTest, TickAlone_CountsForTheButtonOnly)
{
    mPerson.Set(mInspector, "ApplyCheckBox", true);
    EXPECT_EQ(mPerson.CloseInspector(mInspector).at("cancelled"), false);
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(Item().at("properties").at("ApplyPast"), false);
    // Another project's rule takes the activities over only when it is applied.
    mPerson.Menu(1, { "Pro&ject Settings..." });
    mPerson.Type("ProjectSettingsForm", "ProjectComboBox", "Plan");
    mPerson.Type("ProjectSettingsForm", "SubjectText", "budget");
    mPerson.Click("ProjectSettingsForm", "SaveandCloseButton");
    const auto again = mPerson.OpenFirst("budget");
    mPerson.Set(again, "ProjectComboBox", "Plan");
    mPerson.Set(again, "ApplyCheckBox", true);
    mPerson.Toolbar(again, SaveAndClose);
    EXPECT_THAT(Texts(), IsEmpty());
    for (const auto& item : mPerson.ItemsOf("budget")) {
        EXPECT_EQ(item.at("properties").at("Project"), "Plan");
    }
    EXPECT_EQ(WindowCount(), 0);
}

TEST_F(ClosingTest, SaveAndClose_TwoWindows_ActsForTheOneInFrontOnly)
{
    const auto front = mPerson.OpenFirst("letter");
    mPerson.Set(mInspector, "ProjectComboBox", "Back");
    mPerson.Set(front, "ProjectComboBox", "Front");
    mPerson.Toolbar(front, SaveAndClose);
    EXPECT_EQ(mPerson.ItemsOf("letter")[0].at("properties").at("Project"), "Front");
    EXPECT_EQ(Project(), "No Project");
    EXPECT_EQ(WindowCount(), 1);
    mPerson.Toolbar(mInspector, SaveAndClose);
    EXPECT_EQ(Project(), "Back");
    EXPECT_EQ(WindowCount(), 0);
}

TEST_F(ClosingTest, SaveBetween_LeavesNothingToAsk)
{
    mPerson.Set(mInspector, "StartBox", "2006-10-08T07:00:00");
    mPerson.Do({ { "do", "inspector.save" }, { "inspector", mInspector } });
    mPerson.CloseInspector(mInspector);
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(Item().at("start"), "2006-10-08T07:00:00");
    EXPECT_EQ(Item().at("properties").at("Day"), "2006-10-08T00:00:00");
    EXPECT_EQ(Item().at("properties").at("StartTime"), "09:00");
}

TEST_F(ClosingTest, Delete_Button_TakesItemAndWindowAway)
{
    mPerson.Toolbar(mInspector, "&Delete");
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_EQ(mPerson.ItemsOf("budget").size(), 11);
    EXPECT_EQ(WindowCount(), 0);
}

TEST_F(ClosingTest, HostGoesWithoutClosing_DropsWhatWasNotSaved)
{
    mPerson.Set(mInspector, "ProjectComboBox", "Plan");
    mPerson.Do({ { "do", "stop" } });
    mPerson.Start();
    EXPECT_EQ(Project(), "No Project");
}

TEST_F(ClosingTest, Closings_AllInOneDay_GoWell)
{
    mPerson.CloseInspector(mInspector);
    mPerson.Do({ { "do", "stop" } });
    DrivenPerson other;
    Closings(other);
    EXPECT_THAT(other.Refusals(), IsEmpty());
    EXPECT_EQ(other.Messages().size(), 8);
    EXPECT_EQ(other.Do({ { "do", "windows" } }).at("inspectors"), Json::array());
}

}
