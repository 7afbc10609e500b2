#include "engine/core/CoreFixture.h"
#include "engine/outlook/TempodialExplorer.h"
#include "engine/outlook/TempodialInspector.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostInspector.h"

#include <algorithm>
#include <memory>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class TempodialMainRegistersTest : public CoreFixture
{
protected:
    TempodialMainRegistersTest()
    {
        ConnectAddIn();
        mApplication->LogOn();
        Traced();
    }

    HostApplication& Host() const { return *mApplication->host; }
    Ref<MAPIFolder> Calendar() const { return mMailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar); }
    Ref<HostExplorer> OpenExplorer() const { return Host().OpenExplorer(Calendar()); }
    /// An activity that isn't saved yet.
    Ref<StoreItem> Unsaved() const
    {
        const auto item
            = mApplication->CreateItemFromTemplate("", mMailbox->FolderByPath("Calendar/Tempodial")).As<StoreItem>();
        item->SetStart(mClock->Now());
        return item;
    }
    Ref<StoreItem> Saved() const
    {
        auto item = Unsaved();
        item->Save();
        return item;
    }
    /// Lets the n-th use of a member from now on fail, and all later ones when that is wanted.
    void FailAt(const std::string& member, int n, bool later = false)
    {
        mApplication->observer->told = [member, n, later, count = 0](const std::string& used) mutable {
            if (IsUse(used, member) && (++count == n || (later && count > n))) {
                throw Failure(Error::ServerUnavailable);
            }
        };
    }
    void FailNoMore() { mApplication->observer->told = nullptr; }
    /// The lines traced since the last call that begin with one of those words.
    std::vector<std::string> TracedOf(const std::vector<std::string>& words)
    {
        auto lines = Traced();
        std::erase_if(lines, [&](const auto& line) {
            return std::none_of(words.begin(), words.end(), [&](const auto& word) { return line.starts_with(word); });
        });
        return lines;
    }
};

TEST_F(TempodialMainRegistersTest, NewExplorer_IsWrappedUnderTheNextNumber)
{
    OpenExplorer();
    const auto lines = Traced();
    EXPECT_EQ(lines.at(0), "NewExplorer called");
    EXPECT_EQ(lines.at(1), "AddExp called for: Calendar - Mailbox");
    EXPECT_THAT(lines, Contains("2 Inited"));
    EXPECT_EQ(lines.back(), "AddExp complete");
    Host().CloseExplorer(Host().OpenExplorers().back());
    OpenExplorer();
    EXPECT_THAT(Traced(), Contains("3 Inited"));
}

TEST_F(TempodialMainRegistersTest, NewExplorer_WrapperFails_IsKeptAllTheSame)
{
    FailAt("Explorer.Subscribe", 1);
    OpenExplorer();
    const auto lines = Traced();
    const std::string text = "The remote server machine does not exist or is unavailable";
    EXPECT_THAT(lines, Contains("2 Init exp error " + text + " & init exp"));
    EXPECT_EQ(lines.back(), "AddExp complete");
    Main().RemoveDeadExplorers();
    EXPECT_THAT(Traced(), ElementsAre("RemoveDeadExplorers called", "Removed dead: 2", "Explorer list: 1"));
}

TEST_F(TempodialMainRegistersTest, NewExplorer_CaptionUnreadable_IsTracedWithoutAStep)
{
    Main().mTempodialDebugLog->Out("x", "y");
    Main().mExplorers_NewExplorer(nullptr);
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("NewExplorer called"));
    EXPECT_THAT(lines, Contains("AddExplorer error Object variable or With block variable not set:Create inspectors"));
}

TEST_F(TempodialMainRegistersTest, CloseExplorer_NotTheLast_LeavesTheAddInRunning)
{
    OpenExplorer();
    Traced();
    Host().CloseExplorer(mExplorer);
    EXPECT_THAT(Traced(),
        ElementsAre("1 Toolbars cleanup: 1", "RemoveExplorer called", "RemoveDeadExplorers called", "Explorer list: 2",
            "Removed: 1", "list: 1"));
    EXPECT_TRUE(Main().mStrings);
}

TEST_F(TempodialMainRegistersTest, CloseExplorer_TheLast_EndsTheAddInFromInsideItsEvent)
{
    Host().OpenInspector(Saved());
    Traced();
    Host().CloseExplorer(mExplorer);
    const auto lines = Traced();
    const auto at = [&](const std::string& line) { return std::find(lines.begin(), lines.end(), line); };
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Main terminate"), 1);
    EXPECT_LT(at("last explorer gone - clean up"), at("Main terminate"));
    EXPECT_LT(at("clean data handler"), at("term inspector 1"));
    EXPECT_EQ(lines.back(), "TRACE SESSION STOP");
    EXPECT_FALSE(Main().mStrings || Main().mApplication || Main().mToolbarUtils);
    mConnect.OnDisconnection();
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialMainRegistersTest, Terminate_WindowsOpen_EndsInspectorsThenExplorersBeforeTheTrace)
{
    OpenExplorer();
    Host().OpenInspector(Saved());
    Traced();
    Main().Terminate();
    EXPECT_THAT(TracedOf({ "clean ", "term insp", "1 Explorer", "2 Explorer", "TRACE SESSION STOP" }),
        ElementsAre("clean worklog", "clean analyser", "clean reporter", "clean ProjMan", "clean data handler",
            "term inspector 1", "1 Explorer terminated: 1", "2 Explorer terminated: 2", "TRACE SESSION STOP"));
    // The windows go on without the add-in.
    Host().CloseExplorer(mExplorer);
    Host().OpenInspector(Saved());
    OpenExplorer();
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialMainRegistersTest, Terminate_WrappersFail_EndsThemAll)
{
    OpenExplorer();
    Host().OpenInspector(Saved());
    Host().OpenInspector(Saved());
    mFolder.Write("Tempodial/WorkLogTrace2.out", "");
    mApplication->observer->told = [](const std::string&) { throw Failure(Error::ServerUnavailable); };
    Main().Terminate();
    EXPECT_THAT(TracedOf({ "term insp", "1 Explorer", "2 Explorer", "TRACE SESSION STOP" }),
        ElementsAre("term inspector 1", "term inspector 2", "1 Explorer terminated: 1", "2 Explorer terminated: 2",
            "TRACE SESSION STOP"));
}

TEST_F(TempodialMainRegistersTest, RemoveExplorer_HostTellsOfNone_EndsTheAddInThoughOneIsRegistered)
{
    const auto other = OpenExplorer();
    mApplication->explorers->toldCount = 0;
    Traced();
    Host().CloseExplorer(other);
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("list: 1"));
    EXPECT_THAT(lines, Contains("1 Explorer terminated: 1"));
    EXPECT_EQ(lines.back(), "TRACE SESSION STOP");
}

TEST_F(TempodialMainRegistersTest, RemoveExplorer_CountUnreadable_GoesOn)
{
    FailAt("Explorers.Count", 1);
    Host().CloseExplorer(mExplorer);
    EXPECT_EQ(Traced().back(),
        "RemExplorer error The remote server machine does not exist or is unavailable:Create inspectors");
    EXPECT_TRUE(Main().mStrings);
}

TEST_F(TempodialMainRegistersTest, RemoveExplorer_SweptBefore_StillAsksForTheLastExplorer)
{
    FailAt("Explorer.Caption", 1);
    Host().CloseExplorer(mExplorer);
    EXPECT_THAT(TracedOf({ "Rem", "Explorer list", "list", "last" }),
        ElementsAre("RemoveExplorer called", "RemoveDeadExplorers called", "Removed dead: 1", "Explorer list: 0",
            "list: 0", "last explorer gone - clean up"));
}

TEST_F(TempodialMainRegistersTest, RemoveExplorer_ClearsTheReference)
{
    auto wrapper = MakeRef<TempodialExplorer>(mPlatform);
    Main().RemoveExplorer(wrapper);
    EXPECT_FALSE(wrapper);
    EXPECT_THAT(
        Traced(), ElementsAre("RemoveExplorer called", "RemoveDeadExplorers called", "Explorer list: 1", "list: 1"));
}

TEST_F(TempodialMainRegistersTest, RemoveDeadExplorers_DropsEachDeadOneWithoutEndingIt)
{
    const auto second = OpenExplorer();
    OpenExplorer();
    const auto fourth = OpenExplorer();
    Host().KillExplorer(second);
    Host().KillExplorer(fourth);
    Traced();
    Main().RemoveDeadExplorers();
    EXPECT_THAT(
        Traced(), ElementsAre("RemoveDeadExplorers called", "Removed dead: 2", "Removed dead: 3", "Explorer list: 2"));
}

TEST_F(TempodialMainRegistersTest, NewInspector_Appointment_IsWrappedAndOldFilesGo)
{
    const auto item = Saved();
    mFolder.Write("Tempodial/tracker_granules20060901.out", "");
    mClock->Set(Date::FromYearMonthDay(2099, 1, 1));
    Traced();
    Host().OpenInspector(item);
    const auto lines = Traced();
    EXPECT_EQ(lines.at(0), "NewInspector called");
    EXPECT_EQ(lines.at(1), "For appointment");
    EXPECT_EQ(lines.at(2), "AddInspector called");
    EXPECT_EQ(lines.at(3), "RemoveInspectorByID called");
    EXPECT_EQ(lines.at(4), "list: 0");
    EXPECT_THAT(lines, Contains(StartsWith("Init inspector 1 ")));
    EXPECT_FALSE(mFolder.Has("Tempodial/tracker_granules20060901.out"));
}

TEST_F(TempodialMainRegistersTest, NewInspector_SameItemAgain_KeepsOneWrapperUnderAHigherNumber)
{
    const auto item = Saved();
    Host().OpenInspector(item);
    Traced();
    Host().OpenInspector(item);
    const auto lines = Traced();
    EXPECT_EQ(lines.at(4), "Removed: 1");
    EXPECT_EQ(lines.at(5), "list: 0");
    EXPECT_THAT(lines, Contains(StartsWith("Init inspector 2 ")));
    EXPECT_TRUE(Main().IsInspector(item));
}

TEST_F(TempodialMainRegistersTest, NewInspector_SecondUnsavedItem_DropsTheFirst)
{
    const auto first = Unsaved();
    Host().OpenInspector(first);
    Host().OpenInspector(Unsaved());
    EXPECT_THAT(TracedOf({ "Removed: " }), ElementsAre("Removed: 1"));
    // kept: an unsaved item is taken for any other unsaved one.
    EXPECT_TRUE(Main().IsInspector(first));
    first->Save();
    EXPECT_FALSE(Main().IsInspector(first));
}

TEST_F(TempodialMainRegistersTest, RemoveInspectorByEntryID_TakesAllOfTheItem)
{
    const auto first = Saved();
    Host().OpenInspector(first);
    Host().OpenInspector(Saved());
    // The item of the new window can't be asked for its identity at first, so that the former wrapper stays.
    FailAt("Inspector.CurrentItem", 2);
    Host().OpenInspector(first);
    FailNoMore();
    EXPECT_THAT(Traced(),
        Contains("AddInspector error The remote server machine does not exist or is unavailable:init insp handler"));
    Main().RemoveInspectorByEntryID(first->EntryID());
    EXPECT_THAT(Traced(), ElementsAre("RemoveInspectorByID called", "Removed: 1", "Removed: 2", "list: 1"));
}

TEST_F(TempodialMainRegistersTest, RemoveInspectorByEntryID_EntryWithoutItem_Stays)
{
    FailAt("Inspector.CurrentItem", 3, true);
    Host().OpenInspector(Saved());
    Traced();
    Main().RemoveInspectorByEntryID("x");
    EXPECT_THAT(Traced(),
        ElementsAre("RemoveInspectorByID called",
            "RemInspectorbyID error Object variable or With block variable not set:add insp handler", "list: 1"));
}

TEST_F(TempodialMainRegistersTest, RemoveInspector_WithoutItem_ClearsTheReferenceAlone)
{
    Host().OpenInspector(Saved());
    Traced();
    auto wrapper = MakeRef<TempodialInspector>(mPlatform);
    Main().RemoveInspector(wrapper);
    EXPECT_FALSE(wrapper);
    EXPECT_THAT(Traced(),
        ElementsAre("RemoveInspector called",
            "RemInspector error Object variable or With block variable not set:add insp handler"));
}

TEST_F(TempodialMainRegistersTest, RemoveInspector_LeftBefore_TakesNoOther)
{
    const auto item = Saved();
    const auto window = Host().OpenInspector(item);
    auto wrapper = MakeRef<TempodialInspector>(mPlatform);
    wrapper->Initialize(Main().mTempodialDebugLog, mConnect.Main(), window, 90);
    Traced();
    Main().RemoveInspector(wrapper);
    EXPECT_FALSE(wrapper);
    EXPECT_THAT(Traced(), ElementsAre("RemoveInspector called", "RemoveInspectorByID called", "list: 1"));
    EXPECT_TRUE(Main().IsInspector(item));
}

TEST_F(TempodialMainRegistersTest, RegularCleanUp_EndsEachWrapperWithoutItem)
{
    const auto live = Saved();
    FailAt("Inspector.CurrentItem", 3, true);
    Host().OpenInspector(Saved());
    FailAt("Inspector.CurrentItem", 3, true);
    Host().OpenInspector(Saved());
    FailNoMore();
    Host().OpenInspector(live);
    Traced();
    Main().RegularCleanUp();
    EXPECT_THAT(Traced(), ElementsAre("term inspector 1", "term inspector 2"));
    EXPECT_TRUE(Main().IsInspector(live));
    Main().RemoveInspectorByEntryID("");
    EXPECT_EQ(Traced().back(), "list: 1");
}

TEST_F(TempodialMainRegistersTest, SwitchingToTasklog_SecondTime_StillCleansUp)
{
    Main().SwitchingToTasklog();
    FailAt("Inspector.CurrentItem", 3, true);
    Host().OpenInspector(Saved());
    FailNoMore();
    Traced();
    Main().SwitchingToTasklog();
    const auto lines = Traced();
    EXPECT_EQ(lines.front(), "User has switched to our folder");
    EXPECT_THAT(lines, Contains("term inspector 1"));
    EXPECT_THAT(lines, Not(Contains("Exiting syncdata")));
}

TEST_F(TempodialMainRegistersTest, IsInspector_ItemOpen_IsTrueAndTraced)
{
    const auto item = Saved();
    const auto other = Saved();
    Host().OpenInspector(item);
    Traced();
    EXPECT_TRUE(Main().IsInspector(item));
    EXPECT_THAT(Traced(), ElementsAre("IsInspector - open"));
    EXPECT_FALSE(Main().IsInspector(other));
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialMainRegistersTest, IsInspector_WrapperWithoutItem_IsPassedOver)
{
    const auto item = Saved();
    FailAt("Inspector.CurrentItem", 3, true);
    Host().OpenInspector(Saved());
    FailNoMore();
    Host().OpenInspector(item);
    Traced();
    EXPECT_TRUE(Main().IsInspector(item));
    EXPECT_THAT(Traced(),
        ElementsAre(
            "IsInspector error Object variable or With block variable not set:add insp handler", "IsInspector - open"));
}

TEST_F(TempodialMainRegistersTest, NewInspector_Mail_GetsNoWrapperAndLosesOurToolbar)
{
    Host().CreateItem()->Display();
    const auto mail = Host().OpenInspectors().at(0);
    const auto bars = mail->Bars();
    EXPECT_THAT(TracedOf({ "For", "not ours", "remove my", "enable", "visible?", "AddInspector" }),
        ElementsAre("not ours - remove our toolbar", "remove my toolbar: Tempodial", "enable standard toolbar",
            "visible? True"));

    bars->Add("Tempodial")->SetVisible(true);
    bars->ItemNamed("Standard")->SetVisible(false);
    Main().mInspectors_NewInspector(mail);
    EXPECT_THAT(TracedOf({ "delete it", "visible?" }), ElementsAre("delete it", "visible? False"));
    ASSERT_EQ(bars->Count(), 1);
    EXPECT_TRUE(bars->Item(1)->Visible());
}

TEST_F(TempodialMainRegistersTest, NewInspector_ItemUnreadable_CountsAsNoAppointment)
{
    FailAt("Inspector.CurrentItem", 1);
    Host().OpenInspector(Saved());
    EXPECT_THAT(Traced(), Contains("not ours - remove our toolbar"));
}

class TempodialMainOpenWindowsTest : public TempodialMainRegistersTest
{
protected:
    TempodialMainOpenWindowsTest() { mConnect.OnDisconnection(); }

    void ConnectAgain()
    {
        mFolder.Write("Tempodial/WorkLogTrace1.out", "");
        ConnectAddIn();
        mApplication->LogOn();
    }
};

TEST_F(TempodialMainOpenWindowsTest, Run_WrapsTheWindowsAlreadyOpen)
{
    OpenExplorer();
    const auto item = Saved();
    Host().OpenInspector(item);
    Host().CreateItem()->Display();
    const auto bars = Host().OpenInspectors().at(1)->Bars();
    bars->Add("Tempodial");
    ConnectAgain();
    EXPECT_TRUE(Main().IsInspector(item));
    Main().RemoveDeadExplorers();
    Main().RemoveInspectorByEntryID("");
    const auto text = mFolder.Read("Tempodial/WorkLogTrace1.out");
    EXPECT_NE(text.find("Explorer caption: Inbox - Mailbox"), std::string::npos);
    EXPECT_NE(text.find("Explorer caption: Calendar - Mailbox"), std::string::npos);
    EXPECT_NE(text.find("Explorer list: 2"), std::string::npos);
    EXPECT_TRUE(text.ends_with("list: 1\r\n"));
    // A mail's window is left alone.
    EXPECT_EQ(bars->Count(), 2);
    EXPECT_EQ(text.find("not ours"), std::string::npos);
}

TEST_F(TempodialMainOpenWindowsTest, Run_ExplorerOpensMeanwhile_IsWrappedOnce)
{
    mApplication->observer->told = [this, opened = false](const std::string& member) mutable {
        if (member == "Explorer.Caption" && !opened) {
            opened = true;
            OpenExplorer();
        }
    };
    ConnectAgain();
    FailNoMore();
    Main().RemoveDeadExplorers();
    EXPECT_TRUE(mFolder.Read("Tempodial/WorkLogTrace1.out").ends_with("Explorer list: 2\r\n"));
}

TEST_F(TempodialMainRegistersTest, Windows_AThousandOpenedAndClosed_LeaveNothing)
{
    const auto item = Saved();
    const std::weak_ptr<TempodialMain> main = mConnect.Main().Shared();
    std::vector<std::weak_ptr<Explorer>> explorers;
    std::vector<std::weak_ptr<Inspector>> inspectors;
    const auto open = [&](int round) {
        const auto explorer = OpenExplorer();
        explorers.push_back(Ref<Explorer>(explorer).Shared());
        const auto inspector = Host().OpenInspector(round % 2 == 0 ? item : Saved());
        inspectors.push_back(Ref<Inspector>(inspector).Shared());
        inspector->Close();
        // Some windows die without a word, and are found at the next one's close.
        if (round % 3 == 0) {
            Host().KillExplorer(explorer);
        } else {
            Host().CloseExplorer(explorer);
        }
    };
    open(1);
    const auto uses = main.use_count();
    for (int round = 2; round <= 500; ++round) {
        open(round);
    }
    EXPECT_EQ(main.use_count(), uses);
    const auto left = [](const auto& windows) {
        return std::count_if(windows.begin(), windows.end(), [](const auto& window) { return !window.expired(); });
    };
    EXPECT_EQ(left(explorers), 0);
    EXPECT_EQ(left(inspectors), 0);
    mConnect.OnDisconnection();
    EXPECT_TRUE(main.expired());
}

}
