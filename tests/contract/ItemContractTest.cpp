#include "contract/ContractStores.h"
#include "contract/StoreContract.h"
#include "platform/objectmodel/FormDescription.h"

namespace tempodial {

class ItemContract : public StoreContract
{
};

TEST_P(ItemContract, Add_ClassWithoutForm_GivesThePlainClass)
{
    EXPECT_EQ(mLog->Items()->Add(FormClass)->MessageClass(), "IPM.Appointment");
    EXPECT_EQ(mLog->Items()->Add("IPM.Appointment")->MessageClass(), "IPM.Appointment");
}

TEST_P(ItemContract, Add_ClassWithForm_GivesTheClassAndItsFields)
{
    const auto form = mStore->NewItem(mLog, ActivityForm())->FormDescription();
    form->PublishForm(FormRegistry::Personal);
    const auto item = mLog->Items()->Add(FormClass);
    EXPECT_EQ(item->MessageClass(), FormClass);
    EXPECT_FALSE(item->FormDescription());
    EXPECT_EQ(item->UserProperties()->Item("Keyword")->Value(), Variant("<keyword>"));
    EXPECT_EQ(item->UserProperties()->Item("ApplyPast")->Value(), Variant(false));
    EXPECT_TRUE(item->UserProperties()->Item("Project")->Value().IsEmpty());
    EXPECT_FALSE(item->UserProperties()->Item("People"));
    EXPECT_EQ(mLog->Items()->Restrict("[Project] = \"x\"")->Count(), 0);
}

TEST_P(ItemContract, Add_ClassBelowAForm_GivesTheForm)
{
    mStore->NewItem(mLog, ActivityForm())->FormDescription()->PublishForm(FormRegistry::Personal);
    EXPECT_EQ(mLog->Items()->Add(std::string(FormClass) + ".Special")->MessageClass(), FormClass);
    EXPECT_EQ(mLog->Items()->Add(std::string(FormClass) + "x")->MessageClass(), "IPM.Appointment");
}

TEST_P(ItemContract, Add_ClassOfOtherItems_Fails)
{
    for (const auto* messageClass : { "", "IPM.Note", "IPM", "IPM.Appointments" }) {
        EXPECT_EQ(FailureNumber([&] { mLog->Items()->Add(messageClass); }), 5) << messageClass;
    }
}

TEST_P(ItemContract, FromTemplate_DescribesTheForm)
{
    const auto item = mStore->NewItem(mLog, ActivityForm());
    EXPECT_EQ(item->MessageClass(), FormClass);
    const auto form = item->FormDescription();
    form->SetDisplayName("Activity");
    EXPECT_EQ(form->MessageClass(), FormClass);
    EXPECT_EQ(form->Class(), ObjectClass::FormDescription);
    EXPECT_EQ(mLog->Items()->Count(), 0);
}

TEST_P(ItemContract, FromTemplate_FormWithoutName_TakesItsFirstDisplayName)
{
    const auto form = mStore->NewItem(mLog, { "IPM.Appointment", "", {}, "" })->FormDescription();
    form->SetDisplayName("Activity");
    EXPECT_EQ(form->MessageClass(), "IPM.Appointment.Activity");
}

TEST_P(ItemContract, NewItem_IsEmptyAndUnsaved)
{
    const auto item = mLog->Items()->Add("IPM.Appointment");
    EXPECT_EQ(item->Class(), ObjectClass::Appointment);
    EXPECT_EQ(item->EntryID(), "");
    EXPECT_EQ(item->Subject(), "");
    EXPECT_EQ(item->Body(), "");
    EXPECT_EQ(item->Mileage(), "");
    EXPECT_EQ(item->BillingInformation(), "");
    EXPECT_EQ(item->Start(), Date());
    EXPECT_EQ(item->Duration(), 0);
    EXPECT_FALSE(item->IsRecurring());
    EXPECT_FALSE(item->FormDescription());
    EXPECT_EQ(mLog->Items()->Count(), 0);
}

TEST_P(ItemContract, Save_KeepsEverythingThatWasSet)
{
    std::string id;
    {
        const auto item = NewItem("Größe \"x\" \xF0\x9F\x98\x80", At(9, 0, 7), At(9, 5, 59));
        item->SetBody("line\r\n\ttab\\\"quote\" '\x01'");
        item->SetMileage("Plan");
        item->SetBillingInformation("bill");
        item->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue("a\r\nb\"c\\d");
        item->UserProperties()->Add("Day", PropertyType::DateTime, true)->SetValue(At(0, 0));
        item->UserProperties()->Add("ApplyPast", PropertyType::YesNo, true)->SetValue(true);
        item->UserProperties()->Add("Unset", PropertyType::Text, true);
        item->Save();
        id = item->EntryID();
        EXPECT_EQ(id.size(), 48U);
    }
    const auto item = mLog->Items()->Item(1).As<AppointmentItem>();
    EXPECT_EQ(item->EntryID(), id);
    EXPECT_EQ(item->Subject(), "Größe \"x\" \xF0\x9F\x98\x80");
    EXPECT_EQ(item->Start(), At(9, 0, 7));
    EXPECT_EQ(item->End(), At(9, 5, 59));
    EXPECT_EQ(item->Body(), "line\r\n\ttab\\\"quote\" '\x01'");
    EXPECT_EQ(item->Mileage(), "Plan");
    EXPECT_EQ(item->BillingInformation(), "bill");
    EXPECT_EQ(item->UserProperties()->Item("Project")->Value(), Variant("a\r\nb\"c\\d"));
    EXPECT_EQ(item->UserProperties()->Item("Day")->Value(), Variant(At(0, 0)));
    EXPECT_EQ(item->UserProperties()->Item("ApplyPast")->Value(), Variant(true));
    EXPECT_TRUE(item->UserProperties()->Item("Unset")->Value().IsEmpty());
}

TEST_P(ItemContract, Save_Again_KeepsTheIdentity)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    const auto id = item->EntryID();
    item->SetSubject("b");
    item->Save();
    EXPECT_EQ(item->EntryID(), id);
    EXPECT_EQ(mLog->Items()->Count(), 1);
    EXPECT_EQ(Filtered("[Subject] = \"b\""), std::vector<std::string> { "b" });
}

TEST_P(ItemContract, Times_StartMoved_TheDurationStays)
{
    const auto item = NewItem("a", At(10, 0, 30), At(10, 5, 29));
    EXPECT_EQ(item->Duration(), 5);
    item->SetStart(At(11, 0, 10));
    EXPECT_EQ(item->Duration(), 5);
    EXPECT_EQ(item->Start(), At(11, 0, 10));
    EXPECT_EQ(item->End(), At(11, 5, 10));
}

TEST_P(ItemContract, Times_EndMoved_TheStartStays)
{
    const auto item = NewItem("a", At(10, 0, 30), At(10, 5));
    item->SetEnd(At(10, 20, 1));
    EXPECT_EQ(item->Start(), At(10, 0, 30));
    EXPECT_EQ(item->End(), At(10, 20, 1));
    EXPECT_EQ(item->Duration(), 20);
}

TEST_P(ItemContract, Times_DurationSet_MovesTheEnd)
{
    const auto item = NewItem("a", At(10, 0, 30), At(10, 5));
    item->SetDuration(90);
    EXPECT_EQ(item->Start(), At(10, 0, 30));
    EXPECT_EQ(item->End(), At(11, 30, 30));
    item->SetDuration(0);
    EXPECT_EQ(item->End(), At(10, 0, 30));
}

TEST_P(ItemContract, Times_EndBeforeStartOrNegativeDuration_FailsAndChangesNothing)
{
    const auto item = NewItem("a", At(10, 0, 30), At(10, 5));
    EXPECT_EQ(FailureNumber([&] { item->SetEnd(At(10, 0, 29)); }), 5);
    EXPECT_EQ(FailureNumber([&] { item->SetDuration(-1); }), 5);
    EXPECT_EQ(item->Start(), At(10, 0, 30));
    EXPECT_EQ(item->End(), At(10, 5));
    item->SetEnd(At(10, 0, 30));
    EXPECT_EQ(item->Duration(), 0);
}

TEST_P(ItemContract, Times_DurationThenStartThenEnd_EndDecides)
{
    const auto item = NewItem("a", At(8, 0), At(8, 1));
    item->SetDuration(500);
    item->SetStart(At(10, 0));
    item->SetEnd(At(10, 5));
    EXPECT_EQ(item->Start(), At(10, 0));
    EXPECT_EQ(item->End(), At(10, 5));
    EXPECT_EQ(item->Duration(), 5);
}

TEST_P(ItemContract, TwoReferences_ShareUnsavedChanges)
{
    const auto first = SavedItem("a", At(9, 0), At(9, 5));
    const auto second = mLog->Items()->Find("[Subject] = \"a\"").As<AppointmentItem>();
    const auto third = mLog->Items()->Item(1);
    first->SetSubject("changed");
    first->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue("P");
    EXPECT_EQ(second->Subject(), "changed");
    EXPECT_EQ(third->Subject(), "changed");
    EXPECT_EQ(second->UserProperties()->Item("Project")->Value(), Variant("P"));
}

TEST_P(ItemContract, Close_Discard_Reverts)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    item->SetSubject("b");
    item->SetEnd(At(10, 0));
    item->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue("P");
    const auto project = item->UserProperties()->Item("Project");
    item->Close(CloseMode::Discard);
    EXPECT_EQ(item->Subject(), "a");
    EXPECT_EQ(item->End(), At(9, 5));
    EXPECT_FALSE(item->UserProperties()->Item("Project"));
    EXPECT_EQ(FailureNumber([&] { project->Value(); }), NotFound);
    item->SetSubject("c");
    item->Save();
    EXPECT_EQ(item->Subject(), "c");
}

TEST_P(ItemContract, Close_DiscardOfAnItemNeverSaved_StoresNothing)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    item->Close(CloseMode::Discard);
    EXPECT_EQ(mLog->Items()->Count(), 0);
    EXPECT_EQ(item->EntryID(), "");
}

TEST_P(ItemContract, Close_Save_Saves)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    item->SetSubject("b");
    item->Close(CloseMode::Save);
    EXPECT_EQ(Filtered("[Subject] = \"b\"").size(), 1U);
}

TEST_P(ItemContract, Close_RaisesCloseWhichCanNotRefuse)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    int closes = 0;
    std::string seen;
    AppointmentItemEvents events;
    events.Close = [&](bool& cancel) {
        ++closes;
        seen = item->Subject();
        cancel = true;
    };
    const auto subscription = item->Subscribe(events);
    item->SetSubject("b");
    item->Close(CloseMode::Discard);
    EXPECT_EQ(closes, 1);
    EXPECT_EQ(seen, "b");
    EXPECT_EQ(item->Subject(), "a");
}

TEST_P(ItemContract, Save_RaisesWriteBeforeItWrites)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    std::string idWithin = "not raised";
    AppointmentItemEvents events;
    events.Write = [&](bool&) {
        idWithin = item->EntryID();
        item->SetBody("from the handler");
    };
    const auto subscription = item->Subscribe(events);
    item->Save();
    EXPECT_EQ(idWithin, "");
    item->SetBody("discarded");
    item->Close(CloseMode::Discard);
    EXPECT_EQ(item->Body(), "from the handler");
}

TEST_P(ItemContract, Save_WriteRefused_FailsAndStoresNothing)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    AppointmentItemEvents events;
    events.Write = [](bool& cancel) { cancel = true; };
    auto subscription = item->Subscribe(events);
    EXPECT_NE(FailureNumber([&] { item->Save(); }), 0);
    EXPECT_EQ(item->EntryID(), "");
    EXPECT_EQ(mLog->Items()->Count(), 0);
    subscription.End();
    item->Save();
    EXPECT_EQ(mLog->Items()->Count(), 1);
}

TEST_P(ItemContract, Save_ItemDeletedByTheHandler_Fails)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    AppointmentItemEvents events;
    events.Write = [&](bool&) { item->Delete(); };
    const auto subscription = item->Subscribe(events);
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
    EXPECT_EQ(mLog->Items()->Count(), 0);
}

TEST_P(ItemContract, Save_LastReferenceDroppedByTheHandler_StillSaves)
{
    auto item = NewItem("a", At(9, 0), At(9, 5));
    auto* bare = item.Get();
    AppointmentItemEvents events;
    events.Write = [&](bool&) { item = nullptr; };
    const auto subscription = item->Subscribe(events);
    bare->Save();
    EXPECT_EQ(mLog->Items()->Count(), 1);
}

TEST_P(ItemContract, Delete_EveryMemberFails)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    item->Delete();
    EXPECT_EQ(mLog->Items()->Count(), 0);
    EXPECT_EQ(FailureNumber([&] { item->Class(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->EntryID(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Subject(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->SetSubject("b"); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Start(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->SetStart(At(9, 0)); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->SetEnd(At(9, 0)); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->UserProperties(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Close(CloseMode::Discard); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Delete(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Copy(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Move(mCalendar); }), NotFound);
}

TEST_P(ItemContract, Delete_OfAnItemNeverSaved_StoresNothing)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    item->Delete();
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
    EXPECT_EQ(mLog->Items()->Count(), 0);
}

TEST_P(ItemContract, EntryID_OfADeletedItem_IsNeverGivenAgain)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    const auto id = item->EntryID();
    item->Delete();
    EXPECT_NE(SavedItem("b", At(9, 0), At(9, 5))->EntryID(), id);
}

TEST_P(ItemContract, Copy_IsAnUnsavedItemInTheSameFolder)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    item->UserProperties()->Add("Project", PropertyType::Text, true)->SetValue("P");
    const auto copy = item->Copy();
    EXPECT_EQ(copy->EntryID(), "");
    EXPECT_EQ(copy->UserProperties()->Item("Project")->Value(), Variant("P"));
    EXPECT_EQ(mLog->Items()->Count(), 1);
    copy->SetSubject("b");
    copy->Save();
    EXPECT_EQ(item->Subject(), "a");
    EXPECT_EQ(mLog->Items()->Count(), 2);
}

TEST_P(ItemContract, Move_TakesTheItemToTheFolder)
{
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    const auto moved = item->Move(mCalendar);
    EXPECT_EQ(moved->Subject(), "a");
    EXPECT_EQ(mLog->Items()->Count(), 0);
    EXPECT_EQ(Subjects(mCalendar->Items()), std::vector<std::string> { "a" });
}

TEST_P(ItemContract, Move_OfAnItemNeverSaved_SavesItThere)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5))->Copy()->Move(mCalendar);
    EXPECT_NE(item->EntryID(), "");
    EXPECT_EQ(mLog->Items()->Count(), 0);
    EXPECT_EQ(mCalendar->Items()->Count(), 1);
}

TEST_P(ItemContract, UserProperties_Item_AbsentGivesNothing)
{
    EXPECT_FALSE(NewItem("a", At(9, 0), At(9, 5))->UserProperties()->Item("Project"));
}

TEST_P(ItemContract, UserProperties_Item_IgnoresCase)
{
    const auto properties = NewItem("a", At(9, 0), At(9, 5))->UserProperties();
    properties->Add("Project", PropertyType::Text, true)->SetValue("P");
    EXPECT_EQ(properties->Item("PROJECT")->Value(), Variant("P"));
    EXPECT_EQ(properties->Item("PROJECT")->Name(), "Project");
}

TEST_P(ItemContract, UserProperties_StartAndDuration_AreTheItemsOwn)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    const auto properties = item->UserProperties();
    EXPECT_EQ(properties->Item("Start")->Value(), Variant(At(9, 0)));
    EXPECT_EQ(properties->Item("duration")->Value(), Variant(5));
    EXPECT_EQ(properties->Item("duration")->Name(), "Duration");
    properties->Item("Duration")->SetValue(Variant("30"));
    EXPECT_EQ(item->End(), At(9, 30));
    properties->Item("Start")->SetValue(Variant(At(10, 0)));
    EXPECT_EQ(item->End(), At(10, 30));
    properties->Item("Start")->SetValue(Variant(mStore->Formats()->Moment(At(11, 0))));
    EXPECT_EQ(item->Start(), At(11, 0));
    EXPECT_EQ(FailureNumber([&] { properties->Item("Duration")->SetValue(Variant("x")); }), 13);
    EXPECT_EQ(FailureNumber([&] { properties->Item("Start")->SetValue(Variant("x")); }), 13);
}

TEST_P(ItemContract, UserProperties_Add_Existing_GivesItOrFails)
{
    const auto properties = NewItem("a", At(9, 0), At(9, 5))->UserProperties();
    properties->Add("Project", PropertyType::Text, true)->SetValue("P");
    EXPECT_EQ(properties->Add("project", PropertyType::Text, true)->Value(), Variant("P"));
    EXPECT_EQ(FailureNumber([&] { properties->Add("Project", PropertyType::YesNo, true); }), 5);
}

TEST_P(ItemContract, UserProperties_Add_NameNotAllowed_Fails)
{
    const auto properties = NewItem("a", At(9, 0), At(9, 5))->UserProperties();
    for (const std::string name : { "", " ", "a[b", "a]b", "a_b", "a#b", "Start", "duration" }) {
        EXPECT_EQ(FailureNumber([&] { properties->Add(name, PropertyType::Text, true); }), 5) << name;
    }
    EXPECT_EQ(FailureNumber([&] { properties->Add(std::string(65, 'x'), PropertyType::Text, true); }), 5);
    EXPECT_TRUE(properties->Add(std::string(64, 'x'), PropertyType::Text, true));
}

TEST_P(ItemContract, UserProperties_SetValue_ConvertsToTheType)
{
    const auto properties = NewItem("a", At(9, 0), At(9, 5))->UserProperties();
    const auto text = properties->Add("Text", PropertyType::Text, true);
    const auto date = properties->Add("Date", PropertyType::DateTime, true);
    const auto flag = properties->Add("Flag", PropertyType::YesNo, true);

    text->SetValue(Variant(12));
    EXPECT_EQ(text->Value(), Variant("12"));
    text->SetValue(Variant(true));
    EXPECT_EQ(text->Value(), Variant("True"));
    text->SetValue(Variant(At(9, 5)));
    EXPECT_EQ(text->Value(), Variant(mStore->Formats()->General(At(9, 5))));
    text->SetValue(Variant());
    EXPECT_EQ(text->Value(), Variant(""));

    date->SetValue(Variant(mStore->Formats()->Moment(At(9, 5))));
    EXPECT_EQ(date->Value(), Variant(At(9, 5)));
    date->SetValue(Variant());
    EXPECT_EQ(date->Value(), Variant(Date()));
    EXPECT_EQ(FailureNumber([&] { date->SetValue(Variant("noon")); }), 13);
    EXPECT_EQ(FailureNumber([&] { date->SetValue(Variant(true)); }), 13);
    EXPECT_EQ(date->Value(), Variant(Date()));

    flag->SetValue(Variant("True"));
    EXPECT_EQ(flag->Value(), Variant(true));
    flag->SetValue(Variant(0));
    EXPECT_EQ(flag->Value(), Variant(false));
    EXPECT_EQ(FailureNumber([&] { flag->SetValue(Variant("maybe")); }), 13);
    EXPECT_EQ(flag->Value(), Variant(false));
}

INSTANTIATE_TEST_SUITE_P(Stores, ItemContract, testing::ValuesIn(ContractStores()), StoreName);

}
