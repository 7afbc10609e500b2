#include "engine/outlook/TempodialExplorer.h"

#include "host/windows/HostCommandBarPopup.h"
#include "host/windows/HostCommandBars.h"
#include "support/EngineFixture.h"

#include <algorithm>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class TempodialExplorerTest : public EngineFixture
{
protected:
    TempodialExplorerTest()
    {
        mMain->TempodialMain_Run();
        mLogFolder = mMain->GetWorkLog();
        mLogFolder->Views()->Add("Other", ViewType::Table, ViewSaveOption::ThisFolderEveryone)->Save();
        mInbox = mNamespace->GetDefaultFolder(DefaultFolder::Inbox);
        mClock->Advance(60);
        Forget();
    }

    void Forget()
    {
        mWindowUses.clear();
        ForgetTrace();
    }
    /// The uses of windows since the last `Forget` that begin so.
    std::vector<std::string> Uses(const std::string& words) const
    {
        auto uses = mWindowUses;
        std::erase_if(uses, [&](const auto& use) { return !use.starts_with(words); });
        return uses;
    }
    /// The lines of the wrapper of the first window since the last call, without the context.
    std::vector<std::string> TracedHere()
    {
        const std::string context = "TDExplorer: 1 ";
        auto lines = Traced();
        std::erase_if(lines, [&](const auto& line) { return !line.starts_with(context); });
        for (auto& line : lines) {
            line.erase(0, context.size());
        }
        return lines;
    }
    void ShowBoth(bool calendarFirst)
    {
        using Both = std::vector<Ref<MAPIFolder>>;
        mExplorer->ShowBeside(calendarFirst ? Both { Calendar(), mLogFolder } : Both { mLogFolder, Calendar() });
    }
    /// Goes to a folder and picks a view of it.
    void Stand(const Ref<MAPIFolder>& folder, const std::string& view)
    {
        mExplorer->GoTo(folder);
        mExplorer->PickView(view);
        Forget();
    }
    /// Makes a view known to the default calendar.
    void AddCalendarView(const std::string& name)
    {
        Calendar()->Views()->Add(name, ViewType::Calendar, ViewSaveOption::ThisFolderEveryone)->Save();
    }
    void ChangeSelection() { mExplorer->Select({}); }
    bool IsListAvailable() const
    {
        for (const auto& control : mExplorer->Bars()->ItemNamed("Menu Bar").As<HostCommandBar>()->Entries()) {
            if (control->Now().caption == "&Tempodial") {
                return control.As<HostCommandBarPopup>()->Menu()->Entries().at(2)->Now().enabled;
            }
        }
        ADD_FAILURE() << "no menu";
        return false;
    }
    void FailAt(const std::string& member, int times = 1)
    {
        mApplication->observer->told = [this, member, times](const std::string& used) mutable {
            mWindowUses.push_back(used);
            if (used.starts_with(member) && times-- > 0) {
                throw Failure(Error::ServerUnavailable);
            }
        };
    }

    static constexpr auto Unavailable = "The remote server machine does not exist or is unavailable";
    Ref<MAPIFolder> mLogFolder;
    Ref<MAPIFolder> mInbox;
};

TEST_F(TempodialExplorerTest, Initialize_TracesItsStepsAndMakesTheToolbars)
{
    const auto window = mApplication->host->OpenExplorer(mInbox);
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("TDExplorer: 2 Init explorer revision 1 TempodialExplorer"));
    EXPECT_THAT(lines, Contains("TDExplorer: 2 Inited"));
    const auto at = [&](const std::string& line) { return std::find(lines.begin(), lines.end(), line); };
    EXPECT_LT(at("TDToolbars: 2 add 1"), at("TDExplorer: 2 Inited"));
    EXPECT_LT(at("TDExplorer: 2 Inited"), at("TDMain Get log"));
    EXPECT_THAT(Uses("CommandBarControls.Add"), Not(IsEmpty()));
}

TEST_F(TempodialExplorerTest, Initialize_StatementFails_GoesOnAfterALineAndTheWordFinal)
{
    FailAt("Explorer.Subscribe");
    mApplication->host->OpenExplorer(mInbox);
    auto lines = Traced();
    std::erase_if(lines, [](const auto& line) { return !line.starts_with("TDExplorer: "); });
    EXPECT_THAT(lines,
        ElementsAre("TDExplorer: 2 Init explorer revision 1 TempodialExplorer",
            std::string("TDExplorer: 2 Init exp error ") + Unavailable + " & init exp", "TDExplorer: 2 final",
            // Without the window the toolbars are always too soon.
            "TDExplorer: 2 Inited"));
}

TEST_F(TempodialExplorerTest, Activate_BarsCameLate_MakesTheToolbarsExactlyOnce)
{
    const auto window = mApplication->host->OpenExplorer(mInbox, false);
    // The window was activated as it came up, and there were no bars yet.
    EXPECT_THAT(Traced(), Contains("TDToolbars: 2 too soon, try to create toolbar again later").Times(2));
    mApplication->host->ActivateExplorer(window);
    EXPECT_THAT(Traced(), ElementsAre("TDToolbars: 2 too soon, try to create toolbar again later"));
    window->MakeBarsReady();
    mApplication->host->ActivateExplorer(window);
    EXPECT_THAT(Traced(), Contains("TDToolbars: 2 Create TD Menu Items: 2").Times(1));
    Forget();
    mApplication->host->ActivateExplorer(window);
    EXPECT_THAT(Traced(), IsEmpty());
    EXPECT_THAT(mWindowUses, IsEmpty());
}

TEST_F(TempodialExplorerTest, FolderSwitch_WorkLog_Imports)
{
    mExplorer->GoTo(mLogFolder);
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("TDExplorer: 1 folder switch"));
    EXPECT_THAT(lines, Contains("TDMain User has switched to our folder"));
    EXPECT_THAT(lines, Contains("TDDataHandler Exiting syncdata"));
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial Calendar");

    const auto other = mApplication->host->OpenExplorer(mInbox);
    mClock->Advance(60);
    ForgetTrace();
    other->GoTo(mLogFolder);
    const auto more = Traced();
    EXPECT_THAT(more, Contains("TDExplorer: 2 folder switch"));
    EXPECT_THAT(more, Contains("TDDataHandler Exiting syncdata"));
}

TEST_F(TempodialExplorerTest, FolderSwitch_OtherFolder_DoesNothing)
{
    mExplorer->GoTo(Calendar());
    EXPECT_THAT(Traced(), Not(Contains("TDMain User has switched to our folder")));
    mExplorer->GoTo(mInbox);
    EXPECT_THAT(Traced(), Not(Contains("TDMain User has switched to our folder")));
}

TEST_F(TempodialExplorerTest, FolderSwitch_FolderUnreadable_DoesNothing)
{
    FailAt("Explorer.CurrentFolder");
    Traced();
    mExplorer->GoTo(mLogFolder);
    EXPECT_THAT(Traced(),
        testing::AllOf(Contains("TDExplorer: 1 folder switch"), Not(Contains("TDMain User has switched to our folder")),
            Not(Contains("TDWorklog GetSyncedWorkLog called"))))
        << "the work log isn't asked for before the window's folder is known";
}

TEST_F(TempodialExplorerTest, SelectionChange_OldOutlook_DoesNothing)
{
    mMain->mOutlook2003orLater = false;
    ShowBoth(true);
    EXPECT_THAT(mWindowUses, IsEmpty());
    EXPECT_TRUE(IsListAvailable());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_LogAloneInOneOfItsViews_ChangesNothing)
{
    for (const auto* view : { "Tempodial List", "Tempodial Calendar" }) {
        Stand(mLogFolder, view);
        ChangeSelection();
        EXPECT_EQ(mExplorer->CurrentView(), view);
        // The cost when there is nothing to do.
        EXPECT_THAT(mWindowUses,
            ElementsAre("Explorer.IsFolderSelected", "Explorer.IsFolderSelected", "Explorer.CurrentView",
                "CommandBarButton.Enabled"));
        EXPECT_THAT(Traced(), IsEmpty());
        EXPECT_TRUE(IsListAvailable());
    }
}

TEST_F(TempodialExplorerTest, HandleSideBySide_LogAloneInAnotherView_GetsTheCalendarView)
{
    Stand(mLogFolder, "Other");
    ChangeSelection();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial Calendar");
    EXPECT_THAT(TracedHere(), ElementsAre("view is not ours, current folder: Tempodial"));
}

TEST_F(TempodialExplorerTest, HandleSideBySide_CalendarAloneInOurView_GetsTheDefaultView)
{
    AddCalendarView("My tempodial days");
    AddCalendarView("My Tempodial view");
    AddCalendarView("Day");
    mMain->mDefaultCalendarView = "Day";
    Stand(Calendar(), "My tempodial days");
    ChangeSelection();
    EXPECT_EQ(mExplorer->CurrentView(), "My tempodial days");
    Stand(Calendar(), "My Tempodial view");
    ChangeSelection();
    EXPECT_EQ(mExplorer->CurrentView(), "Day");
    EXPECT_THAT(TracedHere(), ElementsAre("view is ours"));
}

TEST_F(TempodialExplorerTest, HandleSideBySide_CalendarAloneInOurViewWithoutDefault_IsRefusedAndSilentFromThenOn)
{
    AddCalendarView("My Tempodial view");
    mMain->mDefaultCalendarView.clear();
    Stand(Calendar(), "My Tempodial view");
    ChangeSelection();
    EXPECT_THAT(Uses("Explorer.SetCurrentView"), ElementsAre("Explorer.SetCurrentView"));
    const auto lines = TracedHere();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_THAT(lines[1], StartsWith("sidebyside error "));
    Forget();
    ChangeSelection();
    EXPECT_THAT(mWindowUses, IsEmpty());
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_Both_SwitchesTheListOffUntilTheyPart)
{
    AddCalendarView("Tempodial Calendar");
    ShowBoth(true);
    mExplorer->PickView("Tempodial Calendar");
    mMain->mDefaultCalendarView.clear();
    Forget();
    ChangeSelection();
    EXPECT_FALSE(IsListAvailable());
    // kept: without a default view the same view is set again.
    EXPECT_THAT(Uses("Explorer.SetCurrentView"), ElementsAre("Explorer.SetCurrentView Tempodial Calendar"));
    EXPECT_THAT(TracedHere(), ElementsAre("us and calendar, current folder: Calendar", "view is ours"));

    mExplorer->GoTo(mInbox);
    EXPECT_TRUE(IsListAvailable());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_BothInOurViewWithDefault_GetTheDefaultView)
{
    AddCalendarView("Tempodial Calendar");
    AddCalendarView("Day");
    mExplorer->GoTo(Calendar());
    mExplorer->PickView("Tempodial Calendar");
    mMain->mDefaultCalendarView = "Day";
    ShowBoth(true);
    EXPECT_EQ(mExplorer->CurrentView(), "Day");
    EXPECT_FALSE(IsListAvailable());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_BothInAnotherViewAndOursThere_ChangesNothing)
{
    Stand(mLogFolder, "Other");
    ShowBoth(false);
    EXPECT_THAT(Uses("Explorer.Set"), IsEmpty());
    EXPECT_THAT(TracedHere(), ElementsAre("us and calendar, current folder: Tempodial", "view isn't ours"));
    EXPECT_FALSE(IsListAvailable());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_BothAndOursMissing_GoesToTheLogOnceInTwoSeconds)
{
    AddCalendarView("Day");
    ShowBoth(true);
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), mLogFolder->EntryID());
    auto lines = TracedHere();
    ASSERT_GE(lines.size(), 3U);
    lines.resize(3);
    EXPECT_THAT(lines, ElementsAre("us and calendar, current folder: Calendar", "view isn't ours", "and ours missing"));
    EXPECT_FALSE(IsListAvailable());

    mClock->Advance(1);
    ShowBoth(true);
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), Calendar()->EntryID());
    mClock->Advance(1);
    ShowBoth(true);
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), mLogFolder->EntryID());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_JustInitialised_StaysWhereItIs)
{
    AddCalendarView("Day");
    mExplorer = mApplication->host->OpenExplorer(mInbox);
    mClock->Advance(1);
    ShowBoth(true);
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), Calendar()->EntryID());
    mClock->Advance(1);
    ChangeSelection();
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), mLogFolder->EntryID());
}

TEST_F(TempodialExplorerTest, HandleSideBySide_OneRefusal_SilencesItForThisWindow)
{
    FailAt("Explorer.IsFolderSelected");
    ChangeSelection();
    EXPECT_THAT(TracedHere(), ElementsAre(std::string("sidebyside error ") + Unavailable));
    Forget();
    Stand(mLogFolder, "Other");
    ChangeSelection();
    EXPECT_EQ(mExplorer->CurrentView(), "Other");
    EXPECT_THAT(Uses("CommandBarButton."), IsEmpty());
    EXPECT_THAT(TracedHere(), IsEmpty());
    // Another window isn't concerned.
    mExplorer = mApplication->host->OpenExplorer(mLogFolder);
    mExplorer->PickView("Other");
    ChangeSelection();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial Calendar");
}

TEST_F(TempodialExplorerTest, HandleSideBySide_NoWorkLogAtFirst_IsSilentForThisWindow)
{
    auto wrapper = MakeRef<TempodialExplorer>(mPlatform);
    const auto main = MakeRef<TempodialMain>(mPlatform);
    wrapper->Initialize(mLog, main, mApplication->ActiveExplorer(), 9);
    Forget();
    wrapper->HandleSideBySide();
    wrapper->HandleSideBySide();
    EXPECT_THAT(Traced(), ElementsAre("TDExplorer: 9 sidebyside error Object variable or With block variable not set"));
    wrapper->Terminate();
}

TEST_F(TempodialExplorerTest, Close_LetsTheControlsGoAndLeavesTheRegister)
{
    mApplication->host->OpenExplorer(mInbox);
    ForgetTrace();
    mApplication->host->CloseExplorer(mExplorer);
    EXPECT_THAT(Traced(),
        ElementsAre("TDToolbars: 1 Toolbars cleanup: 1", "TDMain RemoveExplorer called",
            "TDMain RemoveDeadExplorers called", "TDMain Explorer list: 2", "TDMain Removed: 1", "TDMain list: 1"));
}

TEST_F(TempodialExplorerTest, Terminate_Twice_IsHarmless)
{
    const auto uses = mMain.Shared().use_count();
    const auto wrapper = MakeRef<TempodialExplorer>(mPlatform);
    wrapper->Initialize(mLog, mMain, mApplication->ActiveExplorer(), 9);
    ForgetTrace();
    wrapper->Terminate();
    EXPECT_THAT(Traced(),
        ElementsAre("TDExplorer: 9 Explorer terminated: 9", "TDExplorer: 9 clean toolbars",
            "TDToolbars: 9 Toolbars cleanup: 9"));
    wrapper->Terminate();
    ChangeSelection();
    wrapper->HandleSideBySide();
    EXPECT_THAT(Traced(), Not(Contains(StartsWith("TDExplorer: 9"))));
    EXPECT_EQ(mMain.Shared().use_count(), uses);
    EXPECT_FALSE(wrapper->mExplorer);
}

TEST_F(TempodialExplorerTest, Events_AnyMemberFails_NeverLetTheFailureOut)
{
    AddCalendarView("Day");
    const auto work = [&] {
        const auto window = mApplication->host->OpenExplorer(mInbox);
        window->GoTo(mLogFolder);
        window->PickView("Other");
        window->Select({});
        mClock->Advance(30);
        window->ShowBeside({ Calendar(), mLogFolder });
        window->GoTo(Calendar());
        mApplication->host->ActivateExplorer(window);
        mApplication->host->CloseExplorer(window);
    };
    mWindowUses.clear();
    work();
    const auto uses = mWindowUses;
    ASSERT_GT(uses.size(), 100U);
    int live = 1;
    for (std::size_t failing = 1; failing <= uses.size(); ++failing) {
        mApplication->observer->told = [failing, count = std::size_t { 0 }](const std::string&) mutable {
            if (++count == failing) {
                throw Failure(Error::Automation);
            }
        };
        work();
        mApplication->observer->told = nullptr;
        mFolder.Write("Tempodial/WorkLogTrace1.out", "");
        mMain->RemoveDeadExplorers();
        if (mFolder.Read("Tempodial/WorkLogTrace1.out").ends_with("Explorer list: 0\r\n") && live == 1) {
            // A window that can't be asked for its caption is taken for dead.
            EXPECT_EQ(uses[failing - 1], "Explorer.Caption");
            live = 0;
        }
        EXPECT_TRUE(
            mFolder.Read("Tempodial/WorkLogTrace1.out").ends_with("Explorer list: " + std::to_string(live) + "\r\n"))
            << failing;
    }
}

}
