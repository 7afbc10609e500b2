#include "track/ProfileRecorder.h"

#include "base/SettingsFile.h"
#include "support/SettingsRefusal.h"
#include "support/TempFolder.h"
#include "track/TrackError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class ProfileRecorderTest : public testing::Test
{
protected:
    ProfileRecorderTest()
    {
        mNow.local = Date::FromYearMonthDay(2026, 11, 20).AddMinutes(600).Seconds() * MillisecondsOfSecond;
        mNow.boot = 1000000;
        mNow.awake = mNow.boot;
        mNow.offset = 60;
        Make();
    }

    void Make()
    {
        mRecorder.reset();
        mRecorder = std::make_unique<ProfileRecorder>(
            mFolder.Path(), mNow, [this](const std::string& warning) { mWarnings.push_back(warning); });
    }

    void Work(int minutes, const std::string& title = "a")
    {
        for (int tick = 0; tick < minutes * 4; ++tick) {
            mNow.local += 15000;
            mNow.boot += 15000;
            mNow.awake += 15000;
            Observation seen;
            seen.window = Sighting { "editor", "", title, "", false };
            seen.idle = 0;
            mRecorder->Observe(mNow, seen);
            mRecorder->Tick(mNow);
        }
    }

    ControlMessage Ask(const std::string& text) { return mRecorder->Answer(ControlMessage(text), mNow); }
    std::string Day() const { return mFolder.Read("Tempodial/tracker_granules20261120.out"); }

    TempFolder mFolder { TempFolder::InMemory() };
    TrackMoment mNow;
    std::vector<std::string> mWarnings;
    std::unique_ptr<ProfileRecorder> mRecorder;
};

TEST_F(ProfileRecorderTest, Make_AnotherRuns_IsRefused)
{
    EXPECT_THROW(ProfileRecorder(mFolder.Path(), mNow, [](const std::string&) {}), RecorderRuns);
}

TEST_F(ProfileRecorderTest, Make_NoFolderCanBeMade_FailsWithWhatToDo)
{
    mFolder.Write("file", "x");
    try {
        const ProfileRecorder recorder(mFolder.Path("file"), mNow, [](const std::string&) {});
        FAIL();
    } catch (const TrackError& error) {
        EXPECT_THAT(error.what(), HasSubstr("--profile"));
    }
}

TEST_F(ProfileRecorderTest, Make_RulesCantBeRead_FailsWithFileAndLine)
{
    mRecorder.reset();
    mFolder.Write("track.toml", "[[rule]]\ntitle = \"a\"\ndo = \"hide\"\n");
    EXPECT_THAT(SettingsRefusal([&] { Make(); }), HasSubstr("track.toml, line 3"));
}

TEST_F(ProfileRecorderTest, Observe_FilesAreTheUsersAlone)
{
    Work(12);
    mRecorder->End(mNow);
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36600</EndTime>"));
    for (const auto* name :
        { "Tempodial/track.lock", "Tempodial/track.state", "Tempodial/tracker_granules20261120.out" }) {
        EXPECT_EQ(std::filesystem::status(mFolder.Path(name)).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write)
            << name;
    }
}

TEST_F(ProfileRecorderTest, Tick_RulesChange_AreFollowedAtOnce)
{
    Work(6, "secret plan");
    mFolder.Write("track.toml", "[[rule]]\ntitle = \"*secret*\"\ndo = \"replace\"\ntext = \"Banking\"\n");
    Work(1, "x");
    Work(13, "secret plan");
    mRecorder->End(mNow);
    EXPECT_THAT(Day(), HasSubstr("Banking"));
}

TEST_F(ProfileRecorderTest, Tick_RulesCantBeReadAnyMore_RecordsNothingAndSaysSoOnce)
{
    Work(10);
    const auto before = Day();
    mFolder.Write("track.toml", "[[rule]\n");
    Work(30, "hidden");
    EXPECT_EQ(Day().find("hidden"), std::string::npos);
    EXPECT_THAT(mWarnings, SizeIs(1));
    EXPECT_EQ(Ask("do=status").Get("paused"), "1");
    mFolder.Write("track.toml", "");
    Work(10, "open");
    mRecorder->End(mNow);
    EXPECT_THAT(Day(), HasSubstr("open"));
    EXPECT_EQ(Ask("do=status").Get("paused"), "0");
}

TEST_F(ProfileRecorderTest, AnyFile_TitleIsHidden_HoldsNoByteOfIt)
{
    mRecorder.reset();
    mFolder.Write("track.toml",
        "[[rule]]\ntitle = \"*quartzite*\"\ndo = \"drop\"\n[[rule]]\nprogram = \"editor\"\ntitle = \"*basalt*\"\n"
        "do = \"program\"\n[[rule]]\ntitle = \"*gneiss*\"\ndo = \"replace\"\ntext = \"Work\"\n");
    Make();
    for (const auto* title : { "a quartzite", "a basalt", "a gneiss", "feldspar - Private Browsing" }) {
        Work(7, title);
        const auto state = mFolder.Read("Tempodial/track.state");
        EXPECT_THAT(state, testing::Not(IsEmpty()));
        for (const auto* hidden : { "quartzite", "basalt", "gneiss", "feldspar" }) {
            EXPECT_EQ(Day().find(hidden), std::string::npos) << hidden;
            EXPECT_EQ(state.find(hidden), std::string::npos) << hidden;
            EXPECT_EQ(Ask("do=status").Text().find(hidden), std::string::npos) << hidden;
        }
    }
    mRecorder->End(mNow);
    for (const auto* hidden : { "basalt", "gneiss", "feldspar" }) {
        EXPECT_EQ(Day().find(hidden), std::string::npos) << hidden;
    }
    EXPECT_THAT(Day(), HasSubstr("private"));
    EXPECT_THAT(Day(), HasSubstr("Work"));
}

TEST_F(ProfileRecorderTest, Answer_Status_TellsNoTitle)
{
    Work(12, "some title");
    const auto status = Ask("do=status");
    EXPECT_EQ(status.Get("idle"), "0");
    EXPECT_EQ(status.Get("program"), "Editor");
    EXPECT_EQ(status.Get("kind"), "0");
    EXPECT_EQ(status.Get("slots"), "1");
    EXPECT_EQ(status.Get("paused"), "0");
    EXPECT_EQ(status.Get("lastWritten"), "2026-11-20T10:10:00");
    EXPECT_EQ(status.Text().find("some title"), std::string::npos);
}

TEST_F(ProfileRecorderTest, Answer_Pause_SurvivesARestart)
{
    Work(3);
    const auto answer = Ask("do=pause\nfor=1800000");
    EXPECT_EQ(answer.Get("pausedUntil"), "2026-11-20T10:33:00");
    Make();
    EXPECT_EQ(Ask("do=status").Get("paused"), "1");
    Work(60);
    EXPECT_EQ(Ask("do=status").Get("paused"), "0");
    Ask("do=pause");
    EXPECT_EQ(Ask("do=resume").Get("paused"), "0");
    Make();
    EXPECT_EQ(Ask("do=status").Get("paused"), "0");
}

TEST_F(ProfileRecorderTest, Answer_Project_IsKeptUntilItIsTakenBack)
{
    EXPECT_EQ(Ask("do=project").Get("name"), "");
    EXPECT_EQ(Ask("do=project\nname=Riverside  plan").Get("name"), "Riverside plan");
    Make();
    EXPECT_EQ(Ask("do=project").Get("name"), "Riverside plan");
    Work(12);
    mRecorder->End(mNow);
    EXPECT_THAT(Day(), HasSubstr("<Project>Riverside plan</Project>"));
    EXPECT_EQ(Ask("do=project\nname=").Get("name"), "");
    EXPECT_EQ(Ask("do=project\nname=No Project").Get("name"), "");
}

TEST_F(ProfileRecorderTest, Answer_Forget_TakesOutLinesAndWhatWaits)
{
    Work(22);
    const auto answer = Ask("do=forget\nlast=720000\ntaken20261120=0");
    EXPECT_EQ(answer.Get("forgotten"), "1");
    EXPECT_EQ(answer.Get("kept"), "0");
    mRecorder->End(mNow);
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36600</EndTime>"));
    EXPECT_EQ(Day().find("<EndTime>36900</EndTime>"), std::string::npos);
    EXPECT_EQ(Day().find("<EndTime>37200</EndTime>"), std::string::npos);
    EXPECT_EQ(Ask("do=forget\nlast=7200000\ntaken20261120=1").Get("kept"), "1");
}

TEST_F(ProfileRecorderTest, Answer_ForgetBehindMidnight_TakesOutYesterdaysLines)
{
    mNow.local += std::int64_t { 13 } * 3600000 + std::int64_t { 45 } * 60000;
    Work(22);
    mRecorder->End(mNow);
    ASSERT_THAT(Day(), HasSubstr("<EndTime>86400</EndTime>"));
    mFolder.Write(
        "Tempodial/tracker_granules(done)20261119.out", "heading\r\n<slot><EndTime>86400</EndTime></slot>\r\n");
    const auto answer = Ask("do=forget\nlast=90000000\ntaken20261120=1\ntaken20261121=0");
    EXPECT_EQ(answer.Get("forgotten"), "3");
    EXPECT_EQ(answer.Get("kept"), "2");
    EXPECT_EQ(Day().find("<EndTime>86400</EndTime>"), std::string::npos);
}

TEST_F(ProfileRecorderTest, Answer_ForgetOfAFileThatNobodyLookedAt_LeavesIt)
{
    Work(12);
    mRecorder->End(mNow);
    EXPECT_EQ(Ask("do=forget\nlast=7200000").Get("forgotten"), "0");
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36600</EndTime>"));
}

/// A folder in the place of the day's file, so that nothing can be written to it.
TEST_F(ProfileRecorderTest, End_DayCantBeWritten_KeepsItForTheNextStart)
{
    Work(6);
    const auto path = mFolder.Path("Tempodial/tracker_granules20261120.out");
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    Work(16);
    EXPECT_EQ(Ask("do=status").Get("slots"), "0");
    EXPECT_FALSE(mRecorder->End(mNow));
    EXPECT_THAT(mWarnings.back(), HasSubstr("track.state"));
    std::filesystem::remove(path);
    Make();
    Work(1);
    EXPECT_TRUE(mRecorder->End(mNow));
    EXPECT_EQ(mFolder.Read("Tempodial/track.state").find("line\t"), std::string::npos);
    EXPECT_THAT(Day(), HasSubstr("<EndTime>37200</EndTime>"));
    EXPECT_EQ(Day().find("<EndTime>36900</EndTime>"), Day().rfind("<EndTime>36900</EndTime>"));
    Make();
    EXPECT_EQ(Ask("do=status").Get("slots"), "5");
}

TEST_F(ProfileRecorderTest, Answer_StateCantBeWritten_IsRefused)
{
    Work(3);
    const auto path = mFolder.Path("Tempodial/track.state");
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    mFolder.Write("Tempodial/track.state/x", "x");
    for (const auto* request : { "do=pause", "do=resume", "do=project\nname=A", "do=forget\nlast=60000" }) {
        EXPECT_THAT(Ask(request).Get("error"), HasSubstr("track.state")) << request;
    }
    EXPECT_FALSE(Ask("do=project").Has("error"));
}

TEST_F(ProfileRecorderTest, State_ShorterThanBefore_KeepsNothingOfThat)
{
    Work(4, "a title that is to be forgotten");
    EXPECT_THAT(mFolder.Read("Tempodial/track.state"), HasSubstr("to be forgotten"));
    Ask("do=forget\nlast=3600000\ntaken=0");
    EXPECT_EQ(mFolder.Read("Tempodial/track.state").find("forgotten"), std::string::npos);
    EXPECT_FALSE(mFolder.Has("Tempodial/.track.state.new"));
    Work(2, "b");
    Make();
    Work(9, "b");
    mRecorder->End(mNow);
    EXPECT_EQ(Day().find("forgotten"), std::string::npos);
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36600</EndTime>"));
}

TEST_F(ProfileRecorderTest, Answer_UnknownRequest_IsRefused)
{
    EXPECT_TRUE(Ask("do=dance").Has("error"));
    EXPECT_TRUE(Ask("").Has("error"));
    EXPECT_TRUE(Ask("do=forget").Has("error"));
}

}

}
