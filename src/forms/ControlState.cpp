#include "forms/ControlState.h"

#include "base/Failure.h"

#include <utility>

namespace tempodial {

ControlState::ControlState(std::shared_ptr<FormFrame> frame, ControlDefinition definition)
    : mText(definition.text)
    , mFrame(std::move(frame))
    , mDefinition(std::move(definition))
{
}

bool ControlState::CanBeWorked() const
{
    return mFrame->Visible() && mDefinition.onForm && mIsVisible && mIsEnabled;
}

void ControlState::Reset()
{
    mIsEnabled = true;
    mIsVisible = true;
    mText = mDefinition.text;
}

void ControlState::CheckCanBeWorked() const
{
    if (!CanBeWorked()) {
        throw Failure(Error::InvalidCall);
    }
}

}
