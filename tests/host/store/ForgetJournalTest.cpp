#include "host/store/ForgetJournal.h"

#include "host/files/FileDescriptor.h"
#include "host/files/NativePath.h"
#include "host/store/LineMemory.h"
#include "host/store/MailboxCopy.h"
#include "host/store/MailboxReading.h"
#include "host/store/StepJournal.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto Activity = "IPM.Appointment.A";

class ForgetJournalTest : public testing::Test
{
protected:
    /// Saves an activity and answers its number.
    std::int64_t Save(const std::string& subject)
    {
        ItemData data;
        data.messageClass = Activity;
        data.subject = subject;
        data.body = "body " + subject;
        data.start = Date::FromParts({ 2006, 10, 10, 9, 0, 0 });
        data.end = data.start.AddMinutes(5);
        data.properties = { { "Description", PropertyType::Text, "of " + subject } };
        const auto calendar = mMailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar);
        const auto item = mMailbox->NewItem(calendar, std::move(data));
        item->Save();
        return item->Row();
    }
    std::vector<std::string> States() const
    {
        std::vector<std::string> states;
        mJournal.EachState(Activity, [&states](const ActivityState& state) {
            states.push_back(std::to_string(state.number)
                + (state.step ? " of step " + std::to_string(*state.step) : "") + ": " + state.subject + ", "
                + state.description + ", " + state.body);
        });
        return states;
    }
    bool HasBytes(const std::string& text) const
    {
        for (const auto* name : { "mailbox.db", "mailbox.db-wal" }) {
            if (mFolder.Read(name).find(text) != std::string::npos) {
                return true;
            }
        }
        return false;
    }
    /// Somebody who reads the mailbox as it is now.
    Ref<Mailbox> Reader() const
    {
        return OpenMailboxForReading(mPath, MakeRef<IcuLocaleFormats>("en_US"), MakeRef<ExpatXmlFactory>(), true);
    }

    TempFolder mFolder { TempFolder::InMemory() };
    std::string mPath = mFolder.Path("mailbox.db");
    Ref<Mailbox> mMailbox = OpenTestMailbox(mPath);
    ForgetJournal mJournal { mMailbox };
};

}

TEST_F(ForgetJournalTest, EachState_ItemsAndSteps_AreGivenItemsFirst)
{
    const auto row = Save("former");
    {
        StepJournal steps(mMailbox);
        steps.Begin(Date::FromParts({ 2006, 10, 10 }), "edit", [] { return ""; });
        const auto item = mMailbox->Store()->Item(row);
        item->SetSubject("new");
        item->Save();
        steps.End();
    }
    NewTestItem(mMailbox, "no activity")->Save();
    const auto number = std::to_string(row);
    EXPECT_THAT(States(),
        ElementsAre(number + ": new, of former, body former", number + " of step 1: former, of former, body former"));
    EXPECT_EQ(mJournal.Steps().size(), 1U);
}

TEST_F(ForgetJournalTest, Forget_Finished_LeavesNoByteAndNothingDue)
{
    const auto row = Save("hidden");
    Save("changed-before");
    {
        const auto item = mMailbox->Store()->Item(row + 1);
        item->SetSubject("kept");
        item->SetBody("kept");
        item->UserProperties()->Item("Description")->SetValue("kept");
        item->Save();
    }
    ForgetOrder order;
    order.items = { row };
    order.texts = { "hidden" };
    order.project = "hidden project";
    order.lines["20061010"] = { { "hidden line" }, {}, 0 };
    EXPECT_FALSE(mJournal.Due());
    mJournal.Forget(order);
    EXPECT_THAT(States(), ElementsAre(std::to_string(row + 1) + ": kept, kept, kept"));
    const auto due = mJournal.Due();
    ASSERT_TRUE(due);
    EXPECT_THAT(due->texts, ElementsAre("hidden"));
    EXPECT_EQ(due->project, "hidden project");
    EXPECT_THAT(due->lines.at("20061010"), ElementsAre("hidden line"));
    EXPECT_TRUE(HasBytes("hidden"));
    mJournal.Finish();
    EXPECT_FALSE(mJournal.Due());
    EXPECT_FALSE(HasBytes("hidden"));
    EXPECT_FALSE(HasBytes("changed-before")) << "what was overwritten before is gone from free room too";
    EXPECT_TRUE(HasBytes("kept"));
    EXPECT_EQ(Save("next"), row + 2) << "numbers are never given again";
}

TEST_F(ForgetJournalTest, Finish_SomebodyReads_FailsAndIsDueAgain)
{
    ForgetOrder order;
    order.items = { Save("hidden") };
    Save("kept");
    {
        const auto reader = Reader();
        EXPECT_EQ(reader->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar)->Items()->Count(), 2);
        mJournal.Forget(order);
        EXPECT_EQ(FailureNumber([&] { mJournal.Finish(); }), 70);
        EXPECT_TRUE(mJournal.Due());
        EXPECT_EQ(reader->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar)->Items()->Count(), 2);
    }
    mJournal.Finish();
    EXPECT_FALSE(mJournal.Due());
    EXPECT_FALSE(HasBytes("hidden"));
}

TEST_F(ForgetJournalTest, Forget_Rules_AreKeptAsTold)
{
    {
        StepJournal steps(mMailbox);
        std::string rules = "a|b|";
        steps.Begin(Date::FromParts({ 2006, 10, 10 }), "projects", [&rules] { return rules; });
        rules = "a|b|c|";
        steps.End();
    }
    ForgetOrder order;
    order.rules = { { 1, "a|", "a|c|" } };
    mJournal.Forget(order);
    EXPECT_EQ(mJournal.Steps().front().rulesBefore, "a|");
    EXPECT_EQ(mJournal.Steps().front().rulesAfter, "a|c|");
    order.rules.clear();
    order.steps = { 1 };
    mJournal.Forget(order);
    EXPECT_THAT(mJournal.Steps(), IsEmpty());
}

TEST_F(ForgetJournalTest, Forget_LinesOfACutOffSync_GoFromMemoryAndPosition)
{
    {
        LineMemory memory(mMailbox);
        memory.BeginDay("20061010", 7);
        for (const auto* line : { "a", "b", "a", "c" }) {
            memory.IsKnown(line);
            memory.Reached();
        }
        memory.Keep();
    }
    TestDatabase(mMailbox).Execute("INSERT INTO import_position (day, count, lines) VALUES ('20061010', 300, 4)");
    EXPECT_EQ(mJournal.Position("20061010"), 4);
    EXPECT_EQ(mJournal.Position("20061011"), 0);
    ForgetOrder order;
    order.lines["20061010"] = { { "a", "c" }, { "a", "c" }, 2 };
    mJournal.Forget(order);
    EXPECT_EQ(mJournal.Position("20061010"), 2);
    LineMemory memory(mMailbox);
    EXPECT_EQ(memory.BeginDay("20061010", 9), 7);
    EXPECT_TRUE(memory.IsKnown("a")) << "it was reached twice and goes once";
    EXPECT_FALSE(memory.IsKnown("a"));
    EXPECT_TRUE(memory.IsKnown("b"));
    EXPECT_FALSE(memory.IsKnown("c"));
}

TEST_F(ForgetJournalTest, CopyMailbox_WhatIsInTheJournalToo_IsAMailboxOfItsOwn)
{
    Save("copied");
    const auto path = NativePath::Exactly(mFolder.Path("copy.db"));
    CopyMailbox(mMailbox, path);
    struct stat status
    {
    };
    ASSERT_EQ(::stat(path.CText(), &status), 0);
    EXPECT_EQ(status.st_mode & ACCESSPERMS, 0600U);
    EXPECT_FALSE(mFolder.Has("copy.db-wal"));
    const auto copy = OpenTestMailbox(path.Text());
    EXPECT_EQ(TestItems(copy)->Count(), 1);
    EXPECT_EQ(FailureNumber([&] { CopyMailbox(mMailbox, path); }), 58) << "what is there stays";
}

}
