#pragma once

#include "track/wayland/WaylandProtocols.h"

#include <cstdint>
#include <map>
#include <string>

namespace tempodial {

/// A connection with the compositor that WAYLAND_DISPLAY names.
class WaylandConnection
{
public:
    /// Connects, and asks what the compositor has; `IsOpen` says whether that has worked.
    WaylandConnection();
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;

    bool IsOpen() const { return mDisplay != nullptr; }
    int Descriptor() const { return ::wl_display_get_fd(mDisplay); }
    /// Takes what has come and sends what waits, without waiting; false when the compositor is gone.
    bool Dispatch() const;
    /// Waits until all that was asked is answered; false when the compositor is gone.
    bool Await() const;

    /// An object of an interface, in its first version; nothing when the compositor doesn't have it.
    wl_proxy* Bind(const wl_interface& interface) const;
    /// What the compositor's program is called, empty when that can't be told.
    std::string Program() const;

private:
    static void OnGlobal(
        void* self, wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t version);
    static void OnGlobalRemove(void* self, wl_registry* registry, std::uint32_t name);

    wl_display* mDisplay;
    wl_registry* mRegistry = nullptr;
    /// The first of each that the compositor has.
    std::map<std::string, std::uint32_t> mNames;
};

}
