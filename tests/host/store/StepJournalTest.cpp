#include "host/store/StepJournal.h"

#include "host/store/Query.h"
#include "host/store/StepFixture.h"
#include "host/store/StoreImportJournal.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t All = 1000;

class StepJournalTest : public StepFixture
{
protected:
    void Begin(const std::string& command)
    {
        mJournal.Begin(mNow, command, [this] { return mRules; });
    }
    template <class Work> void Do(const std::string& command, Work&& work)
    {
        Begin(command);
        work();
        mJournal.End();
    }
    StepItems TakeBack(std::int64_t number)
    {
        const auto step = mJournal.Find(number).value();
        Begin("undo " + std::to_string(number));
        const auto items = mJournal.TakeBack(step, mNow);
        mJournal.End();
        return items;
    }
    std::vector<std::string> Commands()
    {
        std::vector<std::string> commands;
        for (const auto& step : mJournal.Newest({}, All)) {
            commands.push_back(std::to_string(step.number) + " " + step.command + " " + std::to_string(step.items)
                + (step.isTakenBack ? " taken back" : ""));
        }
        return commands;
    }
    std::vector<std::string> Subjects()
    {
        std::vector<std::string> subjects;
        Query query(TestDatabase(mMailbox), "SELECT id || ' ' || subject FROM item ORDER BY id");
        while (query.Step()) {
            subjects.push_back(query.Text(0));
        }
        return subjects;
    }

    StepJournal mJournal { mMailbox };
    Date mNow = Date::FromParts({ 2006, 10, 10, 17, 0, 0 });
};

}

TEST_F(StepJournalTest, End_WhatWasChanged_IsAStep)
{
    const auto first = Saved("a");
    const auto second = Saved("b");
    Do("both", [&] {
        Change(first, "c");
        Change(first, "d");
        second->Delete();
        Saved("e");
    });
    EXPECT_THAT(Commands(), ElementsAre("1 both 3"));
    const auto step = mJournal.Find(1).value();
    EXPECT_EQ(step.moment, mNow);
    EXPECT_FALSE(step.undoes || step.isTakenBack || step.rulesBefore || step.rulesAfter);
    EXPECT_FALSE(TestDatabase(mMailbox).IsHolding());
}

TEST_F(StepJournalTest, End_NothingChanged_IsNoStepAndUsesNoNumber)
{
    const auto item = Saved("a");
    Do("nothing", [] {});
    Do("as before", [&] { item->Save(); });
    Do("there and back", [&] {
        Change(item, "b");
        Change(item, "a");
    });
    Do("made and gone", [&] { Saved("b")->Delete(); });
    EXPECT_THAT(Commands(), IsEmpty());
    Do("change", [&] { Change(item, "b"); });
    EXPECT_THAT(Commands(), ElementsAre("1 change 1"));
}

TEST_F(StepJournalTest, TakeBack_BringsAllBackAsItWas)
{
    ItemData data { .messageClass = "IPM.Appointment", .subject = "a", .body = "body", .mileage = "Plan" };
    data.start = data.end = mNow;
    data.isProjectByHand = true;
    data.properties = { { "Project", PropertyType::Text, Variant("Plan") } };
    auto item = mMailbox->NewItem(mMailbox->FolderByPath("Calendar"), data);
    item->Save();
    const auto id = item->EntryID();
    const auto deleted = Saved("deleted");
    Do("change", [&] {
        item->SetEnd(mNow.AddDays(3));
        item->SetMileage("Other");
        item->UserProperties()->Item("Project")->SetValue("Other");
        Change(item, "b");
        item->Move(mMailbox->FolderByPath("Inbox"));
        deleted->Delete();
        Saved("made");
    });
    item = nullptr;
    const auto items = TakeBack(1);
    EXPECT_EQ(items.restored, 3);
    EXPECT_EQ(items.kept, 0);
    item = mMailbox->ItemById(id);
    EXPECT_EQ(item->Data(), data);
    EXPECT_EQ(mMailbox->PathOf(item->Parent()), "Calendar");
    EXPECT_EQ(item->SavedAt(), mNow) << "for whoever takes in a calendar it is another version";
    EXPECT_THAT(Subjects(), ElementsAre("1 a", "2 deleted"));
    EXPECT_THAT(Commands(), ElementsAre("2 undo 1 3", "1 change 3 taken back"));
    EXPECT_EQ(Saved("next")->Number(), 4) << "a number is never given again";
}

TEST_F(StepJournalTest, TakeBack_ChangedSince_StaysAndIsCounted)
{
    const auto first = Saved("a");
    const auto second = Saved("b");
    const auto third = Saved("c");
    Do("change", [&] {
        for (const auto& item : { first, second, third }) {
            Change(item, "d");
        }
    });
    // Another field counts too, and so does a change that looks like the step's own.
    second->SetBody("x");
    second->Save();
    third->Delete();
    const auto items = TakeBack(1);
    EXPECT_EQ(items.restored, 1);
    EXPECT_EQ(items.kept, 2);
    EXPECT_THAT(Subjects(), ElementsAre("1 a", "2 d"));
}

TEST_F(StepJournalTest, TakeBack_FolderIsGone_StaysAndIsCounted)
{
    const auto folder = mMailbox->FolderByPath("Calendar")->Folders()->Add("Log", DefaultFolder::Calendar);
    const auto item = mMailbox->NewItem(folder, { .messageClass = "IPM.Appointment", .subject = "a" });
    item->Save();
    Do("delete", [&] { item->Delete(); });
    mMailbox->DeleteFolder(folder);
    const auto items = TakeBack(1);
    EXPECT_EQ(items.restored, 0);
    EXPECT_EQ(items.kept, 1);
    EXPECT_THAT(Commands(), ElementsAre("1 delete 1")) << "what changes nothing is no step";
}

TEST_F(StepJournalTest, TakeBack_OfAnUndo_MakesItsStepUndoableAgain)
{
    const auto item = Saved("a");
    Do("change", [&] { Change(item, "b"); });
    TakeBack(1);
    EXPECT_FALSE(mJournal.NewestInForce({}));
    EXPECT_EQ(TakeBack(2).restored, 1);
    EXPECT_THAT(Subjects(), ElementsAre("1 b"));
    EXPECT_EQ(mJournal.NewestInForce({}).value().number, 1);
    EXPECT_THAT(Commands(), ElementsAre("3 undo 2 1", "2 undo 1 1 taken back", "1 change 1"));
    EXPECT_EQ(TakeBack(3).restored, 1);
    EXPECT_THAT(Subjects(), ElementsAre("1 a"));
    EXPECT_THAT(Commands(), ElementsAre("4 undo 3 1", "3 undo 2 1 taken back", "2 undo 1 1", "1 change 1 taken back"));
}

TEST_F(StepJournalTest, TakeBack_OneAfterTheOther_GoesAllTheWayBack)
{
    const auto item = Saved("a");
    for (const auto* subject : { "b", "c", "b", "d" }) {
        Do(subject, [&] { Change(item, subject); });
    }
    for (const auto* subject : { "1 b", "1 c", "1 b", "1 a" }) {
        const auto step = mJournal.NewestInForce({}).value();
        EXPECT_EQ(TakeBack(step.number).kept, 0);
        EXPECT_THAT(Subjects(), ElementsAre(subject));
    }
}

TEST_F(StepJournalTest, TakeBack_LiveItems_ShowIt)
{
    const auto item = Saved("a");
    Ref<StoreItem> made;
    Do("change", [&] {
        Change(item, "b");
        made = Saved("made");
    });
    TakeBack(1);
    EXPECT_EQ(item->Subject(), "a");
    EXPECT_FALSE(item->HasChanges());
    EXPECT_TRUE(made->IsDeleted());
}

TEST_F(StepJournalTest, Preview_ChangesNothing)
{
    const auto item = Saved("a");
    Do("change", [&] { Change(item, "b"); });
    EXPECT_EQ(mJournal.Preview(mJournal.Find(1).value()).restored, 1);
    EXPECT_THAT(Subjects(), ElementsAre("1 b"));
    EXPECT_THAT(Commands(), ElementsAre("1 change 1"));
}

TEST_F(StepJournalTest, Abandon_UndoesEverything)
{
    const auto item = Saved("a");
    Begin("change");
    Change(item, "b");
    Saved("c");
    mJournal.Abandon();
    EXPECT_THAT(Subjects(), ElementsAre("1 a"));
    EXPECT_THAT(Commands(), IsEmpty());
    Change(item, "d");
    EXPECT_THAT(Subjects(), ElementsAre("1 d"));
}

TEST_F(StepJournalTest, End_DiskIsFull_UndoesEverythingAndFails)
{
    const auto item = Saved("a");
    Begin("change");
    Change(item, "b");
    FillDisk(mMailbox);
    const auto large = NewTestItem(mMailbox, std::string(100'000, 'x'));
    EXPECT_EQ(FailureNumber([&] { large->Save(); }), 61);
    EXPECT_EQ(FailureNumber([&] { mJournal.End(); }), 61);
    FreeDisk(mMailbox);
    EXPECT_THAT(Subjects(), ElementsAre("1 a"));
    EXPECT_THAT(Commands(), IsEmpty());
    Do("again", [&] { Change(item, "c"); });
    EXPECT_THAT(Commands(), ElementsAre("1 again 1"));
}

TEST_F(StepJournalTest, End_RulesChanged_IsAStepWhoseRulesAreDue)
{
    Do("rules", [&] { mRules = "others"; });
    const auto step = mJournal.WithRulesDue().value();
    EXPECT_EQ(step.rulesBefore, "rules");
    EXPECT_EQ(step.rulesAfter, "others");
    EXPECT_EQ(step.items, 0);
    mJournal.NoteRulesReached();
    EXPECT_FALSE(mJournal.WithRulesDue());
    EXPECT_EQ(TestDatabase(mMailbox).Number("PRAGMA synchronous"), 2);
}

TEST_F(StepJournalTest, WithRulesDue_LaterStep_IsOver)
{
    Do("rules", [&] { mRules = "others"; });
    Do("change", [&] { Saved("a"); });
    EXPECT_FALSE(mJournal.WithRulesDue());
}

TEST_F(StepJournalTest, Begin_WithinAnImport_IsNoStep)
{
    StoreImportJournal import(mMailbox);
    import.Begin();
    Do("change", [&] { Saved("a"); });
    EXPECT_TRUE(TestDatabase(mMailbox).IsHolding());
    import.End();
    EXPECT_THAT(Commands(), IsEmpty());
    EXPECT_THAT(Subjects(), ElementsAre("1 a"));
}

TEST_F(StepJournalTest, ImportWithinAStep_EndsTheStepBeforeIt)
{
    StoreImportJournal import(mMailbox);
    Do("change", [&] {
        Saved("a");
        import.Begin();
        EXPECT_THAT(Commands(), ElementsAre("1 change 1"));
        Saved("imported");
        import.End();
    });
    EXPECT_THAT(Commands(), ElementsAre("1 change 1"));
    EXPECT_THAT(Subjects(), ElementsAre("1 a", "2 imported"));
}

TEST_F(StepJournalTest, SaveAsPerson_WithinAStep_EndsItAtOnce)
{
    const auto item = Saved("a");
    Begin("window");
    item->SetSubject("b");
    item->SaveAsPerson();
    EXPECT_FALSE(TestDatabase(mMailbox).IsHolding());
    mJournal.End();
    EXPECT_THAT(Commands(), ElementsAre("1 window 1"));
}

TEST_F(StepJournalTest, End_StepsOlderThanNinetyDays_AreGoneAndTheirNumbersStayUsed)
{
    const auto item = Saved("a");
    Do("old", [&] { Change(item, "b"); });
    mNow = mNow.AddDays(90);
    Do("last day", [&] { Change(item, "c"); });
    EXPECT_THAT(Commands(), ElementsAre("2 last day 1", "1 old 1"));
    mNow = mNow.AddSeconds(1);
    Do("new", [&] { Change(item, "d"); });
    EXPECT_THAT(Commands(), ElementsAre("3 new 1", "2 last day 1"));
    EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT count(*) FROM step_item WHERE step = 1"), 0);
    mNow = mNow.AddDays(500);
    Do("newest", [&] { Change(item, "e"); });
    EXPECT_THAT(Commands(), ElementsAre("4 newest 1"));
}

TEST_F(StepJournalTest, TakeBack_AllChangedSince_CanStillBeTakenBackLater)
{
    const auto item = Saved("a");
    Do("first", [&] { Change(item, "b"); });
    Do("second", [&] { Change(item, "c"); });
    EXPECT_EQ(TakeBack(1).kept, 1);
    EXPECT_THAT(Commands(), ElementsAre("2 second 1", "1 first 1")) << "nothing was changed";
    EXPECT_EQ(TakeBack(2).restored, 1);
    EXPECT_EQ(TakeBack(1).restored, 1);
    EXPECT_EQ(item->Subject(), "a");
}

}
