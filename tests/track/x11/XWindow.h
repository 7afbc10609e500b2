#pragma once

#include "track/x11/X11Connection.h"

#include <string>
#include <string_view>

namespace tempodial {

/// A window of a program that is there for a test.
class XWindow
{
public:
    /// Shows a window of a class, as "instance\0class\0".
    XWindow(const X11Connection& connection, std::string_view words);
    ~XWindow();
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;

    xcb_window_t Number() const { return mNumber; }
    /// Says something under a name, as of a type.
    void Say(const std::string& name, const std::string& type, std::string_view bytes) const;
    void SayNumber(const std::string& name, const std::string& type, std::uint32_t number) const;
    /// Says the title as programs do.
    void SetTitle(std::string_view title) const { Say("_NET_WM_NAME", "UTF8_STRING", title); }
    /// Asks the window manager to bring it in front.
    void Activate() const;
    /// Takes the focus without asking anyone.
    void TakeFocus() const;

private:
    const X11Connection& mConnection;
    xcb_window_t mNumber;
};

}
