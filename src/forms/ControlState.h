#pragma once

#include "forms/FormFrame.h"
#include "platform/controls/Form.h"

#include <memory>
#include <string>

namespace tempodial {

/// The state that every control of a form has, whatever its kind.
class ControlState
{
public:
    ControlState(std::shared_ptr<FormFrame> frame, ControlDefinition definition);
    virtual ~ControlState() = default;
    ControlState(const ControlState&) = delete;
    ControlState& operator=(const ControlState&) = delete;

    /// The control as the form's definition has it.
    const ControlDefinition& Definition() const { return mDefinition; }
    /// True when a person can work the control now: it can be seen, on a form that can be seen, and is enabled.
    bool CanBeWorked() const;
    /// Puts the control back to its definition, without any event.
    virtual void Reset();

protected:
    /// Fails (5) unless a person can work the control.
    void CheckCanBeWorked() const;
    FormFrame& Frame() const { return *mFrame; }
    /// Tells whoever draws the form.
    void Changed() const { mFrame->Changed(); }
    /// Takes another value and tells whoever draws the form.
    template <class Value> void Change(Value& target, const Value& value)
    {
        target = value;
        Changed();
    }

    bool mIsEnabled = true;
    bool mIsVisible = true;
    /// The text or caption.
    std::string mText;

private:
    std::shared_ptr<FormFrame> mFrame;
    ControlDefinition mDefinition;
};

}
