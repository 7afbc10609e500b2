#include "addin/win32/forms/HostsWindow.h"

#include "base/Failure.h"

namespace tempodial {

HWND HostsWindow::Get() const
{
    HWND window = nullptr;
    try {
        MemberIds ids;
        const auto active
            = mApplication ? LateObject(mApplication, ids).Call("ActiveWindow").ToObject() : ComRef<IDispatch>();
        const auto withWindow = active.As<IOleWindow>();
        if (withWindow && FAILED(withWindow->GetWindow(&window))) {
            window = nullptr;
        }
    } catch (const Failure&) { // NOLINT(bugprone-empty-catch)
        // Old versions have no such member.
    }
    return IsWindow(window) != FALSE ? GetAncestor(window, GA_ROOT) : nullptr;
}

}
