#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/CheckBox.h"

#include <string>
#include <utility>

namespace tempodial {

/// A check box as a plain model, not ticked at first.
class CheckBoxModel final : public ControlModel<CheckBox>
{
public:
    using ControlModel::ControlModel;

    std::string Caption() const override { return mText; }
    void SetCaption(const std::string& caption) override { Change(mText, caption); }
    bool Value() const override { return mIsTicked; }
    void SetValue(bool value) override
    {
        if (value != mIsTicked) {
            Change(mIsTicked, value);
            mEvents.Raise(&CheckBoxEvents::Click);
        }
    }
    Subscription Subscribe(CheckBoxEvents events) override { return mEvents.Subscribe(std::move(events)); }
    void Reset() override
    {
        ControlState::Reset();
        mIsTicked = false;
    }

    /// A person ticks the box or takes the tick away; a box that can't be worked fails (5).
    void Check(bool ticked)
    {
        CheckCanBeWorked();
        SetValue(ticked);
    }

private:
    bool mIsTicked = false;
    EventSource<CheckBoxEvents> mEvents;
};

}
