#pragma once

#include "track/wayland/WaylandConnection.h"

#include <chrono>
#include <optional>

namespace tempodial {

/// The time without input as a compositor tells it: when nobody has been there for so long, and when somebody is again.
class WaylandIdle
{
public:
    /// Takes a connection that lives longer, and after how long the compositor is to tell.
    WaylandIdle(const WaylandConnection& connection, std::chrono::milliseconds notice);
    ~WaylandIdle();
    WaylandIdle(const WaylandIdle&) = delete;
    WaylandIdle& operator=(const WaylandIdle&) = delete;

    /// True when the compositor tells it.
    bool IsTold() const { return mNotification != nullptr; }
    /// The time since the last input: none while it is shorter than what the compositor tells.
    std::optional<std::chrono::milliseconds> Time() const;

private:
    using Clock = std::chrono::steady_clock;

    static void OnIdled(void* self, wl_proxy* notification);
    static void OnResumed(void* self, wl_proxy* notification);

    std::chrono::milliseconds mNotice;
    wl_proxy* mSeat = nullptr;
    wl_proxy* mNotifier = nullptr;
    wl_proxy* mNotification = nullptr;
    /// When the last input was, while nobody is there.
    std::optional<Clock::time_point> mLastInput;
};

}
