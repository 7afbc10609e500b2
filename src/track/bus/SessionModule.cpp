#include "track/bus/LogindSession.h"

#include <type_traits>
#include <utility>

extern "C" __attribute__((visibility("default"))) std::unique_ptr<tempodial::SessionSource> TempodialOpenSession(
    const tempodial::WatchSettings& /*settings*/, std::string& why)
{
    auto bus = std::make_unique<tempodial::Bus>(tempodial::Bus::Kind::System);
    if (!bus->IsOpen()) {
        why = "the system's message bus doesn't answer: locking and sleep are told by clocks and desktop alone";
        return nullptr;
    }
    if (!tempodial::LogindSession::IsThere(*bus)) {
        why = "no login manager answers: locking and sleep are told by clocks and desktop alone";
        return nullptr;
    }
    auto session = tempodial::LogindSession::SessionOf(*bus);
    return std::make_unique<tempodial::LogindSession>(std::move(bus), std::move(session));
}

static_assert(std::is_same_v<decltype(&TempodialOpenSession), tempodial::SessionOpener>);
