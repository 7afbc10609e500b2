#pragma once

#include "platform/commandbars/CommandBarControl.h"

namespace tempodial {

class CommandBarControls;

/// A menu of a command bar.
class CommandBarPopup : public CommandBarControl
{
public:
    /// The entries.
    virtual Ref<CommandBarControls> Controls() = 0;
    /// The bar that the entries are on.
    virtual Ref<tempodial::CommandBar> CommandBar() = 0;
};

}
