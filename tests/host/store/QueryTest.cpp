#include "host/store/Query.h"

#include "host/store/MailboxDatabase.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <string_view>

namespace tempodial {

class QueryTest : public testing::Test
{
protected:
    MailboxDatabase mDatabase { ":memory:" };
};

TEST_F(QueryTest, Bind_Values_ComeBack)
{
    const std::string text = "häuser";
    const std::string bytes("\0\xff", 2);
    Query query(mDatabase, "SELECT ?, ?, ?, ?");
    query.Bind(7).Bind(text).Bind(std::string("gone")).BindBytes(bytes);
    ASSERT_TRUE(query.Step());
    EXPECT_EQ(query.Int(0), 7);
    EXPECT_EQ(query.Text(1), text);
    EXPECT_EQ(query.Text(2), "gone");
    EXPECT_EQ(query.Text(3), bytes);
}

TEST_F(QueryTest, BindBytes_MoreThanAnIntCounts_Fails)
{
    // Refused before any of it is read.
    constexpr std::size_t Most = std::numeric_limits<int>::max();
    const char byte = 'x';
    Query query(mDatabase, "SELECT length(?)");
    for (const auto size : { Most + 1, 2 * (Most + 1) + 1 }) {
        EXPECT_EQ(FailureNumber([&] { query.BindBytes(std::string_view(&byte, size)); }), 440);
    }
}

}
