#include "engine/worklog/TempodialWorkLog.h"
#include "support/EngineFixture.h"

#include <algorithm>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace tempodial {

namespace {

constexpr const char* NotFound = "The operation failed. An object could not be found.";

class TempodialWorkLogFolderTest : public EngineFixture
{
protected:
    TempodialWorkLogFolderTest() { Restart(); }

    /// A work log that knows nothing but the registry.
    void Restart(UseObserver observer = nullptr)
    {
        mMain->mStrings->mCalendarName = "Tempodial";
        mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
        mWorkLog->Initialize(mMain, mApplication, Observed(mNamespace, std::move(observer)), mLog);
        ForgetTrace();
    }
    /// The folder as a first run makes it, then a restart.
    Ref<MAPIFolder> MakeFolder()
    {
        mWorkLog->GetSyncedWorkLog(true);
        Restart();
        return mMailbox->FolderByPath("Calendar/Tempodial");
    }
    /// Fails a use of a member, counted from 1.
    static UseObserver FailingOnceAt(const std::string& failing, int n)
    {
        return [failing, n](const std::string& use) mutable {
            if (IsUse(use, failing) && --n == 0) {
                throw Failure(Error::Automation);
            }
        };
    }

    Ref<TempodialWorkLog> mWorkLog;
};

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_FirstRun_MakesTheFolderAndKeepsIt)
{
    const auto folder = mWorkLog->GetSyncedWorkLog(true);
    ASSERT_TRUE(folder);
    const auto made = mMailbox->FolderByPath("Calendar/Tempodial");
    EXPECT_EQ(folder->EntryID(), made->EntryID());
    EXPECT_EQ(Registered("Outlook Folder Unique ID"), made->EntryID());
    EXPECT_EQ(Registered("Outlook Folder"), "\\\\Mailbox\\Calendar\\Tempodial");
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "Tempodial");
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog attempt to create it",
            "TDWorklog Work log: \\\\Mailbox\\Calendar\\Tempodial",
            "TDUtils SetRegistryValue: Outlook Folder Unique ID to " + made->EntryID(),
            "TDUtils SetRegistryValue: Outlook Folder to \\\\Mailbox\\Calendar\\Tempodial",
            "TDUtils SetRegistryValue: Outlook Folder Display Name to Tempodial"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_FirstRunNotToBeMade_GivesNothing)
{
    EXPECT_FALSE(mWorkLog->GetSyncedWorkLog(false));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog attempt to create it", "TDWorklog no Work log"));
    EXPECT_EQ(Calendar()->Folders()->Count(), 0);
    EXPECT_EQ(Registered("Outlook Folder Unique ID"), "");
    EXPECT_TRUE(mWorkLog->GetSyncedWorkLog(true));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_FolderOfThatNameExists_IsAdopted)
{
    const auto folder = Calendar()->Folders()->Add("tempodial", DefaultFolder::Calendar);
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false)->EntryID(), folder->EntryID());
    EXPECT_EQ(mMain->mStrings->mCalendarName, "tempodial");
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "tempodial");
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_SavedName_NamesTheNewFolder)
{
    Register("Outlook Folder Display Name", "My Log");
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(true)->Name(), "My Log");
    EXPECT_EQ(mMain->mStrings->mCalendarName, "My Log");
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_SecondStart_FindsItByItsPath)
{
    const auto folder = MakeFolder();
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false)->EntryID(), folder->EntryID());
    auto traced = Traced();
    traced.resize(7);
    EXPECT_THAT(traced,
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog Search for the work log",
            "TDWorklog search under Mailbox", "TDWorklog now search under Calendar",
            "TDWorklog now search under Tempodial", "TDWorklog found something",
            "TDWorklog Work log: \\\\Mailbox\\Calendar\\Tempodial"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_PathLeadsElsewhere_TakesThatFolder)
{
    const auto folder = MakeFolder();
    const auto other = Calendar()->Folders()->Add("Other", DefaultFolder::Calendar);
    Register("Outlook Folder", "\\\\Mailbox\\Calendar\\Other");
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false)->EntryID(), other->EntryID());
    EXPECT_EQ(Registered("Outlook Folder Unique ID"), other->EntryID());
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "Other");
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_PathGone_TakesTheNameUnderTheCalendar)
{
    MakeFolder();
    Register("Outlook Folder", "\\\\Other\\Calendar\\Tempodial");
    Register("Outlook Folder Unique ID", "unknown");
    const auto folder = mWorkLog->GetSyncedWorkLog(false);
    ASSERT_TRUE(folder);
    EXPECT_EQ(Registered("Outlook Folder Unique ID"), folder->EntryID());
    const auto traced = Traced();
    EXPECT_EQ(traced[2], "TDWorklog search under Other");
    EXPECT_EQ(traced[3], std::string("TDWorklog GetFOlder error ") + NotFound + " search");
    EXPECT_EQ(traced[4], "TDWorklog was in default location");
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_NoPathSaved_GoesOnWithTheName)
{
    const auto folder = MakeFolder();
    Register("Outlook Folder", "");
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false)->EntryID(), folder->EntryID());
    EXPECT_EQ(Traced()[2], "TDWorklog was in default location");
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_RenamedWhileNotRunning_IsFoundByItsIdentity)
{
    const auto folder = MakeFolder();
    Calendar()->Folders()->Add("First", DefaultFolder::Calendar);
    mMailbox->RenameFolder(folder, "Renamed");
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false)->EntryID(), folder->EntryID());
    const auto traced = Traced();
    EXPECT_THAT(traced, Contains("TDWorklog not in default location with old name"));
    EXPECT_THAT(traced, Contains("TDWorklog .. with new name"));
    EXPECT_THAT(traced, Not(Contains("TDWorklog iterate through namespace")));
    EXPECT_EQ(Registered("Outlook Folder"), "\\\\Mailbox\\Calendar\\Renamed");
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "Renamed");
    EXPECT_EQ(mMain->mStrings->mCalendarName, "Renamed");
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_MovedElsewhere_IsFoundByTheWholeWalk)
{
    const auto folder = MakeFolder();
    const auto parent = mNamespace->GetDefaultFolder(DefaultFolder::Inbox)->Folders()->Add("P", DefaultFolder::Inbox);
    mMailbox->MoveFolder(folder, parent);
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false)->EntryID(), folder->EntryID());
    EXPECT_EQ(Registered("Outlook Folder"), "\\\\Mailbox\\Inbox\\P\\Tempodial");
    const auto traced = Traced();
    const auto walk = std::find(traced.begin(), traced.end(), "TDWorklog iterate through namespace");
    ASSERT_LT(walk, traced.end() - 7);
    EXPECT_THAT(std::vector<std::string>(walk, walk + 7),
        ElementsAre("TDWorklog iterate through namespace", "TDWorklog Found folder by ID",
            "TDWorklog return matched folder (2)", "TDWorklog return matched folder (2)",
            "TDWorklog return matched folder (2)", "TDWorklog return matched folder (1)",
            "TDWorklog Work log: \\\\Mailbox\\Inbox\\P\\Tempodial"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_FolderGone_IsMadeAnewWhenAsked)
{
    const auto folder = MakeFolder();
    const auto id = folder->EntryID();
    mMailbox->DeleteFolder(folder);
    EXPECT_FALSE(mWorkLog->GetSyncedWorkLog(false));
    EXPECT_EQ(Traced().back(), "TDWorklog no Work log");
    EXPECT_EQ(Registered("Outlook Folder Unique ID"), id);
    const auto made = mWorkLog->GetSyncedWorkLog(true);
    ASSERT_TRUE(made);
    EXPECT_EQ(Registered("Outlook Folder Unique ID"), made->EntryID());
    EXPECT_NE(made->EntryID(), id);
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_AddFails_IsTraced)
{
    Restart(FailingAt("Folders.Add"));
    EXPECT_FALSE(mWorkLog->GetSyncedWorkLog(true));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog attempt to create it",
            "TDWorklog FAILED TO CREATE LOG!!!", "TDWorklog no Work log"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_NoDefaultCalendar_CreatesNothing)
{
    Restart(FailingAt("NameSpace.GetDefaultFolder"));
    EXPECT_FALSE(mWorkLog->GetSyncedWorkLog(true));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog GetWL error Automation error get registry values",
            "TDWorklog attempt to create it", "TDWorklog no Work log"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_NoDefaultCalendar_StillFindsTheFolderByIdentity)
{
    const auto folder = MakeFolder();
    mMailbox->RenameFolder(folder, "Renamed");
    Restart(FailingAt("NameSpace.GetDefaultFolder"));
    const auto found = mWorkLog->GetSyncedWorkLog(false);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->EntryID(), folder->EntryID());
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_AnyMemberFails_NeverLetsTheFailureOut)
{
    std::vector<std::string> calls;
    Restart([&](const std::string& member) { calls.push_back(member); });
    mWorkLog->GetSyncedWorkLog(true);
    mWorkLog->GetSyncedWorkLog(true);
    ASSERT_GT(calls.size(), 8U);
    for (std::size_t failing = 0; failing < calls.size(); ++failing) {
        std::size_t count = 0;
        Restart([&](const std::string&) {
            if (++count == failing + 1) {
                throw Failure(Error::Automation);
            }
        });
        EXPECT_NO_THROW(mWorkLog->GetSyncedWorkLog(true));
        EXPECT_NO_THROW(mWorkLog->GetSyncedWorkLog(true));
        EXPECT_EQ(Calendar()->Folders()->Count(), 1);
    }
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_FoundBefore_LooksForChangesOnly)
{
    std::vector<std::string> members;
    Restart([&](const std::string& member) { members.push_back(member); });
    const auto folder = mWorkLog->GetSyncedWorkLog(true);
    members.clear();
    ForgetTrace();
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false), folder);
    EXPECT_THAT(members, ElementsAre("MAPIFolder.EntryID", "MAPIFolder.Name", "MAPIFolder.FullFolderPath"));
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog GetSyncedWorkLog called"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_RenamedWhileRunning_WritesTheRegistry)
{
    mWorkLog->GetSyncedWorkLog(true);
    mMailbox->RenameFolder(mMailbox->FolderByPath("Calendar/Tempodial"), "Renamed");
    ForgetTrace();
    mWorkLog->GetSyncedWorkLog(false);
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog Name change: Tempodial to Renamed",
            "TDUtils SetRegistryValue: Outlook Folder Display Name to Renamed",
            "TDWorklog Path change: \\\\Mailbox\\Calendar\\Tempodial to \\\\Mailbox\\Calendar\\Renamed",
            "TDUtils SetRegistryValue: Outlook Folder to \\\\Mailbox\\Calendar\\Renamed"));
    EXPECT_EQ(mMain->mStrings->mCalendarName, "Renamed");
    mWorkLog->GetSyncedWorkLog(false);
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog GetSyncedWorkLog called"));
}

TEST_F(TempodialWorkLogFolderTest, GetSyncedWorkLog_DeletedWhileRunning_KeepsTheDeadReference)
{
    const auto folder = mWorkLog->GetSyncedWorkLog(true);
    mMailbox->DeleteFolder(mMailbox->FolderByPath("Calendar/Tempodial"));
    ForgetTrace();
    EXPECT_EQ(mWorkLog->GetSyncedWorkLog(false), folder);
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called",
            std::string("TDWorklog HandleFolderChange error ") + NotFound + " compare IDs"));
}

TEST_F(TempodialWorkLogFolderTest, HandleFolderChange_AnotherFolder_IsIgnored)
{
    mWorkLog->GetSyncedWorkLog(true);
    ForgetTrace();
    mWorkLog->HandleFolderChange(Calendar());
    EXPECT_THAT(Traced(), IsEmpty());
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "Tempodial");
}

TEST_F(TempodialWorkLogFolderTest, HandleFolderChange_SameFolderByAnotherReference_IsTakenIn)
{
    mWorkLog->GetSyncedWorkLog(true);
    const auto folder = mMailbox->FolderByPath("Calendar/Tempodial");
    mMailbox->RenameFolder(folder, "Renamed");
    mWorkLog->HandleFolderChange(folder);
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "Renamed");
    EXPECT_EQ(Registered("Outlook Folder"), "\\\\Mailbox\\Calendar\\Renamed");
}

TEST_F(TempodialWorkLogFolderTest, Terminate_RenamedSince_WritesTheRegistry)
{
    mWorkLog->GetSyncedWorkLog(true);
    mMailbox->RenameFolder(mMailbox->FolderByPath("Calendar/Tempodial"), "Renamed");
    const auto uses = mMain.Shared().use_count();
    mWorkLog->Terminate();
    EXPECT_EQ(Registered("Outlook Folder Display Name"), "Renamed");
    EXPECT_EQ(mMain.Shared().use_count(), uses - 1);
    EXPECT_NO_THROW(mWorkLog->Terminate());
}

TEST_F(TempodialWorkLogFolderTest, GetCalendarID_Folder_IsItsIdentity)
{
    EXPECT_EQ(mWorkLog->GetCalendarID(), "");
    const auto folder = mWorkLog->GetSyncedWorkLog(true);
    EXPECT_EQ(mWorkLog->GetCalendarID(), folder->EntryID());
}

TEST_F(TempodialWorkLogFolderTest, GetFolder_Path_MayHaveEitherSeparatorAndEmptyParts)
{
    const auto folder = MakeFolder();
    for (const auto* path : { "\\\\Mailbox\\Calendar\\Tempodial", "//Mailbox/Calendar/Tempodial",
             "Mailbox\\\\Calendar\\Tempodial", "Mailbox/Calendar\\Tempodial\\", "mailbox\\calendar\\tempodial" }) {
        const auto found = mWorkLog->GetFolder(path);
        ASSERT_TRUE(found) << path;
        EXPECT_EQ(found->EntryID(), folder->EntryID());
    }
    ForgetTrace();
    mWorkLog->GetFolder("Mailbox\\\\Calendar");
    EXPECT_THAT(Traced(),
        ElementsAre(
            "TDWorklog search under Mailbox", "TDWorklog now search under Calendar", "TDWorklog found something"));
}

TEST_F(TempodialWorkLogFolderTest, GetFolder_UnknownPart_GivesNothingWithOneFailure)
{
    EXPECT_FALSE(mWorkLog->GetFolder("\\\\Mailbox\\Nowhere\\Tempodial"));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog search under Mailbox", "TDWorklog now search under Nowhere",
            std::string("TDWorklog GetFOlder error ") + NotFound + " "));
    EXPECT_FALSE(mWorkLog->GetFolder("\\\\"));
    EXPECT_FALSE(mWorkLog->GetFolder(""));
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialWorkLogFolderTest, GetFolder_StoresUnreadable_TellsWhatIsSearchedFirst)
{
    Restart(FailingAt("NameSpace.Folders"));
    EXPECT_FALSE(mWorkLog->GetFolder("\\\\Mailbox\\Calendar"));
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog search under Mailbox", "TDWorklog GetFOlder error Automation error "));
}

TEST_F(TempodialWorkLogFolderTest, FindFolderByID_FolderGiven_IsLookedAtWithAllBelow)
{
    const auto folder = MakeFolder();
    const auto calendar = Calendar();
    EXPECT_EQ(mWorkLog->FindFolderByID(calendar->EntryID(), calendar)->EntryID(), calendar->EntryID());
    EXPECT_EQ(mWorkLog->FindFolderByID(folder->EntryID(), calendar)->EntryID(), folder->EntryID());
    EXPECT_FALSE(mWorkLog->FindFolderByID(folder->EntryID(), mNamespace->GetDefaultFolder(DefaultFolder::Inbox)));
    EXPECT_THAT(Traced(),
        ElementsAre(
            "TDWorklog Found folder by ID", "TDWorklog Found folder by ID", "TDWorklog return matched folder (2)"));
}

TEST_F(TempodialWorkLogFolderTest, FindFolderByID_FolderCantBeRead_TheWalkGoesOn)
{
    const auto id = MakeFolder()->EntryID();
    Restart(FailingOnceAt("MAPIFolder.EntryID", 2));
    EXPECT_TRUE(mWorkLog->FindFolderByID(id, nullptr));
    EXPECT_THAT(Traced(), Contains("TDWorklog FindFolderByID error Automation error ").Times(1));
    Restart(FailingOnceAt("MAPIFolder.Folders", 2));
    EXPECT_TRUE(mWorkLog->FindFolderByID(id, nullptr));
    Restart(FailingAt("Folders.Item"));
    EXPECT_FALSE(mWorkLog->FindFolderByID(id, nullptr));
}

/// A session of two stores, both of which are the same one.
class TwoStores : public NameSpace, public Folders
{
public:
    explicit TwoStores(Ref<MAPIFolder> store)
        : mStore(std::move(store))
    {
    }

    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder) override { throw Failure(Error::ObjectNotFound); }
    Ref<tempodial::Folders> Folders() override { return MakeRef<TwoStores>(mStore); }
    std::int32_t Count() override { return 2; }
    Ref<MAPIFolder> Item(std::int32_t) override { return mStore; }
    Ref<MAPIFolder> ItemNamed(const std::string&) override { throw Failure(Error::ObjectNotFound); }
    Ref<MAPIFolder> Add(const std::string&, DefaultFolder) override { throw Failure(Error::NotSupported); }

private:
    Ref<MAPIFolder> mStore;
};

TEST_F(TempodialWorkLogFolderTest, FindFolderByID_HitInAStore_VisitsTheOthersToo)
{
    const auto store = mNamespace->Folders()->Item(1);
    mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
    mWorkLog->Initialize(mMain, mApplication, MakeRef<TwoStores>(store), mLog);
    ForgetTrace();
    EXPECT_TRUE(mWorkLog->FindFolderByID(store->EntryID(), nullptr));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog Found folder by ID", "TDWorklog return matched folder (1)",
            "TDWorklog Found folder by ID", "TDWorklog return matched folder (1)"));
}

}

}
