#include "base/Failure.h"
#include "forms/ButtonModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/FormModel.h"
#include "forms/LabelModel.h"
#include "forms/ProgressBarModel.h"
#include "forms/TextBoxModel.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {
namespace {

class ControlModelTest : public testing::Test
{
protected:
    template <class Model> Ref<Model> Get(const std::string& name) const { return mForm->Control(name).As<Model>(); }

    Ref<FormModel> mForm = MakeRef<FormModel>(
        FormDefinition { .className = "SampleForm",
            .title = "Sample",
            .rows = { { { .name = "Line", .kind = ControlKind::Label, .text = "a line" } },
                { { .name = "Month", .kind = ControlKind::ComboBox, .text = "" },
                    { .name = "Bar", .kind = ControlKind::ProgressBar, .text = "" } },
                { { .name = "Name", .kind = ControlKind::TextBox, .text = "a name" } },
                { { .name = "OK", .kind = ControlKind::Button, .text = "&OK" },
                    { .name = "Outside", .kind = ControlKind::Button, .text = "x", .onForm = false } } } },
        1);
    Ref<LabelModel> mLine = Get<LabelModel>("Line");
    Ref<TextBoxModel> mName = Get<TextBoxModel>("Name");
    Ref<ComboBoxModel> mMonth = Get<ComboBoxModel>("Month");
    Ref<ProgressBarModel> mBar = Get<ProgressBarModel>("Bar");
    Ref<ButtonModel> mOk = Get<ButtonModel>("OK");
    Ref<ButtonModel> mOutside = Get<ButtonModel>("Outside");
};

TEST_F(ControlModelTest, Made_EachKind_HasItsDefinitionsText)
{
    EXPECT_EQ(mLine->Caption(), "a line");
    EXPECT_EQ(mOk->Caption(), "&OK");
    EXPECT_EQ(mName->Text(), "a name");
    EXPECT_EQ(mName->Definition().kind, ControlKind::TextBox);
    EXPECT_EQ(mMonth->Text(), "");
    EXPECT_EQ(mMonth->ListIndex(), -1);
    EXPECT_TRUE(mOk->Enabled());
    EXPECT_TRUE(mOk->Visible());
    EXPECT_EQ(mOk->Definition().kind, ControlKind::Button);
}

TEST_F(ControlModelTest, SetCaption_LabelAndButton_IsTaken)
{
    mLine->SetCaption("other");
    mOk->SetCaption("&Go");
    EXPECT_EQ(mLine->Caption(), "other");
    EXPECT_EQ(mOk->Caption(), "&Go");
}

TEST_F(ControlModelTest, Click_ShownButton_RaisesClick)
{
    int clicks = 0;
    const auto subscription = mOk->Subscribe({ .Click = [&] { ++clicks; } });
    mForm->Show();
    mOk->Click();
    mOk->Click();
    EXPECT_EQ(clicks, 2);
}

TEST_F(ControlModelTest, Click_ButtonThatCanNotBeWorked_Fails)
{
    int clicks = 0;
    const auto subscription = mOk->Subscribe({ .Click = [&] { ++clicks; } });
    const auto outside = mOutside->Subscribe({ .Click = [&] { ++clicks; } });
    EXPECT_EQ(FailureNumber([&] { mOk->Click(); }), 5) << "form not shown";
    mForm->Show();
    EXPECT_EQ(FailureNumber([&] { mOutside->Click(); }), 5) << "outside of the visible part";
    mOk->SetEnabled(false);
    EXPECT_EQ(FailureNumber([&] { mOk->Click(); }), 5) << "disabled";
    mOk->SetEnabled(true);
    mOk->SetVisible(false);
    EXPECT_EQ(FailureNumber([&] { mOk->Click(); }), 5) << "hidden";
    mOk->SetVisible(true);
    mForm->Hide();
    EXPECT_EQ(FailureNumber([&] { mOk->Click(); }), 5) << "form hidden";
    EXPECT_EQ(clicks, 0);
    mForm->Show();
    mOk->Click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlModelTest, Click_ListenerDropsTheForm_Finishes)
{
    mForm->Show();
    bool clicked = false;
    const auto button = mOk;
    const auto subscription = mOk->Subscribe({ .Click = [&] {
        mForm = nullptr;
        mOk = nullptr;
        clicked = true;
    } });
    button->Click();
    EXPECT_TRUE(clicked);
    EXPECT_EQ(FailureNumber([&] { button->Click(); }), 5) << "the form is gone";
}

TEST_F(ControlModelTest, TypeText_ShownBox_TakesThePlaceOfTheText)
{
    mForm->Show();
    mName->Type("other");
    EXPECT_EQ(mName->Text(), "other");
    mName->Type("");
    EXPECT_EQ(mName->Text(), "");
    mName->SetText("by code");
    EXPECT_EQ(mName->Text(), "by code");
}

TEST_F(ControlModelTest, TypeText_BoxThatCanNotBeWorked_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mName->Type("x"); }), 5) << "form not shown";
    mForm->Show();
    mName->SetEnabled(false);
    EXPECT_EQ(FailureNumber([&] { mName->Type("x"); }), 5) << "disabled";
    mName->SetEnabled(true);
    mName->SetVisible(false);
    EXPECT_EQ(FailureNumber([&] { mName->Type("x"); }), 5) << "hidden";
    mName->SetVisible(true);
    mForm->Hide();
    EXPECT_EQ(FailureNumber([&] { mName->Type("x"); }), 5) << "form hidden";
    EXPECT_EQ(mName->Text(), "a name");
    mName->SetText("by code");
    EXPECT_EQ(mName->Text(), "by code");
    mForm->Unload();
    EXPECT_EQ(mName->Text(), "a name");
}

TEST_F(ControlModelTest, Choose_Entry_SetsTextAndIndex)
{
    mMonth->AddItem("Jan");
    mMonth->AddItem("Feb");
    mForm->Show();
    mMonth->Choose(1);
    EXPECT_EQ(mMonth->Text(), "Feb");
    EXPECT_EQ(mMonth->ListIndex(), 1);
    EXPECT_EQ(mMonth->List(), (std::vector<std::string> { "Jan", "Feb" }));
}

TEST_F(ControlModelTest, Choose_AbsentEntryOrBoxThatCanNotBeWorked_FailsAndChangesNothing)
{
    mMonth->AddItem("Jan");
    EXPECT_EQ(FailureNumber([&] { mMonth->Choose(0); }), 5);
    EXPECT_EQ(FailureNumber([&] { mMonth->Type("x"); }), 5);
    mForm->Show();
    EXPECT_EQ(FailureNumber([&] { mMonth->Choose(1); }), 5);
    EXPECT_EQ(FailureNumber([&] { mMonth->Choose(-1); }), 5);
    EXPECT_EQ(mMonth->Text(), "");
    EXPECT_EQ(mMonth->ListIndex(), -1);
}

TEST_F(ControlModelTest, SetText_EvenAnEntrysOwn_ClearsTheSelection)
{
    mMonth->AddItem("Jan");
    mForm->Show();
    mMonth->Choose(0);
    mMonth->SetText("Jan");
    EXPECT_EQ(mMonth->Text(), "Jan");
    EXPECT_EQ(mMonth->ListIndex(), -1);
}

TEST_F(ControlModelTest, Type_Text_ReplacesTheTextAndClearsTheSelection)
{
    mMonth->AddItem("Jan");
    mForm->Show();
    mMonth->Choose(0);
    mMonth->Type("Oct");
    EXPECT_EQ(mMonth->Text(), "Oct");
    EXPECT_EQ(mMonth->ListIndex(), -1);
}

TEST_F(ControlModelTest, SetValue_InsideOfTheRange_IsTaken)
{
    mBar->SetMax(50);
    mBar->SetValue(50);
    EXPECT_EQ(mBar->Value(), 50);
    mBar->SetValue(0);
    EXPECT_EQ(mBar->Value(), 0);
}

TEST_F(ControlModelTest, SetValue_OutsideOfTheRange_FailsAndChangesNothing)
{
    mBar->SetValue(5);
    EXPECT_EQ(FailureNumber([&] { mBar->SetValue(-1); }), 380);
    EXPECT_EQ(FailureNumber([&] { mBar->SetValue(101); }), 380);
    EXPECT_EQ(mBar->Value(), 5);
}

TEST_F(ControlModelTest, SetBounds_ValueOutside_IsMovedIntoThem)
{
    mBar->SetValue(80);
    mBar->SetMax(50);
    EXPECT_EQ(mBar->Value(), 50);
    mBar->SetValue(0);
    mBar->SetMin(10);
    EXPECT_EQ(mBar->Value(), 10);
    EXPECT_EQ(FailureNumber([&] { mBar->SetMax(9); }), 380);
    EXPECT_EQ(FailureNumber([&] { mBar->SetMin(51); }), 380);
    EXPECT_EQ(mBar->Min(), 10);
    EXPECT_EQ(mBar->Max(), 50);
}

TEST_F(ControlModelTest, Change_OfAnyControl_IsToldToWhoeverDrawsTheForm)
{
    int changes = 0;
    const auto subscription = mForm->SubscribeToChanges({ .Changed = [&] { ++changes; } });
    const std::function<void()> steps[] = {
        [&] { mLine->SetCaption("x"); },
        [&] { mOk->SetEnabled(false); },
        [&] { mOk->SetVisible(false); },
        [&] { mName->SetText("x"); },
        [&] { mMonth->SetText("x"); },
        [&] { mMonth->AddItem("y"); },
        [&] { mBar->SetMax(10); },
        [&] { mBar->SetValue(1); },
        [&] { mForm->SetCaption("x"); },
        [&] { mForm->Show(); },
        [&] { mForm->Refresh(); },
        [&] { mForm->Hide(); },
    };
    for (const auto& step : steps) {
        const auto before = changes;
        step();
        EXPECT_EQ(changes, before + 1);
    }
}

TEST_F(ControlModelTest, BringToFront_IsToldAsThat)
{
    int changes = 0;
    int raised = 0;
    const auto subscription
        = mForm->SubscribeToChanges({ .Changed = [&] { ++changes; }, .BroughtToFront = [&] { ++raised; } });
    mForm->BringToFront();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(raised, 1);
}

TEST_F(ControlModelTest, Show_OfAFormOnTheScreen_BringsItToTheFront)
{
    int raised = 0;
    const auto subscription = mForm->SubscribeToChanges({ .BroughtToFront = [&] { ++raised; } });
    mForm->Hide();
    mForm->Show();
    EXPECT_EQ(raised, 0);
    mForm->Show();
    EXPECT_EQ(raised, 1);
}

TEST_F(ControlModelTest, EndOfTheForm_IsToldOnceAndNobodyCanStopIt)
{
    auto form = std::make_shared<FormModel>(FormDefinition { .className = "Short", .title = "t", .rows = {} }, 9);
    int ends = 0;
    const auto subscription = form->SubscribeToChanges({ .Ended = [&] {
        ++ends;
        throw Failure(Error::InvalidCall);
    } });
    form->Show();
    form->Hide();
    EXPECT_EQ(ends, 0);
    form.reset();
    EXPECT_EQ(ends, 1);
}

}
}
