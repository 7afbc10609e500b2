#include "track/bus/GnomeDesktop.h"

#include <cstdlib>
#include <utility>

namespace tempodial {

namespace {

constexpr auto ShellService = "org.gnome.Shell";
constexpr auto WindowsPath = "/org/tempodial/Windows";
constexpr auto WindowsInterface = "org.tempodial.Windows";
constexpr auto IdleService = "org.gnome.Mutter.IdleMonitor";
constexpr auto IdlePath = "/org/gnome/Mutter/IdleMonitor/Core";

}

std::unique_ptr<DesktopSource> GnomeDesktop::Open(const WatchSettings& settings, DesktopSight& sight)
{
    auto bus = std::make_unique<Bus>(Bus::Kind::User);
    if (!bus->IsOpen()) {
        sight.why = "the session's message bus doesn't answer: run it inside of a session";
        return nullptr;
    }
    auto desktop = std::make_unique<GnomeDesktop>(std::move(bus), settings);
    if (!desktop->mShell.IsOwned()) {
        sight.why = "GNOME's shell isn't on the session's message bus: this is no GNOME";
        return nullptr;
    }
    if (!desktop->AskWindow()) {
        sight.why = "GNOME tells windows to extensions of its shell alone: log out and in once, then run "
                    "\"gnome-extensions enable "
            + desktop->Extension() + "\"";
        return nullptr;
    }
    desktop->Dispatch();
    sight = desktop->Sight();
    return desktop;
}

GnomeDesktop::GnomeDesktop(std::unique_ptr<Bus> bus, const WatchSettings& settings)
    : mBus(std::move(bus))
    , mShell(*mBus, ShellService)
    , mLock(*mBus, "org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver")
    , mNotice(settings.idleNotice)
{
    sd_bus_match_signal(mBus->Get(), &mChanges, ShellService, WindowsPath, WindowsInterface, "Changed", OnChange, this);
    sd_bus_match_signal(mBus->Get(), &mReturns, IdleService, IdlePath, IdleService, "WatchFired", OnReturn, this);
}

GnomeDesktop::~GnomeDesktop()
{
    sd_bus_slot_unref(mReturns);
    sd_bus_slot_unref(mChanges);
}

std::string GnomeDesktop::Extension() const
{
    // Extensions are written otherwise from this version on.
    constexpr int FirstWithModules = 45;
    char* version = nullptr;
    sd_bus_get_property_string(
        mBus->Get(), ShellService, "/org/gnome/Shell", ShellService, "ShellVersion", nullptr, &version);
    const std::unique_ptr<char, decltype(&std::free)> owned(version, &std::free);
    const bool isOld = version != nullptr && std::atoi(version) < FirstWithModules;
    return isOld ? "tempodial-43@tempodial.example" : "tempodial@tempodial.example";
}

bool GnomeDesktop::Dispatch()
{
    return mBus->Process() && mShell.IsOwned();
}

DesktopSight GnomeDesktop::Sight() const
{
    DesktopSight sight { .window = true, .title = true, .lock = mLock.IsTold() };
    sight.idle = IdleMilliseconds().has_value();
    if (!sight.idle) {
        sight.why = "GNOME doesn't tell times without input: the login manager's word is taken, if it has one";
    }
    return sight;
}

std::optional<std::chrono::milliseconds> GnomeDesktop::Idle()
{
    auto idle = IdleMilliseconds();
    if (idle && !mIsWatched && std::chrono::milliseconds(*idle) >= mNotice) {
        WatchForReturn();
        idle = IdleMilliseconds(); // somebody may have come back meanwhile
    }
    // What came in with the answer shows on the descriptor no more.
    mBus->Process();
    return idle ? std::optional(std::chrono::milliseconds(*idle)) : std::nullopt;
}

std::optional<std::uint64_t> GnomeDesktop::IdleMilliseconds() const
{
    BusMessage answer;
    std::uint64_t idle = 0;
    if (sd_bus_call_method(mBus->Get(), IdleService, IdlePath, IdleService, "GetIdletime", nullptr, answer.Place(), "")
            < 0
        || sd_bus_message_read(answer.Get(), "t", &idle) < 0) {
        return std::nullopt;
    }
    return idle;
}

void GnomeDesktop::WatchForReturn()
{
    BusMessage answer;
    mIsWatched = sd_bus_call_method(
                     mBus->Get(), IdleService, IdlePath, IdleService, "AddUserActiveWatch", nullptr, answer.Place(), "")
        >= 0;
}

bool GnomeDesktop::AskWindow()
{
    BusMessage answer;
    if (sd_bus_call_method(mBus->Get(), ShellService, WindowsPath, WindowsInterface, "Get", nullptr, answer.Place(), "")
        < 0) {
        return false;
    }
    Take(answer.Get());
    return true;
}

void GnomeDesktop::Take(sd_bus_message* message)
{
    const char* program = nullptr;
    const char* title = nullptr;
    std::int64_t process = 0;
    if (sd_bus_message_read(message, "ssx", &program, &title, &process) < 0) {
        return;
    }
    const FrontWindow front { program, title, process };
    mFront = front == FrontWindow() ? std::nullopt : std::optional(front);
}

int GnomeDesktop::OnReturn(sd_bus_message* /*message*/, void* self, sd_bus_error* /*error*/)
{
    // Such a watch is gone as soon as it has told.
    static_cast<GnomeDesktop*>(self)->mIsWatched = false;
    return 0;
}

int GnomeDesktop::OnChange(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    static_cast<GnomeDesktop*>(self)->Take(message);
    return 0;
}

}
