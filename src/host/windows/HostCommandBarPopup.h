#pragma once

#include "host/windows/HostControl.h"
#include "platform/commandbars/CommandBarPopup.h"

namespace tempodial {

/// A menu of a command bar, with a bar of its own that holds the entries.
class HostCommandBarPopup final : public HostControl<CommandBarPopup>
{
public:
    explicit HostCommandBarPopup(State state);

    Ref<CommandBarControls> Controls() override;
    Ref<tempodial::CommandBar> CommandBar() override;

    Ref<HostCommandBarControl> Duplicate() const override;
    void PutOn(const Ref<HostCommandBar>& bar) override;
    void MarkGone() override;
    /// The bar that the entries are on.
    const Ref<HostCommandBar>& Menu() const { return mMenu; }

private:
    Ref<HostCommandBar> mMenu;
};

}
