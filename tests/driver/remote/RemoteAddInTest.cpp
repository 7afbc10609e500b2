#include "driver/Driver.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace tempodial {

namespace {

using testing::HasSubstr;

}

/// The driver with a program in the place of Wine, which a test makes up.
class RemoteAddInTest : public testing::Test
{
protected:
    RemoteAddInTest() { (void)std::signal(SIGPIPE, SIG_IGN); } // as every program does at its start
    ~RemoteAddInTest() override { ::setenv("PATH", mPath.c_str(), 1); }

    /// What the driver answers when Wine does that.
    Json StartWith(const std::string& script)
    {
        const auto wine = mFolder.Path("wine");
        std::ofstream(wine) << "#!/bin/sh\n" << script << "\n";
        std::filesystem::permissions(wine, std::filesystem::perms::owner_all);
        ::setenv("PATH", (mFolder.Path() + ":" + mPath).c_str(), 1);
        mDriver.emplace(ProfileOptions { .profile = mFolder.Path("profile"), .locale = "en_US" },
            RemotePrograms { .folder = "/no/add-in" });
        return mDriver->Do({ { "do", "start" } });
    }

    TempFolder mFolder;
    std::string mPath = std::getenv("PATH");
    std::optional<Driver> mDriver;
};

TEST_F(RemoteAddInTest, Start_ProgramEndsAtOnce_IsRefusedWithItsStatus)
{
    const auto answer = StartWith("exit 7");
    EXPECT_EQ(answer.at("ok"), false);
    EXPECT_THAT(answer.at("error").get<std::string>(), HasSubstr("status is 7"));
    EXPECT_EQ(mDriver->Do({ { "do", "windows" } }).at("ok"), false) << "no host was started";
}

TEST_F(RemoteAddInTest, Start_ProgramTalksNonsense_IsRefused)
{
    // It must not be gone before it has been asked.
    const auto answer = StartWith("echo nonsense; exec cat >/dev/null");
    EXPECT_EQ(answer.at("ok"), false);
    EXPECT_THAT(answer.at("error").get<std::string>(), HasSubstr("no frame"));
}

TEST_F(RemoteAddInTest, Start_ProgramRefuses_TellsWhy)
{
    // A frame of 13 bytes: failed, the number -2, and a text of no length.
    const auto answer = StartWith(R"(printf '\015\000\000\000X\376\377\377\377\377\377\377\377\000\000\000\000'; cat)");
    EXPECT_EQ(answer.at("ok"), false);
    EXPECT_EQ(answer.at("error"), "");
}

TEST_F(RemoteAddInTest, Start_ThatRemembers_IsRefused)
{
    mDriver.emplace(ProfileOptions { .profile = mFolder.Path("profile"), .locale = "en_US" },
        RemotePrograms { .folder = "/no/add-in" });
    const auto answer = mDriver->Do({ { "do", "start" }, { "remember", true } });
    EXPECT_EQ(answer.at("ok"), false);
    EXPECT_THAT(answer.at("error").get<std::string>(), HasSubstr("remember"));
}

TEST_F(RemoteAddInTest, Fail_OfWhatOnlyTheOtherModuleLetsFail_IsRefused)
{
    mDriver.emplace(ProfileOptions { .profile = mFolder.Path("profile"), .locale = "en_US" },
        RemotePrograms { .folder = "/no/add-in", .installed = "/no/add-in/Tempodial.dll" });
    const auto fail = [this](const char* call) { return mDriver->Do({ { "do", "fail" }, { "call", call } }); };
    EXPECT_EQ(fail("AppointmentItem.Save").at("ok"), true);
    EXPECT_EQ(fail("textstream.ReadLine:x").at("ok"), false);
    EXPECT_THAT(fail("FileSystem.OpenTextFile").at("error").get<std::string>(), HasSubstr("as it is installed"));
}

}
