#pragma once

#include "desktop/qt/Desk.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

class QWidget;

namespace tempodial {

class MainWindow;

/// The windows on the screen: one for each window of the host, made when that comes into being and gone when it goes.
class HostWindows
{
public:
    explicit HostWindows(Desk& desk);
    ~HostWindows();
    HostWindows(const HostWindows&) = delete;
    HostWindows& operator=(const HostWindows&) = delete;

    /// Called when the last explorer has gone.
    std::function<void()> mWhenAllClosed;

    /// Makes the windows that are missing and lets those go whose model is gone.
    void Follow();
    /// The window of an explorer, null when it has none.
    MainWindow* WindowOf(const Ref<HostExplorer>& explorer) const;

private:
    /// A window may be in the midst of an event of its own when it goes.
    struct Later
    {
        void operator()(QWidget* window) const;
    };
    template <class Window> using Numbered = std::map<std::int32_t, std::unique_ptr<Window, Later>>;

    Desk& mDesk;
    Numbered<MainWindow> mExplorers;
    Subscription mEvents;
};

}
