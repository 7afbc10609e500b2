#include "host/store/MailboxReading.h"

#include "host/store/ItemSpan.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxFile.h"
#include "host/store/MailboxSchema.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"
#include "support/FailureNumber.h"
#include "support/KilledProcess.h"
#include "support/SmallDisk.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tempodial {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MailboxReadingTest : public testing::Test
{
protected:
    static constexpr auto Name = "mailbox.db";

    Ref<Mailbox> Read(bool isHeld = false) const
    {
        return OpenMailboxForReading(mPath, MakeRef<IcuLocaleFormats>("en_US"), MakeRef<ExpatXmlFactory>(), isHeld);
    }
    static std::vector<std::string> Subjects(const Ref<Mailbox>& mailbox)
    {
        std::vector<std::string> subjects;
        const auto items = TestItems(mailbox);
        for (std::int32_t i = 1; i <= items->Count(); ++i) {
            subjects.push_back(items->Item(i)->Subject());
        }
        return subjects;
    }
    void Add(const std::string& subject) const { NewTestItem(OpenTestMailbox(mPath), subject)->Save(); }
    /// Leaves a mailbox whose last item is in the journal alone.
    void AddAndDie(const std::string& subject) const
    {
        ASSERT_TRUE(RunUntilKilled([&] {
            const auto mailbox = OpenTestMailbox(mPath);
            NewTestItem(mailbox, subject)->Save();
            KillThisProcess();
        }));
    }
    std::string ContentOfMailbox(const std::string& suffix = "") const { return mFolder.Read(Name + suffix); }
    /// Makes the mailbox larger than those that are looked over in any case.
    void Grow() const
    {
        const auto mailbox = OpenTestMailbox(mPath);
        TestDatabase(mailbox).Atomically([&] {
            for (int index = 0; index < 600; ++index) {
                const auto item = NewTestItem(mailbox, "large");
                item->SetBody(std::string(4000, 'x'));
                item->Save();
            }
        });
    }
    void Damage() const
    {
        auto content = ContentOfMailbox();
        content.replace(std::size_t { 300 } * 4096, 4096, std::string(4096, '\xee'));
        static_cast<void>(mFolder.Write(Name, content));
    }

    TempFolder mFolder;
    std::string mPath = mFolder.Path(Name);
};

TEST_F(MailboxReadingTest, Read_Absent_IsEmptyAndMakesNothing)
{
    EXPECT_THAT(Subjects(Read()), IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(mFolder.Path()));
    mPath = mFolder.Path("absent/mailbox.db");
    EXPECT_THAT(Subjects(Read()), IsEmpty());
    EXPECT_FALSE(mFolder.Has("absent"));
}

TEST_F(MailboxReadingTest, Read_CleanMailbox_ChangesNoByte)
{
    Add("a");
    const auto before = ContentOfMailbox();
    EXPECT_THAT(Subjects(Read()), ElementsAre("a"));
    EXPECT_EQ(ContentOfMailbox(), before);
}

TEST_F(MailboxReadingTest, Read_BesideAWriter_SeesWhatIsCommittedAndThatAlone)
{
    const auto writer = OpenTestMailbox(mPath);
    NewTestItem(writer, "a")->Save();
    TestDatabase(writer).Hold();
    NewTestItem(writer, "held")->Save();
    EXPECT_THAT(Subjects(Read(true)), ElementsAre("a"));
    TestDatabase(writer).CommitHeld();
    EXPECT_THAT(Subjects(Read(true)), ElementsAre("a", "held"));
}

TEST_F(MailboxReadingTest, Read_WriterGoesOn_StaysAtItsMoment)
{
    const auto writer = OpenTestMailbox(mPath);
    NewTestItem(writer, "a")->Save();
    const auto reader = Read(true);
    NewTestItem(writer, "b")->Save();
    EXPECT_THAT(Subjects(reader), ElementsAre("a"));
    EXPECT_THAT(Subjects(Read(true)), ElementsAre("a", "b"));
}

TEST_F(MailboxReadingTest, Read_WriterEndsMeanwhile_NothingIsLost)
{
    auto writer = OpenTestMailbox(mPath);
    NewTestItem(writer, "a")->Save();
    {
        const auto reader = Read(true);
        writer = nullptr;
        EXPECT_THAT(Subjects(reader), ElementsAre("a"));
    }
    EXPECT_THAT(Subjects(Read()), ElementsAre("a"));
    Add("b");
    EXPECT_EQ(ContentOfMailbox("-wal"), "");
    EXPECT_THAT(Subjects(OpenTestMailbox(mPath)), ElementsAre("a", "b"));
}

TEST_F(MailboxReadingTest, Read_AfterAnUncleanEnd_SeesTheJournalAndLeavesIt)
{
    Add("a");
    AddAndDie("b");
    const auto before = ContentOfMailbox();
    const auto journal = ContentOfMailbox("-wal");
    EXPECT_THAT(Subjects(Read()), ElementsAre("a", "b"));
    EXPECT_EQ(ContentOfMailbox(), before);
    EXPECT_EQ(ContentOfMailbox("-wal"), journal);
    EXPECT_THAT(Subjects(OpenTestMailbox(mPath)), ElementsAre("a", "b"));
}

TEST_F(MailboxReadingTest, Read_DamagedAfterAnUncleanEnd_IsLookedOverUnlessItIsHeld)
{
    Grow();
    AddAndDie("last");
    Damage();
    try {
        Read();
        FAIL() << "damage is refused";
    } catch (const MailboxError& error) {
        EXPECT_THAT(error.what(), HasSubstr("the mailbox " + mPath + " is damaged: "));
    }
    EXPECT_NO_THROW(Read(true)) << "whoever holds it has looked it over";
}

TEST_F(MailboxReadingTest, Read_NoMailbox_IsRefusedAndStays)
{
    static_cast<void>(mFolder.Write(Name, std::string(5000, 'x')));
    EXPECT_THROW(Read(), MailboxError);
    EXPECT_EQ(ContentOfMailbox(), std::string(5000, 'x'));
    std::filesystem::remove(mPath);
    static_cast<void>(mFolder.Write("mailbox.db-wal", "x"));
    EXPECT_THROW(Read(), MailboxError);
}

TEST_F(MailboxReadingTest, Read_NewerVersion_IsRefused)
{
    Add("a");
    ASSERT_TRUE(RunUntilKilled([&] {
        TestDatabase(OpenTestMailbox(mPath)).Execute("PRAGMA user_version = 99");
        KillThisProcess();
    }));
    EXPECT_THROW(Read(), MailboxError);
}

TEST_F(MailboxReadingTest, Read_EachOlderVersion_IsReadAndStaysAsItIs)
{
    for (auto version = MailboxSchema::Version() - 1; version > 0; --version) {
        SCOPED_TRACE(version);
        static_cast<void>(mFolder.Write(Name, ""));
        {
            MailboxDatabase older(mPath);
            const auto& steps = MailboxSchema::Steps();
            MailboxSchema::Migrate(older, { steps.begin(), steps.begin() + version });
            older.Execute("PRAGMA journal_mode = WAL");
            older.Execute("INSERT INTO item (id, folder, kind, message_class, starts, ends, span, recurring, subject, "
                          "mileage, billing, properties, body) SELECT 1, id, 26, 'IPM.Appointment', 0, 0, "
                + std::to_string(ItemSpan::ClassOf(0)) + ", 0, 'old', '', '', '{}', '' FROM folder WHERE role = 9");
            older.Trust();
        }
        const auto before = ContentOfMailbox();
        EXPECT_THAT(Subjects(Read()), ElementsAre("old"));
        EXPECT_EQ(ContentOfMailbox(), before);
    }
}

TEST_F(MailboxReadingTest, Read_AWrite_Fails)
{
    Add("a");
    const auto reader = Read();
    EXPECT_NE(FailureNumber([&] { NewTestItem(reader, "b")->Save(); }), 0);
    EXPECT_NE(FailureNumber([&] { reader->DeleteFolder(reader->FolderByPath("Inbox")); }), 0);
    EXPECT_THAT(Subjects(Read()), ElementsAre("a"));
}

TEST_F(MailboxReadingTest, Read_FolderThatTakesNoFile_IsReadWithAndWithoutWhatLiesBesideIt)
{
    const SmallDisk disk(mFolder.Path("a disk? 100%#1"));
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "this system doesn't let a disk be mounted";
    }
    mPath = mFolder.Path("a disk? 100%#1/mailbox.db");
    Add("a");
    disk.MakeReadOnly();
    EXPECT_THAT(Subjects(Read()), ElementsAre("a"));
    disk.MakeWritable();
    std::filesystem::remove(mPath + "-wal");
    disk.MakeReadOnly();
    EXPECT_THAT(Subjects(Read()), ElementsAre("a"));
    disk.MakeWritable();
    ASSERT_TRUE(RunUntilKilled([&] {
        const auto mailbox = OpenTestMailbox(mPath);
        NewTestItem(mailbox, "b")->Save();
        KillThisProcess();
    }));
    disk.MakeReadOnly();
    EXPECT_THAT(Subjects(Read()), ElementsAre("a", "b"));
    disk.MakeWritable();
    std::filesystem::remove(mPath + "-shm");
    disk.MakeReadOnly();
    EXPECT_THROW(Read(), MailboxError) << "what the journal holds isn't left out";
    disk.MakeWritable();
    EXPECT_THAT(Subjects(Read()), ElementsAre("a", "b"));
}

}
