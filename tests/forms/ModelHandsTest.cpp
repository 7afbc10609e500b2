#include "forms/ModelHands.h"

#include "forms/FormRefusal.h"
#include "platform/controls/Button.h"
#include "platform/controls/ComboBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {
namespace {

using testing::ElementsAre;

class ModelHandsTest : public testing::Test
{
protected:
    /// Why something can't be done, "" when it can.
    static std::string Refusal(const std::function<void()>& work)
    {
        try {
            work();
        } catch (const FormRefusal& refusal) {
            return refusal.what();
        }
        return "";
    }
    ControlSnapshot Seen(std::size_t control) { return mHands.Forms().at(0).controls.at(control); }

    FormModelFactory mFactory;
    ModelHands mHands { mFactory };
    Ref<Form> mForm = mFactory.Create({ .className = "SampleForm",
        .title = "Sample",
        .rows = { { { .name = "Line", .kind = ControlKind::Label, .text = "a line" },
            { .name = "Name", .kind = ControlKind::TextBox, .text = "a name", .toolTip = "tip" },
            { .name = "Month", .kind = ControlKind::ComboBox, .text = "" },
            { .name = "Tick", .kind = ControlKind::CheckBox, .text = "&Tick" },
            { .name = "A", .kind = ControlKind::OptionButton, .text = "a" },
            { .name = "Bar", .kind = ControlKind::ProgressBar, .text = "" },
            { .name = "OK", .kind = ControlKind::Button, .text = "OK" },
            { .name = "Outside", .kind = ControlKind::Button, .text = "x", .onForm = false } } } });
};

TEST_F(ModelHandsTest, Forms_HiddenOrNot_AreAsAPersonSeesThem)
{
    mForm->Control("Month").As<ComboBox>()->AddItem("Oct");
    auto seen = mHands.Forms().at(0);
    EXPECT_EQ(seen.className, "SampleForm");
    EXPECT_EQ(seen.title, "Sample");
    EXPECT_EQ(seen.number, 1);
    EXPECT_FALSE(seen.visible);
    EXPECT_EQ(seen.controls.size(), 8U);
    EXPECT_EQ(
        Seen(1), (ControlSnapshot { .name = "Name", .kind = ControlKind::TextBox, .text = "a name", .tip = "tip" }));
    EXPECT_THAT(Seen(2).list, ElementsAre("Oct"));
    EXPECT_EQ(Seen(2).index, -1);
    EXPECT_EQ(Seen(5).max, 100);
    EXPECT_FALSE(Seen(7).visible);
}

TEST_F(ModelHandsTest, Controls_OfEachKind_AreWorkedByNumberOrClass)
{
    mForm->Control("Month").As<ComboBox>()->AddItem("Oct");
    mForm->Show();
    mHands.Type(1, "Name", "other");
    mHands.Type("SampleForm", "Month", "Nov");
    EXPECT_EQ(Seen(1).text, "other");
    EXPECT_EQ(Seen(2).text, "Nov");
    mHands.Choose(1, "Month", "Oct");
    EXPECT_EQ(Seen(2).index, 0);
    mHands.Check(1, "Tick", true);
    mHands.Check(1, "A", true);
    EXPECT_TRUE(Seen(3).checked);
    EXPECT_TRUE(Seen(4).checked);
    int clicks = 0;
    const auto subscription = mForm->Control("OK").As<Button>()->Subscribe({ .Click = [&] { ++clicks; } });
    mHands.Click("SampleForm", "OK");
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(mHands.Close(1));
    EXPECT_FALSE(mForm->Visible());
}

TEST_F(ModelHandsTest, Close_ThatIsRefused_IsFalse)
{
    const auto subscription = mForm->Subscribe({ .QueryClose = [](bool& cancel) { cancel = true; } });
    mForm->Show();
    EXPECT_FALSE(mHands.Close("SampleForm"));
    EXPECT_TRUE(mForm->Visible());
}

TEST_F(ModelHandsTest, WhatAPersonCantDo_IsRefusedWithTheReason)
{
    EXPECT_EQ(Refusal([&] { mHands.Click(1, "OK"); }), "the control \"OK\" is disabled or hidden");
    EXPECT_EQ(Refusal([&] { mHands.Close(1); }), "the form is hidden");
    EXPECT_EQ(
        Refusal([&] { mHands.Click("SampleForm", "OK"); }), "there is no visible form of the class \"SampleForm\"");
    mForm->Show();
    EXPECT_EQ(Refusal([&] { mHands.Click(7, "OK"); }), "there is no form 7");
    EXPECT_EQ(Refusal([&] { mHands.Click(1, "None"); }), "the form has no control \"None\"");
    EXPECT_EQ(Refusal([&] { mHands.Click(1, "Outside"); }), "the control \"Outside\" is disabled or hidden");
    EXPECT_EQ(Refusal([&] { mHands.Click(1, "Name"); }), "the control \"Name\" is no button");
    EXPECT_EQ(Refusal([&] { mHands.Type(1, "OK", "x"); }), "the control \"OK\" is no text box and no combo box");
    EXPECT_EQ(Refusal([&] { mHands.Choose(1, "Name", 0); }), "the control \"Name\" is no combo box");
    EXPECT_EQ(Refusal([&] { mHands.Choose(1, "Month", 0); }), "the list of \"Month\" has no such entry");
    EXPECT_EQ(Refusal([&] { mHands.Choose(1, "Month", "Oct"); }), "the list of \"Month\" has no such entry");
    EXPECT_EQ(Refusal([&] { mHands.Check(1, "OK", true); }), "the control \"OK\" is no check box and no option button");
    EXPECT_EQ(Refusal([&] { mHands.Check(1, "A", false); }), "an option button is given up by choosing another one");
}

}
}
