#pragma once

#include "base/Subscription.h"

#include <functional>
#include <utility>

namespace tempodial {

/// What whoever draws a part of a window wants to know.
struct ChangeEvents
{
    /// Something that is seen may have changed. It is told while other work goes on, so it is only to be taken note of.
    std::function<void()> Changed;
};

/// Tells of changes of a part of a window; next to nothing while nobody listens.
class ChangeSource
{
public:
    Subscription Subscribe(ChangeEvents events) { return mEvents.Subscribe(std::move(events)); }
    void Tell() const { mEvents.Raise(&ChangeEvents::Changed); }

private:
    EventSource<ChangeEvents> mEvents;
};

}
