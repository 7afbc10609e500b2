#include "sources/SightingTable.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

Sighting Page(const std::string& title, const std::string& host)
{
    return { "firefox", "Firefox", title, host, false };
}

}

TEST(SightingTableTest, NumberOf_SameSighting_IsTheSame)
{
    SightingTable table;
    const auto plan = table.NumberOf(Page("Plan", "a.example"));
    const auto other = table.NumberOf(Page("Plan", "b.example"));
    auto secret = Page("Plan", "a.example");
    secret.isPrivate = true;
    EXPECT_NE(plan, other);
    EXPECT_NE(plan, table.NumberOf(secret));
    EXPECT_EQ(plan, table.NumberOf(Page("Plan", "a.example")));
    EXPECT_EQ(table.size(), 3U);
}

TEST(SightingTableTest, Subscript_ManySightings_GivesBackEach)
{
    SightingTable table;
    constexpr std::uint32_t Count = 20000;
    const std::string tail(100, '.');
    for (std::uint32_t i = 0; i < Count; ++i) {
        ASSERT_EQ(table.NumberOf(Page(std::to_string(i) + tail, "")), i);
    }
    const auto copy = table;
    for (std::uint32_t i = 0; i < Count; ++i) {
        ASSERT_EQ(copy[i].title, std::to_string(i) + tail);
    }
    EXPECT_EQ(copy[7].program, "firefox");
    EXPECT_EQ(copy[7].programName, "Firefox");
    EXPECT_EQ(copy[7].host, "");
}

TEST(SightingTableTest, Texts_LongerThanAPiece_AreKept)
{
    TextPool pool;
    const std::string large(3 << 20, 'x');
    EXPECT_EQ(pool.NumberOf("small"), 0U);
    EXPECT_EQ(pool.NumberOf(large), 1U);
    EXPECT_EQ(pool.NumberOf(""), 2U);
    EXPECT_EQ(pool.Text(0), "small");
    EXPECT_EQ(pool.Text(1), large);
    EXPECT_EQ(pool.Text(2), "");
    EXPECT_EQ(pool.NumberOf(large), 1U);
}

}
