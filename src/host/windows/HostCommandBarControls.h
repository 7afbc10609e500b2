#pragma once

#include "host/windows/HostCommandBar.h"
#include "platform/commandbars/CommandBarControls.h"

#include <cstdint>
#include <string>
#include <utility>

namespace tempodial {

/// The controls of a bar, which they keep alive.
class HostCommandBarControls final : public CommandBarControls
{
public:
    explicit HostCommandBarControls(Ref<HostCommandBar> bar)
        : mBar(std::move(bar))
    {
    }

    std::int32_t Count() override;
    Ref<CommandBarControl> Item(std::int32_t index) override;
    Ref<CommandBarControl> ItemCaptioned(const std::string& caption) override;
    Ref<CommandBarControl> Add(const CommandBarAddition& addition) override;

private:
    Ref<HostCommandBar> mBar;
};

}
