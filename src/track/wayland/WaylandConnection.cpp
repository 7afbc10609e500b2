#include "track/wayland/WaylandConnection.h"

#include <array>
#include <climits>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace tempodial {

WaylandConnection::WaylandConnection()
    : mDisplay(::wl_display_connect(nullptr))
{
    if (mDisplay == nullptr) {
        return;
    }
    static constexpr wl_registry_listener Listener { OnGlobal, OnGlobalRemove };
    mRegistry = ::wl_display_get_registry(mDisplay);
    ::wl_registry_add_listener(mRegistry, &Listener, this);
    Await();
}

WaylandConnection::~WaylandConnection()
{
    if (mDisplay != nullptr) {
        ::wl_registry_destroy(mRegistry);
        ::wl_display_disconnect(mDisplay);
    }
}

bool WaylandConnection::Dispatch() const
{
    while (::wl_display_prepare_read(mDisplay) != 0) {
        if (::wl_display_dispatch_pending(mDisplay) < 0) {
            return false;
        }
    }
    ::wl_display_flush(mDisplay);
    pollfd waited { Descriptor(), POLLIN, 0 };
    if (::poll(&waited, 1, 0) > 0) {
        if (::wl_display_read_events(mDisplay) < 0) {
            return false;
        }
    } else {
        ::wl_display_cancel_read(mDisplay);
    }
    const bool isThere = ::wl_display_dispatch_pending(mDisplay) >= 0 && ::wl_display_get_error(mDisplay) == 0;
    ::wl_display_flush(mDisplay);
    return isThere;
}

bool WaylandConnection::Await() const
{
    return ::wl_display_roundtrip(mDisplay) >= 0;
}

wl_proxy* WaylandConnection::Bind(const wl_interface& interface) const
{
    const auto name = mNames.find(interface.name);
    if (name == mNames.end()) {
        return nullptr;
    }
    return static_cast<wl_proxy*>(::wl_registry_bind(mRegistry, name->second, &interface, 1));
}

std::string WaylandConnection::Program() const
{
    ucred peer {};
    socklen_t size = sizeof peer;
    if (::getsockopt(Descriptor(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) {
        return {};
    }
    std::array<char, PATH_MAX> path {};
    const auto link = "/proc/" + std::to_string(peer.pid) + "/exe";
    const auto length = ::readlink(link.c_str(), path.data(), path.size());
    const std::string_view program(path.data(), length < 0 ? 0 : static_cast<std::size_t>(length));
    return std::string(program.substr(program.rfind('/') + 1));
}

void WaylandConnection::OnGlobal(
    void* self, wl_registry* /*registry*/, std::uint32_t name, const char* interface, std::uint32_t /*version*/)
{
    static_cast<WaylandConnection*>(self)->mNames.emplace(interface, name);
}

void WaylandConnection::OnGlobalRemove(void* /*self*/, wl_registry* /*registry*/, std::uint32_t /*name*/) { }

}
