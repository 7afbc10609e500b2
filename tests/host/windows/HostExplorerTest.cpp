#include "host/windows/HostExplorer.h"

#include "host/store/StoreItem.h"
#include "host/windows/BuiltInCommand.h"
#include "host/windows/HostApplication.h"
#include "host/windows/HostCommandBarButton.h"
#include "support/FailureNumber.h"
#include "support/TestMailbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

class HostExplorerTest : public testing::Test
{
protected:
    static constexpr auto Gone = static_cast<std::int32_t>(Error::ServerUnavailable);
    static constexpr auto NotFound = static_cast<std::int32_t>(Error::ObjectNotFound);

    /// Notes what a window tells, its number in front.
    Subscription Note(const Ref<HostExplorer>& explorer)
    {
        const auto noting = [this, number = explorer->Number()](const char* word) {
            return [this, number, word] { mHeard.push_back(std::to_string(number) + " " + word); };
        };
        ExplorerEvents events;
        events.Activate = noting("activate");
        events.FolderSwitch = noting("folder");
        events.SelectionChange = noting("selection");
        events.Close = noting("close");
        return explorer->Subscribe(std::move(events));
    }
    Subscription OnNew(std::function<void(const Ref<HostExplorer>& explorer)> action)
    {
        ExplorersEvents events;
        events.NewExplorer
            = [action = std::move(action)](const Ref<Explorer>& explorer) { action(explorer.As<HostExplorer>()); };
        return mApplication->Explorers()->Subscribe(std::move(events));
    }
    static Subscription On(
        const Ref<HostExplorer>& explorer, std::function<void()> ExplorerEvents::*event, std::function<void()> action)
    {
        ExplorerEvents events;
        events.*event = std::move(action);
        return explorer->Subscribe(std::move(events));
    }
    static void Click(const Ref<HostExplorer>& explorer, std::int32_t id)
    {
        explorer->CommandBars()->ItemNamed("Standard")->FindControl({ id, {} }).As<HostCommandBarControl>()->Click();
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<HostApplication> mApplication = MakeRef<HostApplication>(mMailbox);
    Ref<MAPIFolder> mInbox = mMailbox->FolderByPath("Inbox");
    Ref<MAPIFolder> mCalendar = mMailbox->FolderByPath("Calendar");
    Ref<MAPIFolder> mLog = mCalendar->Folders()->Add("Log", DefaultFolder::Calendar);
    std::vector<std::string> mHeard;
};

TEST_F(HostExplorerTest, Open_IsToldOfAndThenComesToTheFront)
{
    const auto before = mApplication->OpenExplorer(mInbox);
    Subscription noting;
    const auto watching = OnNew([&](const auto& explorer) {
        mHeard.emplace_back("new");
        EXPECT_EQ(mApplication->Explorers()->Count(), 2);
        EXPECT_EQ(mApplication->ActiveExplorer(), Ref<Explorer>(before));
        noting = Note(explorer);
    });
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    EXPECT_THAT(mHeard, ElementsAre("new", "2 activate"));
    EXPECT_EQ(mApplication->ActiveExplorer(), Ref<Explorer>(explorer));
    EXPECT_THAT(mApplication->OpenExplorers(), ElementsAre(before, explorer));
}

TEST_F(HostExplorerTest, Open_FolderIsGone_Fails)
{
    mMailbox->DeleteFolder(mLog);
    EXPECT_EQ(FailureNumber([&] { mApplication->OpenExplorer(mLog); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mApplication->OpenExplorer(nullptr); }), 91);
    EXPECT_EQ(mApplication->Explorers()->Count(), 0);
}

TEST_F(HostExplorerTest, Open_HandlerTakesTheWindowAway_NeverComesToTheFront)
{
    Subscription noting;
    const auto watching = OnNew([&](const auto& explorer) {
        noting = Note(explorer);
        mApplication->KillExplorer(explorer);
    });
    const auto explorer = mApplication->OpenExplorer(mInbox);
    EXPECT_TRUE(explorer->IsGone());
    EXPECT_THAT(mHeard, IsEmpty());
    EXPECT_FALSE(mApplication->ActiveExplorer());
}

TEST_F(HostExplorerTest, Number_IsNeverGivenAgain)
{
    const auto first = mApplication->OpenExplorer(mInbox);
    mApplication->CloseExplorer(first);
    EXPECT_EQ(first->Number(), 1);
    EXPECT_EQ(mApplication->OpenExplorer(mInbox)->Number(), 2);
    EXPECT_EQ(mApplication->OpenExplorer(mInbox)->Number(), 3);
}

TEST_F(HostExplorerTest, Activate_TellsEachTime)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto noting = Note(explorer);
    mApplication->ActivateExplorer(explorer);
    mApplication->ActivateExplorer(explorer);
    EXPECT_THAT(mHeard, ElementsAre("1 activate", "1 activate"));
    mApplication->CloseExplorer(explorer);
    mHeard.clear();
    mApplication->ActivateExplorer(explorer);
    EXPECT_THAT(mHeard, IsEmpty());
}

TEST_F(HostExplorerTest, Close_CountsNoMoreThenTellsThenIsGone)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto noting = Note(explorer);
    const auto watching = On(explorer, &ExplorerEvents::Close, [&] {
        EXPECT_EQ(mApplication->Explorers()->Count(), 0);
        EXPECT_FALSE(mApplication->ActiveExplorer());
        EXPECT_EQ(explorer->Caption(), "Inbox - Mailbox");
        EXPECT_EQ(explorer->CommandBars()->Count(), 2);
        // Neither closes it once more nor brings it back.
        mApplication->CloseExplorer(explorer);
        mApplication->ActivateExplorer(explorer);
    });
    mApplication->CloseExplorer(explorer);
    EXPECT_THAT(mHeard, ElementsAre("1 close"));
    EXPECT_FALSE(mApplication->ActiveExplorer());
    EXPECT_EQ(FailureNumber([&] { explorer->Caption(); }), Gone);
    mApplication->CloseExplorer(explorer);
    EXPECT_THAT(mHeard, ElementsAre("1 close"));
}

TEST_F(HostExplorerTest, Kill_TellsNobody)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto noting = Note(explorer);
    mApplication->KillExplorer(explorer);
    EXPECT_THAT(mHeard, IsEmpty());
    EXPECT_EQ(mApplication->Explorers()->Count(), 0);
    EXPECT_FALSE(mApplication->ActiveExplorer());
    EXPECT_EQ(FailureNumber([&] { explorer->Caption(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->CommandBars(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->IsFolderSelected(mInbox); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->GoTo(mCalendar); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->ShowBeside({ mCalendar }); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->Select({}); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->PickView("Messages"); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->MakeBarsReady(); }), Gone);
    mApplication->CloseExplorer(explorer);
    EXPECT_THAT(mHeard, IsEmpty());
}

TEST_F(HostExplorerTest, GoTo_TellsOfTheSwitchThenOfTheSelection)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    explorer->Select({ NewTestItem(mMailbox, "a") });
    const auto noting = Note(explorer);
    const auto watching = On(explorer, &ExplorerEvents::FolderSwitch, [&] {
        EXPECT_EQ(explorer->CurrentFolder()->EntryID(), mCalendar->EntryID());
        EXPECT_EQ(explorer->Selection()->Count(), 0);
    });
    explorer->GoTo(mCalendar);
    EXPECT_THAT(mHeard, ElementsAre("1 folder", "1 selection"));
    explorer->SetCurrentFolder(mCalendar);
    EXPECT_THAT(mHeard, ElementsAre("1 folder", "1 selection", "1 folder", "1 selection"));
    EXPECT_EQ(FailureNumber([&] { explorer->GoTo(nullptr); }), 91);
    mMailbox->DeleteFolder(mLog);
    EXPECT_EQ(FailureNumber([&] { explorer->GoTo(mLog); }), NotFound);
    EXPECT_EQ(mHeard.size(), 4);
}

TEST_F(HostExplorerTest, GoTo_WindowDiesInTheSwitch_TellsOfNoSelection)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto noting = Note(explorer);
    const auto watching = On(explorer, &ExplorerEvents::FolderSwitch, [&] { mApplication->CloseExplorer(explorer); });
    explorer->GoTo(mCalendar);
    EXPECT_THAT(mHeard, ElementsAre("1 folder", "1 close"));
}

TEST_F(HostExplorerTest, GoTo_HandlerGoesElsewhere_EndsThere)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto watching = On(explorer, &ExplorerEvents::FolderSwitch, [&] {
        if (explorer->CurrentFolder()->EntryID() == mCalendar->EntryID()) {
            explorer->SetCurrentFolder(mLog);
        }
    });
    explorer->GoTo(mCalendar);
    EXPECT_EQ(explorer->CurrentFolder()->EntryID(), mLog->EntryID());
}

TEST_F(HostExplorerTest, ShowBeside_LastsUntilThePersonGoesElsewhere)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto noting = Note(explorer);
    explorer->ShowBeside({ mCalendar, mLog });
    EXPECT_THAT(mHeard, ElementsAre("1 selection"));
    EXPECT_EQ(explorer->CurrentFolder()->EntryID(), mCalendar->EntryID());
    EXPECT_TRUE(explorer->IsFolderSelected(mCalendar));
    EXPECT_TRUE(explorer->IsFolderSelected(mLog));
    EXPECT_FALSE(explorer->IsFolderSelected(mInbox));
    EXPECT_EQ(FailureNumber([&] { explorer->IsFolderSelected(nullptr); }), 91);

    explorer->SetCurrentFolder(mLog);
    EXPECT_EQ(explorer->CurrentFolder()->EntryID(), mLog->EntryID());
    EXPECT_TRUE(explorer->IsFolderSelected(mCalendar));

    explorer->GoTo(mLog);
    EXPECT_FALSE(explorer->IsFolderSelected(mCalendar));
    EXPECT_TRUE(explorer->IsFolderSelected(mLog));

    explorer->ShowBeside({ mCalendar, mLog });
    explorer->SetCurrentFolder(mInbox);
    EXPECT_FALSE(explorer->IsFolderSelected(mCalendar));
    EXPECT_TRUE(explorer->IsFolderSelected(mInbox));
    EXPECT_EQ(FailureNumber([&] { explorer->ShowBeside({}); }), 5);
}

TEST_F(HostExplorerTest, Select_TellsOfIt)
{
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    const auto noting = Note(explorer);
    explorer->Select({ NewTestItem(mMailbox, "a") });
    EXPECT_THAT(mHeard, ElementsAre("1 selection"));
    EXPECT_EQ(explorer->Selection()->Item(1)->Subject(), "a");
}

TEST_F(HostExplorerTest, PickView_ShowsIt)
{
    mCalendar->Views()->Add("List", ViewType::Table, ViewSaveOption::ThisFolderEveryone)->Save();
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    explorer->PickView("List");
    EXPECT_EQ(explorer->CurrentView(), "List");
    EXPECT_EQ(FailureNumber([&] { explorer->PickView("Other"); }), 5);
}

TEST_F(HostExplorerTest, Bars_ComeIntoBeingWhenTheyAreReady)
{
    const auto explorer = mApplication->OpenExplorer(mInbox, false);
    EXPECT_EQ(FailureNumber([&] { explorer->CommandBars()->ItemNamed("Standard"); }), 5);
    EXPECT_THAT(explorer->Bars()->All(), IsEmpty());
    explorer->MakeBarsReady();
    EXPECT_TRUE(explorer->CommandBars()->ItemNamed("Standard"));
    EXPECT_TRUE(mApplication->OpenExplorer(mInbox)->CommandBars()->ItemNamed("Menu Bar"));
}

TEST_F(HostExplorerTest, Bars_GoWithTheWindow)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto bars = explorer->CommandBars();
    const auto help = bars->ItemNamed("Standard")->FindControl({ 984, {} });
    mApplication->CloseExplorer(explorer);
    EXPECT_EQ(FailureNumber([&] { bars->Count(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { help->Caption(); }), NotFound);
}

TEST_F(HostExplorerTest, DeleteCommand_DeletesWhatIsSelected)
{
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    const auto first = NewTestItem(mMailbox, "a");
    const auto second = NewTestItem(mMailbox, "b");
    first->Save();
    second->Save();
    explorer->Select({ second, mApplication->CreateItem() });
    const auto noting = Note(explorer);
    Click(explorer, 478);
    EXPECT_TRUE(second->IsDeleted());
    EXPECT_EQ(TestItems(mMailbox)->Count(), 1);
    EXPECT_EQ(explorer->Selection()->Count(), 0);
    EXPECT_THAT(mHeard, ElementsAre("1 selection"));
    Click(explorer, 478);
    Click(explorer, 984);
    EXPECT_EQ(TestItems(mMailbox)->Count(), 1);
    EXPECT_EQ(mHeard.size(), 1);
}

TEST_F(HostExplorerTest, AThousandWindows_LeaveNothing)
{
    std::vector<std::weak_ptr<HostExplorer>> explorers;
    std::vector<std::weak_ptr<HostCommandBars>> bars;
    for (int number = 0; number < 1000; ++number) {
        const auto explorer = mApplication->OpenExplorer(mCalendar);
        explorers.push_back(explorer.Shared());
        bars.push_back(explorer->Bars().Shared());
        number % 2 == 0 ? mApplication->CloseExplorer(explorer) : mApplication->KillExplorer(explorer);
    }
    for (std::size_t index = 0; index < explorers.size(); ++index) {
        EXPECT_TRUE(explorers[index].expired());
        EXPECT_TRUE(bars[index].expired());
    }
    EXPECT_EQ(mApplication->Explorers()->Count(), 0);
}

TEST_F(HostExplorerTest, Changes_AreToldToWhoeverDrawsIt)
{
    mCalendar->Views()->Add("List", ViewType::Table, ViewSaveOption::ThisFolderEveryone)->Save();
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    int told = 0;
    const auto watching = explorer->SubscribeToChanges({ .Changed = [&] { ++told; } });
    const auto tells = [&](const auto& change) {
        told = 0;
        change();
        return told > 0;
    };
    EXPECT_TRUE(tells([&] { explorer->GoTo(mInbox); }));
    EXPECT_TRUE(tells([&] { explorer->SetCurrentFolder(mCalendar); }));
    EXPECT_TRUE(tells([&] { explorer->ShowBeside({ mCalendar, mLog }); }));
    EXPECT_TRUE(tells([&] { explorer->Select({ NewTestItem(mMailbox, "a") }); }));
    EXPECT_TRUE(tells([&] { explorer->PickView("List"); }));
    EXPECT_FALSE(tells([&] { FailureNumber([&] { explorer->PickView("Other"); }); }));
}

TEST_F(HostExplorerTest, Changes_FolderSwitch_IsDrawnBeforeTheAddInHearsOfIt)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    std::string drawn;
    const auto watching
        = explorer->SubscribeToChanges({ .Changed = [&] { drawn = explorer->CurrentFolder()->Name(); } });
    std::string atSwitch;
    const auto hearing = On(explorer, &ExplorerEvents::FolderSwitch, [&] { atSwitch = drawn; });
    explorer->GoTo(mCalendar);
    EXPECT_EQ(atSwitch, "Calendar");
}

TEST_F(HostExplorerTest, BroughtToFront_IsToldBeforeTheActivation)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    const auto noting = Note(explorer);
    const auto watching = explorer->SubscribeToChanges({ .BroughtToFront = [&] { mHeard.emplace_back("front"); } });
    mApplication->ActivateExplorer(explorer);
    EXPECT_THAT(mHeard, ElementsAre("front", "1 activate"));
}

TEST_F(HostExplorerTest, Ended_IsToldOnceWhetherClosedOrKilled)
{
    for (const bool isClosed : { true, false }) {
        const auto explorer = mApplication->OpenExplorer(mInbox);
        int ended = 0;
        const auto watching = explorer->SubscribeToChanges({ .Ended = [&] {
            ++ended;
            EXPECT_TRUE(explorer->IsGone());
        } });
        isClosed ? mApplication->CloseExplorer(explorer) : mApplication->KillExplorer(explorer);
        mApplication->CloseExplorer(explorer);
        EXPECT_EQ(ended, 1);
    }
}

TEST_F(HostExplorerTest, Opened_IsToldBeforeTheAddInHearsOfTheWindow)
{
    Subscription noting;
    Subscription drawing;
    const auto watching = mApplication->SubscribeToExplorers({ [&](const Ref<HostExplorer>& explorer) {
        mHeard.push_back("opened " + explorer->Caption());
        drawing = explorer->SubscribeToChanges({ .BroughtToFront = [&] { mHeard.emplace_back("front"); } });
    } });
    const auto hearing = OnNew([&](const auto& explorer) {
        mHeard.emplace_back("new");
        noting = Note(explorer);
    });
    mApplication->OpenExplorer(mInbox);
    EXPECT_THAT(mHeard, ElementsAre("opened Inbox - Mailbox", "new", "front", "1 activate"));
}

TEST_F(HostExplorerTest, OwnersCommands_AreRunByTheOwner)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    Click(explorer, BuiltInCommand::Help);
    mApplication->SetOwnerCommands({ .InExplorer = [&](const Ref<HostExplorer>& window, std::int32_t command) {
        mHeard.push_back(std::to_string(window->Number()) + " runs " + std::to_string(command));
    } });
    Click(explorer, BuiltInCommand::Print);
    Click(explorer, BuiltInCommand::Find);
    Click(explorer, BuiltInCommand::Help);
    Click(explorer, BuiltInCommand::Delete);
    EXPECT_THAT(mHeard, ElementsAre("1 runs 2521", "1 runs 141", "1 runs 984"));
}

}
