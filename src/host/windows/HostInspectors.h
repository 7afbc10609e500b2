#pragma once

#include "base/Failure.h"
#include "base/Ref.h"
#include "platform/objectmodel/Inspector.h"

#include <cstdint>
#include <utility>

namespace tempodial {

/// The inspectors of a host that opens none.
class HostInspectors final : public Inspectors
{
public:
    std::int32_t Count() override { return 0; }
    Ref<Inspector> Item(std::int32_t) override { throw Failure(Error::SubscriptOutOfRange); }
    Subscription Subscribe(InspectorsEvents events) override { return mEvents.Subscribe(std::move(events)); }

private:
    EventSource<InspectorsEvents> mEvents;
};

}
