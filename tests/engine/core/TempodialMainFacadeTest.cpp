#include "engine/core/CoreFixture.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "support/SlotLines.h"

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class TempodialMainFacadeTest : public CoreFixture
{
protected:
    TempodialMainFacadeTest()
    {
        ConnectAddIn();
        mApplication->LogOn();
        Traced();
    }
};

TEST_F(TempodialMainFacadeTest, ValidateProject_TracesAlsoOnSuccess)
{
    EXPECT_EQ(Main().ValidateProject("Alpha"), "");
    EXPECT_THAT(Traced(), ElementsAre("PM Validate Proj", "validate error: "));
    EXPECT_EQ(Main().ValidateProject("No Project"), "Invalid project selected");
    EXPECT_THAT(Traced(), Contains("validate error: Invalid project selected"));
}

TEST_F(TempodialMainFacadeTest, WorkersGone_MembersAnswerEmptyWithOneLine)
{
    // The trace is kept, as it is while the workers end.
    auto& main = Main();
    const auto log = main.mTempodialDebugLog;
    main.ZeroReferences();
    main.mTempodialDebugLog = log;
    const std::string unset = "Object variable or With block variable not set";

    EXPECT_EQ(main.GetCalendarID(), "");
    EXPECT_THAT(Traced(), ElementsAre("GetCalendarID error " + unset + ":Create inspectors"));
    main.GoToTasklog(false);
    EXPECT_THAT(Traced(), ElementsAre("Switch to the task log now", "GoTo error " + unset + ":switch", "Switched"));
    main.SyncData(21, true);
    EXPECT_THAT(Traced(), ElementsAre("load 21 days", "sd error " + unset + ":sd"));
    main.ChangeViewToCalendar();
    EXPECT_THAT(Traced(), ElementsAre("Switch to cal view now", "CalView error " + unset + ":switch"));
    main.ChangeViewToTable();
    EXPECT_THAT(Traced(), ElementsAre("Switch to table view now", "tableview error " + unset + ":switch"));
    EXPECT_FALSE(main.GetWorkLog());
    EXPECT_THAT(Traced(), ElementsAre("Get log", "getlog error " + unset + ":getlog"));
    EXPECT_FALSE(main.CreateCalendarItem("", "", "", "", 0, {}, {}, "", false));
    EXPECT_THAT(Traced(), ElementsAre("Create item", "create item error " + unset + ":getlog"));
    EXPECT_FALSE(main.IsContinuable(nullptr));
    EXPECT_THAT(Traced(), ElementsAre("IsContinuable error " + unset + ":getlog"));
    EXPECT_EQ(main.ValidateProject("x"), "");
    EXPECT_THAT(Traced(), ElementsAre("validate proj error " + unset + ":getlog", "validate error: "));
    EXPECT_EQ(main.WhatProject("s", ""), "");
    EXPECT_THAT(Traced(), ElementsAre("What proj error " + unset + ":getlog"));
    main.ShowAboutForm();
    EXPECT_THAT(Traced(), ElementsAre("Showaboutform" + unset + ":getlog"));
    EXPECT_FALSE(main.IsProject("p", "s", ""));
    EXPECT_THAT(Traced(), ElementsAre("Is proj error " + unset + ":getlog"));
    EXPECT_EQ(main.GetProjectPrecedence("p"), "");
    EXPECT_THAT(Traced(), ElementsAre("get projectprecedence error " + unset + ":getlog"));
    EXPECT_EQ(main.GetProjectSubRule("p"), "");
    EXPECT_THAT(Traced(), ElementsAre("get projectsubrule error " + unset + ":getlog"));
    EXPECT_EQ(main.GetProjectNotSubRule("p"), "");
    EXPECT_THAT(Traced(), ElementsAre("get projectnotsubrule error " + unset + ":getlog"));
    EXPECT_EQ(main.GetProjectPeopleRule("p"), "");
    EXPECT_THAT(Traced(), ElementsAre("get projectpeoplerule error " + unset + ":getlog"));
    main.ApplyProject("p", 7);
    EXPECT_THAT(Traced(), ElementsAre("ApplyProject" + unset + ":getlog"));
    EXPECT_FALSE(main.ReturnMatchingItem("End", {}));
    EXPECT_THAT(Traced(), ElementsAre("ReturnMatchingItem" + unset + ":getlog"));
    main.SwitchingToTasklog();
    EXPECT_THAT(Traced(), Contains("SwitchingTo error " + unset + ":call syncdata"));
    main.SetProjectForItems("p", true, true, {}, {}, false);
    EXPECT_THAT(Traced(), Contains("setprojectforitems" + unset + ":setproject"));
}

TEST_F(TempodialMainFacadeTest, WorkersGone_MembersWithoutWordsAnswerEmptySilently)
{
    auto& main = Main();
    const auto log = main.mTempodialDebugLog;
    main.ZeroReferences();
    main.mTempodialDebugLog = log;
    std::vector<std::string> names { "kept" };

    EXPECT_EQ(main.UpdateCalendarItem(nullptr, "", "", "", "", 0, {}, {}, "", false, true), 0);
    main.ExtraCalendarItemInfo(nullptr, "", "", "", "", {}, {}, "");
    EXPECT_EQ(main.GetBody(nullptr), "");
    main.CreateCalendarDuplicate(nullptr, false);
    main.RefreshCalendarItem(nullptr, "", "", false);
    EXPECT_FALSE(main.ApplyProjectToItem("", nullptr));
    EXPECT_FALSE(main.IsOurItem(nullptr));
    EXPECT_TRUE(main.GetAttribute("Project", nullptr).IsEmpty());
    EXPECT_TRUE(main.GetProjects(names, false, false, false).IsEmpty());
    EXPECT_THAT(names, ElementsAre("kept"));
    EXPECT_EQ(main.UpdateorAddProject("a", "", "", "", "2", false), "");
    main.UpdateorAddProjectRule("a", "", "");
    main.DeleteProject("a");
    EXPECT_THAT(Traced(), ElementsAre());
}

TEST_F(TempodialMainFacadeTest, SwitchingToTasklog_WithinTheLimit_StillCleansUp)
{
    // The file is made by the system's clock, so that this one, put ahead, finds it old.
    mClock->Set(Date::FromYearMonthDay(2200, 1, 1));
    Main().SwitchingToTasklog();
    EXPECT_THAT(Traced(), Contains("Exiting syncdata"));
    mFolder.Write("Tempodial/tracker_granules20060901.out", "x");
    Main().SwitchingToTasklog();
    EXPECT_FALSE(mFolder.Has("Tempodial/tracker_granules20060901.out"));
    const auto lines = Traced();
    EXPECT_EQ(lines.front(), "User has switched to our folder");
    EXPECT_THAT(lines, Not(Contains("Exiting syncdata")));
    EXPECT_EQ(lines.back(), "old enough to delete");
}

TEST_F(TempodialMainFacadeTest, SwitchingToTasklog_HostDisconnectsInTheMidst_EndsWell)
{
    class DisconnectingPump : public EventPump
    {
    public:
        explicit DisconnectingPump(Connect& connect)
            : mPumped(connect)
        {
        }
        void ProcessPending() override { mPumped.OnDisconnection(); }

    private:
        Connect& mPumped;
    };
    mPlatform->eventPump = MakeRef<DisconnectingPump>(mConnect);
    std::vector<std::string> lines;
    for (int end = 32700; end <= 36000; end += 300) {
        lines.push_back(SlotLine(end - 300, end).Application(8).Text());
    }
    mFolder.Write("Tempodial/tracker_granules20061010.out", TrackerText(lines));
    mClock->Advance(60);
    Main().SwitchingToTasklog();
    EXPECT_FALSE(mConnect.Main());
    EXPECT_EQ(mFolder.Read("Tempodial/TempodialHistory.out"), "|20061010_33300");
}

TEST_F(TempodialMainFacadeTest, SetProjectForItems_NeitherSelectedNorRange_AddsTheProjectAlone)
{
    Main().SetProjectForItems("Alpha", false, false, {}, {}, true);
    std::vector<std::string> names;
    Main().GetProjects(names, false, false, false);
    EXPECT_THAT(names, Contains("Alpha"));
    EXPECT_EQ(Main().GetProjectPrecedence("Alpha"), "2");
    EXPECT_EQ(Traced().front(), "Set project toAlpha");
}

TEST_F(TempodialMainFacadeTest, GoToTasklog_HostDisconnectsMeanwhile_EndsTheAddIn)
{
    const std::weak_ptr<TempodialMain> main = mConnect.Main().Shared();
    mApplication->observer->told = [this](const std::string& member) {
        if (member == "Explorer.SetCurrentFolder") {
            mConnect.OnDisconnection();
        }
    };
    // With the trace gone, the failure of the next line leaves the member.
    EXPECT_THROW(Main().GoToTasklog(false), Failure);
    EXPECT_TRUE(main.expired());
    EXPECT_EQ(Traced().back(), "TRACE SESSION STOP");
}

TEST_F(TempodialMainFacadeTest, ShowMembers_ShowTheirForms)
{
    const auto& forms = *mHost.forms;
    Main().ShowSettingsForm("No Project", nullptr);
    EXPECT_TRUE(forms.NewestVisible("ProjectSettingsForm"));
    Main().ShowReportForm();
    EXPECT_TRUE(forms.NewestVisible("ReportForm"));
    Main().ShowAboutForm();
    EXPECT_TRUE(forms.NewestVisible("AboutBoxForm"));
    Main().Terminate();
    for (const auto* name : { "ProjectSettingsForm", "ReportForm", "AboutBoxForm" }) {
        EXPECT_FALSE(forms.NewestVisible(name)) << name;
    }
}

TEST_F(TempodialMainFacadeTest, ShowMembers_AddInEnded_LeaveTheFailureToTheCaller)
{
    Main().Terminate();
    EXPECT_THROW(Main().ShowSettingsForm("x", nullptr), Failure);
    EXPECT_THROW(Main().ShowReportForm(), Failure);
    EXPECT_THROW(Main().ShowAboutForm(), Failure);
}

}
