#include "track/wayland/WaylandIdle.h"

namespace tempodial {

WaylandIdle::WaylandIdle(const WaylandConnection& connection, std::chrono::milliseconds notice)
    : mNotice(notice)
    , mSeat(connection.Bind(wl_seat_interface))
{
    if (mSeat == nullptr) {
        return;
    }
    const auto milliseconds = static_cast<std::uint32_t>(notice.count());
    mNotifier = connection.Bind(IdleNotifierInterface);
    if (mNotifier != nullptr) {
        mNotification = ::wl_proxy_marshal_flags(
            mNotifier, IdleNotifierGetNotification, &IdleNotificationInterface, 1, 0, nullptr, milliseconds, mSeat);
    } else if (mNotifier = connection.Bind(OldIdleInterface); mNotifier != nullptr) {
        mNotification = ::wl_proxy_marshal_flags(
            mNotifier, OldIdleGetTimeout, &OldIdleTimeoutInterface, 1, 0, nullptr, mSeat, milliseconds);
    }
    if (mNotification != nullptr) {
        static constexpr IdleListener Listener { OnIdled, OnResumed };
        Listen(mNotification, Listener, this);
    }
}

WaylandIdle::~WaylandIdle()
{
    for (auto* proxy : { mNotification, mNotifier, mSeat }) {
        if (proxy != nullptr) {
            ::wl_proxy_destroy(proxy);
        }
    }
}

std::optional<std::chrono::milliseconds> WaylandIdle::Time() const
{
    if (!IsTold()) {
        return std::nullopt;
    }
    if (!mLastInput) {
        return std::chrono::milliseconds(0);
    }
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - *mLastInput);
}

void WaylandIdle::OnIdled(void* self, wl_proxy* /*notification*/)
{
    auto& idle = *static_cast<WaylandIdle*>(self);
    idle.mLastInput = Clock::now() - idle.mNotice;
}

void WaylandIdle::OnResumed(void* self, wl_proxy* /*notification*/)
{
    static_cast<WaylandIdle*>(self)->mLastInput.reset();
}

}
