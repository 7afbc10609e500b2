#include "host/store/LineMemory.h"

#include "base/Date.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

class LineMemoryTest : public testing::Test
{
protected:
    /// Has lines of a day remembered.
    void Remember(const std::string& day, const std::vector<std::string>& lines)
    {
        mMemory.BeginDay(day, -1);
        for (const auto& line : lines) {
            EXPECT_FALSE(mMemory.IsKnown(line));
            mMemory.Reached();
        }
        mMemory.Keep();
    }
    bool Knows(const std::string& day, const std::string& line)
    {
        LineMemory memory(mMailbox);
        memory.BeginDay(day, -1);
        return memory.IsKnown(line);
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    LineMemory mMemory { mMailbox };
};

TEST_F(LineMemoryTest, IsKnown_LinesOfADay_AreKnownOnThatDay)
{
    Remember("20061010", { "a", "b" });
    EXPECT_TRUE(Knows("20061010", "a"));
    EXPECT_TRUE(Knows("20061010", "b"));
    EXPECT_FALSE(Knows("20061010", "c"));
    EXPECT_FALSE(Knows("20061009", "a"));
}

TEST_F(LineMemoryTest, IsKnown_EqualLines_AreAsManyAsWereReached)
{
    Remember("20061010", { "a", "a" });
    mMemory.BeginDay("20061010", -1);
    EXPECT_TRUE(mMemory.IsKnown("a"));
    EXPECT_TRUE(mMemory.IsKnown("a"));
    EXPECT_FALSE(mMemory.IsKnown("a"));
}

TEST_F(LineMemoryTest, BeginDay_FurtherTimes_AnswersTheFirstCount)
{
    EXPECT_EQ(mMemory.BeginDay("20061010", 300), 300);
    EXPECT_EQ(mMemory.BeginDay("20061010", 400), 400) << "nothing was reached yet";
    mMemory.IsKnown("a");
    mMemory.Reached();
    EXPECT_EQ(mMemory.BeginDay("20061009", 900), 900);
    EXPECT_EQ(mMemory.BeginDay("20061010", 500), 400);
}

TEST_F(LineMemoryTest, Discard_LetsGoWhatWasNotWritten)
{
    mMemory.BeginDay("20061010", -1);
    mMemory.IsKnown("a");
    mMemory.Reached();
    mMemory.Discard();
    mMemory.Keep();
    EXPECT_FALSE(Knows("20061010", "a"));
}

TEST_F(LineMemoryTest, ForgetLines_PositionIsKept_KeepsThem)
{
    Remember("20061010", { "a" });
    TestDatabase(mMailbox).Execute("INSERT INTO import_position (day, count, lines) VALUES ('20061009', 100, 1)");
    mMemory.ForgetLines();
    EXPECT_TRUE(Knows("20061010", "a"));
    // One of an import that began with a history: it was taken away since.
    TestDatabase(mMailbox).Execute("UPDATE import_position SET history = '|20061009_00050'");
    mMemory.ForgetLines();
    EXPECT_FALSE(Knows("20061010", "a"));
}

TEST_F(LineMemoryTest, ForgetOldDays_KeepsTheNewestSixty)
{
    const auto day = Date::FromYearMonthDay(2006, 8, 11);
    for (int i = 0; i < 61; ++i) {
        Remember(day.AddDays(i).DayKey(), { "a", "b" });
        Remember(day.AddDays(i).DayKey(), { "c" });
    }
    mMemory.ForgetOldDays();
    EXPECT_FALSE(Knows("20060811", "a"));
    EXPECT_TRUE(Knows("20060812", "a"));
    EXPECT_TRUE(Knows("20061010", "c"));
}

TEST_F(LineMemoryTest, BeginDay_DamagedHashes_AreDamage)
{
    Remember("20061010", { "a" });
    TestDatabase(mMailbox).Execute("INSERT INTO import_line VALUES ('20061010', -1, x'0102')");
    EXPECT_EQ(FailureNumber([&] { Knows("20061010", "a"); }), 440);
    EXPECT_TRUE(TestDatabase(mMailbox).Trouble().has_value());
}

}
