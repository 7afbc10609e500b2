#include "host/store/DraftTable.h"

#include "host/store/StoreImportJournal.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

MailDraft PlainDraft()
{
    MailDraft draft;
    draft.subject = "Subject";
    draft.body = "a line\r\nanother";
    return draft;
}

MailDraft FullDraft()
{
    MailDraft draft;
    draft.recipients = { "\"Zoë\" <zoe@example.com>", "ann@example.com", "5" };
    draft.subject = "Häuser";
    draft.body = "<p>\xF0\x9F\x98\x80</p>";
    draft.isHtml = true;
    draft.attachments = { { "b.csv", std::string("\0\xff\r\n'", 5), "text/csv" }, { "a.out", "", "" } };
    return draft;
}

void ExpectEqual(const MailDraft& kept, const MailDraft& draft)
{
    EXPECT_EQ(kept.recipients, draft.recipients);
    EXPECT_EQ(kept.subject, draft.subject);
    EXPECT_EQ(kept.body, draft.body);
    EXPECT_EQ(kept.isHtml, draft.isHtml);
    ASSERT_EQ(kept.attachments.size(), draft.attachments.size());
    for (std::size_t index = 0; index < draft.attachments.size(); ++index) {
        EXPECT_EQ(kept.attachments[index].name, draft.attachments[index].name);
        EXPECT_EQ(kept.attachments[index].content, draft.attachments[index].content);
        EXPECT_EQ(kept.attachments[index].type, draft.attachments[index].type);
    }
}

}

class DraftTableTest : public testing::Test
{
protected:
    static constexpr auto NotFound = static_cast<std::int32_t>(Error::ObjectNotFound);

    DraftTable& Drafts() const { return mMailbox->Drafts(); }
    std::int64_t Count(const std::string& table) const
    {
        return TestDatabase(mMailbox).Number("SELECT count(*) FROM " + table);
    }
    Ref<Mailbox> mMailbox = OpenTestMailbox();
};

TEST_F(DraftTableTest, Save_AnyContent_IsKeptAsItIs)
{
    for (const auto& draft : { MailDraft(), PlainDraft(), FullDraft() }) {
        ExpectEqual(Drafts().Get(Drafts().Save(draft)), draft);
    }
    EXPECT_THAT(Drafts().All(), ElementsAre(1, 2, 3));
}

TEST_F(DraftTableTest, Save_MailboxOpenedAgain_FindsIt)
{
    const TempFolder folder;
    const auto path = folder.Path("mailbox.db");
    const auto row = OpenTestMailbox(path)->Drafts().Save(FullDraft());
    const auto mailbox = OpenTestMailbox(path);
    ExpectEqual(mailbox->Drafts().Get(row), FullDraft());
    EXPECT_TRUE(TestDatabase(mailbox).IsSound());
}

TEST_F(DraftTableTest, Update_ReplacesAllOfIt)
{
    const auto other = Drafts().Save(FullDraft());
    const auto row = Drafts().Save(FullDraft());
    EXPECT_TRUE(Drafts().Update(row, PlainDraft()));
    ExpectEqual(Drafts().Get(row), PlainDraft());
    ExpectEqual(Drafts().Get(other), FullDraft());
    EXPECT_TRUE(Drafts().Update(row, FullDraft()));
    ExpectEqual(Drafts().Get(row), FullDraft());
    EXPECT_THAT(Drafts().All(), ElementsAre(other, row));
}

TEST_F(DraftTableTest, Update_DraftThatIsGone_MakesNone)
{
    EXPECT_FALSE(Drafts().Update(1, FullDraft()));
    EXPECT_THAT(Drafts().All(), IsEmpty());
    EXPECT_EQ(Count("draft_attachment"), 0);
}

TEST_F(DraftTableTest, Delete_TakesTheAttachmentsAlong)
{
    const auto row = Drafts().Save(FullDraft());
    Drafts().Delete(row);
    EXPECT_EQ(Count("draft"), 0);
    EXPECT_EQ(Count("draft_attachment"), 0);
    EXPECT_EQ(FailureNumber([&] { Drafts().Get(row); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { Drafts().Delete(row); }), NotFound);
}

TEST_F(DraftTableTest, Save_AfterADeletion_NeverUsesARowTwice)
{
    const auto row = Drafts().Save(PlainDraft());
    Drafts().Delete(row);
    EXPECT_GT(Drafts().Save(PlainDraft()), row);
}

TEST_F(DraftTableTest, Save_FullDisk_FailsAndKeepsNothing)
{
    auto draft = FullDraft();
    draft.attachments[0].content = std::string(100'000, 'x');
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { Drafts().Save(draft); }), 61);
    EXPECT_EQ(Count("draft"), 0);
    FreeDisk(mMailbox);
    ExpectEqual(Drafts().Get(Drafts().Save(draft)), draft);
}

TEST_F(DraftTableTest, Update_FullDisk_FailsAndKeepsWhatWasThere)
{
    const auto row = Drafts().Save(FullDraft());
    auto draft = PlainDraft();
    draft.body = std::string(100'000, 'x');
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { Drafts().Update(row, draft); }), 61);
    ExpectEqual(Drafts().Get(row), FullDraft());
}

TEST_F(DraftTableTest, Save_UndoneWithAnImport_DoesNotGiveItsRowToAnother)
{
    StoreImportJournal journal(mMailbox);
    journal.Begin();
    const auto undone = Drafts().Save(PlainDraft());
    auto draft = FullDraft();
    draft.body = std::string(100'000, 'x');
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { Drafts().Save(draft); }), 61);
    EXPECT_EQ(FailureNumber([&] { Drafts().Delete(undone); }), 61) << "until the import has ended";
    FreeDisk(mMailbox);
    EXPECT_NE(FailureNumber([&] { journal.End(); }), 0);
    EXPECT_FALSE(Drafts().Update(undone, PlainDraft()));
    EXPECT_GT(Drafts().Save(PlainDraft()), undone);
}

TEST_F(DraftTableTest, Get_RecipientsThatCanNotBeRead_Fails)
{
    const auto row = Drafts().Save(PlainDraft());
    TestDatabase(mMailbox).Execute("UPDATE draft SET recipients = '[\"a'");
    EXPECT_EQ(FailureNumber([&] { Drafts().Get(row); }), 440);
}

}
