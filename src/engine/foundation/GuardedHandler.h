#pragma once

#include "base/Subscription.h"

#include <memory>
#include <utility>

namespace tempodial {

/// A callback onto a handler of the engine, out of which nothing escapes into the host: once the log is gone, also the
/// line of a failure fails.
template <class Owner, class... Args>
auto GuardedHandler(const std::shared_ptr<Owner>& owner, void (Owner::*handler)(Args...))
{
    return [call = Handler(owner, handler)](Args... args) {
        try {
            call(std::forward<Args>(args)...);
        } catch (...) {
            return;
        }
    };
}

}
