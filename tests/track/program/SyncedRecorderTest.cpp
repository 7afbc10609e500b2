#include "base/IsoDate.h"
#include "support/Program.h"
#include "support/TempFolder.h"
#include "track/ProfileRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::int64_t SyncedTick = 15000;

/// A profile with a recorder whose clock the test moves, and what `tempodial` makes of its files.
class SyncedProfile
{
public:
    explicit SyncedProfile(const std::string& start, bool syncsOften = false)
        : mSyncsOften(syncsOften)
    {
        SetClock(start);
        mNow.boot = 5000000;
        mNow.awake = mNow.boot;
        mRecorder = std::make_unique<ProfileRecorder>(mFolder.Path("profile"), mNow, [](const std::string&) {});
    }

    /// Puts the wall's clock to a moment such as "2026-10-25T02:00".
    void SetClock(const std::string& moment)
    {
        const auto number
            = [&moment](std::size_t at, std::size_t length) { return std::stoi(moment.substr(at, length)); };
        mNow.local = Date::FromYearMonthDay(number(0, 4), number(5, 2), number(8, 2))
                         .AddMinutes(number(11, 2) * 60 + number(14, 2))
                         .Seconds()
            * MillisecondsOfSecond;
    }

    void Work(double minutes, const std::string& title, const std::string& program = "editor")
    {
        for (auto tick = static_cast<int>(minutes * 4); tick > 0; --tick) {
            mNow.local += SyncedTick;
            mNow.boot += SyncedTick;
            mNow.awake += SyncedTick;
            Observation seen;
            seen.window = Sighting { program, "", title, "", false };
            seen.idle = 0;
            mRecorder->Observe(mNow, seen);
            mRecorder->Tick(mNow);
            if (mSyncsOften && tick % 4 == 0) {
                Sync();
            }
        }
    }

    void Sync() const { EXPECT_EQ(Run({ "sync" }).status, 0); }
    void Finish() { mRecorder->End(mNow); }

    ProgramResult Run(std::vector<std::string> arguments, const std::string& now = "") const
    {
        const std::vector<std::string> common { "--profile", mFolder.Path("profile"), "--now",
            now.empty() ? IsoMoment(mNow.ToDate()) : now };
        arguments.insert(arguments.begin(), common.begin(), common.end());
        return RunTempodial(arguments);
    }

    /// The activities of the days around the test, without their identities.
    nlohmann::json Log() const
    {
        auto items = nlohmann::json::parse(Run({ "--json", "list", "-5d" }).out);
        for (auto& item : items) {
            for (const auto* name : { "id", "entryId", "created", "modified" }) {
                item.erase(name);
            }
        }
        return items;
    }

    std::string Read(const std::string& day) const
    {
        return mFolder.Read("profile/Tempodial/tracker_granules" + day + ".out");
    }
    const TempFolder& Folder() const { return mFolder; }

private:
    TempFolder mFolder { TempFolder::InMemory() };
    TrackMoment mNow;
    std::unique_ptr<ProfileRecorder> mRecorder;
    bool mSyncsOften;
};

/// Ends of the lines of a day's file, which must not fall.
void ExpectRising(const std::string& content)
{
    int last = 0;
    for (auto at = content.find("<EndTime>"); at != std::string::npos; at = content.find("<EndTime>", at + 1)) {
        const auto end = std::stoi(content.substr(at + 9));
        EXPECT_LE(last, end);
        last = end;
    }
    EXPECT_GT(last, 0);
}

/// An event of the clock: when work begins, when the clock is put, and to what.
struct ClockEvent
{
    std::string name, start, putTo;
    double before, after;
    std::string day;
};

class SyncedRecorderTest : public testing::TestWithParam<ClockEvent>
{
};

TEST_P(SyncedRecorderTest, Sync_AroundAnEventOfTheClock_MakesTheSameLogAsOneAtTheEnd)
{
    const auto& event = GetParam();
    std::vector<nlohmann::json> logs;
    for (const bool syncsAround : { false, true }) {
        SyncedProfile profile(event.start);
        profile.Work(event.before, "Riverside plan");
        if (syncsAround) {
            profile.Sync();
        }
        if (!event.putTo.empty()) {
            profile.SetClock(event.putTo);
        }
        profile.Work(event.after / 2, "Riverside plan");
        if (syncsAround) {
            profile.Sync();
        }
        profile.Work(event.after / 2, "Other matter", "browser");
        profile.Finish();
        ExpectRising(profile.Read(event.day) + profile.Read("(done)" + event.day));
        profile.Sync();
        logs.push_back(profile.Log());
    }
    EXPECT_FALSE(logs[0].empty());
    EXPECT_EQ(logs[0], logs[1]);
}

INSTANTIATE_TEST_SUITE_P(Events, SyncedRecorderTest,
    testing::Values(ClockEvent { "PutBack", "2026-11-20T10:00", "2026-11-20T09:33", 33, 130, "20261120" },
        ClockEvent { "PutForward", "2026-11-20T10:00", "2026-11-20T12:11", 33, 60, "20261120" },
        ClockEvent { "Autumn", "2026-10-25T02:10", "2026-10-25T02:00", 50, 150, "20261025" },
        ClockEvent { "Spring", "2026-03-29T01:10", "2026-03-29T03:00", 50, 60, "20260329" },
        ClockEvent { "Midnight", "2026-11-20T23:20", "", 38, 60, "20261120" }),
    [](const auto& event) { return event.param.name; });

/// Where the glance falls that only a detail tells of.
class GlanceTest : public testing::TestWithParam<std::tuple<int, bool>>
{
};

TEST_P(GlanceTest, Rule_MatchesOnlyADetail_ChangesNoProject)
{
    const auto [minute, syncsOften] = GetParam();
    SyncedProfile profile("2026-11-20T10:00", syncsOften);
    EXPECT_EQ(profile.Run({ "projects", "set", "Quartz", "--subject", "quartzite" }).status, 0);
    profile.Work(minute, "Riverside plan");
    profile.Work(0.75, "quartzite", "browser");
    profile.Work(25 - minute - 0.75, "Riverside plan");
    profile.Finish();
    profile.Sync();
    const auto log = profile.Log();
    ASSERT_EQ(log.size(), 1U) << log.dump(1);
    EXPECT_EQ(log[0]["mileage"], "No Project");
    EXPECT_THAT(log[0]["subject"].get<std::string>(), HasSubstr("Riverside plan"));
    EXPECT_THAT(log[0]["subject"].get<std::string>(), Not(HasSubstr("including")));
}

INSTANTIATE_TEST_SUITE_P(Slots, GlanceTest, testing::Combine(testing::Values(1, 7, 12, 21, 24), testing::Bool()));

TEST(RecordedAndImportedTest, SameTime_ByBoth_IsInTheLogOnce)
{
    SyncedProfile profile("2026-11-20T10:00");
    profile.Work(30, "Riverside plan");
    profile.Finish();
    const auto table = profile.Folder().Write("mine.csv",
        "start,end,program,title\n2026-11-20T09:00:00,2026-11-20T10:20:00,Atlas,Map\n"
        "2026-11-20T10:10:00,2026-11-20T11:00:00,Atlas,Other map\n");
    const std::string later = "2026-11-21T12:00:00";
    EXPECT_EQ(profile.Run({ "import", "csv", table, "--as", "sightings" }, later).status, 0);
    EXPECT_EQ(profile.Run({ "sync" }, later).status, 0);
    const auto log = nlohmann::json::parse(profile.Run({ "--json", "list", "-3d" }, later).out);
    ASSERT_GE(log.size(), 3U) << log.dump(1);
    std::string end;
    for (const auto& item : log) {
        EXPECT_LE(end, item["start"].get<std::string>()) << log.dump(1);
        end = item["end"];
    }
}

}

}
