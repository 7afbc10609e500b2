#pragma once

#include "track/bus/Bus.h"

#include <optional>
#include <string>

namespace tempodial {

/// Whether a desktop's screen saver, which locks, is in front.
class ScreenLock
{
public:
    /// Takes a connection that lives longer, and where the screen saver is on it.
    ScreenLock(Bus& bus, const std::string& service, const std::string& path, const std::string& interface);
    ~ScreenLock() { sd_bus_slot_unref(mSlot); }
    ScreenLock(const ScreenLock&) = delete;
    ScreenLock& operator=(const ScreenLock&) = delete;

    /// True when there is one that tells.
    bool IsTold() const { return mIsLocked.has_value(); }
    std::optional<bool> IsLocked() const { return mIsLocked; }

private:
    static int OnChange(sd_bus_message* message, void* self, sd_bus_error* error);

    sd_bus_slot* mSlot = nullptr;
    std::optional<bool> mIsLocked;
};

}
