#include "faults/ProblemRecorder.h"

#include "faults/Wrapped.h"
#include "support/AddInFixture.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

class ProblemRecorderTest : public testing::Test
{
protected:
    ProblemRecorderTest()
    {
        mInner->hook = [this](const std::string& operation, const std::string&) {
            if (operation == mFailing) {
                throw Failure(Error::PermissionDenied);
            }
        };
    }

    using Messages = std::vector<std::string>;

    TempFolder mFolder;
    std::string mFailing;
    Ref<TestFileSystem> mInner = MakeRef<TestFileSystem>(mFolder.Path());
    Ref<Problems> mProblems = MakeRef<Problems>();
    Ref<ProblemRecorder> mRecorder = MakeRef<ProblemRecorder>(mProblems);
    Ref<FileSystemObject> mFiles = Wrapped(Ref<FileSystemObject>(mInner), mRecorder);
};

}

TEST_F(ProblemRecorderTest, OpenTextFile_Readable_ReadsAsBefore)
{
    const auto path = mFolder.Write("a", "x\r\n");
    const auto stream = mFiles->OpenTextFile(path, OpenMode::Reading, false);
    EXPECT_EQ(stream->ReadLine(), "x");
    EXPECT_THROW(stream->ReadLine(), Failure);
    stream->Close();
    EXPECT_TRUE(mProblems->Messages().empty());
}

TEST_F(ProblemRecorderTest, OpenTextFile_AbsentFileOrFolder_IsNoProblem)
{
    EXPECT_THROW(mFiles->OpenTextFile(mFolder.Path("a"), OpenMode::Reading, false), Failure);
    EXPECT_THROW(mFiles->OpenTextFile(mFolder.Path("b/a"), OpenMode::Reading, false), Failure);
    EXPECT_THROW(mFiles->DeleteFile(mFolder.Path("a"), true), Failure);
    EXPECT_TRUE(mProblems->Messages().empty());
}

TEST_F(ProblemRecorderTest, OpenTextFile_Refused_IsNamedOnceAndFails)
{
    const auto path = mFolder.Write("a", "x");
    mFailing = "open";
    EXPECT_THROW(mFiles->OpenTextFile(path, OpenMode::Reading, false), Failure);
    EXPECT_THROW(mFiles->OpenTextFile(path, OpenMode::Reading, false), Failure);
    EXPECT_EQ(mProblems->Messages(),
        Messages { path + " couldn't be read: Permission denied: see to the file and run the command again" });
}

TEST_F(ProblemRecorderTest, CopyMoveDelete_Refused_AreNamed)
{
    const auto path = mFolder.Write("a", "x");
    for (const auto* operation : { "copy", "move", "delete" }) {
        mFailing = operation;
        EXPECT_ANY_THROW(mFiles->CopyFile(path, mFolder.Path("b"), true); mFiles->MoveFile(path, mFolder.Path("c"));
                         mFiles->DeleteFile(mFolder.Path("c"), true));
        EXPECT_EQ(mProblems->Messages().size(),
            static_cast<std::size_t>(mFailing == "copy" ? 1
                    : mFailing == "move"                ? 2
                                                        : 3));
    }
}

TEST_F(ProblemRecorderTest, Write_DiskRefuses_IsNamed)
{
    const auto stream = mFiles->OpenTextFile(mFolder.Path("a"), OpenMode::Writing, true);
    mFailing = "write";
    EXPECT_THROW(stream->WriteLine("x"), Failure);
    EXPECT_EQ(mProblems->Messages(),
        Messages {
            mFolder.Path("a") + " couldn't be written: Permission denied: see to the file and run the command again" });
    EXPECT_TRUE(mProblems->HasOneWith(mFolder.Path("a")));
}

TEST_F(ProblemRecorderTest, Commit_Fails_IsToldAndFails)
{
    class FailingJournal : public NoImportJournal
    {
    public:
        void Commit() override { throw Failure(Error::DiskFull); }
    };
    const auto journal = Wrapped(Ref<ImportJournal>(MakeRef<FailingJournal>()), mRecorder);
    journal->Begin();
    journal->Loaded("20061010", {});
    EXPECT_EQ(journal->Committed("20061010").has_value(), false);
    EXPECT_TRUE(mProblems->Messages().empty());
    EXPECT_THROW(journal->Commit(), Failure);
    EXPECT_THROW(journal->Commit(), Failure);
    EXPECT_EQ(mProblems->Messages(),
        (Messages {
            "activities couldn't be saved in the mailbox: Disk full: see to the disk and run the command again" }));
}

TEST_F(ProblemRecorderTest, RegistryWrite_Fails_IsToldAndFails)
{
    class FailingRegistry : public Registry
    {
    public:
        Variant Read(Hive, const std::string&, const std::string&, RegistryAccess) override { return "read"; }
        void Write(Hive, const std::string&, const std::string&, const std::string&) override
        {
            throw Failure(Error::DiskFull);
        }
    };
    const auto registry = Wrapped(Ref<Registry>(MakeRef<FailingRegistry>()), mRecorder);
    EXPECT_EQ(registry->Read(Hive::CurrentUser, "", "A", RegistryAccess::Query), Variant("read"));
    EXPECT_TRUE(mProblems->Messages().empty());
    EXPECT_THROW(registry->Write(Hive::CurrentUser, "", "A", "b"), Failure);
    ASSERT_EQ(mProblems->Messages().size(), 1U);
    EXPECT_TRUE(
        mProblems->Messages().front().starts_with("the value \"A\" couldn't be kept in registry.toml: Disk full: "));
}

}
