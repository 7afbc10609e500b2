#include "track/x11/X11Connection.h"

#include <cstring>

namespace tempodial {

namespace {

/// The most that is read of a property, in units of four bytes.
constexpr std::uint32_t MostUnits = 16384;
constexpr int BitsOfNumbers = 32;

}

std::optional<std::uint32_t> X11Property::Number() const
{
    std::uint32_t number = 0;
    if (format != BitsOfNumbers || bytes.size() < sizeof number) {
        return std::nullopt;
    }
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

bool X11Property::Has(std::uint32_t number) const
{
    std::uint32_t other = 0;
    for (std::size_t at = 0; format == BitsOfNumbers && at + sizeof other <= bytes.size(); at += sizeof other) {
        std::memcpy(&other, bytes.data() + at, sizeof other);
        if (other == number) {
            return true;
        }
    }
    return false;
}

X11Connection::X11Connection()
{
    int number = 0;
    mConnection = ::xcb_connect(nullptr, &number);
    if (!IsOpen()) {
        return;
    }
    auto screen = ::xcb_setup_roots_iterator(::xcb_get_setup(mConnection));
    for (; number > 0 && screen.rem > 1; --number) {
        ::xcb_screen_next(&screen);
    }
    mRoot = screen.data->root;
    const auto* extension = ::xcb_get_extension_data(mConnection, &xcb_screensaver_id);
    mHasScreenSaver = extension != nullptr && extension->present != 0;
}

X11Connection::~X11Connection()
{
    ::xcb_disconnect(mConnection);
}

xcb_atom_t X11Connection::Atom(const std::string& name) const
{
    const auto request = ::xcb_intern_atom(mConnection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const X11Answer<xcb_intern_atom_reply_t> answer(::xcb_intern_atom_reply(mConnection, request, nullptr));
    return answer ? answer->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::optional<X11Property> X11Connection::Property(xcb_window_t window, xcb_atom_t name) const
{
    return Answer(Ask(window, name));
}

X11Look X11Connection::Look(xcb_window_t window, std::span<const xcb_atom_t> names) const
{
    const auto attributes = ::xcb_get_window_attributes(mConnection, window);
    std::vector<xcb_get_property_cookie_t> requests;
    requests.reserve(names.size());
    for (const auto name : names) {
        requests.push_back(Ask(window, name));
    }
    X11Look look;
    xcb_generic_error_t* failure = nullptr;
    const X11Answer<xcb_get_window_attributes_reply_t> answer(
        ::xcb_get_window_attributes_reply(mConnection, attributes, &failure));
    const X11Answer<xcb_generic_error_t> error(failure);
    look.isShown = answer && answer->map_state == XCB_MAP_STATE_VIEWABLE;
    look.properties.reserve(names.size());
    for (const auto request : requests) {
        look.properties.push_back(Answer(request));
    }
    return look;
}

xcb_get_property_cookie_t X11Connection::Ask(xcb_window_t window, xcb_atom_t name) const
{
    return ::xcb_get_property(mConnection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, MostUnits);
}

std::optional<X11Property> X11Connection::Answer(xcb_get_property_cookie_t request) const
{
    xcb_generic_error_t* failure = nullptr;
    const X11Answer<xcb_get_property_reply_t> answer(::xcb_get_property_reply(mConnection, request, &failure));
    const X11Answer<xcb_generic_error_t> error(failure);
    if (!answer) {
        return std::nullopt;
    }
    const auto* bytes = static_cast<const char*>(::xcb_get_property_value(answer.get()));
    const auto size = static_cast<std::size_t>(::xcb_get_property_value_length(answer.get()));
    return X11Property { answer->type, answer->format, std::string(bytes, size) };
}

void X11Connection::Watch(xcb_window_t window, std::uint32_t events) const
{
    // A window that is gone is no fault: the error comes as an event that nobody looks at.
    ::xcb_change_window_attributes(mConnection, window, XCB_CW_EVENT_MASK, &events);
    ::xcb_flush(mConnection);
}

bool X11Connection::HasExtension(const std::string& name) const
{
    const auto request = ::xcb_query_extension(mConnection, static_cast<std::uint16_t>(name.size()), name.c_str());
    const X11Answer<xcb_query_extension_reply_t> answer(::xcb_query_extension_reply(mConnection, request, nullptr));
    return answer && answer->present != 0;
}

std::optional<std::uint32_t> X11Connection::IdleMilliseconds() const
{
    if (!mHasScreenSaver) {
        return std::nullopt;
    }
    const auto request = ::xcb_screensaver_query_info(mConnection, mRoot);
    const X11Answer<xcb_screensaver_query_info_reply_t> answer(
        ::xcb_screensaver_query_info_reply(mConnection, request, nullptr));
    return answer ? std::optional(answer->ms_since_user_input) : std::nullopt;
}

X11Answer<xcb_generic_event_t> X11Connection::NextEvent() const
{
    return X11Answer<xcb_generic_event_t>(::xcb_poll_for_event(mConnection));
}

}
