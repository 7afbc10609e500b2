#pragma once

#include "addin/base/ComRef.h"
#include "addin/com/LateObject.h"

#include <utility>

namespace tempodial {

/// The host's own window in front, which owns what the add-in shows.
class HostsWindow
{
public:
    /// Takes the host's application, nothing when there is none.
    explicit HostsWindow(ComRef<IDispatch> application)
        : mApplication(std::move(application))
    {
    }

    /// The window, null when the host has none or doesn't say.
    HWND Get() const;

private:
    ComRef<IDispatch> mApplication;
};

}
