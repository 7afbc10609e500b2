#pragma once

#include "support/StartedProcess.h"

#include <optional>
#include <string>

namespace tempodial {

/// An X server without a screen, found by DISPLAY as long as it lives; it may have a window manager.
class XServer
{
public:
    enum class Manager { None, Openbox };

    explicit XServer(Manager manager);
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    /// Presses and releases a key.
    void Press(const std::string& key) const;
    /// The server is gone.
    void End() { mServer.End(); }

private:
    void WaitForManager() const;

    StartedProcess mServer;
    std::string mDisplay;
    std::optional<StartedProcess> mManager;
};

}
