#include "cli/CommandLineEventPump.h"

#include "cli/Interruption.h"
#include "forms/ButtonModel.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"

#include <utility>

namespace tempodial {

CommandLineEventPump::CommandLineEventPump(
    Ref<EventPump> inner, Ref<FormModelFactory> forms, std::unique_ptr<ProgressLine> line)
    : mInner(std::move(inner))
    , mForms(std::move(forms))
    , mLine(std::move(line))
{
}

void CommandLineEventPump::ProcessPending()
{
    mInner->ProcessPending();
    const auto form = mForms->NewestVisible("ProgressBarForm");
    if (form && Interruption::IsRequested()) {
        form->Control("LoadCancel").As<ButtonModel>()->Click();
    }
    if (!mLine) {
        return;
    }
    if (form && form->Visible()) {
        const auto bar = form->Control("ProgressBar1").As<ProgressBar>();
        mLine->Draw(form->Control("Label2").As<Label>()->Caption(), bar->Value(), bar->Max());
    } else {
        mLine->Clear();
    }
}

}
