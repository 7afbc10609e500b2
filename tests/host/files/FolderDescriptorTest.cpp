#include "host/files/FolderDescriptor.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace fs = std::filesystem;

class FolderDescriptorTest : public testing::Test
{
protected:
    TempFolder mTemp;
    FolderDescriptor mFolder { NativePath(mTemp.Path()) };
};

TEST_F(FolderDescriptorTest, Holder_Locked_IsThisProgram)
{
    const TempFolder inMemory { TempFolder::InMemory() };
    const FolderDescriptor folder { NativePath(inMemory.Path()) };
    EXPECT_FALSE(folder.Holder());
    const FolderDescriptor other { NativePath(inMemory.Path()) };
    ASSERT_TRUE(other.TryLock());
    EXPECT_FALSE(folder.TryLock());
    const auto holder = folder.Holder();
    ASSERT_TRUE(holder);
    EXPECT_EQ(holder->process, std::to_string(::getpid()));
    EXPECT_EQ(holder->program, "host_files_tests");
}

TEST_F(FolderDescriptorTest, IsWritableByOthers_Modes_AreTold)
{
    for (const auto& [mode, isWritable] : { std::pair(0700, false), { 0755, false }, { 0720, true }, { 0702, true } }) {
        ASSERT_EQ(::chmod(mTemp.Path().c_str(), static_cast<mode_t>(mode)), 0);
        EXPECT_EQ(mFolder.IsWritableByOthers(), isWritable) << mode;
    }
}

TEST_F(FolderDescriptorTest, Open_NoFolder_Fails)
{
    const auto failure = [&](const std::string& name) {
        return FailureNumber([&] { const FolderDescriptor folder(NativePath(mTemp.Path(name))); });
    };
    mTemp.Write("file", "");
    EXPECT_EQ(failure("absent"), 76);
    EXPECT_EQ(failure("absent/below"), 76);
    EXPECT_EQ(failure("file"), 76);
}

TEST_F(FolderDescriptorTest, Files_AreTheRegularOnesEachTime)
{
    EXPECT_TRUE(mFolder.Files().empty());
    EXPECT_TRUE(mFolder.IsEmpty());
    fs::create_directory(mTemp.Path("folder"));
    EXPECT_FALSE(mFolder.IsEmpty());
    fs::create_symlink(mTemp.Write("file", "abc"), mTemp.Path("link"));
    ASSERT_EQ(::mkfifo(mTemp.Path("pipe").c_str(), 0600), 0);
    for (int time = 0; time < 2; ++time) {
        const auto files = mFolder.Files();
        ASSERT_EQ(files.size(), 1U);
        EXPECT_EQ(files[0].name, "file");
        EXPECT_EQ(files[0].status.size, 3U);
    }
}

TEST_F(FolderDescriptorTest, TryLock_HeldByAnother_IsFalseUntilThatIsClosed)
{
    {
        const FolderDescriptor other { NativePath(mTemp.Path()) };
        EXPECT_TRUE(other.TryLock());
        EXPECT_FALSE(mFolder.TryLock());
    }
    EXPECT_TRUE(mFolder.TryLock());
}

TEST_F(FolderDescriptorTest, CloseToOthers_TakesTheirAccess)
{
    fs::permissions(mTemp.Path(), fs::perms(0755));
    EXPECT_TRUE(mFolder.IsOpenToOthers());
    mFolder.CloseToOthers();
    EXPECT_FALSE(mFolder.IsOpenToOthers());
    EXPECT_EQ(fs::status(mTemp.Path()).permissions(), fs::perms(0700));
}

TEST_F(FolderDescriptorTest, Everything_InOrder_LinksAsWhatTheyAre)
{
    mTemp.Write("b", "xy");
    fs::create_directory(mTemp.Path("a"));
    fs::create_symlink(mTemp.Path("b"), mTemp.Path("c"));
    std::string seen;
    for (const auto& entry : mFolder.Everything()) {
        seen += entry.name + std::to_string(static_cast<int>(entry.status.kind)) + " ";
    }
    EXPECT_EQ(seen, "a1 b0 c2 ");
}

TEST_F(FolderDescriptorTest, StatusOf_Names_AreLookedAtBehindLinks)
{
    mTemp.Write("file", "1234567");
    fs::create_symlink("file", mTemp.Path("link"));
    for (const auto* name : { "file", "link" }) {
        const auto status = mFolder.StatusOf(name);
        ASSERT_TRUE(status) << name;
        EXPECT_EQ(status->kind, FileStatus::Kind::File) << name;
        EXPECT_EQ(status->size, 7U) << name;
    }
    EXPECT_FALSE(mFolder.StatusOf("absent"));
}

TEST_F(FolderDescriptorTest, IsAt_AnotherInItsPlace_IsFalse)
{
    EXPECT_TRUE(mFolder.IsAt(NativePath(mTemp.Path())));
    fs::create_directory(mTemp.Path("moved"));
    const FolderDescriptor moved { NativePath(mTemp.Path("moved")) };
    fs::rename(mTemp.Path("moved"), mTemp.Path("away"));
    EXPECT_FALSE(moved.IsAt(NativePath(mTemp.Path("moved"))));
    fs::create_directory(mTemp.Path("moved"));
    EXPECT_FALSE(moved.IsAt(NativePath(mTemp.Path("moved"))));
    EXPECT_TRUE(moved.IsAt(NativePath(mTemp.Path("away"))));
}

}
