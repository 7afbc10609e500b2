#include "host/files/MemoryFile.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace tempodial {

TEST(MemoryFileTest, Text_IsAllThatWasWritten)
{
    const MemoryFile file;
    EXPECT_EQ(file.Text(), "");
    const std::string first(200'000, 'x');
    ASSERT_EQ(::write(file.Descriptor(), first.data(), first.size()), static_cast<ssize_t>(first.size()));
    EXPECT_EQ(file.Text(), first);
    ASSERT_EQ(::write(file.Descriptor(), "\0y", 2), 2);
    EXPECT_EQ(file.Text(), first + std::string("\0y", 2));
}

}
