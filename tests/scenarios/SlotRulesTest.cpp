#include "slots/ActivityWriter.h"
#include "slots/DayFile.h"
#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;

/// Ten in the morning, in slots.
constexpr int Ten = 120;

ActivitySlot Slot(int number, bool continues, const std::string& text, std::vector<std::string> details = {})
{
    const auto start = (Ten + number) * SlotSeconds;
    return { start, start + SlotSeconds, continues, { "Atlas", 0, text, "" }, std::move(details), false };
}

/// What files mean that are written by the rules, as the program's own import understands them.
class SlotRulesTest : public ProgramFixture
{
protected:
    /// Writes a day's file; with syncs in between, one after each line.
    void Write(const std::vector<std::string>& lines, bool syncsInBetween)
    {
        std::vector<std::string> written;
        for (const auto& line : lines) {
            written.push_back(line);
            if (syncsInBetween) {
                WriteTracker("20061010", written);
                Json({ "sync" });
            }
        }
        WriteTracker("20061010", written);
        Json({ "sync" });
    }
    /// The day's activities as times, subjects and texts.
    std::vector<std::string> Activities() const
    {
        std::vector<std::string> told;
        for (const auto& item : Json({ "list" })) {
            const auto time = [&item](const char* name) { return item.at(name).get<std::string>().substr(11, 5); };
            told.push_back(time("start") + "-" + time("end") + " " + item.at("subject").get<std::string>());
        }
        return told;
    }
    std::string BodyOfFirst() const { return Json({ "list" }).at(0).at("body"); }
};

using Lines = std::vector<std::string>;

}

TEST_F(SlotRulesTest, Details_HoweverManySyncs_LeaveTheTitle)
{
    for (const bool syncsInBetween : { false, true }) {
        std::filesystem::remove_all(mProfile);
        DayFile file;
        file.Add(Slot(0, false, "map", { "Slack: general" }));
        file.Add(Slot(1, true, "map", { "legend" }));
        file.Add(Slot(2, true, "map"));
        Write(file.TakeLines(), syncsInBetween);
        EXPECT_EQ(Activities(), Lines { "10:00-10:15 Atlas, \"map\"" });
        EXPECT_THAT(BodyOfFirst(), HasSubstr("\"Slack: general\""));
        EXPECT_THAT(BodyOfFirst(), HasSubstr("\"legend\""));
    }
}

TEST_F(SlotRulesTest, DetailOfAnotherProject_WhereverItStands_LeavesTheProject)
{
    for (const bool syncsInBetween : { false, true }) {
        for (int place = 0; place < 3; ++place) {
            std::filesystem::remove_all(mProfile);
            Json({ "projects", "set", "Riverside", "--subject", "riverside" });
            Json({ "projects", "set", "Maps", "--subject", "map" });
            DayFile file;
            for (int i = 0; i < 3; ++i) {
                file.Add(Slot(i, i > 0, "map", i == place ? Lines { "riverside.odt" } : Lines {}));
            }
            file.Add(Slot(3, false, "legend"));
            Write(file.TakeLines(), syncsInBetween);
            EXPECT_EQ(Activities(), (Lines { "10:00-10:15 [Maps] Atlas, \"map\"", "10:15-10:20 Atlas, \"legend\"" }));
        }
    }
}

TEST_F(SlotRulesTest, Midnight_NewestDayFirst_MakesTwoActivities)
{
    DayFile before;
    before.Add({ 86100, 86400, false, { "Atlas", 0, "map", "" }, {}, false });
    WriteTracker("20061009", before.TakeLines());
    DayFile behind;
    behind.Add({ 0, 300, true, { "Atlas", 0, "map", "" }, {}, false });
    behind.Add({ 300, 600, true, { "Atlas", 0, "map", "" }, {}, false });
    WriteTracker("20061010", behind.TakeLines());
    Json({ "sync" });
    EXPECT_EQ(Activities(), Lines { "00:00-00:10 Atlas, \"map\"" });
    EXPECT_EQ(Json({ "list", "--from", "2006-10-09" }).size(), 2U);
}

TEST_F(SlotRulesTest, PutBackClock_LinesOfTheSecondHour_AreNotWritten)
{
    DayFile file;
    file.Add(Slot(0, false, "map"));
    file.Add(Slot(1, true, "map"));
    EXPECT_FALSE(file.Add(Slot(0, false, "legend")));
    EXPECT_TRUE(file.Add(Slot(2, true, "map")));
    Write(file.TakeLines(), true);
    EXPECT_EQ(Activities(), Lines { "10:00-10:15 Atlas, \"map\"" });
}

TEST_F(SlotRulesTest, ExactTimes_AnyLength_KeepMinutesAndProject)
{
    DayFile file;
    file.AddExact(36007, 36607, { "Toggl", 0, "call", "Riverside" });
    file.AddExact(82800, 90000, { "Toggl", 0, "night", "" });
    Write(file.TakeLines(), false);
    const auto items = Json({ "list" });
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].at("duration"), 10);
    EXPECT_EQ(items[0].at("subject"), "[Riverside] Toggl, \"call\"");
    EXPECT_EQ(items[1].at("end"), "2006-10-11T01:00:00");
}

TEST_F(SlotRulesTest, HostileTexts_ComeToTheLogAsPlainOnes)
{
    DayFile file;
    file.Add(Slot(0, false, "\u202e\u58f2\u4e0a <&> \x01\U0001F600 \"q\""));
    file.Add(Slot(1, false, "None"));
    file.Add(Slot(2, false, std::string(10000, 'x')));
    Write(file.TakeLines(), false);
    const auto items = Json({ "list" });
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].at("properties").at("Description"), "\"\u58f2\u4e0a <&> \U0001F600 \"q\"\"");
    EXPECT_EQ(items[1].at("properties").at("Description"), "\"none\"");
    EXPECT_THAT(items[2].at("subject").get<std::string>(), Not(HasSubstr(std::string(200, 'x'))));
}

}
