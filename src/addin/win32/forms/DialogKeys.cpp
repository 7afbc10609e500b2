#include "addin/win32/forms/DialogKeys.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace tempodial {

namespace {

/// The hook, null while no window needs it, and the windows.
struct KeyHook
{
    HHOOK hook = nullptr;
    std::vector<HWND> windows;
};

KeyHook& OnlyKeyHook()
{
    static KeyHook hook;
    return hook;
}

bool IsKey(UINT message)
{
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

void OfferKey(MSG& message)
{
    // Only a window that the message is for takes it, and what it does may end any of them.
    const auto windows = OnlyKeyHook().windows;
    if (std::any_of(windows.begin(), windows.end(),
            [&message](HWND window) { return IsDialogMessageW(window, &message) != FALSE; })) {
        // The loop finds nothing left to do.
        message.message = WM_NULL;
    }
}

LRESULT CALLBACK HearMessage(int code, WPARAM removed, LPARAM parameter)
{
    auto* const message = std::bit_cast<MSG*>(parameter);
    if (code == HC_ACTION && removed == PM_REMOVE && IsKey(message->message)) {
        OfferKey(*message);
    }
    return CallNextHookEx(nullptr, code, removed, parameter);
}

}

DialogKeys::DialogKeys(HWND window)
    : mWindow(window)
{
    auto& [hook, windows] = OnlyKeyHook();
    windows.push_back(window);
    if (hook == nullptr) {
        hook = SetWindowsHookExW(WH_GETMESSAGE, &HearMessage, nullptr, GetCurrentThreadId());
    }
}

DialogKeys::~DialogKeys()
{
    auto& [hook, windows] = OnlyKeyHook();
    windows.erase(std::find(windows.begin(), windows.end(), mWindow));
    if (windows.empty() && hook != nullptr) {
        UnhookWindowsHookEx(hook);
        hook = nullptr;
    }
}

bool DialogKeys::IsHooked()
{
    return OnlyKeyHook().hook != nullptr;
}

}
