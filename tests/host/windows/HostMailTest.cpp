#include "host/windows/HostMail.h"

#include "host/windows/HostApplication.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <sys/stat.h>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class HostMailTest : public testing::Test
{
protected:
    Ref<HostMail> NewMail() const { return mApplication->CreateItem().As<HostMail>(); }
    MailDraft Kept() const { return mMailbox->Drafts().Get(mMailbox->Drafts().All().back()); }

    TempFolder mFolder { TempFolder::InMemory() };
    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<HostApplication> mApplication = MakeRef<HostApplication>(mMailbox);
    Ref<HostMail> mMail = NewMail();
};

TEST_F(HostMailTest, New_IsAnEmptyMail)
{
    EXPECT_EQ(mMail->Class(), ObjectClass::Mail);
    EXPECT_EQ(mMail->MessageClass(), "IPM.Note");
    EXPECT_EQ(mMail->EntryID(), "");
    EXPECT_EQ(mMail->Subject(), "");
    EXPECT_EQ(mMail->Body(), "");
    EXPECT_EQ(mMail->HTMLBody(), "");
    EXPECT_FALSE(mMail->Draft().isHtml);
}

TEST_F(HostMailTest, Subject_IsTheOneSet)
{
    mMail->SetSubject("Häuser");
    EXPECT_EQ(mMail->Subject(), "Häuser");
    EXPECT_EQ(mMail->Draft().subject, "Häuser");
}

TEST_F(HostMailTest, Body_TheLastOneSet_TakesThePlaceOfTheOther)
{
    mMail->SetBody("text");
    EXPECT_EQ(mMail->Body(), "text");
    EXPECT_EQ(mMail->HTMLBody(), "");
    mMail->SetHTMLBody("<p>html</p>");
    EXPECT_EQ(mMail->Body(), "");
    EXPECT_EQ(mMail->HTMLBody(), "<p>html</p>");
    EXPECT_TRUE(mMail->Draft().isHtml);
    mMail->SetBody("again");
    EXPECT_EQ(mMail->Body(), "again");
    EXPECT_FALSE(mMail->Draft().isHtml);
}

TEST_F(HostMailTest, Recipients_StandInTheirOrder)
{
    mMail->Recipients()->Add("zoe@example.com");
    mMail->Recipients()->Add("ann@example.com");
    EXPECT_THAT(mMail->Draft().recipients, ElementsAre("zoe@example.com", "ann@example.com"));
}

TEST_F(HostMailTest, Attachments_AreCopiesTakenAtOnce)
{
    const std::string content = std::string("\0\r\n\xff", 4) + std::string(200'000, 'x');
    const auto path = mFolder.Write("a file.out", content);
    mMail->Attachments()->Add(path);
    mMail->Attachments()->Add(mFolder.Write("empty.csv", ""));
    static_cast<void>(mFolder.Write("a file.out", "other"));
    ASSERT_THAT(mMail->Draft().attachments, SizeIs(2));
    EXPECT_EQ(mMail->Draft().attachments[0].name, "a file.out");
    EXPECT_TRUE(mMail->Draft().attachments[0].content == content);
    EXPECT_EQ(mMail->Draft().attachments[1].name, "empty.csv");
    EXPECT_EQ(mMail->Draft().attachments[1].content, "");
}

TEST_F(HostMailTest, Attachments_FileThatCanNotBeRead_FailsAndAddsNothing)
{
    EXPECT_EQ(FailureNumber([&] { mMail->Attachments()->Add(mFolder.Path("absent.out")); }), 53);
    EXPECT_EQ(FailureNumber([&] { mMail->Attachments()->Add(mFolder.Path()); }), 57) << "a folder";
    EXPECT_THAT(mMail->NotAttached(), ElementsAre(mFolder.Path("absent.out"), mFolder.Path()));
    EXPECT_THAT(mMail->Draft().attachments, IsEmpty());
}

TEST_F(HostMailTest, Attachments_Pipe_FailsWithoutWaiting)
{
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(FailureNumber([&] { mMail->Attachments()->Add(mFolder.Path("pipe")); }), 57);
    EXPECT_THAT(mMail->NotAttached(), ElementsAre(mFolder.Path("pipe")));
    EXPECT_THAT(mMail->Draft().attachments, IsEmpty());
}

TEST_F(HostMailTest, Attachments_FileLargerThanTheMailboxHolds_Fails)
{
    const auto path = mFolder.Write("large.csv", "");
    std::filesystem::resize_file(path, std::uintmax_t { 1 } << 31);
    EXPECT_EQ(FailureNumber([&] { mMail->Attachments()->Add(path); }), 7);
    EXPECT_THAT(mMail->NotAttached(), ElementsAre(path));
    EXPECT_THAT(mMail->Draft().attachments, IsEmpty());
}

TEST_F(HostMailTest, AttachmentsAndRecipients_OutliveTheMailsOwner)
{
    const auto attachments = mMail->Attachments();
    const auto recipients = mMail->Recipients();
    mMail = nullptr;
    attachments->Add(mFolder.Write("a.out", "x"));
    recipients->Add("ann@example.com");
}

TEST_F(HostMailTest, Display_PutsTheMailOnTheScreenOnce)
{
    const auto other = NewMail();
    EXPECT_THAT(mApplication->Mails(), IsEmpty());
    mMail->Display();
    other->Display();
    mMail->Display();
    EXPECT_THAT(mApplication->Mails(), ElementsAre(mMail, other));
    EXPECT_EQ(mMail->EntryID(), "");
}

TEST_F(HostMailTest, Display_ApplicationIsGone_DoesNothing)
{
    mApplication = nullptr;
    mMail->Display();
    EXPECT_EQ(mMail->EntryID(), "");
}

TEST_F(HostMailTest, Save_KeepsTheMailAmongTheDrafts)
{
    mMail->SetSubject("Report");
    mMail->SetHTMLBody("<p>x</p>");
    mMail->Recipients()->Add("ann@example.com");
    mMail->Attachments()->Add(mFolder.Write("a.csv", "1,2"));
    mMail->Save();
    ASSERT_THAT(mMailbox->Drafts().All(), SizeIs(1));
    EXPECT_EQ(Kept().subject, "Report");
    EXPECT_EQ(Kept().body, "<p>x</p>");
    EXPECT_TRUE(Kept().isHtml);
    EXPECT_THAT(Kept().recipients, ElementsAre("ann@example.com"));
    ASSERT_THAT(Kept().attachments, SizeIs(1));
    EXPECT_EQ(Kept().attachments[0].name, "a.csv");
    EXPECT_EQ(Kept().attachments[0].content, "1,2");
}

TEST_F(HostMailTest, Save_Again_KeepsTheIdentity)
{
    mMail->Save();
    const auto id = mMail->EntryID();
    EXPECT_THAT(id, SizeIs(48));
    mMail->SetSubject("other");
    mMail->Save();
    EXPECT_EQ(mMail->EntryID(), id);
    EXPECT_THAT(mMailbox->Drafts().All(), SizeIs(1));
    EXPECT_EQ(Kept().subject, "other");

    const auto second = NewMail();
    second->Save();
    EXPECT_NE(second->EntryID(), id);
}

TEST_F(HostMailTest, Save_DraftDeletedMeanwhile_KeepsTheMailAnew)
{
    mMail->Save();
    const auto id = mMail->EntryID();
    mMailbox->Drafts().Delete(mMailbox->Drafts().All().front());
    mMail->SetSubject("still here");
    mMail->Save();
    EXPECT_NE(mMail->EntryID(), id);
    EXPECT_EQ(Kept().subject, "still here");
}

TEST_F(HostMailTest, Save_FullDisk_FailsAndTheMailStaysUnsaved)
{
    FillDisk(mMailbox);
    mMail->SetBody(std::string(100'000, 'x'));
    EXPECT_EQ(FailureNumber([&] { mMail->Save(); }), 61);
    EXPECT_EQ(mMail->EntryID(), "");
    FreeDisk(mMailbox);
    mMail->Save();
    EXPECT_NE(mMail->EntryID(), "");
}

}
