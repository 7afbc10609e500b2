#include "host/files/PathOperations.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

namespace fs = std::filesystem;

class PathOperationsTest : public testing::Test
{
protected:
    NativePath At(const std::string& name) const { return NativePath(mFolder.Path(name)); }

    TempFolder mFolder;
};

TEST_F(PathOperationsTest, StatusAt_Link_IsItOrWhatItLeadsTo)
{
    fs::create_directory(mFolder.Path("folder"));
    fs::create_symlink("folder", mFolder.Path("link"));
    fs::create_symlink("absent", mFolder.Path("dangling"));
    EXPECT_EQ(StatusOf(At("link"), Links::Followed).kind, FileStatus::Kind::Folder);
    EXPECT_EQ(StatusOf(At("link"), Links::Taken).kind, FileStatus::Kind::Other);
    EXPECT_FALSE(StatusAt(At("dangling"), Links::Followed));
    EXPECT_TRUE(StatusAt(At("dangling"), Links::Taken));
    EXPECT_EQ(FailureNumber([&] { StatusOf(At("dangling"), Links::Followed); }), 53);
    EXPECT_EQ(FailureNumber([&] { StatusOf(At("absent/below"), Links::Taken); }), 76);
}

TEST_F(PathOperationsTest, BehindLinks_AnyPath_IsWhereItLeads)
{
    fs::create_directory(mFolder.Path("folder"));
    mFolder.Write("folder/file", "");
    fs::create_symlink("folder/second", mFolder.Path("first"));
    fs::create_symlink("file", mFolder.Path("folder/second"));
    fs::create_symlink(mFolder.Path("gone"), mFolder.Path("dangling"));
    fs::create_symlink("circle", mFolder.Path("circle"));
    EXPECT_EQ(BehindLinks(At("first")).Text(), mFolder.Path("folder/file"));
    EXPECT_EQ(BehindLinks(At("dangling")).Text(), mFolder.Path("gone"));
    EXPECT_EQ(BehindLinks(At("folder/file")).Text(), mFolder.Path("folder/file"));
    EXPECT_EQ(BehindLinks(At("absent")).Text(), mFolder.Path("absent"));
    EXPECT_EQ(BehindLinks(At("circle")).Text(), mFolder.Path("circle"));
}

TEST_F(PathOperationsTest, Rename_ReplacesAndRenameToAbsentDoesNot)
{
    mFolder.Write("a", "new");
    mFolder.Write("b", "old");
    EXPECT_EQ(FailureNumber([&] { RenameToAbsent(At("a"), At("b")); }), 58);
    EXPECT_EQ(mFolder.Read("b"), "old");
    Rename(At("a"), At("b"));
    EXPECT_EQ(mFolder.Read("b"), "new");
    EXPECT_EQ(FailureNumber([&] { Rename(At("a"), At("absent/b")); }), 76);
}

TEST_F(PathOperationsTest, Remove_Absent_FailsAndDiscardDoesNot)
{
    mFolder.Write("a", "");
    Remove(At("a"));
    EXPECT_FALSE(mFolder.Has("a"));
    EXPECT_EQ(FailureNumber([&] { Remove(At("a")); }), 53);
    Discard(At("a"));
    mFolder.Write("a", "");
    Discard(At("a"));
    EXPECT_FALSE(mFolder.Has("a"));
}

TEST_F(PathOperationsTest, MakeFolder_NotPossible_Fails)
{
    EXPECT_EQ(FailureNumber([&] { MakeFolder(At("above/below")); }), 76);
    MakeFoldersAbove(At("above/below"));
    MakeFolder(At("above/below"));
    EXPECT_EQ(fs::status(mFolder.Path("above/below")).permissions(), fs::perms(0700));
    EXPECT_EQ(FailureNumber([&] { MakeFolder(At("above/below")); }), 58);
}

TEST_F(PathOperationsTest, MakeFoldersAbove_Absent_AreForTheirUserAlone)
{
    const auto former = ::umask(0);
    MakeFoldersAbove(At("one/two/three/file"));
    ::umask(former);
    for (const auto* made : { "one", "one/two", "one/two/three" }) {
        EXPECT_EQ(fs::status(mFolder.Path(made)).permissions(), fs::perms(0700)) << made;
    }
    EXPECT_FALSE(mFolder.Has("one/two/three/file"));
    mFolder.Write("file", "");
    MakeFoldersAbove(At("file/below/it"));
    EXPECT_EQ(mFolder.Read("file"), "");
}

TEST_F(PathOperationsTest, AbsolutePath_IsWithoutDetours)
{
    EXPECT_EQ(AbsolutePath("/a/./b/../c/").Text(), "/a/c");
    EXPECT_EQ(AbsolutePath(R"(/a\b)").Text(), R"(/a\b)");
    EXPECT_EQ(AbsolutePath("a").Text(), (fs::current_path() / "a").string());
}

TEST_F(PathOperationsTest, TakePlaceOf_Folder_StandsThereAndTheFormerBeside)
{
    for (const auto* folder : { "fresh", "place" }) {
        MakeFolder(At(folder));
        mFolder.Write(std::string(folder) + "/file", folder);
    }
    mFolder.Write("taken", "x");
    EXPECT_EQ(FailureNumber([&] { TakePlaceOf(At("fresh"), At("place"), At("taken")); }), 58);
    EXPECT_EQ(mFolder.Read("place/file"), "place");
    EXPECT_EQ(FailureNumber([&] { TakePlaceOf(At("fresh"), At("none"), At("former")); }), 53);
    EXPECT_EQ(mFolder.Read("fresh/file"), "fresh") << "it is where it was";
    TakePlaceOf(At("fresh"), At("place"), At("former"));
    EXPECT_EQ(mFolder.Read("place/file"), "fresh");
    EXPECT_EQ(mFolder.Read("former/file"), "place");
    EXPECT_FALSE(mFolder.Has("fresh"));
}

TEST_F(PathOperationsTest, RemoveFolder_WithLinks_LeavesWhatTheyLeadTo)
{
    MakeFoldersAbove(At("folder/below/file"));
    mFolder.Write("folder/below/file", "x");
    mFolder.Write("kept", "x");
    fs::create_symlink(mFolder.Path("kept"), mFolder.Path("folder/link"));
    fs::create_symlink(mFolder.Path(), mFolder.Path("folder/up"));
    RemoveFolder(At("folder"));
    EXPECT_FALSE(mFolder.Has("folder"));
    EXPECT_EQ(mFolder.Read("kept"), "x");
    RemoveFolder(At("folder"));
}

}
