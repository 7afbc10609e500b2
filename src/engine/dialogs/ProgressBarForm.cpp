#include "engine/dialogs/ProgressBarForm.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

FormDefinition ProgressBarDefinition()
{
    return { .className = "ProgressBarForm",
        .title = "Loading activities",
        .rows = { { { .name = "Label1", .kind = ControlKind::Label, .text = "" } },
            { { .name = "Label2", .kind = ControlKind::Label, .text = "" } },
            { { .name = "ProgressBar1", .kind = ControlKind::ProgressBar, .text = "" } },
            { { .name = "LoadCancel", .kind = ControlKind::Button, .text = "&Cancel", .role = ButtonRole::Cancel },
                { .name = "CancelButton", .kind = ControlKind::Button, .text = "", .onForm = false } } } };
}

}

ProgressBarForm::ProgressBarForm(Ref<const Platform> platform)
    : mPlatform(std::move(platform))
    , mForm(mPlatform->forms->Create(ProgressBarDefinition()))
    , mLabel1(mForm->Control("Label1").As<Label>())
    , mLabel2(mForm->Control("Label2").As<Label>())
    , mProgressBar1(mForm->Control("ProgressBar1").As<ProgressBar>())
    , mCancelButton(mForm->Control("CancelButton").As<Button>())
    , mLoadCancelEvents(
          mForm->Control("LoadCancel").As<Button>()->Subscribe({ .Click = [this] { LoadCancel_Click(); } }))
    , mFormEvents(mForm->Subscribe({ .QueryClose = [this](bool& cancel) { QueryClose(cancel); } }))
{
}

void ProgressBarForm::Initialise(const std::string& title, const std::string& line1, const std::string& line2,
    const std::string& buttonText, std::int32_t limit, bool buttonEnabled)
{
    mForm->SetCaption(title);
    mLabel1->SetCaption(line1);
    mLabel2->SetCaption(line2);
    mProgressBar1->SetMin(0);
    mProgressBar1->SetMax(limit);
    mProgressBar1->SetValue(0);
    // kept: text and state reach the button outside of the form; the one that is seen always reads "&Cancel".
    mCancelButton->SetEnabled(buttonEnabled);
    mCancelButton->SetCaption(buttonText);
    mCancelled = false;
}

void ProgressBarForm::Show()
{
    mForm->Show();
}

void ProgressBarForm::Update(std::int32_t value)
{
    mForm->BringToFront();
    mProgressBar1->SetValue(std::min(value, mProgressBar1->Max()));
    mForm->Refresh();
    mPlatform->eventPump->ProcessPending();
}

void ProgressBarForm::Unload()
{
    mForm->Unload();
}

void ProgressBarForm::LoadCancel_Click()
{
    mCancelled = true;
    // Whoever hears of this may drop the job, and this object with it.
    const auto form = mForm;
    form->Hide();
}

void ProgressBarForm::QueryClose(bool& cancel)
{
    // The job goes on until its next test, and its form must stay usable until then.
    cancel = true;
    LoadCancel_Click();
}

}
