#include "host/files/DesktopEntryWord.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(DesktopEntryWordTest, DesktopEntryWord_MarksOfWordAndFile_AreMarked)
{
    EXPECT_EQ(DesktopEntryWord("/usr/bin/a b"), R"("/usr/bin/a b")");
    EXPECT_EQ(DesktopEntryWord("$"), R"("\\$")");
    EXPECT_EQ(DesktopEntryWord("`"), R"("\\`")");
    EXPECT_EQ(DesktopEntryWord("\""), R"("\\"")");
    EXPECT_EQ(DesktopEntryWord("\\"), R"("\\\\")");
    EXPECT_EQ(DesktopEntryWord("%f"), R"("%%f")");
    EXPECT_EQ(DesktopEntryWord("'a\nb'"), R"("'a\nb'")");
    EXPECT_EQ(DesktopEntryWord(""), R"("")");
}

}
