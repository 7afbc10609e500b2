#include "track/bus/BusName.h"

namespace tempodial {

BusName::BusName(Bus& bus, const std::string& name)
{
    const auto match = "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
                       "member='NameOwnerChanged',arg0='"
        + name + "'";
    sd_bus_add_match(bus.Get(), &mSlot, match.c_str(), OnChange, this);
    BusMessage answer;
    const char* owner = nullptr;
    if (sd_bus_call_method(bus.Get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "GetNameOwner", nullptr, answer.Place(), "s", name.c_str())
            >= 0
        && sd_bus_message_read(answer.Get(), "s", &owner) >= 0) {
        mOwner = owner;
    }
}

int BusName::OnChange(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    const char* name = nullptr;
    const char* former = nullptr;
    const char* owner = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &former, &owner) >= 0) {
        static_cast<BusName*>(self)->mOwner = owner;
    }
    return 0;
}

}
