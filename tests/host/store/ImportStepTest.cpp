#include "host/store/ImportStep.h"

#include "host/store/StepFixture.h"
#include "host/store/StepJournal.h"
#include "host/store/StoreImportJournal.h"
#include "support/FailureNumber.h"
#include "support/KilledProcess.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Date Moment = Date::FromParts({ 2006, 10, 10, 17, 0, 0 });

class ImportStepTest : public StepFixture
{
protected:
    std::unique_ptr<ImportStep> BeginStep(const Ref<Mailbox>& mailbox)
    {
        const auto rules = [this] { return mRules; };
        const auto belongs = [this] { return mBelongs; };
        return std::make_unique<ImportStep>(mailbox, Moment, "import", rules, belongs);
    }
    static std::vector<std::string> StepsOf(const Ref<Mailbox>& mailbox)
    {
        constexpr std::int64_t All = 1000;
        std::vector<std::string> steps;
        for (const auto& step : StepJournal(mailbox).Newest({}, All)) {
            steps.push_back(std::to_string(step.number) + " " + step.command + " " + std::to_string(step.items)
                + (step.rulesAfter ? " " + *step.rulesBefore + " to " + *step.rulesAfter : ""));
        }
        return steps;
    }
    std::vector<std::string> StepsNow() const { return StepsOf(mMailbox); }
    StepItems TakeBack(std::int64_t number)
    {
        StepJournal journal(mMailbox);
        const auto step = journal.Find(number).value();
        journal.Begin(Moment, "undo", [this] { return mRules; });
        const auto items = journal.TakeBack(step, Moment);
        journal.End();
        return items;
    }

    StoreImportJournal mImport { mMailbox };
    bool mBelongs = true;
};

}

TEST_F(ImportStepTest, ImportsWithinIt_AreOneStepThatGoesBack)
{
    const auto known = Saved("known");
    auto step = BeginStep(mMailbox);
    mImport.Begin();
    Change(known, "extended");
    Saved("a");
    mImport.Loaded("20061010", { 100, 1 });
    mImport.Commit();
    Change(known, "extended again");
    Saved("b");
    mImport.End();
    mImport.Begin();
    Saved("c");
    mImport.End();
    step.reset();
    Saved("d");
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 4"));
    const auto items = TakeBack(1);
    EXPECT_EQ(items.restored, 4);
    EXPECT_EQ(items.kept, 0);
    EXPECT_EQ(known->Subject(), "known");
    EXPECT_EQ(TestItems(mMailbox)->Count(), 2);
}

TEST_F(ImportStepTest, ItemsChangedSince_StayAndAreCounted)
{
    auto step = BeginStep(mMailbox);
    mImport.Begin();
    const auto changed = Saved("a");
    Saved("b");
    mImport.End();
    step.reset();
    Change(changed, "by hand");
    const auto items = TakeBack(1);
    EXPECT_EQ(items.restored, 1);
    EXPECT_EQ(items.kept, 1);
    EXPECT_EQ(changed->Subject(), "by hand");
}

TEST_F(ImportStepTest, WhatDoesNotBelongToIt_IsNoPartOfIt)
{
    const auto step = BeginStep(mMailbox);
    mImport.Begin();
    mBelongs = false;
    const auto other = Saved("of the tracker");
    mImport.Commit();
    EXPECT_THAT(StepsNow(), IsEmpty());
    mBelongs = true;
    Saved("imported");
    mImport.End();
    EXPECT_EQ(TakeBack(1).restored, 1);
    EXPECT_EQ(TestItems(mMailbox)->Count(), 1);
    EXPECT_EQ(other->Subject(), "of the tracker");
}

TEST_F(ImportStepTest, NothingChanged_IsNoStepAndUsesNoNumber)
{
    const auto item = Saved("a");
    {
        const auto step = BeginStep(mMailbox);
        mImport.Begin();
        Change(item, "b");
        Change(item, "a");
        mImport.Loaded("20061010", { 100, 1 });
        mImport.End();
    }
    EXPECT_THAT(StepsNow(), IsEmpty());
    const auto step = BeginStep(mMailbox);
    mImport.Begin();
    Change(item, "b");
    mImport.End();
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 1"));
}

TEST_F(ImportStepTest, ChangedRules_ArePartOfItAndNotDue)
{
    const auto step = BeginStep(mMailbox);
    mImport.Begin();
    mImport.Commit();
    EXPECT_THAT(StepsNow(), IsEmpty());
    mRules = "others";
    mImport.Commit();
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 0 rules to others"));
    Saved("a");
    mImport.End();
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 1 rules to others"));
    EXPECT_FALSE(StepJournal(mMailbox).WithRulesDue());
}

TEST_F(ImportStepTest, FullDisk_LeavesItAsFarAsWhatWasCommitted)
{
    const auto step = BeginStep(mMailbox);
    mImport.Begin();
    Saved("a");
    const auto item = Saved("b");
    mImport.Commit();
    Change(item, "lost");
    FillDisk(mMailbox);
    const auto large = NewTestItem(mMailbox, std::string(100'000, 'x'));
    EXPECT_EQ(FailureNumber([&] { large->Save(); }), 61);
    FreeDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { mImport.End(); }), 61);
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 2"));
    // What was undone is kept anew when it changes again.
    mImport.Begin();
    Change(item, "changed after all");
    mImport.End();
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 2"));
    EXPECT_EQ(TakeBack(1).restored, 2);
    EXPECT_EQ(TestItems(mMailbox)->Count(), 0);
}

TEST_F(ImportStepTest, FullDiskBeforeTheFirstCommit_IsBegunAnew)
{
    const auto step = BeginStep(mMailbox);
    mImport.Begin();
    const auto item = Saved("a");
    FillDisk(mMailbox);
    const auto large = NewTestItem(mMailbox, std::string(100'000, 'x'));
    EXPECT_EQ(FailureNumber([&] { large->Save(); }), 61);
    FreeDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { mImport.End(); }), 61);
    EXPECT_THAT(StepsNow(), IsEmpty());
    mImport.Begin();
    item->Save();
    mImport.End();
    EXPECT_THAT(StepsNow(), ElementsAre("1 import 1"));
}

TEST_F(ImportStepTest, KilledAfterACommit_IsThereAsFarAsThat)
{
    const TempFolder folder;
    const auto path = folder.Path("mailbox.db");
    ASSERT_TRUE(RunUntilKilled([&] {
        const auto mailbox = OpenTestMailbox(path);
        StoreImportJournal import(mailbox);
        const auto step = BeginStep(mailbox);
        import.Begin();
        NewTestItem(mailbox, "a")->Save();
        import.Loaded("20061010", { 100, 1 });
        import.Commit();
        NewTestItem(mailbox, "lost")->Save();
        KillThisProcess();
    }));
    EXPECT_THAT(StepsOf(OpenTestMailbox(path)), ElementsAre("1 import 1"));
}

}
