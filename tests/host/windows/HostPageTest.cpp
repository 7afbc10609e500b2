#include "host/windows/HostPage.h"

#include "host/windows/InspectorFixture.h"

namespace tempodial {

using testing::ElementsAre;

class HostPageTest : public InspectorFixture
{
protected:
    static constexpr auto Names = { "ProjectComboBox", "DescCombo", "ApplyCheckBox", "SubjectBox", "ApplicationBox",
        "PeopleBox", "StartBox", "EndBox" };

    Ref<PageControl> Control(const std::string& name) const
    {
        return mInspector->ModifiedFormPages()->Item("Activity")->Controls()->Item(name);
    }
    Variant Property(const std::string& name) const { return mItem->UserProperties()->Item(name)->Value(); }

    Ref<StoreItem> mItem = NewActivity();
    Ref<HostInspector> mInspector = mApplication->OpenInspector(mItem);
};

TEST_F(HostPageTest, Page_HasTheControlsOfTheForm)
{
    std::vector<std::string> names;
    for (const auto& control : mInspector->ShownPage()->All()) {
        names.push_back(control->Layout().name);
    }
    EXPECT_EQ(names, std::vector<std::string>(Names.begin(), Names.end()));
    EXPECT_EQ(mInspector->ShownPage()->Layout().rows.size(), 7);
    EXPECT_TRUE(Control("projectcombobox"));
    EXPECT_EQ(FailureNumber([&] { Control("Other"); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mInspector->ModifiedFormPages()->Item("Other"); }), NotFound);
}

TEST_F(HostPageTest, Page_AppointmentOrUnreadableLayout_IsNone)
{
    const auto appointment = mApplication->OpenInspector(NewAppointment());
    EXPECT_FALSE(appointment->ShownPage());
    EXPECT_EQ(FailureNumber([&] { appointment->ModifiedFormPages()->Item("Activity"); }), NotFound);

    auto form = *mMailbox->FormOf(ActivityClass);
    form.page = "{ \"page\": ";
    mMailbox->NewItem(mMailbox->FolderByPath("Calendar"), form)->FormDescription()->PublishForm(FormRegistry::Personal);
    const auto pageless = mApplication->OpenInspector(NewActivity());
    EXPECT_FALSE(pageless->ShownPage());
    EXPECT_EQ(pageless->Caption(), "a - Activity");
    EXPECT_EQ(FailureNumber([&] { pageless->ModifiedFormPages()->Item("Activity"); }), NotFound);
}

TEST_F(HostPageTest, Controls_ShowTheItem)
{
    mItem->UserProperties()->Item("Description")->SetValue("Weeding");
    mItem->UserProperties()->Item("People")->SetValue("Anna;");
    mItem->UserProperties()->Item("ApplyPast")->SetValue(true);
    EXPECT_EQ(Control("ProjectComboBox")->Value(), Variant("Garden"));
    EXPECT_EQ(Control("ProjectComboBox")->Text(), "Garden");
    EXPECT_EQ(Control("DescCombo")->Value(), Variant("<word or phrase to match an activity to this project>"));
    EXPECT_EQ(Control("SubjectBox")->Text(), "Weeding");
    EXPECT_EQ(Control("PeopleBox")->Text(), "Anna;");
    EXPECT_EQ(Control("ApplyCheckBox")->Value(), Variant(true));
    EXPECT_EQ(Control("ApplyCheckBox")->Text(), "True");
    EXPECT_EQ(Control("ApplicationBox")->Value(), Variant(""));
    EXPECT_EQ(Control("StartBox")->Value(), Variant(At(9)));
    EXPECT_EQ(Control("StartBox")->Text(), "10/10/2006 9:00:00 AM");
    EXPECT_EQ(Control("EndBox")->Value(), Variant(At(9).AddMinutes(5)));
    EXPECT_EQ(Control("EndBox")->Text(), "10/10/2006 9:05:00 AM");
}

TEST_F(HostPageTest, Controls_Set_WriteTheItemUnsaved)
{
    Control("ProjectComboBox")->SetValue("House");
    Control("DescCombo")->SetText("roof");
    Control("ApplyCheckBox")->SetValue(true);
    Control("SubjectBox")->SetText("Painting");
    Control("PeopleBox")->SetValue("Ben;");
    Control("ApplicationBox")->SetText("Editor");
    EXPECT_EQ(Property("Project"), Variant("House"));
    EXPECT_EQ(Property("Keyword"), Variant("roof"));
    EXPECT_EQ(Property("ApplyPast"), Variant(true));
    EXPECT_EQ(Property("Description"), Variant("Painting"));
    EXPECT_EQ(Property("People"), Variant("Ben;"));
    EXPECT_EQ(Control("ApplicationBox")->Text(), "Editor");
    EXPECT_EQ(FindProperty(Stored(mItem).properties, "Project")->value, Variant("Garden"));
    EXPECT_TRUE(mItem->HasChanges());
}

TEST_F(HostPageTest, Unbound_BelongsToItsWindow)
{
    const auto second = mApplication->OpenInspector(mItem);
    Control("ApplicationBox")->SetText("Editor");
    EXPECT_EQ(second->ShownPage()->Control("ApplicationBox")->Text(), "");
    EXPECT_FALSE(mItem->HasChanges());
    second->Edit("ProjectComboBox", "House");
    EXPECT_EQ(Control("ProjectComboBox")->Text(), "House");
}

TEST_F(HostPageTest, AbsentProperty_ReadsAsEmptyAndIsAddedWhenSet)
{
    ItemData data;
    data.messageClass = ActivityClass;
    data.start = At(9);
    data.end = At(10);
    mItem = mMailbox->NewItem(mCalendar, data);
    mInspector = mApplication->OpenInspector(mItem);
    EXPECT_EQ(Control("ProjectComboBox")->Value(), Variant(""));
    EXPECT_EQ(Control("ApplyCheckBox")->Value(), Variant(false));
    EXPECT_EQ(FailureNumber([&] { Control("ApplyCheckBox")->SetValue("perhaps"); }), 13);
    EXPECT_FALSE(mItem->UserProperties()->Item("ApplyPast"));
    EXPECT_FALSE(mItem->UserProperties()->Item("Project"));
    Control("ProjectComboBox")->SetValue("House");
    Control("ApplyCheckBox")->SetValue(true);
    EXPECT_EQ(Property("Project"), Variant("House"));
    EXPECT_EQ(Property("ApplyPast"), Variant(true));
    EXPECT_EQ(FindProperty(mItem->Data().properties, "ApplyPast")->type, PropertyType::YesNo);
}

TEST_F(HostPageTest, Moments_AreReadByTheLocale)
{
    Control("StartBox")->SetText("10/11/2006 2:00 PM");
    EXPECT_EQ(mItem->Start(), At(14).AddDays(1));
    EXPECT_EQ(mItem->Duration(), 5);
    Control("EndBox")->SetValue(At(15).AddDays(1));
    EXPECT_EQ(mItem->Duration(), 60);
    const auto before = mItem->Data();
    for (const auto* text : { "", "soon", "25:00" }) {
        EXPECT_EQ(FailureNumber([&] { Control("StartBox")->SetText(text); }), 13) << text;
        EXPECT_EQ(FailureNumber([&] { mInspector->Edit("EndBox", text); }), 13) << text;
    }
    EXPECT_EQ(FailureNumber([&] { Control("StartBox")->SetValue(5); }), 13);
    EXPECT_EQ(FailureNumber([&] { Control("StartBox")->SetValue(Variant()); }), 13);
    EXPECT_EQ(mItem->Data(), before);
}

TEST_F(HostPageTest, Edit_EndBeforeStart_Fails)
{
    try {
        mInspector->Edit("EndBox", At(8));
        ADD_FAILURE() << "it should have failed";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 5);
        EXPECT_EQ(failure.Description(), "An item can't end before it starts");
    }
    EXPECT_FALSE(mItem->HasChanges());
}

TEST_F(HostPageTest, Edit_TakesWhatAPersonGives)
{
    mInspector->Edit("SubjectBox", "Painting");
    mInspector->Edit("applycheckbox", true);
    mInspector->Edit("ApplicationBox", "Editor");
    mInspector->Edit("StartBox", At(10));
    EXPECT_EQ(Property("Description"), Variant("Painting"));
    EXPECT_EQ(Property("ApplyPast"), Variant(true));
    EXPECT_EQ(Control("ApplicationBox")->Text(), "Editor");
    EXPECT_EQ(mItem->Start(), At(10));
    EXPECT_EQ(FailureNumber([&] { mInspector->Edit("Other", "x"); }), NotFound);
}

TEST_F(HostPageTest, List_BelongsToComboBoxes)
{
    const auto project = Control("ProjectComboBox");
    project->SetList({ "a", "b" });
    project->AddItem("c");
    EXPECT_THAT(mInspector->ShownPage()->Control("ProjectComboBox")->List(), ElementsAre("a", "b", "c"));
    project->SetList({ "d" });
    EXPECT_THAT(mInspector->ShownPage()->Control("ProjectComboBox")->List(), ElementsAre("d"));
    for (const auto* name : { "SubjectBox", "ApplyCheckBox", "StartBox" }) {
        EXPECT_EQ(FailureNumber([&] { Control(name)->SetList({}); }), 438) << name;
        EXPECT_EQ(FailureNumber([&] { Control(name)->AddItem("a"); }), 438) << name;
    }
}

TEST_F(HostPageTest, DeletedItem_ControlsFail)
{
    const auto project = Control("ProjectComboBox");
    const auto start = Control("StartBox");
    mItem->Delete();
    EXPECT_EQ(FailureNumber([&] { project->Value(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { start->SetValue(At(9)); }), Gone);
}

TEST_F(HostPageTest, Changes_OfTheItemAndOfLists_AreTold)
{
    int told = 0;
    const auto watching = mInspector->ShownPage()->SubscribeToChanges({ [&] { ++told; } });
    const auto tells = [&](const auto& change) {
        told = 0;
        change();
        return told > 0;
    };
    EXPECT_TRUE(tells([&] { mInspector->Edit("SubjectBox", "other"); }));
    EXPECT_TRUE(tells([&] { mInspector->Edit("DescCombo", "unbound"); }));
    EXPECT_TRUE(tells([&] { mItem->UserProperties()->Item("Project")->SetValue("House"); }));
    EXPECT_TRUE(tells([&] { mItem->SetStart(At(11)); }));
    EXPECT_TRUE(tells([&] { Control("ProjectComboBox")->SetList({ "House" }); }));
    EXPECT_TRUE(tells([&] { Control("ProjectComboBox")->AddItem("Garden"); }));
    EXPECT_TRUE(tells([&] { mItem->Discard(); }));
}

TEST_F(HostPageTest, Changes_PageThatAnybodyStillHolds_HearsNothingOnceItIsGone)
{
    const auto page = mInspector->ShownPage();
    int told = 0;
    const auto watching = page->SubscribeToChanges({ [&] { ++told; } });
    mInspector->Close();
    told = 0;
    mItem->SetSubject("other");
    EXPECT_EQ(told, 0);
}

}
