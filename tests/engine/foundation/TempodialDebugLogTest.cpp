#include "engine/foundation/TempodialDebugLog.h"

#include "base/Failure.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "host/system/HostFileSystem.h"
#include "host/system/IcuLocaleFormats.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr auto File1 = "Tempodial/WorkLogTrace1.out";
constexpr auto File2 = "Tempodial/WorkLogTrace2.out";
constexpr auto Head = "Tempodial Version: 1.2.0\r\n\r\n";

class OneThread : public Shell
{
public:
    void Open(const std::string&) override { }
    std::int32_t ThreadId() override { return 7; }
};

/// The forms of en_US, counting how often a date was made text.
class CountingFormats : public IcuLocaleFormats
{
public:
    CountingFormats()
        : IcuLocaleFormats("en_US")
    {
    }

    std::string ShortDate(Date date) override
    {
        ++count;
        return IcuLocaleFormats::ShortDate(date);
    }
    std::string LongTime(Date date) override
    {
        ++count;
        if (fails) {
            throw Failure(Error::Automation);
        }
        return IcuLocaleFormats::LongTime(date);
    }

    int count = 0;
    bool fails = false;
};

/// Files of which some operations fail on demand.
class FailingFileSystem : public HostFileSystem
{
public:
    using HostFileSystem::HostFileSystem;

    void MoveFile(const std::string& source, const std::string& target) override
    {
        if (failsMove) {
            throw Failure(Error::PermissionDenied);
        }
        HostFileSystem::MoveFile(source, target);
    }
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override
    {
        if (failsOpen) {
            throw Failure(Error::PermissionDenied);
        }
        return HostFileSystem::OpenTextFile(path, mode, create);
    }

    bool failsMove = false;
    bool failsOpen = false;
};

}

class TempodialDebugLogTest : public testing::Test
{
protected:
    TempodialDebugLogTest()
    {
        const auto platform = MakeRef<Platform>();
        platform->fileSystem = mFiles;
        platform->clock = mClock;
        platform->formats = mFormats;
        platform->shell = MakeRef<OneThread>();
        mUtils = MakeRef<TempodialCommonUtils>(platform);
        mUtils->Initialize(nullptr, "Tempodial", "16.0");
        mLog = MakeRef<TempodialDebugLog>(platform);
        mLog->Initialize(mUtils, "1.2.0", "WorkLogTrace1.out", "WorkLogTrace2.out", 0);
    }

    static std::string Line(const std::string& text) { return "7 10/10/2006 9:05:00 AM: " + text + "\r\n"; }
    std::string Trace() const { return mFolder.Read(File1); }
    void WriteFile1(std::size_t size) const
    {
        std::filesystem::create_directory(mFolder.Path("Tempodial"));
        mFolder.Write(File1, std::string(size, 'x'));
    }

    TempFolder mFolder;
    Ref<FailingFileSystem> mFiles = MakeRef<FailingFileSystem>(mFolder.Path());
    Ref<ManualClock> mClock = MakeRef<ManualClock>(Date::FromParts({ 2006, 10, 10, 9, 5, 0 }));
    Ref<CountingFormats> mFormats = MakeRef<CountingFormats>();
    Ref<TempodialCommonUtils> mUtils;
    Ref<TempodialDebugLog> mLog;
};

TEST_F(TempodialDebugLogTest, Initialize_TouchesNoFile)
{
    EXPECT_EQ(mLog->mTraceInfo, "TDDebugLog");
    EXPECT_EQ(mLog->mFlushLength, 0);
    EXPECT_FALSE(mFolder.Has("Tempodial"));
}

TEST_F(TempodialDebugLogTest, Start_NothingThere_MakesFolderAndFileWithHead)
{
    mLog->Start();
    EXPECT_EQ(Trace(), Head + Line("TDDebugLog revision 1 TempodialDebugLog TRACE SESSION START "));
    EXPECT_FALSE(mFolder.Has(File2));
}

TEST_F(TempodialDebugLogTest, Out_Unbuffered_EachLineIsOnDiskAtOnce)
{
    mLog->Out("TDMain", "one");
    EXPECT_EQ(Trace(), Head + Line("TDMain one"));
    mLog->Out("TDMain", "two\r\nlines");
    EXPECT_EQ(Trace(), Head + Line("TDMain one") + Line("TDMain two\r\nlines"));
}

TEST_F(TempodialDebugLogTest, Out_AtMidnight_TheStampHasBothParts)
{
    mClock->Set(Date::FromYearMonthDay(2006, 10, 10));
    mLog->Out("TDMain", "text");
    EXPECT_THAT(Trace(), EndsWith("7 10/10/2006 12:00:00 AM: TDMain text\r\n"));
}

TEST_F(TempodialDebugLogTest, Out_TimePasses_TheStampFollowsAndIsMadeOnceASecond)
{
    mLog->Out("TDMain", "one");
    mLog->Out("TDMain", "two");
    EXPECT_EQ(mFormats->count, 2);
    mClock->Advance(1);
    mLog->Out("TDMain", "three");
    EXPECT_EQ(mFormats->count, 4);
    EXPECT_THAT(Trace(), EndsWith("7 10/10/2006 9:05:01 AM: TDMain three\r\n"));
}

TEST_F(TempodialDebugLogTest, Out_StampFails_KeepsTheLastOne)
{
    mLog->Out("TDMain", "one");
    mFormats->fails = true;
    mClock->Advance(1);
    mLog->Out("TDMain", "two");
    EXPECT_EQ(Trace(), Head + Line("TDMain one") + Line("TDMain two"));
}

TEST_F(TempodialDebugLogTest, Out_FileOf300000Bytes_IsNotRolled)
{
    WriteFile1(300000);
    mLog->Out("TDMain", "text");
    EXPECT_EQ(Trace(), std::string(300000, 'x') + Line("TDMain text"));
    EXPECT_FALSE(mFolder.Has(File2));
}

TEST_F(TempodialDebugLogTest, Out_FileOfOneByteMore_IsRolledAtTheNextFlush)
{
    WriteFile1(300001);
    mFolder.Write(File2, "older");
    mLog->Out("TDMain", "text");
    EXPECT_EQ(Trace(), Head + Line("TDMain text"));
    EXPECT_EQ(mFolder.Read(File2), std::string(300001, 'x'));
}

TEST_F(TempodialDebugLogTest, Out_RollOverFails_GoesOnInTheFullFile)
{
    WriteFile1(300001);
    mFiles->failsMove = true;
    mLog->Out("TDMain", "text");
    EXPECT_EQ(Trace(), std::string(300001, 'x') + Line("TDMain text"));
}

TEST_F(TempodialDebugLogTest, Out_OpenFails_LosesTheLinesAndGoesOn)
{
    mFiles->failsOpen = true;
    mLog->Out("TDMain", "lost");
    mFiles->failsOpen = false;
    mLog->Out("TDMain", "kept");
    EXPECT_EQ(Trace(), Head + Line("TDMain kept"));
}

TEST_F(TempodialDebugLogTest, Out_Buffered_FlushesOnlyAbove2500Characters)
{
    mLog->Out("TDMain", "first");
    mLog->SetBufferedTrace(true);
    EXPECT_EQ(mLog->mFlushLength, 2500);
    const auto before = Trace();
    // Characters count, not bytes.
    const auto headLength = Line("TDMain ").size() - 2;
    std::string text;
    for (std::size_t i = headLength; i < 2500; ++i) {
        text += "\xC3\xA4";
    }
    mLog->Out("TDMain", text);
    EXPECT_EQ(Trace(), before);
    mLog->FlushIt();
    EXPECT_EQ(Trace(), before + Line("TDMain " + text));

    mLog->Out("TDMain", text + "x");
    EXPECT_EQ(Trace(), before + Line("TDMain " + text) + Line("TDMain " + text + "x"));
}

TEST_F(TempodialDebugLogTest, Out_Buffered_LineEndsCountTwo)
{
    mLog->SetBufferedTrace(true);
    const auto headLength = Line("TDMain ").size() - 2;
    const std::string half(1249 - headLength, 'x');
    mLog->Out("TDMain", half);
    mLog->Out("TDMain", half);
    EXPECT_FALSE(mFolder.Has(File1));
    mLog->FlushIt();
    mLog->Out("TDMain", half);
    mLog->Out("TDMain", half + "x");
    EXPECT_THAT(Trace(), EndsWith(half + "x\r\n"));
}

TEST_F(TempodialDebugLogTest, FlushIt_BufferedLines_AreWrittenInOrderWithOneLineEndEach)
{
    mLog->SetBufferedTrace(true);
    mLog->Out("TDMain", "a");
    mLog->Out("TDMain", "b");
    mLog->FlushIt();
    EXPECT_EQ(Trace(), Head + Line("TDMain a") + Line("TDMain b"));
}

TEST_F(TempodialDebugLogTest, FlushIt_EmptyBuffer_AppendsAnEmptyLine)
{
    mLog->FlushIt();
    EXPECT_EQ(Trace(), std::string(Head) + "\r\n");
}

TEST_F(TempodialDebugLogTest, SetBufferedTrace_Off_WritesNothingUntilTheNextLine)
{
    mLog->SetBufferedTrace(true);
    mLog->Out("TDMain", "a");
    mLog->SetBufferedTrace(false);
    EXPECT_FALSE(mFolder.Has(File1));
    mLog->Out("TDMain", "b");
    EXPECT_EQ(Trace(), Head + Line("TDMain a") + Line("TDMain b"));
}

TEST_F(TempodialDebugLogTest, Terminate_Unbuffered_WritesTheStopLineAndAnEmptyOne)
{
    mLog->Start();
    mLog->Terminate();
    EXPECT_THAT(Trace(), EndsWith(Line("TDDebugLog TRACE SESSION STOP") + "\r\n"));
}

TEST_F(TempodialDebugLogTest, Terminate_Buffered_WritesEverything)
{
    mLog->SetBufferedTrace(true);
    mLog->Out("TDMain", "a");
    mLog->Terminate();
    EXPECT_EQ(Trace(), Head + Line("TDMain a") + Line("TDDebugLog TRACE SESSION STOP"));
}

TEST_F(TempodialDebugLogTest, Terminate_NothingWasWritten_MakesNoFile)
{
    mLog->Terminate();
    EXPECT_FALSE(mFolder.Has("Tempodial"));
}

TEST_F(TempodialDebugLogTest, Terminate_LaterLines_AreNotWritten)
{
    mLog->Start();
    mLog->Terminate();
    const auto end = Trace();
    mLog->Out("TDMain", "too late");
    mLog->FlushIt();
    mLog->Start();
    mLog->Terminate();
    EXPECT_EQ(Trace(), end);
}

TEST_F(TempodialDebugLogTest, BeforeInitialize_NothingHappens)
{
    TempodialDebugLog log(MakeRef<Platform>());
    log.Out("TDMain", "text");
    log.FlushIt();
    log.Terminate();
    EXPECT_EQ(log.mTraceInfo, "");
}

TEST_F(TempodialDebugLogTest, EachRun_Appends)
{
    mLog->Out("TDMain", "first run");
    mLog->Terminate();
    mLog->Initialize(mUtils, "1.3.0", "WorkLogTrace1.out", "WorkLogTrace2.out", 0);
    mLog->Out("TDMain", "second run");
    EXPECT_THAT(Trace(), StartsWith(Head + Line("TDMain first run")));
    EXPECT_THAT(Trace(), EndsWith("\r\n\r\n" + Line("TDMain second run")));
    EXPECT_THAT(Trace(), testing::Not(HasSubstr("1.3.0")));
}

}
