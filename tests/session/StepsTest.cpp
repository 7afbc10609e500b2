#include "session/Steps.h"

#include "base/Failure.h"
#include "session/ProductFacts.h"
#include "session/Profile.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

const std::string Before = "<project><name>A</name><precedence>2</precedence></project>|";
const std::string After = Before + "<project><name>B</name><precedence>2</precedence></project>|";

class StepsTest : public testing::Test
{
protected:
    void Open(const std::string& now = "")
    {
        mSteps.reset();
        mProfile.reset();
        const auto moment = Date::FromParts({ 2006, 10, 10, 17, 0, 0 });
        mProfile = std::make_unique<Profile>(mFolder.Path(), "en_US", now.empty() ? moment : moment.AddDays(91));
        mSteps = std::make_unique<Steps>(*mProfile);
    }
    void SetUp() override
    {
        Open();
        SetRules(Before);
    }
    void SetRules(const std::string& rules)
    {
        mProfile->Registry()->Write(Hive::CurrentUser, ProductKey, ProjectsValue, rules);
    }
    std::string Rules() const
    {
        return mProfile->Registry()->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText();
    }
    Ref<StoreItem> Saved(const std::string& subject)
    {
        auto item = NewTestItem(mProfile->Mailbox(), subject);
        item->Save();
        return item;
    }
    std::int64_t Count() const { return TestDatabase(mProfile->Mailbox()).Number("SELECT count(*) FROM item"); }

    TempFolder mFolder;
    std::unique_ptr<Profile> mProfile;
    std::unique_ptr<Steps> mSteps;
};

}

TEST_F(StepsTest, Record_ItemsAndRules_GoBackTogether)
{
    mSteps->Record("add", [&] {
        Saved("a");
        SetRules(After);
    });
    EXPECT_EQ(Rules(), After);
    const auto undone = mSteps->Undo(std::nullopt, "undo");
    EXPECT_EQ(undone.step.command, "add");
    EXPECT_EQ(undone.items.restored, 1);
    EXPECT_EQ(Rules(), Before);
    EXPECT_EQ(mProfile->Registry()->Get(Hive::CurrentUser, ProductKey, "Project List").ToText(), "A");
    EXPECT_EQ(Count(), 0);
    mSteps->Undo(2, "undo 2");
    EXPECT_EQ(Rules(), After);
    EXPECT_EQ(Count(), 1);
    Open();
    EXPECT_EQ(Rules(), After);
}

TEST_F(StepsTest, Record_WorkFails_ChangesNeither)
{
    const auto work = [&] {
        Saved("a");
        SetRules(After);
        throw Failure(Error::InvalidCall);
    };
    EXPECT_THROW(mSteps->Record("add", work), Failure);
    EXPECT_EQ(Rules(), Before);
    EXPECT_EQ(Count(), 0);
    EXPECT_TRUE(mSteps->Newest(10).empty());
}

TEST_F(StepsTest, RecordImports_WhatImportsChange_GoesBack)
{
    mSteps->RecordImports(
        "import", [] { return true; },
        [&] {
            mProfile->Journal()->Begin();
            Saved("a");
            SetRules(After);
            mProfile->Journal()->End();
        });
    EXPECT_EQ(mSteps->Newest(10).size(), 1U);
    Open();
    EXPECT_EQ(mSteps->Undo(std::nullopt, "undo").items.restored, 1);
    EXPECT_EQ(Rules(), Before);
    EXPECT_EQ(Count(), 0);
}

TEST_F(StepsTest, RecordImports_WorkFails_KeepsWhatWasCommitted)
{
    const auto work = [&] {
        mProfile->Journal()->Begin();
        Saved("a");
        mProfile->Journal()->End();
        throw Failure(Error::InvalidCall);
    };
    EXPECT_THROW(mSteps->RecordImports(
                     "import", [] { return true; }, work),
        Failure);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(mSteps->Newest(10).front().items, 1);
}

TEST_F(StepsTest, Recover_RulesThatNeverReachedTheRegistry_AreBroughtThere)
{
    mSteps->Record("rules", [&] { SetRules(After); });
    // As if it had been cut off between the two.
    SetRules(Before);
    TestDatabase(mProfile->Mailbox()).Execute("UPDATE step SET are_rules_due = 1");
    Open();
    EXPECT_EQ(Rules(), After);
    SetRules(Before);
    Open();
    EXPECT_EQ(Rules(), Before) << "once is enough";
}

TEST_F(StepsTest, Recover_RulesThatWereChangedSince_StayAsTheyAre)
{
    mSteps->Record("rules", [&] { SetRules(After); });
    SetRules("");
    TestDatabase(mProfile->Mailbox()).Execute("UPDATE step SET are_rules_due = 1");
    Open();
    EXPECT_EQ(Rules(), "");
}

TEST_F(StepsTest, Undo_WhatCannotBeTakenBack_IsRefused)
{
    const auto undo = [&](std::optional<std::int64_t> number) { return [=, this] { mSteps->Undo(number, "undo"); }; };
    EXPECT_THAT(undo(std::nullopt), ThrowsMessage<StepError>(HasSubstr("nothing to take back")));
    EXPECT_THAT(undo(1), ThrowsMessage<StepError>(HasSubstr("there is no step 1")));
    mSteps->Record("add", [&] { Saved("a"); });
    mSteps->Undo(1, "undo 1");
    EXPECT_THAT(undo(1), ThrowsMessage<StepError>(HasSubstr("taken back already")));
    EXPECT_THAT(undo(std::nullopt), ThrowsMessage<StepError>(HasSubstr("nothing to take back")));
    Open("later");
    EXPECT_THAT(undo(2), ThrowsMessage<StepError>(HasSubstr("older than 90 days")));
    EXPECT_TRUE(mSteps->Newest(10).empty());
}

TEST_F(StepsTest, Preview_ChangesNothing)
{
    mSteps->Record("add", [&] {
        Saved("a");
        SetRules(After);
    });
    EXPECT_EQ(mSteps->Preview(std::nullopt).items.restored, 1);
    EXPECT_EQ(Rules(), After);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(mSteps->Newest(10).size(), 1U);
}

TEST_F(StepsTest, Undo_DuringAnImport_IsRefusedAndTheImportGoesOn)
{
    mSteps->Record("add", [&] { Saved("a"); });
    mProfile->Journal()->Begin();
    Saved("b");
    EXPECT_THAT([&] { mSteps->Undo(std::nullopt, "undo"); },
        ThrowsMessage<StepError>("an import is going on: try again when it is over"));
    mProfile->Journal()->End();
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(mSteps->Undo(std::nullopt, "undo").items.restored, 1);
    EXPECT_EQ(Count(), 1);
}

TEST_F(StepsTest, Undo_ItemHoldsWhatIsntSaved_IsRefused)
{
    const auto item = Saved("a");
    mSteps->Record("change", [&] {
        item->SetSubject("b");
        item->Save();
    });
    item->SetBody("typed");
    EXPECT_THAT([&] { mSteps->Undo(std::nullopt, "undo"); },
        ThrowsMessage<StepError>(HasSubstr("save them or close its window")));
    EXPECT_EQ(item->Body(), "typed");
    item->Discard();
    mSteps->Undo(std::nullopt, "undo");
    EXPECT_EQ(item->Subject(), "a");
}

}
