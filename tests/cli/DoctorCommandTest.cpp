#include "support/ProgramFixture.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>

namespace tempodial {

namespace fs = std::filesystem;

namespace {

using testing::EndsWith;
using testing::HasSubstr;

class DoctorCommandTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
        Json({ "sync" });
        fs::permissions(DataPath("tracker_granules20061010.out"), fs::perms::owner_read | fs::perms::owner_write);
    }
    /// What is wrong, by its check; the exit status must say so.
    std::map<std::string, nlohmann::json> Wrong() const
    {
        const auto result = Run({ "doctor", "--json" });
        std::map<std::string, nlohmann::json> wrong;
        for (const auto& finding : nlohmann::json::parse(result.out)) {
            EXPECT_EQ(finding.size(), 4U);
            EXPECT_EQ(finding.at("todo").get<std::string>().empty(), finding.at("ok").get<bool>());
            if (!finding.at("ok").get<bool>()) {
                wrong[finding.at("check")] = finding;
            }
        }
        EXPECT_EQ(result.status, wrong.empty() ? 0 : 1);
        return wrong;
    }
    void ExpectOneWrong(const std::string& check, const std::string& what) const
    {
        const auto wrong = Wrong();
        ASSERT_EQ(wrong.size(), 1U) << nlohmann::json(wrong).dump(2);
        ASSERT_EQ(wrong.begin()->first, check);
        EXPECT_THAT(wrong.begin()->second.at("what").get<std::string>(), HasSubstr(what));
    }
};

}

TEST_F(DoctorCommandTest, Doctor_SoundProfile_FindsNothing)
{
    EXPECT_TRUE(Wrong().empty());
    const auto result = Run({ "doctor" });
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("mailbox: whole, 1 activity\n"));
    EXPECT_EQ(result.error, "");
}

TEST_F(DoctorCommandTest, Doctor_NoProfile_SaysSoAndMakesNone)
{
    fs::remove_all(mProfile);
    const auto result = Run({ "doctor", "--json" });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.error, "tempodial: no profile at " + mProfile + " yet\n");
    EXPECT_FALSE(fs::exists(mProfile));
}

TEST_F(DoctorCommandTest, Doctor_FolderThatCantBeOpened_TellsNothingOfWhatIsInIt)
{
    mProfile = mFolder.Write("file", "x") + "/profile";
    const auto result = Run({ "doctor" });
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, testing::StartsWith("WRONG  profile: can't open the profile folder"));
    EXPECT_THAT(result.out, testing::ContainsRegex("\nok     space: [0-9]+ MiB free\n$"));
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 2);
}

TEST_F(DoctorCommandTest, Doctor_DamagedMailbox_IsNamedAndStays)
{
    mFolder.Write("profile/mailbox.db", std::string(5000, 'x'));
    ExpectOneWrong("mailbox", "isn't a mailbox");
    EXPECT_EQ(mFolder.Read("profile/mailbox.db"), std::string(5000, 'x'));
}

TEST_F(DoctorCommandTest, Doctor_DamagedRegistryAndHistory_AreNamed)
{
    mFolder.Write("profile/Tempodial/TempodialHistory.out", "20061010_36300|nonsense");
    ExpectOneWrong("history", "isn't a history");
    fs::remove(DataPath("TempodialHistory.out"));
    EXPECT_TRUE(Wrong().empty());
    mFolder.Write("profile/registry.toml", "[HKCU");
    EXPECT_TRUE(Wrong().contains("registry"));
}

TEST_F(DoctorCommandTest, Doctor_SyncWithoutFilesOfTheTracker_IsRight)
{
    fs::remove_all(mProfile);
    ASSERT_EQ(Run({ "sync" }).status, 0);
    ASSERT_EQ(fs::file_size(DataPath("TempodialHistory.out")), 0U);
    EXPECT_TRUE(Wrong().empty());
    EXPECT_THAT(Run({ "doctor" }).out, HasSubstr("history: none yet"));
}

TEST_F(DoctorCommandTest, Doctor_WhatToDo_IsSaidOnce)
{
    mFolder.Write("profile/mailbox.db", std::string(5000, 'x'));
    const auto wrong = Wrong().at("mailbox");
    EXPECT_THAT(wrong.at("what").get<std::string>(), EndsWith("isn't a mailbox"));
    EXPECT_EQ(wrong.at("todo"), "move it away, or name another profile");
}

TEST_F(DoctorCommandTest, Doctor_UnreadableLines_AreNamed)
{
    WriteData("tracker_granules20061009.out",
        TrackerText({ WordSlot(32400, 32700, "a.doc"), "nonsense", "", "<slot><EndTime>x</EndTime></slot>" }));
    ExpectOneWrong("tracker", "tracker_granules20061009.out: couldn't read lines 3, 5");
}

TEST_F(DoctorCommandTest, Doctor_OpenToOthers_IsWrongButForTrackerFiles)
{
    const auto all = fs::perms::owner_all | fs::perms::group_read;
    fs::permissions(DataPath("tracker_granules20061010.out"), all);
    EXPECT_TRUE(Wrong().empty());
    EXPECT_THAT(Run({ "doctor" }).out, HasSubstr("others may look into"));
    for (const auto& path : { mProfile + "/mailbox.db", mProfile + "/registry.toml", DataPath("WorkLogTrace1.out"),
             DataPath("TempodialHistory.out"), mProfile }) {
        const auto before = fs::status(path).permissions();
        fs::permissions(path, all);
        ExpectOneWrong("modes", path);
        fs::permissions(path, before);
    }
}

TEST_F(DoctorCommandTest, Doctor_NoTemplates_IsWrong)
{
    Json({ "registry", "set", "HKLM", "", "Install Directory", "/nowhere" });
    ExpectOneWrong("form", "WorkLogForm.oft isn't in /nowhere");
}

}
