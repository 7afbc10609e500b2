#include "base/OrderedCollection.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {
namespace {

using Texts = OrderedCollection<std::string>;

std::string Joined(const Texts& texts)
{
    std::string all;
    for (std::int32_t position = 1; position <= texts.Count(); ++position) {
        all += texts.Item(position);
    }
    return all;
}

class OrderedCollectionTest : public testing::Test
{
protected:
    OrderedCollectionTest()
    {
        mTexts.AddKeyed("a", "Alpha");
        mTexts.Add("b");
        mTexts.AddKeyed("c", "Äther");
    }

    Texts mTexts;
};

TEST_F(OrderedCollectionTest, Item_Positions_CountFromOne)
{
    EXPECT_EQ(mTexts.Count(), 3);
    EXPECT_EQ(Joined(mTexts), "abc");
    EXPECT_EQ(FailureNumber([&] { mTexts.Item(0); }), 9);
    EXPECT_EQ(FailureNumber([&] { mTexts.Item(4); }), 9);
    EXPECT_EQ(FailureNumber([&] { mTexts.Item(-1); }), 9);
}

TEST_F(OrderedCollectionTest, ItemKeyed_KeyInOtherCase_IsFound)
{
    EXPECT_EQ(mTexts.ItemKeyed("ALPHA"), "a");
    EXPECT_EQ(mTexts.ItemKeyed("äTHER"), "c");
    EXPECT_EQ(FailureNumber([&] { mTexts.ItemKeyed("beta"); }), 5);
}

TEST_F(OrderedCollectionTest, ItemKeyed_EmptyKey_IsAnOrdinaryKey)
{
    EXPECT_EQ(FailureNumber([&] { mTexts.ItemKeyed(""); }), 5) << "an entry without a key has no empty one";
    mTexts.AddKeyed("d", "");
    EXPECT_EQ(mTexts.ItemKeyed(""), "d");
    EXPECT_EQ(FailureNumber([&] { mTexts.AddKeyed("e", ""); }), 457);
}

TEST_F(OrderedCollectionTest, AddKeyed_KnownKey_FailsAndChangesNothing)
{
    EXPECT_EQ(FailureNumber([&] { mTexts.AddKeyed("x", "aLPHA"); }), 457);
    EXPECT_EQ(FailureNumber([&] { mTexts.AddKeyedBefore("x", "alpha", 1); }), 457);
    EXPECT_EQ(Joined(mTexts), "abc");
}

TEST_F(OrderedCollectionTest, AddKeyedBefore_Position_MovesLaterEntriesUp)
{
    mTexts.AddKeyedBefore("x", "x", 1);
    mTexts.AddKeyedBefore("y", "y", 4);
    EXPECT_EQ(Joined(mTexts), "xabyc");
    EXPECT_EQ(mTexts.ItemKeyed("alpha"), "a");
}

TEST_F(OrderedCollectionTest, AddKeyedBefore_PositionOutOfRange_FailsAndChangesNothing)
{
    EXPECT_EQ(FailureNumber([&] { mTexts.AddKeyedBefore("x", "x", 0); }), 9);
    EXPECT_EQ(FailureNumber([&] { mTexts.AddKeyedBefore("x", "x", 4); }), 9);
    EXPECT_EQ(FailureNumber([] { Texts().AddKeyedBefore("x", "x", 1); }), 9);
    EXPECT_EQ(Joined(mTexts), "abc");
}

TEST_F(OrderedCollectionTest, Remove_Position_MovesLaterEntriesDown)
{
    mTexts.Remove(1);
    EXPECT_EQ(Joined(mTexts), "bc");
    EXPECT_EQ(FailureNumber([&] { mTexts.ItemKeyed("alpha"); }), 5);
    EXPECT_EQ(FailureNumber([&] { mTexts.Remove(3); }), 9);
    EXPECT_EQ(FailureNumber([&] { mTexts.Remove(0); }), 9);
    mTexts.AddKeyed("a", "alpha");
    EXPECT_EQ(Joined(mTexts), "bca");
}

TEST_F(OrderedCollectionTest, RemoveKeyed_Key_TakesItsEntry)
{
    mTexts.RemoveKeyed("ALPHA");
    EXPECT_EQ(Joined(mTexts), "bc");
    EXPECT_EQ(FailureNumber([&] { mTexts.RemoveKeyed("alpha"); }), 5);
    EXPECT_EQ(Joined(mTexts), "bc");
}

TEST_F(OrderedCollectionTest, Clear_Entries_LeavesNone)
{
    mTexts.Clear();
    EXPECT_EQ(mTexts.Count(), 0);
    mTexts.AddKeyed("a", "alpha");
    EXPECT_EQ(mTexts.Count(), 1);
}

}
}
