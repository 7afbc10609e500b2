#pragma once

#include "forms/ControlState.h"

namespace tempodial {

/// A control as a plain model: what all kinds have in common.
template <class Interface> class ControlModel : public Interface, public ControlState
{
public:
    using ControlState::ControlState;

    bool Enabled() const override { return mIsEnabled; }
    void SetEnabled(bool enabled) override { Change(mIsEnabled, enabled); }
    bool Visible() const override { return mIsVisible; }
    void SetVisible(bool visible) override { Change(mIsVisible, visible); }
};

}
