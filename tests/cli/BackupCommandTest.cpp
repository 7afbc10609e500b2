#include "support/ProgramFixture.h"
#include "support/TarArchive.h"

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class BackupCommandTest : public ProgramFixture
{
protected:
    /// A profile with activities, projects, steps and files of all kinds.
    void MakeProfile()
    {
        WriteTracker("20061009", { WordSlot(32400, 33000, "old.doc") });
        WriteTracker("20061010", { WordSlot(32400, 33000, "S\u00fcd & Ost.doc"), WordSlot(33000, 33600, "b.doc") });
        EXPECT_EQ(Run({ "sync" }).status, 0);
        EXPECT_EQ(Run({ "projects", "set", "Plan", "--subject", "b.doc" }).status, 0);
        EXPECT_EQ(Run({ "apply", "Plan" }).status, 0);
        EXPECT_EQ(Run({ "edit", "@1", "--description", "new" }).status, 0);
        EXPECT_EQ(Run({ "settings", "set", "retention", "30" }).status, 0);
        fs::create_directories(DataPath("kept"));
        WriteData("kept/tracker_granules20060101.out", "kept");
        std::ofstream(mProfile + "/track.toml") << "# mine\n";
    }
    /// What other programs get of a profile.
    std::string State() const
    {
        return Run({ "export", "2006", "--format", "json" }).out + Run({ "projects", "list", "--json" }).out
            + Run({ "projects", "--json" }).out + Run({ "log", "--json" }).out + Run({ "settings", "--json" }).out;
    }
    std::vector<std::string> FilesIn(const std::string& folder) const
    {
        std::vector<std::string> paths;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            paths.push_back(fs::relative(entry.path(), folder).string());
        }
        std::sort(paths.begin(), paths.end());
        return paths;
    }
    /// What stands beside the profile and beside the backups.
    std::vector<std::string> Beside() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(mFolder.Path())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    std::string MailboxText()
    {
        MakeProfile();
        return mFolder.Read("profile/mailbox.db");
    }
    /// Refused to be restored as a new profile, and nothing of it is left.
    std::string RefusalOf(const std::string& archive)
    {
        mFolder.Write("hostile.tar.gz", archive);
        const auto before = Beside();
        const auto profile = std::exchange(mProfile, mFolder.Path("fresh"));
        auto message = Refusal({ "restore", mFolder.Path("hostile.tar.gz") }, 1);
        mProfile = profile;
        EXPECT_EQ(Beside(), before);
        return message;
    }

    std::string mBackup = mFolder.Path("b.tar.gz");
};

}

TEST_F(BackupCommandTest, Backup_Restored_IsTheSameByteForByte)
{
    MakeProfile();
    const auto state = State();
    const auto trace = mFolder.Read("profile/Tempodial/WorkLogTrace1.out");
    const auto answer = Json({ "backup", mBackup });
    EXPECT_EQ(answer.at("file"), mBackup);
    EXPECT_EQ(answer.at("bytes"), fs::file_size(mBackup));
    const auto files = FilesIn(mProfile);
    const auto former = std::exchange(mProfile, mFolder.Path("other/place"));
    const auto restored = Json({ "restore", mBackup });
    EXPECT_EQ(
        restored, (nlohmann::json { { "profile", mProfile }, { "files", answer.at("files") }, { "former", nullptr } }));
    for (const auto& file : FilesIn(mProfile)) {
        EXPECT_TRUE(fs::exists(fs::path(former) / file)) << file;
    }
    for (const auto& file : files) {
        const bool isJournal = file.ends_with("-wal") || file.ends_with("-shm");
        EXPECT_EQ(fs::exists(mProfile + "/" + file), !isJournal) << file;
    }
    EXPECT_EQ(mFolder.Read("other/place/Tempodial/WorkLogTrace1.out").substr(0, trace.size()), trace);
    EXPECT_EQ(State(), state);
    EXPECT_EQ(Json({ "sync" }).at("created"), 0) << "what was imported is known";
    EXPECT_EQ(Run({ "undo" }).status, 0) << "steps are there";
}

TEST_F(BackupCommandTest, Backup_File_IsTheUsersAloneAndSaidToBeReplaced)
{
    MakeProfile();
    EXPECT_EQ(Run({ "backup", mBackup }).out, "Written: " + mBackup + "\n");
    struct stat status
    {
    };
    ASSERT_EQ(::stat(mBackup.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & ACCESSPERMS, 0600U);
    const auto first = mFolder.Read("b.tar.gz");
    // The next one is of another second.
    std::this_thread::sleep_for(std::chrono::milliseconds(1001));
    EXPECT_EQ(::chmod(mBackup.c_str(), 0644), 0);
    EXPECT_EQ(Run({ "backup", mBackup }).out, "Replaced: " + mBackup + "\n");
    ASSERT_EQ(::stat(mBackup.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & ACCESSPERMS, 0600U);
    EXPECT_EQ(mFolder.Read("b.tar.gz"), first) << "nothing has changed";
    EXPECT_EQ(Run({ "--quiet", "backup", mBackup }).out, "");
    EXPECT_THAT(Beside(), ElementsAre("b.tar.gz", "profile"));
}

TEST_F(BackupCommandTest, Backup_Members_AreFilesAndFoldersBelowOne)
{
    MakeProfile();
    std::ofstream(mProfile + "/some.lock") << "x";
    WriteData(".left.out.new", "x");
    fs::create_symlink("/etc", DataPath("etc"));
    ASSERT_EQ(::mkfifo(DataPath("pipe").c_str(), 0600), 0);
    ASSERT_EQ(::mknod(DataPath("track.sock").c_str(), S_IFSOCK | 0600, 0), 0);
    fs::create_symlink(mFolder.Write("elsewhere", "linked"), DataPath("linked.out"));
    const auto result = Run({ "backup", mBackup });
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.error, HasSubstr("Tempodial/etc isn't in the backup"));
    EXPECT_THAT(result.error, HasSubstr("Tempodial/pipe isn't in the backup"));
    EXPECT_THAT(result.error, testing::Not(HasSubstr("track.sock"))) << "of no use to anyone";
    mProfile = mFolder.Path("fresh");
    EXPECT_EQ(Run({ "restore", mBackup }).status, 0);
    const auto files = FilesIn(mProfile);
    for (const auto* name : { "some.lock", "Tempodial/etc", "Tempodial/pipe", "Tempodial/.left.out.new" }) {
        EXPECT_THAT(files, testing::Not(testing::Contains(name)));
    }
    EXPECT_EQ(mFolder.Read("fresh/Tempodial/linked.out"), "linked");
    EXPECT_FALSE(fs::is_symlink(mProfile + "/Tempodial/linked.out"));
    EXPECT_EQ(mFolder.Read("fresh/track.toml"), "# mine\n");
    EXPECT_EQ(mFolder.Read("fresh/Tempodial/kept/tracker_granules20060101.out"), "kept");
}

TEST_F(BackupCommandTest, Backup_ThatCantBe_IsRefused)
{
    EXPECT_THAT(Refusal({ "backup", mBackup }, 1), HasSubstr("no profile at"));
    EXPECT_FALSE(fs::exists(mProfile));
    for (const auto* name : { "b.tar", "b.tgz", "b", "", "-" }) {
        EXPECT_THAT(Refusal({ "backup", name }, 2), HasSubstr(".tar.gz"));
        Refusal({ "restore", name }, 2);
    }
    Refusal({ "backup" }, 2);
    MakeProfile();
    Refusal({ "backup", mFolder.Path("none/b.tar.gz") }, 1);
    fs::create_directories(mFolder.Path("folder.tar.gz"));
    EXPECT_THAT(Refusal({ "backup", mFolder.Path("folder.tar.gz") }, 1), HasSubstr("it is no file"));
    EXPECT_THAT(Refusal({ "backup", mProfile + "/b.tar.gz" }, 1), HasSubstr("lies in the profile"));
    EXPECT_THAT(Refusal({ "backup", DataPath("b.tar.gz") }, 1), HasSubstr("lies in the profile"));
    fs::create_symlink(mProfile, mFolder.Path("link"));
    EXPECT_THAT(Refusal({ "backup", mFolder.Path("link/b.tar.gz") }, 1), HasSubstr("lies in the profile"));
    EXPECT_THAT(Beside(), ElementsAre("folder.tar.gz", "link", "profile"));
}

TEST_F(BackupCommandTest, Backup_ProfileHeld_IsWaitedForAndThenRefused)
{
    MakeProfile();
    const int folder = ::open(mProfile.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(folder, LOCK_EX | LOCK_NB), 0);
    EXPECT_THAT(Refusal({ "--wait", "0", "backup", mBackup }, 3), HasSubstr("is in use by"));
    EXPECT_FALSE(fs::exists(mBackup));
    ::close(folder);
    EXPECT_EQ(Run({ "backup", mBackup }).status, 0);
    const int again = ::open(mProfile.c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(again, LOCK_EX | LOCK_NB), 0);
    EXPECT_THAT(Refusal({ "--wait", "0", "restore", "--replace", mBackup }, 3), HasSubstr("is in use by"));
    ::close(again);
    EXPECT_THAT(Beside(), ElementsAre("b.tar.gz", "profile"));
}

TEST_F(BackupCommandTest, Restore_ProfileWithActivities_IsRefusedOrKeptBeside)
{
    MakeProfile();
    ASSERT_EQ(Run({ "backup", mBackup }).status, 0);
    const auto state = State();
    EXPECT_EQ(Run({ "delete", "@1" }).status, 0);
    const auto later = State();
    EXPECT_THAT(Refusal({ "restore", mBackup }, 1), HasSubstr("--replace"));
    EXPECT_EQ(State(), later);
    const auto former = mProfile + ".old-20061010-170000";
    const auto result = Run({ "restore", mBackup, "--replace" });
    EXPECT_EQ(result.out, "Restored: " + mProfile + "\nThe former one is kept: " + former + "\n");
    EXPECT_EQ(State(), state);
    const auto again = Json({ "restore", mBackup, "--replace" });
    EXPECT_EQ(again.at("former"), former + "-2");
    mProfile = former;
    EXPECT_EQ(State(), later);
}

TEST_F(BackupCommandTest, Restore_ProfileWithoutActivities_HasNothingInIt)
{
    MakeProfile();
    ASSERT_EQ(Run({ "backup", mBackup }).status, 0);
    const auto state = State();
    mProfile = mFolder.Path("fresh");
    ASSERT_EQ(Run({ "projects", "set", "Wish" }).status, 0);
    EXPECT_EQ(Json({ "restore", mBackup }).at("former"), mProfile + ".old-20061010-170000");
    EXPECT_EQ(State(), state);
    mProfile = mFolder.Path("empty");
    fs::create_directories(mProfile);
    EXPECT_EQ(Json({ "restore", mBackup }).at("former"), nullptr);
    EXPECT_EQ(State(), state);
    mProfile = mFolder.Path("foreign");
    fs::create_directories(mProfile);
    mFolder.Write("foreign/letter.txt", "x");
    EXPECT_THAT(Refusal({ "restore", mBackup, "--replace" }, 1), HasSubstr("other things"));
    EXPECT_EQ(FilesIn(mProfile), std::vector<std::string> { "letter.txt" });
    mProfile = mFolder.Write("file", "x");
    Refusal({ "restore", mBackup }, 1);
}

TEST_F(BackupCommandTest, Restore_OverADamagedProfile_NeedsTheWord)
{
    MakeProfile();
    ASSERT_EQ(Run({ "backup", mBackup }).status, 0);
    const auto state = State();
    mFolder.Write("profile/mailbox.db", "damaged");
    EXPECT_THAT(Refusal({ "restore", mBackup }, 1), HasSubstr("--replace"));
    EXPECT_EQ(Run({ "restore", mBackup, "--replace" }).status, 0);
    EXPECT_EQ(State(), state);
    EXPECT_EQ(mFolder.Read("profile.old-20061010-170000/mailbox.db"), "damaged");
}

TEST_F(BackupCommandTest, Restore_HostileArchives_WriteNothing)
{
    const auto mailbox = MailboxText();
    const TarMember good { "tempodial/mailbox.db", mailbox };
    const std::vector<TarMember> hostile { { "../evil", "x" }, { "tempodial/../../evil", "x" },
        { mFolder.Path("evil"), "x" }, { "tempodial/link", "", '2', "/etc/passwd" },
        { "tempodial/hard", "", '1', "tempodial/mailbox.db" }, { "tempodial/device", "", '3' },
        { "tempodial/block", "", '4' }, { "tempodial/pipe", "", '6' }, { "tempodial/mailbox.db", "twice" },
        { "tempodial/mailbox.db-wal", "x" }, { "tempodial/mailbox.db-shm", "x" }, { "tempodial/a.lock", "x" },
        { "elsewhere/a", "x" }, { std::string("tempodial/a\0/../../evil", 23), "x", '2' } };
    for (const auto& member : hostile) {
        EXPECT_THAT(RefusalOf(Gzip(Tar({ good, member }))), HasSubstr("can't be restored: it holds ")) << member.name;
        EXPECT_THAT(RefusalOf(Gzip(Tar({ member, good }))), HasSubstr("can't be restored: it holds ")) << member.name;
    }
    EXPECT_FALSE(fs::exists(mFolder.Path("evil")));
    EXPECT_THAT(RefusalOf(Gzip(Tar({}))), HasSubstr("no mailbox"));
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/registry.toml", "" } }))), HasSubstr("no mailbox"));
    EXPECT_THAT(RefusalOf("x"), HasSubstr("no archive"));
    EXPECT_THAT(RefusalOf(""), HasSubstr("no archive"));
    const auto whole = Gzip(Tar({ good }));
    for (const auto size : { whole.size() - 1, whole.size() - 9, whole.size() / 2, std::size_t { 20 } }) {
        EXPECT_THAT(RefusalOf(whole.substr(0, size)), HasSubstr("cut off")) << size;
    }
    mFolder.Write("good.tar.gz", whole);
    mProfile = mFolder.Path("good");
    EXPECT_EQ(Run({ "restore", mFolder.Path("good.tar.gz") }).status, 0);
}

TEST_F(BackupCommandTest, Restore_NoUsableProfileInIt_WritesNothing)
{
    const auto mailbox = MailboxText();
    auto newer = mailbox;
    newer[63] = 99;
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/mailbox.db", newer } }))), HasSubstr("newer version"));
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/mailbox.db", "x" } }))), HasSubstr("isn't a mailbox"));
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/mailbox.db", "" } }))), HasSubstr("empty"));
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/mailbox.db", "", '5' } }))), HasSubstr("is no file"));
    auto damaged = mailbox;
    std::fill(damaged.begin() + 4096, damaged.begin() + 12288, 'x');
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/mailbox.db", damaged } }))), HasSubstr("damaged"));
    EXPECT_THAT(RefusalOf(Gzip(Tar({ { "tempodial/mailbox.db", mailbox }, { "tempodial/registry.toml", "[" } }))),
        HasSubstr("registry"));
    EXPECT_THAT(Refusal({ "restore", mFolder.Path("none.tar.gz"), "--replace" }, 1), HasSubstr("couldn't be restored"));
    mProfile = mFolder.Write("file", "x");
    EXPECT_THAT(Refusal({ "restore", mFolder.Path("none.tar.gz") }, 1), HasSubstr("none.tar.gz couldn't be restored"));
}

}
