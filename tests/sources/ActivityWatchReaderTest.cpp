#include "sources/SourceTest.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

std::string Event(const std::string& time, const std::string& seconds, const std::string& data)
{
    return R"({"id":1,"timestamp":"2026-11-02T)" + time + R"(:00.500000+00:00","duration":)" + seconds + R"(,"data":{)"
        + data + "}}";
}

std::string Bucket(const std::string& type, const std::string& host, const std::string& events)
{
    return "\"" + type + host + R"(":{"id":"x","type":")" + type + R"(","client":"c","hostname":")" + host
        + R"(","created":"2026-01-01","data":{},"events":[)" + events + "]}";
}

std::string Export(const std::string& buckets)
{
    return "{\"buckets\":{" + buckets + "}}";
}

constexpr auto Present = R"("status":"not-afk")";
constexpr auto Plan = R"("app":"firefox","title":"Plan - Mozilla Firefox")";

}

class ActivityWatchReaderTest : public SourceTest
{
};

TEST_F(ActivityWatchReaderTest, Read_OverlappingIdleEvents_AreAUnion)
{
    const auto data = Read("activitywatch",
        Export(Bucket("afkstatus", "box",
                   Event("10:00", "600", Present) + "," + Event("10:05", "600", Present) + ","
                       + Event("09:00", "3000", R"("status":"afk")"))
            + "," + Bucket("currentwindow", "box", Event("10:00", "900", Plan))));
    ASSERT_EQ(data.computers.size(), 1U);
    EXPECT_TRUE(data.computers[0].isTold);
    EXPECT_EQ(data.computers[0].presence.Seconds(), 900);
    ASSERT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(Moment(data.windows[0].begin), "20261102 11:00");
    EXPECT_EQ(data.sightings[0].program, "firefox");
}

TEST_F(ActivityWatchReaderTest, Read_SameEventAgain_CountsOnceTheLongest)
{
    const auto data = Read("activitywatch",
        Export(Bucket("currentwindow", "box", Event("10:00", "60", Plan) + "," + Event("10:00", "90.4", Plan))));
    ASSERT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(data.windows[0].end - data.windows[0].begin, 90);
    EXPECT_EQ(data.skipped.Count(Skipped::Duplicate), 1);
    EXPECT_FALSE(data.computers[0].isTold);
}

TEST_F(ActivityWatchReaderTest, Read_DaysLongEvents_AreCutOrLeftOut)
{
    const auto data = Read("activitywatch",
        Export(Bucket(
            "currentwindow", "box", Event("10:00", "90000", Plan) + "," + Event("11:00", "90000", R"("app":"a")"))));
    ASSERT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(data.windows[0].end - data.windows[0].begin, 3600);
    EXPECT_EQ(data.skipped.Count(Skipped::Cut), 1);
    EXPECT_EQ(data.skipped.Count(Skipped::TooLong), 1);
}

TEST_F(ActivityWatchReaderTest, Read_PagesOfTheSameTime_GiveSiteAndPrivacy)
{
    const auto data = Read("activitywatch",
        Export(Bucket("currentwindow", "box",
                   Event("10:00", "60", Plan) + ","
                       + Event("10:02", "60", R"("app":"firefox","title":"Secret - Mozilla Firefox")"))
            + ","
            + Bucket("web.tab.current", "box",
                Event("10:00", "60",
                    R"("url":"https://wiki.example.com/a?b","title":"Plan","audible":false,"incognito":false)")
                    + ","
                    + Event("10:02", "60", R"("url":"https://x.example.com/","title":"Secret","incognito":true)"))));
    ASSERT_EQ(data.sightings.size(), 2U);
    EXPECT_EQ(data.sightings[0].host, "wiki.example.com");
    EXPECT_FALSE(data.sightings[0].isPrivate);
    EXPECT_TRUE(data.sightings[1].isPrivate);
}

TEST_F(ActivityWatchReaderTest, Read_OtherBucketsAndBadEvents_AreCounted)
{
    const auto data = Read("activitywatch",
        Export(Bucket("app.editor.activity", "box", Event("10:00", "60", R"("file":"x")")) + ","
            + Bucket("currentwindow", "box",
                R"({"timestamp":"yesterday","duration":1,"data":{}},{"timestamp":"2026-11-02T10:00:00Z","duration":-5,"data":{}})")));
    EXPECT_EQ(data.skipped.Count(Skipped::Bucket), 1);
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 2);
    EXPECT_TRUE(data.windows.empty());
    ASSERT_EQ(data.remarks.size(), 1U);
    EXPECT_THAT(data.remarks[0], HasSubstr("\"app.editor.activitybox\""));
    EXPECT_THAT(data.remarks[0], HasSubstr("\"app.editor.activity\""));
}

TEST_F(ActivityWatchReaderTest, Read_ManyOtherBuckets_AreNamedUpToALimit)
{
    std::string buckets;
    for (int i = 0; i < 25; ++i) {
        buckets += (i == 0 ? "" : ",") + Bucket("media" + std::to_string(i), "box", "");
    }
    const auto data = Read("activitywatch", Export(buckets));
    EXPECT_EQ(data.skipped.Count(Skipped::Bucket), 25);
    ASSERT_EQ(data.remarks.size(), 21U);
    EXPECT_THAT(data.remarks.back(), HasSubstr("5 more"));
}

TEST_F(ActivityWatchReaderTest, Read_PagesOfOneMoment_AreDuplicatesOnlyWhenAllIsTheSame)
{
    const auto page = [](const std::string& path) {
        return Event(
            "10:00", "60", R"("url":"https://a.example.com/)" + path + R"(","title":")" + std::string(50, 'x') + "\"");
    };
    const auto data = Read("activitywatch",
        Export(Bucket("web.tab.current", "box", page("1") + "," + page("2") + "," + page("1")) + ","
            + Bucket("currentwindow", "box", Event("10:00", "60", Plan))));
    EXPECT_EQ(data.skipped.Count(Skipped::Duplicate), 1);
}

TEST_F(ActivityWatchReaderTest, Read_TypeBehindTheEvents_IsTheSame)
{
    const auto data = Read("activitywatch",
        R"({"buckets":{"w":{"events":[)" + Event("10:00", "60", Plan)
            + R"(],"type":"currentwindow","hostname":"box"}}})");
    ASSERT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(data.sightings[data.windows[0].sighting].program, "firefox");
}

TEST_F(ActivityWatchReaderTest, Read_Depth_IsLimited)
{
    const auto deep = R"("app":"a","title":"t","more":)" + std::string(30, '[') + std::string(30, ']');
    const auto data = Read("activitywatch", Export(Bucket("currentwindow", "box", Event("10:00", "60", deep))));
    EXPECT_EQ(data.skipped.Count(Skipped::TooDeep), 1);
    EXPECT_EQ(data.windows.size(), 1U);
}

TEST_F(ActivityWatchReaderTest, Read_WhatIsNoExport_IsRefused)
{
    EXPECT_EQ(Refusal("activitywatch", R"({"buckets":{}})"), "");
    EXPECT_THAT(Refusal("activitywatch", "[]"), HasSubstr("no export of ActivityWatch"));
    EXPECT_THAT(Refusal("activitywatch", "{}"), HasSubstr("no export of ActivityWatch"));
    EXPECT_THAT(Breakage("activitywatch", R"({"buckets":{"a":{"type":"currentwi)"), HasSubstr("cut off"));
    EXPECT_THAT(Breakage("activitywatch", R"({"buckets":{]})"), HasSubstr("cut off or damaged, at byte 13"));
    EXPECT_THAT(Refusal("activitywatch", "timestamp,duration\n"), HasSubstr("no export of ActivityWatch"));
    EXPECT_THAT(Refusal("arbtt", "BEGIN:VCALENDAR\n"), HasSubstr("no dump of arbtt"));
}

TEST_F(ActivityWatchReaderTest, Arbtt_Samples_StandForTheTimeBeforeThem)
{
    const auto sample = [](const std::string& time, int inactive) {
        return R"({"date":"2026-11-02T)" + time + R"(:00Z","rate":60000,"inactive":)" + std::to_string(inactive)
            + R"(,"windows":[{"active":true,"hidden":false,"title":"Plan","program":"atlas","desktop":"1"},
                {"active":false,"hidden":true,"title":"Other","program":"x"}],"desktop":"1"})";
    };
    const auto data = Read("arbtt",
        "[" + sample("10:01", 0) + "," + sample("10:02", 60000) + "," + sample("10:03", 120000) + ","
            + sample("10:04", 181000) + "]");
    EXPECT_EQ(data.computers[0].presence.Seconds(), 59);
    EXPECT_EQ(data.windows.size(), 4U);
    EXPECT_EQ(Moment(data.windows[0].begin), "20261102 11:00");
    EXPECT_EQ(data.sightings.size(), 1U);
    EXPECT_EQ(data.skipped.Count(Skipped::Hidden), 4);
    EXPECT_EQ(Refusal("arbtt", "[]"), "");
    EXPECT_THAT(Refusal("arbtt", "{}"), HasSubstr("no dump of arbtt"));
}

TEST_F(ActivityWatchReaderTest, Read_BrokenLetters_AreLeftOutOfTheirTexts)
{
    const auto data = Read("activitywatch",
        Export(Bucket("currentwindow", "box",
            Event("10:00", "60", R"("app":"a","title":"x\ud83dy")") + ","
                + Event("10:01", "60", "\"app\":\"b\",\"title\":\"x\xff\xc3y\"") + ","
                + Event("10:02", "60", R"("app":"c","title":"\ud83d\ude00")") + ","
                + Event("10:03", "60", "\"app\":\"d\",\"title\":\"x\\q\ty\""))));
    ASSERT_EQ(data.windows.size(), 4U);
    std::vector<std::string> titles;
    for (const auto& window : data.windows) {
        titles.push_back(data.sightings[window.sighting].title);
    }
    EXPECT_THAT(titles, testing::ElementsAre("xy", "xy", "\U0001f600", "x\\q y"));
    EXPECT_TRUE(data.skipped.Counts().empty());
}

TEST_F(ActivityWatchReaderTest, Read_LongTextCutInALetter_StaysUtf8)
{
    const auto twice = [](const std::string& text) {
        std::string all;
        for (std::size_t i = 0; i < MostFieldBytes / 2; ++i) {
            all += text;
        }
        return all;
    };
    const auto data = Read("activitywatch",
        Export(Bucket("currentwindow", "box",
            Event("10:00", "60", R"("app":"a","title":"x)" + twice("\u00fc") + "\"") + ","
                + Event("10:01", "60", R"("app":"b","title":"xyz)" + twice(R"(\ud83d\ude00)") + "\""))));
    ASSERT_EQ(data.windows.size(), 2U);
    EXPECT_EQ(data.skipped.Count(Skipped::TooBig), 2);
    for (const auto& [window, begin, letter] : { std::tuple(0U, "x", "\u00fc"), { 1U, "xyz", "\U0001f600" } }) {
        const auto title = data.sightings[data.windows[window].sighting].title;
        const std::string whole = begin + twice(letter);
        const auto letters = (MostFieldBytes - std::string(begin).size()) / std::string(letter).size();
        EXPECT_EQ(title, whole.substr(0, std::string(begin).size() + letters * std::string(letter).size())) << begin;
    }
}

TEST_F(ActivityWatchReaderTest, Read_CutOffInALetterAtAnyPlace_IsSaid)
{
    // Files are read in pieces of 64 KiB; here one ends, and the file with it, within a letter of four bytes.
    constexpr std::size_t PieceBytes = std::size_t { 64 } << 10;
    for (std::size_t bytes = 1; bytes <= 4; ++bytes) {
        auto text = R"({"buckets":{"a":{"type":"currentwindow","events":[{"data":{"title":")";
        auto file = text + std::string(PieceBytes - bytes - std::string(text).size(), 'x');
        file += std::string("\U0001f600").substr(0, bytes);
        ASSERT_EQ(file.size(), PieceBytes);
        EXPECT_THAT(Breakage("activitywatch", file), HasSubstr("cut off")) << bytes;
    }
}

TEST_F(ActivityWatchReaderTest, Read_LengthsThatAreNoNumbers_AreUnreadableEventsAlone)
{
    const auto data = Read("activitywatch",
        Export(Bucket("currentwindow", "box",
            Event("10:00", "NaN", Plan) + "," + Event("10:01", "1e999", Plan) + "," + Event("10:02", "-Infinity", Plan)
                + "," + Event("10:03", "6.0e1", Plan))));
    EXPECT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 3);
}

TEST_F(ActivityWatchReaderTest, Read_EventsWithoutLength_AreCounted)
{
    const auto data = Read("activitywatch",
        Export(Bucket("currentwindow", "box", Event("10:00", "0", Plan) + "," + Event("10:01", "60", Plan))));
    EXPECT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(data.skipped.Count(Skipped::ZeroLength), 1);
}

}
