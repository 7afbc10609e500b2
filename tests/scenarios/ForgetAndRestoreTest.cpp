#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

/// What leaves a profile for good and what makes one anew, cut off anywhere: it is as if it had been done, or as if it
/// hadn't begun. And backups of any profile.
class ForgetAndRestoreTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        WriteTracker("20061009", { WordSlot(32400, 33000, "old.doc"), WordSlot(33000, 33600, "secret.doc") });
        WriteTracker("20061010", { WordSlot(32400, 33000, "a.doc"), WordSlot(33000, 33600, "Secret b.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
        ASSERT_EQ(Run({ "projects", "set", "Plan", "--subject", "a.doc" }).status, 0);
        ASSERT_EQ(Run({ "edit", "@2", "--description", "also secret" }).status, 0);
        ASSERT_EQ(Run({ "edit", "@1", "--description", "stays" }).status, 0);
    }
    /// What other programs get of a profile.
    std::string State() const
    {
        return Run({ "export", "2006", "--format", "json" }).out + Run({ "projects", "--json" }).out
            + Run({ "projects", "list", "--json" }).out + Run({ "log", "--json" }).out;
    }
    /// All files of the profile but journals, locks and the trace, with what is in them.
    std::string TrackerFiles() const
    {
        std::vector<std::string> texts;
        for (const auto& entry : fs::recursive_directory_iterator(mProfile + "/Tempodial")) {
            if (entry.is_regular_file() && entry.path().filename().string().find("tracker_") == 0) {
                texts.push_back(entry.path().filename().string() + "\n" + Content(entry.path()));
            }
        }
        std::sort(texts.begin(), texts.end());
        std::string all;
        for (const auto& text : texts) {
            all += text;
        }
        return all;
    }
    static std::string Content(const fs::path& path)
    {
        std::ostringstream content;
        content << std::ifstream(path, std::ios::binary).rdbuf();
        return content.str();
    }
    bool HoldsSecret() const
    {
        for (const auto& entry : fs::recursive_directory_iterator(mProfile)) {
            auto content = entry.is_regular_file() ? Content(entry.path()) : "";
            std::replace(content.begin(), content.end(), 'S', 's');
            if (content.find("secret") != std::string::npos) {
                return true;
            }
        }
        return false;
    }
    std::string Copy(const std::string& from, const std::string& name) const
    {
        fs::remove_all(mFolder.Path(name));
        fs::copy(from, mFolder.Path(name), fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        return mFolder.Path(name);
    }
    /// Kills a command at points spread over its length; `check` is told at which, and answers whether it was done.
    void KillEverywhere(const Arguments& command, const std::string& original, int most,
        const std::function<bool(std::int64_t call)>& check)
    {
        mProfile = Copy(original, "cut");
        const auto counted = RunTempodialKilledAt(Whole(command), 0);
        if (!counted) {
            GTEST_SKIP() << "no observation here";
        }
        ASSERT_EQ(counted->status, 0) << counted->error;
        const auto points = std::min<std::int64_t>(counted->systemCalls, most);
        int done = 0;
        for (std::int64_t i = 1; i <= points; ++i) {
            const auto call = counted->systemCalls * i / points;
            mProfile = Copy(original, "cut");
            RunTempodialKilledAt(Whole(command), call);
            done += check(call) ? 1 : 0;
        }
        EXPECT_GT(done, 0);
        EXPECT_LT(done, points);
    }
};

}

TEST_F(ForgetAndRestoreTest, Forget_KilledAnywhere_IsWholeOrNotAtAll)
{
    const Arguments command { "forget", "--match", "secret", "--yes" };
    const auto original = mProfile;
    const auto before = State();
    const auto filesBefore = TrackerFiles();
    mProfile = Copy(original, "whole");
    ASSERT_EQ(Run(command).status, 0);
    const auto after = State();
    const auto filesAfter = TrackerFiles();
    ASSERT_NE(before, after);
    ASSERT_NE(filesBefore, filesAfter);
    EXPECT_FALSE(HoldsSecret());
    KillEverywhere(command, original, StopPoints(24, 4000), [&](std::int64_t call) {
        // What only reads sees the mailbox as a whole; the next program that writes goes on with the rest.
        const auto seen = State();
        EXPECT_EQ(Run({ "settings", "set", "author", "A" }).status, 0) << call;
        EXPECT_EQ(State(), seen) << call;
        const bool isDone = seen == after;
        EXPECT_TRUE(isDone || seen == before) << call;
        EXPECT_EQ(TrackerFiles(), isDone ? filesAfter : filesBefore) << call;
        EXPECT_EQ(HoldsSecret(), !isDone) << call;
        EXPECT_EQ(Json({ "sync" }).at("created"), 0) << call;
        return isDone;
    });
}

TEST_F(ForgetAndRestoreTest, Restore_KilledAnywhere_IsWholeOrNotAtAll)
{
    const auto backup = mFolder.Path("b.tar.gz");
    ASSERT_EQ(Run({ "backup", backup }).status, 0);
    const auto restored = State();
    ASSERT_EQ(Run({ "delete", "@1" }).status, 0);
    const auto original = mProfile;
    const auto before = State();
    const auto former = mFolder.Path("cut.old-20061010-170000");
    const auto clean = [&] {
        fs::remove_all(former);
        fs::remove_all(mFolder.Path("cut.old-20061010-170000-2"));
    };
    KillEverywhere({ "restore", backup, "--replace" }, original, StopPoints(24, 4000), [&](std::int64_t call) {
        const auto seen = State();
        const bool isDone = seen == restored;
        EXPECT_TRUE(isDone || seen == before) << call;
        if (isDone) {
            mProfile = former;
            EXPECT_EQ(State(), before) << call << ": the former one is kept";
            mProfile = mFolder.Path("cut");
        }
        // Another one isn't in the way of what was left.
        EXPECT_EQ(Run({ "restore", backup, "--replace" }).status, 0) << call;
        EXPECT_EQ(State(), restored) << call;
        EXPECT_FALSE(fs::exists(mFolder.Path(".cut.restored"))) << call;
        clean();
        return isDone;
    });
}

TEST_F(ForgetAndRestoreTest, Backup_KilledAnywhere_FileIsWholeOrAsItWas)
{
    const auto backup = mFolder.Write("b.tar.gz", "former");
    const auto original = mProfile;
    const auto before = State();
    KillEverywhere({ "backup", backup }, original, StopPoints(16, 2000), [&](std::int64_t call) {
        EXPECT_EQ(State(), before) << call;
        const bool isDone = mFolder.Read("b.tar.gz") != "former";
        if (isDone) {
            mProfile = mFolder.Path("look");
            EXPECT_EQ(Run({ "restore", backup }).status, 0) << call;
            EXPECT_EQ(State(), before) << call;
            fs::remove_all(mProfile);
        }
        mFolder.Write("b.tar.gz", "former");
        return isDone;
    });
}

TEST_F(ForgetAndRestoreTest, Backup_OfAnyProfile_GivesItBackByteForByte)
{
    std::mt19937 random { 20061010 };
    const auto below = [&random](int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random); };
    const auto oneOf = [&](const std::vector<std::string>& texts) {
        return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
    };
    const std::vector<std::string> texts { "a.doc", "S\u00fcd & Ost", "\u202e\u05d0", "x\ty", "\"quoted\"", "| < >" };
    const std::vector<std::string> activities { "@1", "@2", "@3", "@4", "@5" };
    const auto backup = mFolder.Path("b.tar.gz");
    for (int round = 0; round < ShortOrLong(3, 40); ++round) {
        for (int i = 0; i < 8; ++i) {
            const std::vector<Arguments> commands {
                { "projects", "set", oneOf({ "A", "B\u00e4r", "C D" }), "--subject", oneOf(texts) },
                { "edit", oneOf(activities), "--description", oneOf(texts), "--people", oneOf(texts) },
                { "assign", oneOf({ "A", "B\u00e4r" }), oneOf(activities), "--overwrite" },
                { "add", "--from", "2006-10-10T1" + std::to_string(below(10)) + ":00", "--to", "2006-10-10T20:00",
                    "--description", oneOf(texts) },
                { "delete", oneOf(activities) },
                { "undo" },
            };
            Run(commands[static_cast<std::size_t>(below(static_cast<int>(commands.size())))]);
        }
        const auto state = State();
        ASSERT_EQ(Run({ "backup", backup }).status, 0);
        const auto original = std::exchange(mProfile, mFolder.Path("restored"));
        ASSERT_EQ(Run({ "restore", backup }).status, 0);
        EXPECT_EQ(State(), state);
        fs::remove_all(mProfile);
        mProfile = original;
    }
}

}
