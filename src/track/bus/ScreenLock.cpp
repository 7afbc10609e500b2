#include "track/bus/ScreenLock.h"

namespace tempodial {

ScreenLock::ScreenLock(Bus& bus, const std::string& service, const std::string& path, const std::string& interface)
{
    sd_bus_match_signal(
        bus.Get(), &mSlot, service.c_str(), path.c_str(), interface.c_str(), "ActiveChanged", OnChange, this);
    // Asking starts no screen saver where none runs.
    BusMessage question;
    if (sd_bus_message_new_method_call(
            bus.Get(), question.Place(), service.c_str(), path.c_str(), interface.c_str(), "GetActive")
        < 0) {
        return;
    }
    sd_bus_message_set_auto_start(question.Get(), 0);
    BusMessage answer;
    int isActive = 0;
    if (sd_bus_call(bus.Get(), question.Get(), 0, nullptr, answer.Place()) >= 0
        && sd_bus_message_read(answer.Get(), "b", &isActive) >= 0) {
        mIsLocked = isActive != 0;
    }
}

int ScreenLock::OnChange(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    int isActive = 0;
    if (sd_bus_message_read(message, "b", &isActive) >= 0) {
        static_cast<ScreenLock*>(self)->mIsLocked = isActive != 0;
    }
    return 0;
}

}
