#include "host/files/ReplacementFile.h"

#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

namespace fs = std::filesystem;

class ReplacementFileTest : public testing::Test
{
protected:
    std::int32_t Failing(const std::string& name, ReplacementFile::Old old = ReplacementFile::Old::MayBeAbsent) const
    {
        return FailureNumber([&] { const ReplacementFile file(NativePath::Exactly(mFolder.Path(name)), old); });
    }

    TempFolder mFolder;
};

TEST_F(ReplacementFileTest, Commit_TakesTheFilesPlace)
{
    mFolder.Write("file", "old");
    ReplacementFile file(NativePath(mFolder.Path("file")));
    file.Write("new");
    EXPECT_EQ(mFolder.Read("file"), "old");
    file.Commit();
    EXPECT_EQ(mFolder.Read("file"), "new");
    EXPECT_FALSE(mFolder.Has(".file.new"));
}

TEST_F(ReplacementFileTest, NotCommitted_LeavesTheOldFile)
{
    mFolder.Write("file", "old");
    ReplacementFile(NativePath(mFolder.Path("file"))).Write("new");
    EXPECT_EQ(mFolder.Read("file"), "old");
    EXPECT_FALSE(mFolder.Has(".file.new"));
}

TEST_F(ReplacementFileTest, Open_WhatMayNotBeReplaced_Fails)
{
    fs::create_directory(mFolder.Path("folder"));
    fs::create_symlink(mFolder.Write("file", "old"), mFolder.Path("link"));
    mFolder.Write("protected", "old");
    fs::permissions(mFolder.Path("protected"), fs::perms::owner_read);
    EXPECT_EQ(Failing("folder"), 70);
    EXPECT_EQ(Failing("link"), 70);
    EXPECT_EQ(Failing("protected"), 70);
    EXPECT_EQ(Failing("absent/file"), 76);
    EXPECT_EQ(Failing("absent"), 0);
    EXPECT_EQ(Failing("absent", ReplacementFile::Old::MustExist), 53);
}

TEST_F(ReplacementFileTest, Commit_NameThatHoldsABackslash_IsReplacedInItsFolder)
{
    mFolder.Write(R"(a\b)", "old");
    ReplacementFile file(NativePath(mFolder.Path(R"(a\b)")));
    file.Write("new");
    file.Commit();
    EXPECT_EQ(mFolder.Read(R"(a\b)"), "new");
}

TEST_F(ReplacementFileTest, DiscardLeftovers_TakesWhatKilledRunsLeftAndNothingElse)
{
    for (const auto* name : { ".2006.csv.new", ".a.new" }) {
        mFolder.Write(name, "x");
    }
    for (const auto* name : { "2006.csv", "a.new", ".hidden" }) {
        mFolder.Write(name, "x");
    }
    fs::create_directory(mFolder.Path(".folder.new"));
    fs::create_symlink("2006.csv", mFolder.Path(".link.new"));
    ReplacementFile::DiscardLeftovers(NativePath::Exactly(mFolder.Path()));
    ReplacementFile::DiscardLeftovers(NativePath::Exactly(mFolder.Path("absent")));
    EXPECT_FALSE(mFolder.Has(".2006.csv.new") || mFolder.Has(".a.new"));
    for (const auto* name : { "2006.csv", "a.new", ".hidden", ".folder.new", ".link.new" }) {
        EXPECT_TRUE(mFolder.Has(name)) << name;
    }
}

}
