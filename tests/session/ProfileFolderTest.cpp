#include "session/ProfileFolder.h"

#include "session/ProfileError.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace fs = std::filesystem;

namespace {

mode_t ModeOf(const fs::path& path)
{
    struct stat status
    {
    };
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 0777;
}

/// Sets an environment variable for the length of a test.
class Setting
{
public:
    Setting(const char* name, const char* value)
        : mName(name)
    {
        if (const auto* old = std::getenv(name)) {
            mOld = old;
        }
        value ? ::setenv(name, value, 1) : ::unsetenv(name);
    }
    ~Setting() { mOld ? ::setenv(mName, mOld->c_str(), 1) : ::unsetenv(mName); }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

private:
    const char* mName;
    std::optional<std::string> mOld;
};

template <class Error> std::string MessageOf(const std::string& path)
{
    try {
        const ProfileFolder folder(path);
    } catch (const Error& error) {
        return error.what();
    }
    ADD_FAILURE() << "no failure";
    return "";
}

}

class ProfileFolderTest : public testing::Test
{
protected:
    TempFolder mTemp { TempFolder::InMemory() };
};

TEST_F(ProfileFolderTest, Absent_IsMadeWithItsParentsForItsUserAlone)
{
    const fs::path path = mTemp.Path("some/where/profile");
    const ProfileFolder folder(path.string());
    EXPECT_EQ(folder.Path(), path.string());
    EXPECT_EQ(ModeOf(path), 0700U);
}

TEST_F(ProfileFolderTest, TrailingSlash_IsTheSameFolder)
{
    const auto path = mTemp.Path("profile");
    EXPECT_EQ(ProfileFolder(path + "/").Path(), path);
}

TEST_F(ProfileFolderTest, InUse_IsRefusedWithItsNameUntilItIsFree)
{
    const auto path = mTemp.Path("profile");
    {
        const ProfileFolder first(path);
        const auto message = MessageOf<ProfileInUse>(path);
        EXPECT_NE(message.find(path + " is in use by session_tests (process " + std::to_string(::getpid()) + "): "),
            std::string::npos)
            << message;
    }
    EXPECT_NO_THROW(ProfileFolder { path });
}

TEST_F(ProfileFolderTest, InUse_IsWaitedForAsLongAsTold)
{
    using namespace std::chrono_literals;
    const auto path = mTemp.Path("profile");
    auto first = std::make_unique<ProfileFolder>(path);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THROW(ProfileFolder(path, 1s), ProfileInUse);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 1s);
    std::thread freeing([&] {
        std::this_thread::sleep_for(200ms);
        first.reset();
    });
    EXPECT_NO_THROW(ProfileFolder(path, 60s));
    freeing.join();
}

TEST_F(ProfileFolderTest, FileInItsPlace_IsRefusedWithItsName)
{
    const auto path = mTemp.Path("profile");
    std::ofstream(path) << "x";
    EXPECT_NE(MessageOf<ProfileError>(path).find(path), std::string::npos);
}

TEST_F(ProfileFolderTest, ParentIsAFile_IsRefusedWithItsName)
{
    std::ofstream(mTemp.Path("file")) << "x";
    const auto path = mTemp.Path("file/profile");
    EXPECT_NE(MessageOf<ProfileError>(path).find("can't make the profile folder " + path), std::string::npos);
}

TEST_F(ProfileFolderTest, EmptyPath_IsRefused)
{
    EXPECT_NE(MessageOf<ProfileError>("").find("--profile"), std::string::npos);
}

TEST_F(ProfileFolderTest, OurOpenFolder_IsClosedToOthers)
{
    for (const auto* ours : { "", "mailbox.db", "registry.toml", "Tempodial" }) {
        const fs::path path(mTemp.Path("profile" + std::string(ours)));
        fs::create_directory(path);
        if (*ours) {
            std::ofstream(path / ours) << "x";
        }
        ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
        const ProfileFolder folder(path.string());
        EXPECT_EQ(ModeOf(path), 0700U) << ours;
    }
}

TEST_F(ProfileFolderTest, FolderOfOtherThings_KeepsItsMode)
{
    const fs::path path = mTemp.Path("documents");
    fs::create_directory(path);
    std::ofstream(path / "letter.txt") << "x";
    ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    const ProfileFolder folder(path.string());
    EXPECT_EQ(ModeOf(path), 0755U);
}

TEST_F(ProfileFolderTest, Default_FollowsTheEnvironment)
{
    const Setting home("HOME", "/home/ann");
    {
        const Setting named("TEMPODIAL_PROFILE", "/srv/log");
        const Setting data("XDG_DATA_HOME", "/data");
        EXPECT_EQ(ProfileFolder::Default(), "/srv/log");
    }
    const Setting named("TEMPODIAL_PROFILE", nullptr);
    {
        const Setting data("XDG_DATA_HOME", "/data");
        EXPECT_EQ(ProfileFolder::Default(), "/data/tempodial");
    }
    {
        const Setting data("XDG_DATA_HOME", "relative");
        EXPECT_EQ(ProfileFolder::Default(), "/home/ann/.local/share/tempodial");
    }
    const Setting data("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(ProfileFolder::Default(), "/home/ann/.local/share/tempodial");
    const Setting none("HOME", nullptr);
    EXPECT_THROW(ProfileFolder::Default(), ProfileError);
}

TEST_F(ProfileFolderTest, Lock_AnotherFolderInThePlaceMeanwhile_HoldsThatOne)
{
    const TempFolder temp { TempFolder::InMemory() };
    const auto path = temp.Path("profile");
    auto first = std::make_unique<ProfileFolder>(path);
    std::unique_ptr<ProfileFolder> second;
    std::thread waiting([&] { second = std::make_unique<ProfileFolder>(path, std::chrono::seconds(20)); });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    fs::rename(path, temp.Path("former"));
    fs::create_directory(path);
    first.reset();
    waiting.join();
    ASSERT_TRUE(second);
    EXPECT_THROW(const ProfileFolder third(path), ProfileInUse);
    EXPECT_NO_THROW(const ProfileFolder former(temp.Path("former")));
}

}
