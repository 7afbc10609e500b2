#include "support/DurableFiles.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

/// A folder with two files, before the power goes.
class DurableFilesTest : public testing::Test
{
protected:
    DurableFilesTest()
    {
        mFolder.Write("a", "old a");
        mFolder.Write("b", "old b");
    }

    TempFolder mFolder;
};

}

TEST_F(DurableFilesTest, LosePower_ContentThatWasNotFlushed_IsTheOldOne)
{
    DurableFiles durable(mFolder.Path());
    mFolder.Write("a", "new a");
    durable.Flushed(mFolder.Write("b", "new b"));
    mFolder.Write("b", "newer b");
    mFolder.Write("c", "new c");
    durable.LosePower(DurableFiles::Names::Kept);
    EXPECT_EQ(mFolder.Read("a"), "old a");
    EXPECT_EQ(mFolder.Read("b"), "new b");
    EXPECT_TRUE(mFolder.Has("c"));
    EXPECT_EQ(mFolder.Read("c"), "");
}

TEST_F(DurableFilesTest, LosePower_NamesLost_AreThoseOfTheFoldersFlush)
{
    DurableFiles durable(mFolder.Path());
    fs::remove(mFolder.Path("a"));
    durable.Flushed(mFolder.Write("c", "new c"));
    durable.Flushed(mFolder.Path());
    durable.Flushed(mFolder.Write("d", "new d"));
    fs::rename(mFolder.Path("d"), mFolder.Path("b"));
    durable.LosePower(DurableFiles::Names::Lost);
    EXPECT_FALSE(mFolder.Has("a"));
    EXPECT_EQ(mFolder.Read("b"), "old b");
    EXPECT_EQ(mFolder.Read("c"), "new c");
    EXPECT_FALSE(mFolder.Has("d"));
}

}
