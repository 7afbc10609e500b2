#include "engine/outlook/TempodialToolbars.h"

#include "base/Text.h"
#include "host/windows/HostCommandBarButton.h"
#include "host/windows/HostCommandBarPopup.h"
#include "host/windows/HostCommandBars.h"
#include "support/EngineFixture.h"
#include "support/SlotLines.h"

#include <algorithm>
#include <memory>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class TempodialToolbarsTest : public EngineFixture
{
protected:
    TempodialToolbarsTest()
    {
        LoadPictures();
        mToolbars = NewToolbars(1);
        mWindowUses.clear();
        ForgetTrace();
    }
    ~TempodialToolbarsTest() override { mToolbars->Terminate(); }

    Ref<TempodialToolbars> NewToolbars(std::int32_t id)
    {
        auto toolbars = MakeRef<TempodialToolbars>(mPlatform);
        toolbars->Initialize(mMain, mLog, id);
        return toolbars;
    }
    void LoadPictures()
    {
        for (auto* picture : { &mMain->mTempodialIcon, &mMain->mTempodialIconMask, &mMain->mTempodialRefreshIcon,
                 &mMain->mTempodialRefreshMaskIcon }) {
            *picture = MakeRef<TestPicture>();
        }
    }
    /// The window as the engine sees it.
    Ref<Explorer> Window() { return mApplication->ActiveExplorer(); }
    bool Create() { return mToolbars->CreateToolbars(Window()); }
    Ref<HostCommandBar> Bar(const std::string& name) const
    {
        return mExplorer->Bars()->ItemNamed(name).As<HostCommandBar>();
    }
    Ref<HostCommandBarControl> Find(const Ref<HostCommandBar>& bar, const std::string& caption) const
    {
        const auto& entries = bar->Entries();
        const auto found = std::find_if(
            entries.begin(), entries.end(), [&](const auto& control) { return control->Now().caption == caption; });
        return found == entries.end() ? nullptr : *found;
    }
    Ref<HostCommandBar> Menu() const { return Find(Bar("Menu Bar"), "&Tempodial").As<HostCommandBarPopup>()->Menu(); }
    Ref<HostCommandBar> HelpMenu() const { return Find(Menu(), "&Help").As<HostCommandBarPopup>()->Menu(); }
    Ref<HostCommandBarButton> Button() const
    {
        return Find(Bar("Standard"), "Refre&sh Tempodial").As<HostCommandBarButton>();
    }
    /// The entries of a menu, each as "caption|tag", with what else it has behind that.
    std::vector<std::string> Shapes(const Ref<HostCommandBar>& menu) const
    {
        std::vector<std::string> shapes;
        for (const auto& control : menu->Entries()) {
            const auto& now = control->Now();
            const auto button = control.As<HostCommandBarButton>();
            shapes.push_back(now.caption + "|" + now.tag + (now.visible ? "" : "|hidden")
                + (now.beginGroup ? "|group" : "") + (button ? "" : "|menu")
                + (button && button->Style() == ButtonStyle::IconAndCaption ? "|icon and caption" : "")
                + (button && button->ShownPicture() ? "|picture" : "")
                + (button && button->ShownMask() ? "|mask" : ""));
        }
        return shapes;
    }
    std::vector<std::int32_t> Ids(const Ref<HostCommandBar>& bar) const
    {
        std::vector<std::int32_t> ids;
        for (const auto& control : bar->Entries()) {
            ids.push_back(control->Now().id);
        }
        return ids;
    }
    /// Lets each use of a member fail.
    void FailAt(const std::string& member)
    {
        mApplication->observer->told = [member](const std::string& used) {
            if (IsUse(used, member)) {
                throw Failure(Error::InvalidCall);
            }
        };
    }

    Ref<TempodialToolbars> mToolbars;
};

TEST_F(TempodialToolbarsTest, Initialize_TouchesNoControl)
{
    NewToolbars(7);
    EXPECT_THAT(Traced(), ElementsAre("TDToolbars: 7 Initialize revision 1 TempodialToolbars"));
    EXPECT_THAT(mWindowUses, IsEmpty());
}

TEST_F(TempodialToolbarsTest, CreateToolbars_Button_StandsInFrontOfHelp)
{
    EXPECT_TRUE(Create());
    const auto ids = Ids(Bar("Standard"));
    const auto help = std::find(ids.begin(), ids.end(), 984);
    ASSERT_TRUE(help != ids.begin() && help != ids.end());
    const auto& button = Bar("Standard")->Entries().at(static_cast<std::size_t>(help - ids.begin()) - 1);
    EXPECT_EQ(Shapes(Bar("Standard")).at(static_cast<std::size_t>(help - ids.begin()) - 1),
        "Refre&sh Tempodial|Refre&sh Tempodial12|icon and caption|picture|mask");
    EXPECT_EQ(button->Now().parameter, "Refre&sh Tempodial12");
    EXPECT_EQ(Button()->ShownPicture(), mMain->mTempodialRefreshIcon);
    EXPECT_EQ(Button()->ShownMask(), mMain->mTempodialRefreshMaskIcon);
}

TEST_F(TempodialToolbarsTest, CreateToolbars_Menu_StandsInFrontOfHelpWithAllEntries)
{
    Create();
    const auto ids = Ids(Bar("Menu Bar"));
    const auto help = std::find(ids.begin(), ids.end(), 30010);
    ASSERT_TRUE(help != ids.begin() && help != ids.end());
    EXPECT_EQ(
        Shapes(Bar("Menu Bar")).at(static_cast<std::size_t>(help - ids.begin()) - 1), "&Tempodial|&Tempodial1|menu");
    EXPECT_THAT(Shapes(Menu()),
        ElementsAre("Refre&sh Tempodial|Refre&sh Tempodial1|group|icon and caption|picture|mask",
            "View Activities in a &Calendar|View Activities in a &Calendar1",
            "View Activities in a &List|View Activities in a &List1",
            "Pro&ject Settings...|Pro&ject Settings...1|group|icon and caption|picture|mask",
            "Set Project for &Activities...|Set Project for &Activities...1",
            "Create Activity &Report...|Create Activity &Report...1|group", "&Help|&Help1|group|menu"));
    EXPECT_THAT(Shapes(HelpMenu()),
        ElementsAre("Tempodial &Help|Tempodial &Help1", "&Check for Updates|&Check for Updates1|group",
            "&Report a Problem|&Report a Problem1", "&About Tempodial|&About Tempodial1|group"));
    const auto settings = Find(Menu(), "Pro&ject Settings...").As<HostCommandBarButton>();
    EXPECT_EQ(settings->ShownPicture(), mMain->mTempodialIcon);
    EXPECT_EQ(settings->ShownMask(), mMain->mTempodialIconMask);
}

TEST_F(TempodialToolbarsTest, CreateToolbars_TracesItsSteps)
{
    Create();
    const std::string at = "TDToolbars: 1 ";
    EXPECT_THAT(Traced(),
        ElementsAre(at + "found help", at + "add 1", at + "set refresh icon", at + "Create TD Menu Items: 1",
            at + "found help", at + "add 1", at + "set refresh icon"));
}

TEST_F(TempodialToolbarsTest, CreateToolbars_NoHelpControls_StandAtTheEnd)
{
    for (const auto* name : { "Standard", "Menu Bar" }) {
        const auto bar = Bar(name);
        for (const auto id : { 984, 30010 }) {
            if (const auto control = bar->FindControl({ .id = id, .tag = {} })) {
                control->Delete();
            }
        }
    }
    EXPECT_TRUE(Create());
    EXPECT_EQ(Bar("Standard")->Entries().back()->Now().caption, "Refre&sh Tempodial");
    EXPECT_EQ(Bar("Menu Bar")->Entries().back()->Now().caption, "&Tempodial");
    EXPECT_THAT(Traced(), Contains("TDToolbars: 1 add 2").Times(2));
}

TEST_F(TempodialToolbarsTest, CreateToolbars_NoPictures_MakesNoPictureCall)
{
    for (auto* picture : { &mMain->mTempodialIcon, &mMain->mTempodialRefreshIcon }) {
        *picture = nullptr;
    }
    EXPECT_TRUE(Create());
    EXPECT_THAT(mWindowUses, Not(Contains("CommandBarButton.SetPicture")));
    EXPECT_THAT(mWindowUses, Not(Contains("CommandBarButton.SetMask")));
    EXPECT_EQ(Button()->Style(), ButtonStyle::IconAndCaption);
    EXPECT_THAT(Shapes(Menu()).at(3), HasSubstr("Pro&ject Settings...1|group|icon and caption"));
    const auto traced = Traced();
    EXPECT_THAT(traced, Contains("TDToolbars: 1 no refresh icon").Times(2));
    EXPECT_THAT(traced, Contains("TDToolbars: 1 no settings icon").Times(1));
}

TEST_F(TempodialToolbarsTest, CreateToolbars_TooSoon_MakesNothingUntilTheNextCall)
{
    mExplorer = mApplication->host->OpenExplorer(Calendar(), false);
    EXPECT_FALSE(Create());
    EXPECT_THAT(Traced(), ElementsAre("TDToolbars: 1 too soon, try to create toolbar again later"));
    EXPECT_THAT(mExplorer->Bars()->All(), IsEmpty());
    mExplorer->MakeBarsReady();
    EXPECT_TRUE(Create());
    EXPECT_TRUE(Button());
    EXPECT_EQ(Menu()->Entries().size(), 7U);
}

TEST_F(TempodialToolbarsTest, CreateToolbars_BarsRefused_IsTooSoon)
{
    FailAt("Explorer.CommandBars");
    EXPECT_FALSE(Create());
    EXPECT_THAT(Traced(), ElementsAre("TDToolbars: 1 too soon, try to create toolbar again later"));
}

TEST_F(TempodialToolbarsTest, CreateToolbars_MenuBarRefused_LeavesTheButton)
{
    FailAt("CommandBars.Item Menu Bar");
    EXPECT_TRUE(Create());
    EXPECT_TRUE(Button());
    EXPECT_FALSE(Find(Bar("Menu Bar"), "&Tempodial"));
    const auto traced = Traced();
    EXPECT_EQ(traced.at(traced.size() - 2),
        "TDToolbars: 1 toolbars create error Invalid procedure call or argument set icon");
    EXPECT_EQ(traced.back(), "TDToolbars: 1 Create TD Menu Items: 1");
}

TEST_F(TempodialToolbarsTest, CreateToolbars_OneControlRefused_LeavesTheOthersStanding)
{
    FailAt("CommandBarControls.Add Refre&sh Tempodial12");
    EXPECT_TRUE(Create());
    EXPECT_FALSE(Button());
    EXPECT_EQ(Menu()->Entries().size(), 7U);
    EXPECT_EQ(HelpMenu()->Entries().size(), 4U);
    const auto traced = Traced();
    EXPECT_THAT(traced,
        Contains("TDToolbars: 1 toolbars create error Invalid procedure call or argument add button 1").Times(1));
}

TEST_F(TempodialToolbarsTest, CreateToolbars_CaptionRefused_IsTracedOnceAndTheRestIsSet)
{
    FailAt("CommandBarButton.SetCaption View Activities in a &List");
    EXPECT_TRUE(Create());
    EXPECT_EQ(Shapes(Menu()).at(2), "|View Activities in a &List1");
    EXPECT_THAT(Traced(), Contains(StartsWith("TDToolbars: 1 toolbars create error ")).Times(1));
}

TEST_F(TempodialToolbarsTest, CreateToolbars_AnyMemberFails_StillEnds)
{
    Create();
    const auto uses = mWindowUses.size();
    for (std::size_t failing = 1; failing <= uses; ++failing) {
        mExplorer = mApplication->host->OpenExplorer(Calendar());
        ForgetTrace();
        mApplication->observer->told = [failing, count = std::size_t { 0 }](const std::string&) mutable {
            if (++count == failing) {
                throw Failure(Error::Automation);
            }
        };
        const auto toolbars = NewToolbars(2);
        const auto done = toolbars->CreateToolbars(Window());
        const auto traced = Traced();
        // The two calls in the handler of its own, and the deletion of an older menu, of which nothing is told.
        const auto told = std::count_if(traced.begin(), traced.end(),
            [](const auto& line) { return line.find("toolbars create error") != std::string::npos; });
        EXPECT_EQ(done, failing > 2) << failing;
        if (told == 0 && done) {
            EXPECT_EQ(Menu()->Entries().size(), 7U) << failing;
        }
        if (done) {
            toolbars->ListAvailable(false);
        }
        toolbars->Terminate();
    }
}

TEST_F(TempodialToolbarsTest, CreateToolbars_Again_ReplacesTheMenu)
{
    Create();
    EXPECT_TRUE(Create());
    const auto captions = Shapes(Bar("Menu Bar"));
    EXPECT_EQ(std::count(captions.begin(), captions.end(), "&Tempodial|&Tempodial1|menu"), 1);
    EXPECT_EQ(Menu()->Entries().size(), 7U);
}

TEST_F(TempodialToolbarsTest, CreateToolbars_ControlWithTheBareTag_BuildsNoMenu)
{
    const auto other
        = Bar("Menu Bar")
              ->Controls()
              ->Add(
                  { .type = CommandBarControlType::Popup, .id = {}, .parameter = "", .before = {}, .temporary = true });
    other->SetTag("&Tempodial");
    EXPECT_TRUE(Create());
    EXPECT_FALSE(Find(Bar("Menu Bar"), "&Tempodial"));
    EXPECT_TRUE(Button());
}

TEST_F(TempodialToolbarsTest, CreateToolbars_OtherWindow_HasOtherTags)
{
    Create();
    mExplorer = mApplication->host->OpenExplorer(Calendar());
    const auto other = NewToolbars(12);
    other->CreateToolbars(Window());
    EXPECT_EQ(Shapes(Menu()).at(1), "View Activities in a &Calendar|View Activities in a &Calendar12");
    // kept: window 1's button and window 12's menu entry share a tag.
    EXPECT_EQ(Find(Menu(), "Refre&sh Tempodial")->Now().tag, "Refre&sh Tempodial12");
    EXPECT_EQ(Button()->Tag(), "Refre&sh Tempodial122");
    other->Terminate();
}

TEST_F(TempodialToolbarsTest, ListAvailable_WritesOnlyWhatDiffers)
{
    Create();
    const auto writes
        = [&] { return std::count(mWindowUses.begin(), mWindowUses.end(), "CommandBarButton.SetEnabled"); };
    const auto list = Find(Menu(), "View Activities in a &List");
    mToolbars->ListAvailable(true);
    EXPECT_EQ(writes(), 0);
    mToolbars->ListAvailable(false);
    mToolbars->ListAvailable(false);
    EXPECT_FALSE(list->Now().enabled);
    EXPECT_EQ(writes(), 1);
    mToolbars->ListAvailable(true);
    EXPECT_TRUE(list->Now().enabled);
}

TEST_F(TempodialToolbarsTest, ListAvailable_NoControls_IsSilent)
{
    mToolbars->ListAvailable(false);
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialToolbarsTest, Terminate_LeavesTheControlsAndHearsNoClick)
{
    Create();
    ForgetTrace();
    mToolbars->Terminate();
    EXPECT_THAT(Traced(), ElementsAre("TDToolbars: 1 Toolbars cleanup: 1"));
    Button()->Click();
    for (const auto& entry : HelpMenu()->Entries()) {
        entry->Click();
    }
    mToolbars->Terminate();
    EXPECT_THAT(Traced(), IsEmpty());
    EXPECT_THAT(mHost.shell->opened, IsEmpty());
    EXPECT_EQ(Menu()->Entries().size(), 7U);
}

TEST_F(TempodialToolbarsTest, Toolbars_Released_GoWhileTheWindowStays)
{
    const std::weak_ptr<TempodialToolbars> known = mToolbars.Shared();
    Create();
    mToolbars->Terminate();
    mToolbars = NewToolbars(2);
    EXPECT_TRUE(known.expired());
    Button()->Click();
}

/// What a click does, as the lines traced that begin so.
struct ClickCase
{
    const char* menu;
    const char* caption;
    std::vector<std::string> lines;
};

class TempodialToolbarsClickTest : public TempodialToolbarsTest, public testing::WithParamInterface<ClickCase>
{
};

TEST_P(TempodialToolbarsClickTest, Click_DoesItsStepsInOrder)
{
    mMain->TempodialMain_Run();
    mClock->Advance(60);
    ForgetTrace();
    const auto& [menu, caption, expected] = GetParam();
    const std::string place = menu;
    Find(place == "bar" ? Bar("Standard") : (place == "help" ? HelpMenu() : Menu()), caption)->Click();
    auto lines = Traced();
    std::erase_if(lines, [](const auto& line) {
        return !line.starts_with("TDToolbars: ") && line != "TDMain load 21 days"
            && !line.starts_with("TDMain Switch to ") && !line.starts_with("TDMain User has")
            && line != "TDWorklog go to log";
    });
    EXPECT_EQ(lines, expected);
}

// The window stands on the inbox, so that each way to the log is a switch to it.
INSTANTIATE_TEST_SUITE_P(Entries, TempodialToolbarsClickTest,
    testing::Values(
        ClickCase { "bar", "Refre&sh Tempodial",
            { "TDToolbars: 1 Refresh clicked: 1", "TDMain load 21 days", "TDMain Switch to the task log now",
                "TDWorklog go to log", "TDMain User has switched to our folder" } },
        ClickCase { "menu", "Refre&sh Tempodial",
            { "TDToolbars: 1 14Tasklogsubmenu clicked: 1", "TDMain load 21 days", "TDMain Switch to the task log now",
                "TDWorklog go to log", "TDMain User has switched to our folder" } },
        ClickCase { "menu", "View Activities in a &Calendar",
            { "TDToolbars: 1 ViewTasklogsubmenu clicked: 1", "TDMain Switch to the task log now", "TDWorklog go to log",
                "TDMain User has switched to our folder", "TDMain Switch to cal view now", "TDMain load 21 days" } },
        ClickCase { "menu", "View Activities in a &List",
            { "TDToolbars: 1 TableTasklogsubmenu clicked: 1", "TDMain Switch to table view now",
                "TDMain Switch to the task log now", "TDWorklog go to log", "TDMain User has switched to our folder",
                "TDMain load 21 days" } },
        ClickCase { "menu", "Pro&ject Settings...", { "TDToolbars: 1 ViewSettingssubmenu clicked: 1" } },
        ClickCase { "menu", "Set Project for &Activities...", { "TDToolbars: 1 SetProject clicked: 1" } },
        ClickCase { "menu", "Create Activity &Report...", { "TDToolbars: 1 CreateReportsubmenu clicked: 1" } },
        ClickCase { "help", "Tempodial &Help", { "TDToolbars: 1 help clicked: 1" } },
        ClickCase { "help", "&Check for Updates", { "TDToolbars: 1 Updates clicked: 1" } },
        ClickCase { "help", "&Report a Problem", { "TDToolbars: 1 ReportProblem clicked: 1" } },
        ClickCase { "help", "&About Tempodial", { "TDToolbars: 1 About clicked: 1" } }));

struct FormCase
{
    const char* menu;
    const char* caption;
    const char* form;
};

class TempodialToolbarsFormTest : public TempodialToolbarsTest, public testing::WithParamInterface<FormCase>
{
};

TEST_P(TempodialToolbarsFormTest, Click_ShowsTheForm)
{
    Create();
    const auto& [menu, caption, form] = GetParam();
    EXPECT_FALSE(mForms->NewestVisible(form));
    Find(std::string(menu) == "help" ? HelpMenu() : Menu(), caption)->Click();
    EXPECT_TRUE(mForms->NewestVisible(form));
}

INSTANTIATE_TEST_SUITE_P(Entries, TempodialToolbarsFormTest,
    testing::Values(FormCase { "menu", "Pro&ject Settings...", "ProjectSettingsForm" },
        FormCase { "menu", "Set Project for &Activities...", "SetProjectForm" },
        FormCase { "menu", "Create Activity &Report...", "ReportForm" },
        FormCase { "help", "&Report a Problem", "DiagsForm" },
        FormCase { "help", "&About Tempodial", "AboutBoxForm" }));

TEST_F(TempodialToolbarsTest, Click_Help_OpensTheUserGuide)
{
    Create();
    Find(HelpMenu(), "Tempodial &Help")->Click();
    ASSERT_EQ(mHost.shell->opened.size(), 1U);
    EXPECT_EQ(mHost.shell->opened[0], mMain->mUtils->GetPathToUserGuideFile("userguide.html"));
}

TEST_F(TempodialToolbarsTest, Click_Updates_OpensThePageForThisVersion)
{
    Create();
    Find(HelpMenu(), "&Check for Updates")->Click();
    EXPECT_THAT(mHost.shell->opened, ElementsAre("https://www.tempodial.example/update.asp?version=1.2.0"));
}

TEST_F(TempodialToolbarsTest, Click_LastWindowClosesMeanwhile_EndsTheAddInQuietly)
{
    mMain->TempodialMain_Run();
    std::filesystem::create_directories(mFolder.Path("Tempodial"));
    std::vector<std::string> lines;
    for (int slot = 0; slot < 4; ++slot) {
        const auto start = 32400 + slot * 300;
        lines.push_back(WordSlot(start, start + 300, std::to_string(slot)));
    }
    mFolder.Write("Tempodial/tracker_granules20061010.out", TrackerText(lines));
    bool closed = false;
    mEventPump->hook = [&] {
        if (!closed) {
            closed = true;
            mApplication->host->CloseExplorer(mExplorer);
        }
    };
    const std::weak_ptr<TempodialMain> main = mMain.Shared();
    ForgetTrace();
    mClock->Advance(60);
    const auto button = Find(Menu(), "Refre&sh Tempodial");
    // Nobody but the windows' wrappers holds the add-in any more.
    mToolbars->Terminate();
    mMain = MakeRef<TempodialMain>(mPlatform);
    button->Click();
    EXPECT_TRUE(closed);
    EXPECT_THAT(Traced().back(), HasSubstr("TRACE SESSION STOP"));
    EXPECT_TRUE(main.expired());
}

}
