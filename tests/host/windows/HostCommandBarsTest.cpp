#include "host/windows/HostCommandBars.h"

#include "host/windows/HostCommandBarButton.h"
#include "host/windows/HostCommandBarControls.h"
#include "host/windows/HostCommandBarPopup.h"
#include "support/FailureNumber.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TestPicture : public Picture
{
};

}

class HostCommandBarsTest : public testing::Test
{
protected:
    static constexpr auto Gone = static_cast<std::int32_t>(Error::ObjectNotFound);
    static constexpr auto Button = CommandBarControlType::Button;
    static constexpr auto Popup = CommandBarControlType::Popup;
    static constexpr auto Split = CommandBarControlType::SplitButtonPopup;

    Ref<HostCommandBars> NewBars()
    {
        auto bars = MakeRef<HostCommandBars>();
        bars->MakeForInspector([this](std::int32_t id) { mRun.push_back(id); });
        return bars;
    }
    Ref<CommandBar> NewBar(const std::string& name = "Mine") const
    {
        auto bar = mBars->Add(name);
        bar->SetVisible(true);
        return bar;
    }
    static Ref<HostCommandBarButton> AddButton(const Ref<CommandBar>& bar, const std::string& caption)
    {
        auto button = bar->Controls()->Add({ Button, {}, "", {}, true });
        button->SetCaption(caption);
        return button.As<HostCommandBarButton>();
    }
    static Subscription OnClick(const Ref<HostCommandBarButton>& button, std::function<void(bool& cancel)> action)
    {
        CommandBarButtonEvents events;
        events.Click = [action = std::move(action)](const Ref<CommandBarButton>&, bool& cancel) { action(cancel); };
        return button->Subscribe(std::move(events));
    }
    static std::vector<std::string> Captions(const Ref<CommandBarControls>& controls)
    {
        std::vector<std::string> captions;
        for (std::int32_t index = 1; index <= controls->Count(); ++index) {
            captions.push_back(controls->Item(index)->Caption());
        }
        return captions;
    }
    static std::string Refusal(const Ref<HostCommandBarControl>& control)
    {
        try {
            control->Click();
        } catch (const Failure& failure) {
            return std::to_string(failure.Number()) + " " + failure.Description();
        }
        return "";
    }

    std::vector<std::int32_t> mRun;
    Ref<HostCommandBars> mBars = NewBars();
    Ref<CommandBar> mStandard = mBars->ItemNamed("Standard");
};

TEST_F(HostCommandBarsTest, Inspector_HasTheCommandsOfAnItem)
{
    EXPECT_EQ(mBars->Count(), 1);
    EXPECT_TRUE(mStandard->Visible());
    EXPECT_EQ(mStandard->Position(), BarPosition::Top);
    std::vector<std::pair<std::int32_t, CommandBarControlType>> found;
    for (std::int32_t index = 1; index <= mStandard->Controls()->Count(); ++index) {
        const auto control = mStandard->Controls()->Item(index);
        found.emplace_back(control->Id(), control->Type());
    }
    EXPECT_THAT(found,
        ElementsAre(std::pair(1975, Button), std::pair(2521, Button), std::pair(478, Button), std::pair(359, Split),
            std::pair(360, Split), std::pair(984, Button)));
    EXPECT_THAT(Captions(mStandard->Controls()),
        ElementsAre("&Save and Close", "&Print", "&Delete", "Pre&vious Item", "&Next Item", "&Help"));
}

TEST_F(HostCommandBarsTest, Explorer_HasHelpAtTheEndOfBothBars)
{
    const auto bars = MakeRef<HostCommandBars>();
    bars->MakeForExplorer({});
    EXPECT_EQ(bars->Count(), 2);
    const auto standard = bars->Item(1);
    EXPECT_EQ(standard->Name(), "Standard");
    EXPECT_EQ(standard->Controls()->Item(standard->Controls()->Count())->Id(), 984);
    const auto menuBar = bars->ItemNamed("menu bar");
    EXPECT_EQ(menuBar->Position(), BarPosition::MenuBar);
    EXPECT_THAT(
        Captions(menuBar->Controls()), ElementsAre("&File", "&Edit", "&View", "&Go", "&Tools", "&Actions", "&Help"));
    const auto help = menuBar->Controls()->ItemCaptioned("Help");
    EXPECT_EQ(help->Id(), 30010);
    EXPECT_EQ(help->Type(), Popup);
    EXPECT_EQ(help.As<CommandBarPopup>()->Controls()->Item(1)->Id(), 984);
}

TEST_F(HostCommandBarsTest, Bars_NotYetThere_NoneCanBeHad)
{
    const auto bars = MakeRef<HostCommandBars>();
    EXPECT_EQ(bars->Count(), 0);
    EXPECT_THAT(bars->All(), IsEmpty());
    EXPECT_EQ(FailureNumber([&] { bars->ItemNamed("Standard"); }), 5);
    EXPECT_EQ(FailureNumber([&] { bars->Item(1); }), 5);
    EXPECT_EQ(FailureNumber([&] { bars->Add("Mine"); }), 5);
    bars->MakeForExplorer({});
    AddButton(bars->ItemNamed("Standard"), "Kept");
    bars->MakeForExplorer({});
    EXPECT_TRUE(bars->ItemNamed("Standard")->Controls()->ItemCaptioned("Kept"));
}

TEST_F(HostCommandBarsTest, Item_UnknownOrOutOfRange_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mBars->Item(0); }), 5);
    EXPECT_EQ(FailureNumber([&] { mBars->Item(2); }), 5);
    EXPECT_EQ(FailureNumber([&] { mBars->ItemNamed("Other"); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStandard->Controls()->Item(0); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStandard->Controls()->Item(7); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStandard->Controls()->ItemCaptioned("Other"); }), 5);
}

TEST_F(HostCommandBarsTest, Add_GivesAHiddenEmptyBar)
{
    const auto bar = mBars->Add("Mine");
    EXPECT_FALSE(bar->Visible());
    EXPECT_EQ(bar->Controls()->Count(), 0);
    bar->SetPosition(BarPosition::Top);
    EXPECT_EQ(mBars->ItemNamed("Mine")->Position(), BarPosition::Top);
    EXPECT_EQ(FailureNumber([&] { mBars->Add("mine"); }), 5);
    EXPECT_EQ(mBars->Count(), 2);
}

TEST_F(HostCommandBarsTest, Delete_OfAProgramsBar_TakesItsControlsWithIt)
{
    const auto bar = NewBar();
    const auto controls = bar->Controls();
    const auto button = AddButton(bar, "One");
    const auto menu = controls->Add({ Popup, {}, "", {}, true }).As<CommandBarPopup>();
    const auto entry = menu->Controls()->Add({ Button, {}, "", {}, true });
    bar->Delete();
    EXPECT_EQ(mBars->Count(), 1);
    EXPECT_EQ(FailureNumber([&] { bar->Name(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { bar->SetVisible(false); }), Gone);
    EXPECT_EQ(FailureNumber([&] { bar->Controls(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { bar->FindControl({}); }), Gone);
    EXPECT_EQ(FailureNumber([&] { bar->Delete(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { controls->Count(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { button->Caption(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { button->SetStyle(ButtonStyle::IconAndCaption); }), Gone);
    EXPECT_EQ(FailureNumber([&] { button->Delete(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { button->Click(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { menu->Controls(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { entry->SetEnabled(false); }), Gone);
    EXPECT_TRUE(mBars->Add("Mine"));
}

TEST_F(HostCommandBarsTest, Delete_OfTheHostsOwnBar_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mStandard->Delete(); }), 5);
    const auto menu = NewBar()->Controls()->Add({ Popup, {}, "", {}, true }).As<CommandBarPopup>();
    EXPECT_EQ(FailureNumber([&] { menu->CommandBar()->Delete(); }), 5);
    EXPECT_EQ(mBars->Count(), 2);
}

TEST_F(HostCommandBarsTest, Controls_AddBefore_StandsThere)
{
    const auto controls = mStandard->Controls();
    controls->Add({ Button, {}, "", 6, true })->SetCaption("Before help");
    controls->Add({ Button, {}, "", 1, true })->SetCaption("First");
    EXPECT_EQ(controls->Item(1)->Caption(), "First");
    EXPECT_EQ(controls->Item(7)->Caption(), "Before help");
    EXPECT_EQ(controls->Item(8)->Id(), 984);
    EXPECT_EQ(FailureNumber([&] { controls->Add({ Button, {}, "", 9, true }); }), 5);
    EXPECT_EQ(FailureNumber([&] { controls->Add({ Button, {}, "", 0, true }); }), 5);
    EXPECT_EQ(controls->Count(), 8);
}

TEST_F(HostCommandBarsTest, Controls_AddOfACommand_CarriesIt)
{
    const auto controls = NewBar()->Controls();
    const auto button = controls->Add({ Button, 1975, "word", {}, true });
    EXPECT_EQ(button->Id(), 1975);
    EXPECT_EQ(button->FaceId(), 1975);
    EXPECT_EQ(button->Caption(), "&Save and Close");
    EXPECT_EQ(button.As<HostCommandBarButton>()->Now().parameter, "word");
    EXPECT_EQ(FailureNumber([&] { controls->Add({ Button, 99999, "", {}, true }); }), 5);
    EXPECT_EQ(FailureNumber([&] { controls->Add({ Button, 359, "", {}, true }); }), 5);
    EXPECT_EQ(FailureNumber([&] { controls->Add({ Split, {}, "", {}, true }); }), 5);
    EXPECT_EQ(controls->Count(), 1);
    EXPECT_EQ(controls->Add({ Popup, 30010, "", {}, true }).As<CommandBarPopup>()->Controls()->Count(), 1);
}

TEST_F(HostCommandBarsTest, Controls_AddOfNoCommand_IsAProgramsOwn)
{
    const auto controls = NewBar()->Controls();
    for (const auto id : { std::optional<std::int32_t>(), std::optional(0), std::optional(1) }) {
        const auto button = controls->Add({ Button, id, "", {}, true }).As<HostCommandBarButton>();
        EXPECT_EQ(button->Id(), 1);
        EXPECT_EQ(button->FaceId(), 0);
        EXPECT_EQ(button->Caption(), "");
        EXPECT_TRUE(button->Enabled());
        EXPECT_TRUE(button->Visible());
        EXPECT_FALSE(button->BeginGroup());
        EXPECT_EQ(button->Style(), ButtonStyle::Automatic);
        EXPECT_FALSE(button->ShownPicture());
    }
}

TEST_F(HostCommandBarsTest, FaceId_OfNoButton_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mStandard->FindControl({ 359, {} })->FaceId(); }), 438);
    const auto menu = NewBar()->Controls()->Add({ Popup, {}, "", {}, true });
    EXPECT_EQ(FailureNumber([&] { menu->FaceId(); }), 438);
}

TEST_F(HostCommandBarsTest, FindControl_GivesTheFirstThatFits)
{
    const auto bar = NewBar();
    AddButton(bar, "One")->SetTag("a");
    AddButton(bar, "Two")->SetTag("b");
    AddButton(bar, "Three")->SetTag("b");
    const auto menu = bar->Controls()->Add({ Popup, {}, "", {}, true }).As<CommandBarPopup>();
    menu->Controls()->Add({ Button, {}, "", {}, true })->SetTag("c");
    EXPECT_EQ(bar->FindControl({ {}, "b" })->Caption(), "Two");
    EXPECT_EQ(bar->FindControl({ 1, {} })->Caption(), "One");
    EXPECT_EQ(bar->FindControl({ 1, "b" })->Caption(), "Two");
    EXPECT_FALSE(bar->FindControl({ {}, "B" }));
    EXPECT_FALSE(bar->FindControl({ {}, "c" }));
    EXPECT_FALSE(bar->FindControl({ 984, {} }));
    EXPECT_TRUE(menu->CommandBar()->FindControl({ {}, "c" }));
}

TEST_F(HostCommandBarsTest, ItemCaptioned_LeavesKeysAndCaseOutOfAccount)
{
    const auto bar = NewBar();
    AddButton(bar, "Pro&ject Settings...");
    EXPECT_TRUE(bar->Controls()->ItemCaptioned("project settings..."));
    EXPECT_TRUE(bar->Controls()->ItemCaptioned("&Project Settings..."));
}

TEST_F(HostCommandBarsTest, Control_HoldsWhatItIsGiven)
{
    const auto bar = NewBar();
    const auto button = AddButton(bar, "One");
    const auto picture = MakeRef<TestPicture>();
    const auto mask = MakeRef<TestPicture>();
    button->SetTag("tag");
    button->SetEnabled(false);
    button->SetVisible(false);
    button->SetBeginGroup(true);
    button->SetStyle(ButtonStyle::IconAndCaption);
    button->SetPicture(picture);
    button->SetMask(mask);
    const auto found = bar->Controls()->Item(1).As<HostCommandBarButton>();
    EXPECT_EQ(found->Tag(), "tag");
    EXPECT_FALSE(found->Enabled());
    EXPECT_FALSE(found->Visible());
    EXPECT_TRUE(found->BeginGroup());
    EXPECT_EQ(found->Style(), ButtonStyle::IconAndCaption);
    EXPECT_EQ(found->ShownPicture(), Ref<Picture>(picture));
    EXPECT_EQ(found->ShownMask(), Ref<Picture>(mask));
}

TEST_F(HostCommandBarsTest, Delete_OfAControl_TakesItOffTheBar)
{
    const auto bar = NewBar();
    const auto first = AddButton(bar, "One");
    AddButton(bar, "Two");
    first->Delete();
    EXPECT_THAT(Captions(bar->Controls()), ElementsAre("Two"));
    EXPECT_EQ(FailureNumber([&] { first->Caption(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { first->Subscribe({}); }), Gone);
    mStandard->FindControl({ 984, {} })->Delete();
    EXPECT_FALSE(mStandard->FindControl({ 984, {} }));
}

TEST_F(HostCommandBarsTest, Copy_PlacesAnEqualControlAtTheEnd)
{
    const auto bar = NewBar();
    const auto next = mStandard->FindControl({ 360, {} });
    const auto copy = next->Copy(bar);
    EXPECT_EQ(copy->Id(), 360);
    EXPECT_EQ(copy->Type(), Split);
    copy->SetCaption("Mine");
    EXPECT_EQ(next->Caption(), "&Next Item");

    const auto button = AddButton(bar, "One");
    button->SetPicture(MakeRef<TestPicture>());
    button->SetStyle(ButtonStyle::IconAndCaption);
    const auto other = button->Copy(bar).As<HostCommandBarButton>();
    EXPECT_EQ(other->Style(), ButtonStyle::IconAndCaption);
    EXPECT_TRUE(other->ShownPicture());
    EXPECT_THAT(Captions(bar->Controls()), ElementsAre("Mine", "One", "One"));

    const auto menu = bar->Controls()->Add({ Popup, 30010, "", {}, true });
    const auto menuCopy = menu->Copy(bar).As<CommandBarPopup>();
    EXPECT_THAT(Captions(menuCopy->Controls()), ElementsAre("&Help"));
    EXPECT_EQ(FailureNumber([&] { next->Copy(nullptr); }), 91);
    bar->Delete();
    EXPECT_EQ(FailureNumber([&] { next->Copy(bar); }), Gone);
}

TEST_F(HostCommandBarsTest, Click_TellsThisButtonAlone)
{
    const auto bar = NewBar();
    const auto first = AddButton(bar, "One");
    const auto second = AddButton(bar, "Two");
    first->SetTag("same");
    second->SetTag("same");
    std::vector<std::string> heard;
    const auto a = OnClick(first, [&](bool&) { heard.emplace_back("first"); });
    const auto b = OnClick(second, [&](bool&) { heard.emplace_back("second"); });
    second->Click();
    EXPECT_THAT(heard, ElementsAre("second"));
    EXPECT_THAT(mRun, IsEmpty());
}

TEST_F(HostCommandBarsTest, Click_OnACommand_RunsItUnlessKeptFromIt)
{
    const auto button = NewBar()->Controls()->Add({ Button, 1975, "", {}, true }).As<HostCommandBarButton>();
    bool refuse = false;
    const auto clicks = OnClick(button, [&](bool& cancel) {
        EXPECT_THAT(mRun, IsEmpty());
        EXPECT_FALSE(cancel);
        cancel = refuse;
    });
    refuse = true;
    button->Click();
    EXPECT_THAT(mRun, IsEmpty());
    refuse = false;
    button->Click();
    EXPECT_THAT(mRun, ElementsAre(1975));
}

TEST_F(HostCommandBarsTest, Click_OnASplitButton_RunsIt)
{
    mStandard->FindControl({ 359, {} }).As<HostCommandBarControl>()->Click();
    EXPECT_THAT(mRun, ElementsAre(359));
}

TEST_F(HostCommandBarsTest, Click_InAMenu_ReachesTheEntry)
{
    const auto menu = NewBar()->Controls()->Add({ Popup, {}, "", {}, true }).As<CommandBarPopup>();
    const auto inner = menu->Controls()->Add({ Popup, 30010, "", {}, true }).As<CommandBarPopup>();
    inner->Controls()->Item(1).As<HostCommandBarControl>()->Click();
    EXPECT_THAT(mRun, ElementsAre(984));
}

TEST_F(HostCommandBarsTest, Click_OnWhatNobodyCanReach_Fails)
{
    const auto bar = NewBar();
    const auto menu = bar->Controls()->Add({ Popup, {}, "", {}, true }).As<HostCommandBarPopup>();
    menu->SetCaption("Menu");
    const auto entry = menu->Controls()->Add({ Button, {}, "", {}, true }).As<HostCommandBarButton>();
    entry->SetCaption("Entry");
    int clicks = 0;
    const auto heard = OnClick(entry, [&](bool&) { ++clicks; });

    EXPECT_EQ(Refusal(menu), "5 \"Menu\" is no button");
    entry->SetEnabled(false);
    EXPECT_EQ(Refusal(entry), "5 \"Entry\" is disabled");
    entry->SetEnabled(true);
    entry->SetVisible(false);
    EXPECT_EQ(Refusal(entry), "5 \"Entry\" is hidden");
    entry->SetVisible(true);
    menu->SetEnabled(false);
    EXPECT_EQ(Refusal(entry), "5 \"Menu\" is disabled");
    menu->SetEnabled(true);
    menu->SetVisible(false);
    EXPECT_EQ(Refusal(entry), "5 \"Menu\" is hidden");
    menu->SetVisible(true);
    bar->SetVisible(false);
    EXPECT_EQ(Refusal(entry), "5 The bar \"Mine\" is hidden");
    EXPECT_EQ(clicks, 0);
    bar->SetVisible(true);
    EXPECT_EQ(Refusal(entry), "");
    EXPECT_EQ(clicks, 1);
}

TEST_F(HostCommandBarsTest, Click_HandlerTakesTheWindowAway_StillEndsWell)
{
    const auto button = NewBar()->Controls()->Add({ Button, 1975, "", {}, true }).As<HostCommandBarButton>();
    const auto clicks = OnClick(button, [&](bool&) { mBars->MarkGone(); });
    button->Click();
    EXPECT_THAT(mRun, ElementsAre(1975));
    EXPECT_EQ(FailureNumber([&] { button->Caption(); }), Gone);
}

TEST_F(HostCommandBarsTest, WindowGone_EveryMemberFails)
{
    mBars->MarkGone();
    constexpr auto windowGone = static_cast<std::int32_t>(Error::ServerUnavailable);
    EXPECT_EQ(FailureNumber([&] { mBars->Count(); }), windowGone);
    EXPECT_EQ(FailureNumber([&] { mBars->Item(1); }), windowGone);
    EXPECT_EQ(FailureNumber([&] { mBars->ItemNamed("Standard"); }), windowGone);
    EXPECT_EQ(FailureNumber([&] { mBars->Add("Mine"); }), windowGone);
    EXPECT_EQ(FailureNumber([&] { mBars->MakeForExplorer({}); }), windowGone);
    EXPECT_EQ(FailureNumber([&] { mStandard->Name(); }), Gone);
    EXPECT_THAT(mBars->All(), IsEmpty());
}

TEST_F(HostCommandBarsTest, Bars_LetGo_LeaveNothing)
{
    std::vector<std::weak_ptr<void>> left;
    {
        const auto bar = NewBar();
        const auto menu = bar->Controls()->Add({ Popup, 30010, "", {}, true }).As<HostCommandBarPopup>();
        left = { mBars.Shared(), bar.Shared(), menu.Shared(), menu->Menu().Shared(),
            menu->Menu()->Entries().front().Shared() };
    }
    mStandard = nullptr;
    mBars = nullptr;
    for (const auto& object : left) {
        EXPECT_TRUE(object.expired());
    }
}

TEST_F(HostCommandBarsTest, Changes_OfWhatIsSeen_AreTold)
{
    const auto button = AddButton(mStandard, "Own");
    const auto popup = mStandard->Controls()->Add({ Popup, {}, "", {}, true }).As<HostCommandBarPopup>();
    const auto entry = AddButton(popup->CommandBar(), "Entry");
    int told = 0;
    const auto watching = mBars->SubscribeToChanges({ [&] { ++told; } });
    const auto tells = [&](const auto& change) {
        told = 0;
        change();
        return told > 0;
    };
    EXPECT_TRUE(tells([&] { button->SetCaption("Other"); }));
    EXPECT_TRUE(tells([&] { button->SetEnabled(false); }));
    EXPECT_TRUE(tells([&] { button->SetVisible(false); }));
    EXPECT_TRUE(tells([&] { button->SetBeginGroup(true); }));
    EXPECT_TRUE(tells([&] { button->SetStyle(ButtonStyle::IconAndCaption); }));
    EXPECT_TRUE(tells([&] { button->SetPicture(MakeRef<TestPicture>()); }));
    EXPECT_TRUE(tells([&] { button->SetMask(MakeRef<TestPicture>()); }));
    EXPECT_TRUE(tells([&] { entry->SetCaption("Deeper"); }));
    EXPECT_TRUE(tells([&] { AddButton(popup->CommandBar(), "Further"); }));
    EXPECT_TRUE(tells([&] { entry->Delete(); }));
    EXPECT_TRUE(tells([&] { mStandard->SetVisible(false); }));
    EXPECT_TRUE(tells([&] { mStandard->SetPosition(BarPosition::Floating); }));
    EXPECT_TRUE(tells([&] { NewBar(); }));
    EXPECT_TRUE(tells([&] { mBars->ItemNamed("Mine")->Delete(); }));
}

TEST_F(HostCommandBarsTest, Changes_ToWhatItIsAlready_AreNotTold)
{
    const auto button = AddButton(mStandard, "Own");
    int told = 0;
    const auto watching = mBars->SubscribeToChanges({ [&] { ++told; } });
    button->SetCaption("Own");
    button->SetEnabled(true);
    mStandard->SetVisible(true);
    mStandard->SetPosition(BarPosition::Top);
    EXPECT_EQ(told, 0);
}

TEST_F(HostCommandBarsTest, Changes_BarsComeIntoBeing_IsToldWhenTheyAreThere)
{
    const auto bars = MakeRef<HostCommandBars>();
    std::size_t seen = 0;
    const auto watching = bars->SubscribeToChanges({ [&] { seen = bars->All().size(); } });
    bars->MakeForExplorer({});
    EXPECT_EQ(seen, 2);
}

TEST_F(HostCommandBarsTest, Changes_OfACopyOnAnotherBar_AreToldThere)
{
    const auto button = AddButton(mStandard, "Own");
    const auto other = NewBars();
    const auto copy = button->Copy(other->ItemNamed("Standard"));
    int here = 0;
    int there = 0;
    const auto watchingHere = mBars->SubscribeToChanges({ [&] { ++here; } });
    const auto watchingThere = other->SubscribeToChanges({ [&] { ++there; } });
    copy->SetCaption("Other");
    EXPECT_EQ(here, 0);
    EXPECT_EQ(there, 1);
}

}
