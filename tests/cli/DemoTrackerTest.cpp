#include "cli/DemoTracker.h"

#include "base/Text.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

constexpr int SecondsOfSlot = 300;

struct Moment
{
    int hour, minute, second;
};

constexpr std::initializer_list<Moment> Moments { { 0, 0, 0 }, { 0, 4, 59 }, { 0, 5, 0 }, { 0, 7, 0 }, { 0, 31, 12 },
    { 6, 30, 0 }, { 8, 1, 0 }, { 9, 0, 0 }, { 10, 17, 30 }, { 12, 20, 0 }, { 12, 59, 59 }, { 17, 0, 0 }, { 19, 14, 3 },
    { 23, 59, 59 } };

Date At(int day, const Moment& moment)
{
    return Date::FromParts({ 2006, 10, day, moment.hour, moment.minute, moment.second });
}

/// A slot line taken apart: its elements with their texts as they stand.
class Slot
{
public:
    /// Nothing when the line isn't one element `slot` around simple elements in which no character of XML is bare.
    static std::optional<Slot> Read(std::string_view line)
    {
        Slot slot;
        if (!line.starts_with("<slot>") || !line.ends_with("</slot>")) {
            return std::nullopt;
        }
        line.remove_prefix(6);
        line.remove_suffix(7);
        while (!line.empty()) {
            const auto nameEnd = line.find('>');
            const auto textEnd = line.find('<', 1);
            if (line.front() != '<' || nameEnd == std::string_view::npos || textEnd == std::string_view::npos) {
                return std::nullopt;
            }
            const auto name = line.substr(1, nameEnd - 1);
            const auto text = line.substr(nameEnd + 1, textEnd - nameEnd - 1);
            const auto ending = "</" + std::string(name) + ">";
            if (name.empty() || !IsEscaped(text) || !line.substr(textEnd).starts_with(ending)) {
                return std::nullopt;
            }
            slot.mNodes.emplace(name, text);
            line.remove_prefix(textEnd + ending.size());
        }
        return slot;
    }

    bool Has(const std::string& name) const { return mNodes.contains(name); }
    std::string Node(const std::string& name) const { return Has(name) ? mNodes.at(name) : ""; }
    int Number(const std::string& name) const { return std::stoi(Node(name)); }

private:
    static bool IsEscaped(std::string_view text)
    {
        for (auto at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
            const auto entity = text.substr(at, text.find(';', at) - at + 1);
            if (entity != "&amp;" && entity != "&lt;" && entity != "&gt;" && !entity.starts_with("&#")) {
                return false;
            }
        }
        return text.find('>') == std::string_view::npos;
    }

    std::map<std::string, std::string> mNodes;
};

/// The slots of a file, whose first line is none and whose others all are.
std::vector<Slot> SlotsOf(const DemoFile& file)
{
    std::vector<Slot> slots;
    EXPECT_FALSE(Slot::Read(file.lines.at(0)));
    for (std::size_t i = 1; i < file.lines.size(); ++i) {
        const auto slot = Slot::Read(file.lines[i]);
        EXPECT_TRUE(slot) << file.lines[i];
        slots.push_back(slot.value_or(Slot()));
    }
    return slots;
}

template <class Check> void ForManyDemos(Check&& check)
{
    for (std::uint32_t seed = 0; seed < 8; ++seed) {
        for (const auto& moment : Moments) {
            // Seven days in a row, so that today is each day of the week.
            const auto now = At(static_cast<int>(seed % 7) + 10, moment);
            SCOPED_TRACE("seed " + std::to_string(seed) + ", " + now.DayKey() + " " + now.HourMinute());
            check(DemoTracker(seed, now), now);
        }
    }
}

}

TEST(DemoTrackerTest, Files_AnySeedAndMoment_HoldWellFormedSlotsInOrder)
{
    ForManyDemos([](const DemoTracker& tracker, Date now) {
        std::string lastName;
        for (const auto& file : tracker.Files(21)) {
            EXPECT_LT(lastName, file.name);
            lastName = file.name;
            const bool isToday = file.name == "tracker_granules" + now.DayKey() + ".out";
            int lastEnd = 0;
            const auto slots = SlotsOf(file);
            for (const auto& line : slots) {
                const auto begin = line.Number("StartTime");
                const auto end = line.Number("EndTime");
                EXPECT_LT(begin, end);
                EXPECT_EQ(end % SecondsOfSlot, 0);
                EXPECT_LE(end, isToday ? now.SecondOfDay() : 86400);
                if (line.Has("Detail")) {
                    EXPECT_EQ(end, lastEnd);
                } else {
                    EXPECT_EQ(end - begin, SecondsOfSlot);
                    EXPECT_GT(end, lastEnd);
                }
                if (line.Has("Continuation")) {
                    EXPECT_EQ(begin, lastEnd);
                }
                lastEnd = end;
            }
            if (!slots.empty()) {
                EXPECT_FALSE(slots.back().Has("Detail")) << "would be taken again at each sync";
            }
            for (std::size_t i = 1; i < slots.size(); ++i) {
                if (slots[i - 1].Has("Detail") && !slots[i].Has("Detail")) {
                    EXPECT_TRUE(slots[i].Has("Continuation")) << "would leave its title to a detail";
                }
            }
        }
    });
}

TEST(DemoTrackerTest, Files_Today_HasWorkUpToNow)
{
    ForManyDemos([](const DemoTracker& tracker, Date now) {
        const auto files = tracker.Files(1);
        ASSERT_EQ(files.size(), 1U);
        EXPECT_EQ(files.front().name, "tracker_granules" + now.DayKey() + ".out");
        const auto slots = static_cast<int>(now.SecondOfDay()) / SecondsOfSlot;
        if (slots == 0) {
            EXPECT_EQ(files.front().lines.size(), 1U);
        } else {
            const auto written = SlotsOf(files.front());
            ASSERT_FALSE(written.empty());
            EXPECT_EQ(written.back().Number("EndTime"), slots * SecondsOfSlot);
        }
    });
}

TEST(DemoTrackerTest, Files_ThreeWeeks_HoldAllThatALifeHas)
{
    ForManyDemos([](const DemoTracker& tracker, Date now) {
        std::set<std::string> kinds;
        bool composed = false;
        bool read = false;
        bool continues = false;
        bool hasDetail = false;
        bool hasProject = false;
        bool hasUrl = false;
        bool isForeign = false;
        bool onWeekend = false;
        bool hasLunch = false;
        const auto files = tracker.Files(21);
        for (const auto& file : files) {
            const auto key = Mid(file.name, Length("tracker_granules") + 1, 8);
            const auto day = Date::FromTexts(Left(key, 4), std::stoi(Mid(key, 5, 2)), Mid(key, 7, 2));
            EXPECT_GT(DaysBetween(day, now), -1);
            EXPECT_LT(DaysBetween(day, now), 21);
            onWeekend = onWeekend || day.Weekday() == 1 || day.Weekday() == 7;
            int lastEnd = 0;
            for (const auto& line : SlotsOf(file)) {
                kinds.insert(line.Node("AppType"));
                composed = composed || line.Node("OutlookDirection") == "composed";
                read = read || (line.Has("OutlookFrom") && line.Node("OutlookDirection") != "composed");
                continues = continues || line.Has("Continuation");
                hasDetail = hasDetail || line.Has("Detail");
                hasProject = hasProject || line.Has("Project");
                hasUrl = hasUrl || line.Has("URL");
                isForeign = isForeign || line.Node("OutlookFrom") == "Jos&#233; &#193;lvarez";
                hasLunch
                    = hasLunch || (lastEnd >= 43200 && lastEnd <= 46800 && line.Number("StartTime") - lastEnd >= 1800);
                lastEnd = line.Number("EndTime");
            }
        }
        EXPECT_EQ(kinds, (std::set<std::string> { "0", "1", "2", "3", "4", "5", "6", "7", "8", "9" }));
        EXPECT_TRUE(composed && read && continues && hasDetail && hasProject && hasUrl && isForeign);
        EXPECT_TRUE(onWeekend);
        EXPECT_TRUE(hasLunch);
        EXPECT_GT(files.size(), 13U);
    });
}

TEST(DemoTrackerTest, Files_SameSeedAndMoment_AreTheSame)
{
    const auto now = At(10, { 17, 0, 0 });
    const auto lines = [&](std::uint32_t seed, std::int32_t days) {
        std::vector<std::string> all;
        for (const auto& file : DemoTracker(seed, now).Files(days)) {
            all.push_back(file.name);
            all.insert(all.end(), file.lines.begin(), file.lines.end());
        }
        return all;
    };
    EXPECT_EQ(lines(1, 21), lines(1, 21));
    EXPECT_NE(lines(1, 21), lines(2, 21));
}

TEST(DemoTrackerTest, Files_FewerDays_AreTheLastOfMore)
{
    const auto now = At(10, { 17, 0, 0 });
    const auto many = DemoTracker(3, now).Files(21);
    const auto few = DemoTracker(3, now).Files(4);
    ASSERT_LT(few.size(), many.size());
    for (std::size_t i = 0; i < few.size(); ++i) {
        const auto& same = many[many.size() - few.size() + i];
        EXPECT_EQ(few[i].name, same.name);
        EXPECT_EQ(few[i].lines, same.lines);
    }
}

}
