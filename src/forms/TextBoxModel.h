#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/TextBox.h"

#include <string>
#include <utility>

namespace tempodial {

/// A text box as a plain model.
class TextBoxModel final : public ControlModel<TextBox>
{
public:
    using ControlModel::ControlModel;

    std::string Text() const override { return mText; }
    void SetText(const std::string& text) override
    {
        if (text != mText) {
            Change(mText, text);
            mEvents.Raise(&TextBoxEvents::Change);
        }
    }
    Subscription Subscribe(TextBoxEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// A person types a text in the place of the present one; a box that can't be worked fails (5).
    void Type(const std::string& text)
    {
        CheckCanBeWorked();
        SetText(text);
    }

private:
    EventSource<TextBoxEvents> mEvents;
};

}
