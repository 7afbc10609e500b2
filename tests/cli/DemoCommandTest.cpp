#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <map>
#include <set>
#include <sys/stat.h>

namespace tempodial {

namespace {

using testing::HasSubstr;

class DemoCommandTest : public ProgramFixture
{
protected:
    std::size_t Files() const
    {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(mProfile + "/Tempodial")) {
            count += entry.path().filename().string().starts_with("tracker_granules") ? 1 : 0;
        }
        return count;
    }
    /// The names and contents of the data folder.
    std::map<std::string, std::string> Contents() const
    {
        std::map<std::string, std::string> contents;
        for (const auto& entry : std::filesystem::directory_iterator(mProfile + "/Tempodial")) {
            const auto name = entry.path().filename().string();
            contents[name] = mFolder.Read("profile/Tempodial/" + name);
        }
        return contents;
    }
    static mode_t Mode(const std::string& path)
    {
        struct stat status
        {
        };
        EXPECT_EQ(::stat(path.c_str(), &status), 0);
        return status.st_mode & 0777U;
    }
};

}

TEST_F(DemoCommandTest, Demo_NewProfile_WritesFilesForItsUserAlone)
{
    const auto written = Json({ "demo" });
    EXPECT_EQ(written.at("files"), Files());
    EXPECT_GT(written.at("lines"), 500);
    EXPECT_EQ(Mode(mProfile), 0700U);
    EXPECT_EQ(Mode(mProfile + "/Tempodial"), 0700U);
    EXPECT_EQ(Mode(DataPath("tracker_granules20061010.out")), 0600U);
    EXPECT_FALSE(std::filesystem::exists(DataPath("WorkLogTrace1.out")));
}

TEST_F(DemoCommandTest, Demo_Lines_AreAllImported)
{
    const auto lines = Json({ "demo", "--days", "3" }).at("lines").get<int>();
    const auto counts = Json({ "sync" });
    EXPECT_EQ(
        counts.at("created").get<int>() + counts.at("extended").get<int>() + counts.at("detailed").get<int>(), lines);
    EXPECT_FALSE(Json({ "list" }).empty());
    EXPECT_EQ(Json({ "sync" }).at("detailed"), 0);
    const auto text = mFolder.Read("profile/Tempodial/tracker_granules20061010.out");
    EXPECT_TRUE(text.ends_with("</slot>\r\n"));
}

TEST_F(DemoCommandTest, Demo_EarlyHours_HaveActivitiesUpToNow)
{
    for (const auto& [now, lines] : { std::pair("2006-10-10T00:07:00", 1), std::pair("2006-10-10T00:00:00", 0) }) {
        mNow = now;
        EXPECT_EQ(Json({ "demo", "--days", "1" }), (nlohmann::json { { "files", 1 }, { "lines", lines } }));
        std::filesystem::remove_all(mProfile);
    }
}

TEST_F(DemoCommandTest, Demo_FirstReport_ShowsProjects)
{
    Json({ "demo" });
    Json({ "sync" });
    std::set<std::string> projects;
    for (const auto& item : Json({ "list", "-21d" })) {
        EXPECT_THAT(item.at("properties").at("Description").get<std::string>(), testing::Not(HasSubstr("including: ")));
        projects.insert(item.at("properties").at("Project"));
    }
    EXPECT_THAT(projects, testing::IsSupersetOf({ "Accounts", "Atlas", "Riverside", "Team", "No Project" }));
}

TEST_F(DemoCommandTest, Demo_ProjectsWithRules_StayAsTheyAre)
{
    Json({ "projects", "set", "Own", "--subject", "own" });
    const auto before = Json({ "projects" });
    Json({ "demo", "--days", "1" });
    EXPECT_EQ(Json({ "projects" }), before);
}

TEST_F(DemoCommandTest, Demo_SeedAndMoment_DecideTheFiles)
{
    const auto text = [this](const std::string& seed) {
        std::filesystem::remove_all(mProfile);
        Json({ "demo", "--days", "1", "--seed", seed });
        return mFolder.Read("profile/Tempodial/tracker_granules20061010.out");
    };
    const auto first = text("1");
    EXPECT_EQ(text("1"), first);
    EXPECT_NE(text("2"), first);
}

TEST_F(DemoCommandTest, Demo_TrackerFilesThere_IsRefused)
{
    for (const auto* name : { "tracker_granules20050101.out", "tracker_granules(done)20050101.out" }) {
        WriteData(name, "x\r\n");
        EXPECT_THAT(Refusal({ "demo" }, 1), HasSubstr(name));
        EXPECT_EQ(Files(), 1U);
        std::filesystem::remove(DataPath(name));
    }
}

TEST_F(DemoCommandTest, Demo_BadNumbers_AreUsageErrors)
{
    for (const auto* days : { "0", "23", "x", "-1", "" }) {
        EXPECT_THAT(Refusal({ "demo", "--days", days }, 2), HasSubstr("from 1 to 22"));
    }
    EXPECT_THAT(Refusal({ "demo", "--seed", "x" }, 2), HasSubstr("--seed can't be"));
}

TEST_F(DemoCommandTest, Demo_KilledAtAnyPoint_IsMadeGoodByTheNext)
{
    Json({ "projects" });
    std::filesystem::remove_all(mProfile + "/Tempodial");
    const auto empty = mFolder.Path("empty");
    std::filesystem::copy(mProfile, empty, std::filesystem::copy_options::recursive);
    const auto calls = RunTempodialKilledAt(Whole({ "demo", "--days", "6" }), 0);
    if (!calls) {
        GTEST_SKIP() << "this system forbids observation";
    }
    const auto expected = Contents();
    const int points = ShortOrLong(12, 100);
    int unfinished = 0;
    for (int point = 1; point < points; ++point) {
        SCOPED_TRACE(point);
        std::filesystem::remove_all(mProfile);
        std::filesystem::copy(empty, mProfile, std::filesystem::copy_options::recursive);
        RunTempodialKilledAt(Whole({ "demo", "--days", "6" }), calls->systemCalls * point / points);
        unfinished += std::filesystem::exists(DataPath("demo-unfinished.txt")) && Files() > 0 ? 1 : 0;
        const auto next = Run({ "demo", "--days", "6" });
        if (next.status != 0) {
            EXPECT_EQ(Contents(), expected) << "it was over";
            continue;
        }
        EXPECT_EQ(Contents(), expected);
    }
    EXPECT_GT(unfinished, 0);
}

TEST_F(DemoCommandTest, Demo_StrangersFileBesideAnUnfinishedOne_IsRefusedAndStays)
{
    Json({ "demo", "--days", "1" });
    const auto own = mFolder.Read("profile/Tempodial/tracker_granules20061010.out");
    for (const auto* note : { "1 1 2006-10-10T17:00:00\r\n", "nonsense", "" }) {
        WriteData("demo-unfinished.txt", note);
        WriteData("tracker_granules20061010.out", own + "<slot/>\r\n");
        EXPECT_THAT(Refusal({ "demo" }, 1), HasSubstr("tracker_granules20061010.out"));
        EXPECT_EQ(mFolder.Read("profile/Tempodial/tracker_granules20061010.out"), own + "<slot/>\r\n");
    }
}

TEST_F(DemoCommandTest, Commands_ProgramMovedAwayFromItsTemplates_SayWhatToDoAndWriteNothing)
{
    const auto program = mFolder.Path("bin/tempodial");
    std::filesystem::create_directory(mFolder.Path("bin"));
    std::filesystem::copy(TEMPODIAL_EXECUTABLE, program);
    for (const auto& arguments : { Arguments { "demo" }, Arguments { "sync" }, Arguments { "projects" } }) {
        const auto result = RunTempodialWith({ .executable = program }, Whole(arguments));
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
        EXPECT_THAT(result.error, HasSubstr("install"));
        EXPECT_FALSE(std::filesystem::exists(mProfile));
    }
    Json({ "registry", "set", "HKLM", "", "Install Directory", TEMPODIAL_SOURCE_DIR "/resources" });
    EXPECT_EQ(RunTempodialWith({ .executable = program }, Whole({ "demo" })).status, 0);
}

}
