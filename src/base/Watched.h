#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"

#include <utility>

namespace tempodial {

/// A reference to an object together with the subscription to its events.
template <class T> class Watched
{
public:
    /// Takes another object and subscribes to it; the former subscription ends. Nothing fails (91) and changes nothing.
    void Set(Ref<T> object, typename T::Events events)
    {
        auto subscription = object->Subscribe(std::move(events));
        mSubscription = std::move(subscription);
        mObject = std::move(object);
    }
    /// Ends the subscription and lets the object go.
    void Clear()
    {
        mSubscription.End();
        mObject = nullptr;
    }

    /// The object; nothing fails (91).
    T* operator->() const { return mObject.operator->(); }
    /// True when there is an object.
    explicit operator bool() const noexcept { return static_cast<bool>(mObject); }
    /// The reference, possibly nothing.
    const Ref<T>& Get() const noexcept { return mObject; }

private:
    Ref<T> mObject;
    Subscription mSubscription;
};

}
