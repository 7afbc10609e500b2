#pragma once

#include "host/windows/HostControl.h"

namespace tempodial {

/// A button with a list at its side, as the host has some; it runs its command and tells nobody of it.
class HostCommandBarSplitButton final : public HostControl<CommandBarControl>
{
public:
    using HostControl::HostControl;

    void Click() override;
    Ref<HostCommandBarControl> Duplicate() const override { return MakeRef<HostCommandBarSplitButton>(Now()); }
};

}
