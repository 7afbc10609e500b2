#include "forms/FormModel.h"

#include "base/Failure.h"
#include "forms/ButtonModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/LabelModel.h"
#include "forms/ProgressBarModel.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {
namespace {

FormDefinition SmallSample()
{
    return { .className = "SampleForm",
        .title = "Sample",
        .rows = { { { .name = "Line", .kind = ControlKind::Label, .text = "a line" },
                      { .name = "Month", .kind = ControlKind::ComboBox, .text = "Jan" } },
            { { .name = "Bar", .kind = ControlKind::ProgressBar, .text = "" } } } };
}

class FormModelTest : public testing::Test
{
protected:
    Ref<FormModel> mForm = MakeRef<FormModel>(SmallSample(), 7);
};

TEST_F(FormModelTest, Control_Name_GivesTheControlOfItsKind)
{
    EXPECT_TRUE(mForm->Control("Line").As<Label>());
    EXPECT_FALSE(mForm->Control("Line").As<Button>());
    EXPECT_TRUE(mForm->Control("Bar").As<ProgressBar>());
    EXPECT_EQ(mForm->Control("Line"), mForm->Control("Line"));
    EXPECT_EQ(FailureNumber([&] { mForm->Control("Absent"); }), 5);
}

TEST_F(FormModelTest, Constructed_TwoControlsOfOneName_Fails)
{
    auto definition = SmallSample();
    definition.rows[1].push_back(definition.rows[0][0]);
    EXPECT_EQ(FailureNumber([&] { FormModel(definition, 7); }), 457);
}

TEST_F(FormModelTest, Number_IsTheOneGiven)
{
    EXPECT_EQ(mForm->Number(), 7);
}

TEST_F(FormModelTest, Show_AnyNumberOfTimes_MakesTheFormVisible)
{
    EXPECT_FALSE(mForm->Visible());
    mForm->Show();
    EXPECT_TRUE(mForm->Visible());
    mForm->Show();
    EXPECT_TRUE(mForm->Visible());
}

TEST_F(FormModelTest, Hide_ShownForm_KeepsTheValues)
{
    mForm->Show();
    mForm->SetCaption("Other");
    mForm->Control("Line").As<Label>()->SetCaption("other");
    mForm->Hide();
    EXPECT_FALSE(mForm->Visible());
    EXPECT_EQ(mForm->Caption(), "Other");
    EXPECT_EQ(mForm->Control("Line").As<Label>()->Caption(), "other");
}

TEST_F(FormModelTest, Unload_ShownForm_LosesTheValues)
{
    mForm->Show();
    mForm->SetCaption("Other");
    const auto line = mForm->Control("Line").As<LabelModel>();
    const auto month = mForm->Control("Month").As<ComboBoxModel>();
    const auto bar = mForm->Control("Bar").As<ProgressBarModel>();
    line->SetCaption("other");
    line->SetEnabled(false);
    line->SetVisible(false);
    month->AddItem("Feb");
    month->Choose(0);
    bar->SetMax(10);
    bar->SetValue(3);

    mForm->Unload();
    EXPECT_FALSE(mForm->Visible());
    EXPECT_EQ(mForm->Caption(), "Sample");
    EXPECT_EQ(line->Caption(), "a line");
    EXPECT_TRUE(line->Enabled());
    EXPECT_TRUE(line->Visible());
    EXPECT_TRUE(month->List().empty());
    EXPECT_EQ(month->ListIndex(), -1);
    EXPECT_EQ(month->Text(), "Jan");
    EXPECT_EQ(bar->Max(), 100);
    EXPECT_EQ(bar->Value(), 0);
    mForm->Unload();
    EXPECT_FALSE(mForm->Visible());
}

TEST_F(FormModelTest, CloseByFrame_NobodyRefuses_UnloadsTheForm)
{
    mForm->Show();
    mForm->SetCaption("Other");
    int asked = 0;
    const auto subscription = mForm->Subscribe({ .QueryClose = [&](bool&) { ++asked; } });
    EXPECT_TRUE(mForm->CloseByFrame());
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(mForm->Visible());
    EXPECT_EQ(mForm->Caption(), "Sample");
}

TEST_F(FormModelTest, CloseByFrame_Refused_KeepsTheForm)
{
    mForm->Show();
    mForm->SetCaption("Other");
    const auto subscription = mForm->Subscribe({ .QueryClose = [](bool& cancel) { cancel = true; } });
    EXPECT_FALSE(mForm->CloseByFrame());
    EXPECT_TRUE(mForm->Visible());
    EXPECT_EQ(mForm->Caption(), "Other");
}

TEST_F(FormModelTest, CloseByFrame_RefusedButHidden_KeepsTheValues)
{
    mForm->Show();
    mForm->SetCaption("Other");
    const auto subscription = mForm->Subscribe({ .QueryClose = [this](bool& cancel) {
        cancel = true;
        mForm->Hide();
    } });
    EXPECT_TRUE(mForm->CloseByFrame()) << "off the screen";
    EXPECT_FALSE(mForm->Visible());
    EXPECT_EQ(mForm->Caption(), "Other");
}

TEST_F(FormModelTest, CloseByFrame_FormNotShown_Fails)
{
    bool asked = false;
    const auto subscription = mForm->Subscribe({ .QueryClose = [&](bool&) { asked = true; } });
    EXPECT_EQ(FailureNumber([&] { mForm->CloseByFrame(); }), 5);
    EXPECT_FALSE(asked);
}

TEST_F(FormModelTest, CloseByFrame_OwnerDropsTheForm_Finishes)
{
    mForm->Show();
    const auto subscription = mForm->Subscribe({ .QueryClose = [this](bool&) { mForm = nullptr; } });
    EXPECT_TRUE(mForm->CloseByFrame());
    EXPECT_FALSE(mForm);
}

TEST_F(FormModelTest, Unload_ByHand_AsksNobody)
{
    mForm->Show();
    bool asked = false;
    const auto subscription = mForm->Subscribe({ .QueryClose = [&](bool&) { asked = true; } });
    mForm->Unload();
    EXPECT_FALSE(asked);
}

TEST_F(FormModelTest, Refresh_IsToldAsAChangeAndThenToBeDrawnAtOnce)
{
    std::string told;
    const auto subscription = mForm->SubscribeToChanges(
        { .Changed = [&] { told += "changed "; }, .Refreshed = [&] { told += "refreshed "; } });
    mForm->SetCaption("Other");
    EXPECT_EQ(told, "changed ");
    mForm->Refresh();
    EXPECT_EQ(told, "changed changed refreshed ");
}

}
}
