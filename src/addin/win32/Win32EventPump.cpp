#include "addin/win32/Win32EventPump.h"

#include "addin/base/Windows.h"

namespace tempodial {

void Win32EventPump::ProcessPending()
{
    MSG message {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        if (message.message == WM_QUIT) {
            // It is meant for the host's own loop.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}
