#include "session/ProfileFolder.h"
#include "support/ProgramFixture.h"

#include <chrono>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;

/// What holds for every command that opens the profile.
class ProfileUseTest : public ProgramFixture, public testing::WithParamInterface<std::vector<std::string>>
{
protected:
    std::string Write(const std::string& name, const std::string& content) const
    {
        std::filesystem::create_directories(mProfile);
        return mFolder.Write("profile/" + name, content);
    }
};

class ProfileWriterTest : public ProfileUseTest
{
};

std::string NameOf(const testing::TestParamInfo<std::vector<std::string>>& info)
{
    std::string name = info.param.front();
    if (info.param.size() > 1 && (name == "projects" || name == "registry" || name == "settings")) {
        name += info.param[1];
    }
    std::erase(name, '-');
    return name;
}

}

TEST_P(ProfileWriterTest, Run_ProfileInUse_GivesStatus3)
{
    const ProfileFolder used(mProfile);
    auto arguments = GetParam();
    arguments.insert(arguments.begin(), { "--wait", "0" });
    EXPECT_THAT(
        Refusal(arguments, 3), HasSubstr(" is in use by cli_tests (process " + std::to_string(::getpid()) + "): "));
}

TEST_P(ProfileUseTest, Run_DamagedRegistry_IsNamedAndKept)
{
    const std::string content = "[HKCU\nA = \n";
    const auto path = Write("registry.toml", content);
    EXPECT_THAT(Refusal(GetParam(), 1), HasSubstr(path));
    EXPECT_EQ(mFolder.Read("profile/registry.toml"), content);
}

TEST_P(ProfileUseTest, Run_DamagedMailbox_IsNamedAndKept)
{
    const std::string content(5000, 'x');
    const auto path = Write("mailbox.db", content);
    EXPECT_THAT(Refusal(GetParam(), 1), HasSubstr(path));
    EXPECT_EQ(mFolder.Read("profile/mailbox.db"), content);
}

TEST_P(ProfileUseTest, Run_ProfileThatCantBeMade_IsNamed)
{
    mProfile = mFolder.Write("file", "x") + "/profile";
    EXPECT_THAT(Refusal(GetParam(), 1), HasSubstr(mProfile));
}

TEST_P(ProfileUseTest, Run_Help_OpensNothing)
{
    auto arguments = GetParam();
    arguments.emplace_back("--help");
    const auto result = Run(arguments);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_THAT(result.out, HasSubstr("Usage: tempodial " + GetParam().front()));
    EXPECT_THAT(result.out, HasSubstr("\n  tempodial ")) << "an example";
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

INSTANTIATE_TEST_SUITE_P(Commands, ProfileUseTest, testing::ValuesIn(OneOfEachCommand()), NameOf);
INSTANTIATE_TEST_SUITE_P(Commands, ProfileWriterTest, testing::ValuesIn(OneOfEachWriter()), NameOf);

class ProgramTest : public ProgramFixture
{
};

TEST_F(ProgramTest, Version_OpensNothing)
{
    EXPECT_EQ(Run({ "--version" }).out, "tempodial 1.2.0\n");
    EXPECT_EQ(Run({ "list", "--version" }).out, "tempodial 1.2.0\n");
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(ProgramTest, Help_ListsTheCommands)
{
    const auto help = Run({ "--help" }).out;
    for (const auto& command : OneOfEachCommand()) {
        EXPECT_THAT(help, HasSubstr("\n  " + command.front() + " "));
    }
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(ProgramTest, NoCommand_IsStatusAndAnUnknownOneIsAUsageError)
{
    EXPECT_EQ(Run({}).out, Run({ "status" }).out);
    EXPECT_THAT(Refusal({ "unknown" }, 2), HasSubstr("there is no command \"unknown\""));
    EXPECT_THAT(Refusal({ "projects", "unknown" }, 2), HasSubstr("\"unknown\" isn't expected here"));
}

TEST_F(ProgramTest, NewProfile_IsForItsUserAlone)
{
    EXPECT_EQ(Run({ "projects" }).status, 0);
    struct stat status
    {
    };
    ASSERT_EQ(::stat(mProfile.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(ProgramTest, ProfileInUse_IsWaitedFor)
{
    auto used = std::make_unique<ProfileFolder>(mProfile);
    std::thread freeing([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        used.reset();
    });
    const auto result = Run({ "projects" });
    freeing.join();
    EXPECT_EQ(result.status, 0) << result.error;
    for (const auto* wait : { "-1", "x", "1.5", "86401" }) {
        EXPECT_THAT(Refusal({ "--wait", wait, "projects" }, 2), HasSubstr("--wait")) << wait;
    }
}

TEST_F(ProgramTest, ProfileOpenToOthers_IsWarnedAboutBesideTheAnswer)
{
    mFolder.Write("letter.txt", "x");
    mProfile = mFolder.Path();
    std::filesystem::permissions(mProfile, std::filesystem::perms::all);
    for (const auto* command : { "projects", "list" }) {
        const auto result = Run({ "--json", command });
        EXPECT_EQ(result.status, 0);
        EXPECT_TRUE(nlohmann::json::accept(result.out)) << result.out;
        EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
        EXPECT_THAT(result.error, HasSubstr("other users may write into the profile"));
    }
}

TEST_F(ProgramTest, UnwritableProfile_IsNamed)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "nothing is unwritable for root";
    }
    Json({ "projects" });
    std::filesystem::permissions(mProfile, std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_THAT(Refusal({ "sync" }, 1), HasSubstr(mProfile));
    std::filesystem::permissions(mProfile, std::filesystem::perms::owner_all);
}

TEST_F(ProgramTest, BadProfileAndLocale_AreUsageErrors)
{
    EXPECT_EQ(RunTempodial({ "--profile", "", "list" }).status, 2);
    EXPECT_EQ(RunTempodial({ "--profile", mProfile, "--locale", "nowhere", "list" }).status, 2);
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

}
