#pragma once

#include "base/Ref.h"
#include "platform/controls/EventPump.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace tempodial {

/// The moments at which the add-in lets messages be processed: after what the host has to tell, what was put off to
/// that moment is done.
class DriverEventPump final : public EventPump
{
public:
    explicit DriverEventPump(Ref<EventPump> inner)
        : mInner(std::move(inner))
    {
    }

    void ProcessPending() override;

    /// Puts something off to a moment counted from now, the next one being 1; what waits for one moment is done in
    /// order.
    void Defer(std::int64_t moments, std::function<void()> action);

private:
    struct Deferred
    {
        std::int64_t moment;
        std::function<void()> action;
    };

    Ref<EventPump> mInner;
    std::vector<Deferred> mDeferred;
    std::int64_t mMoments = 0;
};

}
