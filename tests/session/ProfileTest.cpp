#include "session/Profile.h"

#include "base/Variant.h"
#include "session/ProfileError.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace tempodial {

namespace fs = std::filesystem;

using testing::UnorderedElementsAre;

/// The names in a folder.
std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

TEST(ProfileTest, PathThatHoldsABackslash_KeepsAllInOneFolder)
{
    const TempFolder folder;
    const auto path = folder.Path(R"(a\b)");
    {
        const Profile profile(path, "en_US", std::nullopt);
        profile.Registry()->Write(Hive::CurrentUser, "Software", "a", "b");
        auto& files = *profile.Surroundings().fileSystem;
        const auto data = files.BuildPath(files.GetSpecialFolder(SpecialFolder::Temporary), "Tempodial");
        files.CreateFolder(data);
        files.OpenTextFile(files.BuildPath(data, "new.out"), OpenMode::Writing, true)->Write("x");
        files.OpenTextFile(files.BuildPath(data, "added.out"), OpenMode::Appending, true)->Write("x");
        EXPECT_TRUE(files.FileExists(profile.DataFolder() + "/new.out"));
    }
    EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre(R"(a\b)"));
    EXPECT_THAT(NamesIn(path), UnorderedElementsAre("mailbox.db", "mailbox.db-wal", "registry.toml", "Tempodial"));
    EXPECT_THAT(NamesIn(path + "/Tempodial"), UnorderedElementsAre("new.out", "added.out"));
    const Profile again(path, "en_US", std::nullopt);
    EXPECT_EQ(again.Registry()->Get(Hive::CurrentUser, "Software", "a"), Variant("b"));
}

TEST(ProfileTest, OthersMayWrite_IsWarnedAboutOnce)
{
    const TempFolder folder;
    folder.Write("letter.txt", "x");
    std::vector<std::string> warnings;
    const auto open = [&](int mode) {
        fs::permissions(folder.Path(), fs::perms(mode));
        fs::remove(folder.Path("mailbox.db"));
        const Profile profile(folder.Path(), "en_US", std::nullopt, std::chrono::seconds(0),
            [&](const std::string& message) { warnings.push_back(message); });
    };
    open(0755);
    EXPECT_THAT(warnings, testing::IsEmpty());
    open(0777);
    EXPECT_THAT(warnings,
        testing::ElementsAre(testing::MatchesRegex("other users may write into the profile [^:]+: .*chmod go-w.*")));
}

TEST(ProfileTest, ProjectsOfAnotherKindThanTexts_AreDamageAndStay)
{
    const TempFolder folder;
    for (const auto* value : { "5", "1.5", "[]", "{}" }) {
        const auto content = std::string("[HKCU.'Software\\Lindenfold\\Tempodial']\nProjectXML = ") + value + "\n";
        folder.Write("registry.toml", content);
        EXPECT_THROW(Profile(folder.Path(), "en_US", std::nullopt), ProfileError) << value;
        EXPECT_EQ(folder.Read("registry.toml"), content);
    }
}

TEST(ProfileTest, LeftoversOfKilledRuns_GoWithTheNextThatHoldsIt)
{
    const TempFolder folder;
    fs::create_directory(folder.Path("Tempodial"));
    folder.Write("Tempodial/.2006.csv.new", "x");
    folder.Write("Tempodial/2006.csv", "x");
    static_cast<void>(Profile::ForReading(folder.Path(), "en_US", std::nullopt));
    EXPECT_TRUE(folder.Has("Tempodial/.2006.csv.new"));
    static_cast<void>(Profile(folder.Path(), "en_US", std::nullopt));
    EXPECT_FALSE(folder.Has("Tempodial/.2006.csv.new"));
    EXPECT_TRUE(folder.Has("Tempodial/2006.csv"));
}

}
