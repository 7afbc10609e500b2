#include "addin/win32/forms/FormWindow.h"

#include "addin/base/WindowText.h"
#include "addin/com/FakeObject.h"
#include "addin/win32/forms/PlainWindow.h"
#include "addin/win32/forms/SampleForm.h"
#include "forms/ComboBoxModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tempodial {
namespace {

using testing::ElementsAre;

class FormWindowTest : public SampleForm
{
};

TEST_F(FormWindowTest, Show_NewForm_MakesAWindowThatShowsAll)
{
    EXPECT_EQ(FormWindow::Count(), 0);
    EXPECT_FALSE(DialogKeys::IsHooked());
    mForm->Show();
    EXPECT_EQ(FormWindow::Count(), 1);
    EXPECT_TRUE(DialogKeys::IsHooked());
    ExpectAlike();
    EXPECT_EQ(NameOf(Window(), FormProperty), "SampleForm");
    mForm->Hide();
    EXPECT_TRUE(WindowEyes::Forms().empty());
    EXPECT_FALSE(DialogKeys::IsHooked());
    mForm = nullptr;
    EXPECT_EQ(FormWindow::Count(), 0);
}

TEST_F(FormWindowTest, Model_EachKindChanges_IsDrawnAtTheNextMessage)
{
    mForm->Show();
    mForm->SetCaption("Other");
    As<Label>("SubjectLabel")->SetCaption("R&D");
    As<TextBox>("Subject")->SetText("Łódź");
    As<TextBox>("Lines")->SetText("one\ntwo");
    const auto project = As<ComboBox>("Project");
    project->AddItem("Plan");
    project->AddItem("Wish");
    project->SetListIndex(1);
    As<CheckBox>("Tick")->SetValue(true);
    As<OptionButton>("Two")->SetValue(true);
    As<Button>("Remove")->SetCaption("&Take away");
    As<Button>("Remove")->SetEnabled(false);
    As<Button>("Other")->SetVisible(false);
    const auto bar = As<ProgressBar>("Bar");
    bar->SetMax(300);
    bar->SetMin(20);
    bar->SetValue(120);
    EXPECT_NE(Shown(), Modelled());
    ExpectAlike();
    project->Clear();
    project->AddItem("Wish");
    project->SetText("Wish");
    As<OptionButton>("Two")->SetValue(false);
    As<Button>("Remove")->SetEnabled(true);
    As<Button>("Other")->SetVisible(true);
    ExpectAlike();
}

TEST_F(FormWindowTest, Model_ChangedWhileHidden_IsDrawnWhenShown)
{
    mForm->Show();
    mForm->Hide();
    As<TextBox>("Subject")->SetText("later");
    mForm->Show();
    EXPECT_EQ(Shown(), Modelled());
    mForm->Unload();
    mForm->Show();
    EXPECT_EQ(Shown(), Modelled());
}

TEST_F(FormWindowTest, Refresh_DrawsAtOnce)
{
    mForm->Show();
    As<TextBox>("Subject")->SetText("now");
    EXPECT_NE(Shown(), Modelled());
    mForm->Refresh();
    EXPECT_EQ(Shown(), Modelled());
}

TEST_F(FormWindowTest, Model_LongList_IsDrawnByOneMessage)
{
    constexpr int Entries = 5000;
    mForm->Show();
    WindowHands::HandleMessages();
    const auto project = As<ComboBox>("Project");
    for (int entry = 0; entry < Entries; ++entry) {
        project->AddItem("entry " + std::to_string(entry));
    }
    EXPECT_EQ(CountOwnMessages(), 1);
    As<ComboBox>("Project")->AddItem("last");
    ExpectAlike();
    EXPECT_EQ(SendMessageW(ControlWindow("Project"), CB_GETCOUNT, 0, 0), Entries + 1);
}

TEST_F(FormWindowTest, Person_WorksEachKind_TellsTheModel)
{
    As<ComboBox>("Project")->AddItem("Plan");
    As<ComboBox>("Project")->AddItem("Wish");
    mForm->Show();
    mHands.Type("SampleForm", "Subject", "Łódź");
    mHands.Type("SampleForm", "Lines", "one\r\ntwo");
    mHands.Type("SampleForm", "Project", "Wi");
    mHands.Choose("SampleForm", "Project", "Wish");
    mHands.Check("SampleForm", "Tick", true);
    mHands.Check("SampleForm", "Two", true);
    mHands.Check("SampleForm", "One", true);
    mHands.Click("SampleForm", "Remove");
    mHands.Click("SampleForm", "OK");
    EXPECT_THAT(mEvents,
        ElementsAre("Subject changed", "Lines changed", "Project changed", "Project clicked", "Tick clicked",
            "Two clicked", "One clicked", "Remove clicked", "OK clicked"));
    EXPECT_EQ(As<TextBox>("Subject")->Text(), "Łódź");
    EXPECT_EQ(As<TextBox>("Lines")->Text(), "one\ntwo");
    EXPECT_EQ(As<ComboBox>("Project")->ListIndex(), 1);
    EXPECT_TRUE(As<CheckBox>("Tick")->Value());
    EXPECT_TRUE(As<OptionButton>("One")->Value());
    EXPECT_FALSE(As<OptionButton>("Two")->Value());
    ExpectAlike();
    mHands.Check("SampleForm", "Tick", false);
    EXPECT_FALSE(As<CheckBox>("Tick")->Value());
}

TEST_F(FormWindowTest, Person_TypesLetterByLetter_TellsEachChange)
{
    mForm->Show();
    SetFocus(ControlWindow("Subject"));
    for (const auto letter : { L'p', L'l' }) {
        SendMessageW(ControlWindow("Subject"), WM_CHAR, letter, 1);
    }
    EXPECT_EQ(As<TextBox>("Subject")->Text(), "pl");
    EXPECT_THAT(mEvents, ElementsAre("Subject changed", "Subject changed"));
}

TEST_F(FormWindowTest, Model_ItsHandlerPutsATextBack_IsShown)
{
    const auto project = As<ComboBox>("Project");
    project->AddItem("Plan");
    project->AddItem("Wish");
    project->SetListIndex(0);
    const auto putsBack = project->Subscribe({ .Click = [project] { project->SetText("Plan"); } });
    mForm->Show();
    mHands.Choose("SampleForm", "Project", 1);
    EXPECT_EQ(project->Text(), "Plan");
    ExpectAlike();
}

TEST_F(FormWindowTest, Model_SetsTheTextThatIsChosen_ShowsItAsTypedOne)
{
    const auto project = As<ComboBox>("Project");
    project->AddItem("Plan");
    mForm->Show();
    mHands.Choose("SampleForm", "Project", 0);
    project->SetText("Plan");
    ExpectAlike();
    EXPECT_EQ(SendMessageW(ControlWindow("Project"), CB_GETCURSEL, 0, 0), CB_ERR);
}

TEST_F(FormWindowTest, Close_ByTheFrame_AsksTheForm)
{
    bool refuses = true;
    const auto asked = mForm->Subscribe({ .QueryClose = [&refuses](bool& cancel) { cancel = refuses; } });
    mForm->Show();
    EXPECT_FALSE(mHands.Close(1));
    EXPECT_TRUE(mForm->Visible());
    ExpectAlike();
    refuses = false;
    EXPECT_TRUE(mHands.Close(1));
    EXPECT_FALSE(mForm->Visible());
}

TEST_F(FormWindowTest, Form_DroppedInItsOwnEvent_TakesItsWindowAway)
{
    mForm->Show();
    auto* const window = Window();
    mDoes["OK"] = [this] { mForm = nullptr; };
    SendMessageW(ControlWindow("OK"), BM_CLICK, 0, 0);
    EXPECT_EQ(IsWindow(window), FALSE);
    EXPECT_EQ(FormWindow::Count(), 0);
    EXPECT_FALSE(DialogKeys::IsHooked());
    WindowHands::HandleMessages();
}

TEST_F(FormWindowTest, Form_ClosedForGoodInItsOwnEvent_TakesItsWindowAway)
{
    mForm->Show();
    mDoes["OK"] = [this] { mFactory->CloseAll(); };
    SendMessageW(ControlWindow("OK"), BM_CLICK, 0, 0);
    EXPECT_FALSE(mForm->Visible());
    EXPECT_EQ(FormWindow::Count(), 0);
    WindowHands::HandleMessages();
}

TEST_F(FormWindowTest, CloseAll_HiddenAndShownForms_LeavesNoWindowAndNoHook)
{
    const auto other = mFactory->Create(SampleDefinition());
    mForm->Show();
    mForm->Hide();
    other->Show();
    EXPECT_EQ(FormWindow::Count(), 2);
    mFactory->CloseAll();
    EXPECT_FALSE(other->Visible());
    EXPECT_EQ(FormWindow::Count(), 0);
    EXPECT_FALSE(DialogKeys::IsHooked());
    // What the engine does to a form after the end does no harm.
    other->Show();
    EXPECT_EQ(FormWindow::Count(), 0);
}

TEST_F(FormWindowTest, HostsWindow_OwnsTheForm_AndTakesItAlong)
{
    PlainWindow host;
    PlainWindow next;
    auto* window = host.Get();
    auto application = FakeObject::Make();
    application->Has("ActiveWindow", [&window](const DISPPARAMS&, VARIANT* result, EXCEPINFO*) {
        result->vt = VT_DISPATCH;
        result->pdispVal = WindowObject::Make(window).Detach();
        return S_OK;
    });
    Win32FormFactory factory(HostsWindow(application->Automation()));
    const auto form = factory.Create(SampleDefinition());
    int asked = 0;
    const auto closing = form->Subscribe({ .QueryClose = [&asked](bool& cancel) {
        ++asked;
        cancel = true;
    } });
    form->Show();
    EXPECT_EQ(GetWindow(factory.OnTop(), GW_OWNER), host.Get());
    EXPECT_NE(IsWindowEnabled(host.Get()), FALSE);
    form->Hide();
    window = next.Get();
    form->Show();
    EXPECT_EQ(GetWindow(factory.OnTop(), GW_OWNER), next.Get());
    next.Destroy();
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(FormWindow::Count(), 0);
    window = host.Get();
    form->Show();
    EXPECT_EQ(GetWindow(factory.OnTop(), GW_OWNER), host.Get());
}

TEST_F(FormWindowTest, Dpi_Changes_LaysOutAnewAtThePlaceSaid)
{
    mForm->Show();
    RECT before {};
    GetWindowRect(ControlWindow("OK"), &before);
    const RECT place { .left = 40, .top = 50, .right = 900, .bottom = 900 };
    SendMessageW(Window(), 0x02E0, MAKEWPARAM(192, 192), std::bit_cast<LPARAM>(&place));
    RECT after {};
    GetWindowRect(ControlWindow("OK"), &after);
    EXPECT_EQ(after.right - after.left, 2 * (before.right - before.left));
    EXPECT_GT(after.bottom - after.top, (before.bottom - before.top) * 3 / 2);
    RECT form {};
    GetWindowRect(Window(), &form);
    EXPECT_EQ(form.left, 40);
    EXPECT_EQ(form.top, 50);
    ExpectAlike();
}

TEST_F(FormWindowTest, Caption_GetsLonger_LaysOutAnew)
{
    mForm->Show();
    RECT before {};
    GetWindowRect(Window(), &before);
    As<Label>("SubjectLabel")->SetCaption(std::string(100, 'x'));
    WindowHands::HandleMessages();
    RECT after {};
    GetWindowRect(Window(), &after);
    EXPECT_GT(after.right - after.left, before.right - before.left);
}

TEST_F(FormWindowTest, LongText_IsTakenWhole)
{
    const std::string text(70000, 'x');
    mForm->Show();
    mHands.Type("SampleForm", "Subject", text);
    mHands.Type("SampleForm", "Project", text);
    EXPECT_EQ(As<TextBox>("Subject")->Text(), text);
    EXPECT_EQ(As<ComboBox>("Project")->Text(), text);
}

TEST_F(FormWindowTest, Model_DisablesOrHidesWhatHasTheKeys_TheNextOneHasThem)
{
    mForm->Show();
    EXPECT_EQ(Focus(), "Subject");
    As<TextBox>("Subject")->SetEnabled(false);
    mForm->Refresh();
    EXPECT_EQ(Focus(), "Project");
    As<ComboBox>("Project")->SetVisible(false);
    mForm->Refresh();
    EXPECT_EQ(Focus(), "Remove");
}

TEST_F(FormWindowTest, Person_TypesWhileTheListIsOpen_KeepsTheText)
{
    As<ComboBox>("Project")->AddItem("Plan");
    mForm->Show();
    SendMessageW(ControlWindow("Project"), CB_SHOWDROPDOWN, TRUE, 0);
    mHands.Type("SampleForm", "Project", "Pl");
    EXPECT_EQ(As<ComboBox>("Project")->Text(), "Pl");
    EXPECT_EQ(TextOf(ControlWindow("Project")), "Pl");
    EXPECT_EQ(SendMessageW(ControlWindow("Project"), CB_GETEDITSEL, 0, 0), MAKELONG(2, 2)) << "the next letter's place";
    SendMessageW(ControlWindow("Project"), CB_SHOWDROPDOWN, FALSE, 0);
    ExpectAlike();
}

TEST_F(FormWindowTest, Show_HostsWindowIsSeen_IsInItsMiddle)
{
    const PlainWindow host;
    SetWindowPos(host.Get(), nullptr, 100, 50, 900, 700, SWP_NOZORDER | SWP_SHOWWINDOW);
    auto application = FakeObject::Make();
    application->Has("ActiveWindow", AutomationValue(WindowObject::Make(host.Get())));
    Win32FormFactory factory(HostsWindow(application->Automation()));
    const auto form = factory.Create(SampleDefinition());
    form->Show();
    RECT around {};
    GetWindowRect(factory.OnTop(), &around);
    EXPECT_NEAR(around.left + around.right, 2 * 550, 1);
    EXPECT_NEAR(around.top + around.bottom, 2 * 400, 1);
}

}
}
