#include "host/system/HostFileSystem.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tempodial {
namespace {

namespace fs = std::filesystem;

class HostFileSystemTest : public testing::Test
{
protected:
    static mode_t ModeOf(const std::string& path)
    {
        struct stat status
        {
        };
        ::lstat(path.c_str(), &status);
        return status.st_mode & 0777U;
    }

    TempFolder mFolder;
    HostFileSystem mFiles { mFolder.Path() };
};

TEST_F(HostFileSystemTest, GetSpecialFolder_Temporary_IsTheFolderGiven)
{
    EXPECT_EQ(mFiles.GetSpecialFolder(SpecialFolder::Temporary), mFolder.Path());
}

TEST_F(HostFileSystemTest, BuildPath_AnyParts_JoinsThemByOneSeparator)
{
    const struct
    {
        const char *path, *name, *expected;
    } rows[] = {
        { "C:\\a", "b", "C:\\a\\b" },
        { "C:\\a\\", "b", "C:\\a\\b" },
        { "C:\\a", "\\b", "C:\\a\\b" },
        { "C:\\a\\", "\\b", "C:\\a\\b" },
        { "C:\\a", R"(\\b)", R"(C:\a\\b)" },
        { "", "b", "b" },
        { "a", "", "a" },
        { "", "", "" },
        { "/a", "b", "/a/b" },
        { "/a/", "b", "/a/b" },
        { "/a", "/b", "/a/b" },
        { "/a/", "/b", "/a/b" },
        { "/", "b", "/b" },
        { "a", "b", "a/b" },
        { R"(/opt/x\\userguide)", "FAQ.html", R"(/opt/x\\userguide\FAQ.html)" },
        { "C:\\a/b", "c", "C:\\a/b/c" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(mFiles.BuildPath(row.path, row.name), row.expected) << row.path << " + " << row.name;
    }
}

TEST_F(HostFileSystemTest, Path_WithBackslashes_IsReadWithSlashesWhenItDoesNotExist)
{
    fs::create_directory(mFolder.Path("userguide"));
    mFolder.Write("userguide/FAQ.html", "questions");
    const auto path = mFolder.Path() + R"(\\userguide\FAQ.html)";
    EXPECT_TRUE(mFiles.FileExists(path));
    EXPECT_EQ(mFiles.OpenTextFile(path, OpenMode::Reading, false)->ReadAll(), "questions");
    const auto file = mFiles.GetFile(path);
    EXPECT_EQ(file.path, path);
    EXPECT_EQ(file.name, "FAQ.html");
    EXPECT_TRUE(mFiles.FolderExists(mFolder.Path() + "\\userguide"));
}

TEST_F(HostFileSystemTest, Path_WithBackslashInItsName_IsTakenAsItStandsWhenItExists)
{
    mFolder.Write("a\\b.txt", "odd name");
    EXPECT_EQ(mFiles.OpenTextFile(mFolder.Path("a\\b.txt"), OpenMode::Reading, false)->ReadAll(), "odd name");
}

TEST_F(HostFileSystemTest, Path_NewFileWithBackslashes_IsMadeInTheFolderMeant)
{
    fs::create_directory(mFolder.Path("data"));
    mFiles.OpenTextFile(mFolder.Path() + "\\data\\x.out", OpenMode::Appending, true)->Write("x");
    EXPECT_EQ(mFolder.Read("data/x.out"), "x");
}

TEST_F(HostFileSystemTest, Path_NulCharacterInIt_Fails)
{
    EXPECT_EQ(
        FailureNumber([&] { mFiles.OpenTextFile(mFolder.Path() + std::string("/a\0b", 4), OpenMode::Writing, true); }),
        52);
    EXPECT_EQ(
        FailureNumber([&] { mFiles.OpenTextFile(mFolder.Path(std::string(300, 'n')), OpenMode::Writing, true); }), 52);
}

TEST_F(HostFileSystemTest, FolderExists_FolderFileOrNothing_TellsThemApart)
{
    EXPECT_TRUE(mFiles.FolderExists(mFolder.Path()));
    EXPECT_FALSE(mFiles.FolderExists(mFolder.Write("file", "")));
    EXPECT_FALSE(mFiles.FolderExists(mFolder.Path("absent")));
}

TEST_F(HostFileSystemTest, CreateFolder_New_IsTheUsersAlone)
{
    mFiles.CreateFolder(mFolder.Path("new"));
    EXPECT_TRUE(mFiles.FolderExists(mFolder.Path("new")));
    EXPECT_EQ(ModeOf(mFolder.Path("new")), 0700U);
}

TEST_F(HostFileSystemTest, CreateFolder_NotPossible_Fails)
{
    const auto file = mFolder.Write("file", "");
    EXPECT_EQ(FailureNumber([&] { mFiles.CreateFolder(mFolder.Path()); }), 58);
    EXPECT_EQ(FailureNumber([&] { mFiles.CreateFolder(file); }), 58);
    EXPECT_EQ(FailureNumber([&] { mFiles.CreateFolder(mFolder.Path("no/new")); }), 76);
    EXPECT_EQ(FailureNumber([&] { mFiles.CreateFolder(file + "/new"); }), 76);
    EXPECT_EQ(FailureNumber([&] { mFiles.CreateFolder(""); }), 76);
}

TEST_F(HostFileSystemTest, GetFolder_SeveralFiles_ListsRegularFilesByName)
{
    mFolder.Write("b.out", "12345");
    mFolder.Write("a.out", "");
    mFolder.Write("C.out", "1");
    fs::create_directory(mFolder.Path("folder"));
    fs::create_symlink(mFolder.Path("a.out"), mFolder.Path("link"));
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), 0600), 0);

    const auto folder = mFiles.GetFolder(mFolder.Path());
    EXPECT_EQ(folder.path, mFolder.Path());
    ASSERT_EQ(folder.files.size(), 3U);
    EXPECT_EQ(folder.files[0].name, "C.out");
    EXPECT_EQ(folder.files[1].name, "a.out");
    EXPECT_EQ(folder.files[2].name, "b.out");
    EXPECT_EQ(folder.files[2].size, 5);
    EXPECT_EQ(folder.files[2].path, mFolder.Path("b.out"));
}

TEST_F(HostFileSystemTest, GetFolder_NoFolder_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFolder(mFolder.Path("absent")); }), 76);
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFolder(mFolder.Write("file", "")); }), 76);
}

TEST_F(HostFileSystemTest, FileExists_FileFolderOrNothing_TellsThemApart)
{
    EXPECT_TRUE(mFiles.FileExists(mFolder.Write("file", "")));
    EXPECT_FALSE(mFiles.FileExists(mFolder.Path()));
    EXPECT_FALSE(mFiles.FileExists(mFolder.Path("absent")));
    EXPECT_FALSE(mFiles.FileExists(""));
    fs::create_symlink(mFolder.Path("nowhere"), mFolder.Path("dangling"));
    EXPECT_FALSE(mFiles.FileExists(mFolder.Path("dangling")));
}

TEST_F(HostFileSystemTest, GetFile_File_HasSizeAndCreationDate)
{
    LocalTime local;
    const auto before = local.At(std::time(nullptr)).AddSeconds(-2);
    const auto file = mFiles.GetFile(mFolder.Write("file", "1234567"));
    const auto after = local.At(std::time(nullptr)).AddSeconds(2);
    EXPECT_EQ(file.name, "file");
    EXPECT_EQ(file.path, mFolder.Path("file"));
    EXPECT_EQ(file.size, 7);
    EXPECT_LE(before, file.dateCreated);
    EXPECT_LE(file.dateCreated, after);
}

TEST_F(HostFileSystemTest, GetFile_NoFile_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFile(mFolder.Path("absent")); }), 53);
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFile(mFolder.Path("no/absent")); }), 76);
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFile(mFolder.Path()); }), 70);
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFile(mFolder.Path("pipe")); }), 70);
    EXPECT_EQ(FailureNumber([&] { mFiles.GetFile(""); }), 53);
}

TEST_F(HostFileSystemTest, MoveFile_NewName_MovesTheContent)
{
    mFolder.Write("a", "content");
    mFiles.MoveFile(mFolder.Path("a"), mFolder.Path("b"));
    EXPECT_FALSE(mFolder.Has("a"));
    EXPECT_EQ(mFolder.Read("b"), "content");
}

TEST_F(HostFileSystemTest, MoveFile_NotPossible_FailsAndChangesNothing)
{
    mFolder.Write("a", "content");
    mFolder.Write("b", "other");
    EXPECT_EQ(FailureNumber([&] { mFiles.MoveFile(mFolder.Path("a"), mFolder.Path("b")); }), 58);
    EXPECT_EQ(FailureNumber([&] { mFiles.MoveFile(mFolder.Path("a"), mFolder.Path("no/b")); }), 76);
    EXPECT_EQ(FailureNumber([&] { mFiles.MoveFile(mFolder.Path("absent"), mFolder.Path("c")); }), 53);
    EXPECT_EQ(FailureNumber([&] { mFiles.MoveFile(mFolder.Path(), mFolder.Path("c")); }), 70);
    EXPECT_EQ(mFolder.Read("a"), "content");
    EXPECT_EQ(mFolder.Read("b"), "other");
}

TEST_F(HostFileSystemTest, CopyFile_NewName_KeepsContentAndTime)
{
    mFolder.Write("a", std::string(200000, 'x'));
    const auto moment = fs::last_write_time(mFolder.Path("a")) - std::chrono::hours(1000);
    fs::last_write_time(mFolder.Path("a"), moment);
    mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), false);
    EXPECT_EQ(mFolder.Read("a"), mFolder.Read("b"));
    EXPECT_EQ(fs::last_write_time(mFolder.Path("b")), moment);
    EXPECT_EQ(ModeOf(mFolder.Path("b")), 0600U);
    EXPECT_FALSE(mFolder.Has(".b.new"));
}

TEST_F(HostFileSystemTest, CopyFile_ExistingTarget_IsOverwrittenOnlyWhenAllowed)
{
    mFolder.Write("a", "new");
    mFolder.Write("b", "old content");
    EXPECT_EQ(FailureNumber([&] { mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), false); }), 58);
    EXPECT_EQ(mFolder.Read("b"), "old content");
    mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), true);
    EXPECT_EQ(mFolder.Read("b"), "new");
    mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("a"), true);
    EXPECT_EQ(mFolder.Read("a"), "new");
}

TEST_F(HostFileSystemTest, CopyFile_NotPossible_FailsAndChangesNothing)
{
    mFolder.Write("a", "new");
    mFolder.Write("kept", "old");
    fs::create_symlink(mFolder.Path("kept"), mFolder.Path("link"));
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), 0600), 0);
    const auto copy = [&](const std::string& from, const std::string& to) {
        return FailureNumber([&] { mFiles.CopyFile(mFolder.Path(from), mFolder.Path(to), true); });
    };
    EXPECT_EQ(copy("absent", "b"), 53);
    EXPECT_EQ(copy("a", "no/b"), 76);
    EXPECT_EQ(copy("a", "link"), 70);
    EXPECT_EQ(copy("pipe", "b"), 70);
    EXPECT_EQ(copy("a", "pipe"), 70);
    EXPECT_EQ(copy("", "b"), 70);
    EXPECT_EQ(copy("a", ""), 70);
    EXPECT_EQ(mFolder.Read("kept"), "old");
    EXPECT_TRUE(fs::is_symlink(mFolder.Path("link")));
    EXPECT_FALSE(mFolder.Has("b"));
}

TEST_F(HostFileSystemTest, CopyFile_LockedSource_Fails)
{
    mFolder.Write("a", "new");
    const auto lock = ::open(mFolder.Path("a").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    EXPECT_EQ(FailureNumber([&] { mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), true); }), 70);
    EXPECT_FALSE(mFolder.Has("b"));
    ::close(lock);
}

TEST_F(HostFileSystemTest, CopyFile_ReadOnlyTarget_Fails)
{
    mFolder.Write("a", "new");
    mFolder.Write("b", "old");
    fs::permissions(mFolder.Path("b"), fs::perms::owner_read);
    EXPECT_EQ(FailureNumber([&] { mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), true); }), 70);
    EXPECT_EQ(mFolder.Read("b"), "old");
}

TEST_F(HostFileSystemTest, DeleteFile_File_IsGone)
{
    mFiles.DeleteFile(mFolder.Write("a", "x"), false);
    EXPECT_FALSE(mFolder.Has("a"));
}

TEST_F(HostFileSystemTest, DeleteFile_NotPossible_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mFiles.DeleteFile(mFolder.Path("absent"), false); }), 53);
    EXPECT_EQ(FailureNumber([&] { mFiles.DeleteFile(mFolder.Path("no/absent"), true); }), 76);
    EXPECT_EQ(FailureNumber([&] { mFiles.DeleteFile(mFolder.Path(), true); }), 70);
}

TEST_F(HostFileSystemTest, DeleteFile_ReadOnly_NeedsForce)
{
    const auto path = mFolder.Write("a", "x");
    fs::permissions(path, fs::perms::owner_read);
    EXPECT_EQ(FailureNumber([&] { mFiles.DeleteFile(path, false); }), 70);
    EXPECT_TRUE(mFolder.Has("a"));
    mFiles.DeleteFile(path, true);
    EXPECT_FALSE(mFolder.Has("a"));
}

TEST_F(HostFileSystemTest, DeleteFile_Link_LeavesWhatItPointsTo)
{
    mFolder.Write("kept", "x");
    fs::create_symlink(mFolder.Path("kept"), mFolder.Path("link"));
    mFiles.DeleteFile(mFolder.Path("link"), false);
    EXPECT_FALSE(mFolder.Has("link"));
    EXPECT_TRUE(mFolder.Has("kept"));
}

}
}
