#include "addin/win32/forms/DialogKeys.h"

#include "addin/win32/forms/PlainWindow.h"
#include "addin/win32/forms/SampleForm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DialogKeysTest : public SampleForm
{
};

TEST_F(DialogKeysTest, Tab_GoesThroughTheControlsInTheirOrder)
{
    As<OptionButton>("Two")->SetValue(true);
    As<Button>("Remove")->SetEnabled(false);
    mForm->Show();
    std::vector<std::string> order { Focus() };
    for (int presses = 0; presses < 8; ++presses) {
        Press(VK_TAB);
        order.push_back(Focus());
    }
    EXPECT_THAT(order, ElementsAre("Subject", "Project", "Two", "Tick", "Lines", "OK", "Cancel", "Other", "Subject"));
    EXPECT_TRUE(As<OptionButton>("Two")->Value());
}

TEST_F(DialogKeysTest, Arrows_ChooseAmongOptionButtonsAlone)
{
    As<OptionButton>("One")->SetValue(true);
    mForm->Show();
    SetFocus(ControlWindow("One"));
    mEvents.clear();
    Press(VK_DOWN);
    EXPECT_EQ(Focus(), "Two");
    EXPECT_TRUE(As<OptionButton>("Two")->Value());
    Press(VK_DOWN);
    EXPECT_EQ(Focus(), "One");
    EXPECT_THAT(mEvents, ElementsAre("Two clicked", "One clicked"));
    ExpectAlike();
}

TEST_F(DialogKeysTest, Enter_InABox_ClicksTheDefaultButton)
{
    mForm->Show();
    Press(VK_RETURN);
    EXPECT_THAT(mEvents, ElementsAre("OK clicked"));
    As<Button>("OK")->SetEnabled(false);
    WindowHands::HandleMessages();
    Press(VK_RETURN);
    EXPECT_THAT(mEvents, ElementsAre("OK clicked"));
}

TEST_F(DialogKeysTest, Enter_InABoxOfSeveralLines_BeginsAnother)
{
    mForm->Show();
    SetFocus(ControlWindow("Lines"));
    Press(VK_RETURN);
    EXPECT_EQ(As<TextBox>("Lines")->Text(), "\n");
    EXPECT_THAT(mEvents, ElementsAre("Lines changed"));
}

TEST_F(DialogKeysTest, Enter_OnAnotherButton_ClicksThatOne)
{
    mForm->Show();
    SendMessageW(Window(), WM_NEXTDLGCTL, std::bit_cast<WPARAM>(ControlWindow("Other")), TRUE);
    Press(VK_RETURN);
    EXPECT_THAT(mEvents, ElementsAre("Other clicked"));
}

TEST_F(DialogKeysTest, Escape_ClicksTheButtonThatCancels)
{
    mForm->Show();
    Press(VK_ESCAPE);
    EXPECT_THAT(mEvents, ElementsAre("Cancel clicked"));
    EXPECT_TRUE(mForm->Visible());
    As<Button>("Cancel")->SetEnabled(false);
    WindowHands::HandleMessages();
    Press(VK_ESCAPE);
    EXPECT_THAT(mEvents, ElementsAre("Cancel clicked"));
    EXPECT_TRUE(mForm->Visible());
}

TEST_F(DialogKeysTest, Escape_NoButtonCancels_ClosesByTheFrame)
{
    const auto form = mFactory->Create({ .className = "PlainForm",
        .title = "Plain",
        .rows = { { { .name = "OK", .kind = ControlKind::Button, .text = "OK", .role = ButtonRole::Default } } } });
    form->Show();
    Press(VK_ESCAPE);
    EXPECT_FALSE(form->Visible());
}

TEST_F(DialogKeysTest, Escape_FormIsDroppedByIt_LeavesNoHook)
{
    mForm->Show();
    mDoes["Cancel"] = [this] { mForm = nullptr; };
    Press(VK_ESCAPE);
    EXPECT_EQ(FormWindow::Count(), 0);
    EXPECT_FALSE(DialogKeys::IsHooked());
}

TEST_F(DialogKeysTest, Letters_WithAlt_GoToTheirControls)
{
    mForm->Show();
    PressWithAlt(L'b');
    EXPECT_TRUE(As<CheckBox>("Tick")->Value());
    EXPECT_EQ(Focus(), "Tick");
    PressWithAlt(L'u');
    EXPECT_EQ(Focus(), "Subject");
    mEvents.clear();
    PressWithAlt(L'r');
    EXPECT_THAT(mEvents, ElementsAre("Remove clicked"));
    mEvents.clear();
    PressWithAlt(L'n');
    EXPECT_THAT(mEvents, IsEmpty()) << "that button is off the form";
}

TEST_F(DialogKeysTest, Keys_OfAnotherForm_AreThatFormsOnly)
{
    mForm->Show();
    const auto other = mFactory->Create({ .className = "PlainForm",
        .title = "Plain",
        .rows = { { { .name = "OK", .kind = ControlKind::Button, .text = "OK", .role = ButtonRole::Default } } } });
    other->Show();
    Press(VK_ESCAPE);
    EXPECT_FALSE(other->Visible());
    EXPECT_THAT(mEvents, IsEmpty());
    SetFocus(ControlWindow("Subject"));
    Press(VK_ESCAPE);
    EXPECT_THAT(mEvents, ElementsAre("Cancel clicked"));
}

TEST_F(DialogKeysTest, Keys_OfOtherWindows_AreLeftAlone)
{
    mForm->Show();
    const PlainWindow host;
    PostMessageW(host.Get(), WM_KEYDOWN, VK_ESCAPE, 1);
    MSG message {};
    ASSERT_NE(PeekMessageW(&message, host.Get(), WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE), FALSE);
    EXPECT_EQ(message.message, static_cast<UINT>(WM_KEYDOWN));
    EXPECT_THAT(mEvents, IsEmpty());
}

}
}
