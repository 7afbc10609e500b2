#include "track/bus/Bus.h"

#include <poll.h>

namespace tempodial {

namespace {

constexpr std::uint64_t LongestCall = 2000000;

}

Bus::Bus(Kind kind)
{
    const auto error = kind == Kind::System ? sd_bus_open_system(&mBus) : sd_bus_open_user(&mBus);
    if (error < 0) {
        mBus = nullptr;
    } else {
        sd_bus_set_method_call_timeout(mBus, LongestCall);
    }
}

Bus::~Bus()
{
    sd_bus_flush_close_unref(mBus);
}

int Bus::Descriptor() const
{
    return sd_bus_get_fd(mBus);
}

short Bus::Events() const
{
    const auto events = sd_bus_get_events(mBus);
    return events < 0 ? short { POLLIN } : static_cast<short>(events);
}

bool Bus::Process()
{
    int handled = 1;
    while (handled > 0) {
        handled = sd_bus_process(mBus, nullptr);
    }
    return handled == 0;
}

std::optional<bool> Bus::Flag(
    const std::string& service, const std::string& path, const std::string& interface, const std::string& name)
{
    int value = 0;
    const auto error = sd_bus_get_property_trivial(
        mBus, service.c_str(), path.c_str(), interface.c_str(), name.c_str(), nullptr, 'b', &value);
    return error < 0 ? std::nullopt : std::optional(value != 0);
}

std::optional<std::uint64_t> Bus::Number(
    const std::string& service, const std::string& path, const std::string& interface, const std::string& name)
{
    std::uint64_t value = 0;
    const auto error = sd_bus_get_property_trivial(
        mBus, service.c_str(), path.c_str(), interface.c_str(), name.c_str(), nullptr, 't', &value);
    return error < 0 ? std::nullopt : std::optional(value);
}

}
