#include "desktop/UnreadLines.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(UnreadLinesTest, UnreadSentence_NamesThePlaceAndWhatToDo)
{
    EXPECT_EQ(UnreadSentence({}), "");
    EXPECT_EQ(UnreadSentence({ { "20061117", 3 } }),
        "The import left out line 3 of tracker_granules20061117.out, which can't be read: correct it, or leave it.");
    EXPECT_EQ(UnreadSentence({ { "20061117", 3 }, { "20061116", 9 } }),
        "The import left out 2 lines that can't be read, the first of them line 3 of tracker_granules20061117.out: "
        "\"tempodial doctor\" names them all; correct them, or leave them.");
}

}
