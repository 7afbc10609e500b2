#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>
#include <xcb/sync.h>
#include <xcb/xcb.h>

namespace tempodial {

/// Is told by the server when a time without input ends, so that nobody has to ask meanwhile. Where the server doesn't
/// tell, it has to be asked.
class X11IdleWatch
{
public:
    /// Takes an open connection, and after how long without input such a time is one.
    X11IdleWatch(xcb_connection_t* connection, std::chrono::milliseconds notice);

    /// Takes an event; one of another kind is left alone.
    void Take(const xcb_generic_event_t& event);
    /// The time without input; nothing while there is none, and when it is time to ask whether it still goes on.
    std::optional<std::chrono::milliseconds> Idle() const;
    /// The server was asked, and said that so long nothing has come.
    void Asked(std::chrono::milliseconds idle);

private:
    using Clock = std::chrono::steady_clock;

    xcb_sync_counter_t CounterOf(std::string_view name) const;
    void MakeAlarm(xcb_sync_counter_t counter) const;

    xcb_connection_t* mConnection;
    std::chrono::milliseconds mNotice;
    /// The kind of the event that the alarm sends, 0 when there is none.
    std::uint8_t mAlarmEvent = 0;
    /// The last input, during a time without any.
    std::optional<Clock::time_point> mInput;
    Clock::time_point mAskedAt = Clock::now();
};

}
