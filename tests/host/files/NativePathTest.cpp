#include "host/files/NativePath.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace tempodial {

namespace fs = std::filesystem;

class NativePathTest : public testing::Test
{
protected:
    std::string Native(const std::string& rest) const { return NativePath(mFolder.Path() + rest).Text(); }

    TempFolder mFolder;
};

TEST_F(NativePathTest, Backslashes_OfAPathThatDoesNotExist_AreSlashes)
{
    EXPECT_EQ(Native(R"(\a\b.txt)"), mFolder.Path("a/b.txt"));
    EXPECT_EQ(Native(R"(/a\b.txt)"), mFolder.Path("a/b.txt"));
    EXPECT_EQ(NativePath(R"(absent\b.txt)").Text(), "absent/b.txt");
    EXPECT_EQ(NativePath(R"(\absent\b.txt)").Text(), "/absent/b.txt");
}

TEST_F(NativePathTest, Backslashes_OfAPathThatExists_AreItsOwn)
{
    mFolder.Write(R"(a\b.txt)", "");
    EXPECT_EQ(Native(R"(/a\b.txt)"), mFolder.Path(R"(a\b.txt)"));
}

TEST_F(NativePathTest, Backslashes_OfAFolderThatExists_AreItsOwnAndThoseBehindItSlashes)
{
    fs::create_directory(mFolder.Path(R"(a\b)"));
    EXPECT_EQ(Native(R"(/a\b/c\d.txt)"), mFolder.Path(R"(a\b/c/d.txt)"));
    EXPECT_EQ(Native(R"(/a\b\c\d.txt)"), mFolder.Path(R"(a\b/c/d.txt)"));
    fs::create_directory(mFolder.Path("a"));
    EXPECT_EQ(Native(R"(/a\b\c.txt)"), mFolder.Path(R"(a\b/c.txt)")) << "the longer one of two";
    EXPECT_EQ(Native(R"(/a\c.txt)"), mFolder.Path("a/c.txt"));
}

TEST_F(NativePathTest, Exactly_LeavesAllAsItIs)
{
    EXPECT_EQ(NativePath::Exactly(R"(a\b)").Text(), R"(a\b)");
    EXPECT_EQ(NativePath::Exactly(R"(a\b/c\d)").Beside(".c.new").Text(), R"(a\b/.c.new)");
    EXPECT_EQ(FailureNumber([] { NativePath::Exactly(std::string("a\0b", 3)); }), 52);
}

TEST_F(NativePathTest, FolderAndName_AreItsParts)
{
    const auto parts = [](const std::string& path) {
        const auto native = NativePath::Exactly(path);
        return native.Folder() + " " + native.Name();
    };
    EXPECT_EQ(parts("a"), ". a");
    EXPECT_EQ(parts("/a"), "/ a");
    EXPECT_EQ(parts("/a/b"), "/a b");
}

TEST_F(NativePathTest, FailureOf_Absence_TellsFileFromFolder)
{
    EXPECT_TRUE(NativePath(mFolder.Path("a")).FailureOf(ENOENT).Is(Error::FileNotFound));
    EXPECT_TRUE(NativePath(mFolder.Path("a/b")).FailureOf(ENOENT).Is(Error::PathNotFound));
    EXPECT_TRUE(NativePath(mFolder.Path("a/b")).FailureOf(EACCES).Is(Error::PermissionDenied));
}

}
