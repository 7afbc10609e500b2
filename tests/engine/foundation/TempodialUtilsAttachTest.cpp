#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialUtils.h"
#include "host/windows/HostMail.h"
#include "support/AddInFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A data folder apart from the trace, which names files that may be gone.
class NamedFiles : public TestFileSystem
{
public:
    using TestFileSystem::TestFileSystem;

    std::string path;
    std::vector<std::string> names;
    bool fails = false;

    Folder GetFolder(const std::string&) override
    {
        if (fails) {
            throw Failure(Error::PathNotFound);
        }
        Folder folder { path, {} };
        for (const auto& name : names) {
            folder.files.push_back({ name, path + "/" + name, 0, Date() });
        }
        return folder;
    }
};

}

class TempodialUtilsAttachTest : public AddInFixture
{
protected:
    TempodialUtilsAttachTest()
    {
        mFiles->path = mData.Path();
        mAddIn.platform->fileSystem = mFiles;
        mAddIn.main->mCommonUtils->Initialize(mAddIn.main->mTempodialDebugLog, "Tempodial", "16.0");
        mAddIn.main->mUtils->Initialize(mAddIn.main->mTempodialDebugLog, mAddIn.main);
        mAddIn.Trace();
    }

    void Attach(const Ref<MailItem>& mail, bool all)
    {
        mAddIn.main->mUtils->AttachDiagsFiles(mail, Date::FromYearMonthDay(2006, 10, 10), all);
    }
    void Write(const std::string& name) { static_cast<void>(mData.Write(name, "content of " + name)); }
    std::vector<std::string> Attached() const
    {
        std::vector<std::string> names;
        for (const auto& attachment : mMail->Draft().attachments) {
            EXPECT_EQ(attachment.content, "content of " + attachment.name);
            names.push_back(attachment.name);
        }
        return names;
    }

    TempFolder mData { TempFolder::InMemory() };
    Ref<NamedFiles> mFiles = MakeRef<NamedFiles>(mFolder.Path());
    Ref<HostMail> mMail = mAddIn.application->host->CreateItem().As<HostMail>();
};

TEST_F(TempodialUtilsAttachTest, AttachDiagsFiles_ChoosesByName)
{
    struct Row
    {
        const char* name;
        bool isAttached;
        bool isAttachedAmongAll;
    };
    constexpr Row rows[] = {
        { "WorkLogTrace1.out", true, true },
        { "WORKLOGTRACE1.OUT", true, true },
        { "worklogtrace2.old", true, true },
        { "WorkLogTrace3.txt", false, false },
        { "TDCaptureLog1.out", true, true },
        { "TDCaptureLog2.txt", true, true },
        { "old tdcapturelog1", true, true },
        { "TDCaptureLog.txt", false, false },
        { "tracker_granules20061010.out", true, true },
        { "tracker_granules(done)20061010.out", true, true },
        { "tracker_granules20061009.out", false, true },
        { "TempodialHistory.out", false, true },
        { "x20061010.OUT", false, false },
        { "20061010.output", true, true },
        { "20061010.txt", false, false },
        { "Analysis.html", false, false },
    };
    for (const auto& row : rows) {
        Write(row.name);
        mFiles->names = { row.name };
        for (const bool all : { false, true }) {
            mMail = mAddIn.application->host->CreateItem().As<HostMail>();
            Attach(mMail, all);
            EXPECT_EQ(Attached().size(), (all ? row.isAttachedAmongAll : row.isAttached) ? 1U : 0U)
                << row.name << ", all " << all;
            EXPECT_THAT(mAddIn.Trace(), ElementsAre("TDUtils file: " + std::string(row.name)));
        }
    }
}

TEST_F(TempodialUtilsAttachTest, AttachDiagsFiles_FileThatCanNotBeAttached_CostsALineAndTheWalkGoesOn)
{
    mFiles->names = { "TDCaptureLog1.out", "gone trace1", "other", "tracker_granules20061010.out" };
    Write("TDCaptureLog1.out");
    Write("tracker_granules20061010.out");
    Attach(mMail, false);
    EXPECT_THAT(Attached(), ElementsAre("TDCaptureLog1.out", "tracker_granules20061010.out"));
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre("TDUtils file: TDCaptureLog1.out", "TDUtils file: gone trace1",
            "TDUtils Attachdiagsfiles error File not found Buildpath", "TDUtils file: other",
            "TDUtils file: tracker_granules20061010.out"));
}

TEST_F(TempodialUtilsAttachTest, AttachDiagsFiles_NoMail_CostsALineForEachFile)
{
    mFiles->names = { "trace1", "other", "trace2" };
    Attach(nullptr, false);
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre("TDUtils file: trace1",
            "TDUtils Attachdiagsfiles error Object variable or With block variable not set Buildpath",
            "TDUtils file: other", "TDUtils file: trace2",
            "TDUtils Attachdiagsfiles error Object variable or With block variable not set Buildpath"));
}

TEST_F(TempodialUtilsAttachTest, AttachDiagsFiles_NoDataFolder_AttachesNothingAndCostsALine)
{
    mFiles->fails = true;
    mFiles->names = { "trace1" };
    Attach(mMail, true);
    EXPECT_THAT(Attached(), IsEmpty());
    EXPECT_THAT(mAddIn.Trace(),
        ElementsAre("TDUtils Attachdiagsfiles error Object variable or With block variable not set get files"));
}

}
