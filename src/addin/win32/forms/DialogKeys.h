#pragma once

#include "addin/base/Windows.h"

namespace tempodial {

/// The keys of a window that is seen: the host's own loop knows nothing of it, so a hook on the thread's messages lets
/// the system's dialog manager have those that are meant for it. The hook is there while any such window is.
class DialogKeys
{
public:
    explicit DialogKeys(HWND window);
    ~DialogKeys();
    DialogKeys(const DialogKeys&) = delete;
    DialogKeys& operator=(const DialogKeys&) = delete;

    /// True while the hook is there, so that its code is needed.
    static bool IsHooked();

private:
    HWND mWindow;
};

}
