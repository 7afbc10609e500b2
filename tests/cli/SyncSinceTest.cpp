#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SyncSinceTest : public ProgramFixture
{
protected:
    static std::string Live(const std::string& dayKey) { return "tracker_granules" + dayKey + ".out"; }
    static std::string Finished(const std::string& dayKey) { return "tracker_granules(done)" + dayKey + ".out"; }

    void WriteDay(const std::string& dayKey, const std::string& document) const
    {
        WriteTracker(dayKey, { WordSlot(32400, 32700, document) });
    }
    bool IsThere(const std::string& name) const { return std::filesystem::exists(DataPath(name)); }
    std::string Text(const std::string& name) const
    {
        std::ifstream file(DataPath(name), std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }
    /// How many activities a sync made, of which everything else must be as usual.
    int Created(const Arguments& arguments) const
    {
        const auto answer = Json(arguments);
        EXPECT_EQ(answer.at("leftOut"), nlohmann::json::array());
        EXPECT_EQ(answer.at("unread"), nlohmann::json::array());
        EXPECT_EQ(answer.at("cancelled"), false);
        return answer.at("created");
    }
    /// The documents of all activities in the order in which these were made.
    std::vector<std::string> Made() const
    {
        std::map<int, std::string> documents;
        for (const auto& item : Json({ "list", "--from", "2006-01-01", "--to", "2006-12-31" })) {
            documents[item.at("id")] = item.at("properties").at("Description");
        }
        std::vector<std::string> made;
        for (const auto& [id, document] : documents) {
            made.push_back(document);
        }
        return made;
    }
};

}

TEST_F(SyncSinceTest, SyncSince_OlderFiles_AreTakenOldestFirst)
{
    WriteDay("20061010", "today");
    WriteDay("20060919", "just young enough");
    WriteDay("20060902", "second");
    WriteDay("20060901", "first");
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-01" }), 4);
    ASSERT_EQ(Made().size(), 4U);
    EXPECT_THAT(Made()[0], HasSubstr("first"));
    EXPECT_THAT(Made()[1], HasSubstr("second"));
    for (const auto* day : { "20060901", "20060902", "20060919" }) {
        EXPECT_FALSE(IsThere(Live(day))) << day;
        EXPECT_TRUE(IsThere(Finished(day))) << day;
    }
    EXPECT_TRUE(IsThere(Live("20061010")));
    EXPECT_EQ(Json({ "status" }).at("lastSync").at("when"), "2006-10-10T17:00:00");
}

TEST_F(SyncSinceTest, SyncSince_Counts_AreThoseOfASyncOnEachDaySummed)
{
    const auto fill = [&] {
        std::filesystem::remove_all(mProfile);
        WriteTracker("20060901",
            { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33000, "a.doc").Continuation().Text(),
                WordLine(32800, 33000, "b.doc").Detail().Text() });
        WriteTracker("20060903",
            { WordSlot(32400, 32700, "c.doc"), WordLine(32700, 33000, "c.doc").Continuation().Text(),
                WordSlot(33000, 33300, "d.doc") });
        WriteDay("20061010", "today");
    };
    fill();
    const auto answer = Json({ "sync", "--since", "2006-09-01" });
    EXPECT_EQ(answer.at("created"), 4);
    EXPECT_EQ(answer.at("extended"), 2);
    const auto made = Made();
    fill();
    std::map<std::string, int> sums;
    for (const auto* now : { "2006-09-01T23:59:59", "2006-09-03T23:59:59", "2006-10-10T17:00:00" }) {
        mNow = now;
        const auto one = nlohmann::json::parse(Run({ "sync", "--json" }).out);
        for (const auto* name : { "created", "extended", "detailed" }) {
            sums[name] += one.at(name).get<int>();
        }
    }
    for (const auto& [name, sum] : sums) {
        EXPECT_EQ(answer.at(name), sum) << name;
    }
    EXPECT_EQ(Made(), made);
}

TEST_F(SyncSinceTest, SyncSince_Again_TakesNothing)
{
    WriteDay("20060901", "old");
    WriteDay("20061010", "today");
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-01" }), 2);
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-01" }), 0);
    std::filesystem::rename(DataPath(Finished("20060901")), DataPath(Live("20060901")));
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-01" }), 0);
    EXPECT_EQ(Created({ "sync" }), 0);
    EXPECT_EQ(Made().size(), 2U);
}

TEST_F(SyncSinceTest, SyncSince_FilesBeforeTheDay_AreLeftOut)
{
    WriteDay("20060831", "before");
    WriteDay("20060901", "of the day");
    const auto result = Run({ "sync", "--json", "--since", "2006-09-01" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("created"), 1);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("leftOut"), nlohmann::json::array({ Live("20060831") }));
    EXPECT_THAT(Made(), ElementsAre(HasSubstr("of the day")));
}

TEST_F(SyncSinceTest, SyncSince_DayThatIsYoungEnough_ChangesNothing)
{
    WriteDay("20060918", "too old");
    for (const auto* day : { "2006-09-19", "2006-10-01", "today", "2007-01-01" }) {
        const auto result = Run({ "sync", "--json", "--since", day });
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(nlohmann::json::parse(result.out).at("leftOut"), nlohmann::json::array({ Live("20060918") })) << day;
    }
    EXPECT_EQ(Made().size(), 0U);
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-18" }), 1);
}

TEST_F(SyncSinceTest, SyncSince_Word_IsItsFirstDay)
{
    WriteDay("20060831", "before");
    WriteDay("20060901", "first day");
    EXPECT_EQ(Run({ "sync", "--quiet", "--since", "last-month" }).status, 0);
    EXPECT_THAT(Made(), ElementsAre(HasSubstr("first day")));
    EXPECT_EQ(Created({ "sync", "--since", "year" }), 1);
}

TEST_F(SyncSinceTest, SyncSince_NoDay_IsRefused)
{
    EXPECT_THAT(Refusal({ "sync", "--since", "once" }, 2), HasSubstr("--since can't be \"once\""));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(SyncSinceTest, SyncSince_KeptFiles_AreTakenFromThere)
{
    WriteDay("20060901", "live");
    std::filesystem::create_directories(DataPath("kept"));
    WriteData("kept/" + Live("20060901"), TrackerText({ WordSlot(33000, 33300, "kept") }));
    WriteData("kept/" + Live("20060901") + ".2", TrackerText({ WordSlot(34000, 34300, "kept beside it") }));
    WriteData("kept/" + Live("20060830"), TrackerText({ WordSlot(33000, 33300, "kept alone") }));
    EXPECT_EQ(Created({ "sync", "--since", "2006-08-01" }), 4);
    EXPECT_THAT(Made(),
        ElementsAre(HasSubstr("kept alone"), HasSubstr("live"), HasSubstr("kept"), HasSubstr("kept beside it")));
    EXPECT_TRUE(std::filesystem::is_empty(DataPath("kept")));
    EXPECT_EQ(Json({ "status" }).at("tooOld"), nlohmann::json::array());
}

TEST_F(SyncSinceTest, SyncSince_FileThatWasKeptForItsAge_IsTakenAndThenGoes)
{
    WriteDay("20061009", "of a day before");
    WriteDay("20061010", "kept");
    mNow = "2090-01-01T12:00:00";
    ASSERT_EQ(Run({ "projects", "--quiet" }).status, 0);
    ASSERT_TRUE(IsThere("kept/" + Live("20061010")));
    const auto result = Run({ "sync", "--json", "--since", "2006-10-10" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("created"), 1);
    EXPECT_THAT(Made(), ElementsAre(HasSubstr("kept")));
    EXPECT_FALSE(IsThere("kept/" + Live("20061010")));
    EXPECT_FALSE(IsThere(Live("20061010")));
    EXPECT_FALSE(IsThere(Finished("20061010"))) << "it is cleaned up after the import";
    EXPECT_TRUE(IsThere("kept/" + Live("20061009")));
}

TEST_F(SyncSinceTest, SyncSince_LiveFilesTooOldForTheStart_AreTakenBeforeTheCleanUp)
{
    WriteDay("20061001", "before");
    WriteDay("20061010", "old");
    mNow = "2090-01-01T12:00:00";
    const auto result = Run({ "sync", "--json", "--since", "2006-10-10" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("created"), 1);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("leftOut"), nlohmann::json::array({ Live("20061001") }));
    EXPECT_THAT(result.error, HasSubstr(DataPath("kept/" + Live("20061001"))));
    EXPECT_FALSE(IsThere(Live("20061010")));
    EXPECT_FALSE(IsThere("kept/" + Live("20061010")));
}

TEST_F(SyncSinceTest, SyncSince_UnreadableLines_AreNamedOfEachDay)
{
    WriteTracker("20060901", { "no slot", WordSlot(32400, 32700, "a.doc") });
    WriteTracker("20060902", { WordSlot(32400, 32700, "b.doc"), "no slot" });
    WriteTracker("20061010", { "no slot" });
    const auto result = Run({ "sync", "--json", "--since", "2006-09-01" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out).at("unread"),
        nlohmann::json::parse(R"([{"file":"tracker_granules20060901.out","line":2},
            {"file":"tracker_granules20060902.out","line":3},{"file":"tracker_granules20061010.out","line":2}])"));
    EXPECT_FALSE(IsThere(Live("20060901")));
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-01" }), 0);
}

TEST_F(SyncSinceTest, SyncSince_HistoryOfToday_Stays)
{
    WriteDay("20061010", "today");
    EXPECT_EQ(Created({ "sync" }), 1);
    const auto history = Text("TempodialHistory.out");
    ASSERT_THAT(history, HasSubstr("20061010"));
    WriteDay("20060901", "old");
    EXPECT_EQ(Created({ "sync", "--since", "2006-09-01" }), 1);
    EXPECT_EQ(Text("TempodialHistory.out"), history);
}

TEST_F(SyncSinceTest, SyncSince_DayOlderThanThoseRemembered_IsTakenOnce)
{
    constexpr int Remembered = 60;
    for (int day = 0; day < Remembered; ++day) {
        const auto ofMonth = std::to_string(101 + day % 30).substr(1);
        WriteDay((day < 30 ? "200606" : "200604") + ofMonth, "remembered");
    }
    EXPECT_EQ(Created({ "sync", "--since", "2006-04-01" }), Remembered);
    WriteDay("20060301", "older");
    EXPECT_EQ(Created({ "sync", "--since", "2006-03-01" }), 1);
    EXPECT_FALSE(IsThere(Live("20060301")));
    EXPECT_EQ(Made().size(), Remembered + 1U);
}

TEST_F(SyncSinceTest, SyncSince_KilledAtAnyPoint_IsMadeGoodByTheNext)
{
    const std::vector<std::string> days { "20060901", "20060902", "20061009", "20061010" };
    const auto fill = [&] {
        std::filesystem::remove_all(mProfile);
        for (const auto& day : days) {
            WriteTracker(day, { WordSlot(32400, 32700, day + "a"), WordSlot(33000, 33300, day + "b") });
        }
        std::filesystem::create_directories(DataPath("kept"));
        std::filesystem::rename(DataPath(Live("20060902")), DataPath("kept/" + Live("20060902")));
    };
    const Arguments sync { "sync", "--since", "2006-09-01" };
    fill();
    const auto calls = RunTempodialKilledAt(Whole(sync), 0);
    if (!calls) {
        GTEST_SKIP() << "this system forbids observation";
    }
    const int points = StopPoints(25, 200);
    for (int point = 1; point < points; ++point) {
        fill();
        EXPECT_EQ(RunTempodialKilledAt(Whole(sync), calls->systemCalls * point / points)->status, 137);
        const auto next = Json(sync);
        EXPECT_EQ(next.at("leftOut"), nlohmann::json::array());
        const auto made = Made();
        EXPECT_EQ(made.size(), 8U) << point;
        EXPECT_EQ(std::set<std::string>(made.begin(), made.end()).size(), 8U) << point;
        EXPECT_FALSE(IsThere(Live("20060901"))) << point;
        EXPECT_FALSE(IsThere(Live("20060902"))) << point;
        EXPECT_TRUE(std::filesystem::is_empty(DataPath("kept"))) << point;
        EXPECT_EQ(Created(sync), 0) << point;
    }
}

}
