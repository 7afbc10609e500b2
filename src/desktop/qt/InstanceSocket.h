#pragma once

#include "desktop/StartWish.h"
#include "session/DesktopSocket.h"

#include <QSocketNotifier>
#include <functional>
#include <string>

namespace tempodial {

/// Where a second start of the program for a profile reaches the first, so that there is one.
class InstanceSocket
{
public:
    /// Listens for a profile that this process holds; fails as `DesktopSocket` does.
    explicit InstanceSocket(const std::string& profile);

    /// Called when somebody wants the windows in front, and perhaps something done then.
    std::function<void(StartWish wish)> mRaise;

    /// Answers a call, a JSON object in a line, by such a one.
    std::string Answer(const std::string& line) const;

    /// Brings the windows of the profile's program to the front, and hands a wish on to it; false when there is none.
    static bool RaiseOther(const std::string& profile, StartWish wish = StartWish::None);

private:
    DesktopSocket mSocket;
    QSocketNotifier mNotifier;
};

}
