#include "scenarios/TroubleFixture.h"

#include <algorithm>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

/// A clock that is changed, and a home that isn't one.
class SurroundingsTroubleTest : public TroubleFixture
{
protected:
    ProgramResult SyncAt(const std::string& now)
    {
        mNow = now;
        return Sync();
    }
    /// The starts of the activities of a day with their subjects, in order.
    std::vector<std::string> Starts(const std::string& day) const
    {
        std::vector<std::string> starts;
        for (const auto& item : Json({ "list", "--from", day, "--to", day })) {
            starts.push_back(
                item.at("start").get<std::string>() + " " + item.at("properties").at("Description").get<std::string>());
        }
        return starts;
    }
    ProgramResult RunIn(const std::vector<std::string>& environment, const Arguments& arguments) const
    {
        std::vector<std::string> whole { "PATH=/usr/bin:/bin", "LC_ALL=en_US.UTF-8" };
        whole.insert(whole.end(), environment.begin(), environment.end());
        return RunTempodial(arguments, whole);
    }
};

}

TEST_F(SurroundingsTroubleTest, Sync_ClockSetBackAndForth_LosesAndDoublesNothing)
{
    WriteDays();
    for (const auto* now : { "2006-10-10T17:00:00", "2006-10-10T08:00:00", "2006-10-09T23:59:59", "2006-10-01T12:00:00",
             "1999-12-31T23:59:59", "2006-10-10T17:00:00" }) {
        const auto result = SyncAt(now);
        EXPECT_EQ(result.status, 0) << now << ": " << result.error;
    }
    ExpectNextSyncCompletes();
}

TEST_F(SurroundingsTroubleTest, Sync_FirstAtAnEarlierDay_TakesTheLaterOneWhenItComes)
{
    WriteDays();
    EXPECT_EQ(SyncAt("2006-10-08T12:00:00").status, 0);
    EXPECT_EQ(SyncAt("2006-10-09T12:00:00").status, 0);
    EXPECT_EQ(SyncAt("2006-10-10T17:00:00").status, 0);
    ExpectNextSyncCompletes();
}

TEST_F(SurroundingsTroubleTest, Sync_AcrossTheChangesOfDaylightSaving_TakesEachLineOnce)
{
    // In the night of spring the hour from 2 is missing, in that of autumn it is there twice.
    const std::vector<std::string> spring { WordSlot(6600, 6900, "a"), WordSlot(6900, 7200, "b"),
        WordSlot(10800, 11100, "c"), WordSlot(11100, 11400, "d") };
    const std::vector<std::string> autumn { WordSlot(10200, 10500, "a"), WordSlot(10500, 10800, "b"),
        WordSlot(7200, 7500, "c"), WordSlot(10500, 10800, "d"), WordSlot(10800, 11100, "e"),
        WordSlot(11100, 11400, "f") };
    for (const auto* zone : { "TZ=Europe/Berlin", "TZ=America/New_York", "TZ=UTC" }) {
        for (const auto& [day, key, nextDay, slots] :
            std::vector<std::tuple<std::string, std::string, std::string, std::vector<std::string>>> {
                { "2006-03-26", "20060326", "2006-03-27", spring }, { "2006-10-29", "20061029", "2006-10-30", autumn },
                { "2006-04-02", "20060402", "2006-04-03", spring } }) {
            SCOPED_TRACE(day + " " + zone);
            fs::remove_all(mProfile);
            WriteTracker(key, slots);
            const auto sync = [&](const std::string& time) {
                return RunIn({ zone }, { "--profile", mProfile, "--now", day + "T" + time, "sync", "--quiet" });
            };
            EXPECT_EQ(sync("04:00:00").error, "");
            mNow = day + "T12:00:00";
            const auto starts = Starts(day);
            EXPECT_EQ(starts.size(), slots.size());
            EXPECT_EQ(sync("04:00:01").error, "");
            EXPECT_EQ(sync("23:59:59").error, "");
            EXPECT_EQ(Starts(day), starts);
            // On the next day the file is finished.
            mNow = nextDay + "T12:00:00";
            EXPECT_EQ(RunIn({ zone }, Whole({ "sync", "--quiet" })).error, "");
            EXPECT_EQ(Starts(day), starts);
            EXPECT_TRUE(fs::exists(DataPath("tracker_granules(done)" + key + ".out")));
        }
    }
}

TEST_F(SurroundingsTroubleTest, EachCommand_RealClockInAnyZone_Works)
{
    for (const auto* zone : { "TZ=Europe/Berlin", "TZ=Pacific/Kiritimati", "TZ=Nowhere/AtAll", "TZ=" }) {
        EXPECT_EQ(RunIn({ zone }, { "--profile", mProfile, "sync" }).error, "") << zone;
        EXPECT_EQ(RunIn({ zone }, { "--profile", mProfile, "list" }).status, 0) << zone;
    }
}

TEST_F(SurroundingsTroubleTest, EachCommand_NoUsableHome_IsToldAndMakesNothing)
{
    const auto file = mFolder.Write("file", "x");
    for (const auto& environment : std::vector<std::vector<std::string>> { {}, { "HOME=" }, { "HOME=" + file },
             { "HOME=" + file + "/home" }, { "HOME=/proc/nowhere" }, { "HOME=/dev/null" },
             { "HOME=" + mFolder.Path("home"), "XDG_DATA_HOME=/proc/nowhere" },
             { "HOME=" + mFolder.Path("home"), "TEMPODIAL_PROFILE=" + file } }) {
        for (const auto& arguments : { Arguments { "sync" }, Arguments { "projects" }, Arguments { "demo" } }) {
            const auto result = RunIn(environment, arguments);
            EXPECT_EQ(result.status, 1) << testing::PrintToString(environment);
            EXPECT_EQ(result.out, "");
            EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
            EXPECT_THAT(result.error, testing::HasSubstr("--profile"));
        }
    }
    EXPECT_FALSE(mFolder.Has("home"));
    EXPECT_EQ(mFolder.Read("file"), "x");
}

TEST_F(SurroundingsTroubleTest, EachCommand_HomeOfAnyKind_HoldsTheProfile)
{
    const auto home = mFolder.Path("home");
    EXPECT_EQ(RunIn({ "HOME=" + home, "XDG_DATA_HOME=" }, { "projects" }).status, 0);
    EXPECT_TRUE(fs::exists(home + "/.local/share/tempodial/mailbox.db"));
    // A base folder that isn't absolute doesn't count.
    EXPECT_EQ(RunIn({ "HOME=" + home + "2", "XDG_DATA_HOME=relative" }, { "projects" }).status, 0);
    EXPECT_TRUE(fs::exists(home + "2/.local/share/tempodial/mailbox.db"));
    EXPECT_EQ(RunIn({ "HOME=" + home, "XDG_DATA_HOME=" + home + "3" }, { "projects" }).status, 0);
    EXPECT_TRUE(fs::exists(home + "3/tempodial/mailbox.db"));
}

}
