#pragma once

#include "desktop/SilenceNotice.h"
#include "desktop/qt/Desk.h"

#include <QTimer>
#include <functional>

namespace tempodial {

/// Looks every few minutes whether the tracker still writes, and says in the window, or elsewhere when none is seen,
/// when it has been silent for long.
class TrackerSilence
{
public:
    /// Takes what says something while no window is seen. The desk must live as long as this.
    TrackerSilence(Desk& desk, std::function<void(const std::string& text)> whenHidden);

    /// Looks now.
    void Look();

private:
    Desk& mDesk;
    std::function<void(const std::string& text)> mWhenHidden;
    SilenceNotice mNotice;
    QTimer mTimer;
};

}
