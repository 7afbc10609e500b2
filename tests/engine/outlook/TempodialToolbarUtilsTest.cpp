#include "engine/outlook/TempodialToolbarUtils.h"

#include "host/windows/HostCommandBarPopup.h"
#include "host/windows/HostCommandBars.h"
#include "host/windows/HostInspector.h"
#include "support/EngineFixture.h"

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class TempodialToolbarUtilsTest : public EngineFixture
{
protected:
    TempodialToolbarUtilsTest()
    {
        mUtils->Initialize(mLog, mMain);
        mApplication->host->CreateItem()->Display();
        mInspector = mApplication->ActiveInspector();
        mBars = mApplication->host->OpenInspectors().at(0)->Bars();
        mWindowUses.clear();
        ForgetTrace();
    }

    std::vector<std::string> BarNames() const
    {
        std::vector<std::string> names;
        for (const auto& bar : mBars->All()) {
            names.push_back(bar->Name() + (bar->Visible() ? "" : " (hidden)"));
        }
        return names;
    }
    void ChangeMenu(bool hide, const Ref<CommandBarPopup>& popup, std::int32_t id)
    {
        mUtils->ChangeMenu(hide, popup, id);
    }
    /// Lets the calls of a member fail, or only one of them, counted from 1.
    void FailAt(const std::string& member, int only = 0)
    {
        mApplication->observer->told = [member, only, calls = 0](const std::string& used) mutable {
            if (IsUse(used, member) && (++calls == only || only == 0)) {
                throw Failure(Error::Automation);
            }
        };
    }

    Ref<TempodialToolbarUtils> mUtils = MakeRef<TempodialToolbarUtils>(mPlatform);
    Ref<Inspector> mInspector;
    Ref<HostCommandBars> mBars;
};

TEST_F(TempodialToolbarUtilsTest, InitializeAndTerminate_TraceTheirWords)
{
    const auto uses = mMain.Shared().use_count();
    const auto utils = MakeRef<TempodialToolbarUtils>(mPlatform);
    utils->Initialize(mLog, mMain);
    utils->Terminate();
    EXPECT_THAT(Traced(),
        ElementsAre("TDToolbarUt Init toolbar utils revision 1 TempodialToolbarUtils", "TDToolbarUt term inspector"));
    EXPECT_EQ(mMain.Shared().use_count(), uses);
}

TEST_F(TempodialToolbarUtilsTest, RemoveMyToolbar_Present_IsDeletedAlone)
{
    mBars->Add("Other");
    mBars->Add("Tempodial");
    mBars->Add("Tempodial 2");
    mUtils->RemoveMyToolbar(mInspector, "Tempodial");
    EXPECT_THAT(BarNames(), ElementsAre("Standard", "Other (hidden)", "Tempodial 2 (hidden)"));
    EXPECT_THAT(Traced(), ElementsAre("TDToolbarUt remove my toolbar: Tempodial", "TDToolbarUt delete it"));
    EXPECT_THAT(mWindowUses, Contains("CommandBars.Count").Times(1));
}

TEST_F(TempodialToolbarUtilsTest, RemoveMyToolbar_Absent_ChangesNothing)
{
    mBars->Add("tempodial");
    mUtils->RemoveMyToolbar(mInspector, "Tempodial");
    EXPECT_THAT(BarNames(), ElementsAre("Standard", "tempodial (hidden)"));
    EXPECT_THAT(Traced(), ElementsAre("TDToolbarUt remove my toolbar: Tempodial"));
}

TEST_F(TempodialToolbarUtilsTest, RemoveMyToolbar_Refused_IsTracedWithItsStepGluedOn)
{
    mBars->Add("Tempodial");
    FailAt("CommandBar.Delete");
    mUtils->RemoveMyToolbar(mInspector, "Tempodial");
    EXPECT_THAT(Traced(),
        ElementsAre("TDToolbarUt remove my toolbar: Tempodial", "TDToolbarUt delete it",
            "TDToolbarUt remove toolbars error Automation errormake delete call"));
}

TEST_F(TempodialToolbarUtilsTest, RemoveMyToolbar_BarUnreadable_TheLastOneIsLookedAtAgain)
{
    mBars->Add("Other");
    mBars->Add("Tempodial");
    FailAt("CommandBars.Item", 2);
    mUtils->RemoveMyToolbar(mInspector, "Tempodial");
    EXPECT_THAT(BarNames(), ElementsAre("Standard", "Other (hidden)"));
    EXPECT_THAT(Traced(),
        ElementsAre("TDToolbarUt remove my toolbar: Tempodial",
            "TDToolbarUt remove toolbars error Automation errorremove command bar", "TDToolbarUt delete it"));
}

TEST_F(TempodialToolbarUtilsTest, ReplaceStandardToolbar_HidesStandardAndAddsOurs)
{
    const auto bar = mUtils->ReplaceStandardToolbar(mInspector, "Tempodial");
    EXPECT_THAT(BarNames(), ElementsAre("Standard (hidden)", "Tempodial"));
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->Position(), BarPosition::Top);
    // In the ordinary case there is no bar of ours yet, which is told as a failure.
    EXPECT_THAT(Traced(),
        ElementsAre("TDToolbarUt replace toolbar",
            "TDToolbarUt replace toolbars error Invalid procedure call or argument",
            "TDToolbarUt invis toolbar - standard"));
}

TEST_F(TempodialToolbarUtilsTest, ReplaceStandardToolbar_Twice_ReplacesTheFirst)
{
    mUtils->ReplaceStandardToolbar(mInspector, "Tempodial");
    const auto first = mBars->All().at(1);
    mWindowUses.clear();
    mUtils->ReplaceStandardToolbar(mInspector, "Tempodial");
    EXPECT_THAT(BarNames(), ElementsAre("Standard (hidden)", "Tempodial"));
    EXPECT_NE(mBars->All().at(1), first);
    EXPECT_THAT(mWindowUses, Contains("CommandBar.Delete").Times(1));
    EXPECT_THAT(mWindowUses, Contains("CommandBar.SetVisible").Times(1));
}

TEST_F(TempodialToolbarUtilsTest, ReplaceStandardToolbar_BarRefused_GivesNothing)
{
    FailAt("CommandBars.Add Tempodial");
    EXPECT_FALSE(mUtils->ReplaceStandardToolbar(mInspector, "Tempodial"));
    EXPECT_THAT(BarNames(), ElementsAre("Standard (hidden)"));
    const auto traced = Traced();
    EXPECT_EQ(traced.back(), "TDToolbarUt replace toolbars error Object variable or With block variable not set");
    EXPECT_THAT(traced, Contains("TDToolbarUt replace toolbars error Automation error"));
}

TEST_F(TempodialToolbarUtilsTest, GetStandardToolBar_GivesTheBarOrTracesTheFailure)
{
    EXPECT_EQ(mUtils->GetStandardToolBar(mInspector)->Name(), "Standard");
    EXPECT_THAT(Traced(), IsEmpty());
    FailAt("CommandBars.Item Standard");
    EXPECT_FALSE(mUtils->GetStandardToolBar(mInspector));
    EXPECT_THAT(Traced(), ElementsAre("TDToolbarUt getstandard error Automation error"));
}

TEST_F(TempodialToolbarUtilsTest, EnableStandardToolBar_Visible_ChangesNothing)
{
    mUtils->EnableStandardToolBar(mInspector);
    EXPECT_THAT(mWindowUses, Not(Contains("CommandBar.SetVisible")));
    EXPECT_THAT(Traced(), ElementsAre("TDToolbarUt enable standard toolbar", "TDToolbarUt visible? True"));
}

TEST_F(TempodialToolbarUtilsTest, EnableStandardToolBar_Hidden_IsShown)
{
    mBars->ItemNamed("Standard")->SetVisible(false);
    mUtils->EnableStandardToolBar(mInspector);
    EXPECT_THAT(BarNames(), ElementsAre("Standard"));
    EXPECT_THAT(Traced(), ElementsAre("TDToolbarUt enable standard toolbar", "TDToolbarUt visible? False"));
}

TEST_F(TempodialToolbarUtilsTest, EnableStandardToolBar_Refused_TracesEachStatement)
{
    FailAt("CommandBars.Item Standard");
    mUtils->EnableStandardToolBar(mInspector);
    EXPECT_THAT(Traced(), Contains("TDToolbarUt enable standard error Automation error").Times(3));
}

TEST_F(TempodialToolbarUtilsTest, Routines_NoInspector_NeverLetAFailureOut)
{
    mUtils->RemoveMyToolbar(nullptr, "x");
    EXPECT_FALSE(mUtils->ReplaceStandardToolbar(nullptr, "x"));
    EXPECT_FALSE(mUtils->GetStandardToolBar(nullptr));
    mUtils->EnableStandardToolBar(nullptr);
}

TEST_F(TempodialToolbarUtilsTest, ChangeMenu_HidesAndShowsTheControlOfAnId)
{
    const auto menu = mExplorer->Bars()->ItemNamed("Menu Bar")->FindControl({ .id = 30010, .tag = {} });
    const auto popup = menu.As<CommandBarPopup>();
    const auto id = popup->Controls()->Item(1)->Id();
    ChangeMenu(true, popup, id);
    EXPECT_FALSE(popup->Controls()->Item(1)->Visible());
    ChangeMenu(false, popup, id);
    EXPECT_TRUE(popup->Controls()->Item(1)->Visible());
    ChangeMenu(true, popup, 4711);
    ChangeMenu(true, nullptr, id);
    const auto shown = std::to_string(id);
    EXPECT_THAT(Traced(),
        ElementsAre("TDToolbarUt Remove ID: " + shown, "TDToolbarUt Remove ID: " + shown, "TDToolbarUt Remove ID: 4711",
            "TDToolbarUt Remove ID: " + shown));
    ChangeMenu(true, popup, 0);
    EXPECT_THAT(Traced(), Contains("TDToolbarUt  item: " + popup->Controls()->Item(1)->Caption() + " " + shown));
}

}
