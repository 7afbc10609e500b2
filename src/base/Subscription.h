#pragma once

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace tempodial {

/// A running subscription; it ends with this object.
class Subscription
{
public:
    Subscription() = default;
    explicit Subscription(std::shared_ptr<void> listener)
        : mListener(std::move(listener))
    {
    }

    /// True while it runs.
    explicit operator bool() const noexcept { return mListener != nullptr; }
    /// Ends it; harmless when it has ended.
    void End() { mListener.reset(); }

private:
    std::shared_ptr<void> mListener;
};

/// One object's events: a list of listeners, each a struct of callbacks of which any may be empty.
template <class Events> class EventSource
{
public:
    /// Subscribes until the result ends.
    Subscription Subscribe(Events events)
    {
        auto listener = std::make_shared<Events>(std::move(events));
        std::erase_if(mListeners, [](const auto& known) { return known.expired(); });
        mListeners.push_back(listener);
        return Subscription(std::move(listener));
    }

    /// Calls one callback of every listener that was subscribed before and still is; the list is copied first.
    template <class Member, class... Args> void Raise(Member member, Args&&... args) const
    {
        const auto listeners = mListeners;
        for (const auto& known : listeners) {
            const auto listener = known.lock();
            if (listener && (*listener).*member) {
                ((*listener).*member)(args...);
            }
        }
    }

private:
    std::vector<std::weak_ptr<Events>> mListeners;
};

/// A callback onto an owner's member that holds the owner alive while it runs and does nothing once the owner is gone.
template <class Owner, class Result, class... Args>
auto Handler(const std::shared_ptr<Owner>& owner, Result (Owner::*method)(Args...))
{
    return [weak = std::weak_ptr<Owner>(owner), method](Args... args) {
        if (const auto held = weak.lock()) {
            (held.get()->*method)(std::forward<Args>(args)...);
        }
    };
}

}
