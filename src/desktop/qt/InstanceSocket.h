#pragma once

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

    /// Called when somebody wants the windows in front.
    std::function<void()> mRaise;

    /// Answers a call, a JSON object in a line, by such a one.
    std::string Answer(const std::string& line) const;

    /// Brings the windows of the profile's program to the front; false when there is none.
    static bool RaiseOther(const std::string& profile);

private:
    DesktopSocket mSocket;
    QSocketNotifier mNotifier;
};

}
