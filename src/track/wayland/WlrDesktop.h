#pragma once

#include "track/DesktopSource.h"
#include "track/wayland/WaylandConnection.h"
#include "track/wayland/WaylandIdle.h"

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace tempodial {

/// A compositor of Wayland that tells the windows of others, as those do that stand on wlroots, and some more.
class WlrDesktop final : public DesktopSource
{
public:
    /// Connects; nothing when there is no compositor, or when it doesn't tell windows.
    static std::unique_ptr<DesktopSource> Open(const WatchSettings& settings, DesktopSight& sight);

    explicit WlrDesktop(const WatchSettings& settings);
    ~WlrDesktop() override;

    int Descriptor() const override { return mConnection.Descriptor(); }
    bool Dispatch() override { return !mIsFinished && mConnection.Dispatch(); }
    DesktopSight Sight() const override;
    std::optional<FrontWindow> Window() override;
    std::optional<std::chrono::milliseconds> Idle() override { return mIdle->Time(); }
    std::optional<bool> IsLocked() override { return std::nullopt; }

private:
    /// What is known of a window, and what is told of it and holds from the next `done` on.
    struct Toplevel
    {
        WlrDesktop* desktop;
        wl_proxy* proxy;
        FrontWindow told;
        bool isToldActive = false;
        FrontWindow window;
        bool isActive = false;
    };

    static void OnToplevel(void* self, wl_proxy* manager, wl_proxy* toplevel);
    static void OnFinished(void* self, wl_proxy* manager);
    static void OnTitle(void* toplevel, wl_proxy* proxy, const char* title);
    static void OnAppId(void* toplevel, wl_proxy* proxy, const char* appId);
    static void OnOutput(void* toplevel, wl_proxy* proxy, wl_output* output);
    static void OnState(void* toplevel, wl_proxy* proxy, wl_array* states);
    static void OnDone(void* toplevel, wl_proxy* proxy);
    static void OnClosed(void* toplevel, wl_proxy* proxy);

    WaylandConnection mConnection;
    std::unique_ptr<WaylandIdle> mIdle;
    wl_proxy* mManager = nullptr;
    /// The windows, the one that came in front last at the end.
    std::vector<std::unique_ptr<Toplevel>> mToplevels;
    bool mIsFinished = false;
};

}
