#include "host/store/MailboxFile.h"

#include "host/store/MailboxError.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool refusesFolders = false;

}

/// In the place of the system's own: the disk of a folder may refuse.
extern "C" int fsync(int number)
{
    struct stat status
    {
    };
    if (refusesFolders && ::fstat(number, &status) == 0 && S_ISDIR(status.st_mode)) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_fsync, number));
}

namespace tempodial {

using testing::HasSubstr;

class MailboxFileTest : public testing::Test
{
protected:
    /// The text with which something is refused, "" when it isn't.
    template <class Work> static std::string Refusal(Work&& work)
    {
        try {
            work();
        } catch (const MailboxError& error) {
            return error.what();
        }
        return "";
    }

    TempFolder mFolder;
    MailboxFile mFile { mFolder.Path("mailbox.db") };
};

TEST_F(MailboxFileTest, TakeDraft_PutsItInItsPlace)
{
    EXPECT_EQ(mFile.NewDraft(), mFolder.Path("mailbox.db.new"));
    mFile.TakeDraft();
    EXPECT_TRUE(mFolder.Has("mailbox.db"));
    EXPECT_FALSE(mFolder.Has("mailbox.db.new"));
}

TEST_F(MailboxFileTest, TakeDraft_FolderIsNotSafeOnDisk_IsRefused)
{
    static_cast<void>(mFile.NewDraft());
    refusesFolders = true;
    const auto refusal = Refusal([&] { mFile.TakeDraft(); });
    refusesFolders = false;
    EXPECT_THAT(refusal, HasSubstr(mFolder.Path("mailbox.db") + " can't be made (Input/output error)"));
}

TEST_F(MailboxFileTest, TakeDraft_NoDraft_IsRefused)
{
    EXPECT_THAT(Refusal([&] { mFile.TakeDraft(); }), HasSubstr("can't be made (No such file or directory)"));
}

TEST_F(MailboxFileTest, Examine_FolderIsAFile_IsRefused)
{
    const MailboxFile file(mFolder.Write("folder", "") + "/mailbox.db");
    EXPECT_THAT(Refusal([&] { file.Examine(1); }), HasSubstr("can't be looked at (Not a directory)"));
}

TEST_F(MailboxFileTest, Examine_JournalBesideALinksTarget_IsTheMailboxsOwn)
{
    std::filesystem::create_directory(mFolder.Path("elsewhere"));
    std::filesystem::create_symlink("elsewhere/kept.db", mFolder.Path("mailbox.db"));
    mFolder.Write("mailbox.db-wal", "another's");
    EXPECT_EQ(MailboxFile(mFolder.Path("mailbox.db")).Examine(1), MailboxFile::State::Absent);
    mFolder.Write("elsewhere/kept.db-wal", "its own");
    const MailboxFile file(mFolder.Path("mailbox.db"));
    EXPECT_THAT(Refusal([&] { file.Examine(1); }), HasSubstr(mFolder.Path("elsewhere/kept.db-wal is still there")));
}

}
