#include "session/ProductFacts.h"

#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "session/Profile.h"
#include "support/AddInFixture.h"

namespace tempodial {

class ProductFactsTest : public AddInFixture
{
};

TEST_F(ProductFactsTest, Words_AreTheAddInsOwn)
{
    const auto& strings = *mAddIn.main->mStrings;
    EXPECT_EQ(strings.mLogName, ProductName);
    EXPECT_EQ(strings.mFolderName, DataFolderName);
    EXPECT_EQ(strings.mNoProject, NoProject);
    EXPECT_EQ(strings.mFormClass, ActivityClass);
    EXPECT_EQ(strings.mFormName, FormFileName);
    EXPECT_EQ(strings.mRegistryValueInstall, InstallFolderValue);
    EXPECT_EQ(strings.mRegistryValueOLFolderID, WorkLogIdValue);
    EXPECT_EQ(strings.mRegistryValueProjectXML, ProjectsValue);
    EXPECT_EQ(strings.mHistoryFile, HistoryFileName);
}

TEST_F(ProductFactsTest, Numbers_AreTheAddInsOwn)
{
    const auto& config = *mAddIn.main->mConfig;
    EXPECT_EQ(config.mTDVersion, ProductVersion);
    EXPECT_EQ(config.mSavedDataDays, SavedDataDays);
    EXPECT_EQ(config.mApplyBackDays, ApplyBackDays);
}

TEST_F(ProductFactsTest, Names_AreThoseOfThePromise)
{
    const Profile profile(mFolder.Path("profile"), "en_US", std::nullopt);
    EXPECT_EQ(profile.DataFolder(), mFolder.Path("profile/Tempodial"));
    EXPECT_TRUE(mFolder.Has("profile/mailbox.db"));
    profile.Registry()->Write(Hive::CurrentUser, ProductKey, "A", "b");
    EXPECT_TRUE(mFolder.Has("profile/registry.toml"));
}

TEST_F(ProductFactsTest, Files_AreThoseThatTheAddInReadsAndWrites)
{
    mAddIn.WriteTracker("20061009", { WordSlot(300, 600, "a.doc") });
    EXPECT_TRUE(mAddIn.HasFile(TrackerFileName("20061009")));
    mAddIn.main->SyncData(SavedDataDays, true);
    EXPECT_FALSE(mAddIn.HasFile(TrackerFileName("20061009")));
    EXPECT_TRUE(mAddIn.HasFile(FinishedTrackerFileName("20061009")));
    EXPECT_TRUE(mAddIn.HasFile(HistoryFileName));
    EXPECT_TRUE(mAddIn.HasFile(TraceFileName));
    EXPECT_FALSE(mAddIn.HasFile(OlderTraceFileName));
}

}
