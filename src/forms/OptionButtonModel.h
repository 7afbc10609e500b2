#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/OptionButton.h"

#include <string>
#include <utility>

namespace tempodial {

/// An option button as a plain model, not chosen at first. Those of one form are a group, so the form knows the one
/// chosen.
class OptionButtonModel final : public ControlModel<OptionButton>
{
public:
    using ControlModel::ControlModel;

    std::string Caption() const override { return mText; }
    void SetCaption(const std::string& caption) override { Change(mText, caption); }
    bool Value() const override { return Frame().ChosenOption() == this; }
    void SetValue(bool value) override
    {
        if (value == Value()) {
            return;
        }
        Frame().SetChosenOption(value ? this : nullptr);
        Changed();
        if (value) {
            mEvents.Raise(&OptionButtonEvents::Click);
        }
    }
    Subscription Subscribe(OptionButtonEvents events) override { return mEvents.Subscribe(std::move(events)); }
    void Reset() override
    {
        ControlState::Reset();
        Frame().SetChosenOption(nullptr);
    }

    /// A person chooses the button, which gives up the others; one that can't be worked fails (5).
    void Choose()
    {
        CheckCanBeWorked();
        SetValue(true);
    }

private:
    EventSource<OptionButtonEvents> mEvents;
};

}
