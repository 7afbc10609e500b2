#include "session/TraceTail.h"

#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

class TraceTailTest : public testing::Test
{
protected:
    TraceTailTest() { std::filesystem::create_directory(mFolder.Path("Tempodial")); }

    std::vector<std::string> Last(std::size_t lines) const
    {
        TraceTail tail(lines);
        tail.Read(Profile(mFolder.Path(), "en_US", std::nullopt));
        return tail.Lines();
    }

    TempFolder mFolder { TempFolder::InMemory() };
};

TEST_F(TraceTailTest, Read_NoTrace_HasNoLines)
{
    EXPECT_THAT(Last(3), IsEmpty());
}

TEST_F(TraceTailTest, Read_BothFiles_KeepsTheLastLinesOldestFirst)
{
    mFolder.Write("Tempodial/WorkLogTrace1.out", "c\r\nd\r\n");
    EXPECT_THAT(Last(3), ElementsAre("c", "d"));
    mFolder.Write("Tempodial/WorkLogTrace2.out", "a\r\nb\r\n");
    EXPECT_THAT(Last(3), ElementsAre("b", "c", "d"));
    EXPECT_THAT(Last(9), ElementsAre("a", "b", "c", "d"));
}

}
