#include "host/files/FileDescriptor.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace tempodial {

namespace fs = std::filesystem;

class FileDescriptorTest : public testing::Test
{
protected:
    std::int32_t OpenFailure(const std::string& name, Opening opening) const
    {
        return FailureNumber([&] { const FileDescriptor file(NativePath(mFolder.Path(name)), opening); });
    }
    FileDescriptor Opened(const std::string& name, Opening opening) const
    {
        return { NativePath(mFolder.Path(name)), opening };
    }

    TempFolder mFolder;
};

constexpr Opening Openings[] = { Opening::Reading, Opening::ReadingOrNew, Opening::Writing, Opening::New,
    Opening::Appending, Opening::AppendingOrNew };

TEST_F(FileDescriptorTest, Open_Absent_IsMadeOnlyWhereItMayBe)
{
    EXPECT_EQ(OpenFailure("file", Opening::Reading), 53);
    EXPECT_EQ(OpenFailure("file", Opening::Writing), 53);
    EXPECT_EQ(OpenFailure("file", Opening::Appending), 53);
    EXPECT_EQ(OpenFailure("absent/file", Opening::New), 76);
    EXPECT_FALSE(mFolder.Has("file"));
    for (const auto opening : { Opening::ReadingOrNew, Opening::New, Opening::AppendingOrNew }) {
        Opened("file", opening);
        EXPECT_TRUE(fs::remove(mFolder.Path("file")));
    }
    mFolder.Write("file", "x");
    EXPECT_EQ(OpenFailure("file", Opening::New), 58);
}

TEST_F(FileDescriptorTest, Open_WhatIsNoFile_FailsWithoutWaiting)
{
    fs::create_directory(mFolder.Path("folder"));
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), 0600), 0);
    for (const auto opening : Openings) {
        EXPECT_EQ(OpenFailure("folder", opening), opening == Opening::New ? 58 : 70);
        EXPECT_EQ(OpenFailure("pipe", opening), opening == Opening::New ? 58 : 70);
    }
}

TEST_F(FileDescriptorTest, Open_Link_IsFollowedForReadingOnly)
{
    fs::create_symlink(mFolder.Write("file", "x"), mFolder.Path("link"));
    for (const auto opening : Openings) {
        EXPECT_EQ(OpenFailure("link", opening), opening == Opening::Reading ? 0 : opening == Opening::New ? 58 : 70);
    }
}

TEST_F(FileDescriptorTest, Status_IsThatOfTheFile)
{
    mFolder.Write("file", "abc");
    const auto file = Opened("file", Opening::Reading);
    EXPECT_EQ(file.Status().kind, FileStatus::Kind::File);
    EXPECT_EQ(file.Status().size, 3U);
    EXPECT_TRUE(file.Status().isWritable);
    EXPECT_TRUE(file.Status().IsSameFile(Opened("file", Opening::Appending).Status()));
    mFolder.Write("other", "abc");
    EXPECT_FALSE(file.Status().IsSameFile(Opened("other", Opening::Reading).Status()));
}

TEST_F(FileDescriptorTest, ReadAll_MoreThanTheLimit_FailsWithoutReading)
{
    mFolder.Write("file", "abcd");
    EXPECT_EQ(Opened("file", Opening::Reading).ReadAll(4), "abcd");
    EXPECT_EQ(FailureNumber([&] { Opened("file", Opening::Reading).ReadAll(3); }), 7);
    fs::resize_file(mFolder.Path("file"), std::uintmax_t { 1 } << 40);
    EXPECT_EQ(FailureNumber([&] { Opened("file", Opening::Reading).ReadAll(std::size_t { 1 } << 36); }), 7);
}

TEST_F(FileDescriptorTest, ReadAll_FileGrowsBeyondTheLimit_Fails)
{
    mFolder.Write("file", "ab");
    const auto file = Opened("file", Opening::Reading);
    mFolder.Write("file", "abcd");
    EXPECT_EQ(FailureNumber([&] { file.ReadAll(3); }), 7);
}

}
