#include "engine/dialogs/ProgressBarForm.h"

#include "forms/ButtonModel.h"
#include "forms/FormModelFactory.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tempodial {
namespace {

/// Counts the moments at which messages may be processed, and does one thing at the next of them.
class Pump final : public EventPump
{
public:
    void ProcessPending() override
    {
        ++mCount;
        if (const auto then = std::exchange(mThen, nullptr)) {
            then();
        }
    }

    int mCount = 0;
    std::function<void()> mThen;
};

class ProgressBarFormTest : public testing::Test
{
protected:
    ProgressBarFormTest()
    {
        const auto platform = MakeRef<Platform>();
        platform->forms = mForms;
        platform->eventPump = mPump;
        mPlatform = platform;
        mProgress = std::make_unique<ProgressBarForm>(mPlatform);
        mProgress->Initialise("Tempodial", "Loading activities", "loading Tuesday", "Stop", 50, false);
    }

    Ref<FormModel> Model() const { return mForms->Forms().back(); }
    Ref<ButtonModel> Button(const std::string& name) const { return Model()->Control(name).As<ButtonModel>(); }
    std::string Text(const std::string& name) const { return Model()->Control(name).As<Label>()->Caption(); }
    Ref<ProgressBar> Bar() const { return Model()->Control("ProgressBar1").As<ProgressBar>(); }

    Ref<FormModelFactory> mForms = MakeRef<FormModelFactory>();
    Ref<Pump> mPump = MakeRef<Pump>();
    Ref<const Platform> mPlatform;
    std::unique_ptr<ProgressBarForm> mProgress;
};

TEST_F(ProgressBarFormTest, Constructed_Form_HasItsTitleAndIsNotShown)
{
    const ProgressBarForm progress(mPlatform);
    EXPECT_EQ(Model()->Definition().className, "ProgressBarForm");
    EXPECT_EQ(Model()->Caption(), "Loading activities");
    EXPECT_EQ(Button("LoadCancel")->Caption(), "&Cancel");
    EXPECT_EQ(Button("LoadCancel")->Definition().role, ButtonRole::Cancel);
    EXPECT_FALSE(Model()->Visible());
    EXPECT_FALSE(progress.IsCancelled());
}

TEST_F(ProgressBarFormTest, Initialise_Texts_StandOnTheForm)
{
    EXPECT_EQ(Model()->Caption(), "Tempodial");
    EXPECT_EQ(Text("Label1"), "Loading activities");
    EXPECT_EQ(Text("Label2"), "loading Tuesday");
    EXPECT_EQ(Bar()->Min(), 0);
    EXPECT_EQ(Bar()->Max(), 50);
    EXPECT_EQ(Bar()->Value(), 0);
    EXPECT_FALSE(Model()->Visible());
}

TEST_F(ProgressBarFormTest, Initialise_ButtonTextAndState_ReachOnlyTheButtonThatCanNotBeSeen)
{
    mProgress->Show();
    EXPECT_EQ(Button("CancelButton")->Caption(), "Stop");
    EXPECT_FALSE(Button("CancelButton")->Enabled());
    EXPECT_EQ(Button("LoadCancel")->Caption(), "&Cancel");
    EXPECT_TRUE(Button("LoadCancel")->CanBeWorked());

    mProgress->Initialise("Tempodial", "", "", "Stop", 50, true);
    EXPECT_TRUE(Button("CancelButton")->Enabled());
    EXPECT_FALSE(Button("CancelButton")->CanBeWorked());
}

TEST_F(ProgressBarFormTest, Initialise_SecondTime_StartsTheBarAnew)
{
    mProgress->Update(50);
    mProgress->Initialise("Tempodial", "", "", "", 10, true);
    EXPECT_EQ(Bar()->Max(), 10);
    EXPECT_EQ(Bar()->Value(), 0);
}

TEST_F(ProgressBarFormTest, Update_Value_MovesTheBarAndPumpsOnce)
{
    mProgress->Show();
    int changes = 0;
    const auto subscription = Model()->SubscribeToChanges({ .Changed = [&] { ++changes; } });
    mProgress->Update(7);
    EXPECT_EQ(Bar()->Value(), 7);
    EXPECT_EQ(mPump->mCount, 1);
    EXPECT_GT(changes, 0);
}

TEST_F(ProgressBarFormTest, Update_AboveTheLimit_ShowsAFullBar)
{
    mProgress->Update(51);
    EXPECT_EQ(Bar()->Value(), 50);
    EXPECT_EQ(mPump->mCount, 1);
}

TEST_F(ProgressBarFormTest, Update_Negative_Fails)
{
    mProgress->Update(3);
    EXPECT_EQ(FailureNumber([&] { mProgress->Update(-1); }), 380);
    EXPECT_EQ(Bar()->Value(), 3);
    EXPECT_EQ(mPump->mCount, 1);
}

TEST_F(ProgressBarFormTest, Cancel_InsideOfUpdate_HidesTheFormAndIsRememberedUntilInitialise)
{
    mProgress->Show();
    EXPECT_FALSE(mProgress->IsCancelled());
    mPump->mThen = [this] { Button("LoadCancel")->Click(); };
    mProgress->Update(1);
    EXPECT_TRUE(mProgress->IsCancelled());
    EXPECT_FALSE(Model()->Visible());

    mProgress->Update(2);
    EXPECT_TRUE(mProgress->IsCancelled());
    EXPECT_EQ(Bar()->Value(), 2) << "the job goes on until its next test";
    EXPECT_FALSE(Model()->Visible());

    mProgress->Initialise("Tempodial", "", "", "", 50, true);
    EXPECT_FALSE(mProgress->IsCancelled());
}

TEST_F(ProgressBarFormTest, CloseByFrame_ShownForm_CountsAsCancel)
{
    mProgress->Show();
    mProgress->Update(5);
    EXPECT_TRUE(Model()->CloseByFrame());
    EXPECT_TRUE(mProgress->IsCancelled());
    EXPECT_FALSE(Model()->Visible());
    EXPECT_EQ(Bar()->Value(), 5) << "hidden, not unloaded";
    mProgress->Update(6);
    EXPECT_EQ(Bar()->Value(), 6);
}

TEST_F(ProgressBarFormTest, Show_AfterCancel_BringsTheFormBack)
{
    mProgress->Show();
    Button("LoadCancel")->Click();
    mProgress->Show();
    EXPECT_TRUE(Model()->Visible());
    EXPECT_TRUE(mProgress->IsCancelled());
}

TEST_F(ProgressBarFormTest, Unload_ShownForm_TakesItOffTheScreen)
{
    mProgress->Show();
    mProgress->Unload();
    EXPECT_FALSE(Model()->Visible());
    EXPECT_EQ(mForms->NewestVisible("ProgressBarForm"), Ref<FormModel>());
    EXPECT_EQ(FailureNumber([&] { Button("LoadCancel")->Click(); }), 5);
    EXPECT_FALSE(mProgress->IsCancelled());
}

TEST_F(ProgressBarFormTest, Destroyed_InItsOwnClick_LetsTheClickFinish)
{
    mProgress->Show();
    const auto button = Button("LoadCancel");
    const auto subscription = Model()->SubscribeToChanges({ .Changed = [this] { mProgress.reset(); } });
    button->Click();
    EXPECT_FALSE(mProgress);
    EXPECT_FALSE(button->CanBeWorked());
    EXPECT_TRUE(mForms->Forms().empty());
}

TEST_F(ProgressBarFormTest, Destroyed_Form_IsLetGo)
{
    const auto button = Button("LoadCancel");
    mProgress->Show();
    mProgress.reset();
    EXPECT_TRUE(mForms->Forms().empty());
    EXPECT_EQ(FailureNumber([&] { button->Click(); }), 5);
}

}
}
