#include "track/bus/GnomeDesktop.h"

#include <cstdlib>
#include <utility>

namespace tempodial {

namespace {

constexpr auto ShellService = "org.gnome.Shell";
constexpr auto WindowsPath = "/org/tempodial/Windows";
constexpr auto WindowsInterface = "org.tempodial.Windows";

}

std::unique_ptr<DesktopSource> GnomeDesktop::Open(const WatchSettings& /*settings*/, DesktopSight& sight)
{
    auto bus = std::make_unique<Bus>(Bus::Kind::User);
    if (!bus->IsOpen()) {
        sight.why = "the session's message bus doesn't answer: run it inside of a session";
        return nullptr;
    }
    auto desktop = std::make_unique<GnomeDesktop>(std::move(bus));
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

GnomeDesktop::GnomeDesktop(std::unique_ptr<Bus> bus)
    : mBus(std::move(bus))
    , mShell(*mBus, ShellService)
    , mLock(*mBus, "org.gnome.ScreenSaver", "/org/gnome/ScreenSaver", "org.gnome.ScreenSaver")
{
    sd_bus_match_signal(mBus->Get(), &mSlot, ShellService, WindowsPath, WindowsInterface, "Changed", OnChange, this);
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
    const auto idle = IdleMilliseconds();
    // What came in with the answer shows on the descriptor no more.
    mBus->Process();
    return idle ? std::optional(std::chrono::milliseconds(*idle)) : std::nullopt;
}

std::optional<std::uint64_t> GnomeDesktop::IdleMilliseconds() const
{
    BusMessage answer;
    std::uint64_t idle = 0;
    if (sd_bus_call_method(mBus->Get(), "org.gnome.Mutter.IdleMonitor", "/org/gnome/Mutter/IdleMonitor/Core",
            "org.gnome.Mutter.IdleMonitor", "GetIdletime", nullptr, answer.Place(), "")
            < 0
        || sd_bus_message_read(answer.Get(), "t", &idle) < 0) {
        return std::nullopt;
    }
    return idle;
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

int GnomeDesktop::OnChange(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    static_cast<GnomeDesktop*>(self)->Take(message);
    return 0;
}

}
