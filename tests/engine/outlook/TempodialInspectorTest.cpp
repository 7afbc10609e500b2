#include "engine/outlook/TempodialInspector.h"

#include "engine/outlook/InspectorFixture.h"

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class TempodialInspectorTest : public InspectorFixture
{
};

TEST_F(TempodialInspectorTest, Initialize_Activity_WaitsForTheOpening)
{
    const auto item = Activity();
    std::vector<std::string> lines;
    bool hasBar = true;
    OnNewInspector([&](const Ref<Inspector>& inspector) {
        lines = Companions();
        hasBar = HasBar(inspector->CommandBars(), "Tempodial");
    });
    const auto inspector = Open(item);

    const auto caption = inspector->Caption();
    EXPECT_THAT(
        lines, ElementsAre("Init inspector 1 " + caption + " revision 1 TempodialInspector", "caption: " + caption));
    EXPECT_FALSE(hasBar);
}

TEST_F(TempodialInspectorTest, Initialize_ForeignItem_CountsTheBarsAndShowsStandard)
{
    const auto inspector = OpenAlone(Appointment("Lunch"));
    inspector->CommandBars()->Add("Tempodial");
    Bar(inspector, "Standard")->SetVisible(false);
    const auto companion = MakeRef<TempodialInspector>(mPlatform);
    ForgetTrace();
    companion->Initialize(mLog, mMain, inspector, 91);

    EXPECT_FALSE(HasBar(inspector->CommandBars(), "Tempodial"));
    EXPECT_TRUE(Bar(inspector, "Standard")->Visible());
    EXPECT_THAT(Traced(), testing::IsSupersetOf({ "TDInspector not one of ours: 2", "TDToolbarUt delete it" }));
}

TEST_F(TempodialInspectorTest, Initialize_NoInspector_TracesEachFailedStep)
{
    const auto companion = MakeRef<TempodialInspector>(mPlatform);
    companion->Initialize(mLog, mMain, nullptr, 90);

    const std::string line = "Initialize error Object variable or With block variable not set & ";
    EXPECT_THAT(Companions(),
        ElementsAre(line, line + "set minspector ", line + "set currentitem ", line + "set currentitem ",
            line + "set currentitem "));
}

TEST_F(TempodialInspectorTest, GetItem_BeforeAndAfter_IsTheItemOrNothing)
{
    EXPECT_FALSE(MakeRef<TempodialInspector>(mPlatform)->GetItem());

    const auto item = Activity();
    const auto inspector = OpenAlone(item);
    EXPECT_EQ(mCompanion->GetItem()->EntryID(), item->EntryID());
    EXPECT_EQ(mCompanion->mInspector.Get(), Ref<Inspector>(inspector));

    mCompanion->Terminate();
    EXPECT_FALSE(mCompanion->GetItem());
}

TEST_F(TempodialInspectorTest, Open_Activity_TracesItsStepsInOrder)
{
    AddProject("Alpha");
    const auto item = Activity("Budget.doc", "Anna;Ben;", "Alpha");
    OnNewInspector([&](const Ref<Inspector>&) { ForgetTrace(); });
    Open(item);

    EXPECT_THAT(Companions(),
        ElementsAre("Item open 1", "appointment", "in log", "create my toolbars", "Type: Notepad",
            "UpdateFormDropdowns", "UpdateProjectDropdown", "before: Budget.doc", "replace:  - Anna;Ben;",
            "after: Budget.doc", "populate the description dropdown",
            "ResetUnbound mOldProject: ", "mOldProject: Alpha", "ResetKeys mOldProject: Alpha",
            "ResetKeys mOldProject: Alpha", "Item open - exit 1"));
}

TEST_F(TempodialInspectorTest, Open_ForeignItemInTheLog_ShowsItsDuplicateInstead)
{
    const auto item = Appointment("Lunch", "Calendar/Tempodial");
    const auto inspector = Open(item);

    EXPECT_FALSE(inspector);
    EXPECT_FALSE(mMain->IsInspector(item));
    ASSERT_EQ(mApplication->Inspectors()->Count(), 1);
    const auto shown = mApplication->Inspectors()->Item(1)->CurrentItem().As<AppointmentItem>();
    EXPECT_EQ(shown->MessageClass(), "IPM.Appointment.TDActivity1");
    EXPECT_EQ(shown->BillingInformation(), "Lunch");
    EXPECT_EQ(shown->Start(), item->Start());
    EXPECT_TRUE(mMain->IsInspector(shown));
    EXPECT_THAT(Companions(), testing::IsSupersetOf({ "in log", "display duplicate entry", "Item open - exit 1" }));
}

TEST_F(TempodialInspectorTest, Open_ForeignItemElsewhere_IsLeftAlone)
{
    const auto item = Appointment("Lunch");
    const auto inspector = Open(item);

    ASSERT_TRUE(inspector);
    EXPECT_FALSE(HasBar(inspector->CommandBars(), "Tempodial"));
    EXPECT_TRUE(Bar(inspector, "Standard")->Visible());
    EXPECT_FALSE(mMain->IsInspector(item));
    EXPECT_THAT(Companions(), Not(Contains("in log")));
    Set(Open(Activity()), "SubjectBox", "other");

    ForgetTrace();
    inspector->Close();
    EXPECT_THAT(Companions(), IsEmpty());
}

TEST_F(TempodialInspectorTest, Open_CancelledBefore_LeavesTheRegister)
{
    const auto item = Activity();
    OpenAlone(item);
    ForgetTrace();
    bool cancel = true;
    mCompanion->mCurrentItem_Open(cancel);

    EXPECT_TRUE(cancel);
    EXPECT_THAT(Traced(), Contains("TDMain RemoveInspector called").Times(1));
}

TEST_F(TempodialInspectorTest, NewInspector_Mail_GetsNoCompanion)
{
    const auto inspector = mApplication->OpenMail(mApplication->CreateItem().As<HostMail>());
    inspector->CommandBars()->Add("Tempodial");
    Bar(inspector, "Standard")->SetVisible(false);
    ForgetTrace();
    mMain->mInspectors_NewInspector(inspector);

    EXPECT_FALSE(HasBar(inspector->CommandBars(), "Tempodial"));
    EXPECT_TRUE(Bar(inspector, "Standard")->Visible());
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("TDMain not ours - remove our toolbar"));
    EXPECT_THAT(lines, Not(Contains(StartsWith("TDInspector "))));
}

TEST_F(TempodialInspectorTest, Open_SecondTime_ReplacesTheCompanion)
{
    const auto item = Activity();
    const auto first = Open(item);
    ForgetTrace();
    const auto second = Open(item);

    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("TDMain Removed: 1").Times(1));
    EXPECT_THAT(lines, Contains("TDInspector Item open 2"));
    EXPECT_TRUE(mMain->IsInspector(item));
}

TEST_F(TempodialInspectorTest, Write_NothingChanged_WritesNothing)
{
    const auto inspector = Open(Activity());
    ForgetTrace();
    EXPECT_TRUE(inspector->Save());

    EXPECT_THAT(Companions(), ElementsAre("Item write 1", "IsBoundData to write? No Project", "Item write - exit"));
}

TEST_F(TempodialInspectorTest, Write_Changed_WritesBeforeTheSave)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "SubjectBox", "Letter");
    EXPECT_TRUE(inspector->Save());

    EXPECT_EQ(item->BillingInformation(), "Letter");
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
}

TEST_F(TempodialInspectorTest, Write_ProjectRefused_SavesNothing)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "a|b");
    EXPECT_FALSE(inspector->Save());

    EXPECT_EQ(StoredProperty(item, "Project"), "No Project");
    ASSERT_THAT(mMessageBox->shown, SizeIs(1));
    EXPECT_EQ(mMessageBox->shown[0].text, "Project names may not include the | character.");
    EXPECT_THAT(mMessageBox->shown[0].buttons, ElementsAre(Answer::Ok));
    EXPECT_EQ(mMessageBox->shown[0].icon, MessageIcon::None);
}

TEST_F(TempodialInspectorTest, Write_ForeignItem_IsNoneOfItsBusiness)
{
    const auto item = Appointment("Lunch");
    OpenAlone(item);
    ForgetTrace();
    item->Save();

    EXPECT_THAT(Companions(), ElementsAre("Item write 90", "Item write - exit"));
}

TEST_F(TempodialInspectorTest, Close_Unchanged_SavesAndShowsStandard)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    int saves = 0;
    const auto writes = item->Subscribe({ .Open = {}, .Write = [&](bool&) { ++saves; }, .Close = {} });
    bool visible = false;
    bool hasBar = true;
    const auto bars = inspector->CommandBars();
    const auto closing = inspector->Subscribe({ .Close = [&] {
        visible = bars->ItemNamed("Standard")->Visible();
        hasBar = HasBar(bars, "Tempodial");
    } });
    ForgetTrace();
    EXPECT_TRUE(inspector->Close());

    EXPECT_EQ(saves, 1);
    EXPECT_TRUE(visible);
    EXPECT_FALSE(hasBar);
    EXPECT_THAT(mMessageBox->shown, IsEmpty());
    EXPECT_FALSE(mMain->IsInspector(item));
    EXPECT_THAT(Companions(),
        ElementsAre("Item close for us? True closed? False 1", "IsBoundData to write? No Project", "Item write 1",
            "IsBoundData to write? No Project", "Item write - exit", "Item close - exit closed? True 1",
            "Inspector-close 1"))
        << "the companion lives until its window has closed";
}

TEST_F(TempodialInspectorTest, Close_ChangedAndYes_WritesAndSaves)
{
    AddProject("Alpha");
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "Alpha");
    mMessageBox->NextAnswer(Answer::Yes);
    ForgetTrace();
    EXPECT_TRUE(inspector->Close());

    ASSERT_THAT(mMessageBox->shown, SizeIs(1));
    EXPECT_EQ(mMessageBox->shown[0].text, "Do you want to save your changes?");
    EXPECT_THAT(mMessageBox->shown[0].buttons, ElementsAre(Answer::Yes, Answer::No, Answer::Cancel));
    EXPECT_EQ(mMessageBox->shown[0].icon, MessageIcon::Question);
    EXPECT_EQ(StoredProperty(item, "Project"), "Alpha");
    EXPECT_EQ(item->Mileage(), "Alpha");
    EXPECT_EQ(item->Subject(), "[Alpha] Notepad, Plan");
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
    const auto lines = Companions();
    EXPECT_THAT(lines, Contains("Chose to save").Times(1));
    EXPECT_THAT(lines, Contains("WriteAll now").Times(1));
    EXPECT_FALSE(mMain->IsInspector(item));
}

TEST_F(TempodialInspectorTest, Close_ChangedAndYesButRefused_KeepsTheWindow)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "a|b");
    mMessageBox->NextAnswer(Answer::Yes);
    EXPECT_FALSE(inspector->Close());

    EXPECT_THAT(mMessageBox->shown, SizeIs(2));
    EXPECT_TRUE(mMain->IsInspector(item));
    EXPECT_EQ(StoredProperty(item, "Project"), "No Project");
    EXPECT_TRUE(HasBar(inspector->CommandBars(), "Tempodial"));
}

TEST_F(TempodialInspectorTest, Close_ChangedAndNo_SavesTheOldValues)
{
    AddProject("Alpha");
    const auto item = Activity("Plan", "Anna;");
    const auto start = item->Start();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "Alpha");
    Set(inspector, "SubjectBox", "Letter");
    Set(inspector, "PeopleBox", "Ben;");
    Set(inspector, "DescCombo", "word");
    Set(inspector, "StartBox", start.AddMinutes(3));
    Set(inspector, "EndBox", start.AddMinutes(60));
    mMessageBox->NextAnswer(Answer::No);
    ForgetTrace();
    EXPECT_TRUE(inspector->Close());

    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
    EXPECT_EQ(StoredProperty(item, "Project"), "No Project");
    EXPECT_EQ(StoredProperty(item, "Description"), "Plan");
    EXPECT_EQ(StoredProperty(item, "People"), "Anna;");
    EXPECT_EQ(StoredProperty(item, "Keyword"), mMain->mStrings->mSelectAKeyword);
    EXPECT_EQ(item->Start(), start);
    EXPECT_EQ(item->End(), start.AddMinutes(10));
    EXPECT_EQ(item->Mileage(), "No Project");
    const auto lines = Companions();
    EXPECT_THAT(lines,
        testing::IsSupersetOf({ "ReverseUnbound mOldProject: No Project", "Reversebound",
            "Item description before: Letter", "Item description aft: Plan" }));
    EXPECT_THAT(lines, Not(Contains("WriteAll now")));
}

TEST_F(TempodialInspectorTest, Close_CancelThenYes_ClosesAtLast)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "SubjectBox", "Letter");
    mMessageBox->NextAnswer(Answer::Cancel);
    mMessageBox->NextAnswer(Answer::Yes);
    EXPECT_FALSE(inspector->Close());
    EXPECT_EQ(StoredProperty(item, "Description"), "Plan");
    EXPECT_TRUE(mMain->IsInspector(item));
    EXPECT_TRUE(HasBar(inspector->CommandBars(), "Tempodial"));

    EXPECT_TRUE(inspector->Close());
    EXPECT_EQ(StoredProperty(item, "Description"), "Letter");
    EXPECT_FALSE(mMain->IsInspector(item));
    EXPECT_THAT(mMessageBox->shown, SizeIs(2));
}

TEST_F(TempodialInspectorTest, Close_WithinTheClose_PassesStraightOn)
{
    OpenAlone(Activity());
    ForgetTrace();
    bool cancel = false;
    mCompanion->mCurrentItem_Close(cancel);
    EXPECT_THAT(Companions(), Contains("Item close for us? True closed? False 90"));
    mCompanion->mCurrentItem_Close(cancel);

    EXPECT_FALSE(cancel);
    EXPECT_THAT(
        Companions(), ElementsAre("Item close for us? True closed? True 90", "Item close - exit closed? True 90"));
}

TEST_F(TempodialInspectorTest, Close_ForeignItem_OnlyRestoresTheBars)
{
    const auto item = Appointment("Lunch");
    OpenAlone(item);
    item->SetSubject("Dinner");
    ForgetTrace();
    bool cancel = false;
    mCompanion->mCurrentItem_Close(cancel);

    EXPECT_FALSE(cancel);
    EXPECT_TRUE(item.As<StoreItem>()->HasChanges());
    EXPECT_THAT(
        Companions(), ElementsAre("Item close for us? False closed? False 90", "Item close - exit closed? True 90"));
}

TEST_F(TempodialInspectorTest, InspectorClose_Again_DoesNoHarm)
{
    const auto inspector = OpenAlone(Activity());
    ForgetTrace();
    mCompanion->mInspector_close();
    mCompanion->mInspector_close();

    EXPECT_TRUE(Bar(inspector, "Standard")->Visible());
    EXPECT_FALSE(HasBar(inspector->CommandBars(), "Tempodial"));
    EXPECT_THAT(Companions(), ElementsAre("Inspector-close 90", "Inspector-close 90"));
}

TEST_F(TempodialInspectorTest, InspectorClose_EverythingFails_TracesNoFailureOfItsOwn)
{
    bool fails = false;
    OpenObserved(Activity(), [&](const std::string&) {
        if (fails) {
            throw Failure(Error::Automation);
        }
    });
    fails = true;
    ForgetTrace();
    mCompanion->mInspector_close();

    EXPECT_THAT(Companions(), ElementsAre("Inspector-close 90"));
}

TEST_F(TempodialInspectorTest, Terminate_Twice_TracesOnceAndLetsGo)
{
    OpenAlone(Activity());
    ForgetTrace();
    mCompanion->Terminate();
    mCompanion->Terminate();

    EXPECT_THAT(Companions(), ElementsAre("term inspector 90"));
    EXPECT_FALSE(mCompanion->GetItem());
    EXPECT_FALSE(mCompanion->mInspector);
}

TEST_F(TempodialInspectorTest, Terminate_WindowOpen_HearsOfNothingMore)
{
    const auto inspector = OpenAlone(Activity());
    mCompanion->Terminate();
    ForgetTrace();
    inspector->Save();
    Click(inspector, "&Tempodial Help");
    inspector->Close();

    EXPECT_THAT(Companions(), IsEmpty());
    EXPECT_THAT(mShell->opened, IsEmpty());
}

TEST_F(TempodialInspectorTest, Close_AddInEndedAtTheQuestion_LetsNothingEscape)
{
    for (const auto answer : { Answer::Yes, Answer::No, Answer::Cancel }) {
        SCOPED_TRACE(static_cast<int>(answer));
        const auto item = Activity();
        const auto inspector = Open(item);
        Set(inspector, "SubjectBox", "Letter");
        mMessageBox->NextAnswer(answer);
        mMessageBox->onShow = [&] { mMain->Terminate(); };
        EXPECT_NO_THROW(inspector->Close());
        mMessageBox->onShow = {};
        mMain->Initialize("Tempodial.Connect", mApplication);
        mMain->TempodialMain_Run();
        mLog = mMain->mTempodialDebugLog;
    }
}

TEST_F(TempodialInspectorTest, Delete_WindowOpen_PutsTheBarsBack)
{
    const auto inspector = Open(Activity());
    const auto bars = inspector->Bars();
    bool seen = false;
    const auto closing = inspector->Subscribe({ .Close = [&] {
        seen = true;
        EXPECT_EQ(bars->Count(), 1);
        EXPECT_TRUE(bars->ItemNamed("Standard")->Visible());
    } });
    Click(inspector, "&Delete");

    EXPECT_TRUE(seen);
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
}

TEST_F(TempodialInspectorTest, Delete_WindowsOpen_LeavesNothingInTheRegister)
{
    std::vector<std::weak_ptr<HostInspector>> windows;
    for (int i = 0; i < 3; ++i) {
        windows.emplace_back(Open(Activity("Plan " + std::to_string(i))).Shared());
    }
    ForgetTrace();
    Click(windows[0].lock(), "&Delete");
    mApplication->User().Delete(windows[1].lock()->ShownItem());
    mMailbox->DeleteFolder(mMain->GetWorkLog());

    EXPECT_THAT(windows, testing::Each(testing::Property(&std::weak_ptr<HostInspector>::expired, true)));
    EXPECT_THAT(Traced(), testing::Not(testing::Contains(testing::HasSubstr("error"))));
}

TEST_F(TempodialInspectorTest, Windows_OpenedAndClosedAHundredTimes_LeaveNothing)
{
    const auto item = Activity();
    std::vector<std::weak_ptr<HostInspector>> windows;
    for (int i = 0; i < 100; ++i) {
        const auto inspector = Open(item);
        windows.emplace_back(inspector.Shared());
        if (i % 2 == 0) {
            Click(inspector, "&Save and Close");
        } else {
            inspector->Close();
        }
    }

    EXPECT_FALSE(mMain->IsInspector(item));
    // A companion that were left would hold its window.
    EXPECT_THAT(windows, testing::Each(testing::Property(&std::weak_ptr<HostInspector>::expired, true)));
}

}

}
