#pragma once

#include "support/StartedProcess.h"
#include "support/TempFolder.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A session of a whole desktop without a screen, with a message bus of its own; it is found by WAYLAND_DISPLAY and
/// DBUS_SESSION_BUS_ADDRESS as long as it lives. Desktops refuse to be run by the administrator, whose rights the test
/// gives up with it.
class DesktopSession
{
public:
    enum class Kind { None, KWin, Gnome, GnomeWithExtension };

    explicit DesktopSession(Kind kind);
    ~DesktopSession();
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    /// A terminal with a title, which is in front then.
    std::unique_ptr<StartedProcess> Show(const std::string& title) const;
    /// Runs another program in the session, until it is given up.
    std::unique_ptr<StartedProcess> Run(const std::vector<std::string>& command) const;
    static void Wait(int milliseconds);
    /// Gives the terminals another title.
    void Retitle(const std::string& title) const;
    /// The compositor ends.
    void End() { mCompositor->End(); }
    /// What the terminals' program is called.
    static constexpr auto Terminal = "org.freedesktop.weston.wayland-terminal";

private:
    static void GiveUpRights();
    std::string StartBus(const std::string& kind);
    void StartKWin();
    void StartGnome(bool hasExtension);
    void WaitForDisplay() const;

    TempFolder mFolder;
    std::vector<std::unique_ptr<StartedProcess>> mServices;
    std::unique_ptr<StartedProcess> mCompositor;
};

}
