#include "track/bus/LogindSession.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

constexpr auto LoginService = "org.freedesktop.login1";
constexpr auto ManagerPath = "/org/freedesktop/login1";
constexpr auto ManagerInterface = "org.freedesktop.login1.Manager";
constexpr auto SessionInterface = "org.freedesktop.login1.Session";
constexpr auto PropertiesInterface = "org.freedesktop.DBus.Properties";

/// How long a lock is believed that was asked for, and that the session's property doesn't show: not every locker keeps
/// that property, and none says by itself that it has ended.
constexpr std::int64_t UnshownLock = 60000;

std::int64_t MonotonicMilliseconds()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// The object in the answer to a call of the manager's with one argument.
template <class Argument> std::string ObjectOf(Bus& bus, const char* method, const char* signature, Argument argument)
{
    BusMessage answer;
    const char* path = nullptr;
    if (sd_bus_call_method(bus.Get(), LoginService, ManagerPath, ManagerInterface, method, nullptr, answer.Place(),
            signature, argument)
            < 0
        || sd_bus_message_read(answer.Get(), "o", &path) < 0) {
        return {};
    }
    return path;
}

/// The first session of the user's, for a program that is in none itself.
std::string SessionOfUser(Bus& bus)
{
    BusMessage answer;
    if (sd_bus_call_method(
            bus.Get(), LoginService, ManagerPath, ManagerInterface, "ListSessions", nullptr, answer.Place(), "")
            < 0
        || sd_bus_message_enter_container(answer.Get(), SD_BUS_TYPE_ARRAY, "(susso)") < 0) {
        return {};
    }
    const char* id = nullptr;
    const char* name = nullptr;
    const char* seat = nullptr;
    const char* path = nullptr;
    std::uint32_t user = 0;
    std::string first;
    while (sd_bus_message_read(answer.Get(), "(susso)", &id, &user, &name, &seat, &path) > 0) {
        // One with a seat has a desktop.
        if (user == ::getuid() && (first.empty() || *seat != '\0')) {
            first = path;
        }
    }
    return first;
}

}

LogindSession::LogindSession(std::unique_ptr<Bus> bus, std::string session)
    : mBus(std::move(bus))
    , mSession(std::move(session))
{
    if (!mSession.empty()) {
        Watch(mSession, SessionInterface, "Lock", OnLock);
        Watch(mSession, SessionInterface, "Unlock", OnUnlock);
        Watch(mSession, PropertiesInterface, "PropertiesChanged", OnProperties);
        ReadLock();
    }
    Watch(ManagerPath, ManagerInterface, "PrepareForSleep", OnSleep);
    HoldSleep();
}

bool LogindSession::Dispatch()
{
    const bool isOpen = mBus->Process();
    if (isOpen && mLockAskedAt && MonotonicMilliseconds() - *mLockAskedAt > UnshownLock) {
        ReadLock();
    }
    return isOpen;
}

std::optional<bool> LogindSession::IsLocked()
{
    return mSession.empty() ? std::nullopt : std::optional(mIsLocked);
}

std::optional<std::chrono::milliseconds> LogindSession::Idle()
{
    if (mSession.empty()) {
        return std::nullopt;
    }
    constexpr std::int64_t MicrosecondsOfMillisecond = 1000;
    const auto isIdle = mBus->Flag(LoginService, mSession, SessionInterface, "IdleHint");
    if (!isIdle) {
        return std::nullopt;
    }
    const auto since
        = *isIdle ? mBus->Number(LoginService, mSession, SessionInterface, "IdleSinceHintMonotonic") : std::nullopt;
    if (!since) {
        return std::chrono::milliseconds(0);
    }
    const auto idle = MonotonicMilliseconds() - static_cast<std::int64_t>(*since) / MicrosecondsOfMillisecond;
    return std::chrono::milliseconds(std::max<std::int64_t>(idle, 0));
}

void LogindSession::LetSleep()
{
    mHold.reset();
}

std::string LogindSession::SessionOf(Bus& bus)
{
    const auto isThere = [&bus](const std::string& session) {
        return !session.empty() && bus.Flag(LoginService, session, SessionInterface, "LockedHint");
    };
    const auto* id = std::getenv("XDG_SESSION_ID");
    auto session = id == nullptr ? std::string() : ObjectOf(bus, "GetSession", "s", id);
    if (!isThere(session)) {
        session = ObjectOf(bus, "GetSessionByPID", "u", static_cast<std::uint32_t>(::getpid()));
    }
    if (!isThere(session)) {
        session = SessionOfUser(bus);
    }
    return isThere(session) ? session : std::string();
}

bool LogindSession::IsThere(Bus& bus)
{
    return bus.Flag(LoginService, ManagerPath, ManagerInterface, "PreparingForSleep").has_value();
}

int LogindSession::OnLock(sd_bus_message* /*message*/, void* self, sd_bus_error* /*error*/)
{
    auto& session = *static_cast<LogindSession*>(self);
    session.mIsLocked = true;
    session.mLockAskedAt = MonotonicMilliseconds();
    return 0;
}

int LogindSession::OnUnlock(sd_bus_message* /*message*/, void* self, sd_bus_error* /*error*/)
{
    auto& session = *static_cast<LogindSession*>(self);
    session.mIsLocked = false;
    session.mLockAskedAt.reset();
    return 0;
}

int LogindSession::OnProperties(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    const char* interface = nullptr;
    if (sd_bus_message_read(message, "s", &interface) >= 0 && std::string_view(interface) == SessionInterface
        && sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") > 0) {
        const char* name = nullptr;
        while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0
            && sd_bus_message_read(message, "s", &name) >= 0) {
            if (std::string_view(name) == "LockedHint") {
                static_cast<LogindSession*>(self)->ReadLock();
            }
            sd_bus_message_skip(message, "v");
            sd_bus_message_exit_container(message);
        }
    }
    return 0;
}

int LogindSession::OnSleep(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    auto& session = *static_cast<LogindSession*>(self);
    int isStart = 0;
    if (sd_bus_message_read(message, "b", &isStart) >= 0) {
        session.mIsGoingToSleep = isStart != 0;
        if (isStart == 0) {
            session.HoldSleep();
        }
    }
    return 0;
}

void LogindSession::Watch(
    const std::string& path, const char* interface, const char* signal, sd_bus_message_handler_t handler)
{
    sd_bus_match_signal(mBus->Get(), nullptr, LoginService, path.c_str(), interface, signal, handler, this);
}

void LogindSession::ReadLock()
{
    mIsLocked = mBus->Flag(LoginService, mSession, SessionInterface, "LockedHint").value_or(false);
    mLockAskedAt.reset();
}

void LogindSession::HoldSleep()
{
    if (mHold) {
        return;
    }
    auto answer = std::make_unique<BusMessage>();
    if (sd_bus_call_method(mBus->Get(), LoginService, ManagerPath, ManagerInterface, "Inhibit", nullptr,
            answer->Place(), "ssss", "sleep", "Tempodial", "writes what was recorded", "delay")
        >= 0) {
        mHold = std::move(answer);
    }
}

}
