#include "support/ProgramFixture.h"

#include <chrono>
#include <filesystem>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class StatusCommandTest : public ProgramFixture
{
protected:
    /// The status, which must end with that exit status.
    nlohmann::json Status(int status) const
    {
        const auto result = Run({ "status", "--json" });
        EXPECT_EQ(result.status, status) << result.out;
        return nlohmann::json::parse(result.out);
    }
    static std::vector<std::string> Texts(const nlohmann::json& texts) { return texts; }
};

constexpr auto Today = "tracker_granules20061010.out";

}

TEST_F(StatusCommandTest, Status_NoProfile_IsEmptyAndNeedsAHand)
{
    const auto status = Status(1);
    EXPECT_EQ(status.at("profile"), mProfile);
    EXPECT_EQ(status.at("bytes"), 0);
    EXPECT_EQ(status.at("activities"), 0);
    EXPECT_TRUE(status.at("tracker").is_null());
    EXPECT_TRUE(status.at("lastSync").is_null());
    EXPECT_TRUE(status.at("timer").is_null());
    EXPECT_EQ(status.at("today"), (nlohmann::json { { "minutes", 0 }, { "unassigned", 0 } }));
    EXPECT_EQ(status.at("needsHand").size(), 1U);
    EXPECT_EQ(status.size(), 10U);
}

TEST_F(StatusCommandTest, Status_TimerOfTheUser_IsTold)
{
    std::filesystem::create_directories(mFolder.Path("systemd/user/timers.target.wants"));
    mFolder.Write("systemd/user/timers.target.wants/tempodial-sync.timer", "[Timer]\nOnCalendar=hourly\n");
    auto environment = UsualEnvironment();
    environment.push_back("XDG_CONFIG_HOME=" + mFolder.Path());
    const auto status = nlohmann::json::parse(RunTempodial(Whole({ "status", "--json" }), environment).out);
    EXPECT_EQ(
        status.at("timer"), nlohmann::json::parse(R"({"unit":"tempodial-sync.timer","next":"2006-10-10T18:00:00"})"));
    EXPECT_THAT(
        RunTempodial(Whole({ "status" }), environment).out, HasSubstr("tempodial-sync.timer, next 2006-10-10 18:00"));
}

TEST_F(StatusCommandTest, Status_BeforeAndAfterASync_TellsWhatWaitsAndHowItEnded)
{
    WriteTracker("20061010",
        { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33600, "b.doc").Node("Project", "Plan").Text() });
    WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
    auto status = Status(0);
    EXPECT_THAT(Texts(status.at("waiting")), ElementsAre("tracker_granules20061009.out", Today));
    EXPECT_EQ(status.at("tracker").at("file"), Today);
    EXPECT_TRUE(status.at("lastSync").is_null());

    Json({ "sync" });
    status = Status(0);
    EXPECT_THAT(Texts(status.at("waiting")), IsEmpty());
    EXPECT_THAT(Texts(status.at("needsHand")), IsEmpty());
    EXPECT_EQ(status.at("activities"), 3);
    EXPECT_GT(status.at("bytes"), 4096);
    EXPECT_EQ(status.at("today"), (nlohmann::json { { "minutes", 20 }, { "unassigned", 5 } }));
    auto last = status.at("lastSync");
    EXPECT_THAT(last.at("when").get<std::string>(), testing::StartsWith("2006-10-10T17:0"));
    last.erase("when");
    EXPECT_EQ(
        last, (nlohmann::json { { "outcome", "whole" }, { "created", 3 }, { "extended", 0 }, { "detailed", 0 } }));

    WriteTracker("20061010",
        { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33600, "b.doc").Node("Project", "Plan").Text(),
            WordSlot(33600, 33900, "c.doc") });
    EXPECT_THAT(Texts(Status(0).at("waiting")), ElementsAre(Today)) << "it has grown since";
}

TEST_F(StatusCommandTest, Status_LineWithoutItsEnd_DoesntWait)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    Json({ "sync" });
    WriteData(Today, mFolder.Read("profile/Tempodial/" + std::string(Today)) + "<slot>");
    EXPECT_THAT(Texts(Status(0).at("waiting")), IsEmpty());
}

TEST_F(StatusCommandTest, Status_TrackerFile_IsTheLatestWithItsLastWrite)
{
    WriteTracker("20061009", { WordSlot(32400, 32700, "a.doc") });
    Json({ "sync" });
    std::filesystem::last_write_time(DataPath("tracker_granules(done)20061009.out"),
        std::chrono::file_clock::from_sys(std::chrono::sys_seconds(
            std::chrono::sys_days(std::chrono::year(2006) / 10 / 9) + std::chrono::hours(18))));
    EXPECT_EQ(Status(0).at("tracker"),
        (nlohmann::json {
            { "file", "tracker_granules(done)20061009.out" }, { "lastWritten", "2006-10-09T18:00:00" } }));
}

TEST_F(StatusCommandTest, Status_TooOldFiles_NeedAHand)
{
    WriteTracker("20060901", { WordSlot(32400, 32700, "a.doc") });
    for (const bool isSynced : { false, true }) {
        if (isSynced) {
            Run({ "sync" });
        }
        const auto status = Status(1);
        EXPECT_THAT(Texts(status.at("tooOld")), ElementsAre("tracker_granules20060901.out"));
        EXPECT_THAT(Texts(status.at("needsHand")), ElementsAre(HasSubstr("tracker_granules20060901.out")));
    }
}

TEST_F(StatusCommandTest, Status_UnreadLines_NeedAHand)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), "nonsense" });
    Run({ "sync" });
    const auto status = Status(1);
    EXPECT_EQ(status.at("lastSync").at("outcome"), "whole");
    EXPECT_THAT(Texts(status.at("needsHand")), ElementsAre(HasSubstr("couldn't read 1 line ")));
}

TEST_F(StatusCommandTest, Status_SyncThatFailed_NeedsAHand)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    Json({ "registry", "set", "HKLM", "", "Install Directory", "/nowhere" });
    EXPECT_EQ(Run({ "sync" }).status, 1);
    const auto status = Status(1);
    EXPECT_EQ(status.at("lastSync").at("outcome"), "failed");
    EXPECT_THAT(Texts(status.at("needsHand")), ElementsAre(HasSubstr("the last sync failed")));
}

TEST_F(StatusCommandTest, Status_SyncThatWasKilled_IsInterrupted)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    Json({ "sync" });
    const auto calls = RunTempodialKilledAt(Whole({ "sync" }), 0);
    if (!calls) {
        GTEST_SKIP() << "this system forbids observation";
    }
    constexpr int Points = 30;
    nlohmann::json status;
    for (int point = Points - 1; point > 0 && status.is_null(); --point) {
        RunTempodialKilledAt(Whole({ "sync" }), calls->systemCalls * point / Points);
        const auto result = nlohmann::json::parse(Run({ "status", "--json" }).out);
        if (result.at("lastSync").at("outcome") == "interrupted") {
            status = Status(1);
        }
    }
    ASSERT_FALSE(status.is_null());
    EXPECT_THAT(Texts(status.at("needsHand")), ElementsAre(HasSubstr("the last sync was interrupted")));
    Json({ "sync" });
    EXPECT_EQ(Status(0).at("lastSync").at("outcome"), "whole");
}

TEST_F(StatusCommandTest, Status_UnreadableRecord_IsNone)
{
    Json({ "projects" });
    for (const auto* record : { "", "nonsense", "2006-10-10T17:00:00 well 1 2 3 4\n",
             "2006-13-10T17:00:00 whole 1 2 3 4\n", "2006-10-10T17:00:00 whole 1 2\n" }) {
        mFolder.Write("profile/last-sync.txt", record);
        EXPECT_TRUE(Status(0).at("lastSync").is_null()) << record;
    }
    mFolder.Write("profile/last-sync.txt", "2006-10-10T17:00:00 partly 1 2 3 0\n");
    EXPECT_EQ(Status(1).at("lastSync").at("outcome"), "partly");
}

TEST_F(StatusCommandTest, Status_ForPeople_NamesAll)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    Json({ "sync" });
    const auto result = Run({ "status" });
    EXPECT_EQ(result.status, 0);
    for (const auto* part : { "Profile", "1 activity", "0:05", "Last sync", "whole: 1 created", Today }) {
        EXPECT_THAT(result.out, HasSubstr(part));
    }
    EXPECT_THAT(result.out, testing::Not(HasSubstr("Needs a hand")));
}

}
