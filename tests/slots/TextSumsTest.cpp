#include "slots/TextSums.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

std::vector<std::string> TextsIn(const std::vector<TextSums::TextTime>& times)
{
    std::vector<std::string> texts;
    for (const auto& time : times) {
        texts.push_back(time.text + " " + std::to_string(time.seconds));
    }
    return texts;
}

using Texts = std::vector<std::string>;

}

TEST(TextSumsTest, Largest_EqualTimes_AreInTheirOrder)
{
    TextSums sums;
    for (const auto* text : { "c", "b", "a", "b" }) {
        sums.Add(text, 10, 0);
    }
    EXPECT_EQ(TextsIn(sums.Largest(2)), (Texts { "b 20", "c 10" }));
    EXPECT_EQ(TextsIn(sums.Largest(9)), (Texts { "b 20", "c 10", "a 10" }));
    EXPECT_TRUE(TextSums().Largest(1).empty());
}

TEST(TextSumsTest, Add_TextsWithoutEnd_KeepsTheLargestInBoundedMemory)
{
    TextSums sums;
    sums.Add("first", 2, 0);
    for (int i = 0; i < 100'000; ++i) {
        sums.Add("t" + std::to_string(i), 1, 0);
        if (i % 100 == 0) {
            sums.Add("often", 1, 0);
        }
        ASSERT_LE(sums.Size(), TextSums::MostTexts);
    }
    EXPECT_EQ(TextsIn(sums.Largest(3)), (Texts { "often 1000", "first 2", "t0 1" }));
}

}
