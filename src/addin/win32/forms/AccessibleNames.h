#pragma once

#include "addin/base/Accessibility.h"
#include "addin/base/ComRef.h"

#include <string>
#include <utility>

namespace tempodial {

/// What screen readers say of windows and their parts beyond what these say themselves. Where the system can't be told,
/// nothing happens.
class AccessibleNames
{
public:
    /// The system's own service.
    AccessibleNames();
    explicit AccessibleNames(ComRef<IAccPropServices> service)
        : mService(std::move(service))
    {
    }

    /// Names a window that has no label in front of it.
    void Name(HWND window, const std::string& name) const;
    /// Describes a window.
    void Describe(HWND window, const std::string& description) const;
    /// Takes back what was said of a window, as is due before it goes.
    void Forget(HWND window) const;

private:
    void Say(HWND window, const GUID& property, const std::string& text) const;

    ComRef<IAccPropServices> mService;
};

}
