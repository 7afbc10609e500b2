#include "contract/ContractStores.h"
#include "contract/StoreContract.h"

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

class ItemsContract : public StoreContract
{
protected:
    /// Told of the items that arrive in the collection.
    Subscription Listen(const Ref<Items>& items)
    {
        ItemsEvents events;
        events.ItemAdd = [this](const Ref<OutlookItem>& item) {
            mArrived.push_back(item->Subject());
            if (mOnArrival) {
                mOnArrival(item);
            }
        };
        return items->Subscribe(events);
    }

    std::vector<std::string> mArrived;
    std::function<void(const Ref<OutlookItem>& item)> mOnArrival;
};

TEST_P(ItemsContract, Item_WithoutOrder_IsInTheOrderOfArrival)
{
    SavedItem("late", At(12, 0), At(13, 0));
    SavedItem("early", At(8, 0), At(9, 0));
    EXPECT_THAT(Subjects(mLog->Items()), ElementsAre("late", "early"));
}

TEST_P(ItemsContract, Item_PositionOutOfRange_Fails)
{
    SavedItem("a", At(9, 0), At(9, 5));
    EXPECT_EQ(FailureNumber([&] { mLog->Items()->Item(0); }), 9);
    EXPECT_EQ(FailureNumber([&] { mLog->Items()->Item(2); }), 9);
}

TEST_P(ItemsContract, Count_FollowsTheFolder)
{
    const auto items = mLog->Items();
    EXPECT_EQ(items->Count(), 0);
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    EXPECT_EQ(items->Count(), 1);
    item->Delete();
    EXPECT_EQ(items->Count(), 0);
}

TEST_P(ItemsContract, Items_OfAnotherFolder_AreNotSeen)
{
    SavedItem("a", At(9, 0), At(9, 5));
    EXPECT_EQ(mCalendar->Items()->Count(), 0);
    EXPECT_EQ(mCalendar->Items()->Restrict("[Subject] = \"a\"")->Count(), 0);
    EXPECT_FALSE(mCalendar->Items()->Find("[End] = " + Quoted(At(9, 5))));
}

TEST_P(ItemsContract, Find_NoHit_GivesNothing)
{
    EXPECT_FALSE(mLog->Items()->Find("[Subject] = \"a\""));
}

TEST_P(ItemsContract, Find_SeveralHits_GivesTheFirstThatArrived)
{
    SavedItem("late", At(12, 0), At(13, 0));
    SavedItem("early", At(8, 0), At(13, 0));
    EXPECT_EQ(mLog->Items()->Find("[End] = " + Quoted(At(13, 0)))->Subject(), "late");
}

TEST_P(ItemsContract, Find_InASortedCollection_GivesTheFirstOfItsOrder)
{
    SavedItem("late", At(12, 0), At(13, 0));
    SavedItem("early", At(8, 0), At(13, 0));
    const auto items = mLog->Items();
    items->Sort("[Start]", false);
    EXPECT_EQ(items->Find("[End] = " + Quoted(At(13, 0)))->Subject(), "early");
    EXPECT_THAT(Subjects(items->Restrict("[End] = " + Quoted(At(13, 0)))), ElementsAre("early", "late"));
}

TEST_P(ItemsContract, Find_InARestrictedCollection_LooksNowhereElse)
{
    SavedItem("a", At(8, 0), At(13, 0));
    SavedItem("b", At(9, 0), At(13, 0));
    const auto some = mLog->Items()->Restrict("[Subject] = \"b\"");
    EXPECT_EQ(some->Find("[End] = " + Quoted(At(13, 0)))->Subject(), "b");
    EXPECT_FALSE(some->Find("[Subject] = \"a\""));
    EXPECT_EQ(some->Restrict("[Subject] <> \"x\"")->Count(), 1);
}

TEST_P(ItemsContract, Find_SeesWhatIsStored)
{
    const auto item = SavedItem("a", At(8, 0), At(13, 0));
    item->SetSubject("b");
    EXPECT_FALSE(mLog->Items()->Find("[Subject] = \"b\""));
    EXPECT_EQ(mLog->Items()->Find("[Subject] = \"a\"")->Subject(), "b");
}

TEST_P(ItemsContract, Restrict_StaysFixedWhileItemsAreSaved)
{
    for (int index = 0; index < 40; ++index) {
        SavedItem("item " + std::to_string(index), At(9, index), At(9, index + 1));
    }
    const auto some = mLog->Items()->Restrict("[Start] >= " + Quoted(At(9, 0)) + " and [Start] < " + Quoted(At(9, 30)));
    ASSERT_EQ(some->Count(), 30);
    for (std::int32_t index = 1; index <= some->Count(); ++index) {
        const auto item = some->Item(index).As<AppointmentItem>();
        EXPECT_EQ(item->Subject(), "item " + std::to_string(index - 1));
        item->SetStart(At(15, 0));
        item->Save();
        SavedItem("another", At(9, 3), At(9, 4));
    }
    EXPECT_EQ(some->Count(), 30);
    EXPECT_EQ(some->Item(30)->Subject(), "item 29");
}

TEST_P(ItemsContract, Restrict_ItemDeletedMeanwhile_FailsAtItsPlaceAlone)
{
    SavedItem("a", At(9, 0), At(9, 5));
    SavedItem("b", At(9, 0), At(9, 5));
    SavedItem("c", At(9, 0), At(9, 5));
    const auto some = mLog->Items()->Restrict("[Start] >= " + Quoted(At(9, 0)));
    EXPECT_EQ(some->Item(1)->Subject(), "a");
    mLog->Items()->Item(2).As<AppointmentItem>()->Delete();
    EXPECT_EQ(some->Count(), 3);
    EXPECT_EQ(FailureNumber([&] { some->Item(2); }), NotFound);
    EXPECT_EQ(some->Item(3)->Subject(), "c");
}

TEST_P(ItemsContract, Restrict_ItemChangedBetweenTwoReads_ShowsTheChange)
{
    SavedItem("a", At(9, 0), At(9, 5));
    SavedItem("b", At(9, 0), At(9, 5));
    const auto some = mLog->Items()->Restrict("[Start] >= " + Quoted(At(9, 0)));
    EXPECT_EQ(some->Item(1)->Subject(), "a");
    {
        const auto second = mLog->Items()->Item(2).As<AppointmentItem>();
        second->SetSubject("changed");
        second->Save();
    }
    EXPECT_EQ(some->Item(2)->Subject(), "changed");
    EXPECT_EQ(some->Item(2)->Subject(), "changed");
}

TEST_P(ItemsContract, Restrict_ManyItems_WalksThemAll)
{
    for (int index = 0; index < 150; ++index) {
        SavedItem(std::to_string(index), At(9, 0).AddMinutes(index), At(9, 5).AddMinutes(index));
    }
    const auto some = mLog->Items()->Restrict("[Start] >= " + Quoted(At(9, 0)));
    ASSERT_EQ(some->Count(), 150);
    for (const int step : { 1, 7, 100 }) {
        for (std::int32_t index = 1; index <= 150; index += step) {
            ASSERT_EQ(some->Item(index)->Subject(), std::to_string(index - 1));
        }
    }
    for (std::int32_t index = 150; index >= 1; --index) {
        ASSERT_EQ(some->Item(index)->Subject(), std::to_string(index - 1));
    }
}

TEST_P(ItemsContract, Sort_OrdersByTheProperty)
{
    SavedItem("b", At(10, 0), At(10, 5));
    SavedItem("C", At(8, 0), At(12, 0));
    SavedItem("a", At(9, 0), At(9, 30));
    const auto items = mLog->Items()->Restrict("[Start] >= " + Quoted(At(8, 0)));
    items->Sort("[Start]", false);
    EXPECT_THAT(Subjects(items), ElementsAre("C", "a", "b"));
    items->Sort("[Start]", true);
    EXPECT_THAT(Subjects(items), ElementsAre("b", "a", "C"));
    items->Sort("[subject]", false);
    EXPECT_THAT(Subjects(items), ElementsAre("a", "b", "C"));
    items->Sort("[Duration]", false);
    EXPECT_THAT(Subjects(items), ElementsAre("b", "a", "C"));
    const auto all = mLog->Items();
    all->Sort("[End]", true);
    EXPECT_THAT(Subjects(all), ElementsAre("C", "b", "a"));
}

TEST_P(ItemsContract, Sort_EqualValues_KeepTheirOrder)
{
    SavedItem("1", At(10, 0), At(10, 5));
    SavedItem("2", At(9, 0), At(10, 5));
    SavedItem("3", At(10, 0), At(10, 5));
    const auto items = mLog->Items()->Restrict("[End] = " + Quoted(At(10, 5)));
    items->Sort("[Start]", false);
    EXPECT_THAT(Subjects(items), ElementsAre("2", "1", "3"));
    items->Sort("[End]", false);
    EXPECT_THAT(Subjects(items), ElementsAre("2", "1", "3"));
}

TEST_P(ItemsContract, Sort_ByUserProperty_MustBeKnown)
{
    const auto items = mLog->Items();
    EXPECT_EQ(FailureNumber([&] { items->Sort("[Project]", false); }), 5);
    EXPECT_EQ(FailureNumber([&] { items->Sort("Start", false); }), 5);
    for (const auto* project : { "B", "a" }) {
        const auto item = NewItem(project, At(9, 0), At(9, 5));
        item->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue(project);
        item->Save();
    }
    items->Sort("[project]", false);
    EXPECT_THAT(Subjects(items), ElementsAre("a", "B"));
}

TEST_P(ItemsContract, ItemAdd_ComesAtDeliveryAndNotInsideSave)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, IsEmpty());
    item->Save();
    EXPECT_THAT(mArrived, IsEmpty());
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("a"));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("a"));
}

TEST_P(ItemsContract, ItemAdd_LaterSaves_AreNoArrival)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    item->SetSubject("b");
    item->Save();
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("b"));
}

TEST_P(ItemsContract, ItemAdd_ItemLetGoOf_StillArrives)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    SavedItem("a", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("a"));
}

TEST_P(ItemsContract, ItemAdd_ItemDeletedMeanwhile_IsSkipped)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    SavedItem("a", At(9, 0), At(9, 5))->Delete();
    SavedItem("b", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("b"));
}

TEST_P(ItemsContract, ItemAdd_OtherFoldersItem_IsNoArrival)
{
    const auto items = mCalendar->Items();
    const auto subscription = Listen(items);
    SavedItem("a", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, IsEmpty());
}

TEST_P(ItemsContract, ItemAdd_ItemMovedHere_Arrives)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    auto item = mCalendar->Items()->Add("IPM.Appointment");
    item->SetSubject("moved");
    item->Save();
    item->Move(mLog);
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("moved"));
}

TEST_P(ItemsContract, ItemAdd_CollectionLetGoOf_NoLongerTells)
{
    auto items = mLog->Items();
    const auto subscription = Listen(items);
    items = nullptr;
    SavedItem("a", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, IsEmpty());
}

TEST_P(ItemsContract, ItemAdd_HandlerAddsAndDeletes_AllIsToldOnce)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    mOnArrival = [&](const Ref<OutlookItem>& item) {
        if (item->Subject() == "theirs") {
            SavedItem("ours", At(9, 0), At(9, 5));
            item.As<AppointmentItem>()->Delete();
        }
        mStore->DeliverEvents();
    };
    SavedItem("theirs", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_THAT(mArrived, ElementsAre("theirs", "ours"));
    EXPECT_THAT(Subjects(mLog->Items()), ElementsAre("ours"));
}

TEST_P(ItemsContract, ItemAdd_HandlerThatAlwaysAdds_EndsNevertheless)
{
    const auto items = mLog->Items();
    const auto subscription = Listen(items);
    mOnArrival = [&](const Ref<OutlookItem>&) { SavedItem("more", At(9, 0), At(9, 5)); };
    SavedItem("first", At(9, 0), At(9, 5));
    mStore->DeliverEvents();
    EXPECT_LT(mArrived.size(), 1000U);
}

INSTANTIATE_TEST_SUITE_P(Stores, ItemsContract, testing::ValuesIn(ContractStores()), StoreName);

}
