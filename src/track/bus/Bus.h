#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <systemd/sd-bus.h>

namespace tempodial {

/// A connection with a message bus. Calls wait for their answer, but not for long.
class Bus
{
public:
    enum class Kind { System, User };

    /// Connects; `IsOpen` tells whether that went well.
    explicit Bus(Kind kind);
    ~Bus();
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    bool IsOpen() const { return mBus != nullptr; }
    /// The library's own.
    sd_bus* Get() const { return mBus; }
    int Descriptor() const;
    short Events() const;
    /// Handles what has come; false when the connection is gone.
    bool Process();
    /// A property that is true or false; nothing when there is none.
    std::optional<bool> Flag(
        const std::string& service, const std::string& path, const std::string& interface, const std::string& name);
    /// A property that is a whole number without a sign; nothing when there is none.
    std::optional<std::uint64_t> Number(
        const std::string& service, const std::string& path, const std::string& interface, const std::string& name);

private:
    sd_bus* mBus = nullptr;
};

/// An answer or a signal, freed at its end.
class BusMessage
{
public:
    BusMessage() = default;
    ~BusMessage() { sd_bus_message_unref(mMessage); }
    BusMessage(const BusMessage&) = delete;
    BusMessage& operator=(const BusMessage&) = delete;

    sd_bus_message* Get() const { return mMessage; }
    /// Where a call puts it.
    sd_bus_message** Place() { return &mMessage; }

private:
    sd_bus_message* mMessage = nullptr;
};

}
