#include "scenarios/ProfileState.h"
#include "support/DurableFiles.h"
#include "support/LongTests.h"
#include "support/Program.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

constexpr auto Now = "2006-10-10T17:00:00";

/// A day of slots with everything that may stand in a file: continuations, details at a slot's end, end times that
/// are equal or fall back, lines that aren't well-formed, a slot without times.
std::string MixedDay(const std::string& prefix)
{
    std::vector<std::string> lines;
    int time = 32400;
    for (int i = 0; i < 12; ++i) {
        const auto name = prefix + std::to_string(i) + ".doc";
        lines.push_back(WordSlot(time, time + 300, name));
        lines.push_back(WordLine(time + 300, time + 600, name).Continuation().Text());
        lines.push_back(WordLine(time + 400, time + 600, "aside " + name).Detail().Text());
        lines.push_back(WordLine(time + 450, time + 600, "more " + name).Detail().Text());
        time += 600;
    }
    lines.insert(lines.end(),
        { "<slot><half written", "", WordSlot(time, time + 300, prefix + "first of two"),
            WordSlot(time, time + 300, prefix + "second of two"),
            WordSlot(time - 600, time - 300, prefix + "out of order"),
            "<slot><AppType>8</AppType><WindowText>a.txt - Notepad</WindowText></slot>",
            WordLine(time + 300, time + 600, prefix + "behind").Node("Project", "Crash").Text() });
    return TrackerText(lines);
}

/// A day with more lines than are kept from one commit to the next.
std::string LongDay()
{
    std::vector<std::string> lines;
    for (int i = 0; i < 1100; ++i) {
        lines.push_back(WordSlot(i * 60, i * 60 + 60, "long " + std::to_string(i)));
    }
    return TrackerText(lines);
}

/// The first lines of today's mixed day.
std::string FirstLines(int count)
{
    const auto text = MixedDay("t");
    std::size_t end = 0;
    for (; count > 0; --count) {
        end = text.find('\n', end) + 1;
    }
    return text.substr(0, end);
}

struct DataSet
{
    std::string name;
    /// Day key and content of each tracker file.
    std::vector<std::pair<std::string, std::string>> days;
    std::string history;
    /// What an earlier sync has taken of today's file; without it the profile is new.
    std::string earlier = {};
    /// By how much a sync is longer than usual; the short form has so many fewer points then.
    int length = 1;
};

void PrintTo(const DataSet& data, std::ostream* stream)
{
    *stream << data.name;
}

std::vector<DataSet> DataSets()
{
    return {
        { "todayAndTwoPastDays",
            { { "20061010", MixedDay("t") }, { "20061009", MixedDay("y") }, { "20061007", MixedDay("s") } }, "" },
        { "profileInUse", { { "20061010", MixedDay("t") }, { "20061009", MixedDay("y") } }, "", FirstLines(20) },
        { "pastDaysAlone", { { "20061009", MixedDay("y") }, { "20061008", MixedDay("s") } },
            "|20061008_32700|20061009_33000" },
        { "goingOnToday", { { "20061010", MixedDay("t") } }, "20061010_34200" },
        { "mostlyKnown",
            { { "20061010", MixedDay("t") }, { "20061009", MixedDay("y") }, { "20061008", MixedDay("s") } },
            "|20061010_86399|20061009_86399" },
        { "manyLines", { { "20061010", LongDay() }, { "20061009", MixedDay("y") } }, "", "", 4 },
    };
}

std::vector<std::string> Sync(const fs::path& profile)
{
    return { "--profile", profile.string(), "--locale", "en_US", "--now", Now, "--quiet", "sync" };
}

void WriteFile(const fs::path& path, const std::string& content)
{
    std::ofstream(path, std::ios::binary) << content;
}

void MakeProfile(const fs::path& profile, const DataSet& data)
{
    const auto folder = profile / "Tempodial";
    fs::create_directories(folder);
    if (!data.earlier.empty()) {
        WriteFile(folder / "tracker_granules20061010.out", data.earlier);
        EXPECT_EQ(RunTempodial(Sync(profile)).status, 0);
    }
    for (const auto& [day, content] : data.days) {
        WriteFile(folder / ("tracker_granules" + day + ".out"), content);
    }
    if (!data.history.empty()) {
        WriteFile(folder / "TempodialHistory.out", data.history);
    }
}

/// What is in one sorted list and not in the other, a line each.
std::string Difference(const std::vector<std::string>& expected, const std::vector<std::string>& found)
{
    std::vector<std::string> missing;
    std::vector<std::string> added;
    std::set_difference(expected.begin(), expected.end(), found.begin(), found.end(), std::back_inserter(missing));
    std::set_difference(found.begin(), found.end(), expected.begin(), expected.end(), std::back_inserter(added));
    std::string text;
    for (const auto& item : missing) {
        text += "- " + item + "\n";
    }
    for (const auto& item : added) {
        text += "+ " + item + "\n";
    }
    return text;
}

}

class CrashTest : public testing::TestWithParam<DataSet>
{
protected:
    /// Syncs new profiles; each run is ended at another system call, all spread over the length of a sync. The next
    /// sync leaves all as an undisturbed one does.
    void EndEverywhere(int points, const std::function<void(const fs::path& profile, std::int64_t call)>& runAndEnd)
    {
        const auto& data = GetParam();
        const auto undisturbed = fs::path(mFolder.Path()) / "undisturbed";
        MakeProfile(undisturbed, data);
        const auto whole = RunTempodialKilledAt(Sync(undisturbed), 0);
        if (!whole) {
            GTEST_SKIP() << "this system doesn't let a process be observed";
        }
        ASSERT_EQ(whole->status, 0) << whole->error;
        const auto expected = StateOf(undisturbed, Now);
        ASSERT_FALSE(expected.items.empty());
        for (int i = 1; i <= points; ++i) {
            const auto call = whole->systemCalls * i / (points + 1);
            SCOPED_TRACE("ended at system call " + std::to_string(call) + " of " + std::to_string(whole->systemCalls));
            const auto profile = fs::path(mFolder.Path()) / ("ended" + std::to_string(i));
            MakeProfile(profile, data);
            runAndEnd(profile, call);
            const auto next = RunTempodial(Sync(profile));
            EXPECT_EQ(next.status, 0) << next.error;
            const auto state = StateOf(profile, Now);
            EXPECT_EQ(Difference(expected.items, state.items), "");
            EXPECT_EQ(state.history, expected.history);
            EXPECT_EQ(state.trackerFiles, expected.trackerFiles);
            fs::remove_all(profile);
        }
    }
    void LosePowerEverywhere(DurableFiles::Names names)
    {
        EndEverywhere(StopPoints(4 / GetParam().length, 60), [names](const fs::path& profile, std::int64_t end) {
            DurableFiles durable(profile);
            const auto killed = RunTempodialObserved(Sync(profile),
                { .goesOn = [end](std::int64_t call) { return call != end; },
                    .flushed = [&durable](const std::string& path) { durable.Flushed(path); } });
            ASSERT_EQ(killed->status, 128 + 9);
            durable.LosePower(names);
        });
    }

    TempFolder mFolder { TempFolder::InMemory() };
};

TEST_P(CrashTest, Sync_KilledAnywhere_EndsAsUndisturbedAfterTheNext)
{
    EndEverywhere(StopPoints(12 / GetParam().length, 110), [](const fs::path& profile, std::int64_t end) {
        ASSERT_EQ(RunTempodialKilledAt(Sync(profile), end)->status, 128 + 9);
    });
}

TEST_P(CrashTest, Sync_PowerLostAnywhere_EndsAsUndisturbedAfterTheNext)
{
    LosePowerEverywhere(DurableFiles::Names::Kept);
}

TEST_P(CrashTest, Sync_PowerLostAnywhereWithNames_EndsAsUndisturbedAfterTheNext)
{
    LosePowerEverywhere(DurableFiles::Names::Lost);
}

INSTANTIATE_TEST_SUITE_P(
    DataSets, CrashTest, testing::ValuesIn(DataSets()), [](const auto& data) { return data.param.name; });

}
