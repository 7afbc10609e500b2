#include "support/TrackedDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;

constexpr auto Monday = "2026-11-23T10:00:00";
constexpr auto DayFileName = "profile/Tempodial/tracker_granules20261123.out";

class TrackProgramTest : public testing::Test
{
protected:
    /// Begins at ten, with a minute in a tenth of a second.
    void Record(const std::vector<std::string>& more = {})
    {
        std::vector<std::string> arguments { "--now", Monday, "--speed", "600" };
        arguments.insert(arguments.end(), more.begin(), more.end());
        mDesktop.Start(arguments);
        mStart = std::chrono::steady_clock::now();
    }
    /// Lets time go on until so many minutes after the start.
    void Until(int minutes) const { std::this_thread::sleep_until(mStart + std::chrono::milliseconds(minutes * 100)); }
    nlohmann::json Json(std::vector<std::string> arguments) const
    {
        arguments.emplace_back("--json");
        const auto result = mDesktop.Run(arguments);
        EXPECT_EQ(result.status, 0) << result.error;
        return nlohmann::json::parse(result.out, nullptr, false);
    }
    std::string Day() const { return mDesktop.Folder().Read(DayFileName); }
    /// The programs of the slots in the day's file, without repetition.
    std::vector<std::string> Programs() const
    {
        std::vector<std::string> programs;
        const auto content = Day();
        for (auto at = content.find("<AppName>"); at != std::string::npos; at = content.find("<AppName>", at + 1)) {
            const auto program = content.substr(at + 9, content.find('<', at + 9) - at - 9);
            if (programs.empty() || programs.back() != program) {
                programs.push_back(program);
            }
        }
        return programs;
    }

    TrackedDesktop mDesktop;
    std::chrono::steady_clock::time_point mStart;
};

TEST_F(TrackProgramTest, Track_ThreeWindows_AreThreeActivitiesThatSyncTakes)
{
    mDesktop.Tell("window alpha 0 First");
    mDesktop.Tell("idle 0");
    Record();
    Until(12);
    mDesktop.Tell("window beta 0 Second");
    Until(18);
    mDesktop.Tell("window gamma 0 Third");
    Until(29);
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_THAT(mDesktop.Messages(), IsEmpty());
    EXPECT_THAT(Programs(), ElementsAre("Alpha", "Beta", "Gamma"));
    EXPECT_TRUE(Day().starts_with("Tempodial tracker 1, 2026-11-23, +00:00\r\n"));
    EXPECT_EQ(mDesktop.Run({ "--now", "2026-11-23T18:00:00", "sync" }).status, 0);
    EXPECT_EQ(Json({ "--now", "2026-11-23T18:00:00", "list" }).size(), 3U);
}

TEST_F(TrackProgramTest, Track_LockedForTwoHours_WritesNothingOfThem)
{
    mDesktop.Tell("window alpha 0 First");
    mDesktop.Tell("idle 0");
    Record();
    Until(13);
    mDesktop.TellSession("lock 1");
    Until(60);
    EXPECT_TRUE(Json({ "track", "status" })["idle"].get<bool>());
    Until(133);
    mDesktop.TellSession("lock 0");
    Until(146);
    EXPECT_EQ(mDesktop.Stop(SIGINT), 0);
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36900</EndTime>"));
    EXPECT_THAT(Day(), Not(HasSubstr("<EndTime>37200</EndTime>")));
    EXPECT_THAT(Day(), HasSubstr("<StartTime>44100</StartTime>"));
}

TEST_F(TrackProgramTest, Track_MachineSleeps_WaitsUntilTheSlotIsWritten)
{
    mDesktop.Tell("window alpha 0 First");
    mDesktop.Tell("idle 0");
    Record();
    Until(9);
    mDesktop.TellSession("sleep 1");
    ASSERT_TRUE(TrackedDesktop::WaitUntil([this] { return mDesktop.Folder().Has("session.slept"); }));
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36600</EndTime>"));
}

TEST_F(TrackProgramTest, Track_Killed_GoesOnWithWhatItKnew)
{
    mDesktop.Tell("window alpha 0 First");
    mDesktop.Tell("idle 0");
    Record();
    Until(9);
    EXPECT_EQ(mDesktop.Stop(SIGKILL), 128 + SIGKILL);
    mDesktop.Tell("window alpha 0 First");
    mDesktop.Start({ "--now", "2026-11-23T10:10:00", "--speed", "600" });
    EXPECT_EQ(mDesktop.Stop(SIGHUP), 0);
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36300</EndTime>"));
    EXPECT_THAT(Day(), HasSubstr("<EndTime>36600</EndTime>"));
}

TEST_F(TrackProgramTest, Track_ATitleIsHidden_StandsNowhere)
{
    std::filesystem::create_directory(mDesktop.Profile());
    mDesktop.Folder().Write("profile/track.toml", "[[rule]]\ntitle = \"*quartzite*\"\ndo = \"drop\"\n");
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window firefox 0 feldspar - Mozilla Firefox Private Browsing");
    Record();
    Until(8);
    mDesktop.Tell("window alpha 0 some quartzite");
    Until(16);
    mDesktop.Tell("window org.keepassxc.KeePassXC 0 gneiss.kdbx");
    Until(24);
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_EQ(mDesktop.Run({ "--now", "2026-11-23T18:00:00", "sync" }).status, 0);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(mDesktop.Folder().Path())) {
        const auto path = entry.path().string();
        if (entry.is_regular_file() && path.find("/tree/") == std::string::npos
            && entry.path().filename() != "track.toml") {
            const auto content = mDesktop.Folder().Read(path.substr(mDesktop.Folder().Path().size() + 1));
            for (const auto* hidden : { "feldspar", "quartzite", "gneiss" }) {
                EXPECT_EQ(content.find(hidden), std::string::npos) << path << " holds " << hidden;
            }
        }
    }
    EXPECT_THAT(Day(), HasSubstr("private"));
}

TEST_F(TrackProgramTest, Track_TitlesThatAreMadeToDoHarm_GoThroughAllOutputs)
{
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window alpha 0 \xc3\x84rger & <b>]]> \xe2\x80\xae"
                  "evil \xf0\x9f\x98\x80 "
        + std::string(10000, 'x'));
    Record();
    Until(11);
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    const auto day = Day();
    EXPECT_TRUE(std::all_of(day.begin(), day.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x7f; }));
    EXPECT_THAT(day, Not(HasSubstr(std::string(200, 'x')))) << "texts are cut";
    EXPECT_THAT(day, HasSubstr("&#196;rger &amp; &lt;b&gt;]]&gt; evil &#128512;"));
    const std::string now = "2026-11-23T18:00:00";
    EXPECT_EQ(mDesktop.Run({ "--now", now, "sync" }).status, 0);
    EXPECT_THAT(Json({ "--now", now, "list" }).dump(), HasSubstr("rger & <b>]]> evil"));
    const auto page = mDesktop.Run({ "--now", now, "report" });
    EXPECT_EQ(page.status, 0);
    EXPECT_THAT(page.out, HasSubstr("rger &amp; &lt;b&gt;]]&gt; evil"));
    EXPECT_THAT(page.out, Not(HasSubstr("<b>]]>")));
    EXPECT_THAT(mDesktop.Run({ "--now", now, "report", "--text" }).out, HasSubstr("rger & <b>]]> evil"));
    EXPECT_THAT(
        mDesktop.Run({ "--now", now, "export", "--format", "csv" }).out, HasSubstr("\xc3\x84rger & <b>]]> evil"));
}

TEST_F(TrackProgramTest, Track_AnotherRuns_IsRefusedWithThree)
{
    mDesktop.Tell("window alpha 0 First");
    Record();
    const auto second = mDesktop.Run({ "track" });
    EXPECT_EQ(second.status, 3);
    EXPECT_THAT(second.error, MatchesRegex("tempodial: [^\n]+: [^\n]+\n"));
    EXPECT_EQ(mDesktop.Run({ "sync" }).status, 0) << "an import goes on beside it";
}

TEST_F(TrackProgramTest, Track_RulesCantBeRead_IsRefused)
{
    std::filesystem::create_directory(mDesktop.Profile());
    mDesktop.Folder().Write("profile/track.toml", "[[rule]]\ndo = \"drop\"\ncolour = \"red\"\n");
    const auto result = mDesktop.Run({ "track" });
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("track.toml, line 3"));
}

TEST_F(TrackProgramTest, Track_BadArguments_AreRefused)
{
    for (const auto& arguments :
        std::vector<std::vector<std::string>> { { "track", "--speed", "0" }, { "track", "--speed", "601" },
            { "track", "dance" }, { "track", "pause", "--for", "soon" }, { "track", "pause", "--for", "30" },
            { "track", "forget" }, { "track", "forget", "--last", "0m" }, { "track", "project", "A", "--none" } }) {
        const auto result = mDesktop.Run(arguments);
        EXPECT_EQ(result.status, 2) << arguments.back();
        EXPECT_THAT(result.error, MatchesRegex("tempodial: [^\n]+: [^\n]+\n"));
    }
}

TEST_F(TrackProgramTest, Work_NoRecorderRuns_IsSaid)
{
    EXPECT_EQ(Json({ "track", "status" }), (nlohmann::json { { "running", false } }));
    EXPECT_EQ(Json({ "track", "forget", "--last", "30m" }), (nlohmann::json { { "forgotten", 0 }, { "kept", 0 } }));
    EXPECT_FALSE(mDesktop.Folder().Has("profile")) << "asking makes nothing";
    for (const auto* word : { "pause", "resume", "project" }) {
        const auto result = mDesktop.Run({ "track", word });
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.error, HasSubstr("tempodial track"));
    }
}

TEST_F(TrackProgramTest, Status_Runs_HasAllFieldsAndNoTitle)
{
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window alpha 0 First");
    Record();
    Until(13);
    const auto status = Json({ "track", "status" });
    EXPECT_EQ(status["running"], true);
    EXPECT_EQ(status["backend"], "x11");
    EXPECT_EQ(status["idle"], false);
    EXPECT_EQ(status["paused"], false);
    EXPECT_EQ(status["pausedUntil"], nullptr);
    EXPECT_EQ(status["inFront"], (nlohmann::json { { "program", "Alpha" }, { "kind", 0 } }));
    EXPECT_GE(status["slots"], 1);
    EXPECT_THAT(status["since"].get<std::string>(), HasSubstr("2026-11-23T10:0"));
    EXPECT_THAT(status["lastWritten"].get<std::string>(), HasSubstr("2026-11-23T10:1"));
    EXPECT_EQ(status.dump().find("First"), std::string::npos);
    EXPECT_THAT(mDesktop.Run({ "track", "status" }).out, HasSubstr("Alpha"));
}

TEST_F(TrackProgramTest, Status_FromAnotherSession_SaysWhatCanBeKnown)
{
    mDesktop.Tell("window alpha 0 First");
    Record();
    const auto other = UsualEnvironment();
    const auto status = mDesktop.RunIn(other, { "track", "status", "--json" });
    EXPECT_EQ(status.status, 0) << status.error;
    EXPECT_EQ(nlohmann::json::parse(status.out),
        (nlohmann::json { { "running", true }, { "backend", nullptr }, { "idle", nullptr }, { "since", nullptr },
            { "paused", nullptr }, { "pausedUntil", nullptr }, { "inFront", nullptr }, { "slots", nullptr },
            { "lastWritten", nullptr } }));
    EXPECT_THAT(mDesktop.RunIn(other, { "track", "status" }).out, HasSubstr("XDG_RUNTIME_DIR"));
    for (const auto& words : std::vector<std::vector<std::string>> { { "track", "pause" }, { "track", "project" },
             { "track", "resume" }, { "track", "forget", "--last", "30m" } }) {
        const auto result = mDesktop.RunIn(other, words);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.error, HasSubstr("runs, but can't be asked from here: ")) << words[1];
    }
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_THAT(mDesktop.RunIn(other, { "track", "status" }).out, HasSubstr("No recorder is running"));
}

TEST_F(TrackProgramTest, Status_RecorderListensInTheProfile_IsAskedThere)
{
    auto environment = UsualEnvironment();
    for (const auto* name : { "FAKE_DESKTOP=desktop", "FAKE_SESSION=session" }) {
        const std::string value(name);
        environment.push_back(value.substr(0, 13) + mDesktop.Folder().Path(value.substr(13)));
    }
    mDesktop.Tell("window alpha 0 First");
    mDesktop.StartIn(environment, { "--now", Monday, "--speed", "600" });
    EXPECT_EQ(Json({ "track", "status" })["backend"], "x11");
    EXPECT_TRUE(mDesktop.Folder().Has("profile/Tempodial/track.sock"));
}

TEST_F(TrackProgramTest, PauseAndResume_Runs_AreFollowed)
{
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window alpha 0 First");
    Record();
    const auto paused = Json({ "track", "pause", "--for", "1h" });
    EXPECT_EQ(paused["paused"], true);
    EXPECT_THAT(paused["until"].get<std::string>(), HasSubstr("2026-11-23T11:"));
    EXPECT_EQ(Json({ "track", "status" })["pausedUntil"], paused["until"]);
    EXPECT_EQ(Json({ "track", "status" })["inFront"], nullptr);
    Until(20);
    EXPECT_EQ(Json({ "track", "resume" })["paused"], false);
    EXPECT_EQ(Json({ "track", "pause" })["until"], nullptr);
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_THAT(Programs(), IsEmpty());
}

TEST_F(TrackProgramTest, Project_Given_StandsInEachLine)
{
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window alpha 0 First");
    Record();
    EXPECT_EQ(Json({ "track", "project" })["project"], nullptr);
    EXPECT_EQ(Json({ "track", "project", "Riverside" })["project"], "Riverside");
    Until(11);
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_THAT(Day(), HasSubstr("<Project>Riverside</Project>"));
    EXPECT_EQ(mDesktop.Run({ "track", "project", "--none" }).status, 1);
}

TEST_F(TrackProgramTest, Forget_RunsOrNot_TakesOutLinesButNoImportedOnes)
{
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window alpha 0 First");
    Record();
    Until(17);
    EXPECT_GE(Json({ "track", "forget", "--last", "1h" })["forgotten"], 2);
    EXPECT_THAT(Programs(), IsEmpty());
    Until(33);
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_THAT(Programs(), Not(IsEmpty()));
    const std::string now = "2026-11-23T11:00:00";
    ASSERT_EQ(mDesktop.Run({ "--now", now, "sync" }).status, 0);
    const auto before = Day();
    const auto kept = Json({ "--now", now, "--quiet", "track", "forget", "--last", "2h" });
    EXPECT_EQ(kept["forgotten"], 0);
    EXPECT_GE(kept["kept"], 2);
    EXPECT_EQ(Day(), before);
    EXPECT_THAT(mDesktop.Run({ "--now", now, "track", "forget", "--last", "2h" }).error, HasSubstr("imported"));
}

TEST_F(TrackProgramTest, OnceAndProbe_DesktopIsThere_SayWhatTheySee)
{
    mDesktop.Tell("window firefox 0 Riverside plan - Mozilla Firefox");
    EXPECT_EQ(mDesktop.Run({ "track", "--once" }).out, "Firefox, Riverside plan\n");
    const auto probe = Json({ "track", "probe" });
    ASSERT_EQ(probe.size(), 4U);
    EXPECT_EQ(probe[0]["backend"], "x11");
    EXPECT_EQ(probe[0]["chosen"], true);
    EXPECT_EQ(probe[0]["window"], true);
    EXPECT_EQ(probe[0]["why"], nullptr);
    EXPECT_EQ(probe[1]["window"], false);
    EXPECT_THAT(probe[1]["why"].get<std::string>(), HasSubstr("install"));
}

TEST_F(TrackProgramTest, Probe_DesktopTellsNoLocks_AsksTheSession)
{
    mDesktop.Tell("sees window title");
    mDesktop.TellSession("idle 0");
    const auto whole = Json({ "track", "probe" })[0];
    EXPECT_EQ(whole["lock"], true);
    EXPECT_EQ(whole["idle"], true);
    EXPECT_EQ(whole["why"], nullptr);
    mDesktop.Tell("sees window title idle");
    mDesktop.TellSession("sees idle");
    const auto lacking = Json({ "track", "probe" })[0];
    EXPECT_EQ(lacking["chosen"], true);
    EXPECT_EQ(lacking["lock"], false);
    EXPECT_THAT(lacking["why"].get<std::string>(), HasSubstr("session"));
}

TEST_F(TrackProgramTest, Track_NothingComes_AsksForTheLastInputOnceAMinute)
{
    mDesktop.Tell("window alpha 0 First");
    mDesktop.Tell("idle 0");
    mDesktop.Start({ "--now", Monday, "--speed", "60" });
    const auto asked = [this] { return mDesktop.Folder().Read("desktop.asked").size(); };
    const auto begin = std::chrono::steady_clock::now();
    const auto before = asked();
    std::this_thread::sleep_for(std::chrono::seconds(4));
    const auto times = asked() - before;
    const auto minutes = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    EXPECT_GE(times, 3U);
    EXPECT_LE(static_cast<double>(times), minutes + 1);
}

TEST_F(TrackProgramTest, Desktop_IsGone_IsLookedForAgain)
{
    mDesktop.Tell("idle 0");
    mDesktop.Tell("window alpha 0 First");
    Record();
    Until(9);
    mDesktop.Tell("gone");
    ASSERT_TRUE(
        TrackedDesktop::WaitUntil([this] { return mDesktop.Messages().find("x11 is gone") != std::string::npos; }));
    mDesktop.Tell("window beta 0 Second");
    ASSERT_TRUE(TrackedDesktop::WaitUntil([this] { return Json({ "track", "status" })["backend"] == "x11"; }));
    EXPECT_EQ(mDesktop.Stop(SIGTERM), 0);
    EXPECT_THAT(Day(), HasSubstr("Alpha"));
}

TEST_F(TrackProgramTest, InstallAndUninstall_NoSessionAnswers_WriteAndRemoveFiles)
{
    const auto installed = mDesktop.Run({ "track", "install" });
    EXPECT_EQ(installed.status, 0);
    EXPECT_THAT(installed.error, HasSubstr("systemctl --user enable"));
    const auto unit = mDesktop.Folder().Read("config/systemd/user/tempodial-track.service");
    EXPECT_THAT(unit, HasSubstr("RestrictAddressFamilies=AF_UNIX\nNoNewPrivileges=yes"));
    EXPECT_THAT(unit, HasSubstr("WantedBy=graphical-session.target"));
    EXPECT_THAT(unit, HasSubstr("\"" + mDesktop.Folder().Path("tree/bin/tempodial-track") + "\" --profile \""));
    EXPECT_THAT(mDesktop.Folder().Read("config/systemd/user/tempodial-sync.timer"), HasSubstr("OnCalendar=hourly"));
    EXPECT_TRUE(mDesktop.Folder().Has("config/autostart/tempodial-track.desktop"));
    EXPECT_THAT(installed.out, HasSubstr("tempodial-sync.service\n"));
    EXPECT_EQ(Json({ "track", "uninstall" })["files"].size(), 4U);
    EXPECT_FALSE(mDesktop.Folder().Has("config/systemd/user/tempodial-track.service"));
    EXPECT_EQ(Json({ "track", "uninstall" })["files"].size(), 0U);
}

}

}
