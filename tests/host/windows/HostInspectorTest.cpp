#include "host/windows/HostInspector.h"

#include "host/windows/HostCommandBarButton.h"
#include "host/windows/InspectorFixture.h"
#include "platform/objectmodel/Folders.h"
#include "support/TestDatabase.h"

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;

class HostInspectorTest : public InspectorFixture
{
};

TEST_F(HostInspectorTest, Open_IsToldOfThenTheItemIsThenItComesToTheFront)
{
    const auto before = mApplication->OpenInspector(NewAppointment("before"));
    const auto item = NewActivity();
    const auto noting
        = Note(item, [&](const auto&, bool&) { EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(before)); });
    const auto watching = OnNew([&](const auto& inspector) {
        mHeard.emplace_back("new");
        EXPECT_EQ(mApplication->Inspectors()->Count(), 2);
        EXPECT_EQ(inspector->CurrentItem(), Ref<OutlookItem>(item));
        EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(before));
    });
    const auto inspector = mApplication->OpenInspector(item);
    EXPECT_THAT(mHeard, ElementsAre("new", "open"));
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(inspector));
    EXPECT_EQ(mApplication->Inspectors()->Item(2), Ref<Inspector>(inspector));
    EXPECT_THAT(mApplication->OpenInspectors(), ElementsAre(before, inspector));
    EXPECT_EQ(FailureNumber([&] { mApplication->Inspectors()->Item(0); }), 9);
    EXPECT_EQ(FailureNumber([&] { mApplication->Inspectors()->Item(3); }), 9);
}

TEST_F(HostInspectorTest, Open_Refused_GivesNothingAndTellsNobody)
{
    const auto item = NewActivity();
    Ref<HostInspector> opened;
    Subscription gone;
    const auto watching = OnNew([&](const auto& inspector) {
        opened = inspector;
        gone = Note(inspector);
    });
    const auto noting = Note(item, [](const auto&, bool& cancel) { cancel = true; });
    EXPECT_FALSE(mApplication->OpenInspector(item));
    EXPECT_THAT(mHeard, ElementsAre("open"));
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
    EXPECT_FALSE(mApplication->ActiveInspector());
    EXPECT_EQ(FailureNumber([&] { opened->Caption(); }), Gone);
    EXPECT_EQ(item->Subject(), "a");
}

TEST_F(HostInspectorTest, Open_RefusedInFavourOfAnother_ShowsThatOne)
{
    const auto item = NewAppointment("foreign");
    const auto duplicate = NewActivity("duplicate");
    const auto noting = Note(item, [&](const auto&, bool& cancel) {
        duplicate->Display();
        cancel = true;
    });
    EXPECT_FALSE(mApplication->OpenInspector(item));
    ASSERT_EQ(mApplication->Inspectors()->Count(), 1);
    EXPECT_EQ(mApplication->ActiveInspector()->Caption(), "duplicate - Activity");
}

TEST_F(HostInspectorTest, Open_HandlerTakesTheWindowAway_GivesNothing)
{
    const auto item = NewActivity();
    const auto noting = Note(item);
    {
        const auto watching = OnNew([&](const auto& inspector) { inspector->Close(); });
        EXPECT_FALSE(mApplication->OpenInspector(item));
        EXPECT_THAT(mHeard, ElementsAre("close"));
    }
    const auto deleting = Note(item, [&](const std::string& word, bool&) {
        if (word == "open") {
            item->Delete();
        }
    });
    EXPECT_FALSE(mApplication->OpenInspector(item));
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
    EXPECT_FALSE(mApplication->ActiveInspector());
}

TEST_F(HostInspectorTest, Open_ItemIsGone_Fails)
{
    const auto item = NewActivity();
    item->Delete();
    EXPECT_EQ(FailureNumber([&] { mApplication->OpenInspector(item); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mApplication->OpenInspector(nullptr); }), 91);
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
}

TEST_F(HostInspectorTest, Open_ItemIsOpen_GivesAFurtherWindow)
{
    const auto item = NewActivity();
    const auto noting = Note(item);
    const auto first = mApplication->OpenInspector(item);
    const auto second = mApplication->OpenInspector(item);
    EXPECT_THAT(mHeard, ElementsAre("open", "open"));
    EXPECT_EQ(first->Number(), 1);
    EXPECT_EQ(second->Number(), 2);
    EXPECT_EQ(mApplication->Inspectors()->Count(), 2);
    second->Close();
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(first));
    EXPECT_EQ(mApplication->OpenInspector(item)->Number(), 3);
}

TEST_F(HostInspectorTest, Activate_BringsToTheFront)
{
    const auto first = mApplication->OpenInspector(NewActivity());
    const auto second = mApplication->OpenInspector(NewActivity());
    mApplication->ActivateInspector(first);
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(first));
    first->Close();
    mApplication->ActivateInspector(first);
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(second));
}

TEST_F(HostInspectorTest, Display_OpensAWindowOrBringsItToTheFront)
{
    const auto item = NewActivity();
    item->Display();
    ASSERT_EQ(mApplication->Inspectors()->Count(), 1);
    const auto inspector = mApplication->OpenInspectors().front();
    mApplication->OpenInspector(NewAppointment());
    item->Display();
    EXPECT_EQ(mApplication->Inspectors()->Count(), 2);
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(inspector));
}

TEST_F(HostInspectorTest, Display_ApplicationIsGone_DoesNothing)
{
    const auto item = NewActivity();
    const auto mail = mApplication->CreateItem();
    mApplication = nullptr;
    item->Display();
    mail->Display();
}

TEST_F(HostInspectorTest, Caption_NamesSubjectAndKind)
{
    EXPECT_EQ(mApplication->OpenInspector(NewActivity("Weeding"))->Caption(), "Weeding - Activity");
    EXPECT_EQ(mApplication->OpenInspector(NewAppointment("Lunch"))->Caption(), "Lunch - Appointment");
    EXPECT_EQ(mApplication->OpenInspector(NewAppointment(""))->Caption(), "Untitled - Appointment");
    const auto mail = mApplication->CreateItem();
    mail->SetSubject("Report");
    EXPECT_EQ(mApplication->OpenMail(mail.As<HostMail>())->Caption(), "Report - Message");
}

TEST_F(HostInspectorTest, Save_WritesTheItem)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    bool refuse = true;
    const auto noting = Note(item, [&](const auto&, bool& cancel) { cancel = refuse; });
    inspector->Edit("ProjectComboBox", "House");
    EXPECT_FALSE(inspector->Save());
    EXPECT_EQ(FindProperty(Stored(item).properties, "Project")->value, Variant("Garden"));
    EXPECT_TRUE(item->HasChanges());
    refuse = false;
    EXPECT_TRUE(inspector->Save());
    EXPECT_EQ(FindProperty(Stored(item).properties, "Project")->value, Variant("House"));
    EXPECT_FALSE(item->HasChanges());
    EXPECT_THAT(mHeard, ElementsAre("write", "write"));
    EXPECT_FALSE(inspector->IsGone());
}

TEST_F(HostInspectorTest, Save_StoreRefuses_Fails)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    FillDisk(mMailbox);
    inspector->Edit("SubjectBox", std::string(100'000, 'x'));
    EXPECT_EQ(FailureNumber([&] { inspector->Save(); }), 61);
    EXPECT_EQ(FailureNumber([&] { Click(inspector, 1975); }), 61);
    EXPECT_FALSE(inspector->IsGone());
    EXPECT_TRUE(item->HasChanges());
}

TEST_F(HostInspectorTest, Close_TellsTheItemThenTheWindowAndDropsWhatWasNotSaved)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item, [&](const auto&, bool&) {
        EXPECT_EQ(mApplication->Inspectors()->Count(), 1);
        EXPECT_EQ(item->UserProperties()->Item("Project")->Value(), Variant("House"));
    });
    const auto gone = Note(inspector, [&] {
        EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
        EXPECT_FALSE(mApplication->ActiveInspector());
        EXPECT_EQ(inspector->CommandBars()->Count(), 1);
        EXPECT_EQ(inspector->Caption(), "a - Activity");
        EXPECT_FALSE(item->HasChanges());
    });
    inspector->Edit("ProjectComboBox", "House");
    EXPECT_TRUE(inspector->Close());
    EXPECT_THAT(mHeard, ElementsAre("close", "gone 1"));
    EXPECT_EQ(item->UserProperties()->Item("Project")->Value(), Variant("Garden"));
}

TEST_F(HostInspectorTest, Close_Refused_LeavesTheWindowAsItIs)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item, [](const auto&, bool& cancel) { cancel = true; });
    const auto gone = Note(inspector);
    inspector->Edit("ProjectComboBox", "House");
    EXPECT_FALSE(inspector->Close());
    EXPECT_THAT(mHeard, ElementsAre("close"));
    EXPECT_EQ(inspector->ShownPage()->Control("ProjectComboBox")->Text(), "House");
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(inspector));
}

TEST_F(HostInspectorTest, Close_HandlerSaves_KeepsTheChange)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item, [&](const std::string& word, bool&) {
        if (word == "close") {
            item->Save();
        }
    });
    inspector->Edit("ProjectComboBox", "House");
    EXPECT_TRUE(inspector->Close());
    EXPECT_THAT(mHeard, ElementsAre("close", "write"));
    EXPECT_EQ(FindProperty(Stored(item).properties, "Project")->value, Variant("House"));
}

TEST_F(HostInspectorTest, Close_WithinItsOwnEvents_HappensOnce)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto gone = Note(inspector, [&] { EXPECT_TRUE(inspector->Close()); });
    int depth = 0;
    const auto noting = Note(item, [&](const auto&, bool& cancel) {
        if (++depth == 1) {
            EXPECT_TRUE(inspector->Close());
            cancel = true;
        }
    });
    EXPECT_TRUE(inspector->Close());
    EXPECT_THAT(mHeard, ElementsAre("close", "close", "gone 1", "close"));
    EXPECT_TRUE(inspector->IsGone());
}

TEST_F(HostInspectorTest, Gone_EveryMemberFails)
{
    const auto inspector = mApplication->OpenInspector(NewActivity());
    const auto bars = inspector->CommandBars();
    const auto controls = inspector->ModifiedFormPages()->Item("Activity")->Controls();
    const auto project = controls->Item("ProjectComboBox");
    inspector->Close();
    EXPECT_EQ(FailureNumber([&] { inspector->Caption(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { inspector->CurrentItem(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { inspector->CommandBars(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { inspector->ModifiedFormPages(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { inspector->Edit("ProjectComboBox", ""); }), Gone);
    EXPECT_EQ(FailureNumber([&] { inspector->Save(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { inspector->Close(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { bars->Count(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { project->Value(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { project->SetValue("x"); }), Gone);
    EXPECT_EQ(FailureNumber([&] { project->Text(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { project->AddItem("x"); }), Gone);
}

TEST_F(HostInspectorTest, CloseFromCode_TakesAllWindowsOfTheItemWithIt)
{
    const auto item = NewActivity();
    const auto first = mApplication->OpenInspector(item);
    const auto other = mApplication->OpenInspector(NewActivity());
    const auto second = mApplication->OpenInspector(item);
    const auto noting = Note(item, [](const auto&, bool& cancel) { cancel = true; });
    const auto firstGone = Note(first);
    const auto secondGone = Note(second);
    item->SetSubject("changed");
    item->Close(CloseMode::Discard);
    EXPECT_THAT(mHeard, ElementsAre("close", "gone 1", "gone 3"));
    EXPECT_EQ(item->Subject(), "a");
    EXPECT_THAT(mApplication->OpenInspectors(), ElementsAre(other));
    EXPECT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(other));
}

TEST_F(HostInspectorTest, CloseFromCode_InTheEventOfAClose_HappensOnce)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto gone = Note(inspector);
    int depth = 0;
    const auto noting = Note(item, [&](const auto&, bool&) {
        if (++depth == 1) {
            item->Close(CloseMode::Discard);
        }
    });
    EXPECT_TRUE(inspector->Close());
    EXPECT_THAT(mHeard, ElementsAre("close", "close", "gone 1"));
}

TEST_F(HostInspectorTest, Delete_ClosesTheWindowsOfTheItem)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item);
    const auto entryId = item->EntryID();
    const auto gone = Note(inspector, [&] { EXPECT_EQ(inspector->CurrentItem()->EntryID(), entryId); });
    item->Delete();
    EXPECT_TRUE(item->IsDeleted());
    EXPECT_THAT(mHeard, ElementsAre("gone 1"));
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
}

TEST_F(HostInspectorTest, DeleteFolder_ClosesTheWindowsOfItsItems)
{
    const auto folder = mCalendar->Folders()->Add("Log", DefaultFolder::Calendar);
    std::vector<Ref<StoreItem>> items;
    std::vector<Subscription> noting;
    for (int index = 0; index < 2; ++index) {
        items.push_back(folder->Items()->Add(ActivityClass).As<StoreItem>());
        items.back()->Save();
        noting.push_back(Note(mApplication->OpenInspector(items.back()), [&items] {
            EXPECT_FALSE(items.front()->IsDeleted());
            EXPECT_FALSE(items.back()->IsDeleted());
        }));
    }
    mMailbox->DeleteFolder(folder);
    EXPECT_THAT(mHeard, testing::UnorderedElementsAre("gone 1", "gone 2"));
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
    EXPECT_TRUE(items.front()->IsDeleted());
    EXPECT_TRUE(items.back()->IsDeleted());
}

TEST_F(HostInspectorTest, SaveAndClose_SavesThenCloses)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item);
    const auto gone = Note(inspector);
    inspector->Edit("ProjectComboBox", "House");
    Click(inspector, 1975);
    EXPECT_THAT(mHeard, ElementsAre("write", "close", "gone 1"));
    EXPECT_EQ(FindProperty(Stored(item).properties, "Project")->value, Variant("House"));
}

TEST_F(HostInspectorTest, SaveAndClose_WriteIsRefused_StaysOpen)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item, [](const auto&, bool& cancel) { cancel = true; });
    Click(inspector, 1975);
    EXPECT_THAT(mHeard, ElementsAre("write"));
    EXPECT_FALSE(inspector->IsGone());
}

TEST_F(HostInspectorTest, SaveAndClose_HandlerHasClosedTheItem_DoesNothingMore)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item);
    const auto gone = Note(inspector);
    const auto bar = inspector->CommandBars()->Add("Mine");
    bar->SetVisible(true);
    const auto button
        = bar->Controls()->Add({ CommandBarControlType::Button, 1975, "", {}, true }).As<HostCommandBarButton>();
    bool cancelled = true;
    const auto clicks = button->Subscribe({ [&](const Ref<CommandBarButton>& control, bool& cancelDefault) {
        EXPECT_EQ(control, Ref<CommandBarButton>(button));
        item->Save();
        item->Close(CloseMode::Discard);
        cancelled = cancelDefault;
    } });
    button->Click();
    EXPECT_THAT(mHeard, ElementsAre("write", "close", "gone 1"));
    EXPECT_FALSE(cancelled);
}

TEST_F(HostInspectorTest, DeleteCommand_DeletesTheItemAndTheWindowGoes)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto gone = Note(inspector);
    Click(inspector, 478);
    EXPECT_THAT(mHeard, ElementsAre("gone 1"));
    EXPECT_TRUE(item->IsDeleted());
    EXPECT_EQ(mCalendar->Items()->Count(), 0);
}

TEST_F(HostInspectorTest, DeleteCommand_UnsavedItem_OnlyTheWindowGoes)
{
    const auto inspector = mApplication->OpenInspector(NewTestItem(mMailbox, "new"));
    Click(inspector, 478);
    EXPECT_TRUE(inspector->IsGone());
}

TEST_F(HostInspectorTest, OtherCommands_ChangeNothing)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto noting = Note(item);
    for (const auto id : { 2521, 359, 360, 984 }) {
        Click(inspector, id);
    }
    EXPECT_THAT(mHeard, IsEmpty());
    EXPECT_FALSE(inspector->IsGone());
}

TEST_F(HostInspectorTest, Mail_DisplayedComesUpInAWindowOfItsOwn)
{
    const auto mail = mApplication->CreateItem().As<HostMail>();
    const auto other = mApplication->CreateItem().As<HostMail>();
    EXPECT_EQ(mail->Number(), 1);
    EXPECT_EQ(other->Number(), 2);
    const auto watching = OnNew([&](const auto& inspector) {
        mHeard.emplace_back("new");
        EXPECT_EQ(inspector->CurrentItem()->Class(), ObjectClass::Mail);
    });
    mail->Display();
    mail->Display();
    EXPECT_THAT(mHeard, ElementsAre("new"));
    EXPECT_THAT(mApplication->Mails(), ElementsAre(mail));
    EXPECT_THAT(mApplication->MadeMails(), ElementsAre(mail, other));
    const auto inspector = mApplication->OpenInspectors().front();
    EXPECT_EQ(inspector->ShownMail(), mail);
    EXPECT_FALSE(inspector->ShownPage());
    EXPECT_EQ(FailureNumber([&] { inspector->ModifiedFormPages()->Item("Activity"); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { inspector->Edit("SubjectBox", "x"); }), NotFound);
    EXPECT_TRUE(inspector->Close());
    EXPECT_THAT(mApplication->Mails(), IsEmpty());
}

TEST_F(HostInspectorTest, Mail_NobodyHoldsIt_IsNoLongerAmongThoseMade)
{
    mApplication->CreateItem();
    EXPECT_THAT(mApplication->MadeMails(), IsEmpty());
    EXPECT_EQ(mApplication->CreateItem().As<HostMail>()->Number(), 2);
}

TEST_F(HostInspectorTest, Mail_SaveKeepsItAmongTheDrafts)
{
    const auto mail = mApplication->CreateItem().As<HostMail>();
    mail->SetSubject("Report");
    const auto inspector = mApplication->OpenMail(mail);
    EXPECT_TRUE(inspector->Save());
    EXPECT_FALSE(inspector->IsGone());
    mail->SetSubject("Final report");
    Click(inspector, 1975);
    EXPECT_TRUE(inspector->IsGone());
    ASSERT_EQ(mMailbox->Drafts().All().size(), 1);
    EXPECT_EQ(mMailbox->Drafts().Get(mMailbox->Drafts().All().front()).subject, "Final report");
    const auto again = mApplication->OpenMail(mail);
    Click(again, 478);
    EXPECT_TRUE(again->IsGone());
}

TEST_F(HostInspectorTest, Mail_HandlerTakesTheWindowAway_GivesNothing)
{
    const auto watching = OnNew([](const auto& inspector) { inspector->Close(); });
    EXPECT_FALSE(mApplication->OpenMail(mApplication->CreateItem().As<HostMail>()));
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
}

TEST_F(HostInspectorTest, AThousandWindows_LeaveNothing)
{
    std::vector<std::weak_ptr<void>> left;
    const auto stored = NewActivity()->EntryID();
    for (int number = 0; number < 1000; ++number) {
        const auto item = mMailbox->ItemById(stored);
        const auto inspector = mApplication->OpenInspector(item);
        const auto mail = mApplication->CreateItem().As<HostMail>();
        const auto mailInspector = mApplication->OpenMail(mail);
        left.insert(left.end(),
            { item.Shared(), inspector.Shared(), inspector->Bars().Shared(), inspector->ShownPage().Shared(),
                mail.Shared(), mailInspector.Shared() });
        number % 2 == 0 ? static_cast<void>(inspector->Close()) : item->Close(CloseMode::Discard);
        mailInspector->Close();
    }
    for (const auto& object : left) {
        EXPECT_TRUE(object.expired());
    }
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
    EXPECT_THAT(mApplication->MadeMails(), IsEmpty());
}

TEST_F(HostInspectorTest, Application_Gone_TakesItsWindowsWithIt)
{
    const auto item = NewActivity();
    const std::weak_ptr<void> inspector = mApplication->OpenInspector(item).Shared();
    const std::weak_ptr<void> mail = mApplication->OpenMail(mApplication->CreateItem().As<HostMail>()).Shared();
    mApplication = nullptr;
    EXPECT_TRUE(inspector.expired());
    EXPECT_TRUE(mail.expired());
    item->Delete();
}

}
