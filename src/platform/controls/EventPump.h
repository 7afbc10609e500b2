#pragma once

namespace tempodial {

/// The one point at which a job lets pending messages be processed.
class EventPump
{
public:
    virtual ~EventPump() = default;

    /// Handles everything that is waiting: clicks, window events, notifications of the store.
    virtual void ProcessPending() = 0;
};

}
