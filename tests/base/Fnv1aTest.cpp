#include "base/Fnv1a.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(Fnv1aTest, Hash_IsThatOfTheDefinition)
{
    EXPECT_EQ(Fnv1a().Hash(), 0xcbf29ce484222325);
    EXPECT_EQ(Fnv1a("a").Hash(), 0xaf63dc4c8601ec8c);
    EXPECT_EQ(Fnv1a("foobar").Hash(), 0x85944171f73967e8);
}

TEST(Fnv1aTest, Add_GoesOnBehindWhatWasAdded)
{
    Fnv1a hash("foo");
    hash.Add("bar");
    EXPECT_EQ(hash.Hash(), Fnv1a("foobar").Hash());
    EXPECT_NE(Fnv1a("\xff").Hash(), Fnv1a("\x7f").Hash());
}

}
