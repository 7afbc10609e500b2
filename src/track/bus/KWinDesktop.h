#pragma once

#include "track/DesktopSource.h"
#include "track/bus/Bus.h"
#include "track/bus/BusName.h"
#include "track/bus/ReadyDescriptor.h"
#include "track/bus/ScreenLock.h"
#include "track/wayland/WaylandConnection.h"
#include "track/wayland/WaylandIdle.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// Plasma on Wayland: KWin runs a small script of ours, which tells each window that comes in front, and each new title
/// of it. Times without input are those of the compositor.
class KWinDesktop final : public DesktopSource
{
public:
    /// Connects; nothing when KWin isn't there, or runs no scripts.
    static std::unique_ptr<DesktopSource> Open(const WatchSettings& settings, DesktopSight& sight);

    /// Takes an open connection on which KWin is.
    KWinDesktop(std::unique_ptr<Bus> bus, const WatchSettings& settings);
    ~KWinDesktop() override;

    int Descriptor() const override { return mReady.Get(); }
    bool Dispatch() override;
    DesktopSight Sight() const override;
    std::optional<FrontWindow> Window() override { return mFront; }
    std::optional<std::chrono::milliseconds> Idle() override { return mIdle.Time(); }
    std::optional<bool> IsLocked() override { return mLock.IsLocked(); }

private:
    static int OnCall(sd_bus_message* message, void* self, sd_bus_error* error);

    /// Lets KWin run the script; false when it doesn't.
    bool RunScript();
    void Take(sd_bus_message* message);

    std::unique_ptr<Bus> mBus;
    /// KWin, the only one that is listened to.
    BusName mKWin;
    std::string mScript;
    ScreenLock mLock;
    WaylandConnection mConnection;
    WaylandIdle mIdle;
    ReadyDescriptor mReady;
    std::optional<FrontWindow> mFront;
};

}
