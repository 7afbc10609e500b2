#include "track/wayland/WlrDesktop.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <utility>

namespace tempodial {

namespace {

std::string DesktopName(const WaylandConnection& connection)
{
    const auto program = connection.Program();
    return program.empty() ? "this compositor" : program;
}

}

std::unique_ptr<DesktopSource> WlrDesktop::Open(const WatchSettings& settings, DesktopSight& sight)
{
    const char* display = std::getenv("WAYLAND_DISPLAY");
    if (display == nullptr || *display == '\0') {
        sight.why = "WAYLAND_DISPLAY isn't set: run it inside of a session of Wayland";
        return nullptr;
    }
    auto desktop = std::make_unique<WlrDesktop>(settings);
    if (!desktop->mConnection.IsOpen()) {
        sight.why = std::string("no compositor answers at WAYLAND_DISPLAY ") + display
            + ": see whether it runs and whether you may use it";
        return nullptr;
    }
    if (desktop->mManager == nullptr) {
        sight.why = DesktopName(desktop->mConnection)
            + " tells no program which window is in front: use a desktop that does, such as sway, Plasma or GNOME";
        return nullptr;
    }
    // The windows come with the first answer, and what is known of them with the second.
    if (!desktop->mConnection.Await() || !desktop->mConnection.Await()) {
        sight.why = DesktopName(desktop->mConnection) + " ended the connection: look at its own messages";
        return nullptr;
    }
    sight = desktop->Sight();
    return desktop;
}

WlrDesktop::WlrDesktop(const WatchSettings& settings)
{
    if (!mConnection.IsOpen()) {
        return;
    }
    mIdle = std::make_unique<WaylandIdle>(mConnection, settings.idleNotice);
    mManager = mConnection.Bind(ToplevelManagerInterface);
    if (mManager != nullptr) {
        static constexpr ToplevelManagerListener Listener { OnToplevel, OnFinished };
        Listen(mManager, Listener, this);
    }
}

WlrDesktop::~WlrDesktop()
{
    for (const auto& toplevel : mToplevels) {
        ::wl_proxy_destroy(toplevel->proxy);
    }
    if (mManager != nullptr) {
        ::wl_proxy_destroy(mManager);
    }
}

DesktopSight WlrDesktop::Sight() const
{
    DesktopSight sight { .window = true, .title = true, .idle = mIdle->IsTold() };
    if (!sight.idle) {
        sight.why = DesktopName(mConnection)
            + " doesn't tell times without input: the login manager's word is taken, if it has one";
    }
    return sight;
}

std::optional<FrontWindow> WlrDesktop::Window()
{
    const auto front
        = std::find_if(mToplevels.rbegin(), mToplevels.rend(), [](const auto& toplevel) { return toplevel->isActive; });
    return front == mToplevels.rend() ? std::nullopt : std::optional((*front)->window);
}

void WlrDesktop::OnToplevel(void* self, wl_proxy* /*manager*/, wl_proxy* toplevel)
{
    auto& desktop = *static_cast<WlrDesktop*>(self);
    static constexpr ToplevelListener Listener { OnTitle, OnAppId, OnOutput, OnOutput, OnState, OnDone, OnClosed };
    desktop.mToplevels.push_back(std::make_unique<Toplevel>(Toplevel { &desktop, toplevel, {}, false, {}, false }));
    Listen(toplevel, Listener, desktop.mToplevels.back().get());
}

void WlrDesktop::OnFinished(void* self, wl_proxy* /*manager*/)
{
    static_cast<WlrDesktop*>(self)->mIsFinished = true;
}

void WlrDesktop::OnTitle(void* toplevel, wl_proxy* /*proxy*/, const char* title)
{
    static_cast<Toplevel*>(toplevel)->told.title = title;
}

void WlrDesktop::OnAppId(void* toplevel, wl_proxy* /*proxy*/, const char* appId)
{
    static_cast<Toplevel*>(toplevel)->told.program = appId;
}

void WlrDesktop::OnOutput(void* /*toplevel*/, wl_proxy* /*proxy*/, wl_output* /*output*/) { }

void WlrDesktop::OnState(void* toplevel, wl_proxy* /*proxy*/, wl_array* states)
{
    const auto* begin = static_cast<const std::uint32_t*>(states->data);
    const auto* end = begin + states->size / sizeof(std::uint32_t);
    static_cast<Toplevel*>(toplevel)->isToldActive = std::find(begin, end, ToplevelActivated) != end;
}

void WlrDesktop::OnDone(void* toplevel, wl_proxy* /*proxy*/)
{
    auto& done = *static_cast<Toplevel*>(toplevel);
    done.window = done.told;
    if (std::exchange(done.isActive, done.isToldActive) || !done.isActive) {
        return;
    }
    auto& all = done.desktop->mToplevels;
    const auto found = std::find_if(all.begin(), all.end(), [&done](const auto& one) { return one.get() == &done; });
    std::rotate(found, std::next(found), all.end());
}

void WlrDesktop::OnClosed(void* toplevel, wl_proxy* proxy)
{
    auto& all = static_cast<Toplevel*>(toplevel)->desktop->mToplevels;
    ::wl_proxy_marshal_flags(proxy, ToplevelDestroy, nullptr, 1, WL_MARSHAL_FLAG_DESTROY);
    std::erase_if(all, [toplevel](const auto& one) { return one.get() == toplevel; });
}

}
