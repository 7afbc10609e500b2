#include "cli/StartedProgram.h"
#include "session/OpenProfile.h"
#include "session/ProfileFolder.h"
#include "support/ProgramFixture.h"
#include "support/SmallDisk.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <sys/stat.h>

namespace tempodial {

namespace fs = std::filesystem;

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// What holds for every command that only reads.
class ReaderTest : public ProgramFixture, public testing::WithParamInterface<std::vector<std::string>>
{
protected:
    /// Makes a profile with activities, and with files that a housekeeping would see to.
    void Import() const
    {
        WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
        WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
        WriteTracker("20060901", { WordSlot(32400, 32700, "old.doc") });
        WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), WordSlot(33000, 33300, "new.doc") });
        WriteData(".report.csv.new", "x");
    }
    /// Each file and folder of the profile but for what SQLite keeps beside the mailbox, with all that can be seen of
    /// it.
    std::map<std::string, std::string> Contents() const
    {
        std::map<std::string, std::string> contents;
        for (const auto& entry : fs::recursive_directory_iterator(mProfile)) {
            const auto path = entry.path().string();
            if (path.ends_with("-wal") || path.ends_with("-shm")) {
                continue;
            }
            struct stat status
            {
            };
            EXPECT_EQ(::lstat(path.c_str(), &status), 0);
            std::ifstream stream(path, std::ios::binary);
            contents[path] = std::to_string(status.st_mode) + " " + std::to_string(status.st_mtim.tv_sec) + "."
                + std::to_string(status.st_mtim.tv_nsec) + " "
                + (entry.is_regular_file() ? std::string(std::istreambuf_iterator<char>(stream), {}) : "");
        }
        return contents;
    }
    /// What the command answers where nothing is.
    static int StatusOfNothing()
    {
        const auto& name = GetParam().front();
        return name == "registry" || name == "status" || name == "doctor" ? 1 : 0;
    }
};

class ReadingTest : public ProgramFixture
{
};

/// Those that refuse a damaged profile, and the one that tells what is wrong with it.
std::vector<std::vector<std::string>> Readers()
{
    auto readers = OneOfEachReader();
    readers.push_back({ "doctor" });
    readers.push_back({ "apply", "--all", "--preview" });
    return readers;
}

std::string NameOfReader(const testing::TestParamInfo<std::vector<std::string>>& info)
{
    return info.param.front();
}

}

TEST_P(ReaderTest, NoProfile_IsAnEmptyOneThatIsNotMade)
{
    for (const bool isFolder : { false, true }) {
        if (isFolder) {
            fs::create_directory(mProfile);
        }
        const auto result = Run(GetParam());
        EXPECT_EQ(result.status, StatusOfNothing());
        EXPECT_THAT(result.error, StartsWith("tempodial: no profile at " + mProfile + " yet\n"));
        EXPECT_TRUE(isFolder ? fs::is_empty(mProfile) : !fs::exists(mProfile));
    }
}

TEST_P(ReaderTest, AnyMoment_ChangesNoByte)
{
    Import();
    fs::permissions(mProfile, fs::perms::all);
    const auto before = Contents();
    const auto status = Run(GetParam()).status;
    for (const auto* now : { "2006-10-10T17:00:00", "2036-10-10T17:00:00" }) {
        mNow = now;
        EXPECT_EQ(Run(GetParam()).status, status);
        EXPECT_TRUE(Contents() == before) << now;
    }
    EXPECT_EQ(fs::status(mProfile).permissions(), fs::perms::all);
}

TEST_P(ReaderTest, ProfileThatIsHeld_IsReadAtOnce)
{
    Import();
    const auto expected = Run(GetParam());
    auto arguments = GetParam();
    arguments.insert(arguments.begin(), { "--wait", "0" });
    const Profile holder(mProfile, "en_US", std::nullopt);
    const auto result = Run(arguments);
    EXPECT_EQ(result.status, expected.status);
    EXPECT_EQ(result.out, expected.out);
    EXPECT_EQ(result.error, "");
}

TEST_P(ReaderTest, RunKilledBefore_IsReadAndLeftAsItIs)
{
    Import();
    const auto calls = RunTempodialKilledAt(Whole({ "sync", "--quiet" }), 0);
    if (!calls) {
        GTEST_SKIP() << "this system forbids observation";
    }
    WriteTracker("20061010",
        { WordSlot(32400, 32700, "a.doc"), WordSlot(33000, 33300, "new.doc"), WordSlot(33300, 33600, "newer.doc") });
    ASSERT_EQ(RunTempodialKilledAt(Whole({ "sync", "--quiet" }), calls->systemCalls * 3 / 4)->status, 137);
    const auto before = Contents();
    const auto result = Run(GetParam());
    EXPECT_THAT(
        result.status, testing::AnyOf(0, GetParam().front() == "status" || GetParam().front() == "doctor" ? 1 : 0));
    EXPECT_NE(result.out, "");
    EXPECT_TRUE(Contents() == before);
    EXPECT_EQ(Run({ "sync" }).status, 0);
}

TEST_P(ReaderTest, FolderThatTakesNoFile_IsRead)
{
    const SmallDisk disk(mFolder.Path("disk"));
    if (!disk.IsMounted()) {
        GTEST_SKIP() << "this system doesn't let a disk be mounted";
    }
    mProfile = mFolder.Path("disk/profile");
    Import();
    const auto expected = Run(GetParam());
    for (const bool hasJournal : { true, false }) {
        disk.MakeWritable();
        fs::remove(mProfile + "/mailbox.db-shm");
        if (!hasJournal) {
            fs::remove(mProfile + "/mailbox.db-wal");
        }
        disk.MakeReadOnly();
        const auto result = Run(GetParam());
        EXPECT_EQ(result.status, expected.status) << result.error;
        if (GetParam().front() != "status" && GetParam().front() != "doctor") { // which tell of sizes
            EXPECT_EQ(result.out, expected.out);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, ReaderTest, testing::ValuesIn(Readers()), NameOfReader);

TEST_F(ReadingTest, List_BesideASync_NeverWaitsAndNeverFails)
{
    std::vector<std::string> slots;
    for (int i = 0; i < 1000; ++i) {
        slots.push_back(WordSlot(20 * i, 20 * i + 20, std::to_string(i) + ".doc"));
    }
    WriteTracker("20061010", slots);
    StartedProgram sync(Whole({ "sync", "--quiet" }), {});
    std::size_t former = 0;
    for (int i = 0; i < 15; ++i) {
        const auto result = Run({ "list", "--json", "--wait", "0" });
        ASSERT_EQ(result.status, 0) << result.error;
        const auto count = nlohmann::json::parse(result.out).size();
        EXPECT_GE(count, former) << "what was committed stays";
        former = count;
    }
    EXPECT_EQ(sync.End(), 0);
    EXPECT_EQ(nlohmann::json::parse(Run({ "list", "--json" }).out).size(), 1000U);
}

TEST_F(ReadingTest, Write_ProfileThatIsHeld_StillWaits)
{
    const ProfileFolder held(mProfile);
    EXPECT_THAT(Refusal({ "--wait", "0", "sync" }, 3), HasSubstr("is in use by"));
    EXPECT_THAT(Refusal({ "--wait", "0", "registry", "delete", "HKCU", "", "A" }, 3), HasSubstr("is in use by"));
}

}
