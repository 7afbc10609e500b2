#include "base/Text.h"
#include "engine/worklog/TempodialWorkLog.h"
#include "support/EngineFixture.h"

#include <algorithm>

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace tempodial {

namespace {

constexpr const char* TableXml = "<view type=\"table\"><viewname>Tempodial List</viewname></view>";

class TempodialWorkLogViewsTest : public EngineFixture
{
protected:
    TempodialWorkLogViewsTest()
    {
        Install("WorkLogCategoryView.xml", TableXml);
        Restart();
    }

    void Restart(UseObserver observer = nullptr)
    {
        mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
        mWorkLog->Initialize(mMain, mApplication, Observed(mNamespace, std::move(observer)), mLog);
        ForgetTrace();
    }
    Ref<MAPIFolder> LogFolder() { return mMailbox->FolderByPath("Calendar/Tempodial"); }
    Ref<View> ViewNamed(const std::string& name) { return LogFolder()->Views()->ItemNamed(name); }
    /// The views that a start made, and the calendar's time scale as the user set it.
    void MakeViews()
    {
        mWorkLog->TempodialWorkLog_CreateWorkLog(true);
        ForgetTrace();
    }

    Ref<TempodialWorkLog> mWorkLog;
};

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_FirstRun_MakesBothViewsFromScratch)
{
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    const auto table = ViewNamed("Tempodial List");
    ASSERT_TRUE(table);
    EXPECT_EQ(table->ViewType(), ViewType::Table);
    EXPECT_EQ(table->XML(), TableXml);
    const auto calendar = ViewNamed("Tempodial Calendar");
    ASSERT_TRUE(calendar);
    EXPECT_EQ(calendar->ViewType(), ViewType::Calendar);
    EXPECT_THAT(calendar->XML(), HasSubstr("<displaytimeunits>5</displaytimeunits>"));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_FirstRun_TracesTheWholeRoad)
{
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    const auto traced = Traced();
    const auto create = std::find(traced.begin(), traced.end(), "TDWorklog create log? New version? True");
    ASSERT_NE(create, traced.end());
    const auto count = LogFolder()->Views()->Count();
    EXPECT_THAT(std::vector<std::string>(create, traced.end()),
        ElementsAre("TDWorklog create log? New version? True", "TDWorklog Attempt to create the views",
            "TDWorklog Attempt to create the view", "TDUtils Install folder: " + mFolder.Path("install"),
            "TDWorklog  view count: " + std::to_string(count - 2), "TDWorklog Attempt to create the view",
            "TDWorklog  view count: " + std::to_string(count - 1), "TDWorklog default name Calendar"));
    EXPECT_EQ(mMain->mDefaultCalendarView, "Calendar");
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_SecondStart_ChangesNothing)
{
    MakeViews();
    mMailbox->SetView(LogFolder(), "Tempodial List", ViewType::Table, "<view type=\"table\"><mine/></view>");
    std::vector<std::string> members;
    Restart([&](const std::string& member) { members.push_back(member); });
    mWorkLog->TempodialWorkLog_CreateWorkLog(false);
    EXPECT_EQ(ViewNamed("Tempodial List")->XML(), "<view type=\"table\"><mine/></view>");
    EXPECT_THAT(members, Not(Contains(testing::StartsWith("Views.Add"))));
    EXPECT_THAT(members, Not(Contains("View.SetXML")));
    EXPECT_THAT(members, Not(Contains("View.Save")));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_TimeScaleChangedByTheUser_IsSetBackAlone)
{
    MakeViews();
    mMailbox->SetView(LogFolder(), "Tempodial Calendar", ViewType::Calendar,
        "<view type=\"calendar\"><mode>4</mode><displaytimeunits>30</displaytimeunits></view>");
    Restart();
    mWorkLog->TempodialWorkLog_CreateWorkLog(false);
    const auto xml = ViewNamed("Tempodial Calendar")->XML();
    EXPECT_THAT(xml, HasSubstr("<displaytimeunits>5</displaytimeunits>"));
    EXPECT_THAT(xml, HasSubstr("<mode>4</mode>"));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_NoTimeScale_LeavesTheViewAndNamesIt)
{
    MakeViews();
    const std::string xml = "<view type=\"calendar\"><mode>4</mode></view>";
    mMailbox->SetView(LogFolder(), "Tempodial Calendar", ViewType::Calendar, xml);
    Restart(FailingAt("View.ViewType"));
    mWorkLog->TempodialWorkLog_CreateWorkLog(false);
    EXPECT_EQ(ViewNamed("Tempodial Calendar")->XML(), xml);
    EXPECT_THAT(Traced(), Contains("TDWorklog create views error Automation error no view/displaytimeunits!"));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_NewVersion_RenewsTheTableView)
{
    MakeViews();
    mMailbox->SetView(LogFolder(), "Tempodial List", ViewType::Table, "<view type=\"table\"><mine/></view>");
    Restart();
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    EXPECT_EQ(ViewNamed("Tempodial List")->XML(), TableXml);
    const auto traced = Traced();
    const auto refresh = std::find(traced.begin(), traced.end(), "TDWorklog refresh view");
    ASSERT_LT(refresh, traced.end() - 4);
    EXPECT_THAT(std::vector<std::string>(refresh, refresh + 5),
        ElementsAre("TDWorklog refresh view", "TDUtils Install folder: " + mFolder.Path("install"),
            "TDWorklog Got view", "TDWorklog Refreshed view", "TDWorklog Attempt to create the views"));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_NewVersionOnANewFolder_SkipsTheRefresh)
{
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    EXPECT_THAT(Traced(), Not(Contains("TDWorklog refresh view")));
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    EXPECT_THAT(Traced(), Not(Contains("TDWorklog refresh view")));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_ViewFileUnreadable_KeepsTheUsersView)
{
    MakeViews();
    const std::string mine = "<view type=\"table\"><mine/></view>";
    mMailbox->SetView(LogFolder(), "Tempodial List", ViewType::Table, mine);
    for (const auto* content : { "", "<view", "no view at all" }) {
        Install("WorkLogCategoryView.xml", content);
        Restart();
        mWorkLog->TempodialWorkLog_CreateWorkLog(true);
        EXPECT_EQ(ViewNamed("Tempodial List")->XML(), mine) << content;
    }
    std::filesystem::remove(mFolder.Path("install/WorkLogCategoryView.xml"));
    Restart();
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    EXPECT_EQ(ViewNamed("Tempodial List")->XML(), mine);
    const auto traced = Traced();
    EXPECT_THAT(traced, Contains("TDWorklog create views error File not found OpenDataFile"));
    EXPECT_THAT(traced, Contains("TDWorklog Not got view"));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_TableViewGone_IsOddAndMadeAnew)
{
    MakeViews();
    mMailbox->DeleteView(LogFolder(), "Tempodial List");
    Restart();
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    EXPECT_THAT(Traced(), Contains("TDWorklog No objView - that's odd?"));
    EXPECT_TRUE(ViewNamed("Tempodial List"));
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_NoFolder_FailsOnce)
{
    Restart(FailingAt("NameSpace.GetDefaultFolder"));
    mWorkLog->TempodialWorkLog_CreateWorkLog(true);
    EXPECT_EQ(Traced().back(), "TDWorklog create views error Object variable or With block variable not set set views");
}

TEST_F(TempodialWorkLogViewsTest, CreateViews_ViewCantBeAdded_IsTraced)
{
    Restart(FailingAt("Views.Add"));
    mWorkLog->TempodialWorkLog_CreateWorkLog(false);
    const auto traced = Traced();
    EXPECT_THAT(traced, Contains("TDWorklog create views error Automation error Views.add").Times(2));
    EXPECT_THAT(traced, Contains("TDWorklog No added objView!").Times(2));
    EXPECT_THAT(traced, Contains("TDWorklog cal view failed to add!").Times(1));
}

TEST_F(TempodialWorkLogViewsTest, CreateViews_FileAbsent_StillAddsTheTableView)
{
    std::filesystem::remove(mFolder.Path("install/WorkLogCategoryView.xml"));
    mWorkLog->TempodialWorkLog_CreateWorkLog(false);
    EXPECT_TRUE(ViewNamed("Tempodial List"));
    EXPECT_THAT(Traced(), Contains("TDWorklog create views error File not found OpenDataFile"));
}

TEST_F(TempodialWorkLogViewsTest, CreateViews_OrdinaryCalendarViews_TheFirstIsTheDefault)
{
    mWorkLog->TempodialWorkLog_CreateWorkLog(false);
    const auto folder = LogFolder();
    for (const auto* name : { "Calendar" }) {
        mMailbox->DeleteView(folder, name);
    }
    mMain->mDefaultCalendarView = "";
    mWorkLog->CreateViews(folder);
    EXPECT_EQ(mMain->mDefaultCalendarView, "");
    mMailbox->SetView(folder, "List", ViewType::Table, "<view type=\"table\"/>");
    mMailbox->SetView(folder, "My Tempodial", ViewType::Calendar, "<view type=\"calendar\"/>");
    mMailbox->SetView(folder, "Day", ViewType::Calendar, "<view type=\"calendar\"/>");
    mMailbox->SetView(folder, "Week", ViewType::Calendar, "<view type=\"calendar\"/>");
    mWorkLog->CreateViews(folder);
    EXPECT_EQ(mMain->mDefaultCalendarView, "Day");
    EXPECT_EQ(Traced().back(), "TDWorklog default name Day");
}

TEST_F(TempodialWorkLogViewsTest, CheckView_Name_IsLookedUp)
{
    MakeViews();
    EXPECT_TRUE(mWorkLog->CheckView(LogFolder(), "Tempodial List"));
    EXPECT_THAT(Traced(), IsEmpty());
    EXPECT_FALSE(mWorkLog->CheckView(LogFolder(), "Other"));
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog View Absent: Other"));
    EXPECT_FALSE(mWorkLog->CheckView(nullptr, "Other"));
    EXPECT_THAT(Traced(),
        ElementsAre(HasSubstr("TDWorklog check views error Object variable or With block variable not set "),
            "TDWorklog View Absent: Other"));
}

TEST_F(TempodialWorkLogViewsTest, LoadForms_Template_PublishesTheForm)
{
    MakeViews();
    std::string path;
    mApplication->fromTemplate = [&](const std::string& file, const Ref<MAPIFolder>& folder) {
        path = file;
        return mMailbox->NewItem(folder, FormTemplate { ActivityClass, "", {}, "" });
    };
    mWorkLog->LoadForms();
    EXPECT_EQ(Replace(path, "\\", "/"), mFolder.Path("install/WorkLogForm.oft"));
    const auto* form = mMailbox->FormOf(ActivityClass);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->displayName, "Activity");
    EXPECT_EQ(LogFolder()->Items()->Count(), 0);
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog Load form",
            "TDUtils Install folder: " + mFolder.Path("install"), "TDWorklog form item: IPM.Appointment.TDActivity1",
            "TDWorklog form description: IPM.Appointment.TDActivity1", "TDWorklog LoadForms Loaded Form: 37"));
}

TEST_F(TempodialWorkLogViewsTest, LoadForms_Folder_IsWatchedFromThenOn)
{
    MakeViews();
    mWorkLog->LoadForms();
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.subject = "Lunch";
    data.start = At(9, 0);
    data.end = At(10, 0);
    mMailbox->NewItem(LogFolder(), data)->Save();
    mMailbox->DeliverEvents();
    const auto items = LogFolder()->Items();
    ASSERT_EQ(items->Count(), 1);
    EXPECT_EQ(items->Item(1)->MessageClass(), ActivityClass);

    mWorkLog->Terminate();
    mMailbox->NewItem(LogFolder(), data)->Save();
    mMailbox->DeliverEvents();
    EXPECT_EQ(LogFolder()->Items()->Item(2)->MessageClass(), "IPM.Appointment");
}

TEST_F(TempodialWorkLogViewsTest, LoadForms_OtherClass_WarnsAndGoesOn)
{
    MakeViews();
    mFormClass = "IPM.Appointment.Other";
    mWorkLog->LoadForms();
    EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("Form not in sync. cannot run"));
    EXPECT_NE(mMailbox->FormOf("IPM.Appointment.Other"), nullptr);
}

TEST_F(TempodialWorkLogViewsTest, LoadForms_TemplateAbsent_WarnsAndStillWatches)
{
    MakeViews();
    mApplication->fromTemplate = nullptr;
    mWorkLog->LoadForms();
    EXPECT_THAT(mMessages->TakeTexts(), ElementsAre("Form not in sync. cannot run"));
    EXPECT_THAT(Traced(), Contains("TDWorklog LoadForms error File not found CreateItemfromTemplate"));
    ItemData data;
    data.messageClass = ActivityClass;
    mMailbox->NewItem(LogFolder(), data)->Save();
    mMailbox->DeliverEvents();
    EXPECT_THAT(Traced(), Contains("TDWorklog ItemAdd event"));
}

TEST_F(TempodialWorkLogViewsTest, LoadForms_NoFolder_Ends)
{
    mWorkLog->LoadForms();
    EXPECT_THAT(Traced(), Not(Contains("TDWorklog Load form")));
    EXPECT_THAT(mMessages->TakeTexts(), IsEmpty());
}

TEST_F(TempodialWorkLogViewsTest, SetTableView_FolderShown_AppliesTheView)
{
    MakeViews();
    mExplorer->GoTo(LogFolder());
    mWorkLog->SetTableView();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial List");
    EXPECT_EQ(Traced().back(), "TDWorklog new view is Tempodial List");
    mWorkLog->SetCalendarView();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial Calendar");
}

TEST_F(TempodialWorkLogViewsTest, SetTableView_AnotherFolderShown_IsRememberedUntilArrival)
{
    MakeViews();
    mWorkLog->SetTableView();
    EXPECT_THAT(mWindowUses, Not(Contains(testing::StartsWith("Explorer.SetCurrentView"))));
    mExplorer->GoTo(LogFolder());
    mWorkLog->SwitchingToTasklog();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial List");
}

TEST_F(TempodialWorkLogViewsTest, SwitchingToTasklog_NothingAskedFor_AppliesTheCalendarView)
{
    MakeViews();
    mExplorer->GoTo(LogFolder());
    mWorkLog->SwitchingToTasklog();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial Calendar");
}

TEST_F(TempodialWorkLogViewsTest, SetTableView_ViewDeleted_IsRestoredFromTheFile)
{
    MakeViews();
    mMailbox->DeleteView(LogFolder(), "Tempodial List");
    mExplorer->GoTo(LogFolder());
    mWorkLog->SetTableView();
    ASSERT_TRUE(ViewNamed("Tempodial List"));
    EXPECT_EQ(ViewNamed("Tempodial List")->XML(), TableXml);
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial List");
    EXPECT_THAT(Traced(), Contains("TDWorklog View Absent: Tempodial List"));
}

TEST_F(TempodialWorkLogViewsTest, SetCalendarView_NoExplorer_IsTracedAndRemembered)
{
    MakeViews();
    mApplication->hasActiveExplorer = false;
    mWorkLog->SetTableView();
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog View error Object variable or With block variable not set new view"));
    mApplication->hasActiveExplorer = true;
    mExplorer->GoTo(LogFolder());
    mWorkLog->SwitchingToTasklog();
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial List");
}

TEST_F(TempodialWorkLogViewsTest, GoToLog_AnotherFolderShown_GoesThereWithTheView)
{
    MakeViews();
    mWorkLog->GoToLog(false);
    EXPECT_EQ(mExplorer->CurrentFolder()->EntryID(), LogFolder()->EntryID());
    EXPECT_EQ(mExplorer->CurrentView(), "Tempodial Calendar");
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog go to log", "TDWorklog GetSyncedWorkLog called",
            "TDWorklog new view is Tempodial Calendar"));
}

TEST_F(TempodialWorkLogViewsTest, GoToLog_FolderShown_DoesNothing)
{
    MakeViews();
    mExplorer->GoTo(LogFolder());
    mWorkLog->GoToLog(true);
    EXPECT_THAT(mWindowUses, Not(Contains("Explorer.SetCurrentFolder")));
    EXPECT_THAT(mWindowUses, Not(Contains(testing::StartsWith("Explorer.SetCurrentView"))));
}

TEST_F(TempodialWorkLogViewsTest, GoToLog_NoExplorer_TracesEachStatement)
{
    MakeViews();
    mApplication->hasActiveExplorer = false;
    mWorkLog->GoToLog(false);
    const std::string text = "error Object variable or With block variable not set ";
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetSyncedWorkLog called", "TDWorklog go to log",
            "TDWorklog gotolog " + text + "compare path", "TDWorklog gotolog " + text + "compare path",
            "TDWorklog View " + text + "new view"));
}

TEST_F(TempodialWorkLogViewsTest, GoToLog_NoFolder_StaysWhereItIs)
{
    mWorkLog->GoToLog(false);
    EXPECT_THAT(mWindowUses, Not(Contains("Explorer.SetCurrentFolder")));
    EXPECT_EQ(Traced().back(), "TDWorklog go to log");
}

TEST_F(TempodialWorkLogViewsTest, CreateWorkLog_AnyMemberFails_NeverLetsTheFailureOut)
{
    std::vector<std::string> calls;
    MakeViews();
    Restart([&](const std::string& member) { calls.push_back(member); });
    const auto start = [&] {
        mWorkLog->TempodialWorkLog_CreateWorkLog(true);
        mWorkLog->LoadForms();
        mWorkLog->SetTableView();
        mWorkLog->GoToLog(false);
    };
    start();
    ASSERT_GT(calls.size(), 30U);
    for (std::size_t failing = 0; failing < calls.size(); ++failing) {
        std::size_t count = 0;
        Restart([&](const std::string&) {
            if (++count == failing + 1) {
                throw Failure(Error::Automation);
            }
        });
        EXPECT_NO_THROW(start()) << calls[failing];
        EXPECT_TRUE(ViewNamed("Tempodial List")) << calls[failing];
    }
}

}

}
