#pragma once

#include "track/DesktopSource.h"
#include "track/x11/X11Connection.h"
#include "track/x11/X11IdleWatch.h"

#include <chrono>
#include <optional>
#include <string>

namespace tempodial {

/// A desktop of X11 with any window manager that tells the active window; without one, the window with the focus.
class X11Desktop final : public DesktopSource
{
public:
    /// Connects; nothing when there is no server, or when it only serves the X11 programs of another desktop.
    static std::unique_ptr<DesktopSource> Open(const WatchSettings& settings, DesktopSight& sight);

    explicit X11Desktop(const WatchSettings& settings);

    int Descriptor() const override;
    bool Dispatch() override;
    DesktopSight Sight() const override;
    std::optional<FrontWindow> Window() override;
    std::optional<std::chrono::milliseconds> Idle() override;
    std::optional<bool> IsLocked() override { return std::nullopt; }

private:
    using Clock = std::chrono::steady_clock;

    void TakeEvents();
    void TakeEvent(const xcb_generic_event_t& event);
    void FindActive();
    void ReadWindow();
    /// True when a window manager says that it tells the active window, also before it has told one.
    bool HasManager() const;
    /// The window that has the focus, or the one that holds it: that of a program.
    xcb_window_t Focused() const;
    /// The title that a window says under its newer name, or else under the old one.
    std::string TitleOf(const std::optional<X11Property>& name, const std::optional<X11Property>& old) const;

    X11Connection mConnection;
    std::chrono::milliseconds mPatience;
    std::optional<X11IdleWatch> mIdleWatch;
    xcb_atom_t mActiveAtom = XCB_ATOM_NONE;
    xcb_atom_t mSupportedAtom = XCB_ATOM_NONE;
    xcb_atom_t mNameAtom = XCB_ATOM_NONE;
    xcb_atom_t mUtf8Atom = XCB_ATOM_NONE;
    xcb_atom_t mCompoundAtom = XCB_ATOM_NONE;
    xcb_atom_t mProcessAtom = XCB_ATOM_NONE;
    xcb_window_t mWindow = XCB_WINDOW_NONE;
    std::optional<FrontWindow> mFront;
    /// Since when there is none in front; the one before stays for a moment.
    std::optional<Clock::time_point> mLostAt;
    /// True while no window manager tells the active window.
    bool mIsByFocus = false;
    bool mHasNewActive = true;
    bool mHasNewWords = false;
};

}
