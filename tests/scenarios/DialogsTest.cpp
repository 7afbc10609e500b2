#include "scenarios/Scripts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

}

class DialogsTest : public testing::Test
{
protected:
    /// The message boxes, as their texts with the buttons and the answer.
    std::vector<std::string> Boxes() const
    {
        std::vector<std::string> boxes;
        for (const auto& message : mPerson.Messages()) {
            std::string box = message.at("text");
            for (const auto& button : message.at("buttons")) {
                box += " " + button.get<std::string>();
            }
            boxes.push_back(
                box + " " + message.at("icon").get<std::string>() + ": " + message.at("answer").get<std::string>());
        }
        return boxes;
    }
    std::size_t WithProject(const std::string& project)
    {
        std::size_t count = 0;
        for (const auto& item : mPerson.Items()) {
            count += item.at("properties").at("Project") == project ? 1 : 0;
        }
        return count;
    }
    std::string Subject() { return mPerson.Form("ProjectSettingsForm").at("controls").at("SubjectText").at("text"); }

    DrivenPerson mPerson;
};

TEST_F(DialogsTest, Dialogs_AllInOneDay_AskEachQuestionWithEachAnswer)
{
    Dialogs(mPerson);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
    const std::string save = "Do you want to save the changes to Plan? yes no cancel question: ";
    const std::string remove = "Are you sure you want to remove this project from the list? yes no exclamation: ";
    EXPECT_THAT(Boxes(),
        ElementsAre(save + "cancel", save + "no", save + "yes", "You must save or cancel your last change. ok none: ok",
            "Project names may not include the | character. ok none: ok", "Invalid precedence selected ok none: ok",
            "Invalid precedence selected ok none: ok", "Apply to past activities? yes no none: no",
            "Apply to past activities? yes no none: yes", remove + "no", remove + "yes",
            "The end date you entered occurs before the start date. ok none: ok"));
}

TEST_F(DialogsTest, Settings_AnswersToTheQuestion_KeepOrDropTheRule)
{
    mPerson.Start();
    mPerson.Menu(1, { "Pro&ject Settings..." });
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Personal");
    mPerson.Type("ProjectSettingsForm", "SubjectText", "home");
    mPerson.Answers({ "cancel" });
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Wish");
    EXPECT_EQ(Subject(), "home");
    mPerson.Answers({ "no" });
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Wish");
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Personal");
    EXPECT_EQ(Subject(), "");
    mPerson.Type("ProjectSettingsForm", "SubjectText", "home");
    mPerson.Answers({ "yes" });
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Wish");
    mPerson.Choose("ProjectSettingsForm", "ProjectComboBox", "Personal");
    EXPECT_EQ(Subject(), "home");
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(DialogsTest, SetProject_SpanOfToday_SetsItThere)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.Refresh(1);
    mPerson.Menu(1, { "Set Project for &Activities..." });
    mPerson.Type("SetProjectForm", "ProjectComboBox", "Span");
    mPerson.Check("SetProjectForm", "SpecifiedCheck");
    mPerson.Click("SetProjectForm", "Command1");
    EXPECT_EQ(WithProject("Span"), 16);
    mPerson.Menu(1, { "Pro&ject Settings..." });
    EXPECT_THAT(mPerson.Form("ProjectSettingsForm").at("controls").at("ProjectComboBox").at("list").dump(),
        HasSubstr("\"Span\""));
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(DialogsTest, ProblemReport_Mail_HasTheFilesAndTheRecipient)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.Menu(1, { "&Help", "&Report a Problem" });
    mPerson.Type("DiagsForm", "ExpectedText", "a plan");
    mPerson.Type("DiagsForm", "ActualText", "a letter");
    mPerson.Click("DiagsForm", "OK");
    const auto mails = mPerson.Do({ { "do", "mails" } }).at("mails");
    ASSERT_EQ(mails.size(), 1);
    EXPECT_EQ(mails[0].at("recipients").size(), 1);
    EXPECT_THAT(mails[0].at("body").get<std::string>(), HasSubstr("a plan"));
    EXPECT_THAT(mails[0].at("attachments").dump(), HasSubstr("tracker_granules20061010"));
}

TEST_F(DialogsTest, ProblemReport_SecurityRefusal_ShowsTheMailAndLeavesMailsAloneFromThenOn)
{
    mPerson.WriteTracker();
    mPerson.Start();
    const auto report = [this] {
        mPerson.Menu(1, { "&Help", "&Report a Problem" });
        mPerson.Click("DiagsForm", "OK");
        return mPerson.Do({ { "do", "mails" } }).at("mails");
    };
    mPerson.Do({ { "do", "fail" }, { "call", "Recipients.Add" }, { "number", 287 } });
    const auto first = report();
    ASSERT_EQ(first.size(), 1);
    EXPECT_EQ(first[0].at("recipients"), Json::array());
    EXPECT_EQ(first[0].at("displayed"), true);
    const auto second = report();
    ASSERT_EQ(second.size(), 2);
    EXPECT_EQ(second[1].at("recipients"), Json::array());
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(DialogsTest, Import_SecurityRefusalOfBodies_GoesOnWithoutThem)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.Do({ { "do", "fail" }, { "call", "AppointmentItem.Body" }, { "number", 287 }, { "times", 100000 } });
    mPerson.Refresh(1);
    EXPECT_EQ(mPerson.Items().size(), 24);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(DialogsTest, Form_NotAsItShouldBe_IsToldToThePerson)
{
    mPerson.Do({ { "do", "fail" }, { "call", "FormDescription.MessageClass" }, { "times", 2 } });
    mPerson.Start();
    EXPECT_THAT(Boxes(), ElementsAre("Form not in sync. cannot run ok none: ok"));
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(DialogsTest, CancelledJobs_StopInTheirMidst)
{
    CancelledJobs(mPerson);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
    EXPECT_EQ(mPerson.Pumped().size(), 3);
    for (const auto& answer : mPerson.Pumped()) {
        EXPECT_EQ(answer.at("ok"), true);
    }
    // The second sync went on where the first one was stopped, and the report that was stopped is empty.
    EXPECT_EQ(mPerson.Items().size(), 24);
    EXPECT_GT(WithProject("Plan"), 0);
    EXPECT_GT(WithProject("Span"), 0);
    const auto mails = mPerson.Do({ { "do", "mails" } }).at("mails");
    ASSERT_EQ(mails.size(), 1);
    EXPECT_EQ(mails[0].at("html"), "");
    EXPECT_EQ(mails[0].at("body"), "");
}

TEST_F(DialogsTest, Sync_Cancelled_StopsAndTheNextOneGoesOn)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.AtPump(2, { { { "do", "form.click" }, { "form", "ProgressBarForm" }, { "control", "LoadCancel" } } });
    mPerson.Refresh(1);
    const auto stopped = mPerson.Items().size();
    EXPECT_GT(stopped, 0);
    EXPECT_LT(stopped, 24);
    mPerson.Refresh(1);
    EXPECT_EQ(mPerson.Items().size(), 24);
}

TEST_F(DialogsTest, BackApplication_Cancelled_LeavesTheRest)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.Refresh(1);
    mPerson.Menu(1, { "Pro&ject Settings..." });
    mPerson.Type("ProjectSettingsForm", "ProjectComboBox", "Plan");
    mPerson.Type("ProjectSettingsForm", "SubjectText", "budget");
    mPerson.Check("ProjectSettingsForm", "ApplyPastCheck");
    mPerson.AtPump(4, { { { "do", "form.click" }, { "form", "ProgressBarForm" }, { "control", "LoadCancel" } } });
    mPerson.Click("ProjectSettingsForm", "SaveandCloseButton");
    EXPECT_EQ(mPerson.Pumped().size(), 1);
    EXPECT_EQ(WithProject("Plan"), 2);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

}
