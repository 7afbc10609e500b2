#pragma once

#include "track/bus/Bus.h"

#include <string>

namespace tempodial {

/// A name of a bus, and the connection that it belongs to.
class BusName
{
public:
    /// Takes a connection that lives longer.
    BusName(Bus& bus, const std::string& name);
    ~BusName() { sd_bus_slot_unref(mSlot); }
    BusName(const BusName&) = delete;
    BusName& operator=(const BusName&) = delete;

    /// The connection, empty while there is none.
    const std::string& Owner() const { return mOwner; }
    bool IsOwned() const { return !mOwner.empty(); }

private:
    static int OnChange(sd_bus_message* message, void* self, sd_bus_error* error);

    sd_bus_slot* mSlot = nullptr;
    std::string mOwner;
};

}
