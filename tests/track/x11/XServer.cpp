#include "track/x11/XServer.h"

#include "track/x11/X11Connection.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace tempodial {

XServer::XServer(Manager manager)
    : mServer({ "Xvfb", "-displayfd", "9", "-screen", "0", "800x600x24", "-nolisten", "tcp", "-noreset" }, {}, 9)
    , mDisplay(":" + mServer.ReadLine())
{
    if (mDisplay == ":") {
        throw std::runtime_error("Xvfb doesn't start: install the packages that ./check does");
    }
    ::setenv("DISPLAY", mDisplay.c_str(), 1);
    ::unsetenv("WAYLAND_DISPLAY");
    if (manager == Manager::Openbox) {
        mManager.emplace(std::vector<std::string> { "openbox", "--sm-disable" });
        WaitForManager();
    }
}

XServer::~XServer()
{
    ::unsetenv("DISPLAY");
}

void XServer::WaitForManager() const
{
    // It sleeps over requests that come before it is ready, so it is asked again until it does something.
    const X11Connection connection;
    const auto desktops = connection.Atom("_NET_NUMBER_OF_DESKTOPS");
    constexpr std::uint32_t Asked = 2;
    xcb_client_message_event_t message {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = connection.Root();
    message.type = desktops;
    message.data.data32[0] = Asked;
    for (int i = 0; i < 1000; ++i) {
        const auto told = connection.Property(connection.Root(), desktops);
        if (told && told->Number() == Asked) {
            return;
        }
        ::xcb_send_event(connection.Get(), 0, connection.Root(),
            XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
            reinterpret_cast<char*>(&message));
        ::xcb_flush(connection.Get());
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw std::runtime_error("openbox doesn't start");
}

void XServer::Press(const std::string& key) const
{
    StartedProcess({ "xdotool", "key", key }).Wait();
}

}
