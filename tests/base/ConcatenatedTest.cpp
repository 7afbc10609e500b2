#include "base/Concatenated.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(ConcatenatedTest, Texts_AreOneBehindTheOther)
{
    EXPECT_EQ(Concatenated({}), "");
    EXPECT_EQ(Concatenated({ "", "a", std::string(40, 'b'), "", std::string_view("\0c", 2) }),
        "a" + std::string(40, 'b') + std::string("\0c", 2));
}

}
