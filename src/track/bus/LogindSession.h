#pragma once

#include "track/SessionSource.h"
#include "track/bus/Bus.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The session as the system's login manager keeps it: whether it is locked and idle, and when the machine sleeps, for
/// which it waits until what was to be written is written.
class LogindSession final : public SessionSource
{
public:
    /// Takes an open connection, and the session's object there, empty where sleep is all that can be told.
    LogindSession(std::unique_ptr<Bus> bus, std::string session);

    int Descriptor() const override { return mBus->Descriptor(); }
    short Events() const override { return mBus->Events(); }
    bool Dispatch() override;
    std::optional<bool> IsLocked() override;
    std::optional<std::chrono::milliseconds> Idle() override;
    bool IsGoingToSleep() override { return mIsGoingToSleep; }
    void LetSleep() override;

    /// The object of the user's session; empty when the login manager knows none.
    static std::string SessionOf(Bus& bus);
    /// True when there is a login manager.
    static bool IsThere(Bus& bus);

private:
    static int OnLock(sd_bus_message* message, void* self, sd_bus_error* error);
    static int OnUnlock(sd_bus_message* message, void* self, sd_bus_error* error);
    static int OnProperties(sd_bus_message* message, void* self, sd_bus_error* error);
    static int OnSleep(sd_bus_message* message, void* self, sd_bus_error* error);

    void Watch(const std::string& path, const char* interface, const char* signal, sd_bus_message_handler_t handler);
    void ReadLock();
    void HoldSleep();

    std::unique_ptr<Bus> mBus;
    std::string mSession;
    bool mIsLocked = false;
    /// When a lock was asked for that the session's property doesn't show, in milliseconds of the machine's clock.
    std::optional<std::int64_t> mLockAskedAt;
    bool mIsGoingToSleep = false;
    /// The answer that holds the machine awake for a moment, as long as it is kept.
    std::unique_ptr<BusMessage> mHold;
};

}
