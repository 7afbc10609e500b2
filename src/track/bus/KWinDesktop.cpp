#include "track/bus/KWinDesktop.h"

#include "track/bus/MemoryFile.h"

#include <cstdlib>
#include <utility>

namespace tempodial {

namespace {

constexpr auto KWinService = "org.kde.KWin";
constexpr auto ScriptingPath = "/Scripting";
constexpr auto ScriptingInterface = "org.kde.kwin.Scripting";
constexpr auto ScriptInterface = "org.kde.kwin.Script";
constexpr auto OwnPath = "/org/tempodial/Track";

/// What KWin runs; it calls the connection whose name stands at the beginning. In Plasma 5 the names of signal and
/// property are others than in Plasma 6.
constexpr auto Script = R"(
let current = null;
function tell() {
    try {
        callDBus(recorder, "/org/tempodial/Track", "org.tempodial.Track", "Front",
            current ? String(current.resourceClass) : "", current ? String(current.caption) : "",
            current ? String(current.pid) : "");
    } catch (gone) {
        current = null;
    }
}
function activated(window) {
    try {
        if (current) {
            current.captionChanged.disconnect(tell);
        }
    } catch (gone) {
    }
    current = window;
    if (current) {
        current.captionChanged.connect(tell);
    }
    tell();
}
(workspace.windowActivated || workspace.clientActivated).connect(activated);
activated(workspace.activeWindow || workspace.activeClient);
)";

}

std::unique_ptr<DesktopSource> KWinDesktop::Open(const WatchSettings& settings, DesktopSight& sight)
{
    auto bus = std::make_unique<Bus>(Bus::Kind::User);
    if (!bus->IsOpen()) {
        sight.why = "the session's message bus doesn't answer: run it inside of a session";
        return nullptr;
    }
    auto desktop = std::make_unique<KWinDesktop>(std::move(bus), settings);
    if (!desktop->mKWin.IsOwned()) {
        sight.why = "KWin isn't on the session's message bus: this is no Plasma";
        return nullptr;
    }
    if (!desktop->RunScript()) {
        sight.why = "KWin runs no script, by which alone it tells windows: see whether something forbids it";
        return nullptr;
    }
    // The script tells what is in front as soon as it runs.
    desktop->Dispatch();
    sight = desktop->Sight();
    return desktop;
}

KWinDesktop::KWinDesktop(std::unique_ptr<Bus> bus, const WatchSettings& settings)
    : mBus(std::move(bus))
    , mKWin(*mBus, KWinService)
    , mLock(*mBus, "org.freedesktop.ScreenSaver", "/ScreenSaver", "org.freedesktop.ScreenSaver")
    , mIdle(mConnection, settings.idleNotice)
{
    sd_bus_add_object(mBus->Get(), nullptr, OwnPath, OnCall, this);
    mReady.Add(mBus->Descriptor());
    if (mConnection.IsOpen()) {
        mReady.Add(mConnection.Descriptor());
    }
}

KWinDesktop::~KWinDesktop()
{
    if (!mKWin.IsOwned()) {
        return;
    }
    BusMessage answer;
    sd_bus_call_method(mBus->Get(), KWinService, ScriptingPath, ScriptingInterface, "unloadScript", nullptr,
        answer.Place(), "s", mScript.c_str());
}

bool KWinDesktop::RunScript()
{
    const char* name = nullptr;
    if (sd_bus_get_unique_name(mBus->Get(), &name) < 0) {
        return false;
    }
    mScript = std::string("tempodial-track-") + name;
    const MemoryFile file(std::string("const recorder = \"") + name + "\";" + Script);
    BusMessage loaded;
    std::int32_t number = -1;
    if (sd_bus_call_method(mBus->Get(), KWinService, ScriptingPath, ScriptingInterface, "loadScript", nullptr,
            loaded.Place(), "ss", file.Path().c_str(), mScript.c_str())
            < 0
        || sd_bus_message_read(loaded.Get(), "i", &number) < 0 || number < 0) {
        return false;
    }
    // Plasma 6 has it at the first of these, Plasma 5 at the other.
    for (const auto* const folder : { "/Scripting/Script", "/" }) {
        BusMessage run;
        const auto path = folder + std::to_string(number);
        if (sd_bus_call_method(mBus->Get(), KWinService, path.c_str(), ScriptInterface, "run", nullptr, run.Place(), "")
            >= 0) {
            return true;
        }
    }
    return false;
}

bool KWinDesktop::Dispatch()
{
    const bool isThere = mBus->Process() && (!mConnection.IsOpen() || mConnection.Dispatch());
    return isThere && mKWin.IsOwned();
}

DesktopSight KWinDesktop::Sight() const
{
    DesktopSight sight { .window = true, .title = true, .idle = mIdle.IsTold(), .lock = mLock.IsTold() };
    if (!sight.idle) {
        sight.why = "KWin doesn't tell times without input: set WAYLAND_DISPLAY to its socket";
    }
    return sight;
}

int KWinDesktop::OnCall(sd_bus_message* message, void* self, sd_bus_error* /*error*/)
{
    auto& desktop = *static_cast<KWinDesktop*>(self);
    const char* sender = sd_bus_message_get_sender(message);
    if (sd_bus_message_is_method_call(message, "org.tempodial.Track", "Front") == 0 || sender == nullptr
        || sender != desktop.mKWin.Owner()) {
        return 0;
    }
    desktop.Take(message);
    return sd_bus_reply_method_return(message, "");
}

void KWinDesktop::Take(sd_bus_message* message)
{
    const char* program = nullptr;
    const char* title = nullptr;
    const char* process = nullptr;
    if (sd_bus_message_read(message, "sss", &program, &title, &process) < 0) {
        return;
    }
    const FrontWindow front { program, title, std::strtoll(process, nullptr, 10) };
    mFront = front == FrontWindow() ? std::nullopt : std::optional(front);
}

}
