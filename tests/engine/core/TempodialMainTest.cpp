#include "engine/core/TempodialMain.h"

#include "engine/core/CoreFixture.h"
#include "engine/foundation/TempodialStrings.h"

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

class TempodialMainTest : public CoreFixture
{
};

TEST_F(TempodialMainTest, Initialize_TracesItsStepsInOrder)
{
    mApplication->version = "11.0.0.8010";
    ConnectAddIn();
    EXPECT_THAT(Traced(),
        ElementsAre("revision 1 TempodialDebugLog TRACE SESSION START ", "Check for Outlook 2002",
            "Outlook version is 11.0.0.8010", "not 2002", "server security settings: ", "Oldver:  currVer: 1.2.0",
            "SetRegistryValue: CurrentVersion to 1.2.0", "Init toolbar utils revision 1 TempodialToolbarUtils",
            "PSF Init", "ReportForm Init", "revision 1 TempodialMain Initialize ", "revision 1 TempodialWorkLog",
            "Initialize revision 1 TempodialDataHandler", "revision 1 TempodialAnalyser", "revision 1 TempodialReport",
            "revision 1 TempodialProjectManager", "Initialized, run next "));
    EXPECT_EQ(Main().mTraceInfo, "TDMain");
}

TEST_F(TempodialMainTest, Initialize_DoesntTouchTheMailbox)
{
    mApplication->toldNameSpace = Ref<NameSpace>();
    ConnectAddIn();
    EXPECT_THAT(Traced(), Contains("Initialized, run next "));
}

TEST_F(TempodialMainTest, Initialize_VersionUnreadable_FindsTheDataFolderAllTheSame)
{
    mApplication->versionFails = true;
    ConnectAddIn();
    EXPECT_TRUE(HasTraceFile());
}

struct VersionCase
{
    Variant known;
    bool isNew;
};

class TempodialMainVersionTest : public CoreFixture, public testing::WithParamInterface<VersionCase>
{
};

TEST_P(TempodialMainVersionTest, Initialize_OtherVersionInTheRegistry_IsNewAndWritten)
{
    if (!GetParam().known.IsEmpty()) {
        Set("CurrentVersion", GetParam().known);
    }
    mRegistry->refusesWriting = !GetParam().isNew;
    ConnectAddIn();
    EXPECT_EQ(Main().mNewVersion, GetParam().isNew);
    EXPECT_EQ(Get("CurrentVersion"), Variant("1.2.0"));
    if (!GetParam().isNew) {
        EXPECT_THAT(Traced(), Not(Contains("SetRegistryValue: CurrentVersion to 1.2.0")));
    }
}

INSTANTIATE_TEST_SUITE_P(Versions, TempodialMainVersionTest,
    testing::Values(VersionCase { {}, true }, VersionCase { "1.2.0", false }, VersionCase { "1.2", true },
        VersionCase { "1.1.9", true }, VersionCase { "1.3.0", true }));

struct OutlookCase
{
    std::string version;
    bool later;
};

class TempodialMainOutlookTest : public CoreFixture, public testing::WithParamInterface<OutlookCase>
{
};

TEST_P(TempodialMainOutlookTest, Run_TellsOldVersionsFromLaterOnes)
{
    mApplication->version = GetParam().version;
    ConnectAddIn();
    EXPECT_TRUE(Main().mOutlook2003orLater);
    mApplication->LogOn();
    EXPECT_EQ(Main().mOutlook2003orLater, GetParam().later);
}

INSTANTIATE_TEST_SUITE_P(Versions, TempodialMainOutlookTest,
    testing::Values(OutlookCase { "11.0.0.8010", true }, OutlookCase { "10.0.2627", false },
        OutlookCase { "9.0", false }, OutlookCase { "8.5", false }, OutlookCase { "16.0.1", true },
        OutlookCase { "x", false }, OutlookCase { "", false }));

TEST_F(TempodialMainTest, Run_VersionUnreadable_IsNotLater)
{
    ConnectAddIn();
    mApplication->versionFails = true;
    mApplication->LogOn();
    EXPECT_FALSE(Main().mOutlook2003orLater);
    EXPECT_THAT(Traced(), Contains("created log "));
}

TEST_F(TempodialMainTest, Run_SetsUpEverythingInOrder)
{
    ConnectAddIn();
    Traced();
    mApplication->LogOn();
    auto lines = Traced();
    EXPECT_EQ(lines.front(), "Entering run");
    EXPECT_EQ(lines.at(1), "version: 16.0.0.1");
    EXPECT_EQ(lines.at(2), "new version? True");
    EXPECT_EQ(lines.back(), "AddExp complete");
    const auto at = [&](const std::string& line) { return std::find(lines.begin(), lines.end(), line); };
    EXPECT_LT(at("created log "), at("loaded forms"));
    EXPECT_LT(at("loaded forms"), at("inited projects"));
    EXPECT_NE(at("inited projects"), lines.end());
    EXPECT_THAT(mPictures->loaded,
        ElementsAre("TDSettingsIconImage.bmp", "TDSettingsIconMask.bmp", "TDRefreshIcon.bmp", "TDRefreshIconMask.bmp"));
    EXPECT_TRUE(Main().mTempodialIcon && Main().mTempodialIconMask && Main().mTempodialRefreshIcon
        && Main().mTempodialRefreshMaskIcon);
    EXPECT_FALSE(Main().GetCalendarID().empty());
}

TEST_F(TempodialMainTest, Run_NoBitmaps_TracesEachAndGoesOn)
{
    mPictures->present = false;
    ConnectAddIn();
    mApplication->LogOn();
    auto lines = Traced();
    const auto start = std::find(lines.begin(), lines.end(), "inited projects");
    ASSERT_NE(start, lines.end());
    const auto end = std::find(start, lines.end(), "Explorer caption: Inbox - Mailbox");
    ASSERT_NE(end, lines.end());
    EXPECT_THAT(std::vector<std::string>(start + 1, end + 1),
        ElementsAre("Install folder: ", "Run failed File not found load icons", "Run failed File not found load icons",
            "icon load failed", "mask load failed", "Run failed File not found load icons", "clock load failed",
            "Run failed File not found load icons", "Explorer caption: Inbox - Mailbox"));
    EXPECT_THAT(lines, Contains("AddExp complete"));
}

TEST_F(TempodialMainTest, Quit_OnlyTraces)
{
    ConnectAddIn();
    mApplication->LogOn();
    Traced();
    mApplication->Quit();
    EXPECT_THAT(Traced(), ElementsAre("Quit received"));
    EXPECT_TRUE(Main().mStrings);
}

TEST_F(TempodialMainTest, Terminate_EndsWorkersThenTraceThenTheRest)
{
    ConnectAddIn();
    mApplication->LogOn();
    Traced();
    Main().Terminate();
    const auto lines = Traced();
    std::vector<std::string> words;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(words),
        [](const auto& line) { return line.starts_with("clean ") || line == "Main terminate"; });
    EXPECT_THAT(words,
        ElementsAre("Main terminate", "clean worklog", "clean analyser", "clean reporter", "clean ProjMan",
            "clean data handler"));
    EXPECT_EQ(lines.back(), "TRACE SESSION STOP");
    EXPECT_FALSE(Main().mStrings || Main().mConfig || Main().mUtils || Main().mCommonUtils || Main().mNamespace
        || Main().mApplication || Main().mTempodialDebugLog || Main().mTempodialIcon);
    mApplication->LogOn();
    mApplication->Quit();
}

TEST_F(TempodialMainTest, Terminate_BeforeInitialize_IsHarmless)
{
    MakeRef<TempodialMain>(mPlatform)->Terminate();
    EXPECT_FALSE(HasTraceFile());
}

}
