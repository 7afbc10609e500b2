#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/Button.h"

#include <string>
#include <utility>

namespace tempodial {

/// A push button as a plain model.
class ButtonModel final : public ControlModel<Button>
{
public:
    using ControlModel::ControlModel;

    std::string Caption() const override { return mText; }
    void SetCaption(const std::string& caption) override { Change(mText, caption); }
    Subscription Subscribe(ButtonEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// A person clicks the button; one that can't be worked fails (5).
    void Click() const
    {
        CheckCanBeWorked();
        mEvents.Raise(&ButtonEvents::Click);
    }

private:
    EventSource<ButtonEvents> mEvents;
};

}
