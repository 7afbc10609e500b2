#include "support/ObservedWork.h"
#include "support/TempFolder.h"
#include "track/ProfileRecorder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <unistd.h>
#include <vector>

namespace tempodial {

namespace {

constexpr std::int64_t KillTick = 15000;

TrackMoment MomentAfter(std::int64_t minutes)
{
    TrackMoment moment;
    const auto start = Date::FromYearMonthDay(2026, 11, 20).AddMinutes(600);
    moment.local = start.Seconds() * MillisecondsOfSecond + minutes * 60000;
    moment.boot = 1000000 + minutes * 60000;
    moment.awake = moment.boot;
    return moment;
}

/// Works in a window from one minute to another, tick by tick.
void WorkInProfile(const std::string& profile, std::int64_t from, std::int64_t to)
{
    ProfileRecorder recorder(profile, MomentAfter(from), [](const std::string&) {});
    auto now = MomentAfter(from);
    const auto end = MomentAfter(to).local;
    for (; now.local <= end; now.local += KillTick, now.boot += KillTick, now.awake += KillTick) {
        Observation seen;
        seen.window = Sighting { "editor", "", now.local / 600000 % 2 == 0 ? "a" : "b", "", false };
        seen.idle = 0;
        recorder.Observe(now, seen);
        recorder.Tick(now);
    }
    recorder.End(now);
}

std::vector<std::int64_t> EndsIn(const TempFolder& folder)
{
    std::vector<std::int64_t> ends;
    const auto content = folder.Read("Tempodial/tracker_granules20261120.out");
    for (auto at = content.find("<slot>"); at != std::string::npos; at = content.find("<slot>", at + 1)) {
        const auto line = content.substr(at, content.find('\n', at) - at);
        EXPECT_TRUE(line.ends_with("</slot>\r")) << line;
        if (line.find("<Detail>") == std::string::npos) {
            ends.push_back(std::stoll(line.substr(line.find("<EndTime>") + 9)));
        }
    }
    return ends;
}

TEST(KilledRecorderTest, Run_KilledAtAnySystemCall_LosesAtMostAMinuteAndWritesNoSlotTwice)
{
    constexpr std::int64_t Minutes = 22;
    std::int64_t calls = 0;
    {
        const TempFolder folder(TempFolder::InMemory());
        const auto counted = DoObserved([&] { WorkInProfile(folder.Path(), 0, Minutes); }, {});
        if (!counted) {
            GTEST_SKIP() << "this system lets no program be observed";
        }
        calls = *counted;
    }
    ASSERT_GT(calls, 100);
    for (std::int64_t kill = 1; kill <= calls; kill += 7) {
        const TempFolder folder(TempFolder::InMemory());
        ASSERT_TRUE(DoObserved([&] { WorkInProfile(folder.Path(), 0, Minutes); },
            { .goesOn = [kill](std::int64_t call) { return call != kill; } }));
        // It is started again at once, when the machine's clock shows the end of that work.
        WorkInProfile(folder.Path(), Minutes, 30);
        const auto ends = EndsIn(folder);
        for (std::size_t i = 1; i < ends.size(); ++i) {
            EXPECT_LT(ends[i - 1], ends[i]) << "killed at " << kill;
        }
        ASSERT_FALSE(ends.empty());
        EXPECT_EQ(ends.back(), 37800) << "killed at " << kill;
    }
}

TEST(KilledRecorderTest, State_KilledBetweenTicks_LosesAtMostAMinute)
{
    for (std::int64_t minutes = 1; minutes < 16; ++minutes) {
        const TempFolder folder(TempFolder::InMemory());
        DoObserved([&] { WorkInProfile(folder.Path(), 0, minutes); }, {});
        const auto whole = EndsIn(folder).size();
        const TempFolder killedFolder(TempFolder::InMemory());
        // A run without its end: what it has kept is all that the next one knows.
        DoObserved(
            [&] {
                ProfileRecorder recorder(killedFolder.Path(), MomentAfter(0), [](const std::string&) {});
                auto now = MomentAfter(0);
                for (; now.local <= MomentAfter(minutes).local;
                     now.local += KillTick, now.boot += KillTick, now.awake += KillTick) {
                    Observation seen;
                    seen.window = Sighting { "editor", "", "a", "", false };
                    seen.idle = 0;
                    recorder.Observe(now, seen);
                    recorder.Tick(now);
                }
                ::_exit(0);
            },
            {});
        {
            ProfileRecorder recorder(killedFolder.Path(), MomentAfter(minutes), [](const std::string&) {});
            recorder.End(MomentAfter(minutes));
        }
        // The minute that may be lost makes a slot of 150 seconds one of 90 at the worst.
        EXPECT_GE(EndsIn(killedFolder).size() + (minutes % 5 == 2 || minutes % 5 == 3 ? 1 : 0), whole) << minutes;
    }
}

}

}
