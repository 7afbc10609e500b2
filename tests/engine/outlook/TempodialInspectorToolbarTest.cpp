#include "engine/outlook/InspectorFixture.h"

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class TempodialInspectorToolbarTest : public InspectorFixture
{
};

TEST_F(TempodialInspectorToolbarTest, Open_Activity_OffersItsCommandsAndNoOthers)
{
    const auto inspector = Open(Activity());

    EXPECT_FALSE(Bar(inspector, "Standard")->Visible());
    EXPECT_TRUE(Bar(inspector, "Tempodial")->Visible());
    EXPECT_EQ(Bar(inspector, "Tempodial")->Position(), BarPosition::Top);
    const auto standard = [&](std::int32_t id) {
        return std::to_string(id) + " " + Bar(inspector, "Standard")->FindControl({ .id = id, .tag = {} })->Caption();
    };
    EXPECT_THAT(Controls(inspector),
        ElementsAre("1975 &Save and Close", "1 Pro&ject Settings...", standard(2521), standard(478), standard(359),
            standard(360), "984 &Tempodial Help"));
}

TEST_F(TempodialInspectorToolbarTest, Open_Activity_TagsAndShowsItsButtons)
{
    const auto inspector = Open(Activity());

    std::vector<std::string> tags;
    const auto controls = Bar(inspector, "Tempodial")->Controls();
    for (std::int32_t i = 1; i <= controls->Count(); ++i) {
        const auto control = controls->Item(i);
        EXPECT_TRUE(control->Visible()) << control->Caption();
        if (const auto button = control.As<HostCommandBarButton>()) {
            EXPECT_EQ(button->Style(), ButtonStyle::IconAndCaption) << control->Caption();
        }
        tags.push_back(control->Tag());
    }
    EXPECT_THAT(tags, ElementsAre("&Save and Close1", "Pro&ject Settings...1", "", "", "", "", "&Tempodial Help1"));

    const auto second = Open(Activity("Letter"));
    EXPECT_EQ(Bar(second, "Tempodial")->Controls()->Item(2)->Tag(), "Pro&ject Settings...2");
}

TEST_F(TempodialInspectorToolbarTest, Open_IconsLoaded_GivesPictureAndMask)
{
    const auto button = Bar(Open(Activity()), "Tempodial")->Controls()->Item(2).As<HostCommandBarButton>();

    EXPECT_EQ(button->ShownPicture(), mMain->mTempodialIcon);
    EXPECT_EQ(button->ShownMask(), mMain->mTempodialIconMask);
    EXPECT_THAT(Companions(), Not(Contains("no icon")));
}

TEST_F(TempodialInspectorToolbarTest, Open_NoMask_GivesThePictureAlone)
{
    mMain->mTempodialIconMask = nullptr;
    const auto button = Bar(Open(Activity()), "Tempodial")->Controls()->Item(2).As<HostCommandBarButton>();

    EXPECT_EQ(button->ShownPicture(), mMain->mTempodialIcon);
    EXPECT_FALSE(button->ShownMask());
}

TEST_F(TempodialInspectorToolbarTest, Open_NoIcon_TracesThatAndGivesNeither)
{
    mMain->mTempodialIcon = nullptr;
    const auto button = Bar(Open(Activity()), "Tempodial")->Controls()->Item(2).As<HostCommandBarButton>();

    EXPECT_FALSE(button->ShownPicture());
    EXPECT_FALSE(button->ShownMask());
    EXPECT_THAT(Companions(), Contains("no icon"));
}

TEST_F(TempodialInspectorToolbarTest, Open_NoSaveCommand_TracesItAndAddsAllButtons)
{
    const auto item = Activity();
    Without(1975);
    const auto inspector = Open(item);

    EXPECT_THAT(Companions(), Contains("toolbars error Object variable or With block variable not set").Times(1));
    EXPECT_THAT(Controls(inspector), SizeIs(7));
    EXPECT_EQ(Controls(inspector).front(), "1 &Save and Close");
}

TEST_F(TempodialInspectorToolbarTest, Open_NoPrintCommand_CostsOneLineAndTheButton)
{
    const auto item = Activity();
    Without(2521);
    const auto inspector = Open(item);

    EXPECT_THAT(Companions(), Contains("toolbars error Object variable or With block variable not set").Times(1));
    EXPECT_THAT(Controls(inspector), SizeIs(6));
    EXPECT_THAT(Controls(inspector), Not(Contains(StartsWith("2521 "))));
}

TEST_F(TempodialInspectorToolbarTest, Open_OtherCommandAbsent_CostsTheButtonAlone)
{
    for (const std::int32_t id : { 478, 359, 360, 984 }) {
        const auto item = Activity();
        Without(id);
        const auto inspector = Open(item);

        EXPECT_THAT(Companions(), Not(Contains(StartsWith("toolbars error")))) << id;
        EXPECT_THAT(Controls(inspector), SizeIs(6)) << id;
        EXPECT_THAT(Controls(inspector), Not(Contains(StartsWith(std::to_string(id) + " ")))) << id;
    }
}

TEST_F(TempodialInspectorToolbarTest, Open_NoBars_FillsThePageAllTheSame)
{
    const auto inspector = OpenObserved(Activity("Letter"), FailingAt("Inspector.CommandBars"));

    ASSERT_TRUE(inspector);
    EXPECT_EQ(Control(inspector, "ApplicationBox")->Text(), "Notepad");
    const auto lines = Companions();
    EXPECT_THAT(lines, Contains(StartsWith("toolbars error ")));
    EXPECT_EQ(lines.back(), "Item open - exit 90");
}

TEST_F(TempodialInspectorToolbarTest, SaveClose_Changed_WritesSavesAndCloses)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "SubjectBox", "Letter");
    ForgetTrace();
    Click(inspector, "&Save and Close");

    EXPECT_EQ(StoredProperty(item, "Description"), "Letter");
    EXPECT_EQ(item->Subject(), "Notepad, Letter");
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
    EXPECT_FALSE(mMain->IsInspector(item));
    EXPECT_THAT(mMessageBox->shown, IsEmpty());
    const auto lines = Companions();
    EXPECT_EQ(lines.front(), "Save/close button clicked for 1 project: No Project");
    EXPECT_THAT(lines, Contains("Save our written changes").Times(1));
    EXPECT_THAT(lines, Contains("WriteAll now").Times(1));
}

TEST_F(TempodialInspectorToolbarTest, SaveClose_ProjectRefused_KeepsTheWindow)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "a|b");
    Click(inspector, "&Save and Close");

    EXPECT_THAT(mMessageBox->shown, SizeIs(1));
    EXPECT_EQ(mApplication->Inspectors()->Count(), 1);
    EXPECT_TRUE(mMain->IsInspector(item));
    EXPECT_EQ(StoredProperty(item, "Project"), "No Project");
}

TEST_F(TempodialInspectorToolbarTest, SaveClose_AnotherWindowInFront_DoesNothingOfItsOwn)
{
    const auto inspector = OpenAlone(Activity());
    Set(inspector, "ProjectComboBox", "a|b");
    const auto companion = mCompanion;
    mAlone->OpenInspector(Activity("Letter").As<StoreItem>());
    ForgetTrace();
    bool cancelDefault = false;
    companion->mSaveCloseCommandBarButton_Click(nullptr, cancelDefault);

    EXPECT_FALSE(cancelDefault);
    EXPECT_THAT(mMessageBox->shown, IsEmpty());
    EXPECT_THAT(Companions(), ElementsAre("Save/close button clicked for 90 project: a|b"));
}

TEST_F(TempodialInspectorToolbarTest, SaveClose_NoWindowInFront_TracesThatAndDoesNothing)
{
    const auto inspector = OpenAlone(Activity());
    inspector->Close();
    ForgetTrace();
    bool cancelDefault = false;
    mCompanion->mSaveCloseCommandBarButton_Click(nullptr, cancelDefault);

    EXPECT_FALSE(cancelDefault);
    EXPECT_THAT(Companions(),
        Contains("Save/close error Object variable or With block variable not set enable standard toolbar"));
}

TEST_F(TempodialInspectorToolbarTest, SaveClose_ForeignItem_DoesNothing)
{
    const auto item = Appointment("Lunch");
    OpenAlone(item);
    item->SetSubject("Dinner");
    ForgetTrace();
    bool cancelDefault = false;
    mCompanion->mSaveCloseCommandBarButton_Click(nullptr, cancelDefault);

    EXPECT_FALSE(cancelDefault);
    EXPECT_TRUE(item.As<StoreItem>()->HasChanges());
}

TEST_F(TempodialInspectorToolbarTest, ViewProject_AnyWindow_ShowsTheSettings)
{
    AddProject("Alpha");
    const auto inspector = OpenAlone(Activity("Plan", "", "Alpha"));
    const auto companion = mCompanion;
    mAlone->OpenInspector(Activity("Letter").As<StoreItem>());
    ForgetTrace();
    bool cancelDefault = false;
    companion->mViewProjectCommandBarButton_Click(nullptr, cancelDefault);

    EXPECT_FALSE(cancelDefault);
    EXPECT_EQ(Companions().front(), "View project settings button clicked for " + inspector->Caption() + " 90");
    EXPECT_TRUE(mForms->NewestVisible("ProjectSettingsForm"));
}

TEST_F(TempodialInspectorToolbarTest, Help_InFront_OpensTheUserGuide)
{
    Click(Open(Activity()), "&Tempodial Help");

    EXPECT_THAT(mShell->opened, ElementsAre(EndsWith("userguide.html")));
    EXPECT_THAT(Companions(), Contains("help clicked: 1"));
}

TEST_F(TempodialInspectorToolbarTest, Help_AnotherWindowInFront_OpensNothing)
{
    OpenAlone(Activity());
    const auto companion = mCompanion;
    mAlone->OpenInspector(Activity("Letter").As<StoreItem>());
    ForgetTrace();
    bool cancelDefault = false;
    companion->mHelpCommandBarButton_Click(nullptr, cancelDefault);

    EXPECT_TRUE(cancelDefault);
    EXPECT_THAT(mShell->opened, IsEmpty());
    EXPECT_THAT(Companions(), ElementsAre("help clicked: 90"));
}

TEST_F(TempodialInspectorToolbarTest, SaveClose_AddInEndedWhileItApplies_LetsNothingEscape)
{
    Activity("Past", "", "", "Notepad", 9);
    AddProject("Alpha");
    const auto inspector = Open(Activity());
    Set(inspector, "ProjectComboBox", "Alpha");
    Set(inspector, "ApplyCheckBox", true);
    mEventPump->hook = [&] { mMain->Terminate(); };
    EXPECT_NO_THROW(Click(inspector, "&Save and Close"));
}

}

}
