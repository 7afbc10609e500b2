#include "driver/remote/WindowsPath.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(WindowsPathTest, Paths_GoThereAndComeBack)
{
    EXPECT_EQ(ToWindowsPath("/tmp/a b/c.out"), "Z:\\tmp\\a b\\c.out");
    EXPECT_EQ(FromWindowsPath("Z:\\tmp\\a b\\c.out"), "/tmp/a b/c.out");
    EXPECT_EQ(FromWindowsPath("https://example.com/"), "https://example.com/");
    EXPECT_EQ(FromWindowsPath(""), "");
}

}
