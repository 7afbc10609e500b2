#include "host/files/UnpackedFolder.h"

#include "host/files/ArchiveFile.h"
#include "support/FailureNumber.h"
#include "support/TarArchive.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <utility>

namespace tempodial {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class UnpackedFolderTest : public testing::Test
{
protected:
    /// What is wrong with an archive, empty when it is unpacked; what came of it stays.
    std::string Problem(const std::vector<TarMember>& members) { return ProblemOf(Gzip(Tar(members))); }
    std::string ProblemOf(const std::string& archive)
    {
        const ArchiveFile file(NativePath(mTemp.Write("a.tar.gz", archive)));
        try {
            file.RequireWhole();
            UnpackedFolder folder(mPath, "top", [](const std::string& name) { return name.ends_with("-wal"); });
            file.Unpack(folder);
            folder.Finish();
            folder.Keep();
            return "";
        } catch (const ArchiveError& error) {
            return error.what();
        }
    }
    /// All that stands in the temporary folder but for the archive, in order.
    std::vector<std::string> Everything() const
    {
        std::vector<std::string> paths;
        for (const auto& entry : fs::recursive_directory_iterator(mTemp.Path())) {
            paths.push_back(fs::relative(entry.path(), mTemp.Path()).string());
        }
        std::erase(paths, "a.tar.gz");
        std::sort(paths.begin(), paths.end());
        return paths;
    }
    static mode_t ModeOf(const std::string& path)
    {
        struct stat status
        {
        };
        EXPECT_EQ(::stat(path.c_str(), &status), 0);
        return status.st_mode & ACCESSPERMS;
    }

    TempFolder mTemp { TempFolder::InMemory() };
    NativePath mPath { mTemp.Path("new") };
};

}

TEST_F(UnpackedFolderTest, Unpack_FilesAndFolders_AreThere)
{
    EXPECT_EQ(Problem({ { "top/", "", '5' }, { "top/a", "one" }, { "top/b", "", '5' }, { "top/b/c", "two" },
                  { "top/d/e/f", "" }, { "top/d", "", '5' } }),
        "");
    EXPECT_THAT(Everything(), ElementsAre("new", "new/a", "new/b", "new/b/c", "new/d", "new/d/e", "new/d/e/f"));
    EXPECT_EQ(mTemp.Read("new/a"), "one");
    EXPECT_EQ(mTemp.Read("new/b/c"), "two");
    EXPECT_EQ(ModeOf(mTemp.Path("new")), 0700U);
    EXPECT_EQ(ModeOf(mTemp.Path("new/b")), 0700U);
    EXPECT_EQ(ModeOf(mTemp.Path("new/a")), 0600U);
    struct stat status
    {
    };
    ASSERT_EQ(::stat(mTemp.Path("new/a").c_str(), &status), 0);
    EXPECT_EQ(status.st_mtime, 1160500000);
}

TEST_F(UnpackedFolderTest, Unpack_NamesThatLeadElsewhere_LeaveNothing)
{
    for (const auto* name :
        { "../a", "top/../../a", "/tmp/a", "//a", "top//a", "top/./a", "./top/a", "a", "topper/a", "top/a\\..\\b",
            "top/a\nb", "top/..", "..", ".", "/", "top/x-wal", "top/x-wal/a", "top/1/2/3/4/5/6/7/8" }) {
        EXPECT_THAT(Problem({ { "top/first", "x" }, { name, "x" } }), HasSubstr("it holds \"")) << name;
        EXPECT_THAT(Everything(), IsEmpty()) << name;
    }
    EXPECT_NE(Problem({ { "top/" + std::string(90, 'a') + "\xff", "" }, { "", "" } }), "");
    EXPECT_THAT(Everything(), IsEmpty());
}

TEST_F(UnpackedFolderTest, Unpack_WhatIsNoFile_LeavesNothing)
{
    for (const char type : { '1', '2', '3', '4', '6' }) {
        EXPECT_THAT(Problem({ { "top/a", "x" }, { "top/b", "", type, "top/a" } }),
            HasSubstr("it holds \"top/b\", which is neither a file nor a folder"))
            << type;
        EXPECT_THAT(Everything(), IsEmpty()) << type;
    }
    EXPECT_THAT(Problem({ { "top/b", "", '2', "/etc" }, { "top/b/passwd", "x" } }), HasSubstr("top/b"));
    EXPECT_THAT(Problem({ { "top", "x" } }), HasSubstr("no folder"));
    EXPECT_THAT(Everything(), IsEmpty());
}

TEST_F(UnpackedFolderTest, Unpack_MembersTwice_LeaveNothing)
{
    EXPECT_THAT(Problem({ { "top/a", "x" }, { "top/a", "y" } }), HasSubstr("\"top/a\", and that twice"));
    EXPECT_THAT(Problem({ { "top/a", "x" }, { "top/a", "", '5' } }), HasSubstr("twice"));
    EXPECT_THAT(Problem({ { "top/a", "", '5' }, { "top/a", "x" } }), HasSubstr("twice"));
    EXPECT_THAT(Problem({ { "top/a", "x" }, { "top/a/b", "y" } }), HasSubstr("below a file"));
    EXPECT_THAT(Everything(), IsEmpty());
}

TEST_F(UnpackedFolderTest, RequireWhole_CutOrChanged_IsRefused)
{
    const auto whole = Gzip(Tar({ { "top/a", std::string(1000, 'x') } }));
    for (std::size_t size = 0; size < whole.size(); size += size < 30 || size + 30 > whole.size() ? 1 : 37) {
        EXPECT_NE(ProblemOf(whole.substr(0, size)), "") << size;
        EXPECT_THAT(Everything(), IsEmpty()) << size;
    }
    for (std::size_t at = 600; at < whole.size(); at += 50) {
        auto changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 1);
        EXPECT_NE(ProblemOf(changed), "") << at;
    }
    EXPECT_NE(ProblemOf(whole + "x"), "");
    EXPECT_NE(ProblemOf("no archive"), "");
    EXPECT_NE(ProblemOf(Gzip(whole)), "") << "compressed twice";
    EXPECT_NE(ProblemOf(Gzip("no archive")), "");
    EXPECT_THAT(Everything(), IsEmpty());
    EXPECT_EQ(ProblemOf(whole), "");
}

TEST_F(UnpackedFolderTest, Make_LeftOverOrHeld_IsMadeAnewOrRefused)
{
    mTemp.Write("kept", "x");
    fs::create_directories(mTemp.Path("new/old"));
    fs::create_symlink(mTemp.Path(), mTemp.Path("new/link"));
    {
        const UnpackedFolder folder(mPath, "top", [](const std::string&) { return false; });
        EXPECT_TRUE(fs::is_empty(mTemp.Path("new")));
        EXPECT_EQ(
            FailureNumber([&] { const UnpackedFolder other(mPath, "top", [](const std::string&) { return false; }); }),
            70);
    }
    EXPECT_THAT(Everything(), ElementsAre("kept"));
}

TEST_F(UnpackedFolderTest, Pack_Unpacked_IsTheSame)
{
    class Source final : public ArchiveSource
    {
    public:
        bool Next(ArchiveMember& member) override
        {
            member = { mCount == 0 ? ArchiveMember::Kind::Folder : ArchiveMember::Kind::File,
                mCount == 0 ? "top" : "top/\u00e4 " + std::to_string(mCount), mCount == 0 ? 0 : mText.size(),
                1160500000 };
            mRest = mText;
            return mCount++ < 3;
        }
        std::size_t Read(char* buffer, std::size_t length) override
        {
            const auto count = mRest.copy(buffer, std::min<std::size_t>(length, 1000));
            mRest.remove_prefix(count);
            return count;
        }

        const std::string mText = std::string(100000, 'a') + "b";

    private:
        int mCount = 0;
        std::string_view mRest;
    };
    const auto packed = [] {
        Source source;
        std::string archive;
        ArchiveFile::Pack(source, [&archive](std::string_view bytes) { archive += bytes; });
        return archive;
    };
    EXPECT_EQ(ProblemOf(packed()), "");
    EXPECT_THAT(Everything(), ElementsAre("new", "new/\u00e4 1", "new/\u00e4 2"));
    EXPECT_EQ(mTemp.Read("new/\u00e4 2"), Source().mText);
    EXPECT_EQ(packed(), packed());
}

TEST_F(UnpackedFolderTest, RequireWhole_ExpandsToFarTooMuch_IsRefused)
{
    class Zeros final : public ArchiveSource
    {
    public:
        bool Next(ArchiveMember& member) override
        {
            member = { ArchiveMember::Kind::File, "top/zeros", std::uint64_t { 80 } << 20, 0 };
            return std::exchange(mIsFirst, false);
        }
        std::size_t Read(char* buffer, std::size_t length) override
        {
            std::fill_n(buffer, length, '\0');
            return length;
        }

    private:
        bool mIsFirst = true;
    };
    Zeros zeros;
    std::string archive;
    ArchiveFile::Pack(zeros, [&archive](std::string_view bytes) { archive += bytes; });
    EXPECT_THAT(ProblemOf(archive), HasSubstr("far more"));
    EXPECT_THAT(Everything(), IsEmpty());
}

TEST_F(UnpackedFolderTest, Pack_SinkFails_FailsSo)
{
    class Empty final : public ArchiveSource
    {
    public:
        bool Next(ArchiveMember&) override { return false; }
        std::size_t Read(char*, std::size_t) override { return 0; }
    };
    Empty empty;
    EXPECT_EQ(
        FailureNumber([&] { ArchiveFile::Pack(empty, [](std::string_view) { throw Failure(Error::DiskFull); }); }), 61);
}

}
