#include "host/store/FilterParser.h"

#include "base/Failure.h"
#include "support/FailureNumber.h"
#include "support/TestMailbox.h"

#include <gtest/gtest.h>

#include <random>

namespace tempodial {

namespace {

std::string Repeated(const std::string& text, int times)
{
    std::string all;
    for (int time = 0; time < times; ++time) {
        all += text;
    }
    return all;
}

}

TEST(FilterParserTest, Parse_Comparison_TakesItApart)
{
    const auto node = FilterParser::Parse(" [ My Field ]>='a ''quoted'' \"text\"' ");
    EXPECT_EQ(node.kind, FilterNode::Kind::Comparison);
    EXPECT_EQ(node.property, "My Field");
    EXPECT_EQ(node.comparison, FilterOperator::GreaterOrEqual);
    EXPECT_EQ(node.value, "a 'quoted' \"text\"");
}

TEST(FilterParserTest, Parse_AndBindsMoreThanOr)
{
    const auto node = FilterParser::Parse("[a]=1 or [b]=-2.5 AND not [c]=TRUE");
    ASSERT_EQ(node.kind, FilterNode::Kind::Or);
    ASSERT_EQ(node.parts.size(), 2U);
    EXPECT_EQ(node.parts[0].value, "1");
    ASSERT_EQ(node.parts[1].kind, FilterNode::Kind::And);
    EXPECT_EQ(node.parts[1].parts[0].value, "-2.5");
    EXPECT_EQ(node.parts[1].parts[1].kind, FilterNode::Kind::Not);
    EXPECT_EQ(node.parts[1].parts[1].parts[0].value, "TRUE");
}

TEST(FilterParserTest, Parse_WordsNeedNoBlanksNextToBracketsAndQuotes)
{
    EXPECT_EQ(FilterParser::Parse("([a]=\"x\")and([b]='y')or(not[c]=1)").kind, FilterNode::Kind::Or);
}

TEST(FilterParserTest, Parse_TooLong_Fails)
{
    EXPECT_EQ(FailureNumber([] { FilterParser::Parse("[a]=1" + Repeated(" and [a]=1", 199)); }), 0);
    EXPECT_EQ(FailureNumber([] { FilterParser::Parse("[a]=1" + Repeated(" and [a]=1", 200)); }), 5);
    EXPECT_EQ(FailureNumber([] { FilterParser::Parse("[a]=1" + Repeated(" or [a]=1", 100'000)); }), 5);
}

TEST(FilterParserTest, Parse_TooDeep_Fails)
{
    const auto nested = [](int levels) { return Repeated("(", levels) + "[a]=1" + Repeated(")", levels); };
    EXPECT_EQ(FailureNumber([&] { FilterParser::Parse(nested(49)); }), 0);
    EXPECT_EQ(FailureNumber([&] { FilterParser::Parse(nested(50)); }), 5);
    EXPECT_EQ(FailureNumber([&] { FilterParser::Parse(Repeated("(", 1'000'000)); }), 5);
    EXPECT_EQ(FailureNumber([&] { FilterParser::Parse(Repeated("not ", 49) + "[a]=1"); }), 0);
    EXPECT_EQ(FailureNumber([&] { FilterParser::Parse(Repeated("not ", 1'000'000)); }), 5);
}

TEST(FilterParserTest, Parse_LongestAndDeepest_CanBeRun)
{
    const auto mailbox = OpenTestMailbox();
    NewTestItem(mailbox, "a")->Save();
    const auto deep = Repeated("not (", 24) + "[Subject] = \"a\"" + Repeated(")", 24);
    EXPECT_EQ(TestItems(mailbox)->Restrict(deep)->Count(), 1);
    const auto longest = "[Subject] = \"a\"" + Repeated(" and [Start] <> \"1/1/2000 9:00 AM\"", 199);
    EXPECT_EQ(TestItems(mailbox)->Restrict(longest)->Count(), 1);
}

TEST(FilterParserTest, PropertyName_TakesTheNameAlone)
{
    EXPECT_EQ(FilterParser::PropertyName("[Start]"), "Start");
    EXPECT_EQ(FilterParser::PropertyName(" [My Field] "), "My Field");
    for (const auto* text : { "", "Start", "[Start", "[]", "[a] [b]", "[a] = 1" }) {
        EXPECT_EQ(FailureNumber([&] { FilterParser::PropertyName(text); }), 5) << text;
    }
}

TEST(FilterParserTest, Parse_AnyText_GivesATreeOrFails)
{
    const std::vector<std::string> pieces { "[", "]", "[Subject]", "[Start]", "=", "<>", "<=", ">=", "<", ">", "\"",
        "'", "\"a\"", "'b'", "\"10/10/2006 9:05 AM\"", "and", "or", "not", "(", ")", " ", "\t", "1", "-", "True", "x",
        "\xff", "\xc3", std::string(1, '\0'), "[Duration]", ";", "--", "?" };
    const auto mailbox = OpenTestMailbox();
    NewTestItem(mailbox, "a")->Save();
    std::mt19937 random(7); // NOLINT: the same texts each time
    int read = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string filter = round % 2 == 0 ? "[Subject] = \"a\" " : "";
        for (auto count = random() % 12; count > 0; --count) {
            filter += pieces[random() % pieces.size()];
        }
        const auto number = FailureNumber([&] {
            FilterParser::Parse(filter);
            ++read;
            TestItems(mailbox)->Restrict(filter);
        });
        ASSERT_TRUE(number == 0 || number == 5 || number == 13) << filter << ": " << number;
    }
    EXPECT_GT(read, 100);
}

}
