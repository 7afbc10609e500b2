#include "host/system/FileAppender.h"

#include "host/system/HostFileSystem.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>

namespace tempodial {
namespace {

namespace fs = std::filesystem;

/// The trace looks at its file and appends to it, again and again.
class FileAppenderTest : public testing::Test
{
protected:
    TempFolder mFolder;
    HostFileSystem mFiles { mFolder.Path() };
};

/// Nanoseconds that the system ran, as of its last tick.
std::int64_t CoarseTime()
{
    constexpr std::int64_t Second = 1'000'000'000;
    std::timespec age {};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &age);
    return age.tv_sec * Second + age.tv_nsec;
}

TEST_F(FileAppenderTest, Append_FileJustLookedAt_GoesOnInIt)
{
    const auto path = mFolder.Path("log");
    for (const auto* text : { "one ", "two ", "three" }) {
        mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write(text);
        EXPECT_EQ(mFiles.GetFile(path).path, path);
    }
    EXPECT_EQ(mFolder.Read("log"), "one two three");
}

TEST_F(FileAppenderTest, Append_AnotherFileSinceTheLook_IsThatOne)
{
    const auto path = mFolder.Path("log");
    const std::function<void()> changes[] = {
        [&] { mFiles.MoveFile(path, mFolder.Path("moved")); },
        [&] { mFiles.DeleteFile(path, false); },
        [&] {
            // By another program, and looked at again.
            fs::rename(path, mFolder.Path("moved"));
            mFolder.Write("log", "");
            mFiles.GetFile(path);
        },
        [&] { mFiles.OpenTextFile(path, OpenMode::Writing, true)->Close(); },
    };
    for (const auto& change : changes) {
        mFolder.Write("log", "");
        mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write("old");
        mFiles.GetFile(path);
        change();
        mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write("new");
        EXPECT_EQ(mFolder.Read("log"), "new");
        fs::remove(mFolder.Path("moved"));
    }
}

TEST_F(FileAppenderTest, Append_LookedAtAgainAndAgain_KnowsWhatOthersDidToTheFile)
{
    const auto path = mFolder.Path("log");
    const std::pair<std::function<void()>, std::string> changes[] = {
        { [&] { fs::remove(path); }, "new" },
        { [&] { fs::rename(path, mFolder.Path("moved")); }, "new" },
        { [&] { mFolder.Write("moved", "other "), fs::rename(mFolder.Path("moved"), path); }, "other new" },
        { [&] { fs::resize_file(path, 1); }, "onew" },
    };
    for (const auto& [change, content] : changes) {
        mFolder.Write("log", "");
        for (const auto* text : { "one ", "two " }) {
            mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write(text);
            mFiles.GetFile(path);
            EXPECT_EQ(mFiles.GetFile(path).name, "log");
        }
        change();
        const bool isThere = mFolder.Has("log");
        EXPECT_EQ(FailureNumber([&] { mFiles.GetFile(path); }), isThere ? 0 : 53);
        mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write("new");
        EXPECT_EQ(mFolder.Read("log"), content);
        EXPECT_EQ(static_cast<std::size_t>(mFiles.GetFile(path).size), content.size());
    }
}

TEST_F(FileAppenderTest, Append_AnotherFolderSinceTheClockTicked_IsTheFileInThatOne)
{
    const auto path = mFolder.Path("folder/log");
    fs::create_directory(mFolder.Path("folder"));
    mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write("one");
    mFiles.GetFile(path);
    mFiles.GetFile(path);
    fs::rename(mFolder.Path("folder"), mFolder.Path("former"));
    fs::create_directory(mFolder.Path("folder"));
    mFolder.Write("folder/log", "other ");
    const auto before = CoarseTime();
    while (CoarseTime() == before) { }
    EXPECT_EQ(mFiles.GetFile(path).size, 6);
    mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write("two");
    EXPECT_EQ(mFolder.Read("folder/log"), "other two");
    EXPECT_EQ(mFolder.Read("former/log"), "one");
}

TEST_F(FileAppenderTest, Append_ReadOnlySinceTheLastTime_Fails)
{
    const auto path = mFolder.Path("log");
    mFiles.OpenTextFile(path, OpenMode::Appending, true)->Write("one");
    fs::permissions(path, fs::perms::owner_read);
    mFiles.GetFile(path);
    EXPECT_EQ(FailureNumber([&] { mFiles.OpenTextFile(path, OpenMode::Appending, true); }), 70);
    EXPECT_EQ(mFolder.Read("log"), "one");
}

}
}
