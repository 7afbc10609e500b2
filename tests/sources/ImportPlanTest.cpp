#include "sources/ImportPlan.h"

#include "slots/SlotTimes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

const Date Monday = Date::FromYearMonthDay(2026, 11, 2);
constexpr std::int64_t Minute = 60;
constexpr std::int64_t Ten = 36000;

class ImportPlanTest : public testing::Test
{
protected:
    /// Adds a window on a day.
    void See(Date day, std::int64_t begin, std::int64_t end, const std::string& program, const std::string& title)
    {
        mData.computers.resize(1);
        Sighting sighting;
        sighting.program = program;
        sighting.title = title;
        mData.windows.push_back({ day.Seconds() + begin, day.Seconds() + end, 0, mData.sightings.NumberOf(sighting) });
    }
    void Enter(Date day, std::int64_t begin, std::int64_t end, const std::string& text, const std::string& project)
    {
        SourceEntry entry;
        entry.start = day.Seconds() + begin;
        entry.end = day.Seconds() + end;
        entry.words.program = "Toggl";
        entry.words.title = text;
        entry.project = project;
        mData.entries.push_back(entry);
    }
    ImportPlan Plan()
    {
        ImportPlan plan(mRange, mViews);
        plan.Take(mData);
        return plan;
    }
    ImportPlan::Days Days() { return Plan().Make(mTaken, mLedger); }

    SourceData mData;
    ImportRange mRange { "toggl", std::nullopt, std::nullopt, Monday.AddDays(2).AddSeconds(Ten) };
    ViewMaker mViews { ProgramTable({}),
        PrivacyRules({ { TextPattern("hidden"), std::nullopt, PrivacyRule::Action::Drop, "" } }) };
    Presence mTaken;
    ImportLedger mLedger;
};

}

TEST_F(ImportPlanTest, Make_Windows_BecomeSlotsOfTheDaysThatAreOver)
{
    See(Monday, Ten, Ten + 10 * Minute, "atlas", "map");
    See(Monday.AddDays(2), 0, 10 * Minute, "atlas", "map");
    See(Monday.AddDays(2), Ten + Minute, Ten + 10 * Minute, "atlas", "map");
    See(Date::FromYearMonthDay(1989, 1, 1), 0, 10 * Minute, "atlas", "map");
    const auto plan = Plan();
    const auto days = plan.Make(mTaken, mLedger);
    ASSERT_EQ(days.size(), 1U);
    const auto day = days.at(Monday);
    EXPECT_EQ(day.slots, 2);
    EXPECT_EQ(day.lines.size(), 2U);
    EXPECT_EQ(day.beginning, 1);
    EXPECT_EQ(day.continuing, 1);
    EXPECT_EQ(day.minutesPresent, 10);
    EXPECT_EQ(day.minutesWritten, 10);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Today), 1);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Future), 1);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Before1990), 1);
}

TEST_F(ImportPlanTest, Make_NewestWindow_IsInFront)
{
    See(Monday, Ten, Ten + 15 * Minute, "atlas", "map");
    See(Monday, Ten + 5 * Minute, Ten + 10 * Minute, "ledger", "sum");
    const auto days = Days();
    ASSERT_EQ(days.at(Monday).lines.size(), 3U);
    EXPECT_NE(days.at(Monday).lines[1].find("Ledger"), std::string::npos);
    EXPECT_NE(days.at(Monday).lines[2].find("Atlas"), std::string::npos);
}

TEST_F(ImportPlanTest, Make_TimeTakenOrWrittenBefore_IsLeftOutWhole)
{
    See(Monday, Ten, Ten + 20 * Minute, "atlas", "map");
    mTaken.Add(Monday.Seconds() + Ten + 9 * Minute + 59, Monday.Seconds() + Ten + 10 * Minute);
    LedgerDay written;
    written.slots.set(123);
    mLedger.Plan(Monday, written, "1");
    mLedger.Close(Monday, true);
    const auto day = Days().at(Monday);
    EXPECT_EQ(day.slots, 2);
    EXPECT_EQ(day.taken, 1);
    EXPECT_EQ(day.before, 1);
    EXPECT_EQ(day.minutesPresent, 20);
    EXPECT_EQ(day.minutesWritten, 10);
    // The second of them stands behind a gap.
    EXPECT_EQ(day.beginning, 2);
    EXPECT_EQ(day.written.slots.count(), 2U);
}

TEST_F(ImportPlanTest, Make_Range_HoldsBothEnds)
{
    for (int i = 0; i < 2; ++i) {
        See(Monday.AddDays(i), Ten, Ten + 5 * Minute, "atlas", "map");
        Enter(Monday.AddDays(i), Ten + 60 * Minute, Ten + 65 * Minute, "call", "");
    }
    mRange.from = Monday.AddDays(1);
    mRange.to = Monday.AddDays(1);
    const auto plan = Plan();
    const auto days = plan.Make(mTaken, mLedger);
    ASSERT_EQ(days.size(), 1U);
    EXPECT_EQ(days.begin()->first, Monday.AddDays(1));
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Outside), 2);
}

TEST_F(ImportPlanTest, Make_Entries_KeepTimesAndProjects)
{
    Enter(Monday, Ten + 7, Ten + 30 * Minute, "call", "Riverside");
    Enter(Monday, Ten + 7, Ten + 30 * Minute, "call", "Riverside");
    Enter(Monday, Ten + 7, Ten + 30 * Minute, "other", "no project");
    Enter(Monday, 86000, 90000, "", "Night");
    Enter(Monday, 86000, 90000, "", "");
    const auto plan = Plan();
    const auto day = plan.Make(mTaken, mLedger).at(Monday);
    EXPECT_EQ(day.entries, 4);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Duplicate), 1);
    EXPECT_EQ(day.minutesPresent, 30 + 30 + 67 + 67);
    EXPECT_EQ(day.minutesWritten, day.minutesPresent);
    EXPECT_EQ(day.lines[0],
        "<slot><StartTime>36007</StartTime><EndTime>37800</EndTime><AppType>0</AppType><AppName>Toggl</AppName>"
        "<WindowText>call</WindowText><Project>Riverside</Project></slot>");
    EXPECT_EQ(day.lines[1].find("<Project>"), std::string::npos);
    EXPECT_NE(day.lines[2].find("(no description)"), std::string::npos);
    EXPECT_NE(day.lines[3].find("<WindowText>Night</WindowText><Project>Night</Project>"), std::string::npos);
}

TEST_F(ImportPlanTest, Make_EntriesWrittenBefore_AreKnownByWhatTheySay)
{
    Enter(Monday, Ten, Ten + 30 * Minute, "call", "");
    const auto first = Days().at(Monday);
    mLedger.Plan(Monday, first.written, "1");
    mLedger.Close(Monday, true);
    Enter(Monday, Ten, Ten + 30 * Minute, "other", "");
    const auto day = Days().at(Monday);
    EXPECT_EQ(day.before, 1);
    EXPECT_EQ(day.entries, 1);
}

TEST_F(ImportPlanTest, Make_EntryWrittenBeforeInOtherWords_DoesNotComeBack)
{
    Enter(Monday, Ten, Ten + 30 * Minute, "call", "Riverside");
    Enter(Monday, Ten + 60 * Minute, Ten + 90 * Minute, "one", "A");
    Enter(Monday, Ten + 60 * Minute, Ten + 90 * Minute, "two", "B");
    mLedger.Plan(Monday, Days().at(Monday).written, "1");
    mLedger.Close(Monday, true);
    mRange.withoutProjects = true;
    EXPECT_EQ(Days().at(Monday).before, 3);
    EXPECT_EQ(Days().at(Monday).entries, 0);
    Enter(Monday, Ten, Ten + 31 * Minute, "call", "");
    Enter(Monday, Ten + 60 * Minute, Ten + 90 * Minute, "three", "");
    EXPECT_EQ(Days().at(Monday).before, 3);
    EXPECT_EQ(Days().at(Monday).entries, 2);
}

TEST_F(ImportPlanTest, Make_WithoutProjects_WritesNone)
{
    mRange.withoutProjects = true;
    Enter(Monday, Ten, Ten + 30 * Minute, "call", "Riverside");
    mViews = ViewMaker(ProgramTable({}),
        PrivacyRules({ { TextPattern("atlas"), std::nullopt, PrivacyRule::Action::Project, "Riverside" } }));
    See(Monday, Ten - 60 * Minute, Ten - 30 * Minute, "atlas", "map");
    const auto lines = [this] { return Days().at(Monday).lines; };
    ASSERT_EQ(lines().size(), 7U);
    EXPECT_THAT(lines(), testing::Each(testing::Not(testing::HasSubstr("<Project>"))));
    mRange.withoutProjects = false;
    EXPECT_THAT(lines(), testing::Each(testing::HasSubstr("<Project>Riverside</Project>")));
}

TEST_F(ImportPlanTest, Take_DroppedAndShortTimes_AreCounted)
{
    See(Monday, Ten, Ten + 10 * Minute, "hidden", "x");
    See(Monday, Ten + 20 * Minute, Ten + 22 * Minute, "atlas", "map");
    const auto plan = Plan();
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Dropped), 1);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::UnderHalf), 1);
    EXPECT_EQ(plan.Make(mTaken, mLedger).at(Monday).slots, 0);
}

TEST_F(ImportPlanTest, Take_DaysThatAreNotInQuestion_AreNotCounted)
{
    for (int i = -1; i <= 2; ++i) {
        // Today's window has begun yesterday.
        const std::int64_t begin = i == 2 ? -Minute : 20 * Minute;
        See(Monday.AddDays(i), begin, 22 * Minute, "atlas", "map");
        See(Monday.AddDays(i), 30 * Minute, 32 * Minute, "hidden", "x");
    }
    mData.computers[0].isTold = true;
    for (int i = -1; i <= 2; ++i) {
        mData.computers[0].presence.Add(Monday.AddDays(i).Seconds(), Monday.AddDays(i).Seconds() + Minute);
        mData.computers[0].presence.Add(
            Monday.AddDays(i).Seconds() + 31 * Minute, Monday.AddDays(i).Seconds() + 32 * Minute);
    }
    mRange.from = Monday;
    mRange.to = Monday.AddDays(5);
    const auto plan = Plan();
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Outside), 2);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::NoPresence), 2);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Dropped), 2);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::UnderHalf), 2);
    const auto days = plan.Make(mTaken, mLedger);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_EQ(days.begin()->first, Monday);
    EXPECT_EQ(days.begin()->second.minutesPresent, 1);
}

TEST_F(ImportPlanTest, Take_WindowsOverMidnight_AreSeenOnBothDays)
{
    See(Monday, 86400 - 10 * Minute, 86400 + 10 * Minute, "atlas", "map");
    See(Monday, 86400 - 5 * Minute, 86400 + 5 * Minute, "hidden", "x");
    const auto plan = Plan();
    const auto days = plan.Make(mTaken, mLedger);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Dropped), 1);
    ASSERT_EQ(days.size(), 2U);
    for (const auto& [date, day] : days) {
        EXPECT_EQ(day.slots, 1);
        EXPECT_EQ(day.beginning, 1);
        EXPECT_EQ(day.minutesPresent, 5);
    }
}

TEST_F(ImportPlanTest, Make_WindowsThatComeAtOnce_LeaveTheShorterInFront)
{
    See(Monday, Ten, Ten + 5 * Minute, "ledger", "sum");
    See(Monday, Ten, Ten + 10 * Minute, "atlas", "map");
    const auto days = Days();
    ASSERT_EQ(days.at(Monday).lines.size(), 2U);
    EXPECT_NE(days.at(Monday).lines[0].find("Ledger"), std::string::npos);
    EXPECT_NE(days.at(Monday).lines[1].find("Atlas"), std::string::npos);
}

TEST_F(ImportPlanTest, Make_WindowsOfMoreThanADay_EndAtTheNextOneOrAreLeftOut)
{
    constexpr std::int64_t Millennia = 2000LL * 366 * 86400;
    See(Monday, Ten, Ten + Millennia, "atlas", "map");
    See(Monday, Ten + 10 * Minute, Ten + 20 * Minute, "ledger", "sum");
    See(Monday, Ten + 30 * Minute, Ten + Millennia, "quarry", "stone");
    const auto plan = Plan();
    const auto days = plan.Make(mTaken, mLedger);
    ASSERT_EQ(days.size(), 1U);
    EXPECT_EQ(days.at(Monday).slots, 4);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::Cut), 1);
    EXPECT_EQ(plan.LeftOut().Count(Skipped::TooLong), 1);
}

TEST_F(ImportPlanTest, Make_TwoComputers_ShareTheTime)
{
    See(Monday, Ten, Ten + 10 * Minute, "atlas", "map");
    See(Monday, Ten + 5 * Minute, Ten + 10 * Minute, "ledger", "sum");
    mData.computers.resize(2);
    mData.windows.back().computer = 1;
    const auto day = Days().at(Monday);
    EXPECT_EQ(day.minutesPresent, 10);
    ASSERT_EQ(day.lines.size(), 2U);
    EXPECT_NE(day.lines[1].find("Ledger"), std::string::npos);
}

}
