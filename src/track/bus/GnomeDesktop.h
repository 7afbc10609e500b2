#pragma once

#include "track/DesktopSource.h"
#include "track/bus/Bus.h"
#include "track/bus/BusName.h"
#include "track/bus/ScreenLock.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// GNOME, whose shell tells windows to its extensions alone: one of ours passes them on.
class GnomeDesktop final : public DesktopSource
{
public:
    /// Connects; nothing when the shell isn't there, or our extension isn't in it.
    static std::unique_ptr<DesktopSource> Open(const WatchSettings& settings, DesktopSight& sight);

    /// Takes an open connection.
    GnomeDesktop(std::unique_ptr<Bus> bus, const WatchSettings& settings);
    ~GnomeDesktop() override;

    int Descriptor() const override { return mBus->Descriptor(); }
    short Events() const override { return mBus->Events(); }
    bool Dispatch() override;
    DesktopSight Sight() const override;
    std::optional<FrontWindow> Window() override { return mFront; }
    std::optional<std::chrono::milliseconds> Idle() override;
    std::optional<bool> IsLocked() override { return mLock.IsLocked(); }

private:
    static int OnChange(sd_bus_message* message, void* self, sd_bus_error* error);
    static int OnReturn(sd_bus_message* message, void* self, sd_bus_error* error);

    /// Asks for the window in front; false when the extension isn't there.
    bool AskWindow();
    void Take(sd_bus_message* message);
    /// The name of our extension for this shell.
    std::string Extension() const;
    std::optional<std::uint64_t> IdleMilliseconds() const;
    /// Lets Mutter tell when somebody is back.
    void WatchForReturn();

    std::unique_ptr<Bus> mBus;
    BusName mShell;
    ScreenLock mLock;
    std::chrono::milliseconds mNotice;
    sd_bus_slot* mChanges = nullptr;
    sd_bus_slot* mReturns = nullptr;
    bool mIsWatched = false;
    std::optional<FrontWindow> mFront;
};

}
