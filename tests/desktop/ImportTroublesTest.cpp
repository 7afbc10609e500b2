#include "desktop/ImportTroubles.h"

#include "faults/Wrapped.h"
#include "host/system/HostFileSystem.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

#include <array>
#include <filesystem>

namespace tempodial {

namespace {

using testing::HasSubstr;

constexpr std::array<std::string_view, 1> Journal { "ImportJournal" };
constexpr std::array<std::string_view, 1> Hives { "Registry" };
constexpr std::array<std::string_view, 1> Streams { "TextStream" };
constexpr auto Name = "tracker_granules20061117.out";

/// A data folder whose tracker files are read, and what happens to them meanwhile.
class ImportTroublesTest : public testing::Test
{
protected:
    void Begin() { mTroubles->Before({ .classes = Journal, .member = "Begin" }); }
    void End() { mTroubles->Before({ .classes = Journal, .member = "End" }); }
    void Open(const std::string& name = Name) const
    {
        try {
            mFiles->OpenTextFile(mFolder.Path(name), OpenMode::Reading, false);
        } catch (const Failure&) {
            // The product goes on.
        }
    }
    /// What is said after an import during which something happens.
    template <class Work> std::string SaidAfter(const Work& disturb)
    {
        mFolder.Write(Name, "one\r\ntwo\r\n");
        Begin();
        Open();
        disturb();
        End();
        return mTroubles->Take();
    }

    TempFolder mFolder { TempFolder::InMemory() };
    Ref<ImportTroubles> mTroubles = MakeRef<ImportTroubles>("/log", mFolder.Path());
    Ref<FileSystemObject> mFiles = Wrapped(Ref<FileSystemObject>(MakeRef<HostFileSystem>("/tmp")), mTroubles);
    const std::string mPath = mFolder.Path(Name);
};

}

TEST_F(ImportTroublesTest, NothingHappens_NothingIsSaid)
{
    EXPECT_FALSE(mTroubles->TakeImported());
    EXPECT_EQ(SaidAfter([] {}), "");
    EXPECT_TRUE(mTroubles->TakeImported());
    EXPECT_FALSE(mTroubles->TakeImported());
    EXPECT_EQ(SaidAfter([this] { mFolder.Write(Name, "one\r\ntwo\r\nthree\r\n"); }), "") << "it may grow";
}

TEST_F(ImportTroublesTest, FileGoes_IsSaidOnce)
{
    EXPECT_EQ(SaidAfter([this] { std::filesystem::remove(mPath); }),
        "The tracker's file tracker_granules20061117.out has gone; what was imported of it is in the log: put it back "
        "into "
            + mFolder.Path() + ", or see whether the tracker still runs.");
    Begin();
    End();
    EXPECT_EQ(mTroubles->Take(), "");
}

TEST_F(ImportTroublesTest, FileGoesBetweenImports_IsSaidAtTheNext)
{
    SaidAfter([] {});
    std::filesystem::remove(mPath);
    Begin();
    EXPECT_THAT(mTroubles->Take(), HasSubstr("has gone"));
}

TEST_F(ImportTroublesTest, FileIsFinishedOrKept_NothingIsSaid)
{
    EXPECT_EQ(
        SaidAfter([this] { std::filesystem::rename(mPath, mFolder.Path("tracker_granules(done)20061117.out")); }), "");
    std::filesystem::remove(mFolder.Path("tracker_granules(done)20061117.out"));
    std::filesystem::create_directory(mFolder.Path("kept"));
    EXPECT_EQ(SaidAfter([this] { std::filesystem::rename(mPath, mFolder.Path("kept/" + std::string(Name))); }), "");
}

TEST_F(ImportTroublesTest, FileIsCut_IsSaidOnce)
{
    EXPECT_EQ(SaidAfter([this] { std::filesystem::resize_file(mPath, 4); }),
        "The tracker's file tracker_granules20061117.out has become shorter; what was imported of it is in the log: "
        "put "
        "a whole one back into "
            + mFolder.Path() + ", and refresh.");
    Begin();
    Open();
    End();
    EXPECT_EQ(mTroubles->Take(), "");
}

TEST_F(ImportTroublesTest, FileBecomesAFolder_IsSaidAndAlsoAtTheNextImport)
{
    const auto said = SaidAfter([this] {
        std::filesystem::remove(mPath);
        std::filesystem::create_directory(mPath);
    });
    EXPECT_EQ(said,
        "There is no file any more at " + mPath
            + "; what was imported of it is in the log: move away what stands there, and refresh.");
    Open();
    EXPECT_EQ(
        mTroubles->Take(), "There is a folder at " + mPath + ", where a file should be: move it away, and refresh.");
}

TEST_F(ImportTroublesTest, FileCantBeRead_IsNamedWithWhatToDo)
{
    mFolder.Write(Name, "one");
    mTroubles->Failed(
        { .classes = Streams, .member = "ReadLine", .key = {}, .path = mPath }, Failure(Error::PermissionDenied));
    mTroubles->Failed(
        { .classes = Streams, .member = "ReadLine", .key = {}, .path = mPath }, Failure(Error::PermissionDenied));
    EXPECT_EQ(mTroubles->Take(),
        mPath + " couldn't be read: Permission denied. See to that file and its rights, and refresh.");
    mTroubles->Failed({ .classes = Streams, .member = "Write", .key = {}, .path = mPath }, Failure(Error::DiskFull));
    EXPECT_THAT(mTroubles->Take(),
        HasSubstr("tracker_granules20061117.out couldn't be written. The disk is full, so nothing was changed"));
}

TEST_F(ImportTroublesTest, AbsentFile_IsNoTrouble)
{
    Open();
    End();
    EXPECT_EQ(mTroubles->Take(), "");
}

TEST_F(ImportTroublesTest, JournalAndRegistryFail_AreTold)
{
    mTroubles->Failed({ .classes = Journal, .member = "Commit" }, Failure(Error::DiskFull));
    EXPECT_THAT(
        mTroubles->Take(), HasSubstr("The import ended early, and goes on from there the next time. The disk is"));
    mTroubles->Failed({ .classes = Hives, .member = "Write", .key = "ProjectXML" }, Failure(Error::DiskFull));
    EXPECT_THAT(mTroubles->Take(), HasSubstr("\"ProjectXML\" couldn't be kept in registry.toml. The disk is full"));
}

}
