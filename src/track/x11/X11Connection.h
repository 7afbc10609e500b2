#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

namespace tempodial {

/// What the server answers, which is freed with `free`.
struct FreeAnswer
{
    void operator()(void* answer) const { std::free(answer); } // NOLINT(cppcoreguidelines-no-malloc)
};
template <class Answer> using X11Answer = std::unique_ptr<Answer, FreeAnswer>;

/// What a window says of itself under a name.
struct X11Property
{
    xcb_atom_t type = XCB_ATOM_NONE;
    int format = 0;
    std::string bytes;

    /// The first of its numbers of 32 bits; nothing when it has none.
    std::optional<std::uint32_t> Number() const;
    /// True when a number is among them.
    bool Has(std::uint32_t number) const;
};

/// What is known of a window.
struct X11Look
{
    bool isShown = false;
    /// What it says under each of the names in question; nothing when it is gone.
    std::vector<std::optional<X11Property>> properties;
};

/// A connection with the X server that DISPLAY names.
class X11Connection
{
public:
    /// Connects; `IsOpen` says whether that has worked.
    X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    ~X11Connection();

    bool IsOpen() const { return ::xcb_connection_has_error(mConnection) == 0; }
    xcb_connection_t* Get() const { return mConnection; }
    xcb_window_t Root() const { return mRoot; }

    /// The number of a name, 0 when the server is gone.
    xcb_atom_t Atom(const std::string& name) const;
    /// What a window says under a name; nothing when it is gone.
    std::optional<X11Property> Property(xcb_window_t window, xcb_atom_t name) const;
    /// Asks for the events of a window that are of use, or for none of them any more.
    void Watch(xcb_window_t window, std::uint32_t events) const;
    /// Looks at a window and at what it says under some names, which takes one answer's time.
    X11Look Look(xcb_window_t window, std::span<const xcb_atom_t> names) const;
    bool HasExtension(const std::string& name) const;
    /// Milliseconds since the last input; nothing when the server can't tell.
    std::optional<std::uint32_t> IdleMilliseconds() const;
    /// The next event that has come; nothing when there is none.
    X11Answer<xcb_generic_event_t> NextEvent() const;

private:
    xcb_get_property_cookie_t Ask(xcb_window_t window, xcb_atom_t name) const;
    std::optional<X11Property> Answer(xcb_get_property_cookie_t request) const;

    xcb_connection_t* mConnection;
    xcb_window_t mRoot = XCB_WINDOW_NONE;
    bool mHasScreenSaver = false;
};

}
