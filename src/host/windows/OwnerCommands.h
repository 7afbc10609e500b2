#pragma once

#include "base/Ref.h"
#include "host/store/StoreItem.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace tempodial {

class HostExplorer;
class HostInspector;

/// What the owner of the host does when a person runs those built-in commands that windows can't do by themselves; what
/// isn't set does nothing. Commands are told by their numbers in `BuiltInCommand`.
struct OwnerCommands
{
    /// Print, Find or Help was clicked in a window on a folder.
    std::function<void(const Ref<HostExplorer>& window, std::int32_t command)> InExplorer;
    /// Print or Help was clicked in a window on an item.
    std::function<void(const Ref<HostInspector>& window, std::int32_t command)> InInspector;
    /// The items to which Previous Item or Next Item can lead from a window, the nearest first.
    std::function<std::vector<Ref<StoreItem>>(const Ref<HostInspector>& window, std::int32_t command)> ItemsBeside;
};

}
