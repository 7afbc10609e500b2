#include "host/windows/Person.h"

#include "host/store/StoreImportJournal.h"
#include "host/windows/HostCommandBarButton.h"
#include "host/windows/InspectorFixture.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

namespace tempodial {

using testing::ElementsAre;

class PersonTest : public InspectorFixture
{
protected:
    Person User() const { return mApplication->User(); }
};

TEST_F(PersonTest, Create_SavesAnItemThatIsToldOfLater)
{
    const auto items = mCalendar->Items();
    const auto arrivals
        = items->Subscribe({ [&](const Ref<OutlookItem>& item) { mHeard.push_back("arrived " + item->Subject()); } });
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.subject = "Lunch";
    const auto item = User().Create(mCalendar, data);
    EXPECT_NE(item->EntryID(), "");
    EXPECT_EQ(Stored(item).subject, "Lunch");
    EXPECT_THAT(mHeard, testing::IsEmpty());
    mMailbox->DeliverEvents();
    EXPECT_THAT(mHeard, ElementsAre("arrived Lunch"));
    const auto gone = mCalendar->Folders()->Add("x", DefaultFolder::Calendar);
    mMailbox->DeleteFolder(gone);
    EXPECT_EQ(FailureNumber([&] { User().Create(gone, data); }), NotFound);
}

TEST_F(PersonTest, Reschedule_MovesAndSavesTheItem)
{
    const auto item = NewActivity();
    const auto noting = Note(item);
    EXPECT_TRUE(User().Reschedule(item, At(11), At(13)));
    EXPECT_THAT(mHeard, ElementsAre("write"));
    EXPECT_EQ(Stored(item).start, At(11));
    EXPECT_EQ(Stored(item).end, At(13));
    EXPECT_TRUE(User().Reschedule(item, At(7), At(8)));
    EXPECT_EQ(Stored(item).end, At(8));
    EXPECT_FALSE(item->HasChanges());
}

TEST_F(PersonTest, Reschedule_Refused_ChangesNothing)
{
    const auto item = NewActivity();
    const auto before = item->Data();
    const auto noting = Note(item, [](const auto&, bool& cancel) { cancel = true; });
    EXPECT_FALSE(User().Reschedule(item, At(11), At(13)));
    EXPECT_EQ(item->Data(), before);
    EXPECT_FALSE(item->HasChanges());
    EXPECT_EQ(FailureNumber([&] { User().Reschedule(item, At(11), At(10)); }), 5);
    EXPECT_EQ(item->Data(), before);
    EXPECT_THAT(mHeard, ElementsAre("write"));
}

TEST_F(PersonTest, Together_DoesAllOrNothing)
{
    const auto first = NewActivity();
    const auto second = NewActivity("b");
    User().Together([&] {
        User().Reschedule(first, At(11), At(12));
        User().Reschedule(second, At(12), At(13));
    });
    EXPECT_EQ(Stored(first).start, At(11));
    EXPECT_EQ(Stored(second).start, At(12));
    EXPECT_EQ(FailureNumber([&] {
        User().Together([&] {
            User().Reschedule(first, At(14), At(15));
            User().Delete(second);
            User().Reschedule(first, At(15), At(14));
        });
    }),
        5);
    EXPECT_EQ(Stored(first).start, At(11));
    EXPECT_EQ(mCalendar->Items()->Count(), 2);
}

TEST_F(PersonTest, Delete_RemovesTheItem)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    User().Delete(item);
    EXPECT_EQ(mCalendar->Items()->Count(), 0);
    EXPECT_TRUE(inspector->IsGone());
    EXPECT_EQ(FailureNumber([&] { User().Delete(item); }), NotFound);
}

class PersonInAnImportTest : public testing::Test
{
protected:
    using Deed = std::function<void(HostApplication& application, const Ref<StoreItem>& item)>;

    /// How many items are left in the calendar when the host dies during an import of two, after that deed to
    /// an item that was there before.
    static std::int32_t LeftAfter(const Deed& deed)
    {
        const TempFolder folder;
        const auto path = folder.Path("mailbox.db");
        {
            const auto mailbox = OpenTestMailbox(path);
            const auto application = MakeRef<HostApplication>(mailbox);
            const auto item = NewTestItem(mailbox, "before");
            item->Save();
            StoreImportJournal journal(mailbox);
            journal.Begin();
            NewTestItem(mailbox, "imported")->Save();
            NewTestItem(mailbox, "imported too")->Save();
            journal.Loaded("20061010", { 100, 2 });
            deed(*application, item);
            EXPECT_TRUE(TestDatabase(mailbox).IsHolding());
        }
        const auto mailbox = OpenTestMailbox(path);
        const auto left = TestItems(mailbox)->Count();
        EXPECT_EQ(StoreImportJournal(mailbox).Committed("20061010").has_value(), left > 1);
        return left;
    }
};

TEST_F(PersonInAnImportTest, NothingSaved_WhatIsHeldIsLost)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) { application.OpenInspector(item); }), 1);
}

TEST_F(PersonInAnImportTest, Refused_WhatIsHeldIsLost)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) {
        const auto refusing = item->Subscribe({ {}, [](bool& cancel) { cancel = true; }, {} });
        EXPECT_FALSE(application.OpenInspector(item)->Save());
        EXPECT_FALSE(application.User().Reschedule(item, item->Start(), item->End()));
    }),
        1);
}

TEST_F(PersonInAnImportTest, Create_KeepsAll)
{
    EXPECT_EQ(
        LeftAfter([](auto& application, const auto& item) { application.User().Create(item->Parent(), item->Data()); }),
        4);
}

TEST_F(PersonInAnImportTest, Reschedule_KeepsAll)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) {
        application.User().Reschedule(item, item->Start(), item->End().AddMinutes(5));
    }),
        3);
}

TEST_F(PersonInAnImportTest, Delete_KeepsTheRest)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) { application.User().Delete(item); }), 2);
}

TEST_F(PersonInAnImportTest, SaveInAWindow_KeepsAll)
{
    EXPECT_EQ(
        LeftAfter([](auto& application, const auto& item) { EXPECT_TRUE(application.OpenInspector(item)->Save()); }),
        3);
}

TEST_F(PersonInAnImportTest, CloseOfAWindow_KeepsAll)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) {
        const auto saving = item->Subscribe({ {}, {}, [&item](bool&) { item->Save(); } });
        EXPECT_TRUE(application.OpenInspector(item)->Close());
    }),
        3);
}

TEST_F(PersonInAnImportTest, CommandOfAWindow_KeepsAll)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) {
        const auto inspector = application.OpenInspector(item);
        const auto saveAndClose = inspector->Bars()->All().front()->Entries().front();
        const auto clicks
            = saveAndClose.template As<CommandBarButton>()->Subscribe({ [&](const Ref<CommandBarButton>&, bool&) {
                  item->Save();
                  item->Close(CloseMode::Discard);
              } });
        saveAndClose->Click();
        EXPECT_TRUE(inspector->IsGone());
    }),
        3);
}

TEST_F(PersonInAnImportTest, DeleteInAnExplorer_KeepsTheRest)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto& item) {
        const auto explorer = application.OpenExplorer(item->Parent());
        explorer->Select({ item });
        explorer->CommandBars()
            ->ItemNamed("Standard")
            ->FindControl({ 478, {} })
            .template As<HostCommandBarControl>()
            ->Click();
    }),
        2);
}

TEST_F(PersonInAnImportTest, SaveOfAMail_KeepsAll)
{
    EXPECT_EQ(LeftAfter([](auto& application, const auto&) {
        application.OpenMail(application.CreateItem().template As<HostMail>())->Save();
    }),
        3);
}

}
