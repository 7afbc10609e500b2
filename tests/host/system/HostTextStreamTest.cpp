#include "host/system/HostFileSystem.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tempodial {
namespace {

namespace fs = std::filesystem;

class HostTextStreamTest : public testing::Test
{
protected:
    Ref<TextStream> Reading(const std::string& content)
    {
        return mFiles.OpenTextFile(mFolder.Write("file", content), OpenMode::Reading, false);
    }
    std::int32_t OpenFailure(const std::string& name, OpenMode mode, bool create)
    {
        return FailureNumber([&] { mFiles.OpenTextFile(mFolder.Path(name), mode, create); });
    }

    TempFolder mFolder;
    HostFileSystem mFiles { mFolder.Path() };
};

/// As long as it lives, no file of this process may get longer.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        ::getrlimit(RLIMIT_FSIZE, &mFormer);
        const rlimit limit { size, mFormer.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &limit);
        mFormerHandler = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &mFormer);
        std::signal(SIGXFSZ, mFormerHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit mFormer {};
    void (*mFormerHandler)(int) = nullptr;
};

TEST_F(HostTextStreamTest, OpenTextFile_NotPossible_Fails)
{
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), 0600), 0);
    fs::create_directory(mFolder.Path("folder"));
    mFolder.Write("file", "x");
    for (const auto mode : { OpenMode::Reading, OpenMode::Writing, OpenMode::Appending }) {
        EXPECT_EQ(OpenFailure("absent", mode, false), 53);
        EXPECT_EQ(OpenFailure("no/absent", mode, false), 76);
        EXPECT_EQ(OpenFailure("no/absent", mode, true), 76);
        EXPECT_EQ(OpenFailure("file/absent", mode, true), 76);
        EXPECT_EQ(OpenFailure("folder", mode, true), 70);
        EXPECT_EQ(OpenFailure("pipe", mode, true), 70);
        EXPECT_EQ(FailureNumber([&] { mFiles.OpenTextFile("/dev/null", mode, true); }), 70);
    }
    EXPECT_EQ(FailureNumber([&] { mFiles.OpenTextFile(mFolder.Path("file"), OpenMode { 3 }, false); }), 5);
    EXPECT_FALSE(mFolder.Has("absent"));
}

TEST_F(HostTextStreamTest, OpenTextFile_ReadOnlyFile_CanOnlyBeRead)
{
    mFolder.Write("file", "x");
    fs::permissions(mFolder.Path("file"), fs::perms::owner_read);
    EXPECT_EQ(OpenFailure("file", OpenMode::Reading, false), 0);
    EXPECT_EQ(OpenFailure("file", OpenMode::Writing, true), 70);
    EXPECT_EQ(OpenFailure("file", OpenMode::Appending, true), 70);
    EXPECT_EQ(mFolder.Read("file"), "x");
}

TEST_F(HostTextStreamTest, OpenTextFile_UnreadableFile_FailsForOrdinaryUsers)
{
    mFolder.Write("file", "x");
    fs::permissions(mFolder.Path("file"), fs::perms::none);
    const bool mayReadEverything = ::geteuid() == 0;
    EXPECT_EQ(OpenFailure("file", OpenMode::Reading, false), mayReadEverything ? 0 : 70);
}

TEST_F(HostTextStreamTest, OpenTextFile_Link_IsFollowedForReadingOnly)
{
    mFolder.Write("kept", "old");
    fs::create_symlink(mFolder.Path("kept"), mFolder.Path("link"));
    fs::create_symlink(mFolder.Path("nowhere"), mFolder.Path("dangling"));
    EXPECT_EQ(mFiles.OpenTextFile(mFolder.Path("link"), OpenMode::Reading, false)->ReadAll(), "old");
    EXPECT_EQ(OpenFailure("link", OpenMode::Writing, true), 70);
    EXPECT_EQ(OpenFailure("link", OpenMode::Appending, true), 70);
    EXPECT_EQ(OpenFailure("dangling", OpenMode::Reading, false), 53);
    for (const auto mode : { OpenMode::Reading, OpenMode::Writing, OpenMode::Appending }) {
        EXPECT_EQ(OpenFailure("dangling", mode, true), 70);
    }
    EXPECT_FALSE(mFolder.Has("nowhere"));
    EXPECT_EQ(mFolder.Read("kept"), "old");
}

TEST_F(HostTextStreamTest, OpenTextFile_LockedByAnother_FailsUnlessAppending)
{
    const auto lock = ::open(mFolder.Write("file", "x").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    EXPECT_EQ(OpenFailure("file", OpenMode::Reading, false), 70);
    EXPECT_EQ(OpenFailure("file", OpenMode::Writing, true), 70);
    EXPECT_EQ(OpenFailure("file", OpenMode::Appending, true), 0);
    ASSERT_EQ(::flock(lock, LOCK_SH), 0);
    EXPECT_EQ(OpenFailure("file", OpenMode::Reading, false), 0);
    ASSERT_EQ(::flock(lock, LOCK_UN), 0);

    struct flock part
    {
    };
    part.l_type = F_WRLCK;
    part.l_whence = SEEK_SET;
    part.l_len = 1;
    ASSERT_EQ(::fcntl(lock, F_OFD_SETLK, &part), 0);
    EXPECT_EQ(OpenFailure("file", OpenMode::Reading, false), 70);
    part.l_type = F_RDLCK;
    ASSERT_EQ(::fcntl(lock, F_OFD_SETLK, &part), 0);
    EXPECT_EQ(OpenFailure("file", OpenMode::Reading, false), 0);
    ::close(lock);
    EXPECT_EQ(OpenFailure("file", OpenMode::Writing, true), 0);
}

TEST_F(HostTextStreamTest, OpenTextFile_ReadingWithCreation_MakesAnEmptyFile)
{
    const auto stream = mFiles.OpenTextFile(mFolder.Path("new"), OpenMode::Reading, true);
    EXPECT_EQ(FailureNumber([&] { stream->ReadAll(); }), 62);
    EXPECT_TRUE(mFolder.Has("new"));
}

TEST_F(HostTextStreamTest, ReadLine_LineEnds_AreCutAsTheyMust)
{
    const auto stream = Reading("one\r\ntwo\nthr\ree\r\n\r\n\n\r\r\nlast\r");
    for (const auto* expected : { "one", "two", "thr\ree", "", "", "\r", "last\r" }) {
        EXPECT_EQ(stream->ReadLine(), expected);
    }
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
}

TEST_F(HostTextStreamTest, ReadLine_EmptyFile_Fails)
{
    const auto stream = Reading("");
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
    EXPECT_EQ(FailureNumber([&] { stream->ReadAll(); }), 62);
}

TEST_F(HostTextStreamTest, ReadLine_LinesAcrossTheBuffersEnd_AreWhole)
{
    std::string content;
    for (std::size_t length = 65000; length < 66100; length += 7) {
        content += std::string(length, static_cast<char>('a' + length % 26)) + "\r\n";
    }
    const auto stream = Reading(content);
    for (std::size_t length = 65000; length < 66100; length += 7) {
        ASSERT_EQ(stream->ReadLine(), std::string(length, static_cast<char>('a' + length % 26)));
    }
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
}

TEST_F(HostTextStreamTest, ReadLine_LongestLine_IsWholeAndALongerOneEmpty)
{
    const std::size_t longest = 1048576;
    const auto stream = Reading(std::string(longest, 'x') + "\r\n" + std::string(longest + 1, 'y') + "\nnext\n"
        + std::string(10 * longest, 'z') + "\r\nlast\n" + std::string(2 * longest, 'u'));
    EXPECT_EQ(stream->ReadLine(), std::string(longest, 'x'));
    EXPECT_EQ(stream->ReadLine(), "");
    EXPECT_EQ(stream->ReadLine(), "next");
    EXPECT_EQ(stream->ReadLine(), "");
    EXPECT_EQ(stream->ReadLine(), "last");
    EXPECT_EQ(stream->ReadLine(), "");
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
}

TEST_F(HostTextStreamTest, LastLine_LinesOfEachKind_AreToldApart)
{
    const std::size_t tooLong = 1048577;
    const auto stream = Reading("a\r\n\n" + std::string(tooLong, 'x') + "\nb\r");
    const auto next = [&] {
        stream->ReadLine();
        return stream->LastLine();
    };
    EXPECT_EQ(next(), LineKind::Whole);
    EXPECT_EQ(next(), LineKind::Whole);
    EXPECT_EQ(next(), LineKind::TooLong);
    EXPECT_EQ(next(), LineKind::Unended);
}

TEST_F(HostTextStreamTest, LastLine_TooLongWithoutItsEnd_IsUnended)
{
    const auto stream = Reading(std::string(3000000, 'x'));
    stream->ReadLine();
    EXPECT_EQ(stream->LastLine(), LineKind::Unended);
}

TEST_F(HostTextStreamTest, ReadLine_NotUtf8_IsReadAsWindows1252)
{
    const auto stream = Reading("M\xFCller \x80 \x93x\x94 \x81\x8D\x8F\x90\x9D\r\nM\xC3\xBCller \xE2\x82\xAC\r\n\xC3");
    EXPECT_EQ(stream->ReadLine(), "M\u00FCller \u20AC \u201Cx\u201D \xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
    EXPECT_EQ(stream->ReadLine(), "M\u00FCller \u20AC");
    EXPECT_EQ(stream->ReadLine(), "\u00C3");
}

TEST_F(HostTextStreamTest, ReadLine_AlmostUtf8_IsReadAsWindows1252)
{
    const struct
    {
        const char *bytes, *expected;
    } rows[] = {
        { "\xC0\xAF", "\u00C0\u00AF" }, // overlong
        { "\xE0\x9F\xBF", "\u00E0\u0178\u00BF" }, // overlong
        { "\xED\xA0\x80", "\u00ED\u00A0\u20AC" }, // half a pair
        { "\xF4\x90\x80\x80", "\u00F4\xC2\x90\u20AC\u20AC" }, // beyond the last character
        { "\xF0\x8F\xBF\xBF", "\u00F0\xC2\x8F\u00BF\u00BF" }, // overlong
        { "\xE2\x82", "\u00E2\u201A" }, // cut
        { "abcdefgh\xE2\x82ijklmnop", "abcdefgh\u00E2\u201Aijklmnop" },
        { "\xBF", "\u00BF" },
        { "\xFF", "\u00FF" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Reading(row.bytes)->ReadLine(), row.expected);
    }
}

TEST_F(HostTextStreamTest, ReadLine_ValidUtf8_IsKept)
{
    for (const std::string text :
        { "\u07FF\u0800\uD7FF\uE000\uFFFE\U00010000\U0010FFFF", "\xEF\xBB\xBFmark", "a\tb" }) {
        EXPECT_EQ(Reading(text)->ReadLine(), text);
        EXPECT_EQ(Reading(text)->ReadAll(), text);
    }
    EXPECT_EQ(Reading(std::string("a\0b", 3))->ReadLine(), std::string("a\0b", 3));
}

TEST_F(HostTextStreamTest, ReadAll_BehindALine_GivesTheRest)
{
    const auto stream = Reading("one\r\ntwo\r\nthree");
    EXPECT_EQ(stream->ReadLine(), "one");
    EXPECT_EQ(stream->ReadAll(), "two\r\nthree");
    EXPECT_EQ(FailureNumber([&] { stream->ReadAll(); }), 62);
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
}

TEST_F(HostTextStreamTest, ReadAll_OneLineNotUtf8_DecodesEachLineByItself)
{
    EXPECT_EQ(Reading("\xC3\xBC\r\n\xFC\n\xC3\xBC")->ReadAll(), "\u00FC\r\n\u00FC\n\u00FC");
}

TEST_F(HostTextStreamTest, ReadAll_MoreThanMemoryShouldHold_Fails)
{
    const auto path = mFolder.Write("big", "");
    fs::resize_file(path, (std::uintmax_t { 64 } << 20) + 1);
    const auto stream = mFiles.OpenTextFile(path, OpenMode::Reading, false);
    EXPECT_EQ(FailureNumber([&] { stream->ReadAll(); }), 7);
}

TEST_F(HostTextStreamTest, ReadLine_FileGrowsMeanwhile_IsReadAsFarAsItIs)
{
    const auto stream = Reading("one\n");
    EXPECT_EQ(stream->ReadLine(), "one");
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
    mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Appending, false)->Write("two\n");
    EXPECT_EQ(stream->ReadLine(), "two");
}

TEST_F(HostTextStreamTest, ReadLine_FileIsCutMeanwhile_Ends)
{
    const auto stream = Reading(std::string(100000, 'x') + "\n" + std::string(200000, 'y') + "\n");
    EXPECT_EQ(stream->ReadLine().size(), 100000U);
    fs::resize_file(mFolder.Path("file"), 10);
    EXPECT_LT(stream->ReadLine().size(), 200000U);
    EXPECT_EQ(FailureNumber([&] { stream->ReadLine(); }), 62);
}

TEST_F(HostTextStreamTest, Stream_UsedAgainstItsMode_Fails)
{
    const auto reading = Reading("x");
    EXPECT_EQ(FailureNumber([&] { reading->Write("y"); }), 54);
    EXPECT_EQ(FailureNumber([&] { reading->WriteLine("y"); }), 54);
    for (const auto mode : { OpenMode::Writing, OpenMode::Appending }) {
        const auto writing = mFiles.OpenTextFile(mFolder.Path("other"), mode, true);
        EXPECT_EQ(FailureNumber([&] { writing->ReadLine(); }), 54);
        EXPECT_EQ(FailureNumber([&] { writing->ReadAll(); }), 54);
    }
}

TEST_F(HostTextStreamTest, Stream_UsedBehindItsEnd_Fails)
{
    const auto reading = Reading("one\ntwo\n");
    reading->ReadLine();
    reading->Close();
    reading->Close();
    EXPECT_EQ(FailureNumber([&] { reading->ReadLine(); }), 52);
    for (const auto mode : { OpenMode::Writing, OpenMode::Appending }) {
        const auto writing = mFiles.OpenTextFile(mFolder.Path("other"), mode, true);
        writing->Close();
        writing->Close();
        EXPECT_EQ(FailureNumber([&] { writing->Write("x"); }), 52);
    }
}

TEST_F(HostTextStreamTest, Appending_ExistingOrNewFile_AddsAtTheEndAtOnce)
{
    const auto first = mFiles.OpenTextFile(mFolder.Path("log"), OpenMode::Appending, true);
    first->WriteLine("one");
    EXPECT_EQ(mFolder.Read("log"), "one\r\n");
    first->Close();
    const auto second = mFiles.OpenTextFile(mFolder.Path("log"), OpenMode::Appending, true);
    second->Write("two");
    second->WriteLine("");
    EXPECT_EQ(mFolder.Read("log"), "one\r\ntwo\r\n");
    struct stat status
    {
    };
    ::stat(mFolder.Path("log").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(HostTextStreamTest, Appending_DiskIsFull_Fails)
{
    const auto stream = mFiles.OpenTextFile(mFolder.Path("log"), OpenMode::Appending, true);
    const FullDisk disk(10);
    EXPECT_EQ(FailureNumber([&] { stream->Write("12345678"); }), 0);
    EXPECT_EQ(FailureNumber([&] { stream->Write("12345678"); }), 61);
}

TEST_F(HostTextStreamTest, Writing_OldFile_StaysUntilTheNewOneIsClosed)
{
    mFolder.Write("file", "old content");
    const auto stream = mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, true);
    stream->Write("new");
    stream->WriteLine(" line");
    EXPECT_EQ(mFolder.Read("file"), "old content");
    stream->Close();
    EXPECT_EQ(mFolder.Read("file"), "new line\r\n");
    EXPECT_FALSE(mFolder.Has(".file.new"));
    struct stat status
    {
    };
    ::stat(mFolder.Path("file").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(HostTextStreamTest, Writing_NotClosed_ClosesItself)
{
    mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, true)->Write(std::string(100000, 'x') + "y");
    EXPECT_EQ(mFolder.Read("file"), std::string(100000, 'x') + "y");
}

TEST_F(HostTextStreamTest, Writing_TakenAwayByAnException_LeavesTheOldFile)
{
    mFolder.Write("file", "old");
    EXPECT_EQ(FailureNumber([&] {
        const auto stream = mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, true);
        stream->Write(std::string(100000, 'x'));
        throw Failure(Error::OutOfMemory);
    }),
        7);
    EXPECT_EQ(mFolder.Read("file"), "old");
    EXPECT_FALSE(mFolder.Has(".file.new"));
}

TEST_F(HostTextStreamTest, Writing_LetGoWhileAnExceptionIsUnderWay_ClosesItself)
{
    struct Writer
    {
        ~Writer() { files.OpenTextFile(path, OpenMode::Writing, true)->Write("new"); }
        HostFileSystem& files;
        std::string path;
    };
    EXPECT_EQ(FailureNumber([&] {
        const Writer writer { mFiles, mFolder.Path("file") };
        throw Failure(Error::OutOfMemory);
    }),
        7);
    EXPECT_EQ(mFolder.Read("file"), "new");
}

TEST_F(HostTextStreamTest, Writing_Nothing_LeavesAnEmptyFile)
{
    mFolder.Write("file", "old");
    mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, false)->Close();
    EXPECT_TRUE(mFolder.Has("file"));
    EXPECT_EQ(mFolder.Read("file"), "");
}

TEST_F(HostTextStreamTest, Writing_LeftOverOfAKilledRun_IsNoHindrance)
{
    mFolder.Write(".file.new", "half");
    mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, true)->Write("whole");
    EXPECT_EQ(mFolder.Read("file"), "whole");
    EXPECT_FALSE(mFolder.Has(".file.new"));
}

TEST_F(HostTextStreamTest, Writing_DiskIsFull_FailsAndTheOldFileStays)
{
    mFolder.Write("file", "old");
    const auto early = mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, true);
    {
        const FullDisk disk(100);
        EXPECT_EQ(FailureNumber([&] { early->Write(std::string(70000, 'x')); }), 61);
    }
    EXPECT_EQ(FailureNumber([&] { early->Close(); }), 61);
    EXPECT_FALSE(mFolder.Has(".file.new"));
    const auto late = mFiles.OpenTextFile(mFolder.Path("file"), OpenMode::Writing, true);
    late->Write(std::string(200, 'x'));
    {
        const FullDisk disk(100);
        EXPECT_EQ(FailureNumber([&] { late->Close(); }), 61);
    }
    EXPECT_EQ(mFolder.Read("file"), "old");
    EXPECT_FALSE(mFolder.Has(".file.new"));
}

TEST_F(HostTextStreamTest, Writing_FolderIsGoneAtTheEnd_Fails)
{
    fs::create_directory(mFolder.Path("data"));
    const auto stream = mFiles.OpenTextFile(mFolder.Path("data/file"), OpenMode::Writing, true);
    stream->Write("x");
    fs::remove_all(mFolder.Path("data"));
    EXPECT_EQ(FailureNumber([&] { stream->Close(); }), 76);
}

}
}
