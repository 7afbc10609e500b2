#include "host/files/OutputTarget.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace fs = std::filesystem;

class OutputTargetTest : public testing::Test
{
protected:
    using Kind = OutputTarget::Kind;

    void SetUp() override { mFormerMask = ::umask(S_IWGRP | S_IRWXO); }
    void TearDown() override { ::umask(mFormerMask); }
    OutputTarget At(const std::string& name) const { return OutputTarget(mFolder.Path(name)); }
    Kind KindAt(const std::string& name) const { return At(name).WhatItIs(); }
    mode_t ModeOf(const std::string& name) const
    {
        struct stat status
        {
        };
        ::stat(mFolder.Path(name).c_str(), &status);
        return status.st_mode & ALLPERMS;
    }

    TempFolder mFolder;

private:
    mode_t mFormerMask = 0;
};

TEST_F(OutputTargetTest, WhatItIs_TellsThemApart)
{
    mFolder.Write("file", "old");
    fs::create_directory(mFolder.Path("folder"));
    fs::create_symlink("folder", mFolder.Path("link"));
    ASSERT_EQ(::mkfifo(mFolder.Path("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(KindAt("file"), Kind::File);
    EXPECT_EQ(KindAt("absent"), Kind::Absent);
    EXPECT_EQ(KindAt("absent/file"), Kind::Absent);
    EXPECT_EQ(KindAt("folder"), Kind::Folder);
    EXPECT_EQ(KindAt("link"), Kind::Folder);
    EXPECT_EQ(KindAt("absent/"), Kind::Folder);
    EXPECT_EQ(KindAt("pipe"), Kind::Stream);
    EXPECT_EQ(OutputTarget("/dev/full").WhatItIs(), Kind::Stream);
    EXPECT_EQ(OutputTarget("-").WhatItIs(), Kind::StandardOutput);
    EXPECT_EQ(OutputTarget("/dev/stdout").WhatItIs(), Kind::StandardOutput);
}

TEST_F(OutputTargetTest, Write_NewFile_HasTheModeOfTheUsersFiles)
{
    At("file").Write("new");
    EXPECT_EQ(mFolder.Read("file"), "new");
    EXPECT_EQ(ModeOf("file"), 0640U);
}

TEST_F(OutputTargetTest, Write_File_KeepsItsMode)
{
    for (const mode_t mode : { 0664U, 0600U, 0755U }) {
        ::chmod(mFolder.Write("file", "old").c_str(), mode);
        At("file").Write("new");
        EXPECT_EQ(mFolder.Read("file"), "new");
        EXPECT_EQ(ModeOf("file"), mode);
    }
}

TEST_F(OutputTargetTest, Write_Link_IsFollowedAndStays)
{
    fs::create_directory(mFolder.Path("folder"));
    fs::create_symlink("folder/file", mFolder.Path("link"));
    fs::create_symlink("folder", mFolder.Path("way"));
    for (const auto* name : { "link", "way/file" }) {
        const auto target = At(name);
        EXPECT_EQ(target.Path().Text(), fs::canonical(mFolder.Path("folder")).string() + "/file");
        target.Write(name);
        EXPECT_EQ(mFolder.Read("folder/file"), name);
    }
    EXPECT_TRUE(fs::is_symlink(mFolder.Path("link")));
    EXPECT_TRUE(fs::is_symlink(mFolder.Path("way")));
}

TEST_F(OutputTargetTest, Write_Pipe_WaitsForItsReader)
{
    const auto path = mFolder.Path("pipe");
    ASSERT_EQ(::mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
    std::string got;
    std::thread reader([&] {
        const int pipe = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        std::array<char, 100> buffer {};
        for (auto count = ::read(pipe, buffer.data(), buffer.size()); count > 0;
             count = ::read(pipe, buffer.data(), buffer.size())) {
            got.append(buffer.data(), static_cast<std::size_t>(count));
        }
        ::close(pipe);
    });
    At("pipe").Write(std::string(10'000, 'x'));
    reader.join();
    EXPECT_EQ(got, std::string(10'000, 'x'));
    EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(OutputTargetTest, Write_WhatCantBeWritten_Fails)
{
    EXPECT_EQ(FailureNumber([] { OutputTarget("/dev/full").Write("x"); }), 61);
    EXPECT_EQ(FailureNumber([&] { At("absent/file").Write("x"); }), 76);
    EXPECT_EQ(FailureNumber([&] { OutputTarget(mFolder.Path()).Write("x"); }), 70);
    EXPECT_EQ(FailureNumber([] { OutputTarget("-").Write("x"); }), 70);
}

}
