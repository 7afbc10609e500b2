#pragma once

#include <cstdint>
#include <wayland-client.h>

namespace tempodial {

// What is used of protocols that aren't the library's own: the interfaces as it wants to know them, and the numbers of
// their requests. Windows are those of wlr-foreign-toplevel-management in version 1, times without input those of
// ext-idle-notify or of the older one that KWin brought.

extern const wl_interface ToplevelManagerInterface;
extern const wl_interface ToplevelInterface;
extern const wl_interface IdleNotifierInterface;
extern const wl_interface IdleNotificationInterface;
extern const wl_interface OldIdleInterface;
extern const wl_interface OldIdleTimeoutInterface;

inline constexpr std::uint32_t ToplevelDestroy = 7;
inline constexpr std::uint32_t IdleNotifierGetNotification = 1;
inline constexpr std::uint32_t OldIdleGetTimeout = 0;

/// The state of a window that is in front.
inline constexpr std::uint32_t ToplevelActivated = 2;

/// Who hears of windows.
struct ToplevelManagerListener
{
    void (*toplevel)(void* data, wl_proxy* manager, wl_proxy* toplevel);
    void (*finished)(void* data, wl_proxy* manager);
};

/// Who hears of one window.
struct ToplevelListener
{
    void (*title)(void* data, wl_proxy* toplevel, const char* title);
    void (*appId)(void* data, wl_proxy* toplevel, const char* appId);
    void (*outputEnter)(void* data, wl_proxy* toplevel, wl_output* output);
    void (*outputLeave)(void* data, wl_proxy* toplevel, wl_output* output);
    void (*state)(void* data, wl_proxy* toplevel, wl_array* states);
    void (*done)(void* data, wl_proxy* toplevel);
    void (*closed)(void* data, wl_proxy* toplevel);
};

/// Who hears that nobody is there any more, and that somebody is again, from either protocol.
struct IdleListener
{
    void (*idled)(void* data, wl_proxy* notification);
    void (*resumed)(void* data, wl_proxy* notification);
};

/// Lets a listener, which lives as long, hear what comes to an object.
template <class Listener> void Listen(wl_proxy* proxy, const Listener& listener, void* data)
{
    // The library calls each by its signature; this is how its own generated code hands them over.
    ::wl_proxy_add_listener(proxy, reinterpret_cast<void (**)()>(const_cast<Listener*>(&listener)), data); // NOLINT
}

}
