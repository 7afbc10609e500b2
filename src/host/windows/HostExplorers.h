#pragma once

#include "base/Ref.h"
#include "host/windows/HostExplorer.h"
#include "platform/objectmodel/Explorer.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tempodial {

/// The explorers of the host in the order in which they were opened.
class HostExplorers final : public Explorers
{
public:
    std::int32_t Count() override { return static_cast<std::int32_t>(mOpen.size()); }
    Ref<Explorer> Item(std::int32_t index) override;
    Subscription Subscribe(ExplorersEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Takes a new window in, in front of the others.
    void Add(const Ref<HostExplorer>& explorer);
    /// Brings a window to the front.
    void Activate(const Ref<HostExplorer>& explorer);
    /// Takes a window out, which is gone from then on; the window that was in front before comes to the front.
    void Close(const Ref<HostExplorer>& explorer);
    /// The window in front, nothing when there is none.
    Ref<HostExplorer> Active() const;

private:
    std::vector<Ref<HostExplorer>> mOpen;
    /// The same windows, the one in front last.
    std::vector<Ref<HostExplorer>> mByRecency;
    EventSource<ExplorersEvents> mEvents;
};

}
