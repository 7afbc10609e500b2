#include "track/x11/XWindow.h"

namespace tempodial {

namespace {

constexpr std::uint8_t BitsOfBytes = 8;
constexpr std::uint8_t BitsOfNumbers = 32;

}

XWindow::XWindow(const X11Connection& connection, std::string_view words)
    : mConnection(connection)
    , mNumber(::xcb_generate_id(connection.Get()))
{
    ::xcb_create_window(mConnection.Get(), XCB_COPY_FROM_PARENT, mNumber, mConnection.Root(), 0, 0, 200, 100, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    Say("WM_CLASS", "STRING", words);
    ::xcb_map_window(mConnection.Get(), mNumber);
    ::xcb_flush(mConnection.Get());
}

XWindow::~XWindow()
{
    ::xcb_destroy_window(mConnection.Get(), mNumber);
    ::xcb_flush(mConnection.Get());
}

void XWindow::Say(const std::string& name, const std::string& type, std::string_view bytes) const
{
    ::xcb_change_property(mConnection.Get(), XCB_PROP_MODE_REPLACE, mNumber, mConnection.Atom(name),
        mConnection.Atom(type), BitsOfBytes, static_cast<std::uint32_t>(bytes.size()), bytes.data());
    ::xcb_flush(mConnection.Get());
}

void XWindow::SayNumber(const std::string& name, const std::string& type, std::uint32_t number) const
{
    ::xcb_change_property(mConnection.Get(), XCB_PROP_MODE_REPLACE, mNumber, mConnection.Atom(name),
        mConnection.Atom(type), BitsOfNumbers, 1, &number);
    ::xcb_flush(mConnection.Get());
}

void XWindow::Activate() const
{
    xcb_client_message_event_t message {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = BitsOfNumbers;
    message.window = mNumber;
    message.type = mConnection.Atom("_NET_ACTIVE_WINDOW");
    // As a pager asks, who may.
    message.data.data32[0] = 2;
    ::xcb_send_event(mConnection.Get(), 0, mConnection.Root(),
        XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, reinterpret_cast<char*>(&message));
    ::xcb_flush(mConnection.Get());
}

void XWindow::TakeFocus() const
{
    ::xcb_set_input_focus(mConnection.Get(), XCB_INPUT_FOCUS_PARENT, mNumber, XCB_CURRENT_TIME);
    ::xcb_flush(mConnection.Get());
}

}
